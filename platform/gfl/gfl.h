#pragma once

#include "GflBitmap.h"

class RegularFile;

/// The codec layer: reads and writes image files, and carries their colour profile, IPTC and EXIF.
///
/// Nothing throws; operations that can fail return a result code. After gflLibraryInitEx the operations may be called from
/// several threads at once, each with its own bitmaps.

/// Result codes.
enum GflCode : int {
    GFL_NO_ERROR = 0,
    GFL_ERROR_FILE_OPEN = 1,   ///< The file can't be opened for reading.
    GFL_ERROR_FILE_READ = 2,   ///< Empty, truncated or damaged.
    GFL_ERROR_FILE_CREATE = 3, ///< The file to write can't be created.
    GFL_ERROR_FILE_WRITE = 4,  ///< Writing failed: a full disk, for instance.
    GFL_ERROR_NO_MEMORY = 5,
    GFL_ERROR_UNKNOWN_FORMAT = 6, ///< Not a known format, or not the one that the suffix names.
    GFL_ERROR_BAD_BITMAP = 7,     ///< The bitmap holds no pixels, or has a form that no format can store.
    GFL_ERROR_BAD_FORMAT_INDEX = 10,
    GFL_ERROR_BAD_PARAMETERS = 50
};

constexpr std::uint32_t GFL_SAVE_ICC_PROFILE = 0x00000008; ///< Save flag: write the attached colour profile.
constexpr std::uint32_t GFL_LOAD_METADATA = 0x00000400;    ///< Load flag: read colour profile, IPTC and EXIF.
/// Load flag: the same, without reading the pixels. The header is checked as usual, the bitmap has the file's size and form and
/// null `data`, and the work does not grow with the number of pixels. A truncated JPEG, PNG or TIFF is still reported; other
/// damage among the pixels goes unnoticed.
constexpr std::uint32_t GFL_LOAD_METADATA_ONLY = 0x00000800;

constexpr std::int16_t GFL_DEFAULT = -1; ///< For `compression` and `quality`: the format's default; see GflSaveParams.

/// Each format uses one of the two fields; a negative value means its default.
///
/// | format | field       | values                                                                    | default       |
/// | jpeg   | quality     | 1..100 (others go to the nearest)                                         | 92            |
/// | png    | compression | 0 (stored) .. 9 (smallest; so are larger values)                          | 3             |
/// | tiff   | compression | 0 none, 2 LZW (none unless enabled), 4 deflate; else BAD_PARAMETERS       | 0             |
/// | hdri   | compression | 0 none, else run lengths                                                  | run lengths   |
/// | psd    | compression | 0 none, else run lengths                                                  | run lengths   |
/// | exr    | compression | OpenEXR's own numbers, 0 (none) .. 7 (B44A); else BAD_PARAMETERS          | 4 (PIZ)       |
///
/// A bitmap with a packing (see gflBitmapCopyPacking) has other defaults. A JPEG gets the packing's quantisation tables, each
/// scaled down as a whole if it is coarser than that of quality 92, and its chroma subsampling, which also holds with a quality;
/// otherwise it is 4:4:4. A TIFF gets the packing's compression.
struct GflSaveParams
{
    std::uint32_t flags;
    std::int32_t formatIndex;
    std::int16_t compression;
    std::int16_t quality;
};

struct GflLoadParams
{
    std::uint32_t flags;
    std::uint32_t reserved[15];
    std::uint8_t rawUseAutomaticBalance; ///< The eight raw settings would control raw development; this layer develops none and
                                         ///< ignores them.
    std::uint8_t rawUseCameraBalance;
    std::uint8_t rawHighlight;
    std::uint8_t rawAutoBright;
    float rawGamma;
    float rawBrightness;
    float rawRedScaling;
    float rawBlueScaling;
};

static_assert(offsetof(GflSaveParams, formatIndex) == 4 && offsetof(GflSaveParams, compression) == 8 &&
              offsetof(GflSaveParams, quality) == 10);
static_assert(offsetof(GflLoadParams, rawUseAutomaticBalance) == 64 && offsetof(GflLoadParams, rawAutoBright) == 67 &&
              offsetof(GflLoadParams, rawGamma) == 68 && sizeof(GflLoadParams) == 84);

struct GflFileInformation
{
    std::int32_t formatIndex;
    std::int32_t width;
    std::int32_t height;
    std::uint16_t bitsPerComponent;
    std::uint16_t componentsPerPixel;
};

