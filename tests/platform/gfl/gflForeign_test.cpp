#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <functional>

#include <jpeglib.h>
#include <png.h>
#include <tiffio.h>

#include "GflFixture.h"

// Files as other programs write them, in forms that the layer reads and never writes.
namespace {

/// A sample that differs by place and channel, in steps of 1 / `largest`.
unsigned pattern(std::uint32_t x, std::uint32_t y, int channel, unsigned largest)
{
    return (x * 7 + y * 13 + unsigned(channel) * 29 + x * y) % (largest + 1);
}

struct TiffCase
{
    const char *name;
    int bits;
    int samples;
    int photometric;
    int planar;
    bool tiled;
    int compression;
    int format = SAMPLEFORMAT_UINT;
    int extra = -1;
    bool bigEndian = false;
    int readComponents;
    int readBits;
};

constexpr int kOne = PLANARCONFIG_CONTIG;
constexpr int kSeparate = PLANARCONFIG_SEPARATE;
constexpr int kUint = SAMPLEFORMAT_UINT;
constexpr int kFloat = SAMPLEFORMAT_IEEEFP;

constexpr TiffCase kTiffs[] = {
    {"bilevel", 1, 1, PHOTOMETRIC_MINISBLACK, kOne, false, COMPRESSION_NONE, kUint, -1, false, 1, 8},
    {"bilevel_white_fax", 1, 1, PHOTOMETRIC_MINISWHITE, kOne, false, COMPRESSION_CCITTFAX4, kUint, -1, false, 1, 8},
    {"four_bits", 4, 1, PHOTOMETRIC_MINISBLACK, kOne, false, COMPRESSION_PACKBITS, kUint, -1, false, 1, 8},
    {"twelve_bits", 12, 3, PHOTOMETRIC_RGB, kOne, false, COMPRESSION_NONE, kUint, -1, false, 3, 16},
    {"white_is_zero_16", 16, 1, PHOTOMETRIC_MINISWHITE, kOne, false, COMPRESSION_LZW, kUint, -1, true, 1, 16},
    {"palette_8", 8, 1, PHOTOMETRIC_PALETTE, kOne, false, COMPRESSION_LZW, kUint, -1, false, 3, 8},
    {"palette_4_tiled", 4, 1, PHOTOMETRIC_PALETTE, kOne, true, COMPRESSION_NONE, kUint, -1, false, 3, 8},
    {"big_endian_16", 16, 3, PHOTOMETRIC_RGB, kOne, false, COMPRESSION_NONE, kUint, -1, true, 3, 16},
    {"tiled_8", 8, 3, PHOTOMETRIC_RGB, kOne, true, COMPRESSION_NONE, kUint, -1, false, 3, 8},
    {"tiled_16_big_endian", 16, 4, PHOTOMETRIC_RGB, kOne, true, COMPRESSION_ADOBE_DEFLATE, kUint, EXTRASAMPLE_UNASSALPHA, true, 4,
     16},
    {"planar_8", 8, 3, PHOTOMETRIC_RGB, kSeparate, false, COMPRESSION_LZW, kUint, -1, false, 3, 8},
    {"planar_16_tiled", 16, 4, PHOTOMETRIC_RGB, kSeparate, true, COMPRESSION_NONE, kUint, EXTRASAMPLE_UNASSALPHA, false, 4, 16},
    {"planar_float", 32, 3, PHOTOMETRIC_RGB, kSeparate, false, COMPRESSION_NONE, kFloat, -1, false, 3, 32},
    {"double", 64, 1, PHOTOMETRIC_MINISBLACK, kOne, false, COMPRESSION_NONE, kFloat, -1, false, 1, 32},
    {"integers_32", 32, 3, PHOTOMETRIC_RGB, kOne, false, COMPRESSION_NONE, kUint, -1, false, 3, 32},
    {"grey_alpha", 8, 2, PHOTOMETRIC_MINISBLACK, kOne, false, COMPRESSION_NONE, kUint, EXTRASAMPLE_UNASSALPHA, false, 4, 8},
    {"associated_16", 16, 4, PHOTOMETRIC_RGB, kOne, false, COMPRESSION_NONE, kUint, EXTRASAMPLE_ASSOCALPHA, false, 4, 16},
    {"a_mask_is_no_alpha", 8, 4, PHOTOMETRIC_RGB, kOne, false, COMPRESSION_NONE, kUint, EXTRASAMPLE_UNSPECIFIED, false, 3, 8},
    {"inks_8", 8, 4, PHOTOMETRIC_SEPARATED, kOne, false, COMPRESSION_NONE, kUint, -1, false, 3, 8},
    {"inks_16_planar", 16, 4, PHOTOMETRIC_SEPARATED, kSeparate, false, COMPRESSION_LZW, kUint, -1, false, 3, 16},
};

constexpr std::uint32_t kWidth = 37;
constexpr std::uint32_t kHeight = 29; // no multiple of the strips' 5 rows or the tiles' 16
constexpr std::uint32_t kTile = 16;

unsigned largestOf(const TiffCase &c)
{
    const unsigned most = c.bits >= 32 ? 1000u : (1u << c.bits) - 1;
    return most;
}

unsigned stored(const TiffCase &c, std::uint32_t x, std::uint32_t y, int sample)
{
    const unsigned value = pattern(x, y, sample, largestOf(c));
    if (c.extra != EXTRASAMPLE_ASSOCALPHA)
        return value;
    const unsigned alpha = 20000 + x * 500; // colours are never above it
    return sample == 3 ? alpha : value % (alpha + 1);
}

void putSample(FileBytes &row, std::size_t index, const TiffCase &c, unsigned value)
{
    const double real = value / 1000.0;
    const auto single = static_cast<float>(real);
    const auto whole = c.bits == 32 ? static_cast<std::uint32_t>(real * 4294967295.0) : 0u;
    const auto half = static_cast<std::uint16_t>(value);
    if (c.bits == 64)
        std::memcpy(&row[index * 8], &real, 8);
    else if (c.bits == 32)
        std::memcpy(&row[index * 4], c.format == kFloat ? static_cast<const void *>(&single) : &whole, 4);
    else if (c.bits == 16)
        std::memcpy(&row[index * 2], &half, 2);
    else
        for (int bit = 0; bit < c.bits; ++bit) {
            const std::size_t at = index * unsigned(c.bits) + unsigned(bit);
            if (value >> (c.bits - 1 - bit) & 1)
                row[at / 8] = static_cast<std::uint8_t>(row[at / 8] | 0x80 >> at % 8);
        }
}

void writeTiff(const std::string &name, const TiffCase &c)
{
    TIFF *tiff = TIFFOpen(name.c_str(), c.bigEndian ? "wb" : "wl");
    ASSERT_NE(tiff, nullptr);
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, kWidth);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, kHeight);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, c.bits);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, c.samples);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, c.photometric);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, c.planar);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, c.compression);
    TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, c.format);
    if (c.extra >= 0) {
        const auto kind = static_cast<std::uint16_t>(c.extra);
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &kind);
    }
    std::vector<std::uint16_t> ramp(std::size_t(1) << std::min(c.bits, 8));
    for (std::size_t i = 0; i < ramp.size(); ++i)
        ramp[i] = static_cast<std::uint16_t>(65535 - i * 65535 / (ramp.size() - 1));
    if (c.photometric == PHOTOMETRIC_PALETTE)
        TIFFSetField(tiff, TIFFTAG_COLORMAP, ramp.data(), ramp.data(), ramp.data());
    if (c.tiled) {
        TIFFSetField(tiff, TIFFTAG_TILEWIDTH, kTile);
        TIFFSetField(tiff, TIFFTAG_TILELENGTH, kTile);
    } else {
        TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, 5);
    }
    const int planes = c.planar == kSeparate ? c.samples : 1;
    const int together = c.samples / planes;
    const std::uint32_t columns = c.tiled ? kTile : kWidth;
    const std::uint32_t rows = c.tiled ? kTile : 1;
    for (int plane = 0; plane < planes; ++plane)
        for (std::uint32_t y = 0; y < kHeight; y += rows)
            for (std::uint32_t x = 0; x < kWidth; x += columns) {
                const std::size_t rowBytes = (std::size_t(columns) * unsigned(together * c.bits) + 7) / 8;
                FileBytes piece;
                for (std::uint32_t v = 0; v < rows; ++v) {
                    FileBytes row(rowBytes, 0);
                    for (std::uint32_t u = 0; u < columns; ++u)
                        for (int s = 0; s < together; ++s)
                            putSample(row, u * unsigned(together) + unsigned(s), c, stored(c, x + u, y + v, plane + s));
                    piece.insert(piece.end(), row.begin(), row.end());
                }
                if (c.tiled)
                    ASSERT_GE(TIFFWriteTile(tiff, piece.data(), x, y, 0, static_cast<std::uint16_t>(plane)), 0);
                else
                    ASSERT_EQ(TIFFWriteScanline(tiff, piece.data(), y, static_cast<std::uint16_t>(plane)), 1);
            }
    TIFFClose(tiff);
}

