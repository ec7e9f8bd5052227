#include "carryXmp.h"

#include <cerrno>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include "ByteReader.h"
#include "RegularFile.h"
#include "furtherPictures.h"
#include "photoMetadata.h"
#include "pngChunk.h"

namespace {

/// The XMP of a JPEG or PNG file, but for what withoutFurtherPictures leaves out byte for byte, and including extended XMP in
/// several segments, and the place for XMP in such a file. Between two files of the same of these formats it is copied as it is:
/// the metadata library would rewrite the EXIF of a PNG.
struct XmpPieces
{
    QByteArray bytes;
    qint64 place = 0;
};

ByteReader readerOf(const QByteArray &file)
{
    return ByteReader(file.constData(), std::size_t(file.size()));
}

constexpr std::string_view kJpegXmpHead("http://ns.adobe.com/xap/1.0/\0", 29);

/// A piece whose packet begins after `head` bytes, with the packet as withoutFurtherPictures makes it.
QByteArray filtered(const QByteArray &piece, int head)
{
    const std::string packet = piece.mid(head).toStdString(), kept = withoutFurtherPictures(packet);
    return kept == packet ? piece : piece.left(head) + QByteArray::fromStdString(kept);
}

/// A segment with its size put right; nothing if it has become longer than a segment may be.
QByteArray jpegSegment(QByteArray segment)
{
    const int size = segment.size() - 2;
    if (size > 0xFFFF)
        return QByteArray();
    segment[2] = char(size >> 8);
    segment[3] = char(size & 0xFF);
    return segment;
}

std::optional<XmpPieces> piecesOfJpeg(const QByteArray &file)
{
    ByteReader reader = readerOf(file);
    if (!reader.startsWith("\xff\xd8\xff"))
        return std::nullopt;
    reader.skip(2);
    XmpPieces pieces{QByteArray(), 2};
    QByteArray extension;
    bool extended = true;
    bool leading = true;
    try {
        for (qint64 start = 2; reader.u8() == 0xff; start = qint64(reader.position())) {
            const int marker = reader.u8();
            const int size = reader.u16(); // with its own two bytes
            if (marker == 0xda || size < 2)
                break;
            ByteReader segment = reader.stretch(std::uint64_t(size) - 2);
            const QByteArray whole = file.mid(int(start), size + 2);
            if (marker == 0xe1 && segment.startsWith(kJpegXmpHead)) {
                const QByteArray kept = filtered(whole, 4 + int(kJpegXmpHead.size()));
                pieces.bytes += kept == whole ? whole : jpegSegment(kept);
                extended = kept == whole || kept.contains("HasExtendedXMP");
            } else if (marker == 0xe1 && segment.startsWith("http://ns.adobe.com/xmp/extension/")) {
                extension += whole;
            }
            leading = leading && (marker == 0xe0 || (marker == 0xe1 && segment.startsWith("Exif")));
            if (leading)
                pieces.place = qint64(reader.position());
        }
    } catch (const EndOfBytes &) { // what came before is kept
    }
    if (extended)
        pieces.bytes += extension;
    return pieces;
}

std::optional<XmpPieces> piecesOfPng(const QByteArray &file)
{
    constexpr int kAfterHeader = 8 + 12 + 13;
    ByteReader reader = readerOf(file);
    if (!reader.startsWith("\x89PNG\r\n\x1a\n") || !reader.holds(0, kAfterHeader))
        return std::nullopt;
    reader.skip(8);
    XmpPieces pieces{QByteArray(), kAfterHeader};
    try {
        for (;;) {
            const auto start = int(reader.position());
            const std::uint32_t size = reader.u32();
            ByteReader chunk = reader.stretch(std::uint64_t(size) + 8); // type, content, check sum
            if (!chunk.startsWith("iTXtXML:com.adobe.xmp"))
                continue;
            const QByteArray whole = file.mid(start, int(size) + 12), content = whole.mid(8, int(size)),
                             kept = filtered(content, int(kPngXmpHead.size()));
            std::vector<std::uint8_t> changed;
            if (kept != content)
                appendPngChunk(changed, "iTXt", {kept.begin(), kept.end()});
            pieces.bytes +=
                kept == content ? whole : QByteArray(reinterpret_cast<const char *>(changed.data()), int(changed.size()));
        }
    } catch (const EndOfBytes &) {
    }
    return pieces;
}

/// The content of a file, mapped instead of copied; null on a failure.
QByteArray mapped(QFile &file)
{
    if (!file.open(QIODevice::ReadOnly) || file.size() > INT_MAX)
        return QByteArray();
    const uchar *bytes = file.map(0, file.size());
    return bytes ? QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), int(file.size())) : QByteArray();
}

