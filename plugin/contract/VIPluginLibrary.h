#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QtPlugin>

/// What the host gets from a plug-in file: the maker of its processes. Abstract, without data.
class VIPluginLibrary
{
public:
    virtual ~VIPluginLibrary() = default;
    /// Makes one more process if `create` is not 0. Returns every process made so far, oldest first; an element is null when its
    /// object was deleted by someone else. The library owns the objects; the host casts an element with qobject_cast. Not to be
    /// called from two threads at once.
    virtual QList<QPointer<QObject>> processes(int create) = 0;
};

Q_DECLARE_INTERFACE(VIPluginLibrary, "VIPluginLibrary")
