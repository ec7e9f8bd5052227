#include "XmpCarrier.h"

#include <cstdio>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <exiv2/exiv2.hpp>

namespace {

std::string xmpOf(const QString &path)
{
    try {
        const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
        image->readMetadata();
        return image->xmpPacket();
    } catch (const std::exception &) {
        return {}; // a format without XMP, or a damaged block that nobody could read in the source either
    }
}

} // namespace

QString carryXmp(const QString &source, const QString &result)
{
    const std::string packet = xmpOf(source);
    if (packet.empty())
        return QString();
    try {
        const QFileInfo target(result);
        QFile whole(result);
        QTemporaryFile copy(target.absolutePath() + "/.veilaway-XXXXXX");
        if (!whole.open(QIODevice::ReadOnly) || !copy.open())
            return whole.isOpen() ? copy.errorString() : whole.errorString();
        QByteArray block(1 << 20, Qt::Uninitialized);
        for (qint64 got; (got = whole.read(block.data(), block.size())) != 0;)
            if (got < 0 || copy.write(block.constData(), got) != got)
                return got < 0 ? whole.errorString() : copy.errorString();
        if (!copy.flush())
            return copy.errorString();

        const auto image = Exiv2::ImageFactory::open(QFile::encodeName(copy.fileName()).toStdString());
        if ((image->checkMode(Exiv2::mdXmp) & Exiv2::amWrite) == 0)
            return QString();
        image->readMetadata();
        image->setXmpPacket(packet);
        image->writeXmpFromPacket(true);
        image->writeMetadata();
        copy.setPermissions(whole.permissions());
        if (std::rename(QFile::encodeName(copy.fileName()).constData(), QFile::encodeName(result).constData()) != 0)
            return QCoreApplication::translate("XmpCarrier", "the result can't be replaced");
        copy.setAutoRemove(false);
        return QString();
    } catch (const std::exception &failure) {
        return QString::fromUtf8(failure.what());
    }
}
