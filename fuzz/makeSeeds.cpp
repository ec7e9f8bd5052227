#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// After <cstdio>, which jpeglib.h takes for granted.
#include <OpenEXR/ImfRgbaFile.h>
#include <OpenEXR/ImfTiledRgbaFile.h>
#include <jpeglib.h>
#include <png.h>
#include <tiffio.h>

#include "gflBitmapParts.h"
#include "gflMetadata.h"
#include "writePicture.h"

// Small files for the fuzzers to start from: every format in every form that this program writes, with metadata, and forms that
// only other programs write. usage: make_seeds FOLDER     makes one folder per target in it
namespace {

using gfl::Bytes;

constexpr int kWidth = 5;
constexpr int kHeight = 3;

struct FreeBitmap
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
using Picture = std::unique_ptr<GflBitmap, FreeBitmap>;

void writeFile(const std::string &name, const Bytes &bytes)
{
    std::ofstream(name, std::ios::binary).write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));
}
Bytes readFile(const std::string &name)
{
    std::ifstream file(name, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(file), {});
}
Bytes text(const std::string &words)
{
    return Bytes(words.begin(), words.end());
}

Picture picture(int components, int bits)
{
    Picture made(static_cast<GflBitmap *>(std::calloc(1, sizeof(GflBitmap))));
    made->type = components == 1 ? 0x0002 : components == 3 ? 0x0010 : 0x0020;
    made->width = kWidth;
    made->height = kHeight;
    made->bitsPerComponent = std::uint16_t(bits);
    made->componentsPerPixel = std::uint16_t(components);
    made->bytesPerPixel = std::uint16_t(components * bits / 8);
    made->bytesPerLine = unsigned(kWidth) * made->bytesPerPixel;
    made->lineAlignment = made->bytesPerLine % 4 == 0 ? 4 : 2;
    made->transparentIndex = -1;
    made->xDpi = made->yDpi = 300;
    made->data = std::malloc(std::size_t(made->bytesPerLine) * kHeight);
    const std::size_t samples = std::size_t(kWidth) * kHeight * unsigned(components);
    for (std::size_t i = 0; i < samples; ++i) {
        const float value = float(i * 37 % 100) / 99.0f;
        const auto wide = std::uint16_t(value * 65535.0f);
        auto *const at = static_cast<std::uint8_t *>(made->data) + i * unsigned(bits / 8);
        if (bits == 8)
            *at = std::uint8_t(wide >> 8);
        else
            std::memcpy(at, bits == 16 ? static_cast<const void *>(&wide) : &value, std::size_t(bits / 8));
    }
    return made;
}

void attachAll(GflBitmap &bitmap, int orientation)
{
    gfl::ExposureFacts facts;
    facts.exposureSeconds = 0.004;
    facts.aperture = 5.6;
    facts.isoSpeed = 200;
    facts.captureDate = "2020:02:29 12:00:00";
    facts.owner = "Ann";
    facts.make = "Test";
    const Bytes plain = gfl::exifFromTexts({{0x010F, "Test"}, {0x0131, "seeds"}}, orientation);
    gfl::Metadata &metadata = gfl::attachMetadata(bitmap);
    metadata.exif.block = orientation % 2 ? plain : gfl::exifFromFacts(facts);
    metadata.iptc.block = {0x1C, 2, 80, 0, 3, 'A', 'n', 'n', 0x1C, 2, 25, 0, 4, 'h', 'a', 'z', 'e'};
    metadata.icc.assign(132, 0);
    metadata.icc[3] = 132; // the size of the profile
    std::memcpy(&metadata.icc[8], "\2\x10\0\0mntrRGB XYZ ", 16);
    std::memcpy(&metadata.icc[36], "acsp", 4);
    if (bitmap.componentsPerPixel == 1)
        std::memcpy(&metadata.icc[16], "GRAY", 4);
}

