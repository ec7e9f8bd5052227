#include "photoMetadata.h"

#include <filesystem>

#include "photoKind.h"

std::unique_ptr<Exiv2::Image> openMetadata(const std::string &path)
{
    // A relative path could be taken for an address.
    auto io = Exiv2::ImageFactory::createIo(std::filesystem::absolute(path).string(), /*useCurl=*/false);
    const auto as = [&](auto *made) { return std::unique_ptr<Exiv2::Image>(made); };
    constexpr bool kNew = false;
    switch (photoKindOfFile(path).value_or(PhotoKind::Other)) {
    case PhotoKind::Jpeg:
        return as(new Exiv2::JpegImage(std::move(io), kNew));
    case PhotoKind::Png:
        return as(new Exiv2::PngImage(std::move(io), kNew));
    case PhotoKind::Tiff: {
        const bool cr2 = io->open() == 0 && Exiv2::isCr2Type(*io, /*advance=*/false);
        io->close();
        if (cr2)
            return as(new Exiv2::Cr2Image(std::move(io), kNew));
        return as(new Exiv2::TiffImage(std::move(io), kNew));
    }
    case PhotoKind::Photoshop:
        return as(new Exiv2::PsdImage(std::move(io)));
    case PhotoKind::Crw:
        return as(new Exiv2::CrwImage(std::move(io), kNew));
    case PhotoKind::Mrw:
        return as(new Exiv2::MrwImage(std::move(io), kNew));
    case PhotoKind::Orf:
        return as(new Exiv2::OrfImage(std::move(io), kNew));
    case PhotoKind::Raf:
        return as(new Exiv2::RafImage(std::move(io), kNew));
    case PhotoKind::Rw2:
        return as(new Exiv2::Rw2Image(std::move(io)));
    case PhotoKind::Radiance:
    case PhotoKind::OpenExr:
    case PhotoKind::Video:
    case PhotoKind::Other:
        break;
    }
    return nullptr;
}
