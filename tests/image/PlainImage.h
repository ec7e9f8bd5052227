#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <vector>

#include "VImage.h"

/// An image form for the tests.
struct Form
{
    unsigned short type;
    int bits;

    int channels() const { return type == VImage::Grey ? 1 : type == VImage::Rgb ? 3 : 4; }
};
constexpr Form kForms[] = {{VImage::Grey, 8},  {VImage::Rgb, 8},   {VImage::Rgba, 8}, {VImage::Grey, 16}, {VImage::Rgb, 16},
                           {VImage::Rgba, 16}, {VImage::Grey, 32}, {VImage::Rgb, 32}, {VImage::Rgba, 32}};

/// One sample, wide enough for every format.
inline double sampleOf(const VImage &image, int x, int y, int channel)
{
    const unsigned char *address = image.PixelAddress(x, y) + channel * image.BitsPerComponent() / 8;
    if (image.BitsPerComponent() == 8)
        return *address;
    if (image.BitsPerComponent() == 16) {
        std::uint16_t sample;
        std::memcpy(&sample, address, sizeof(sample));
        return sample;
    }
    float sample;
    std::memcpy(&sample, address, sizeof(sample));
    return sample;
}

inline void setSample(VImage &image, int x, int y, int channel, double value)
{
    unsigned char *address = image.PixelAddress(x, y) + channel * image.BitsPerComponent() / 8;
    if (image.BitsPerComponent() == 8) {
        *address = static_cast<unsigned char>(value);
    } else if (image.BitsPerComponent() == 16) {
        const auto sample = std::uint16_t(value);
        std::memcpy(address, &sample, sizeof(sample));
    } else {
        const auto sample = float(value);
        std::memcpy(address, &sample, sizeof(sample));
    }
}

/// The same numbers in every run and on every machine.
class Numbers
{
public:
    std::uint32_t next() { return state = state * 1664525u + 1013904223u, state >> 8; }

private:
    std::uint32_t state = 12345;
};
