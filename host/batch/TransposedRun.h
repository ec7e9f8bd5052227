#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTemporaryDir>

#include "HostApplication.h"
#include "VIPluginOne2One.h"

/// One run of a process over a photograph that is too wide for it but not too high. The process sees the photograph transposed,
/// under a path in a temporary folder beside it, which also holds the result until it has been transposed back. Under the
/// result's own name there is at any time nothing, an older file, or the finished result.
///
/// The result of a JPEG is transposed back in its coefficients; all others in their pixels, and written with the photograph's own
/// metadata, as a process writes them. Neither changes a value.
class TransposedRun
{
    Q_DECLARE_TR_FUNCTIONS(TransposedRun)

public:
    /// Creates the folder with a link to the photograph. Throws VException if no link can be created in the photograph's folder
    /// or in the one for temporary files.
    TransposedRun(HostApplication &host, const QString &path);
    /// Removes the folder and everything in it.
    ~TransposedRun();
    TransposedRun(const TransposedRun &) = delete;
    TransposedRun &operator=(const TransposedRun &) = delete;

    /// The photograph as the process sees it.
    Photograph &photograph() { return *transposed; }
    /// Runs the process and writes `result`. Throws VException, whose message names the paths that the user knows.
    void run(VIPluginOne2One &process, VISettingsHandle settings, const QString &result);

private:
    void turnBack(const QString &written, const QString &result) const;

    HostApplication &application;
    const QString source;
    std::unique_ptr<QTemporaryDir> folder;
    QString link;
    Photograph *transposed = nullptr; ///< Owned by the application.
};
