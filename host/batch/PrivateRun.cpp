#include "PrivateRun.h"

#include <set>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <sys/stat.h>

#include "BatchPlan.h"
#include "VException.h"
#include "VTempManager.h"
#include "carryXmp.h"
#include "encodeResult.h"
#include "gfl.h"
#include "giveName.h"
#include "inWindow.h"
#include "throwGflError.h"

namespace {

QString suffixOfFile(const QString &path)
{
    return QFileInfo(path).suffix().toLower();
}

PhotoKind formatOf(const QString &path)
{
    return pictureKindOfSuffix(suffixOfFile(path).toStdString());
}

/// Not the photograph's: it must not name a format, or else the content would have to be in it.
constexpr char kStandInSuffix[] = "standin";

/// A link stays a link, and the file that it points at is replaced.
QString targetOf(const QString &result)
{
    const QString resolved = QFileInfo(result).canonicalFilePath();
    return resolved.isEmpty() ? result : resolved;
}

/// The most bits per channel that a format holds.
int depthOf(PhotoKind format)
{
    return format == PhotoKind::Jpeg ? 8 : format == PhotoKind::Png ? 16 : 32;
}

} // namespace

PrivateRun::PrivateRun(HostApplication &host, const BatchItem &photograph, bool rowsForColumns)
    : application(host), item(photograph), transposed(rowsForColumns), target(targetOf(photograph.result)),
      standIn(host.photograph(photograph.path)->facts().needsStandIn)
{
    const QFileInfo older(target);
    if (older.exists() && (!older.isFile() || !older.isWritable()))
        checkFileWritable(target, 0, V_LOCATION);
    const QString folder = older.absolutePath();
    QDir().mkpath(folder);
    home = std::make_unique<PrivateFolder>(folder);
    if (home->path().isEmpty())
        throw VException((inWindow() ? tr("No files can be created in the folder \"%1\": %2. Make room there, or choose another "
                                          "folder for the results.")
                                     : tr("No files can be created in the folder \"%1\": %2. Make room there, or choose another "
                                          "folder with --output."))
                             .arg(folder, home->error()),
                         V_LOCATION);
    makeLink();
    const bool becomesTiff = application.photograph(item.path)->needsTiffOutput();
    const bool alike = formatOf(item.result) == (becomesTiff ? PhotoKind::Tiff : formatOf(item.path));
    const bool encoded = item.packing.jpegQuality.has_value();
    shown = application.addInGuise(link, {rowsForColumns, /*tiffOutput=*/!alike || encoded, /*original=*/item.path});
}

bool PrivateRun::place(const PrivateFolder &folder)
{
    if (folder.path().isEmpty())
        return false;
    // With the suffix, which says what the file is, and a name that leaves room for any tag.
    const QString suffix = QFileInfo(item.path).suffix();
    link = folder.filePath(suffix.isEmpty() ? QStringLiteral("photo") : QStringLiteral("photo.") + suffix);
    return QFile::link(item.path, link);
}