/// Everything that the codec layer writes.
void writeOwn(const std::string &folder)
{
    constexpr struct
    {
        const char *name;
        int compressions[9];
        int count;
    } kFormats[] = {{"jpeg", {-1}, 1},
                    {"png", {0, 9}, 2},
                    {"tiff", {0, 2, 4}, 3},
                    {"hdri", {0, -1}, 2},
                    {"exr", {0, 1, 2, 3, 4, 5, 6, 7}, 8},
                    {"psd", {0, -1}, 2}};
    int orientation = 0;
    for (const auto &format : kFormats)
        for (int i = 0; i < format.count; ++i)
            for (const int components : {1, 3, 4})
                for (const int bits : {8, 16, 32}) {
                    const Picture made = picture(components, bits);
                    orientation = orientation % 8 + 1;
                    if ((components + i) % 3 != 0)
                        attachAll(*made, orientation);
                    const GflSaveParams params{GFL_SAVE_ICC_PROFILE, gflGetFormatIndexByName(format.name),
                                               std::int16_t(format.compressions[i]), GFL_DEFAULT};
                    const std::string name = folder + "/" + format.name + std::to_string(i) + "_" + std::to_string(components) +
                                             "_" + std::to_string(bits);
                    if (gflSaveBitmapUTF8(name.c_str(), made.get(), &params) != GFL_NO_ERROR)
                        throw std::runtime_error("can't write " + name);
                }
}

/// TIFF files with other depths, colour spaces, byte orders, tiles and compressions.
void writeTiffs(const std::string &folder)
{
    TIFFSetErrorHandler(nullptr);
    TIFFSetWarningHandler(nullptr);
    struct Form
    {
        int bits, samples, photometric, planar, compression, format;
        bool tiled;
        const char *mode;
    };
    constexpr Form kForms[] = {{1, 1, PHOTOMETRIC_MINISWHITE, 1, COMPRESSION_CCITTFAX4, 1, false, "wl"},
                               {1, 1, PHOTOMETRIC_MINISBLACK, 1, COMPRESSION_CCITTRLE, 1, false, "wb"},
                               {4, 1, PHOTOMETRIC_PALETTE, 1, COMPRESSION_PACKBITS, 1, true, "wl"},
                               {8, 1, PHOTOMETRIC_PALETTE, 1, COMPRESSION_LZW, 1, false, "wl"},
                               {12, 3, PHOTOMETRIC_RGB, 1, COMPRESSION_NONE, 1, false, "wb"},
                               {16, 4, PHOTOMETRIC_RGB, 1, COMPRESSION_ADOBE_DEFLATE, 1, true, "wb8"},
                               {8, 3, PHOTOMETRIC_RGB, 2, COMPRESSION_LZW, 1, false, "wl"},
                               {16, 4, PHOTOMETRIC_SEPARATED, 2, COMPRESSION_NONE, 1, true, "wl"},
                               {8, 4, PHOTOMETRIC_SEPARATED, 1, COMPRESSION_NONE, 1, false, "wl"},
                               {32, 3, PHOTOMETRIC_RGB, 1, COMPRESSION_ADOBE_DEFLATE, SAMPLEFORMAT_IEEEFP, false, "wl"},
                               {64, 1, PHOTOMETRIC_MINISBLACK, 1, COMPRESSION_NONE, SAMPLEFORMAT_IEEEFP, false, "wb"},
                               {32, 2, PHOTOMETRIC_MINISBLACK, 1, COMPRESSION_NONE, 1, false, "wl"},
                               {8, 3, PHOTOMETRIC_CIELAB, 1, COMPRESSION_NONE, 1, false, "wl"},
                               {8, 3, PHOTOMETRIC_YCBCR, 1, COMPRESSION_JPEG, 1, false, "wl"},
                               {8, 3, PHOTOMETRIC_YCBCR, 1, COMPRESSION_NONE, 1, false, "wl"}};
    int number = 0;
    for (const Form &form : kForms) {
        TIFF *const tiff = TIFFOpen((folder + "/foreign" + std::to_string(number++) + ".tif").c_str(), form.mode);
        if (!tiff)
            continue;
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, kWidth);
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, kHeight);
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, form.bits);
        TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, form.samples);
        TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, form.format);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, form.photometric);
        TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, form.planar);
        TIFFSetField(tiff, TIFFTAG_COMPRESSION, form.compression);
        if (form.compression == COMPRESSION_ADOBE_DEFLATE)
            TIFFSetField(tiff, TIFFTAG_PREDICTOR, form.format == SAMPLEFORMAT_IEEEFP ? 3 : 2);
        if (form.photometric == PHOTOMETRIC_YCBCR)
            TIFFSetField(tiff, TIFFTAG_YCBCRSUBSAMPLING, 1, 1);
        std::vector<std::uint16_t> map(256, 0x4321);
        if (form.photometric == PHOTOMETRIC_PALETTE)
            TIFFSetField(tiff, TIFFTAG_COLORMAP, map.data(), map.data(), map.data());
        if (form.tiled) {
            TIFFSetField(tiff, TIFFTAG_TILEWIDTH, 16);
            TIFFSetField(tiff, TIFFTAG_TILELENGTH, 16);
        } else {
            TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, 2);
        }
        Bytes block(8192);
        for (std::size_t i = 0; i < block.size(); ++i)
            block[i] = std::uint8_t(i * 29 >> 2);
        for (std::uint32_t i = 0; form.tiled && i < TIFFNumberOfTiles(tiff); ++i)
            TIFFWriteEncodedTile(tiff, i, block.data(), TIFFTileSize(tiff));
        for (std::uint32_t i = 0; !form.tiled && i < TIFFNumberOfStrips(tiff); ++i)
            TIFFWriteEncodedStrip(tiff, i, block.data(), i % 2 ? TIFFScanlineSize(tiff) : 2 * TIFFScanlineSize(tiff));
        TIFFClose(tiff);
    }
}

