#pragma once

#include <QCoreApplication>
#include <QPluginLoader>
#include <QString>

#include "VIAbout.h"
#include "VIPluginLibrary.h"
#include "VIPluginOne2One.h"

/// A loaded plug-in file and one process of it. This object's end destroys the library object and the process; the file itself
/// stays mapped until the program ends.
class PluginFile
{
    Q_DECLARE_TR_FUNCTIONS(PluginFile)

public:
    /// Loads `path`, or if that is empty Nimbra.so beside the program or in ../lib/nimbra. The application object must exist.
    /// Throws VException, whose message says what is wrong and how to put it right.
    explicit PluginFile(const QString &path);
    ~PluginFile();
    PluginFile(const PluginFile &) = delete;
    PluginFile &operator=(const PluginFile &) = delete;

    VIPluginOne2One &process() { return *one2one; }
    /// Name, version, maker and file, in one line.
    QString identity();

private:
    QPluginLoader loader;
    VIPluginOne2One *one2one = nullptr;
};
