#include "PhotoLoader.h"

#include <QFile>
#include <QFileInfo>

#include "FileThreadLimit.h"
#include "VException.h"
#include "gfl.h"
#include "inWindow.h"
#include "kernel32.h"
#include "photoKind.h"

namespace {

QString reasonFor(const PhotoProblem &problem)
{
    using Cause = PhotoProblem::Cause;
    switch (problem.cause) {
    case Cause::NotOpened:
        return PhotoLoader::tr("The file can't be opened. Check that it exists and that you may read it.");
    case Cause::Video:
        return PhotoLoader::tr(
            "It is a video. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.");
    case Cause::Animation:
        return PhotoLoader::tr(
            "It is an animation. Haze can be removed from photographs only; save a frame of it as JPEG, PNG or TIFF.");
    case Cause::NoDecoder:
        return PhotoLoader::tr("This installation can't decode its format; veilaway --version says which formats it can. Convert "
                               "the photograph to JPEG, PNG or TIFF.");
    case Cause::UnknownFormat:
        return PhotoLoader::tr(
                   "It is not a picture in a known format, or not in the one that its suffix names. %1 and camera raw can "
                   "be read; give the file the suffix of its format, or convert it.")
            .arg(PhotoLoader::formatNames().join(QStringLiteral(", ")));
    case Cause::Damaged:
        return PhotoLoader::tr("The file is cut short or damaged. Copy it again from the camera or a backup.");
    case Cause::NoMemory:
        return inWindow() ? PhotoLoader::tr("There is not enough memory for it. Close other programs and try again.")
                          : PhotoLoader::tr("There is not enough memory for it. Close other programs, or work on one "
                                            "photograph at a time (--jobs 1).");
    case Cause::RawNoMemory:
        return inWindow()
                   ? PhotoLoader::tr("There is not enough memory for this camera raw file. Close other programs and try again.")
                   : PhotoLoader::tr("There is not enough memory for this camera raw file. Close other programs, or work on one "
                                     "photograph at a time (--jobs 1).");
    case Cause::RawNotRead:
        return PhotoLoader::tr("The camera raw file can't be developed: %1. Copy it again, or convert it to DNG or TIFF.")
            .arg(QString::fromStdString(problem.detail));
    case Cause::PixelForm:
    case Cause::None:
        break;
    }
    return PhotoLoader::tr("Its kind of pixels can't be read. Save it as RGB with 8 or 16 bits and try again.");
}

/// Throws the problem, if there is one.
void check(const PhotoProblem &problem)
{
    if (problem)
        throw VException(reasonFor(problem), V_LOCATION);
}

std::string fileName(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

QStringList asStrings(const std::vector<std::string_view> &suffixes)
{
    QStringList strings;
    for (const std::string_view suffix : suffixes)
        strings << QString::fromLatin1(suffix.data(), int(suffix.size()));
    return strings;
}

} // namespace

QString PhotoLoader::complaint(const QString &path)
{
    const QFileInfo info(path);
    if (path.isEmpty())
        return tr("An empty name cannot be that of a photograph.");
    if (!info.exists() && path.contains(QChar::ReplacementCharacter))
        return tr("Its name or that of a folder holds letters that are not UTF-8. Rename it.");
    if (const QFileInfo folder(info.absolutePath()); folder.isDir() && !folder.isExecutable())
        return tr("Its folder can't be opened. Give yourself the permission to open it.");
    if (!info.exists())
        return info.isSymLink() ? tr("The link leads nowhere. Name the photograph itself.")
                                : tr("There is no such file. Check its name and folder.");
    if (info.isDir())
        return tr("This is a folder. Name the photographs in it, for instance \"%1\".").arg(path + QStringLiteral("/*.jpg"));
    if (!info.isFile())
        return tr("This is not a regular file. Copy the photograph into one.");
    if (!info.isReadable())
        return tr("The file can't be read. Give yourself the permission to read it.");
    if (info.size() == 0)
        return tr("The file is empty. Copy it again from the camera or a backup.");
    return QString();
}

QStringList PhotoLoader::pictureSuffixes()
{
    return asStrings(keptSuffixes());
}

QStringList PhotoLoader::rawSuffixes()
{
    return asStrings(::rawSuffixes());
}

QStringList PhotoLoader::readableSuffixes()
{
    QStringList suffixes = pictureSuffixes() + rawSuffixes();
    for (const FurtherFormat &format : furtherFormats())
        if (!format.library.empty())
            suffixes << asStrings(format.suffixes);
    return suffixes;
}

QStringList PhotoLoader::formatNames()
{
    QStringList names{"JPEG", "PNG", "TIFF", "HDR", "EXR", "PSD"};
    for (const FurtherFormat &format : furtherFormats())
        if (!format.library.empty())
            names << QString::fromStdString(format.name);
    return names;
}

QByteArray PhotoLoader::standIn(const QString &path)
{
    std::vector<std::uint8_t> bytes;
    check(makeStandIn(fileName(path), bytes));
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), int(bytes.size()));
}

bool PhotoLoader::canWrite(const QString &suffix)
{
    return pictureSuffixes().contains(suffix);
}

PhotoHead PhotoLoader::describe(const QString &path)
{
    const QString wrong = complaint(path);
    if (!wrong.isEmpty())
        throw VException(wrong, V_LOCATION);
    PhotoHead head;
    check(readHead(fileName(path), head));
    return head;
}

std::unique_ptr<DecodedPhoto> PhotoLoader::decode(const QString &path)
{
    auto photo = std::make_unique<DecodedPhoto>();
    PhotoPixels &read = photo->read;
    gflSetTeamSize(fileThreadCount());
    check(readPixels(fileName(path), read, GetAvailableMemory()));
    const unsigned short type = read.components == 1 ? VImage::Grey : read.components == 3 ? VImage::Rgb : VImage::Rgba;
    photo->pixels.Create(read.width, read.height, type, read.bits, /*clear=*/false, read.data, read.strideBytes);
    return photo;
}