/// JPEG files in other colour spaces, progressive, arithmetic, with restarts; the last six are large enough for several threads.
void writeJpegs(const std::string &folder)
{
    for (int form = 0; form < 18; ++form) {
        const bool large = form >= 12;
        const int components = form % 3 == 0 ? 1 : form % 3 == 1 ? 3 : 4;
        jpeg_compress_struct jpeg;
        jpeg_error_mgr errors;
        jpeg.err = jpeg_std_error(&errors);
        jpeg_create_compress(&jpeg);
        FILE *const file = std::fopen((folder + "/foreign" + std::to_string(form) + ".jpg").c_str(), "wb");
        jpeg_stdio_dest(&jpeg, file);
        jpeg.image_width = large ? 256 : 21;
        jpeg.image_height = large ? 256 : 17;
        jpeg.input_components = components;
        jpeg.in_color_space = components == 1 ? JCS_GRAYSCALE : components == 3 ? JCS_RGB : JCS_CMYK;
        jpeg_set_defaults(&jpeg);
        if (components == 4 && form % 2)
            jpeg_set_colorspace(&jpeg, JCS_YCCK);
        if (form / 3 % 2 && !large)
            jpeg_simple_progression(&jpeg);
        jpeg.arith_code = form >= 9 && !large;
        jpeg.restart_interval = form >= 6 && !large ? 2 : 0;
        jpeg.restart_in_rows = form >= 12 && form < 15 ? 1 : 0;
        jpeg_start_compress(&jpeg, TRUE);
        Bytes row(jpeg.image_width * 4);
        while (jpeg.next_scanline < jpeg.image_height) {
            for (std::size_t i = 0; i < row.size(); ++i)
                row[i] = std::uint8_t(large ? jpeg.next_scanline / 8 : i * 3 + jpeg.next_scanline * 5);
            JSAMPROW rows[] = {row.data()};
            jpeg_write_scanlines(&jpeg, rows, 1);
        }
        jpeg_finish_compress(&jpeg);
        jpeg_destroy_compress(&jpeg);
        std::fclose(file);
    }
}