std::string packetOf(const QString &path)
{
    try {
        const RegularFile file(QFile::encodeName(path).toStdString());
        const auto image = openMetadata(file);
        if (!image)
            return {}; // a format without XMP
        image->readMetadata();
        // Verbatim where the library keeps the file's own packet (for TIFF it does not), or else as the library writes it.
        image->writeXmpFromPacket(true);
        if (std::string packet = image->xmpPacket(); !packet.empty())
            return packet;
        image->writeXmpFromPacket(false);
        return image->xmpPacket();
    } catch (const std::exception &) {
        return {}; // a damaged block
    }
}

/// False if the format can't hold XMP.
bool setPacket(const QString &path, const std::string &packet)
{
    const auto image = openMetadata(QFile::encodeName(path).toStdString());
    if (!image || (image->checkMode(Exiv2::mdXmp) & Exiv2::amWrite) == 0)
        return false;
    image->readMetadata();
    image->setXmpPacket(packet);
    image->writeXmpFromPacket(true);
    image->writeMetadata();
    return true;
}

QString copyTo(QIODevice &target, QIODevice &source)
{
    QByteArray block(1 << 20, Qt::Uninitialized);
    for (qint64 got; (got = source.read(block.data(), block.size())) != 0;) {
        if (got < 0)
            return source.errorString();
        const qint64 written = target.write(block.constData(), got);
        if (written != got) // Qt does not count a partial write as an error
            return written < 0 ? target.errorString() : qt_error_string(ENOSPC);
    }
    return QString();
}

} // namespace

QString carryXmp(const QString &source, const QString &result)
{
    QFile from(source), to(result);
    const QByteArray photograph = mapped(from), whole = mapped(to);
    std::optional<XmpPieces> pieces = piecesOfJpeg(photograph), place = piecesOfJpeg(whole);
    if (!pieces || !place) {
        pieces = piecesOfPng(photograph);
        place = piecesOfPng(whole);
    }
    const bool alike = pieces && place;
    const std::string packet = alike ? std::string() : withoutFurtherPictures(packetOf(source));
    if (alike ? pieces->bytes.isEmpty() : packet.empty())
        return QString();

    QTemporaryFile copy(QFileInfo(result).absolutePath() + "/.veilaway-XXXXXX");
    if (!to.isOpen() || !copy.open())
        return to.isOpen() ? copy.errorString() : to.errorString();
    if (alike) {
        copy.write(whole.constData(), place->place);
        copy.write(pieces->bytes);
        copy.write(whole.constData() + place->place, whole.size() - place->place);
    } else if (const QString failure = copyTo(copy, to); !failure.isEmpty()) {
        return failure;
    }
    if (!copy.flush() || copy.error() != QFile::NoError)
        return copy.errorString();
    try {
        if (!alike && !setPacket(copy.fileName(), packet))
            return QString();
    } catch (const std::exception &failure) {
        return QString::fromUtf8(failure.what());
    }
    copy.setPermissions(to.permissions());
    if (std::rename(QFile::encodeName(copy.fileName()).constData(), QFile::encodeName(result).constData()) != 0)
        return qt_error_string(errno);
    copy.setAutoRemove(false);
    return QString();
}
