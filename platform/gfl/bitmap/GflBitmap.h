#pragma once

#include <cstddef>
#include <cstdint>

/// The bitmap record of the codec layer, shared with the image room. Fixed: hosts rely on these fields in this order. Pointers
/// have the machine's width: the record is 64 bytes long on 32-bit systems and 88 on 64-bit ones.
struct GflBitmap
{
    std::uint16_t type;               ///< One bit is set; see VImage for the three that are processed.
    std::uint16_t origin;             ///< 0: the first row in memory is the top row.
    std::int32_t width;               ///< Pixels per row.
    std::int32_t height;              ///< Rows.
    std::uint32_t bytesPerLine;       ///< Distance from one row's first byte to the next row's.
    std::int16_t lineAlignment;       ///< Bytes; 4, or 2 for a view whose stride is not a multiple of 4.
    std::uint16_t bitsPerComponent;   ///< 8, 16 (unsigned integers) or 32 (float).
    std::uint16_t componentsPerPixel; ///< 1, 3 or 4.
    std::uint16_t bytesPerPixel;
    std::uint16_t xDpi; ///< 0: not known.
    std::uint16_t yDpi;
    std::int16_t transparentIndex; ///< Palette index that is transparent, or -1.
    std::int16_t reserved;
    std::int32_t colorUsed;
    void *colorMap; ///< Palette of 1024 bytes, or null.
    void *data;     ///< First byte of the top row, or null.
    void *comment;
    void *metaData; ///< The attached colour profile, IPTC and EXIF, or null. Private to the layer; see gfl.h.
    std::int32_t xOffset;
    std::int32_t yOffset;
    char *name; ///< Zero-terminated, or null.
};

/// The three callbacks that the layer allocates with; `tag` is the user value passed with them.
using GflAllocCallback = void *(*)(std::size_t bytes, void *tag);
using GflReallocCallback = void *(*)(void *block, std::size_t bytes, void *tag);
using GflFreeCallback = void (*)(void *block, void *tag);

/// Releases record, pixels, palette, comment, metadata and name through the free callback that was passed to gflLibraryInitEx
/// (through free() before that call). Null is allowed.
void gflFreeBitmap(GflBitmap *bitmap);