/// PNG files with palettes, few bits, transparent colours, gamma, and interlaced.
void writePngs(const std::string &folder)
{
    constexpr struct
    {
        int type, bits;
    } kForms[] = {{PNG_COLOR_TYPE_GRAY, 1},       {PNG_COLOR_TYPE_GRAY, 4},       {PNG_COLOR_TYPE_GRAY, 16},
                  {PNG_COLOR_TYPE_PALETTE, 2},    {PNG_COLOR_TYPE_PALETTE, 8},    {PNG_COLOR_TYPE_RGB, 8},
                  {PNG_COLOR_TYPE_RGB, 16},       {PNG_COLOR_TYPE_GRAY_ALPHA, 8}, {PNG_COLOR_TYPE_RGB_ALPHA, 16},
                  {PNG_COLOR_TYPE_GRAY_ALPHA, 16}};
    int number = 0;
    for (const auto &form : kForms)
        for (const int interlace : {PNG_INTERLACE_NONE, PNG_INTERLACE_ADAM7}) {
            png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
            png_infop info = png_create_info_struct(png);
            FILE *const file = std::fopen((folder + "/foreign" + std::to_string(number++) + ".png").c_str(), "wb");
            png_init_io(png, file);
            png_set_IHDR(png, info, kWidth, kHeight, form.bits, form.type, interlace, PNG_COMPRESSION_TYPE_BASE,
                         PNG_FILTER_TYPE_BASE);
            const png_color colours[4] = {{1, 2, 3}, {200, 100, 50}, {255, 255, 255}, {9, 9, 9}};
            const png_byte alphas[2] = {0, 128};
            const png_color_16 colour{1, 7, 7, 7, 1};
            if (form.type == PNG_COLOR_TYPE_PALETTE)
                png_set_PLTE(png, info, colours, 4);
            if (form.type != PNG_COLOR_TYPE_GRAY_ALPHA && form.type != PNG_COLOR_TYPE_RGB_ALPHA && interlace)
                png_set_tRNS(png, info, form.type == PNG_COLOR_TYPE_PALETTE ? alphas : nullptr, 2, &colour);
            png_set_gAMA_fixed(png, info, 45455);
            png_set_pHYs(png, info, 3000, 3000, PNG_RESOLUTION_METER);
            png_write_info(png, info);
            Bytes row(kWidth * 8, 0x1B);
            if (form.type == PNG_COLOR_TYPE_PALETTE && form.bits == 8)
                std::fill(row.begin(), row.end(), std::uint8_t(3));
            for (int pass = png_set_interlace_handling(png); pass > 0; --pass)
                for (int y = 0; y < kHeight; ++y)
                    png_write_row(png, row.data());
            png_write_end(png, nullptr);
            png_destroy_write_struct(&png, &info);
            std::fclose(file);
        }
}

/// EXR files in luminance and chroma, and in tiles.
void writeExrs(const std::string &folder)
{
    const std::vector<Imf::Rgba> pixels(6 * 4, Imf::Rgba(0.5f, 0.25f, 2.0f, 1.0f));
    for (const auto channels : {Imf::WRITE_Y, Imf::WRITE_YC, Imf::WRITE_YCA}) {
        Imf::RgbaOutputFile file((folder + "/chroma" + std::to_string(channels) + ".exr").c_str(), 6, 4, channels);
        file.setFrameBuffer(pixels.data(), 1, 6);
        file.writePixels(4);
    }
    Imf::TiledRgbaOutputFile file((folder + "/tiled.exr").c_str(), 6, 4, 4, 4, Imf::MIPMAP_LEVELS);
    for (int level = 0; level < file.numLevels(); ++level) {
        file.setFrameBuffer(pixels.data(), 1, 6);
        file.writeTiles(0, file.numXTiles(level) - 1, 0, file.numYTiles(level) - 1, level);
    }
}

Bytes bigEndian(std::initializer_list<std::pair<unsigned, int>> numbers)
{
    Bytes bytes;
    for (const auto &[value, count] : numbers)
        for (int i = count - 1; i >= 0; --i)
            bytes.push_back(std::uint8_t(value >> 8 * i));
    return bytes;
}

/// Files that no available library writes: PSD in its other modes, HDR in its other orders, XMP in JPEG.
void writeByHand(const std::string &folder)
{
    for (const unsigned mode : {0u, 1u, 2u, 3u, 4u, 8u, 9u})
        for (const unsigned version : {1u, 2u}) {
            const unsigned channels = mode == 4                ? 5
                                      : mode == 3 || mode == 9 ? 4
                                                               : 1,
                           bits = mode == 0      ? 1
                                  : version == 2 ? 16
                                                 : 8;
            Bytes bytes = text("8BPS");
            const Bytes head =
                bigEndian({{version, 2}, {0, 4}, {0, 2}, {channels, 2}, {kHeight, 4}, {8, 4}, {bits, 2}, {mode, 2}});
            bytes.insert(bytes.end(), head.begin(), head.end());
            const Bytes palette(mode == 2 ? 768 : 0, 0x55);
            const Bytes size = bigEndian({{unsigned(palette.size()), 4}});
            bytes.insert(bytes.end(), size.begin(), size.end());
            bytes.insert(bytes.end(), palette.begin(), palette.end());
            bytes.resize(bytes.size() + 4 + (version == 2 ? 8 : 4) + 2, 0); // no resources, no layers, plain rows
            bytes.resize(bytes.size() + channels * kHeight * bits, 0x33);
            writeFile(folder + "/mode" + std::to_string(mode) + std::to_string(version) + ".psd", bytes);
        }
    for (const std::string order : {"-Y 2 +X 3", "+Y 2 -X 3", "+X 3 -Y 2", "-X 3 +Y 2"}) {
        Bytes bytes = text("#?RADIANCE\nEXPOSURE=2\nFORMAT=32-bit_rle_" + std::string(order[1] == 'Y' ? "rgbe" : "xyze") +
                           "\nPRIMARIES=0.64 0.33 0.3 0.6 0.15 0.06 0.31 0.33\n\n" + order + "\n");
        bytes.resize(bytes.size() + 24, 0x80);
        writeFile(folder + "/order" + order.substr(0, 2) + order.substr(5, 1) + ".hdr", bytes);
    }
    Bytes jpeg = readFile(folder + "/jpeg0_3_8");
    Bytes packet = text(std::string("http://ns.adobe.com/xap/1.0/") + '\0' +
                        "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
                        "<rdf:Description xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:title><rdf:Alt><rdf:li xml:lang="
                        "'x-default'>Haze</rdf:li></rdf:Alt></dc:title></rdf:Description></rdf:RDF></x:xmpmeta>");
    const Bytes head = bigEndian({{0xFFE1, 2}, {unsigned(packet.size()) + 2, 2}});
    packet.insert(packet.begin(), head.begin(), head.end());
    jpeg.insert(jpeg.begin() + 2, packet.begin(), packet.end());
    writeFile(folder + "/xmp.jpg", jpeg);
}

