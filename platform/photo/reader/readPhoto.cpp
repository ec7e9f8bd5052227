#include "readPhoto.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "RawPhoto.h"
#include "RegularFile.h"
#include "furtherPictures.h"
#include "gfl.h"
#include "onePixelPng.h"
#include "photoMetadata.h"
#include "pictureDecoder.h"

namespace {

using Cause = PhotoProblem::Cause;

struct Release
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
using Picture = std::unique_ptr<GflBitmap, Release>;

PhotoProblem problemOf(int code)
{
    switch (code) {
    case GFL_NO_ERROR:
        return {};
    case GFL_ERROR_FILE_OPEN:
        return {Cause::NotOpened, {}};
    case GFL_ERROR_FILE_READ:
        return {Cause::Damaged, {}};
    case GFL_ERROR_NO_MEMORY:
        return {Cause::NoMemory, {}};
    case GFL_ERROR_UNKNOWN_FORMAT:
        return {Cause::UnknownFormat, {}};
    default:
        return {Cause::PixelForm, {}};
    }
}

PhotoProblem problemOf(const RawPhoto &raw)
{
    switch (raw.code()) {
    case RawPhoto::Code::Ok:
        return {};
    case RawPhoto::Code::NoMemory:
        return {Cause::RawNoMemory, {}};
    case RawPhoto::Code::Failed:
        break;
    }
    return {Cause::RawNotRead, raw.text()};
}

/// A file that is open, its kind, and the raw library's view of it if it is camera raw.
struct Opened
{
    explicit Opened(const std::string &path) : file(path) {}

    RegularFile file;
    PhotoKind kind = PhotoKind::Other;
    std::unique_ptr<RawPhoto> raw;
    DecodePicture decode = nullptr; ///< For what the codec layer doesn't read.
};

/// Finds out what an open file is.
PhotoProblem identify(Opened &opened)
{
    const std::optional<PhotoKind> kind = opened.file.isOpen() ? photoKindOf(opened.file) : std::nullopt;
    if (!kind)
        return {Cause::NotOpened, {}};
    opened.kind = *kind;
    if (*kind == PhotoKind::Video)
        return {Cause::Video, {}};
    const std::string suffix = suffixOf(opened.file.name());
    if (!suffixFits(*kind, suffix))
        return {Cause::UnknownFormat, {}};
    if (*kind == PhotoKind::Heif || *kind == PhotoKind::Webp || *kind == PhotoKind::JpegXl) {
        opened.decode = decoderFor(*kind);
        return {opened.decode ? Cause::None : Cause::NoDecoder, {}};
    }
    // The suffix decides, since most camera raw files are TIFF inside. Without one of a known format the content does.
    if (isRawSuffix(suffix) || isRawOnly(*kind)) {
        opened.raw = std::make_unique<RawPhoto>(opened.file);
        return problemOf(*opened.raw);
    }
    if (*kind == PhotoKind::Tiff && pictureKindOfSuffix(suffix) == PhotoKind::Other) {
        opened.raw = std::make_unique<RawPhoto>(opened.file);
        if (problemOf(*opened.raw))
            opened.raw.reset();
    }
    return {};
}

/// The picture as the codec layer reads it: a code of the layer, and null on an error.
std::pair<int, Picture> load(const RegularFile &file, std::uint32_t flags)
{
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    params.flags = flags;
    GflBitmap *bitmap = nullptr;
    const int code = gflLoadBitmapFrom(file, &bitmap, &params);
    return {code, Picture(bitmap)};
}

constexpr int kRawBits = 16; ///< Per channel, of developed camera raw.

PhotoProblem readRawHead(const Opened &opened, PhotoHead &head)
{
    const int code = load(opened.file, GFL_LOAD_METADATA_ONLY).first;
    if (code == GFL_ERROR_NO_MEMORY)
        return {Cause::RawNoMemory, {}};
    if (code != GFL_NO_ERROR)
        return {Cause::RawNotRead, RawPhoto::unsupportedText()};
    head.raw = true;
    head.width = opened.raw->width();
    head.height = opened.raw->height();
    head.orientation = opened.raw->orientation();
    head.bits = kRawBits;
    head.metadata = true;
    return {};
}

void readPictureHead(const Opened &opened, PhotoHead &head)
{
    try {
        if (const auto image = openMetadata(opened.file)) {
            image->readMetadata();
            head.width = std::max(int(image->pixelWidth()), 0);
            head.height = std::max(int(image->pixelHeight()), 0);
            const Exiv2::ExifData &exif = image->exifData();
            const auto found = exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
            const float orientation = found != exif.end() && found->count() > 0 ? found->toFloat() : 1.0f;
            head.orientation = orientation >= 1 && orientation <= 8 ? int(orientation) : 1;
        }
    } catch (const std::exception &) {
        // What is missing, readPixels reports in better words.
    }
    head.furtherPictures = holdsFurtherPictures(opened.file);
    const Picture picture = load(opened.file, GFL_LOAD_METADATA_ONLY).second;
    if (!picture)
        return;
    head.metadata = true;
    head.bytesPerPixel = picture->bytesPerPixel;
    head.bits = picture->bitsPerComponent;
    if (head.width == 0 || head.height == 0) { // the metadata library doesn't know Radiance, OpenEXR and BigTIFF
        head.width = picture->width;
        head.height = picture->height;
    }
}

PhotoProblem readDecodedHead(const Opened &opened, PhotoHead &head)
{
    DecodedPicture picture;
    if (PhotoProblem problem = opened.decode(opened.file, Wanted::Head, UINT64_MAX, picture))
        return problem;
    head.width = picture.width;
    head.height = picture.height;
    head.orientation = picture.upright ? 1 : orientationOf(picture.exif);
    head.bytesPerPixel = picture.components * picture.bits / 8;
    head.bits = picture.bits;
    head.metadata = head.needsStandIn = true;
    head.furtherPictures = picture.furtherPictures;
    return {};
}

} // namespace

