#pragma once

#include <cstring>
#include <utility>

#include <QFile>
#include <QString>

#include <exiv2/exiv2.hpp>

constexpr int kExif = 1, kIptc = 2, kProfile = 4;

/// Adds these kinds of metadata to an image file, or as many of them as its format can hold.
inline void addMetadata(const QString &path, int kinds = kExif | kIptc | kProfile)
{
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    if (kinds & kExif)
        image->exifData()["Exif.Photo.LensModel"] = "Acme 50 mm";
    if (kinds & kIptc)
        image->iptcData()["Iptc.Application2.Headline"] = "Fog";
    unsigned char profile[132] = {0, 0, 0, sizeof profile};
    std::memcpy(profile + 12, "mntrRGB XYZ ", 12);
    Exiv2::DataBuf buffer(profile, sizeof profile);
    if (kinds & kProfile) {
#if EXIV2_TEST_VERSION(0, 28, 0)
        image->setIccProfile(std::move(buffer));
#else
        image->setIccProfile(buffer);
#endif
    }
    image->writeMetadata();
}