double expected(const TiffCase &c, std::uint32_t x, std::uint32_t y, int component)
{
    const double full = largestOf(c);
    const auto at = [&](int sample) { return stored(c, x, y, sample) / full; };
    if (c.photometric == PHOTOMETRIC_SEPARATED)
        return (1 - at(component)) * (1 - at(3));
    if (c.photometric == PHOTOMETRIC_MINISWHITE || c.photometric == PHOTOMETRIC_PALETTE)
        return 1 - at(0);
    if (c.samples == 2)
        return at(component == 3 ? 1 : 0);
    if (c.extra == EXTRASAMPLE_ASSOCALPHA && component < 3)
        return at(component) / at(3);
    return at(component);
}

TEST_F(GflTest, TiffFilesOfManyForms)
{
    for (const TiffCase &c : kTiffs) {
        SCOPED_TRACE(c.name);
        writeTiff(path("a.tif"), c);
        Picture read;
        ASSERT_EQ(load(path("a.tif"), read), GFL_NO_ERROR);
        ASSERT_EQ(read->width, int(kWidth));
        ASSERT_EQ(read->height, int(kHeight));
        ASSERT_EQ(read->componentsPerPixel, c.readComponents);
        ASSERT_EQ(read->bitsPerComponent, c.readBits);
        const double step = c.readBits == 8 ? 1 / 255.0 : c.readBits == 16 ? 1 / 65535.0 : 1e-6;
        double worst = 0;
        for (std::uint32_t y = 0; y < kHeight; ++y)
            for (std::uint32_t x = 0; x < kWidth; ++x)
                for (int k = 0; k < c.readComponents; ++k)
                    worst = std::max(worst, std::abs(fractionAt(*read, int(x), int(y), k) - expected(c, x, y, k)));
        EXPECT_LE(worst, step * 0.51 + 1e-9); // rounding, by single precision
    }
}

