#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <mutex>

#include "TiffStripInflater.h"
#include "gflBands.h"
#include "gflClaims.h"
#include "gflCodec.h"
#include "gflMetadata.h"
#include "gflTiffHandle.h"

namespace gfl {
namespace {

struct ReadHandle
{
    const InputFile *file;
    std::uint64_t position;
};

tmsize_t onRead(thandle_t handle, void *target, tmsize_t bytes)
{
    auto *source = static_cast<ReadHandle *>(handle);
    const std::size_t got = source->file->readAt(source->position, target, std::size_t(bytes));
    source->position += got;
    return static_cast<tmsize_t>(got);
}

toff_t onReadSeek(thandle_t handle, toff_t offset, int whence)
{
    auto *source = static_cast<ReadHandle *>(handle);
    source->position = offset + (whence == SEEK_CUR ? source->position : whence == SEEK_END ? source->file->size() : 0);
    return source->position;
}

toff_t onReadSize(thandle_t handle)
{
    return static_cast<ReadHandle *>(handle)->file->size();
}

tmsize_t onNoWrite(thandle_t, void *, tmsize_t)
{
    return -1;
}

/// An open file: the library's handle and the position that it reads from.
struct OpenTiff
{
    std::unique_ptr<ReadHandle> handle;
    TiffPointer tiff;

    explicit OpenTiff(const InputFile &file) : handle(new ReadHandle{&file, 0})
    {
        const TiffOptions options = quietTiffOptions();
        const std::uint64_t limit = std::min(largestLibraryBlock(file.size()), std::uint64_t(1) << 40);
        TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), static_cast<tmsize_t>(limit));
        tiff = openTiff("rm", handle.get(), onRead, onNoWrite, onReadSeek, onReadSize, options);
        if (!tiff)
            throw Failure{GFL_ERROR_FILE_READ};
    }
    TIFF *get() const { return tiff.get(); }
};

enum class Alpha { None, Straight, Associated };

struct Layout
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    int bits = 1;
    int samples = 1;
    int sampleFormat = SAMPLEFORMAT_UINT;
    int photometric = PHOTOMETRIC_MINISBLACK;
    bool planar = false;
    bool tiled = false;
    int colours = 1; // samples that make up the colour; the next is alpha, if any
    Alpha alpha = Alpha::None;
    bool convertedHere = false; // if not, the library converts to 8-bit RGB
    Form form{};
};

