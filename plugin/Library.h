#pragma once

#include <QObject>

#include "VIAbout.h"
#include "VIPluginLibrary.h"

/// The object that the host gets when it loads the plug-in file: it says who the plug-in is and makes its processes. One per
/// loaded file.
///
/// Created by qt_plugin_instance on the thread that loads the file. If the application object is a host (VIApplication), the
/// constructor asks it to load the plug-in's catalogue, and starts the image library and the interface library with what the host
/// lends; otherwise the object works in English with nothing started.
class Library : public QObject, public VIPluginLibrary, public VIAbout
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.ombre.haze")
    Q_INTERFACES(VIPluginLibrary VIAbout)

public:
    explicit Library(QObject *parent = nullptr);
    /// Deletes the remaining processes, then stops the image library. If the host ends without an unload, Qt's clean-up calls it
    /// after the application object and some of the libraries that this file uses are gone; whatever needs those has been done by
    /// then (EndAtExit).
    ~Library() override;

    QList<QPointer<QObject>> processes(int create) override;

    QString name() override;
    QString author() override;
    QString company() override;
    QString description() override;
    QString version() override;
    QIcon icon() override;
    QString guid() override;

private:
    struct EndAtExit;

    QList<QPointer<QObject>> madeProcesses; ///< Oldest first.
};
