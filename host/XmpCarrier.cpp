#include "XmpCarrier.h"

#include <cerrno>
#include <cstdio>
#include <optional>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QtEndian>

#include "photoMetadata.h"

namespace {

/// The XMP of a JPEG or PNG file as it stands in it, an extended one in several segments included, and the place where such a
/// file takes it. Between two files of one of these formats it is moved as it is: the metadata library would write the EXIF of a
/// PNG anew.
struct XmpPieces
{
    QByteArray bytes;
    qint64 place = 0;
};

std::optional<XmpPieces> piecesOfJpeg(const QByteArray &file)
{
    if (!file.startsWith("\xff\xd8\xff"))
        return std::nullopt;
    XmpPieces pieces{QByteArray(), 2};
    bool leading = true;
    for (int at = 2; at + 4 <= file.size() && uchar(file[at]) == 0xff;) {
        const int marker = uchar(file[at + 1]);
        const int size = 2 + qFromBigEndian<quint16>(file.constData() + at + 2);
        if (marker == 0xda || size < 4 || size > file.size() - at)
            break;
        const QByteArray head = QByteArray::fromRawData(file.constData() + at + 4, size - 4);
        if (marker == 0xe1 &&
            (head.startsWith("http://ns.adobe.com/xap/1.0/") || head.startsWith("http://ns.adobe.com/xmp/extension/")))
            pieces.bytes += file.mid(at, size);
        leading = leading && (marker == 0xe0 || (marker == 0xe1 && head.startsWith("Exif")));
        at += size;
        if (leading)
            pieces.place = at;
    }
    return pieces;
}

std::optional<XmpPieces> piecesOfPng(const QByteArray &file)
{
    constexpr int kAfterHeader = 8 + 12 + 13;
    if (!file.startsWith("\x89PNG\r\n\x1a\n") || file.size() < kAfterHeader)
        return std::nullopt;
    XmpPieces pieces{QByteArray(), kAfterHeader};
    for (qint64 at = 8; at + 12 <= file.size();) {
        const qint64 size = 12 + qint64(qFromBigEndian<quint32>(file.constData() + at));
        if (size > file.size() - at)
            break;
        if (QByteArray::fromRawData(file.constData() + at + 4, int(size) - 4).startsWith("iTXtXML:com.adobe.xmp"))
            pieces.bytes += file.mid(int(at), int(size));
        at += size;
    }
    return pieces;
}

/// The content of a file without a copy; null if it can't be had.
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
        const auto image = openMetadata(QFile::encodeName(path).toStdString());
        if (!image)
            return {}; // a format without XMP
        image->readMetadata();
        // As it stands in the file, where the library keeps that (it does not for TIFF), or else in the library's own words.
        image->writeXmpFromPacket(true);
        if (std::string packet = image->xmpPacket(); !packet.empty())
            return packet;
        image->writeXmpFromPacket(false);
        return image->xmpPacket();
    } catch (const std::exception &) {
        return {}; // a damaged block
    }
}

/// False if the format can't hold any.
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
        if (written != got) // what went in in part is no error to Qt
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
    const std::string packet = alike ? std::string() : packetOf(source);
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
        return QCoreApplication::translate("XmpCarrier", "the result can't be replaced");
    copy.setAutoRemove(false);
    return QString();
}
