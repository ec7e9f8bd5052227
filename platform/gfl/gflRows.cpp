#include "gflRows.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "convertSample.h"
#include "gflClaims.h"
#include "gflFile.h"

namespace gfl {
namespace {

template<typename Source, typename Target, int sourceComponents, int targetComponents>
void convertPixels(const Source *source, Target *target, int width)
{
    constexpr auto opaque = static_cast<Target>(kFullScale<Target>);
    for (int x = 0; x < width; ++x, source += sourceComponents, target += targetComponents) {
        for (int c = 0; c < std::min(targetComponents, 3); ++c)
            target[c] = convertSample<Source, Target>(source[sourceComponents < 3 ? 0 : c]);
        if constexpr (targetComponents == 4)
            target[3] = sourceComponents == 4 ? convertSample<Source, Target>(source[sourceComponents - 1]) : opaque;
    }
}

template<typename Source, typename Target>
void convertRow(const void *source, int sourceComponents, void *target, int targetComponents, int width)
{
    const auto *from = static_cast<const Source *>(source);
    auto *to = static_cast<Target *>(target);
    switch (sourceComponents * 10 + targetComponents) {
    case 11:
        return convertPixels<Source, Target, 1, 1>(from, to, width);
    case 13:
        return convertPixels<Source, Target, 1, 3>(from, to, width);
    case 14:
        return convertPixels<Source, Target, 1, 4>(from, to, width);
    case 33:
        return convertPixels<Source, Target, 3, 3>(from, to, width);
    case 34:
        return convertPixels<Source, Target, 3, 4>(from, to, width);
    case 43:
        return convertPixels<Source, Target, 4, 3>(from, to, width);
    case 44:
        return convertPixels<Source, Target, 4, 4>(from, to, width);
    default:
        throw Failure{GFL_ERROR_BAD_BITMAP};
    }
}

} // namespace

RowConverter rowConverter(int sourceBits, int targetBits)
{
    using U8 = std::uint8_t;
    using U16 = std::uint16_t;
    static constexpr RowConverter table[3][3] = {
        {convertRow<U8, U8>, convertRow<U8, U16>, convertRow<U8, float>},
        {convertRow<U16, U8>, convertRow<U16, U16>, convertRow<U16, float>},
        {convertRow<float, U8>, convertRow<float, U16>, convertRow<float, float>},
    };
    return table[sourceBits / 16][targetBits / 16]; // 8, 16, 32 -> 0, 1, 2
}

void swapSamples(const void *source, void *target, std::size_t count, int bits)
{
    if (bits == 16) {
        const auto *from = static_cast<const std::uint16_t *>(source);
        auto *to = static_cast<std::uint16_t *>(target);
        for (std::size_t i = 0; i < count; ++i)
            to[i] = std::uint16_t(from[i] << 8 | from[i] >> 8);
    } else if (bits == 32) {
        const auto *from = static_cast<const std::uint32_t *>(source);
        auto *to = static_cast<std::uint32_t *>(target);
        for (std::size_t i = 0; i < count; ++i)
            to[i] = from[i] << 24 | (from[i] & 0xFF00u) << 8 | (from[i] >> 8 & 0xFF00u) | from[i] >> 24;
    } else if (source != target) {
        std::memcpy(target, source, count);
    }
}

Form formOf(const GflBitmap &bitmap)
{
    return {bitmap.componentsPerPixel, bitmap.bitsPerComponent};
}

SourceRows::SourceRows(const GflBitmap &source, Form target)
    : bitmap(source), form(target), convert(rowConverter(source.bitsPerComponent, target.bits))
{
    if (!(formOf(bitmap) == form))
        buffer.resize(std::size_t(bitmap.width) * form.pixelBytes());
}

const std::uint8_t *SourceRows::row(int y)
{
    if (buffer.empty())
        return rowOf(bitmap, y);
    convert(rowOf(bitmap, y), bitmap.componentsPerPixel, buffer.data(), form.components, bitmap.width);
    return buffer.data();
}

NewBitmap::NewBitmap(const InputFile &file, std::int64_t width, std::int64_t height, Form form)
{
    constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
    if (width <= 0 || height <= 0 || width > kLargest || height > kLargest)
        throw Failure{GFL_ERROR_FILE_READ};
    const std::int64_t stride = (width * std::int64_t(form.pixelBytes()) + 3) / 4 * 4;
    if (stride > kLargest)
        throw Failure{GFL_ERROR_NO_MEMORY};
    if (std::uint64_t(stride) > largestPiece(file.size()))
        throw Failure{GFL_ERROR_FILE_READ};

    auto *record = static_cast<GflBitmap *>(allocate(sizeof(GflBitmap)));
    if (!record)
        throw Failure{GFL_ERROR_NO_MEMORY};
    *record = GflBitmap{};
    bitmap.reset(record);
    record->type = form.components == 1 ? 0x0002 : form.components == 3 ? 0x0010 : 0x0020;
    record->width = std::int32_t(width);
    record->height = std::int32_t(height);
    record->bytesPerLine = std::uint32_t(stride);
    record->lineAlignment = 4;
    record->bitsPerComponent = std::uint16_t(form.bits);
    record->componentsPerPixel = std::uint16_t(form.components);
    record->bytesPerPixel = std::uint16_t(form.pixelBytes());
    record->transparentIndex = -1;
    record->colorUsed = form.components == 1 ? 256 : 0;

    const std::uint64_t total = std::uint64_t(stride) * std::uint64_t(height);
    firstBytes = std::size_t(firstBlock(total, file.size()));
}

std::uint8_t *NewBitmap::row(int y)
{
    const std::size_t stride = bitmap->bytesPerLine;
    const std::size_t needed = stride * (std::size_t(y) + 1);
    if (needed > capacity) {
        const std::size_t total = stride * std::size_t(bitmap->height);
        const std::size_t bytes = std::min(total, std::max({needed, capacity * 2, firstBytes}));
        void *block = capacity ? reallocate(bitmap->data, bytes) : allocate(bytes);
        if (!block)
            throw Failure{GFL_ERROR_NO_MEMORY};
        bitmap->data = block;
        capacity = bytes;
    }
    return static_cast<std::uint8_t *>(bitmap->data) + stride * std::size_t(y);
}

int NewBitmap::rowsFrom(int y)
{
    row(y);
    return int(capacity / bitmap->bytesPerLine) - y;
}

} // namespace gfl
