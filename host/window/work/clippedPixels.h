#pragma once

#include <cstdint>

class VImage;

/// Pixels with a channel at the lower or upper end of its scale, where detail may be lost. Floats outside 0..1 are beyond it.
constexpr std::uint8_t kClippedBlack = 1;
constexpr std::uint8_t kClippedWhite = 2;

/// Writes to `marks`, one byte per pixel of row `y`, which of these hold; 0 for fully transparent pixels. `picture` has any of
/// the nine forms.
void findClippedPixels(const VImage &picture, int y, std::uint8_t *marks);
