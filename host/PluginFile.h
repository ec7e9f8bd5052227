#pragma once

#include <QCoreApplication>
#include <QPluginLoader>
#include <QString>

#include "VIAbout.h"
#include "VIPluginLibrary.h"
#include "VIPluginOne2One.h"

/// The plug-in file, loaded, and one process of it. The library object goes with this object, after which the process is gone;
/// the file itself stays mapped until the program ends.
class PluginFile
{
    Q_DECLARE_TR_FUNCTIONS(PluginFile)

public:
    /// Loads `path`; an empty one stands for Nimbra.so beside the program or in ../lib/nimbra. The application object must exist.
    /// Throws VException with what is wrong and what helps.
    explicit PluginFile(const QString &path);
    ~PluginFile();
    PluginFile(const PluginFile &) = delete;
    PluginFile &operator=(const PluginFile &) = delete;

    VIPluginOne2One &process() { return *one2one; }
    /// Name, version, maker and file, as one line.
    QString identity();

private:
    QPluginLoader loader;
    VIPluginOne2One *one2one = nullptr;
};