PhotoProblem readHead(const std::string &path, PhotoHead &head)
{
    Opened opened(path);
    if (PhotoProblem problem = identify(opened))
        return problem;
    PhotoHead found;
    found.kind = opened.kind;
    PhotoProblem problem;
    if (opened.decode)
        problem = readDecodedHead(opened, found);
    else if (opened.raw)
        problem = readRawHead(opened, found);
    else
        readPictureHead(opened, found);
    if (problem)
        return problem;
    if (std::int64_t(found.width) * found.height / kMostPixelsPerByte > std::int64_t(opened.file.size()))
        return {Cause::Damaged, {}};
    found.pixels = found.width > 0 && found.height > 0;
    head = found;
    return {};
}

PhotoProblem readPixels(const std::string &path, PhotoPixels &pixels, std::uint64_t mostBytes)
{
    Opened opened(path);
    if (PhotoProblem problem = identify(opened))
        return problem;
    if (opened.decode) {
        DecodedPicture picture;
        if (PhotoProblem problem = opened.decode(opened.file, Wanted::Pixels, mostBytes, picture))
            return problem;
        pixels = picture.pixels;
        return {};
    }
    if (opened.raw) {
        RawPhoto::Developed picture = opened.raw->develop();
        if (!picture.samples)
            return problemOf(*opened.raw);
        void *const data = picture.samples.get();
        pixels = {picture.width,
                  picture.height,
                  picture.components,
                  kRawBits,
                  int(picture.strideBytes),
                  data,
                  std::shared_ptr<std::uint8_t[]>(std::move(picture.samples))};
        return {};
    }
    auto [code, picture] = load(opened.file, /*flags=*/0);
    if (!picture)
        return problemOf(code);
    const GflBitmap &record = *picture;
    pixels = {record.width,
              record.height,
              record.componentsPerPixel,
              record.bitsPerComponent,
              int(record.bytesPerLine),
              record.data,
              std::shared_ptr<GflBitmap>(std::move(picture))};
    return {};
}

PhotoProblem makeStandIn(const std::string &path, std::vector<std::uint8_t> &file)
{
    Opened opened(path);
    if (PhotoProblem problem = identify(opened))
        return problem;
    if (!opened.decode)
        return {Cause::UnknownFormat, {}};
    DecodedPicture picture;
    if (PhotoProblem problem = opened.decode(opened.file, Wanted::Metadata, UINT64_MAX, picture))
        return problem;
    if (picture.upright)
        makeUpright(picture.exif);
    file = onePixelPng(picture.icc, picture.exif, picture.xmp);
    return {};
}

std::vector<FurtherFormat> furtherFormats()
{
    std::string heic, avif, webp, jpegXl;
#ifdef NIMBRA_HEIF
    heic = heifLibrary(/*av1=*/false);
    avif = heifLibrary(/*av1=*/true);
#endif
#ifdef NIMBRA_WEBP
    webp = webpLibrary();
#endif
#ifdef NIMBRA_JPEG_XL
    jpegXl = jpegXlLibrary();
#endif
    return {{"HEIC", heic, {"heic", "heif", "hif"}},
            {"AVIF", avif, {"avif"}},
            {"WebP", webp, {"webp"}},
            {"JPEG XL", jpegXl, {"jxl"}}};
}
