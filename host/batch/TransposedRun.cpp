#include "TransposedRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "VException.h"
#include "VTempManager.h"
#include "gfl.h"
#include "throwGflError.h"

TransposedRun::TransposedRun(HostApplication &host, const QString &path) : application(host), source(path)
{
    // The file system of a memory card may not support links.
    for (const QString &place : {QFileInfo(path).absolutePath(), QDir::tempPath()}) {
        folder = std::make_unique<QTemporaryDir>(place + QStringLiteral("/.veilaway-XXXXXX"));
        link = folder->filePath(QFileInfo(path).fileName());
        if (folder->isValid() && QFile::link(path, link)) {
            transposed = application.addTransposed(link);
            return;
        }
    }
    throw VException(tr("A temporary folder with a link to the photograph can't be created, neither beside it nor in \"%1\". "
                        "Make room there, and check that you can write there.")
                         .arg(QDir::tempPath()),
                     V_LOCATION);
}

TransposedRun::~TransposedRun()
{
    application.forget(link);
}

void TransposedRun::run(VIPluginOne2One &process, VISettingsHandle settings, const QString &result)
{
    const QString expected = folder->filePath(QFileInfo(result).fileName());
    QString written;
    try {
        process.run(link, settings, &written);
        if (written != expected || QFileInfo(written).size() == 0)
            throw VException(tr("The plug-in wrote \"%1\" instead of \"%2\"").arg(written, expected), V_LOCATION);
        turnBack(written, result);
    } catch (const VException &failure) {
        QString message = failure.message;
        throw VException(message.replace(folder->path(), QFileInfo(result).absolutePath()), failure.location);
    }
}

void TransposedRun::turnBack(const QString &written, const QString &result) const
{
    const int code = gflTransposeJpegUTF8(written.toUtf8().constData(), result.toUtf8().constData());
    if (code == GFL_ERROR_FILE_CREATE || code == GFL_ERROR_FILE_WRITE) // its message is clearer than the code
        checkFileWritable(result, QFileInfo(written).size(), V_LOCATION);
    if (code != GFL_ERROR_UNKNOWN_FORMAT) {
        throwGflError(code, result, V_LOCATION);
        return;
    }
    std::unique_ptr<DecodedPhoto> photo = PhotoLoader::decode(written);
    VImage upright;
    photo->image().Turn(upright, Photograph::kRowsForColumns);
    photo.reset();
    upright.Save(result, QFileInfo(result).suffix(), /*quality=*/-1, source);
}
