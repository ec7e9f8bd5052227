#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "gfl.h"

struct GflIptc
{
    std::vector<std::uint8_t> block; ///< The file's datasets verbatim, from the first 0x1C.
};

struct GflExif
{
    std::vector<std::uint8_t> block; ///< A TIFF stream, starting with its "II" or "MM".
};

/// The parts of a bitmap inside this layer: its memory and its attached metadata.
namespace gfl {

using Bytes = std::vector<std::uint8_t>;

/// Thrown inside the layer; gfl.cpp turns it, and whatever the libraries throw, into a result code.
struct Failure
{
    GflCode code;
};

/// How a file packs its pixels: the default for files that are written with the metadata of that file.
struct Packing
{
    struct Jpeg
    {
        /// Quantisation steps of brightness and of colour, row by row; a grey file has the first table only.
        std::array<std::uint16_t, 64> brightness;
        std::optional<std::array<std::uint16_t, 64>> colour;
        /// Pixels per colour sample: 2 and 2 for 4:2:0, 2 and 1 for 4:2:2.
        int across = 1;
        int down = 1;
    };
    std::optional<Jpeg> jpeg;
    int tiff = GFL_DEFAULT; ///< As GflSaveParams::compression.
};

/// What GflBitmap::metaData points at.
struct Metadata
{
    Bytes icc;
    GflIptc iptc;
    GflExif exif;
    Packing packing;
};

/// The attached metadata, or null.
Metadata *metadataOf(const GflBitmap *bitmap);
/// The attached metadata, created if there is none. Throws std::bad_alloc.
Metadata &attachMetadata(GflBitmap &bitmap);

// The allocator for bitmaps. A null result means out of memory.
void setAllocator(GflAllocCallback alloc, GflReallocCallback realloc, GflFreeCallback release, void *user);
void *allocate(std::size_t bytes);
void *reallocate(void *block, std::size_t bytes);
void release(void *block);

struct BitmapDelete
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
using BitmapPointer = std::unique_ptr<GflBitmap, BitmapDelete>;

} // namespace gfl
