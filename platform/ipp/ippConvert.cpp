#include "ipp.h"

#include <cstring>
#include <type_traits>

#include "InstructionSet.h"
#include "convertSample.h"

namespace {

template<typename From, typename To>
NIMBRA_INLINE void scaleRow(const void *source, void *target, std::size_t samples)
{
    const auto *__restrict from = static_cast<const From *>(source);
    auto *__restrict to = static_cast<To *>(target);
    for (std::size_t i = 0; i < samples; ++i)
        to[i] = convertSample<From, To>(from[i]);
}

template<typename From>
NIMBRA_INLINE void scaleRowTo(int targetBits, const void *source, void *target, std::size_t samples)
{
    switch (targetBits) {
    case 8:
        return scaleRow<From, std::uint8_t>(source, target, samples);
    case 16:
        return scaleRow<From, std::uint16_t>(source, target, samples);
    default:
        return scaleRow<From, float>(source, target, samples);
    }
}

NIMBRA_INLINE void scaleAnyRowBody(int sourceBits, int targetBits, const void *source, void *target, std::size_t samples)
{
    switch (sourceBits) {
    case 8:
        return scaleRowTo<std::uint8_t>(targetBits, source, target, samples);
    case 16:
        return scaleRowTo<std::uint16_t>(targetBits, source, target, samples);
    default:
        return scaleRowTo<float>(targetBits, source, target, samples);
    }
}
const auto scaleAnyRow = versionOf<scaleAnyRowBody>();

/// Copies colours from 1, 3 or 4 channels to 3 or 4. `Opaque` sets a fourth channel to `alpha`; otherwise it is left unchanged.
template<typename Sample, int From, int To, bool Opaque>
NIMBRA_INLINE void copyRow(const Sample *__restrict from, Sample *__restrict to, std::size_t pixels, Sample alpha)
{
    std::size_t i = 0;
    // From 3 or 4 channels, all pixels but the last are copied as four samples at once: whatever the fourth sample overwrites is
    // written next anyway.
    if constexpr (From == 4 || (From == 3 && Opaque))
        for (; i + 1 < pixels; ++i) {
            std::memcpy(to + i * To, from + i * From, 4 * sizeof(Sample));
            if constexpr (Opaque)
                to[i * To + To - 1] = alpha;
        }
    for (; i < pixels; ++i) {
        to[i * To] = from[i * From];
        to[i * To + 1] = from[i * From + (From > 1 ? 1 : 0)];
        to[i * To + 2] = from[i * From + (From > 1 ? 2 : 0)];
        if constexpr (Opaque)
            to[i * To + To - 1] = alpha;
    }
}

template<typename Sample>
NIMBRA_INLINE void copyRowOf(int sourceChannels, int targetChannels, const void *source, void *target, std::size_t pixels,
                             const void *alpha)
{
    const auto *from = static_cast<const Sample *>(source);
    auto *to = static_cast<Sample *>(target);
    const Sample opaque = alpha ? *static_cast<const Sample *>(alpha) : Sample{};
    if (targetChannels == 3)
        return sourceChannels == 4 ? copyRow<Sample, 4, 3, false>(from, to, pixels, opaque)
                                   : copyRow<Sample, 1, 3, false>(from, to, pixels, opaque);
    if (sourceChannels == 3)
        return alpha ? copyRow<Sample, 3, 4, true>(from, to, pixels, opaque)
                     : copyRow<Sample, 3, 4, false>(from, to, pixels, opaque);
    return alpha ? copyRow<Sample, 1, 4, true>(from, to, pixels, opaque) : copyRow<Sample, 1, 4, false>(from, to, pixels, opaque);
}

NIMBRA_INLINE void copyAnyRowBody(int bits, int sourceChannels, int targetChannels, const void *source, void *target,
                                  std::size_t pixels, const void *alpha)
{
    switch (bits) {
    case 8:
        return copyRowOf<std::uint8_t>(sourceChannels, targetChannels, source, target, pixels, alpha);
    case 16:
        return copyRowOf<std::uint16_t>(sourceChannels, targetChannels, source, target, pixels, alpha);
    default:
        return copyRowOf<float>(sourceChannels, targetChannels, source, target, pixels, alpha);
    }
}
const auto copyAnyRow = versionOf<copyAnyRowBody>();

template<typename Sample, int Channels>
NIMBRA_INLINE void greyRow(const void *source, void *target, std::size_t pixels)
{
    const auto *__restrict from = static_cast<const Sample *>(source);
    auto *__restrict to = static_cast<Sample *>(target);
    for (std::size_t i = 0; i < pixels; ++i) {
        const Sample *pixel = from + i * Channels;
        if constexpr (std::is_same_v<Sample, float>)
            to[i] = 0.299f * pixel[0] + 0.587f * pixel[1] + 0.114f * pixel[2];
        else
            to[i] = static_cast<Sample>((299u * pixel[0] + 587u * pixel[1] + 114u * pixel[2] + 500u) / 1000u);
    }
}

template<typename Sample>
NIMBRA_INLINE void greyRowOf(int channels, const void *source, void *target, std::size_t pixels)
{
    if (channels == 3)
        return greyRow<Sample, 3>(source, target, pixels);
    return greyRow<Sample, 4>(source, target, pixels);
}

NIMBRA_INLINE void greyAnyRowBody(int bits, int channels, const void *source, void *target, std::size_t pixels)
{
    switch (bits) {
    case 8:
        return greyRowOf<std::uint8_t>(channels, source, target, pixels);
    case 16:
        return greyRowOf<std::uint16_t>(channels, source, target, pixels);
    default:
        return greyRowOf<float>(channels, source, target, pixels);
    }
}
const auto greyAnyRow = versionOf<greyAnyRowBody>();

NIMBRA_INLINE void swapRowBody(void *raster, std::size_t pixels, const int order[4])
{
    const int shift0 = 8 * order[0], shift1 = 8 * order[1], shift2 = 8 * order[2], shift3 = 8 * order[3];
    auto *bytes = static_cast<unsigned char *>(raster);
    for (std::size_t i = 0; i < pixels; ++i, bytes += 4) {
        std::uint32_t pixel; // channel 0 in the low byte: the machine is little-endian
        std::memcpy(&pixel, bytes, sizeof(pixel));
        pixel = (pixel >> shift0 & 255u) | (pixel >> shift1 & 255u) << 8 | (pixel >> shift2 & 255u) << 16 |
                (pixel >> shift3 & 255u) << 24;
        std::memcpy(bytes, &pixel, sizeof(pixel));
    }
}
const auto swapRow = versionOf<swapRowBody>();

bool isDepth(int bits)
{
    return bits == 8 || bits == 16 || bits == 32;
}

/// Calls row(source row, target row) for each row, after the checks common to all operations.
template<typename Row>
IppStatus overRows(const void *source, int sourceStep, void *target, int targetStep, IppiSize size, const Row &row)
{
    if (!source || !target)
        return ippStsNullPtrErr;
    if (size.width <= 0 || size.height <= 0)
        return ippStsSizeErr;
    const auto *from = static_cast<const unsigned char *>(source);
    auto *to = static_cast<unsigned char *>(target);
    for (int y = 0; y < size.height; ++y, from += sourceStep, to += targetStep)
        row(from, to);
    return ippStsNoErr;
}

} // namespace

