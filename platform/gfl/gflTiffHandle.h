#pragma once

#include <cstdint>
#include <memory>

#include <tiffio.h>

/// What reading and writing TIFF files share: handles of the library that print nothing.
namespace gfl {

struct TiffClose
{
    void operator()(TIFF *tiff) const { TIFFClose(tiff); }
};
using TiffPointer = std::unique_ptr<TIFF, TiffClose>;

struct TiffOptionsFree
{
    void operator()(TIFFOpenOptions *options) const { TIFFOpenOptionsFree(options); }
};
using TiffOptions = std::unique_ptr<TIFFOpenOptions, TiffOptionsFree>;

/// Options of a handle that swallows the library's messages. Throws NO_MEMORY.
TiffOptions quietTiffOptions();

/// Opens a file, or what is treated as one, through its own callbacks; null if the library refuses. `handle` must outlive the
/// result. The library reads and writes it, but neither closes it nor maps it into memory.
TiffPointer openTiff(const char *mode, thandle_t handle, TIFFReadWriteProc read, TIFFReadWriteProc write, TIFFSeekProc seek,
                     TIFFSizeProc size, const TiffOptions &options);

/// The value of a field that the library has a default for; `fallback` if there is neither.
template<typename T>
T tiffField(TIFF *tiff, std::uint32_t tag, T fallback)
{
    T value = fallback;
    return TIFFGetFieldDefaulted(tiff, tag, &value) ? value : fallback;
}

/// The texts read from and written to the large form, which holds no EXIF block.
constexpr std::uint16_t kTiffTexts[] = {TIFFTAG_IMAGEDESCRIPTION, TIFFTAG_MAKE,   TIFFTAG_MODEL,    TIFFTAG_SOFTWARE,
                                        TIFFTAG_DATETIME,         TIFFTAG_ARTIST, TIFFTAG_COPYRIGHT};

} // namespace gfl
