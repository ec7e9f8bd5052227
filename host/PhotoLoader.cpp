#include "PhotoLoader.h"

#include <array>
#include <cstring>

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QtEndian>
#include <exiv2/exiv2.hpp>

#include "VException.h"
#include "gfl.h"

namespace {

/// Size of a Radiance picture: its header ends with an empty line, then comes "-Y <height> +X <width>".
void sizeOfRadiance(const QByteArray &head, PhotoFacts &facts)
{
    const int end = head.indexOf("\n\n");
    if (end < 0)
        return;
    const QList<QByteArray> words = head.mid(end + 2, 80).split('\n').first().simplified().split(' ');
    if (words.size() != 4)
        return;
    const bool upright = words[0].endsWith('Y');
    facts.width = words[upright ? 3 : 1].toInt();
    facts.height = words[upright ? 1 : 3].toInt();
}

/// Size of an OpenEXR picture: its attributes are name, type, byte count, value; "dataWindow" holds xMin, yMin, xMax, yMax.
void sizeOfExr(const QByteArray &head, PhotoFacts &facts)
{
    const int at = head.indexOf(QByteArray("dataWindow\0box2i\0", 17));
    if (at < 0 || at + 17 + 4 + 16 > head.size())
        return;
    std::array<qint32, 4> window{};
    for (int i = 0; i < 4; ++i)
        window[std::size_t(i)] = qFromLittleEndian<qint32>(head.constData() + at + 21 + 4 * i);
    const qint64 width = qint64(window[2]) - window[0] + 1;
    const qint64 height = qint64(window[3]) - window[1] + 1;
    if (width > 0 && height > 0 && width <= INT_MAX && height <= INT_MAX) {
        facts.width = int(width);
        facts.height = int(height);
    }
}

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

} // namespace

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
    return {"jpg", "jpeg", "png", "tif", "tiff", "hdr", "hdri", "exr", "psd"};
}

bool PhotoLoader::canWrite(const QString &suffix)
{
    return pictureSuffixes().contains(suffix);
}

PhotoFacts PhotoLoader::describe(const QString &path)
{
    const QString wrong = complaint(path);
    if (!wrong.isEmpty())
        throw VException(wrong, V_LOCATION);
    if (isRaw(path))
        return describeRaw(path);

    PhotoFacts facts;
    QFile file(path);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? file.read(64 * 1024) : QByteArray();
    if (head.startsWith("#?"))
        sizeOfRadiance(head, facts);
    else if (head.startsWith("\x76\x2f\x31\x01"))
        sizeOfExr(head, facts);
    else
        try {
            const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
            image->readMetadata();
            facts.width = std::max(image->pixelWidth(), 0);
            facts.height = std::max(image->pixelHeight(), 0);
            const Exiv2::ExifData &exif = image->exifData();
            const auto found = exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
            const long orientation = found != exif.end() && found->count() > 0 ? found->toLong() : 1;
            facts.orientation = orientation >= 1 && orientation <= 8 ? int(orientation) : 1;
        } catch (const std::exception &) {
            // What the file lacks its decoding will say, in better words.
        }
    return facts;
}

std::unique_ptr<DecodedPhoto> PhotoLoader::decode(const QString &path)
{
    auto photo = std::make_unique<DecodedPhoto>();
    if (isRaw(path)) {
        developRaw(path, photo->pixels);
        return photo;
    }
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    GflBitmap *bitmap = nullptr;
    const int code = gflLoadBitmapUTF8(path.toUtf8().constData(), &bitmap, &params, nullptr);
    photo->bitmap.reset(bitmap);
    if (code != GFL_NO_ERROR || !bitmap)
        throw VException(reasonFor(code), V_LOCATION);
    photo->pixels.Create(bitmap->width, bitmap->height, bitmap->type, bitmap->bitsPerComponent, /*clear=*/false, bitmap->data,
                         int(bitmap->bytesPerLine));
    return photo;
}
