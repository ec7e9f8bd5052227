#pragma once

#include <cstddef>
#include <cstdint>

#include <libdeflate.h>
#include <tiffio.h>

#include "gflBitmapParts.h"
#include "gflRows.h"

namespace gfl {

/// Unpacks strips that are packed by deflate, each as a whole. The library unpacks them row by row, which takes about twice as
/// long.
class TiffStripInflater
{
public:
    /// For strips of `rowsPerStrip` rows. `tiff` and `file` must outlive this. Null if the strips are in a form that is left to
    /// the library.
    static std::unique_ptr<TiffStripInflater> make(TIFF *tiff, const InputFile &file, std::uint64_t rowBytes,
                                                   std::uint32_t rowsPerStrip);

    /// Unpacks a strip of `rows` rows. False if that is not exactly what it contains: the library then decides what can be read.
    [[nodiscard]] bool unpack(std::uint32_t strip, std::uint32_t rows);
    /// Row `index` of the strip, in the machine's byte order.
    const std::uint8_t *row(std::uint32_t index) const { return unpacked.data() + rowBytes * index; }
    /// Bytes of an unpacked strip.
    std::size_t bytes() const { return unpacked.size(); }

private:
    TiffStripInflater(TIFF *tiff, const InputFile &file, std::size_t rowBytes, std::size_t stripBytes);

    struct Free
    {
        void operator()(libdeflate_decompressor *decompressor) const { libdeflate_free_decompressor(decompressor); }
    };

    TIFF *const tiff;
    const InputFile &file;
    const std::size_t rowBytes;
    int bits;
    std::size_t pixelSamples; ///< Samples of a pixel that lie side by side.
    bool differences;         ///< Each sample is stored as its difference from the pixel to the left.
    const std::unique_ptr<libdeflate_decompressor, Free> handle;
    Bytes packed;
    Bytes unpacked;
};

} // namespace gfl
