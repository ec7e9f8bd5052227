#include "pictureDecoder.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "RegularFile.h"

namespace {

/// Where the value of the orientation is in an EXIF block.
struct Place
{
    std::size_t at;
    ByteOrder order;
};

std::optional<Place> orientationPlace(const Bytes &exif)
{
    constexpr int kOrientation = 0x0112, kShort = 3;
    try {
        ByteReader block(exif);
        block.setOrder(block.startsWith("II") ? ByteOrder::Little : ByteOrder::Big);
        block.skip(4);
        block.seek(block.u32());
        for (int entries = block.u16(); entries > 0; --entries) {
            const int tag = block.u16(), type = block.u16();
            const std::uint32_t count = block.u32();
            const std::size_t at = std::size_t(block.position());
            block.skip(4);
            if (tag == kOrientation && type == kShort && count == 1)
                return Place{at, block.order()};
        }
    } catch (const EndOfBytes &) {
    }
    return std::nullopt;
}

} // namespace

PhotoProblem checkSize(const DecodedPicture &picture, const RegularFile &file, std::uint64_t workingBytes,
                       std::uint64_t mostBytes)
{
    if (picture.width <= 0 || picture.height <= 0)
        return {PhotoProblem::Cause::Damaged, {}};
    const std::uint64_t pixels = std::uint64_t(picture.width) * std::uint64_t(picture.height);
    if (pixels / kMostPixelsPerByte > file.size())
        return {PhotoProblem::Cause::Damaged, {}};
    const std::uint64_t own = std::uint64_t(picture.components) * std::uint64_t(picture.bits / 8);
    if (pixels > mostBytes / (own + workingBytes))
        return {PhotoProblem::Cause::NoMemory, {}};
    return {};
}

PhotoProblem readWhole(const RegularFile &file, std::uint64_t mostBytes, Bytes &bytes)
{
    constexpr std::uint64_t kLongest = std::uint64_t(1) << 30; // far longer than a photograph
    if (file.size() > std::min(mostBytes, kLongest))
        return {PhotoProblem::Cause::NoMemory, {}};
    bytes.resize(std::size_t(file.size()));
    if (file.readAt(0, bytes.data(), bytes.size()) != bytes.size())
        return {PhotoProblem::Cause::Damaged, {}};
    return {};
}

Bytes exifIn(const std::uint8_t *block, std::size_t count)
{
    constexpr std::size_t kFarthest = 16; // an offset, "Exif", zeros
    for (std::size_t start = 0; start < kFarthest && start + 8 < count; ++start)
        if (std::memcmp(block + start, "II*\0", 4) == 0 || std::memcmp(block + start, "MM\0*", 4) == 0)
            return Bytes(block + start, block + count);
    return {};
}

int orientationOf(const Bytes &exif)
{
    const auto place = orientationPlace(exif);
    if (!place)
        return 1;
    ByteReader value(exif, place->order);
    value.seek(place->at);
    const int orientation = value.u16();
    return orientation >= 1 && orientation <= 8 ? orientation : 1;
}

void makeUpright(Bytes &exif)
{
    if (const auto place = orientationPlace(exif)) {
        const bool little = place->order == ByteOrder::Little;
        exif[place->at] = little;
        exif[place->at + 1] = !little;
    }
}

DecodePicture decoderFor(PhotoKind kind)
{
    switch (kind) {
#ifdef NIMBRA_HEIF
    case PhotoKind::Heif:
        return decodeHeif;
#endif
#ifdef NIMBRA_WEBP
    case PhotoKind::Webp:
        return decodeWebp;
#endif
#ifdef NIMBRA_JPEG_XL
    case PhotoKind::JpegXl:
        return decodeJpegXl;
#endif
    default:
        return nullptr;
    }
}
