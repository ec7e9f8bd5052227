#include "onePixelPng.h"

#include <algorithm>
#include <new>
#include <string_view>

#include <zlib.h>

#include "pngChunk.h"

using namespace std::string_view_literals;

namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes packed(const Bytes &bytes)
{
    uLongf count = compressBound(bytes.size());
    Bytes result(count);
    if (compress(result.data(), &count, bytes.data(), bytes.size()) != Z_OK)
        throw std::bad_alloc();
    result.resize(count);
    return result;
}

Bytes joined(std::string_view text, const Bytes &bytes)
{
    Bytes result(text.begin(), text.end());
    result.insert(result.end(), bytes.begin(), bytes.end());
    return result;
}

} // namespace

Bytes onePixelPng(const Bytes &icc, const Bytes &exif, const Bytes &xmp)
{
    constexpr std::size_t kColourSpace = 16; // in a profile's head
    const bool grey = icc.size() > kColourSpace + 4 && std::equal(&icc[kColourSpace], &icc[kColourSpace + 4], "GRAY");
    Bytes png = joined("\x89PNG\r\n\x1A\n"sv, {});
    appendPngChunk(png, "IHDR", {0, 0, 0, 1, 0, 0, 0, 1, /*bits=*/8, std::uint8_t(grey ? 0 : 2), 0, 0, 0});
    if (!icc.empty())
        appendPngChunk(png, "iCCP", joined("icc\0\0"sv, packed(icc)));
    if (!exif.empty())
        appendPngChunk(png, "eXIf", exif);
    if (!xmp.empty())
        appendPngChunk(png, "iTXt", joined(kPngXmpHead, xmp));
    appendPngChunk(png, "IDAT", packed(Bytes(grey ? 2 : 4)));
    appendPngChunk(png, "IEND", {});
    return png;
}