void put(Bytes &bytes, std::size_t at, const Bytes &part)
{
    bytes.resize(std::max(bytes.size(), at + part.size()));
    std::copy(part.begin(), part.end(), bytes.begin() + std::ptrdiff_t(at));
}

/// Heads of files that some library would parse: videos, pictures that are not read here, and camera raw of every kind.
void writeHeads(const std::string &folder)
{
    const struct
    {
        const char *name;
        std::vector<std::pair<std::size_t, Bytes>> parts;
    } heads[] = {
        {"avi", {{0, text("RIFF\xF0\1__AVI LIST\xC0___hdrlavih8___")}}},
        {"webp", {{0, text("RIFF\xF0___WEBPVP8X\x0A___")}}},
        {"mkv", {{0, text("\x1A\x45\xDF\xA3\x9F\x42\x86\x81\1\x42\x82\x88matroska\x18\x53\x80\x67")}}},
        {"wmv", {{0, text("\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9")}, {16, text("\x10")}, {24, bigEndian({{1, 4}})}}},
        {"ts", {{0, text("G")}, {188, text("G")}, {376, text("G")}, {564, {}}}},
        {"mpg", {{0, bigEndian({{0x1BA, 4}, {0x44, 1}})}}},
        {"flv", {{0, text("FLV\1\5")}}},
        {"exv", {{0, text("\xFF\1Exiv2\xFF\xE1")}}},
        {"gif", {{0, text("GIF89a\5")}}},
        {"bmp", {{0, text("BM")}, {14, bigEndian({{0x28000000, 4}, {0x05000000, 4}, {0x03000000, 4}})}}},
        {"tga", {{2, bigEndian({{2, 1}})}, {12, bigEndian({{0x05000300, 4}, {24, 1}})}}},
        {"jp2", {{0, bigEndian({{12, 4}})}, {4, text("jP  \r\n\x87\n")}, {12, bigEndian({{20, 4}})}, {16, text("ftypjp2 ")}}},
        {"pgf", {{0, text("PGF6")}, {8, bigEndian({{0x05000000, 4}, {0x03000000, 4}})}}},
        {"eps", {{0, text("%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 5 3\n")}}},
        {"xmp", {{0, text("<?xpacket begin=\"\"?><x:xmpmeta xmlns:x=\"adobe:ns:meta/\"/>")}}},
    };
    for (const auto &head : heads) {
        Bytes bytes(256);
        for (const auto &[at, part] : head.parts)
            put(bytes, at, part);
        writeFile(folder + "/" + head.name, bytes);
    }
    for (const char *brand : {"isom", "qt  ", "3gp4", "heic", "avif", "crx "}) {
        Bytes bytes(256);
        put(bytes, 0, bigEndian({{24, 4}}));
        put(bytes, 4, text(std::string("ftyp") + brand));
        put(bytes, 24, bigEndian({{200, 4}}));
        put(bytes, 28, text(std::string(brand[0] == 'h' || brand[0] == 'a' ? "meta" : "moov")));
        put(bytes, 32, bigEndian({{108, 4}}));
        put(bytes, 36, text("mvhd"));
        writeFile(folder + "/iso_" + std::string(brand, 3), bytes);
    }
    for (const char *make :
         {"Canon", "NIKON CORPORATION", "SONY", "FUJIFILM", "OLYMPUS IMAGING CORP.", "Panasonic", "PENTAX", "SAMSUNG", "Kodak",
          "Leaf", "Phase One A/S", "Hasselblad", "Minolta Co., Ltd.", "LEICA CAMERA AG", "SEIKO EPSON CORP."}) {
        const Bytes tiff = gfl::exifFromTexts({{0x010F, make}, {0x0110, std::string(make) + " 1D"}}, 6);
        writeFile(folder + "/raw_" + std::string(make, 4), tiff);
        struct Shape
        {
            const char *name;
            Bytes magic;
        };
        for (const Shape &shape : {Shape{"orf", text("IIRO")}, Shape{"rw2", bigEndian({{0x49495500, 4}})}}) {
            Bytes bytes = tiff;
            put(bytes, 0, shape.magic);
            writeFile(folder + "/" + shape.name + std::string(make, 2), bytes);
        }
        Bytes bytes = bigEndian({{0x004D524D, 4}, {unsigned(tiff.size()) + 40, 4}, {0x00505244, 4}, {24, 4}}); // MRM, PRD
        put(bytes, 16, text("21860002"));
        put(bytes, 24,
            bigEndian({{3, 2}, {5, 2}, {3, 2}, {5, 2}, {12, 1}, {12, 1}, {0x5900, 2}, {0, 4}, {0x00545457, 4}})); // TTW
        put(bytes, bytes.size(), bigEndian({{unsigned(tiff.size()), 4}}));
        put(bytes, bytes.size(), tiff);
        writeFile(folder + "/mrw" + std::string(make, 2), bytes);
    }
    Bytes canon = bigEndian({{0x49492A00, 4}, {0x10000000, 4}, {0x43520200, 4}, {0, 4}});
    Bytes tiff = gfl::exifFromTexts({{0x010F, "Canon"}, {0x0110, "Canon EOS 5D"}}, 1);
    put(canon, 16, Bytes(tiff.begin() + 8, tiff.end()));
    writeFile(folder + "/cr2", canon);
    Bytes crw = bigEndian({{0x49491A00, 4}, {0, 2}});
    put(crw, 6, text("HEAPCCDR"));
    put(crw, 26, bigEndian({{0x01000A08, 4}, {0x06000000, 4}, {0, 4}, {0, 4}, {0, 4}}));
    writeFile(folder + "/crw", crw);
    Bytes raf = text("FUJIFILMCCD-RAW 0201FF389501FinePix S5Pro");
    const Bytes jpeg = readFile(folder + "/jpeg0_3_8");
    put(raf, 84, bigEndian({{160, 4}, {unsigned(jpeg.size()), 4}, {160, 4}, {64, 4}, {160, 4}, {64, 4}}));
    put(raf, 160, jpeg);
    writeFile(folder + "/raf", raf);
}

