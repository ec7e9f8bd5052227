#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTemporaryDir>

#include "HostApplication.h"
#include "VIPluginOne2One.h"

/// One run of a process over a photograph that is too wide for it but not too high. The process is shown the photograph with rows
/// for columns, under a path in a folder of its own beside it, where its result lies until it has been turned back: under the
/// name of the result there is nothing, or what stood there before, or the result as it shall be.
///
/// Pictures are turned back by their pixels and written with the photograph's own metadata, as a process writes them; the result
/// of a JPEG is turned in its coefficients. Neither changes a value.
class TransposedRun
{
    Q_DECLARE_TR_FUNCTIONS(TransposedRun)

public:
    /// Makes the folder, and in it a link to the photograph. Throws VException if neither the photograph's folder nor the one for
    /// temporary files takes a link.
    TransposedRun(HostApplication &host, const QString &path);
    /// Removes the folder with all that is in it.
    ~TransposedRun();
    TransposedRun(const TransposedRun &) = delete;
    TransposedRun &operator=(const TransposedRun &) = delete;

    /// What the process is shown.
    Photograph &photograph() { return *transposed; }
    /// Runs the process and writes `result`. Throws VException, which names the places that the user knows.
    void run(VIPluginOne2One &process, VISettingsHandle settings, const QString &result);

private:
    void turnBack(const QString &written, const QString &result) const;

    HostApplication &application;
    const QString source;
    std::unique_ptr<QTemporaryDir> folder;
    QString link;
    Photograph *transposed = nullptr; ///< The application's.
};
