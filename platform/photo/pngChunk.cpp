#include "pngChunk.h"

#include <zlib.h>

void appendPngChunk(std::vector<std::uint8_t> &png, std::string_view type, const std::vector<std::uint8_t> &content)
{
    const auto putNumber = [&](std::size_t value) {
        for (int shift = 24; shift >= 0; shift -= 8)
            png.push_back(std::uint8_t(value >> shift));
    };
    putNumber(content.size());
    const std::size_t start = png.size();
    png.insert(png.end(), type.begin(), type.end());
    png.insert(png.end(), content.begin(), content.end());
    putNumber(crc32_z(0, png.data() + start, png.size() - start));
}