IppStatus ippiScale(const void *source, int sourceStep, int sourceBits, void *target, int targetStep, int targetBits,
                    int channels, IppiSize size)
{
    if (!isDepth(sourceBits) || !isDepth(targetBits) || channels < 1 || channels > 4)
        return ippStsSizeErr;
    const std::size_t samples = std::size_t(size.width) * std::size_t(channels);
    return overRows(source, sourceStep, target, targetStep, size, [&](const unsigned char *from, unsigned char *to) {
        if (sourceBits == targetBits)
            std::memcpy(to, from, samples * std::size_t(sourceBits / 8));
        else
            scaleAnyRow(sourceBits, targetBits, from, to, samples);
    });
}

IppStatus ippiCopy(const void *source, int sourceStep, int sourceChannels, void *target, int targetStep, int targetChannels,
                   int bits, IppiSize size, const void *alpha)
{
    if (sourceChannels == targetChannels)
        return ippiScale(source, sourceStep, bits, target, targetStep, bits, sourceChannels, size);
    const bool drops = sourceChannels == 4 && targetChannels == 3;
    const bool adds = (sourceChannels == 1 || sourceChannels == 3) && (targetChannels == 3 || targetChannels == 4);
    if (!isDepth(bits) || !(drops || adds))
        return ippStsSizeErr;
    return overRows(source, sourceStep, target, targetStep, size, [&](const unsigned char *from, unsigned char *to) {
        copyAnyRow(bits, sourceChannels, targetChannels, from, to, std::size_t(size.width), alpha);
    });
}

IppStatus ippiRGBToGray(const void *source, int sourceStep, int sourceChannels, void *target, int targetStep, int bits,
                        IppiSize size)
{
    if (!isDepth(bits) || (sourceChannels != 3 && sourceChannels != 4))
        return ippStsSizeErr;
    return overRows(source, sourceStep, target, targetStep, size, [&](const unsigned char *from, unsigned char *to) {
        greyAnyRow(bits, sourceChannels, from, to, std::size_t(size.width));
    });
}

IppStatus ippiSwapChannels(void *raster, int step, IppiSize size, const int order[4])
{
    if (!order)
        return ippStsNullPtrErr;
    for (int channel = 0; channel < 4; ++channel)
        if (order[channel] < 0 || order[channel] > 3)
            return ippStsSizeErr;
    return overRows(raster, step, raster, step, size,
                    [&](const unsigned char *, unsigned char *pixels) { swapRow(pixels, std::size_t(size.width), order); });
}