TEST_F(GflTest, TiffInOtherColourSpacesGoesThroughTheLibrary)
{
    for (const int photometric : {PHOTOMETRIC_CIELAB, PHOTOMETRIC_YCBCR}) {
        TIFF *tiff = TIFFOpen(path("a.tif").c_str(), "w");
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, 8);
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, 6);
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
        TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 3);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, photometric);
        TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
        TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, 4);
        TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_BOTLEFT); // is not applied
        if (photometric == PHOTOMETRIC_YCBCR)
            TIFFSetField(tiff, TIFFTAG_YCBCRSUBSAMPLING, 1, 1);
        for (std::uint32_t y = 0; y < 6; ++y) { // neutral, brighter from row to row
            FileBytes row;
            for (int x = 0; x < 8; ++x) {
                const std::uint8_t neutral = photometric == PHOTOMETRIC_YCBCR ? 128 : 0;
                row.insert(row.end(), {static_cast<std::uint8_t>(40 * y + 20), neutral, neutral});
            }
            TIFFWriteScanline(tiff, row.data(), y, 0);
        }
        TIFFClose(tiff);
        Picture read;
        ASSERT_EQ(load(path("a.tif"), read), GFL_NO_ERROR);
        for (int y = 0; y < 6; ++y) {
            const std::uint8_t *pixel = sampleAt(*read, 3, y, 0);
            EXPECT_NEAR(pixel[0], pixel[1], 3);
            EXPECT_NEAR(pixel[1], pixel[2], 3);
            if (y > 0) {
                EXPECT_GT(pixel[1], sampleAt(*read, 3, y - 1, 1)[0]);
            }
        }
    }
}