/// The target that a file belongs to, by its first bytes, or by its name if a raw file is a TIFF; empty if it is for none of the
/// codecs.
std::string formatOf(const std::filesystem::path &file)
{
    using namespace std::string_view_literals;
    constexpr struct
    {
        std::string_view start;
        const char *format;
    } kStarts[] = {{"\xFF\xD8"sv, "jpeg"}, {"\x89PNG"sv, "png"},  {"#?"sv, "hdr"},   {"\x76\x2F\x31\x01"sv, "exr"},
                   {"8BPS"sv, "psd"},      {"II*"sv, "tiff"},     {"II+"sv, "tiff"}, {"MM"sv, "tiff"},
                   {"II"sv, "raw"},        {"FUJIFILM"sv, "raw"}, {"\0MRM"sv, "raw"}};
    if (file.filename().string().rfind("raw_", 0) == 0)
        return "raw";
    const Bytes bytes = readFile(file);
    ByteReader reader(bytes);
    for (const auto &row : kStarts)
        if (reader.startsWith(row.start))
            return row.format;
    return {};
}

/// Pictures in the formats that only the program reads.
void writeFurther(const std::string &folder)
{
    for (const std::string &suffix : writableSuffixes())
        for (int number = 0; number < 6; ++number) {
            PictureForm form;
            form.width = 16 + number;
            form.height = 16;
            form.components = number == 1 && suffix != "webp" ? 1 : number == 2 ? 4 : 3;
            form.bits = number == 3 && suffix != "webp" ? 10 : 8;
            form.orientation = suffix == "webp" ? 1 : 1 + number;
            form.exif = exifBlock(1 + number, "seed");
            form.xmp = number % 2 ? "<x:xmpmeta xmlns:x='adobe:ns:meta/'/>" : "";
            form.secondPicture = number == 4;
            form.animated = number == 5 && (suffix == "webp" || suffix == "jxl");
            form.primaries = number % 2 ? 9 : 0;
            form.transfer = 16 + number % 3;
            const std::string target = suffix == "webp" || suffix == "jxl" ? suffix : "heif";
            writePicture(folder + "/" + target + "/" + std::to_string(number) + "." + suffix, form);
        }
}