void PrivateRun::makeLink()
{
    if (standIn) {
        link = home->filePath(QStringLiteral("photo.") + kStandInSuffix);
        QFile file(link);
        const QByteArray bytes = PhotoLoader::standIn(item.path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
            throw VException(tr("\"%1\" can't be written: %2.").arg(link, file.errorString()), V_LOCATION);
        return;
    }
    if (place(*home))
        return;
    // The file system of a memory card may not support links.
    PrivateFolder::removeAbandoned(QDir::tempPath());
    elsewhere = std::make_unique<PrivateFolder>(QDir::tempPath());
    if (!place(*elsewhere))
        throw VException(tr("A link to the photograph can't be created, neither in the folder of its result nor in \"%1\". Make "
                            "room there, and check that you can write there.")
                             .arg(QDir::tempPath()),
                         V_LOCATION);
}

PrivateRun::~PrivateRun()
{
    if (shown)
        application.forget(link);
}

void PrivateRun::checkDepth(const BatchItem &item, int bits)
{
    const PhotoKind format = formatOf(item.result);
    if (format != formatOf(item.path) && bits > depthOf(format))
        throw VException(tr("Its %1 bits per channel don't fit into a file of this format. Choose a name that ends in .tif, .psd "
                            "or, for up to 16 bits, .png.")
                             .arg(bits),
                         V_LOCATION);
}

QString PrivateRun::withKnownPaths(QString message) const
{
    message.replace(link, item.path);
    for (const auto &[folder, outside] :
         {std::pair(home.get(), QFileInfo(item.result).absolutePath()), std::pair(elsewhere.get(), QDir::tempPath())})
        if (folder)
            message.replace(QRegularExpression(QRegularExpression::escape(folder->path()) + "/[^\"/]+"), item.result)
                .replace(folder->path(), outside);
    return message;
}

void PrivateRun::run(VIPluginOne2One &process, VISettingsHandle settings)
{
    try {
        const QString expected = BatchPlan::resultName(link, shown->needsTiffOutput());
        process.run(link, settings, &finished);
        if (finished != expected || QFileInfo(finished).size() == 0)
            throw VException(tr("The plug-in wrote \"%1\" instead of \"%2\"").arg(finished, expected), V_LOCATION);
        finish();
    } catch (const VException &failure) {
        throw VException(withKnownPaths(failure.message), failure.location);
    }
}

void PrivateRun::finish()
{
    const QString written = finished, suffix = suffixOfFile(item.result);
    const bool alike = formatOf(written) == formatOf(item.result);
    if (!transposed && alike && item.packing.isUsual())
        return;
    finished = home->filePath(QStringLiteral("finished.") + suffix);
    if (transposed && alike) {
        const int code = gflTransposeJpegUTF8(written.toUtf8().constData(), finished.toUtf8().constData());
        if (code == GFL_ERROR_FILE_CREATE || code == GFL_ERROR_FILE_WRITE) // its message is clearer than the code
            checkFileWritable(finished, QFileInfo(written).size(), V_LOCATION);
        if (code != GFL_ERROR_UNKNOWN_FORMAT) {
            throwGflError(code, finished, V_LOCATION);
            return;
        }
    }
    std::unique_ptr<DecodedPhoto> photo = PhotoLoader::decode(written);
    if (transposed) {
        auto upright = std::make_unique<VImage>();
        photo->image().Turn(*upright, Photograph::kRowsForColumns);
        photo.reset();
        encodeResult(*upright, finished, item.packing, metadataSource());
    } else {
        encodeResult(photo->image(), finished, item.packing, metadataSource());
    }
}

QString PrivateRun::carryXmp() const
{
    return withKnownPaths(::carryXmp(metadataSource(), finished));
}

QString PrivateRun::bringHome()
{
    if (elsewhere && finished.startsWith(elsewhere->path())) {
        const QString near = home->filePath(QFileInfo(finished).fileName());
        QFile source(finished);
        if (!source.copy(near))
            throw VException(tr("\"%1\" can't be written: %2.").arg(item.result, source.errorString()), V_LOCATION);
        finished = near;
    }
    QFile file(finished);
    const bool timed = !item.keepTime || (file.open(QIODevice::ReadWrite) && file.setFileTime(QFileInfo(item.path).lastModified(),
                                                                                              QFileDevice::FileModificationTime));
    return timed ? QString() : file.errorString();
}

bool PrivateRun::publish()
{
    struct stat older;
    if (::stat(QFile::encodeName(target).constData(), &older) == 0)
        ::chmod(QFile::encodeName(finished).constData(), older.st_mode & 07777);
    QString reason;
    switch (giveName(finished, target, item.replaces(), reason)) {
    case Naming::Done:
        return true;
    case Naming::Exists:
        return false;
    case Naming::Failed:
        break;
    }
    throw VException(tr("\"%1\" can't be written: %2.").arg(item.result, reason), V_LOCATION);
}

void PrivateRun::removeAbandoned(const std::vector<BatchItem> &items)
{
    std::set<QString> folders{QDir::tempPath()};
    for (const BatchItem &item : items)
        if (!item.result.isEmpty())
            folders.insert(QFileInfo(targetOf(item.result)).absolutePath());
    for (const QString &folder : folders)
        PrivateFolder::removeAbandoned(folder);
}