TEST_F(GflTest, LargeTiffKeepsItsOrientation)
{
    TIFF *tiff = TIFFOpen(path("a.tif").c_str(), "w8");
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, 1);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, 1);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_RIGHTTOP);
    TIFFSetField(tiff, TIFFTAG_MODEL, "HZ-1");
    std::uint8_t pixel = 77;
    TIFFWriteScanline(tiff, &pixel, 0, 0);
    TIFFClose(tiff);
    Picture read;
    ASSERT_EQ(load(path("a.tif"), read), GFL_NO_ERROR);
    EXPECT_EQ(*sampleAt(*read, 0, 0, 0), 77);
    ASSERT_EQ(save(path("b.tif"), read.get(), "tiff"), GFL_NO_ERROR);
    tiff = TIFFOpen(path("b.tif").c_str(), "r");
    std::uint16_t orientation = 0;
    const char *model = nullptr;
    EXPECT_TRUE(TIFFGetField(tiff, TIFFTAG_ORIENTATION, &orientation) && TIFFGetField(tiff, TIFFTAG_MODEL, &model));
    EXPECT_EQ(orientation, ORIENTATION_RIGHTTOP);
    EXPECT_STREQ(model, "HZ-1");
    TIFFClose(tiff);
}

struct PngCase
{
    const char *name;
    int colour;
    int depth;
    bool interlaced;
    bool transparent; // one colour, or palette entry, stands for nothing
    int readComponents;
    int readBits;
};

constexpr PngCase kPngs[] = {
    {"bilevel", PNG_COLOR_TYPE_GRAY, 1, false, false, 1, 8},
    {"four_bits_interlaced", PNG_COLOR_TYPE_GRAY, 4, true, false, 1, 8},
    {"grey_16", PNG_COLOR_TYPE_GRAY, 16, false, false, 1, 16},
    {"grey_with_a_transparent_value", PNG_COLOR_TYPE_GRAY, 8, false, true, 4, 8},
    {"grey_alpha_16", PNG_COLOR_TYPE_GRAY_ALPHA, 16, true, false, 4, 16},
    {"palette_2", PNG_COLOR_TYPE_PALETTE, 2, false, false, 3, 8},
    {"palette_8_transparent", PNG_COLOR_TYPE_PALETTE, 8, true, true, 4, 8},
    {"rgb_16_interlaced", PNG_COLOR_TYPE_RGB, 16, true, false, 3, 16},
    {"rgba_8_interlaced", PNG_COLOR_TYPE_RGB_ALPHA, 8, true, false, 4, 8},
};

