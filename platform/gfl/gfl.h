#pragma once

#include "GflBitmap.h"

class RegularFile;

/// The codec layer: reads and writes image files, and carries their colour profile, IPTC and EXIF.
///
/// Every operation returns or yields a result code; nothing throws. After gflLibraryInitEx the operations may be called from
/// several threads at once, each with bitmaps of its own.

/// Result codes.
enum GflCode : int {
    GFL_NO_ERROR = 0,
    GFL_ERROR_FILE_OPEN = 1,   ///< The file can't be opened for reading.
    GFL_ERROR_FILE_READ = 2,   ///< Empty, truncated or damaged.
    GFL_ERROR_FILE_CREATE = 3, ///< The file to write can't be created.
    GFL_ERROR_FILE_WRITE = 4,  ///< Writing failed: a full disk, for instance.
    GFL_ERROR_NO_MEMORY = 5,
    GFL_ERROR_UNKNOWN_FORMAT = 6, ///< The content is none of the formats, or not the one that the suffix names.
    GFL_ERROR_BAD_BITMAP = 7,     ///< The bitmap holds no pixels, or has a form that no format takes.
    GFL_ERROR_BAD_FORMAT_INDEX = 10,
    GFL_ERROR_BAD_PARAMETERS = 50
};

constexpr std::uint32_t GFL_SAVE_ICC_PROFILE = 0x00000008; ///< Save flag: write the colour profile that is attached.
constexpr std::uint32_t GFL_LOAD_METADATA = 0x00000400;    ///< Load flag: read colour profile, IPTC and EXIF.
/// Load flag: the same, and leave the pixels unread. The header is tested as ever, the bitmap has the file's size and form and
/// null `data`, and the work does not grow with the picture. A JPEG, PNG or TIFF that was cut short is still told; other damage
/// among the pixels goes unnoticed.
constexpr std::uint32_t GFL_LOAD_METADATA_ONLY = 0x00000800;

constexpr std::int16_t GFL_DEFAULT = -1; ///< In `compression` and `quality`: what the format does best; see GflSaveParams.

/// Each format looks at one of the two fields, and negative values stand for its default.
///
/// | format | field       | values                                                                    | default       |
/// | jpeg   | quality     | 1..100 (others go to the nearest), always 4:4:4                           | 92            |
/// | png    | compression | 0 (stored) .. 9 (smallest; so are larger values)                          | 3             |
/// | tiff   | compression | 0 none, 2 LZW (none unless enabled), 4 deflate; else BAD_PARAMETERS       | 0             |
/// | hdri   | compression | 0 none, else run lengths                                                  | run lengths   |
/// | psd    | compression | 0 none, else run lengths                                                  | run lengths   |
/// | exr    | compression | OpenEXR's own numbers, 0 (none) .. 7 (B44A); else BAD_PARAMETERS          | 4 (PIZ)       |
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
    std::uint8_t rawUseAutomaticBalance; ///< The eight raw settings stand for developing camera raw; see gflLoadBitmapUTF8.
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

/// Starts the layer with the allocator that bitmaps are made with. Null callbacks stand for malloc, realloc and free.
/// BAD_PARAMETERS, and nothing is changed, if some of them are null and some are not. No bitmap may live while it runs.
int gflLibraryInitEx(GflAllocCallback alloc, GflReallocCallback realloc, GflFreeCallback free, void *user);
void gflLibraryExit();
/// Whether TIFF files may be written in LZW; else they are written plain. On at the start. Reading takes LZW in any case.
void gflEnableLZW(int enable);

/// Index of a format by its lower-case name: "jpeg", "png", "tiff", "hdri", "exr", "psd"; -1 for any other.
int gflGetFormatIndexByName(const char *name);

void gflGetDefaultSaveParams(GflSaveParams *params);
void gflGetDefaultLoadParams(GflLoadParams *params);

/// Reads a file into a new bitmap, which the caller releases with gflFreeBitmap; `information` may be null. The bitmap has the
/// form that is nearest to the file's own (grey, RGB or RGBA; 8, 16 bits or float), its rows aligned to 4 bytes, top to bottom,
/// with no orientation applied. On an error `*bitmap` is null.
int gflLoadBitmapUTF8(const char *fileName, GflBitmap **bitmap, const GflLoadParams *params, GflFileInformation *information);
/// The same for a file that the caller has opened; it is not opened again.
int gflLoadBitmapFrom(const RegularFile &file, GflBitmap **bitmap, const GflLoadParams *params);

/// Writes a bitmap, by way of a temporary file beside `fileName` that takes its place when it is whole: an error leaves what
/// stood under the name as it was.
int gflSaveBitmapUTF8(const char *fileName, const GflBitmap *bitmap, const GflSaveParams *params);

/// Writes the JPEG file `sourceName` anew with rows for columns: pixel (x, y) of the one is pixel (y, x) of the other. Nothing is
/// decoded, so that nothing is lost, and doing it twice gives the same picture again; every segment of metadata goes along as it
/// stands. `targetName` is written as by gflSaveBitmapUTF8. UNKNOWN_FORMAT for any other kind of file.
int gflTransposeJpegUTF8(const char *sourceName, const char *targetName);

void gflFreeFileInformation(GflFileInformation *information);

bool gflBitmapHasICCProfile(const GflBitmap *bitmap);
void gflBitmapCopyICCProfile(const GflBitmap *source, GflBitmap *target);
bool gflBitmapHasIPTC(const GflBitmap *bitmap);
/// The bitmap's own IPTC block; it lives as long as the bitmap's metadata and is not released by the caller.
GflIptc *gflBitmapGetIPTC(const GflBitmap *bitmap);
/// Copies the block into the bitmap.
void gflBitmapSetIPTC(GflBitmap *bitmap, const GflIptc *iptc);
bool gflBitmapHasEXIF(const GflBitmap *bitmap);
/// A copy of the bitmap's EXIF block, which the caller releases with gflFreeEXIF2.
GflExif *gflBitmapGetEXIF2(const GflBitmap *bitmap);
void gflBitmapSetEXIF2(GflBitmap *bitmap, const GflExif *exif);
void gflFreeEXIF2(GflExif *exif);
