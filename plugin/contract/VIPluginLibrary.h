#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QtPlugin>

/// The object that the host gets from a plug-in file; it makes the processes. Abstract, without data.
class VIPluginLibrary
{
public:
    virtual ~VIPluginLibrary() = default;
    /// Makes one more process if `create` is not 0. Returns every process made so far, oldest first; an element is null if
    /// someone else has deleted its object. The library owns the objects; the host casts an element with qobject_cast. Must not
    /// be called from two threads at once.
    virtual QList<QPointer<QObject>> processes(int create) = 0;
};

Q_DECLARE_INTERFACE(VIPluginLibrary, "VIPluginLibrary")
