#pragma once

#include <cstdint>
#include <vector>

/// A PNG file of one pixel with this metadata; any of it may be empty. It is grey if the colour profile is for grey.
std::vector<std::uint8_t> onePixelPng(const std::vector<std::uint8_t> &icc, const std::vector<std::uint8_t> &exif,
                                      const std::vector<std::uint8_t> &xmp);