TEST_F(GflTest, PngFilesOfManyForms)
{
    for (const PngCase &c : kPngs) {
        SCOPED_TRACE(c.name);
        const unsigned largest = (1u << c.depth) - 1;
        const bool palette = c.colour == PNG_COLOR_TYPE_PALETTE;
        const int samples = (c.colour & PNG_COLOR_MASK_COLOR) && !palette ? 3 : 1;
        const int channels = samples + (c.colour & PNG_COLOR_MASK_ALPHA ? 1 : 0);
        std::FILE *file = std::fopen(path("a.png").c_str(), "wb");
        png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
        png_infop info = png_create_info_struct(png);
        png_init_io(png, file);
        png_set_IHDR(png, info, kWidth, kHeight, c.depth, c.colour, c.interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                     PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        std::vector<png_color> colours;
        for (unsigned i = 0; palette && i <= largest; ++i) {
            const auto value = static_cast<png_byte>(255 - i * 255 / largest);
            colours.push_back({value, value, value});
        }
        if (palette)
            png_set_PLTE(png, info, colours.data(), static_cast<int>(colours.size()));
        png_byte clear[] = {0};
        png_color_16 key{};
        if (c.transparent)
            png_set_tRNS(png, info, clear, 1, &key);
        std::vector<FileBytes> rows(kHeight);
        std::vector<png_bytep> pointers;
        for (std::uint32_t y = 0; y < kHeight; ++y) {
            rows[y].assign((std::size_t(kWidth) * unsigned(channels * c.depth) + 7) / 8, 0);
            for (std::uint32_t x = 0; x < kWidth; ++x)
                for (int s = 0; s < channels; ++s)
                    for (int bit = 0; bit < c.depth; ++bit) {
                        const std::size_t at = (x * std::size_t(channels) + unsigned(s)) * unsigned(c.depth) + unsigned(bit);
                        if (pattern(x, y, s, largest) >> (c.depth - 1 - bit) & 1)
                            rows[y][at / 8] = static_cast<std::uint8_t>(rows[y][at / 8] | 0x80 >> at % 8);
                    }
            pointers.push_back(rows[y].data());
        }
        png_set_rows(png, info, pointers.data());
        png_write_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
        png_destroy_write_struct(&png, &info);
        std::fclose(file);

        Picture read;
        ASSERT_EQ(load(path("a.png"), read), GFL_NO_ERROR);
        ASSERT_EQ(read->componentsPerPixel, c.readComponents);
        ASSERT_EQ(read->bitsPerComponent, c.readBits);
        for (std::uint32_t y = 0; y < kHeight; ++y)
            for (std::uint32_t x = 0; x < kWidth; ++x)
                for (int k = 0; k < c.readComponents; ++k) {
                    const unsigned first = pattern(x, y, 0, largest);
                    double want = palette ? (255 - first * 255 / largest) / 255.0
                                          : pattern(x, y, samples == 1 ? 0 : k, largest) / double(largest);
                    if (k == 3)
                        want = c.transparent ? (first == 0 ? 0 : 1) : pattern(x, y, channels - 1, largest) / double(largest);
                    ASSERT_NEAR(fractionAt(*read, int(x), int(y), k), want, 1e-9) << x << " " << y << " " << k;
                }
    }
}

struct JpegCase
{
    J_COLOR_SPACE space;
    J_COLOR_SPACE stored;
    bool adobe;
    bool progressive;
    int components;
    int across = 1; ///< Sampling factors of the first component.
    int down = 1;
};

/// Rows for columns, in the coefficients: the same picture the other way, and the very same one when it is done twice.
void expectTransposes(const std::string &name, const GflBitmap &picture)
{
    Picture turned, again;
    const std::string turnedName = name + ".turned.jpg", againName = name + ".again.jpg";
    ASSERT_EQ(gflTransposeJpegUTF8(name.c_str(), turnedName.c_str()), GFL_NO_ERROR);
    ASSERT_EQ(gflTransposeJpegUTF8(turnedName.c_str(), againName.c_str()), GFL_NO_ERROR);
    ASSERT_EQ(load(turnedName, turned), GFL_NO_ERROR);
    ASSERT_EQ(load(againName, again), GFL_NO_ERROR);
    ASSERT_EQ(turned->width, picture.height);
    ASSERT_EQ(turned->height, picture.width);
    constexpr double kRounding = 3 / 255.0; // of the transform's two passes, whose order has changed, and of thin colours
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            for (int k = 0; k < picture.componentsPerPixel; ++k) {
                ASSERT_NEAR(fractionAt(*turned, y, x, k), fractionAt(picture, x, y, k), kRounding) << x << " " << y << " " << k;
                ASSERT_EQ(fractionAt(*again, x, y, k), fractionAt(picture, x, y, k)) << x << " " << y << " " << k;
            }
}

TEST_F(GflTest, JpegFilesOfManyForms)
{
    // With Adobe's marker, inks are stored inverted: 255 is none.
    for (const JpegCase &c : {JpegCase{JCS_CMYK, JCS_CMYK, true, false, 3},
                              {JCS_CMYK, JCS_YCCK, true, true, 3},
                              {JCS_CMYK, JCS_CMYK, false, false, 3},
                              {JCS_RGB, JCS_RGB, true, false, 3},
                              {JCS_RGB, JCS_YCbCr, false, true, 3},
                              {JCS_RGB, JCS_YCbCr, false, false, 3, 2, 2},
                              {JCS_RGB, JCS_YCbCr, false, true, 3, 2, 1},
                              {JCS_RGB, JCS_YCbCr, false, false, 3, 1, 2},
                              {JCS_GRAYSCALE, JCS_GRAYSCALE, false, true, 1}}) {
        SCOPED_TRACE(std::to_string(c.across) + std::to_string(c.down) + " " + std::to_string(c.stored) +
                     (c.adobe ? " Adobe" : "") + (c.progressive ? " progressive" : ""));
        jpeg_compress_struct info{};
        jpeg_error_mgr errors;
        info.err = jpeg_std_error(&errors);
        jpeg_create_compress(&info);
        std::FILE *file = std::fopen(path("a.jpg").c_str(), "wb");
        jpeg_stdio_dest(&info, file);
        info.image_width = 41; // blocks at the edges that are not full
        info.image_height = 27;
        info.in_color_space = c.space;
        info.input_components = c.space == JCS_CMYK ? 4 : c.space == JCS_RGB ? 3 : 1;
        jpeg_set_defaults(&info);
        jpeg_set_colorspace(&info, c.stored);
        jpeg_set_quality(&info, 100, TRUE);
        info.write_Adobe_marker = c.adobe;
        info.comp_info[0].h_samp_factor = c.across;
        info.comp_info[0].v_samp_factor = c.down;
        for (int k = 1; k < info.num_components; ++k)
            info.comp_info[k].h_samp_factor = info.comp_info[k].v_samp_factor = 1;
        if (c.progressive)
            jpeg_simple_progression(&info);
        jpeg_start_compress(&info, TRUE);
        const std::uint8_t values[] = {200, 100, 50, 220};
        for (int y = 0; y < 27; ++y) {
            FileBytes row;
            for (int x = 0; x < 41; ++x)
                for (int k = 0; k < info.input_components; ++k)
                    row.push_back(static_cast<std::uint8_t>(values[k] + (x - 20) - (y - 12)));
            JSAMPROW pointer = row.data();
            jpeg_write_scanlines(&info, &pointer, 1);
        }
        jpeg_finish_compress(&info);
        jpeg_destroy_compress(&info);
        std::fclose(file);

        Picture read;
        ASSERT_EQ(load(path("a.jpg"), read), GFL_NO_ERROR);
        ASSERT_EQ(read->componentsPerPixel, c.components);
        for (int k = 0; k < c.components; ++k) {
            const double ink = values[k] / 255.0;
            const double key = values[3] / 255.0;
            const double want = c.space != JCS_CMYK ? ink : c.adobe ? ink * key : (1 - ink) * (1 - key);
            EXPECT_NEAR(fractionAt(*read, 20, 12, k), want, 4 / 255.0) << k;
        }
        expectTransposes(path("a.jpg"), *read);
    }
    FileBytes whole = photograph();
    const FileBytes remark{0xFF, 0xFE, 0, 5, 'F', 'o', 'g'};
    whole.insert(whole.begin() + 2, remark.begin(), remark.end());
    const auto turned = [&](const std::string &name, const FileBytes &bytes) {
        writeFile(path(name), bytes);
        return gflTransposeJpegUTF8(path(name).c_str(), path("b.jpg").c_str());
    };
    EXPECT_EQ(turned("cut.jpg", FileBytes(whole.begin(), whole.end() - 100)), GFL_ERROR_FILE_READ);
    EXPECT_EQ(turned("a.png", {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}), GFL_ERROR_UNKNOWN_FORMAT);
    EXPECT_FALSE(std::filesystem::exists(path("b.jpg")));
    ASSERT_EQ(turned("a.jpg", whole), GFL_NO_ERROR);
    const FileBytes written = readFile(path("b.jpg"));
    for (const FileBytes &piece : {remark, exifBlock(/*bigEndian=*/true), iptcBlock(), profileBlock()})
        EXPECT_NE(std::search(written.begin(), written.end(), piece.begin(), piece.end()), written.end()) << piece.size();
}

void append(FileBytes &bytes, const std::string &text)
{
    bytes.insert(bytes.end(), text.begin(), text.end());
}

TEST_F(GflTest, RadianceFilesAsOthersWriteThem)
{
    FileBytes bytes;
    append(bytes, "#?RGBE\n# a comment\nEXPOSURE=2\nFORMAT=32-bit_rle_rgbe\n\n+Y 2 -X 9\n");
    // A pixel, then the old runs: 3 more of it, then (in the next digit) 256 times 0, then 5 others.
    const std::uint8_t grey[] = {128, 128, 128, 128};
    const std::uint8_t white[] = {128, 128, 128, 129};
    for (int row = 0; row < 2; ++row) {
        bytes.insert(bytes.end(), row ? white : grey, (row ? white : grey) + 4);
        bytes.insert(bytes.end(), {1, 1, 1, 3});
        for (int i = 0; i < 5; ++i)
            bytes.insert(bytes.end(), {64, 0, 0, 129});
    }
    writeFile(path("a.hdr"), bytes);
    Picture read;
    ASSERT_EQ(load(path("a.hdr"), read), GFL_NO_ERROR);
    EXPECT_EQ(fractionAt(*read, 8, 1, 0), 0.5); // +Y: the first row is the lowest; -X: from the right
    EXPECT_EQ(fractionAt(*read, 5, 0, 1), 1.0);
    EXPECT_EQ(fractionAt(*read, 4, 0, 0), 0.5);
    EXPECT_EQ(fractionAt(*read, 4, 0, 1), 0.0);
    writeFile(path("b.hdr"), FileBytes(bytes.begin(), bytes.end() - 1));
    EXPECT_EQ(load(path("b.hdr"), read), GFL_ERROR_FILE_READ);
}

TEST_F(GflTest, PhotoshopFilesAsOthersWriteThem)
{
    struct Case
    {
        int mode;
        int depth;
        FileBytes palette;
        FileBytes layers;
        FileBytes pixels; // 2 x 1, plane after plane
        int channels;
        int components;
        std::vector<double> want;
    };
    FileBytes palette(768, 0);
    palette[5] = 255;       // red of entry 5
    palette[512 + 6] = 255; // blue of entry 6
    const FileBytes transparent{0, 0, 0, 2, 0xFF, 0xFF};
    const FileBytes opaque{0, 0, 0, 2, 0x00, 0x01};
    for (const Case &c : {Case{0, 1, {}, {}, {0x40}, 1, 1, {1, 0}},
                          {2, 8, palette, {}, {5, 6}, 1, 3, {1, 0, 0, 0, 0, 1}},
                          {4, 8, {}, {}, {255, 0, 255, 255, 255, 255, 255, 51}, 4, 3, {1, 1, 1, 0, 0.2, 0.2}},
                          {1, 8, {}, transparent, {0, 255, 51, 255}, 2, 4, {0, 0, 0, 0.2, 1, 1, 1, 1}},
                          {3, 8, {}, transparent, {0, 255, 0, 0, 255, 0, 51, 0}, 4, 4, {0, 0, 1, 0.2, 1, 0, 0, 0}},
                          {3, 8, {}, opaque, {0, 255, 0, 0, 255, 0, 51, 0}, 4, 3, {0, 0, 1, 1, 0, 0}}}) {
        FileBytes bytes{'8', 'B', 'P', 'S', 0, 1, 0, 0, 0, 0, 0, 0, 0};
        const auto put32 = [&](std::size_t value) {
            for (int shift = 24; shift >= 0; shift -= 8)
                bytes.push_back(static_cast<std::uint8_t>(value >> shift));
        };
        bytes.push_back(static_cast<std::uint8_t>(c.channels));
        put32(1);
        put32(2);
        bytes.insert(bytes.end(), {0, static_cast<std::uint8_t>(c.depth), 0, static_cast<std::uint8_t>(c.mode)});
        put32(c.palette.size());
        bytes.insert(bytes.end(), c.palette.begin(), c.palette.end());
        put32(0);
        put32(c.layers.size());
        bytes.insert(bytes.end(), c.layers.begin(), c.layers.end());
        bytes.insert(bytes.end(), {0, 0});
        bytes.insert(bytes.end(), c.pixels.begin(), c.pixels.end());
        writeFile(path("a.psd"), bytes);
        Picture read;
        ASSERT_EQ(load(path("a.psd"), read), GFL_NO_ERROR) << c.mode;
        ASSERT_EQ(read->componentsPerPixel, c.components) << c.mode;
        for (int x = 0; x < 2; ++x)
            for (int k = 0; k < c.components; ++k)
                EXPECT_NEAR(fractionAt(*read, x, 0, k), c.want[std::size_t(x * c.components + k)], 1e-9) << c.mode << " " << k;
    }
}

} // namespace