struct GflIptc; ///< IPTC record block, opaque.
struct GflExif; ///< EXIF block (a TIFF stream), opaque.

/// Starts the layer with the allocator for bitmaps. Three null callbacks mean malloc, realloc and free; if only some of them are
/// null, returns BAD_PARAMETERS and changes nothing. No bitmap may exist during the call.
int gflLibraryInitEx(GflAllocCallback alloc, GflReallocCallback realloc, GflFreeCallback free, void *user);
void gflLibraryExit();
/// Whether TIFF files may be written with LZW compression; if not, they are written uncompressed. Enabled at first. LZW can
/// always be read.
void gflEnableLZW(int enable);

/// Sets how many threads (at least 1) an operation may use that the calling thread starts after this call, that thread included;
/// 1 on a thread that never called it. Files and pixels do not depend on it.
void gflSetTeamSize(int threads);

/// Index of a format by its lower-case name: "jpeg", "png", "tiff", "hdri", "exr", "psd"; -1 for any other.
int gflGetFormatIndexByName(const char *name);

void gflGetDefaultSaveParams(GflSaveParams *params);
void gflGetDefaultLoadParams(GflLoadParams *params);

/// Reads a file into a new bitmap, which the caller releases with gflFreeBitmap; `information` may be null. The bitmap has the
/// form nearest to the file's (grey, RGB or RGBA; 8 or 16 bits, or float); its rows are aligned to 4 bytes and run from top to
/// bottom, and no orientation is applied. On an error `*bitmap` is null.
[[nodiscard]] int gflLoadBitmapUTF8(const char *fileName, GflBitmap **bitmap, const GflLoadParams *params,
                                    GflFileInformation *information);
/// The same for a file that the caller has opened; it is not opened again.
[[nodiscard]] int gflLoadBitmapFrom(const RegularFile &file, GflBitmap **bitmap, const GflLoadParams *params);

/// Writes a bitmap to a temporary file beside `fileName` that replaces it once it is complete: an error leaves an existing file
/// unchanged.
[[nodiscard]] int gflSaveBitmapUTF8(const char *fileName, const GflBitmap *bitmap, const GflSaveParams *params);

/// Writes the JPEG file `sourceName` with rows and columns exchanged: pixel (x, y) of one file is pixel (y, x) of the other. No
/// pixel is decoded, so nothing is lost, and doing it twice restores the picture; every metadata segment is carried over
/// unchanged. `targetName` is written as by gflSaveBitmapUTF8. Returns UNKNOWN_FORMAT for any other kind of file.
[[nodiscard]] int gflTransposeJpegUTF8(const char *sourceName, const char *targetName);

void gflFreeFileInformation(GflFileInformation *information);

[[nodiscard]] bool gflBitmapHasICCProfile(const GflBitmap *bitmap);
void gflBitmapCopyICCProfile(const GflBitmap *source, GflBitmap *target);
/// The colour profile inside the bitmap and its length, or null. Valid as long as the bitmap's metadata.
[[nodiscard]] const std::uint8_t *gflBitmapGetICCProfile(const GflBitmap *bitmap, std::size_t *bytes);
[[nodiscard]] bool gflBitmapHasIPTC(const GflBitmap *bitmap);
/// The IPTC block inside the bitmap, or null. Valid as long as the bitmap's metadata; the caller does not release it.
GflIptc *gflBitmapGetIPTC(const GflBitmap *bitmap);
/// Copies the block into the bitmap.
void gflBitmapSetIPTC(GflBitmap *bitmap, const GflIptc *iptc);
[[nodiscard]] bool gflBitmapHasEXIF(const GflBitmap *bitmap);
/// A copy of the bitmap's EXIF block, which the caller releases with gflFreeEXIF2; null if there is none or no memory.
GflExif *gflBitmapGetEXIF2(const GflBitmap *bitmap);
void gflBitmapSetEXIF2(GflBitmap *bitmap, const GflExif *exif);
void gflFreeEXIF2(GflExif *exif);
/// Makes the source's packing the default for the target's: the quantisation tables and chroma subsampling of a JPEG, the
/// compression of a TIFF; see GflSaveParams. It is known if the source was loaded with metadata.
void gflBitmapCopyPacking(const GflBitmap *source, GflBitmap *target);
