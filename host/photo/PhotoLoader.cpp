#include "PhotoLoader.h"

#include <algorithm>

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include "VException.h"
#include "gfl.h"
#include "photoMetadata.h"

namespace {

QString reasonFor(int code)
{
    switch (code) {
    case GFL_ERROR_FILE_OPEN:
        return PhotoLoader::tr("The file can't be opened. Check that it exists and that you may read it.");
    case GFL_ERROR_FILE_READ:
        return PhotoLoader::tr("The file is cut short or damaged. Copy it anew from the camera or a backup.");
    case GFL_ERROR_NO_MEMORY:
        return PhotoLoader::tr("There is not enough memory for it. Close other programs, or work on one photograph at a time "
                               "(--jobs 1).");
    case GFL_ERROR_UNKNOWN_FORMAT:
        return PhotoLoader::tr(
            "It is no picture of a known format, or another one than its suffix says. JPEG, PNG, TIFF, HDR, EXR, "
            "PSD and camera raw can be read; give the file the suffix of what it is, or convert it.");
    default:
        return PhotoLoader::tr("Its kind of pixels can't be read. Save it as RGB with 8 or 16 bits and try again.");
    }
}

/// The densest that a format can be packed is a row of fax that repeats the one above: it takes a bit, and files are not longer
/// than this many pixels.
constexpr qint64 kMostPixelsPerByte = 1 << 20;

QStringList asStrings(const std::vector<std::string_view> &suffixes)
{
    QStringList strings;
    for (const std::string_view suffix : suffixes)
        strings << QString::fromLatin1(suffix.data(), int(suffix.size()));
    return strings;
}

} // namespace

std::pair<int, PhotoLoader::Record> PhotoLoader::load(const QString &path, std::uint32_t flags)
{
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    params.flags = flags;
    GflBitmap *bitmap = nullptr;
    const int code = gflLoadBitmapUTF8(path.toUtf8().constData(), &bitmap, &params, nullptr);
    return {code, Record(bitmap)};
}

QString PhotoLoader::complaint(const QString &path)
{
    const QFileInfo info(path);
    if (path.isEmpty())
        return tr("An empty name stands for no photograph.");
    if (!info.exists() && path.contains(QChar::ReplacementCharacter))
        return tr("Its name or that of a folder holds letters that are not UTF-8. Rename it.");
    if (!info.exists())
        return info.isSymLink() ? tr("The link leads nowhere. Name the photograph itself.")
                                : tr("There is no such file. Check its name and folder.");
    if (info.isDir())
        return tr("This is a folder. Name the photographs in it, for instance \"%1\".").arg(path + QStringLiteral("/*.jpg"));
    if (!info.isFile())
        return tr("This is no regular file. Copy the photograph into one.");
    if (!info.isReadable())
        return tr("The file can't be read. Give yourself the permission to read it.");
    if (info.size() == 0)
        return tr("The file is empty. Copy it anew from the camera or a backup.");
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

bool PhotoLoader::canWrite(const QString &suffix)
{
    return pictureSuffixes().contains(suffix);
}

PhotoKind PhotoLoader::kindOf(const QString &path)
{
    const std::optional<PhotoKind> kind = photoKindOfFile(QFile::encodeName(path).toStdString());
    if (!kind)
        throw VException(reasonFor(GFL_ERROR_FILE_OPEN), V_LOCATION);
    if (*kind == PhotoKind::Video)
        throw VException(tr("It is a video. Haze can be taken from photographs only; save a picture of it as JPEG, PNG or TIFF."),
                         V_LOCATION);
    if (!suffixFits(*kind, QFileInfo(path).suffix().toLower().toStdString()))
        throw VException(reasonFor(GFL_ERROR_UNKNOWN_FORMAT), V_LOCATION);
    return *kind;
}

PhotoFacts PhotoLoader::describe(const QString &path)
{
    const QString wrong = complaint(path);
    if (!wrong.isEmpty())
        throw VException(wrong, V_LOCATION);
    const PhotoFacts facts = isRaw(path) ? describeRaw(path) : describePicture(path);
    if (qint64(facts.width) * facts.height / kMostPixelsPerByte > QFileInfo(path).size())
        throw VException(reasonFor(GFL_ERROR_FILE_READ), V_LOCATION);
    return facts;
}

PhotoFacts PhotoLoader::describePicture(const QString &path)
{
    PhotoFacts facts;
    try {
        if (const auto image = openMetadata(QFile::encodeName(path).toStdString())) {
            image->readMetadata();
            facts.width = std::max(image->pixelWidth(), 0);
            facts.height = std::max(image->pixelHeight(), 0);
            const Exiv2::ExifData &exif = image->exifData();
            const auto found = exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
            const long orientation = found != exif.end() && found->count() > 0 ? found->toLong() : 1;
            facts.orientation = orientation >= 1 && orientation <= 8 ? int(orientation) : 1;
        }
    } catch (const std::exception &) {
        // What the file lacks its decoder will say, in better words.
    }
    if (facts.width > 0 && facts.height > 0)
        return facts;
    // A format that the metadata library doesn't know: Radiance, OpenEXR, TIFF in its large form.
    if (const Record head = load(path, GFL_LOAD_METADATA_ONLY).second) {
        facts.width = head->width;
        facts.height = head->height;
    }
    return facts;
}

int PhotoLoader::pixelBytes(const QString &path)
{
    constexpr int kRgb16 = 6; // as camera raw is developed
    const Record head = isRaw(path) ? nullptr : load(path, GFL_LOAD_METADATA_ONLY).second;
    return head ? head->bytesPerPixel : kRgb16;
}

std::unique_ptr<DecodedPhoto> PhotoLoader::decode(const QString &path)
{
    auto photo = std::make_unique<DecodedPhoto>();
    if (isRaw(path)) {
        developRaw(path, photo->pixels);
        return photo;
    }
    auto [code, bitmap] = load(path, /*flags=*/0);
    if (code != GFL_NO_ERROR || !bitmap)
        throw VException(reasonFor(code), V_LOCATION);
    photo->pixels.Create(bitmap->width, bitmap->height, bitmap->type, bitmap->bitsPerComponent, /*clear=*/false, bitmap->data,
                         int(bitmap->bytesPerLine));
    photo->bitmap = std::move(bitmap);
    return photo;
}
