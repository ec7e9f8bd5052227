#pragma once

#include <cstddef>

/// Form of interleaved pixels: 1 (grey), 3 (R, G, B) or 4 components (R, G, B, A), each an unsigned integer of 8 or 16 bits or a
/// 32-bit float.
struct PixelForm
{
    int components;
    int bits;

    constexpr std::size_t pixelBytes() const { return std::size_t(components) * std::size_t(bits / 8); }
    constexpr bool operator==(const PixelForm &other) const { return components == other.components && bits == other.bits; }
};