Layout readLayout(TIFF *tiff)
{
    Layout layout;
    if (!TIFFGetField(tiff, TIFFTAG_IMAGEWIDTH, &layout.width) || !TIFFGetField(tiff, TIFFTAG_IMAGELENGTH, &layout.height))
        throw Failure{GFL_ERROR_FILE_READ};
    layout.bits = tiffField<std::uint16_t>(tiff, TIFFTAG_BITSPERSAMPLE, 1);
    layout.samples = tiffField<std::uint16_t>(tiff, TIFFTAG_SAMPLESPERPIXEL, 1);
    layout.sampleFormat = tiffField<std::uint16_t>(tiff, TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT);
    layout.planar =
        tiffField<std::uint16_t>(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == PLANARCONFIG_SEPARATE && layout.samples > 1;
    layout.tiled = TIFFIsTiled(tiff) != 0;
    std::uint16_t photometric = 0;
    if (!TIFFGetField(tiff, TIFFTAG_PHOTOMETRIC, &photometric))
        photometric = layout.samples >= 3 ? PHOTOMETRIC_RGB : PHOTOMETRIC_MINISBLACK;
    if (photometric == PHOTOMETRIC_YCBCR &&
        tiffField<std::uint16_t>(tiff, TIFFTAG_COMPRESSION, COMPRESSION_NONE) == COMPRESSION_JPEG && !layout.planar) {
        TIFFSetField(tiff, TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
        photometric = PHOTOMETRIC_RGB;
    }
    layout.photometric = photometric;

    switch (photometric) {
    case PHOTOMETRIC_MINISBLACK:
    case PHOTOMETRIC_MINISWHITE:
    case PHOTOMETRIC_PALETTE:
        layout.colours = 1;
        break;
    case PHOTOMETRIC_RGB:
        layout.colours = 3;
        break;
    case PHOTOMETRIC_SEPARATED:
        layout.colours = 4;
        break;
    default:
        layout.colours = 0;
    }
    const bool integers = layout.sampleFormat == SAMPLEFORMAT_UINT || layout.sampleFormat == SAMPLEFORMAT_VOID;
    const bool depth = layout.sampleFormat == SAMPLEFORMAT_IEEEFP
                           ? layout.bits == 16 || layout.bits == 32 || layout.bits == 64
                           : integers && ((layout.bits >= 1 && layout.bits <= 16) || layout.bits == 32);
    const bool inks =
        photometric != PHOTOMETRIC_SEPARATED || tiffField<std::uint16_t>(tiff, TIFFTAG_INKSET, INKSET_CMYK) == INKSET_CMYK;
    const bool palette = photometric != PHOTOMETRIC_PALETTE || (integers && layout.bits <= 16);
    layout.convertedHere = layout.colours > 0 && layout.samples >= layout.colours && depth && inks && palette;
    if (!layout.convertedHere) {
        layout.form = {3, 8};
        return layout;
    }

    if (layout.samples > layout.colours && photometric != PHOTOMETRIC_PALETTE && layout.colours != 4) {
        std::uint16_t count = 0;
        std::uint16_t *kinds = nullptr;
        const bool stated = TIFFGetField(tiff, TIFFTAG_EXTRASAMPLES, &count, &kinds) && count > 0;
        // A channel without a stated use may be a mask; but if a file states nothing at all, its one extra sample is alpha.
        if (stated)
            layout.alpha = kinds[0] == EXTRASAMPLE_ASSOCALPHA   ? Alpha::Associated
                           : kinds[0] == EXTRASAMPLE_UNASSALPHA ? Alpha::Straight
                                                                : Alpha::None;
        else if (layout.samples == layout.colours + 1)
            layout.alpha = Alpha::Straight;
    }
    const int outBits = layout.sampleFormat == SAMPLEFORMAT_IEEEFP || layout.bits == 32 ? 32
                        : layout.bits > 8 && photometric != PHOTOMETRIC_PALETTE         ? 16
                                                                                        : 8;
    const bool grey = layout.colours == 1 && photometric != PHOTOMETRIC_PALETTE;
    layout.form = {layout.alpha != Alpha::None ? 4 : grey ? 1 : 3, outBits};
    return layout;
}

/// The unconverted rows of one plane (or of all samples together), in order. The library delivers strips row by row, and tiles
/// one band at a time.
class PlaneRows
{
public:
    PlaneRows(const InputFile &file, const Layout &shape, int plane) : tiff(file), layout(shape), sample(std::uint16_t(plane))
    {
        readLayout(tiff.get()); // for the colour mode that it sets
        compression = tiffField<std::uint16_t>(tiff.get(), TIFFTAG_COMPRESSION, COMPRESSION_NONE);
        const std::uint64_t samples = layout.planar ? 1 : unsigned(layout.samples);
        rowBytes = (std::uint64_t(layout.width) * samples * unsigned(layout.bits) + 7) / 8;
        const std::uint64_t limit = largestPiece(file.size());
        if (!layout.tiled) {
            if (TIFFScanlineSize64(tiff.get()) != rowBytes || rowBytes > limit)
                throw Failure{GFL_ERROR_FILE_READ};
            stripHeight =
                std::clamp(tiffField<std::uint32_t>(tiff.get(), TIFFTAG_ROWSPERSTRIP, layout.height), 1u, layout.height);
            inflater = TiffStripInflater::make(tiff.get(), file, rowBytes, stripHeight);
            return;
        }
        TIFFGetField(tiff.get(), TIFFTAG_TILEWIDTH, &tileWidth);
        TIFFGetField(tiff.get(), TIFFTAG_TILELENGTH, &tileHeight);
        const std::uint64_t tileBytes = TIFFTileSize64(tiff.get());
        tileRowBytes = TIFFTileRowSize64(tiff.get());
        if (tileWidth == 0 || tileHeight == 0 || tileBytes == 0 || tileRowBytes == 0 || tileBytes > limit ||
            rowBytes > limit / tileHeight || tileBytes / tileHeight < tileRowBytes ||
            std::uint64_t(tileWidth) * samples * unsigned(layout.bits) / 8 > tileRowBytes ||
            std::uint64_t(tileWidth) * samples * unsigned(layout.bits) % 8 != 0)
            throw Failure{GFL_ERROR_FILE_READ};
        tile.resize(std::size_t(tileBytes));
        band.resize(std::size_t(rowBytes * tileHeight));
    }

    /// Prepares a handle that does not begin with the first row. The library takes all strips for the old form of LZW if the
    /// first one that it reads looks like it.
    void prepare()
    {
        if (compression == COMPRESSION_LZW)
            read(0, Bytes(rowBytes).data());
    }

    /// Reads row `y` to `target`. The rows of a strip or of a row of tiles must be read in order, from the first one.
    void read(std::uint32_t y, void *target)
    {
        if (inflater && y % stripHeight == 0)
            inflated = inflater->unpack(TIFFComputeStrip(tiff.get(), y, sample), std::min(stripHeight, layout.height - y));
        if (inflated) {
            std::memcpy(target, inflater->row(y % stripHeight), std::size_t(rowBytes));
            return;
        }
        if (!layout.tiled) {
            // A strip of one row whose deflated data are longer than the row is reported as read, with nothing written.
            if (isDeflated())
                std::memset(target, 0, std::size_t(rowBytes));
            if (TIFFReadScanline(tiff.get(), target, y, sample) != 1)
                throw Failure{GFL_ERROR_FILE_READ};
            return;
        }
        if (y % tileHeight == 0)
            readBand(y);
        std::memcpy(target, band.data() + std::size_t(rowBytes) * (y % tileHeight), std::size_t(rowBytes));
    }

    std::size_t bytes() const { return std::size_t(rowBytes); }
    TIFF *handle() const { return tiff.get(); }
    std::uint32_t rowsPerPiece() const { return layout.tiled ? tileHeight : stripHeight; }
    std::uint64_t pieceBytes() const { return rowBytes + (inflater ? inflater->bytes() : 0) + tile.size() + band.size(); }
    /// Whether several handles that read a strip or tile each give what a single handle gives.
    bool piecesStandAlone() const { return compression == COMPRESSION_NONE || compression == COMPRESSION_LZW || isDeflated(); }

private:
    void readBand(std::uint32_t y)
    {
        const std::uint32_t rows = std::min(tileHeight, layout.height - y);
        std::uint64_t at = 0;
        for (std::uint32_t x = 0; x < layout.width; x += tileWidth, at += tileRowBytes) {
            if (TIFFReadTile(tiff.get(), tile.data(), x, y, 0, sample) < 0)
                throw Failure{GFL_ERROR_FILE_READ};
            const std::size_t part = std::size_t(std::min(tileRowBytes, rowBytes - at));
            for (std::uint32_t i = 0; i < rows; ++i)
                std::memcpy(band.data() + rowBytes * i + at, tile.data() + tileRowBytes * i, part);
            if (layout.width - x <= tileWidth)
                break;
        }
    }

    bool isDeflated() const { return compression == COMPRESSION_ADOBE_DEFLATE || compression == COMPRESSION_DEFLATE; }

    OpenTiff tiff;
    const Layout &layout;
    std::uint16_t sample;
    std::uint16_t compression;
    std::uint64_t rowBytes = 0;
    std::uint32_t stripHeight = 0;
    std::unique_ptr<TiffStripInflater> inflater; ///< For strips alone.
    bool inflated = false;                       ///< The present strip.
    std::uint32_t tileWidth = 0;
    std::uint32_t tileHeight = 0;
    std::uint64_t tileRowBytes = 0;
    Bytes tile;
    Bytes band;
};

float halfToFloat(std::uint16_t half)
{
    const int exponent = half >> 10 & 31;
    const int mantissa = half & 1023;
    const float size = exponent == 0 ? std::ldexp(float(mantissa), -24)
                       : exponent == 31
                           ? (mantissa ? std::numeric_limits<float>::quiet_NaN() : std::numeric_limits<float>::infinity())
                           : std::ldexp(float(mantissa + 1024), exponent - 25);
    return half & 0x8000 ? -size : size;
}

/// Turns packed samples of any supported depth into 32-bit floats (full scale 1) or 16-bit integers (full scale 65535, or the
/// unscaled number if it is an index).
void unpack(const std::uint8_t *source, const Layout &layout, std::size_t count, bool index, float *floats,
            std::uint16_t *integers)
{
    if (layout.sampleFormat == SAMPLEFORMAT_IEEEFP && layout.bits == 16) {
        const auto *halves = reinterpret_cast<const std::uint16_t *>(source);
        for (std::size_t i = 0; i < count; ++i)
            floats[i] = halfToFloat(halves[i]);
    } else if (layout.sampleFormat == SAMPLEFORMAT_IEEEFP && layout.bits == 64) {
        for (std::size_t i = 0; i < count; ++i) {
            double value;
            std::memcpy(&value, source + i * sizeof value, sizeof value);
            constexpr double kLargest = std::numeric_limits<float>::max(); // beyond it the conversion is undefined
            floats[i] = std::isfinite(value) ? float(std::clamp(value, -kLargest, kLargest)) : float(value);
        }
    } else if (layout.sampleFormat == SAMPLEFORMAT_IEEEFP) {
        std::memcpy(floats, source, count * sizeof(float));
    } else if (layout.bits == 32) {
        const auto *values = reinterpret_cast<const std::uint32_t *>(source);
        for (std::size_t i = 0; i < count; ++i)
            floats[i] = float(double(values[i]) / 4294967295.0);
    } else if (layout.bits == 16) {
        std::memcpy(integers, source, count * sizeof(std::uint16_t));
    } else {
        const unsigned largest = (1u << layout.bits) - 1;
        std::uint32_t window = 0;
        int held = 0;
        for (std::size_t i = 0; i < count; ++i) {
            while (held < layout.bits) {
                window = window << 8 | *source++;
                held += 8;
            }
            held -= layout.bits;
            const unsigned value = window >> held & largest;
            integers[i] = std::uint16_t(index ? value : (value * 65535u + largest / 2) / largest);
        }
    }
}

/// Converts unpacked samples to the bitmap's form.
template<typename Sample>
void arrange(const Sample *source, const Layout &layout, Sample *target)
{
    constexpr bool real = std::is_same_v<Sample, float>;
    constexpr Sample full = real ? Sample(1) : std::numeric_limits<Sample>::max();
    const int out = layout.form.components;
    for (std::uint32_t x = 0; x < layout.width; ++x, source += layout.samples, target += out) {
        if (layout.colours == 4) {
            const float key = float(full) - float(source[3]);
            for (int c = 0; c < 3; ++c)
                target[c] = static_cast<Sample>((float(full) - float(source[c])) * key / float(full) + (real ? 0.0f : 0.5f));
            continue;
        }
        for (int c = 0; c < std::min(out, 3); ++c) {
            const Sample value = source[layout.colours == 1 ? 0 : c];
            target[c] = layout.photometric == PHOTOMETRIC_MINISWHITE ? static_cast<Sample>(full - value) : value;
        }
        if (layout.alpha == Alpha::None)
            continue;
        const Sample alpha = source[layout.colours];
        target[3] = alpha;
        if (layout.alpha == Alpha::Associated && alpha > 0)
            for (int c = 0; c < 3; ++c) {
                const float straight = float(target[c]) * (float(full) / float(alpha));
                target[c] = real ? static_cast<Sample>(straight) : static_cast<Sample>(std::min(straight + 0.5f, float(full)));
            }
    }
}

struct Palette
{
    std::uint16_t *channels[3] = {};
};

void applyPalette(const std::uint16_t *indices, const Layout &layout, const Palette &palette, std::uint8_t *target)
{
    for (std::uint32_t x = 0; x < layout.width; ++x, indices += layout.samples, target += 3)
        for (int c = 0; c < 3; ++c)
            target[c] = std::uint8_t((palette.channels[c][*indices] + 128u) / 257u);
}

/// Reads rows in the bitmap's form. The rows of one strip, or one row of tiles, must be read in order, from its first one.
class RowReader
{
public:
    RowReader(const InputFile &file, const Layout &shape)
        : layout(shape), indexed(layout.photometric == PHOTOMETRIC_PALETTE), real(layout.form.bits == 32),
          sameForm(!layout.planar && layout.samples == layout.form.components && layout.bits == layout.form.bits &&
                   layout.colours < 4 && layout.alpha != Alpha::Associated &&
                   (layout.bits < 32 || layout.sampleFormat == SAMPLEFORMAT_IEEEFP) &&
                   layout.photometric != PHOTOMETRIC_MINISWHITE && !indexed),
          narrow(rowConverter(16, 8))
    {
        const int taken = layout.colours + (layout.alpha != Alpha::None ? 1 : 0);
        for (int i = 0; i < (layout.planar ? taken : 1); ++i)
            planes.push_back(std::make_unique<PlaneRows>(file, layout, i));
        if (sameForm)
            return;
        if (indexed && !TIFFGetField(planes[0]->handle(), TIFFTAG_COLORMAP, &palette.channels[0], &palette.channels[1],
                                     &palette.channels[2]))
            throw Failure{GFL_ERROR_FILE_READ};
        // Unused planes leave their places in the unpacked row untouched.
        const std::size_t samples = std::size_t(layout.width) * unsigned(layout.samples);
        raw.resize(planes[0]->bytes() + sizeof(double));
        floats.resize(real ? samples : 0);
        integers.resize(real ? 0 : samples);
        floatPlane.resize(layout.planar && real ? layout.width : 0);
        integerPlane.resize(layout.planar && !real ? layout.width : 0);
        wide.resize(layout.form.bits == 8 && !indexed ? std::size_t(layout.width) * unsigned(layout.form.components) : 0);
    }

    void read(std::uint32_t y, std::uint8_t *target)
    {
        if (sameForm)
            planes[0]->read(y, target);
        else
            readConverting(y, target);
    }

    /// For a reader that does not begin with the first row.
    void prepare()
    {
        for (const auto &plane : planes)
            plane->prepare();
    }

    /// Rows of a strip or a tile.
    std::uint32_t rowsPerPiece() const { return planes[0]->rowsPerPiece(); }
    /// Bytes of the largest buffers.
    std::uint64_t pieceBytes() const { return planes[0]->pieceBytes() * planes.size(); }
    bool piecesStandAlone() const { return planes[0]->piecesStandAlone(); }

private:
    void readConverting(std::uint32_t y, std::uint8_t *target)
    {
        const std::size_t samples = std::size_t(layout.width) * unsigned(layout.samples);
        for (std::size_t plane = 0; plane < planes.size(); ++plane) {
            planes[plane]->read(y, raw.data());
            if (!layout.planar) {
                unpack(raw.data(), layout, samples, indexed, floats.data(), integers.data());
                continue;
            }
            unpack(raw.data(), layout, layout.width, indexed, floatPlane.data(), integerPlane.data());
            for (std::uint32_t x = 0; x < layout.width; ++x) {
                const std::size_t at = std::size_t(x) * unsigned(layout.samples) + plane;
                if (real)
                    floats[at] = floatPlane[x];
                else
                    integers[at] = integerPlane[x];
            }
        }
        if (indexed) {
            applyPalette(integers.data(), layout, palette, target);
        } else if (real) {
            arrange(floats.data(), layout, reinterpret_cast<float *>(target));
        } else if (layout.form.bits == 16) {
            arrange(integers.data(), layout, reinterpret_cast<std::uint16_t *>(target));
        } else {
            arrange(integers.data(), layout, wide.data());
            narrow(wide.data(), layout.form.components, target, layout.form.components, int(layout.width));
        }
    }

    const Layout &layout;
    const bool indexed;
    const bool real;
    const bool sameForm;
    const RowConverter narrow;
    std::vector<std::unique_ptr<PlaneRows>> planes;
    Palette palette;
    Bytes raw;
    std::vector<float> floats;
    std::vector<std::uint16_t> integers;
    std::vector<float> floatPlane;
    std::vector<std::uint16_t> integerPlane;
    std::vector<std::uint16_t> wide;
};

/// The threads share the strips or rows of tiles, each with a different reader.
void readConverting(const InputFile &file, const Layout &layout, NewBitmap &bitmap, int threads)
{
    std::mutex mutex; // guards `idle`
    std::vector<std::unique_ptr<RowReader>> idle;
    idle.push_back(std::make_unique<RowReader>(file, layout));
    RowReader &first = *idle[0];
    if (threads > 1)
        first.prepare();

    constexpr std::uint64_t kBandBytes = 256 * 1024; // worth a thread's while, and fits in its cache
    const std::size_t stride = bitmap.record().bytesPerLine;
    const std::uint64_t pieces = std::max<std::uint64_t>(1, kBandBytes / (std::uint64_t(stride) * first.rowsPerPiece()));
    const int bandRows = int(std::min<std::uint64_t>(first.rowsPerPiece() * pieces, layout.height));
    const std::uint64_t mostReaders = (kSmallClaim + kUsualRatio * file.size()) / first.pieceBytes();
    const int team = first.piecesStandAlone() ? int(std::clamp<std::uint64_t>(mostReaders, 1, unsigned(threads))) : 1;

    for (int y = 0; y < bitmap.height();) {
        const int left = bitmap.height() - y;
        const int ready = std::min(bitmap.rowsFrom(y), left);
        const int rows = ready == left ? ready : ready / bandRows * bandRows;
        if (team == 1 || rows <= bandRows) { // the memory grows as the rows arrive
            for (const int end = y + std::min(bandRows, left); y < end; ++y)
                first.read(std::uint32_t(y), bitmap.row(y));
            continue;
        }
        std::uint8_t *target = bitmap.row(y);
        shareBands((rows - 1) / bandRows + 1, team, [&](int band) {
            std::unique_ptr<RowReader> reader;
            {
                const std::lock_guard lock(mutex);
                if (!idle.empty()) {
                    reader = std::move(idle.back());
                    idle.pop_back();
                }
            }
            if (!reader) {
                reader = std::make_unique<RowReader>(file, layout);
                reader->prepare();
            }
            const int start = band * bandRows;
            for (int row = start, end = start + std::min(bandRows, rows - start); row < end; ++row)
                reader->read(std::uint32_t(y + row), target + stride * std::size_t(row));
            const std::lock_guard lock(mutex);
            idle.push_back(std::move(reader));
        });
        y += rows;
    }
}

struct RgbaImage : TIFFRGBAImage
{
    RgbaImage() : TIFFRGBAImage{} {}
    ~RgbaImage()
    {
        if (begun)
            TIFFRGBAImageEnd(this);
    }
    bool begun = false;
};

void readByLibrary(const OpenTiff &open, const InputFile &file, const Layout &layout, NewBitmap &bitmap)
{
    // Lab refers to the print white, the library's RGB to the screen's. Declaring the screen's white for Lab keeps neutral
    // colours neutral.
    static constexpr float kScreenWhite[] = {0.3127f, 0.3290f};
    if (layout.photometric == PHOTOMETRIC_CIELAB || layout.photometric == PHOTOMETRIC_ICCLAB)
        TIFFSetField(open.get(), TIFFTAG_WHITEPOINT, kScreenWhite);
    char message[1024];
    RgbaImage image;
    image.begun = TIFFRGBAImageBegin(&image, open.get(), /*stop=*/1, message) != 0;
    if (!image.begun)
        throw Failure{GFL_ERROR_FILE_READ};
    image.req_orientation = image.orientation; // keeps the order of rows
    std::uint32_t rowsPerBand = 0;
    if (layout.tiled)
        TIFFGetField(open.get(), TIFFTAG_TILELENGTH, &rowsPerBand);
    else
        TIFFGetFieldDefaulted(open.get(), TIFFTAG_ROWSPERSTRIP, &rowsPerBand);
    rowsPerBand = std::clamp(rowsPerBand, 1u, layout.height);
    if (std::uint64_t(rowsPerBand) * layout.width * 4 > largestPiece(file.size()))
        throw Failure{GFL_ERROR_FILE_READ};
    std::vector<std::uint32_t> raster(std::size_t(rowsPerBand) * layout.width);
    for (std::uint32_t y = 0; y < layout.height; y += rowsPerBand) {
        const std::uint32_t rows = std::min(rowsPerBand, layout.height - y);
        image.row_offset = int(y);
        if (!TIFFRGBAImageGet(&image, raster.data(), layout.width, rows))
            throw Failure{GFL_ERROR_FILE_READ};
        for (std::uint32_t i = 0; i < rows; ++i) {
            const std::uint32_t *source = raster.data() + std::size_t(i) * layout.width;
            std::uint8_t *target = bitmap.row(int(y + i));
            for (std::uint32_t x = 0; x < layout.width; ++x, target += 3) {
                target[0] = std::uint8_t(TIFFGetR(source[x]));
                target[1] = std::uint8_t(TIFFGetG(source[x]));
                target[2] = std::uint8_t(TIFFGetB(source[x]));
            }
        }
    }
}

void readMetadata(const InputFile &file, TIFF *tiff, Metadata &metadata)
{
    std::uint32_t count = 0;
    void *profile = nullptr;
    if (TIFFGetField(tiff, TIFFTAG_ICCPROFILE, &count, &profile) && count > 0) {
        const auto *bytes = static_cast<const std::uint8_t *>(profile);
        metadata.icc.assign(bytes, bytes + count);
    }
    metadata.exif.block = metadataFromFile(file, /*raw=*/false).exif;
    if (metadata.exif.block.empty()) {
        std::vector<std::pair<std::uint16_t, std::string>> texts;
        const char *text = nullptr;
        for (const std::uint16_t tag : kTiffTexts)
            if (TIFFGetField(tiff, tag, &text) && text)
                texts.emplace_back(tag, text);
        std::uint16_t orientation = 0;
        TIFFGetField(tiff, TIFFTAG_ORIENTATION, &orientation);
        if (orientation || !texts.empty())
            metadata.exif.block = exifFromTexts(texts, orientation);
    }

    ByteReader stream(file);
    const auto valueOf = [&](const IfdEntry &entry) {
        stream.seek(entry.valueOffset);
        return stream.bytes(entry.valueBytes);
    };
    Bytes resources;
    for (const IfdEntry &entry : firstDirectory(stream)) {
        if (entry.tag == TIFFTAG_RICHTIFFIPTC) {
            Bytes block = valueOf(entry);
            // Some writers swap the block's bytes as if it held the longs that its type claims.
            if (block.size() >= 4 && block[0] != 0x1C && block[3] == 0x1C)
                swapSamples(block.data(), block.data(), block.size() / 4, 32);
            if (!block.empty() && block[0] == 0x1C)
                metadata.iptc.block = block;
        } else if (entry.tag == TIFFTAG_PHOTOSHOP) {
            resources = valueOf(entry);
        }
    }
    if (metadata.iptc.block.empty())
        metadata.iptc.block = photoshopResource(resources, kResourceIptc);
}

/// Whether the file is long enough for all its strips or tiles.
bool holdsAllPieces(const InputFile &file, TIFF *tiff)
{
    const std::uint32_t pieces = TIFFIsTiled(tiff) != 0 ? TIFFNumberOfTiles(tiff) : TIFFNumberOfStrips(tiff);
    for (std::uint32_t piece = 0; piece < pieces; ++piece) {
        const std::uint64_t start = TIFFGetStrileOffset(tiff, piece);
        if (start > file.size() || TIFFGetStrileByteCount(tiff, piece) > file.size() - start)
            return false;
    }
    return true;
}

/// The compression for a file that replaces one with this compression: what every program reads, and never a loss.
int packingOf(std::uint16_t compression)
{
    switch (compression) {
    case COMPRESSION_NONE:
        return 0;
    case COMPRESSION_LZW:
        return 2;
    default:
        return 4;
    }
}

} // namespace

BitmapPointer readTiff(const ReadRequest &request)
{
    const OpenTiff open(request.file);
    const Layout layout = readLayout(open.get());
    // A fax has one bit per pixel; the library silently makes missing rows white.
    const auto compression = tiffField<std::uint16_t>(open.get(), TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    const bool fax =
        (compression >= COMPRESSION_CCITTRLE && compression <= COMPRESSION_CCITTFAX4) || compression == COMPRESSION_CCITTRLEW;
    if (fax && (layout.bits != 1 || layout.samples != 1 || layout.height > mostFaxRows(request.file.size())))
        throw Failure{GFL_ERROR_FILE_READ};
    NewBitmap bitmap(request.file, layout.width, layout.height, layout.form);
    const double perInch = tiffField<std::uint16_t>(open.get(), TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH) == RESUNIT_INCH ? 1.0
                           : tiffField<std::uint16_t>(open.get(), TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH) == RESUNIT_CENTIMETER
                               ? 2.54
                               : 0.0;
    bitmap.record().xDpi = dpiFrom(double(tiffField<float>(open.get(), TIFFTAG_XRESOLUTION, 0)) * perInch);
    bitmap.record().yDpi = dpiFrom(double(tiffField<float>(open.get(), TIFFTAG_YRESOLUTION, 0)) * perInch);
    if (request.metadata) {
        Metadata &metadata = attachMetadata(bitmap.record());
        metadata.packing.tiff = packingOf(compression);
        readMetadata(request.file, open.get(), metadata);
    }
    if (request.pixels) {
        if (layout.convertedHere)
            readConverting(request.file, layout, bitmap, request.threads);
        else
            readByLibrary(open, request.file, layout, bitmap);
    } else if (!holdsAllPieces(request.file, open.get())) {
        throw Failure{GFL_ERROR_FILE_READ};
    }
    return bitmap.take();
}

} // namespace gfl
