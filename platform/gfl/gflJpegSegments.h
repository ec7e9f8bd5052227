#pragma once

#include <cstddef>

/// The segments of a JPEG file that hold metadata.
namespace gfl {

constexpr char kExifMark[] = "Exif\0"; // with the terminator, "Exif\0\0"
constexpr char kPhotoshopMark[] = "Photoshop 3.0";
constexpr std::size_t kSegmentLimit = 65533;

} // namespace gfl
