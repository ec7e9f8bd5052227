#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

/// What precedes the packet in the iTXt chunk of a PNG file's XMP.
constexpr std::string_view kPngXmpHead("XML:com.adobe.xmp\0\0\0\0\0", 22);

/// Appends a chunk of a PNG file: its size, its type of four letters, its content and the check sum.
void appendPngChunk(std::vector<std::uint8_t> &png, std::string_view type, const std::vector<std::uint8_t> &content);
