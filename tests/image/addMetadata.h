#pragma once

#include <cstring>

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
    Exiv2::DataBuf profile(132);
    std::memset(profile.pData_, 0, 132);
    profile.pData_[3] = 132; // the size of the profile
    std::memcpy(profile.pData_ + 12, "mntrRGB XYZ ", 12);
    if (kinds & kProfile)
        image->setIccProfile(profile);
    image->writeMetadata();
}