void writeTexts(const std::string &folder)
{
    const std::string settings = folder + "/settings/", tables = folder + "/tables/";
    writeFile(settings + "batch",
              text("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<veilaway>\n <photo path=\"IMG_1.jpg\"><Veilaway "
                   "hazeRemove=\"40\"/></photo>\n <other/><!-- note -->\n <photo path=\"a/b &amp; c.tif\">\n"
                   "<Veilaway hazeRemove='100' more='&#228;'/>text</photo></veilaway>"));
    writeFile(settings + "entities", text("<!DOCTYPE veilaway [<!ENTITY a \"IMG\"><!ENTITY b \"&a;&a;\">]><veilaway><photo "
                                          "path='&b;.png'><Veilaway hazeRemove='0'/></photo><![CDATA[ ]]></veilaway>"));
    writeFile(settings + "element", text("<Veilaway hazeRemove=\"-2147483648\"/>"));
    writeFile(settings + "empty", text("<veilaway/>"));
    writeFile(tables + "cameras",
              text("NIKON CORPORATION;NIKON D3100\n# cameras\nNikon;D3100;1.53\n\nCanon ; EOS 5D ; 1.0 # full\n"
                   "Sony;;1\nSigma;SD;x\n"));
    writeFile(tables + "lenses",
              text("Nikon;18 55 3.5 5.6 7\n# lenses\n18 55 3.5 5.6 7;Nikon;AF-S 18-55;0\n15 15 1;Canon;EF 15;1\n"
                   "24 24 2;Canon;TS-E; 2 \n24 24;Canon;x;3\n"));
    for (unsigned work = 0; work < 16; ++work)
        for (unsigned form = 0; form < 9; ++form) {
            Bytes bytes(120);
            for (std::size_t i = 0; i < bytes.size(); ++i)
                bytes[i] = std::uint8_t((i * 73 + work * 31 + form * 11) * 2654435761u >> 13);
            bytes.back() = std::uint8_t(work); // FuzzedDataProvider takes numbers from the end
            bytes[bytes.size() - 2] = std::uint8_t(form / 3);
            bytes[bytes.size() - 3] = std::uint8_t(form % 3);
            writeFile(folder + "/engine/" + std::to_string(work) + "_" + std::to_string(form), bytes);
        }
}

} // namespace

int main(int argumentCount, char **arguments)
try {
    const std::string folder = argumentCount == 2 ? arguments[1] : throw std::runtime_error("usage: make_seeds FOLDER");
    for (const char *target :
         {"jpeg", "png", "tiff", "hdr", "exr", "psd", "raw", "heif", "webp", "jxl", "describing", "settings", "tables", "engine"})
        std::filesystem::create_directories(folder + "/" + target);
    const std::string pictures = folder + "/describing";
    writeOwn(pictures);
    writeTiffs(pictures);
    writeJpegs(pictures);
    writePngs(pictures);
    writeExrs(pictures);
    writeByHand(pictures);
    writeHeads(pictures);
    for (const auto &entry : std::filesystem::directory_iterator(pictures))
        if (const std::string format = formatOf(entry.path()); !format.empty())
            std::filesystem::copy_file(entry.path(), folder + "/" + format + "/" + entry.path().filename().string(),
                                       std::filesystem::copy_options::overwrite_existing);
    writeFurther(folder);
    writeTexts(folder);
} catch (const std::exception &failure) {
    std::fprintf(stderr, "make_seeds: %s\n", failure.what());
    return 1;
}
