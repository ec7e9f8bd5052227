#include <algorithm>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <map>
#include <numeric>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <exiv2/exiv2.hpp>
#include <jpeglib.h>
#include <tiffio.h>

#include "GflFixture.h"

namespace {

struct Held
{
    const char *format;
    int components[5]; // components that are read back, by those of the source
    int bits[3];       // bits that are read back, from 8, 16 and 32
    double tolerance[3];
};

// What each format makes of each form. A tolerance is half a step of the coarser depth, or the loss of the compression.
constexpr Held kHeld[] = {
    {"jpeg", {0, 1, 0, 3, 3}, {8, 8, 8}, {0.04, 0.04, 0.04}},
    {"png", {0, 1, 0, 3, 4}, {8, 16, 16}, {0, 0, 0.5 / 65535}},
    {"tiff", {0, 1, 0, 3, 4}, {8, 16, 32}, {0, 0, 0}},
    {"hdri", {0, 3, 0, 3, 3}, {32, 32, 32}, {0.5 / 255, 0.5 / 255, 0.5 / 255}},
    {"exr", {0, 1, 0, 3, 4}, {32, 32, 32}, {1e-7, 1e-7, 0}},
    {"psd", {0, 1, 0, 3, 4}, {8, 16, 32}, {0, 0, 0}},
};

TEST_F(GflTest, EveryFormatKeepsEveryFormAsFarAsItCan)
{
    constexpr int kSizes[][2] = {{1, 1}, {7, 5}, {33, 2}, {130, 9}};
    for (const Held &held : kHeld)
        for (const int components : {1, 3, 4})
            for (const int bits : {8, 16, 32})
                for (const auto &size : kSizes)
                    for (const int compression : {-1, 0, 2, 4}) {
                        SCOPED_TRACE(std::string(held.format) + " " + std::to_string(components) + "x" + std::to_string(bits) +
                                     " " + std::to_string(size[0]) + " wide, compression " + std::to_string(compression));
                        const Picture picture = makePicture(size[0], size[1], components, bits);
                        paint(*picture);
                        picture->xDpi = 300;
                        picture->yDpi = 150;
                        const FileBytes before(sampleAt(*picture, 0, 0, 0), sampleAt(*picture, 0, size[1] - 1, 0));
                        const std::string name = path("picture");
                        ASSERT_EQ(save(name, picture.get(), held.format, -1, compression), GFL_NO_ERROR);
                        EXPECT_EQ(before, FileBytes(sampleAt(*picture, 0, 0, 0), sampleAt(*picture, 0, size[1] - 1, 0)));

                        Picture read;
                        ASSERT_EQ(load(name, read), GFL_NO_ERROR);
                        const int depth = bits / 16;
                        ASSERT_EQ(read->width, size[0]);
                        ASSERT_EQ(read->height, size[1]);
                        ASSERT_EQ(read->componentsPerPixel, held.components[components]);
                        ASSERT_EQ(read->bitsPerComponent, held.bits[depth]);
                        EXPECT_EQ(read->bytesPerLine % 4, 0u);
                        if (std::string(held.format) != "hdri") {
                            EXPECT_EQ(read->xDpi, 300);
                            EXPECT_EQ(read->yDpi, 150);
                        }
                        double worst = 0;
                        for (int y = 0; y < size[1]; ++y)
                            for (int x = 0; x < size[0]; ++x)
                                for (int c = 0; c < read->componentsPerPixel; ++c)
                                    worst = std::max(worst, std::abs(fractionAt(*read, x, y, c) -
                                                                     fractionAt(*picture, x, y, components == 1 ? 0 : c)));
                        EXPECT_LE(worst, held.tolerance[depth] + (held.tolerance[depth] > 0 ? 1e-6 : 0));
                    }
}

TEST_F(GflTest, DepthsChangeAsInTheImagePrimitives)
{
    const Picture picture = makePicture(256, 256, 3, 16); // every value
    for (unsigned i = 0; i < 65536 * 3; ++i) {
        const auto value = std::uint16_t(i / 3);
        std::memcpy(sampleAt(*picture, int(value % 256), int(value / 256), int(i % 3)), &value, sizeof value);
    }
    Picture read;
    ASSERT_EQ(save(path("f"), picture.get(), "exr"), GFL_NO_ERROR);
    ASSERT_EQ(load(path("f"), read), GFL_NO_ERROR);
    int wrong = 0;
    for (int value = 0; value < 65536; ++value)
        wrong += fractionAt(*read, value % 256, value / 256, 1) != double(float(value) * (1.0f / 65535.0f));
    EXPECT_EQ(wrong, 0) << "a division differs in 512";
}

TEST_F(GflTest, FloatsBeyondTheScaleAreKeptOrClamped)
{
    const Picture picture = makePicture(9, 1, 3, 32);
    const double values[] = {-1.0, 1.5, 1000.0, std::nan(""), HUGE_VAL, 0.0, 1e-3, 1.0, 0.5};
    for (int x = 0; x < 9; ++x)
        for (int c = 0; c < 3; ++c)
            setFraction(*picture, x, 0, c, values[x]);
    Picture read;
    for (const char *format : {"tiff", "exr", "psd"}) {
        ASSERT_EQ(save(path("f"), picture.get(), format), GFL_NO_ERROR);
        ASSERT_EQ(load(path("f"), read), GFL_NO_ERROR);
        EXPECT_EQ(std::memcmp(read->data, picture->data, 9 * 12), 0) << format;
    }
    ASSERT_EQ(save(path("f"), picture.get(), "png"), GFL_NO_ERROR);
    ASSERT_EQ(load(path("f"), read), GFL_NO_ERROR);
    const double clamped[] = {0, 1, 1, 0, 1, 0, 66 / 65535.0, 1, 32768 / 65535.0};
    for (int x = 0; x < 9; ++x)
        EXPECT_EQ(fractionAt(*read, x, 0, 1), clamped[x]) << x;
    ASSERT_EQ(save(path("f"), picture.get(), "hdri"), GFL_NO_ERROR);
    ASSERT_EQ(load(path("f"), read), GFL_NO_ERROR);
    for (const int x : {0, 3, 5})
        EXPECT_EQ(fractionAt(*read, x, 0, 0), 0.0) << x;
    for (const int x : {2, 6, 7, 8})
        EXPECT_NEAR(fractionAt(*read, x, 0, 0) / values[x], 1.0, 0.5 / 128) << x;
    EXPECT_GT(fractionAt(*read, 4, 0, 0), 1e38);
}

TEST_F(GflTest, JpegIsWrittenWithTheTablesAndSubsamplingOfItsSourceAndNeverBelowQuality92)
{
    /// Sums of the tables for brightness and colour, and pixels per colour sample.
    struct Form
    {
        int brightness = 0, colour = 0, across = 0, down = 0;
    };
    const auto formOf = [](const std::string &name) {
        jpeg_decompress_struct info;
        jpeg_error_mgr errors;
        info.err = jpeg_std_error(&errors);
        jpeg_create_decompress(&info);
        const std::unique_ptr<FILE, int (*)(FILE *)> file(std::fopen(name.c_str(), "rb"), std::fclose);
        jpeg_stdio_src(&info, file.get());
        jpeg_read_header(&info, TRUE);
        const auto sum = [&](int component) {
            const UINT16 *steps = info.quant_tbl_ptrs[info.comp_info[component].quant_tbl_no]->quantval;
            return std::accumulate(steps, steps + 64, 0);
        };
        const int last = info.num_components - 1;
        const Form form{sum(0), sum(last), info.comp_info[0].h_samp_factor / info.comp_info[last].h_samp_factor,
                        info.comp_info[0].v_samp_factor / info.comp_info[last].v_samp_factor};
        jpeg_destroy_decompress(&info);
        return form;
    };
    const auto writeSource = [](const std::string &name, int components, int quality, int across, int down, J_COLOR_SPACE space,
                                bool progressive) {
        jpeg_compress_struct info;
        jpeg_error_mgr errors;
        info.err = jpeg_std_error(&errors);
        jpeg_create_compress(&info);
        const std::unique_ptr<FILE, int (*)(FILE *)> file(std::fopen(name.c_str(), "wb"), std::fclose);
        jpeg_stdio_dest(&info, file.get());
        info.image_width = info.image_height = 40;
        info.input_components = components;
        info.in_color_space = components == 1 ? JCS_GRAYSCALE : components == 3 ? JCS_RGB : JCS_CMYK;
        jpeg_set_defaults(&info);
        jpeg_set_colorspace(&info, space);
        jpeg_set_quality(&info, quality, TRUE);
        info.comp_info[0].h_samp_factor = across;
        info.comp_info[0].v_samp_factor = down;
        if (progressive)
            jpeg_simple_progression(&info);
        jpeg_start_compress(&info, TRUE);
        std::vector<JSAMPLE> row(160, 77);
        while (info.next_scanline < info.image_height) {
            JSAMPROW rows[] = {row.data()};
            jpeg_write_scanlines(&info, rows, 1);
        }
        jpeg_finish_compress(&info);
        jpeg_destroy_compress(&info);
    };
    const auto picture = [&](int components) { return makePicture(40, 40, components, 8); };
    ASSERT_EQ(save(path("usual.jpg"), picture(3).get(), "jpeg"), GFL_NO_ERROR);
    const Form usual = formOf(path("usual.jpg"));

    const struct
    {
        const char *name;
        int components, quality, across, down;
        J_COLOR_SPACE space;
        bool progressive;
        int results; ///< Components of the result.
        int finer;   ///< 1: tables as in the source; 0: as by default; -1: coarser than the default, so limited.
        int resultAcross, resultDown;
    } cases[] = {
        {"fine 4:2:0", 3, 97, 2, 2, JCS_YCbCr, false, 3, 1, 2, 2},
        {"progressive 4:2:2", 3, 95, 2, 1, JCS_YCbCr, true, 3, 1, 2, 1},
        {"4:4:0", 3, 100, 1, 2, JCS_YCbCr, false, 3, 1, 1, 2},
        {"4:1:1 with alpha in the result", 3, 95, 4, 1, JCS_YCbCr, false, 4, 1, 4, 1},
        {"coarse", 3, 40, 2, 2, JCS_YCbCr, false, 3, -1, 2, 2},
        {"broken scale", 3, 1, 2, 2, JCS_YCbCr, false, 3, -1, 2, 2},
        {"a factor of three, which the encoder lacks", 3, 97, 3, 1, JCS_YCbCr, false, 3, 1, 1, 1},
        {"grey", 1, 97, 1, 1, JCS_GRAYSCALE, false, 1, 1, 1, 1},
        {"RGB has other tables", 3, 97, 1, 1, JCS_RGB, false, 3, 0, 1, 1},
        {"CMYK has none for colour", 4, 97, 1, 1, JCS_CMYK, false, 3, 0, 1, 1},
        {"grey source of a colour result", 1, 97, 1, 1, JCS_GRAYSCALE, false, 3, 0, 1, 1},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        writeSource(path("s.jpg"), c.components, c.quality, c.across, c.down, c.space, c.progressive);
        const Form source = formOf(path("s.jpg"));
        Picture read;
        ASSERT_EQ(load(path("s.jpg"), read, GFL_LOAD_METADATA_ONLY), GFL_NO_ERROR);
        const Picture target = picture(c.results);
        gflBitmapCopyPacking(read.get(), target.get());
        ASSERT_EQ(save(path("r.jpg"), target.get(), "jpeg"), GFL_NO_ERROR);
        const Form result = formOf(path("r.jpg"));
        EXPECT_EQ(result.across, c.resultAcross);
        EXPECT_EQ(result.down, c.resultDown);
        const Form &expected = c.finer == 1 ? source : usual;
        // Rounding each step of a coarse table to a whole number moves the sum by less than half a step for each of the 64.
        EXPECT_NEAR(result.brightness, expected.brightness, c.finer < 0 ? 32 : 0);
        if (c.results > 1) {
            EXPECT_NEAR(result.colour, expected.colour, c.finer < 0 ? 32 : 0);
        }
        ASSERT_EQ(save(path("r.jpg"), target.get(), "jpeg", /*quality=*/60), GFL_NO_ERROR);
        EXPECT_GT(formOf(path("r.jpg")).brightness, usual.brightness * 3);
        EXPECT_EQ(formOf(path("r.jpg")).across, c.resultAcross);
    }
}

TEST_F(GflTest, TiffIsCompressedLikeItsSourceAndInAFormThatEveryProgramReads)
{
    const Picture picture = makePicture(32, 32, 3, 8);
    const auto compressionOf = [](const std::string &name) {
        TIFF *const tiff = TIFFOpen(name.c_str(), "r");
        std::uint16_t compression = 0;
        TIFFGetField(tiff, TIFFTAG_COMPRESSION, &compression);
        TIFFClose(tiff);
        return int(compression);
    };
    const std::pair<int, int> cases[] = {{COMPRESSION_NONE, COMPRESSION_NONE},
                                         {COMPRESSION_LZW, COMPRESSION_LZW},
                                         {COMPRESSION_ADOBE_DEFLATE, COMPRESSION_ADOBE_DEFLATE},
                                         {COMPRESSION_PACKBITS, COMPRESSION_ADOBE_DEFLATE}};
    for (const auto &[before, after] : cases) {
        TIFF *const tiff = TIFFOpen(path("s.tif").c_str(), "w");
        const std::pair<std::uint32_t, int> fields[] = {{TIFFTAG_IMAGEWIDTH, 4},    {TIFFTAG_IMAGELENGTH, 1},
                                                        {TIFFTAG_BITSPERSAMPLE, 8}, {TIFFTAG_SAMPLESPERPIXEL, 1},
                                                        {TIFFTAG_PHOTOMETRIC, 1},   {TIFFTAG_COMPRESSION, before}};
        for (const auto &[tag, value] : fields)
            TIFFSetField(tiff, tag, value);
        std::uint8_t row[] = {1, 2, 3, 4};
        TIFFWriteScanline(tiff, row, 0);
        TIFFClose(tiff);
        Picture read;
        ASSERT_EQ(load(path("s.tif"), read, GFL_LOAD_METADATA_ONLY), GFL_NO_ERROR);
        gflBitmapCopyPacking(read.get(), picture.get());
        ASSERT_EQ(save(path("r.tif"), picture.get(), "tiff"), GFL_NO_ERROR);
        EXPECT_EQ(compressionOf(path("r.tif")), after) << before;
        ASSERT_EQ(save(path("r.tif"), picture.get(), "tiff", -1, 0), GFL_NO_ERROR);
        EXPECT_EQ(compressionOf(path("r.tif")), COMPRESSION_NONE) << before;
    }
}

TEST_F(GflTest, JpegQualityAndDefaults)
{
    const Picture picture = makePicture(64, 64, 3, 8);
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            for (int c = 0; c < 3; ++c)
                setFraction(*picture, x, y, c, (x * 37 + y * 61 + c * 11) % 256 / 255.0);
    const auto bytes = [&](const char *format, int quality, int compression) {
        EXPECT_EQ(save(path("q"), picture.get(), format, quality, compression), GFL_NO_ERROR);
        return std::filesystem::file_size(path("q"));
    };
    EXPECT_EQ(bytes("jpeg", -1, -1), bytes("jpeg", 92, -1));
    EXPECT_LT(bytes("jpeg", 4, -1), bytes("jpeg", 92, -1));
    EXPECT_LT(bytes("jpeg", 92, -1), bytes("jpeg", 100, -1));
    EXPECT_EQ(bytes("jpeg", 100, -1), bytes("jpeg", 101, -1));
    EXPECT_EQ(bytes("png", -1, 9), bytes("png", -1, 12));
    EXPECT_GT(bytes("png", -1, 0), bytes("png", -1, -1));
    EXPECT_EQ(bytes("tiff", -1, -1), bytes("tiff", -1, 0));
    EXPECT_EQ(bytes("exr", -1, -1), bytes("exr", -1, 4));
    EXPECT_EQ(save(path("q"), picture.get(), "exr", -1, 8), GFL_ERROR_BAD_PARAMETERS);
    EXPECT_EQ(save(path("q"), picture.get(), "tiff", -1, 3), GFL_ERROR_BAD_PARAMETERS);
    gflEnableLZW(0);
    const auto without = bytes("tiff", -1, 2);
    gflEnableLZW(1);
    EXPECT_EQ(without, bytes("tiff", -1, 0));
    EXPECT_NE(without, bytes("tiff", -1, 2));
}

std::map<std::string, std::string> exifOf(const std::string &name)
{
    const auto image = Exiv2::ImageFactory::open(name);
    image->readMetadata();
    std::map<std::string, std::string> values;
    for (const Exiv2::Exifdatum &datum : image->exifData())
        values[datum.key()] = datum.toString();
    return values;
}

bool contains(const FileBytes &bytes, const FileBytes &part)
{
    return std::search(bytes.begin(), bytes.end(), part.begin(), part.end()) != bytes.end();
}

TEST_F(GflTest, MetadataIsCarriedBetweenAllFormats)
{
    writeFile(path("source.jpg"), photograph());
    const auto expected = exifOf(path("source.jpg"));
    ASSERT_GE(expected.size(), 8u);
    for (const int from : {0, 1, 2, 5})
        for (const int to : {0, 1, 2, 5}) {
            SCOPED_TRACE(std::string(kNames[from]) + " to " + kNames[to]);
            const std::string first = path(std::string("first.") + kSuffixes[from]);
            const std::string second = path(std::string("second.") + kSuffixes[to]);
            Picture picture;
            ASSERT_EQ(load(path("source.jpg"), picture), GFL_NO_ERROR);
            ASSERT_EQ(save(first, picture.get(), kNames[from]), GFL_NO_ERROR);

            // As in the image room: from a bitmap that was read to one that was computed.
            Picture source;
            ASSERT_EQ(load(first, source, GFL_LOAD_METADATA_ONLY), GFL_NO_ERROR);
            EXPECT_EQ(source->data, nullptr);
            EXPECT_EQ(source->width, 24);
            const Picture result = makePicture(24, 16, 3, 16);
            ASSERT_TRUE(gflBitmapHasICCProfile(source.get()) && gflBitmapHasIPTC(source.get()) && gflBitmapHasEXIF(source.get()));
            gflBitmapCopyICCProfile(source.get(), result.get());
            gflBitmapSetIPTC(result.get(), gflBitmapGetIPTC(source.get()));
            GflExif *exif = gflBitmapGetEXIF2(source.get());
            gflBitmapSetEXIF2(result.get(), exif);
            gflFreeEXIF2(exif);
            ASSERT_EQ(save(second, result.get(), kNames[to]), GFL_NO_ERROR);

            Picture again;
            ASSERT_EQ(load(second, again), GFL_NO_ERROR);
            EXPECT_TRUE(gflBitmapHasICCProfile(again.get()) && gflBitmapHasIPTC(again.get()) && gflBitmapHasEXIF(again.get()));

            // Through a file that stores them plainly: packed blocks of a PNG can't be searched.
            const std::string plain = path("plain.jpg");
            ASSERT_EQ(save(plain, again.get(), "jpeg"), GFL_NO_ERROR);
            EXPECT_TRUE(contains(readFile(plain), profileBlock()));
            EXPECT_TRUE(contains(readFile(plain), iptcBlock()));
            auto found = exifOf(plain);
            EXPECT_EQ(found["Exif.Photo.MakerNote"], "110 111 116 101 1 2 3 4 5 6 7 8");
            for (const auto &[key, value] : expected)
                if (key != "Exif.Image.ExifTag" && key != "Exif.Image.GPSTag" && key != "Exif.Image.YCbCrPositioning") {
                    EXPECT_EQ(found[key], value) << key;
                }
            if (kNames[to] == std::string("tiff")) {
                auto inTiff = exifOf(second);
                EXPECT_EQ(inTiff["Exif.Image.ImageWidth"], "24");
                EXPECT_EQ(inTiff["Exif.Image.Orientation"], "6");
                EXPECT_EQ(inTiff.count("Exif.Image.YCbCrPositioning"), 0u);
            }
        }
}

TEST_F(GflTest, ExposureIsCarriedThroughOpenExr)
{
    writeFile(path("source.jpg"), photograph());
    Picture picture;
    ASSERT_EQ(load(path("source.jpg"), picture), GFL_NO_ERROR);
    ASSERT_EQ(save(path("a.exr"), picture.get(), "exr"), GFL_NO_ERROR);
    ASSERT_EQ(load(path("a.exr"), picture), GFL_NO_ERROR);
    ASSERT_EQ(save(path("b.jpg"), picture.get(), "jpeg"), GFL_NO_ERROR);
    auto found = exifOf(path("b.jpg"));
    EXPECT_EQ(found["Exif.Photo.ExposureTime"], "1/250");
    EXPECT_EQ(found["Exif.Photo.ISOSpeedRatings"], "200");
    EXPECT_EQ(found["Exif.Image.Make"], "TestCam");
}

TEST_F(GflTest, ProfileIsWrittenOnlyOnRequestAndOnlyIfItFits)
{
    writeFile(path("source.jpg"), photograph());
    Picture picture;
    ASSERT_EQ(load(path("source.jpg"), picture), GFL_NO_ERROR);
    GflSaveParams params;
    gflGetDefaultSaveParams(&params);
    params.formatIndex = gflGetFormatIndexByName("tiff");
    ASSERT_EQ(gflSaveBitmapUTF8(path("without.tif").c_str(), picture.get(), &params), GFL_NO_ERROR);
    EXPECT_FALSE(contains(readFile(path("without.tif")), profileBlock()));

    FileBytes cmyk = photograph();
    const FileBytes space{'R', 'G', 'B', ' ', 'X', 'Y', 'Z', ' '};
    std::memcpy(&*std::search(cmyk.begin(), cmyk.end(), space.begin(), space.end()), "CMYK", 4);
    writeFile(path("inks.jpg"), cmyk);
    ASSERT_EQ(load(path("inks.jpg"), picture), GFL_NO_ERROR);
    EXPECT_FALSE(gflBitmapHasICCProfile(picture.get()));
}

TEST_F(GflTest, LargeExifIsShrunkToFitIntoJpeg)
{
    // A thumbnail of 70,000 bytes after the second directory of an otherwise intact block.
    FileBytes block = exifBlock(false);
    const std::uint32_t second = std::uint32_t(block.size());
    std::memcpy(&block[8 + 2 + 5 * 12], &second, 4);
    const std::uint32_t thumbnailAt = second + 2 + 2 * 12 + 4;
    const std::uint32_t thumbnailBytes = 70000;
    block.insert(block.end(),
                 {2, 0, 0x01, 0x02, 4, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0x02, 0x02, 4, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    std::memcpy(&block[second + 10], &thumbnailAt, 4);
    std::memcpy(&block[second + 22], &thumbnailBytes, 4);
    block.resize(block.size() + thumbnailBytes, 0x55);
    const Picture picture = makePicture(4, 4, 3, 8);
    ASSERT_EQ(save(path("a.png"), picture.get(), "png"), GFL_NO_ERROR);
    FileBytes png = readFile(path("a.png"));
    FileBytes chunk{0, 0, 0, 0, 'e', 'X', 'I', 'f'};
    for (int i = 0; i < 4; ++i)
        chunk[std::size_t(i)] = std::uint8_t(block.size() >> (24 - 8 * i));
    chunk.insert(chunk.end(), block.begin(), block.end());
    chunk.insert(chunk.end(), 4, 0); // its checksum is not checked
    png.insert(png.begin() + 33, chunk.begin(), chunk.end());
    writeFile(path("a.png"), png);

    Picture read;
    ASSERT_EQ(load(path("a.png"), read, GFL_LOAD_METADATA_ONLY), GFL_NO_ERROR);
    ASSERT_TRUE(gflBitmapHasEXIF(read.get()));
    GflExif *exif = gflBitmapGetEXIF2(read.get());
    gflBitmapSetEXIF2(picture.get(), exif);
    gflFreeEXIF2(exif);
    ASSERT_EQ(save(path("b.jpg"), picture.get(), "jpeg"), GFL_NO_ERROR);
    auto found = exifOf(path("b.jpg"));
    EXPECT_EQ(found["Exif.Photo.ExposureTime"], "1/250");
    EXPECT_EQ(found["Exif.Photo.MakerNote"], "110 111 116 101 1 2 3 4 5 6 7 8");
}

TEST_F(GflTest, CameraRawFilesDeliverTheirMetadata)
{
    writeFile(path("source.jpg"), photograph());
    Picture picture;
    ASSERT_EQ(load(path("source.jpg"), picture), GFL_NO_ERROR);
    ASSERT_EQ(save(path("raw.DNG"), picture.get(), "tiff"), GFL_NO_ERROR);
    GflFileInformation information{};
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    params.flags |= GFL_LOAD_METADATA;
    GflBitmap *raw = nullptr;
    ASSERT_EQ(gflLoadBitmapUTF8(path("raw.DNG").c_str(), &raw, &params, &information), GFL_NO_ERROR);
    picture.reset(raw);
    EXPECT_EQ(information.formatIndex, -1);
    EXPECT_EQ(raw->width * raw->height, 1);
    ASSERT_EQ(save(path("out.tif"), raw, "tiff"), GFL_NO_ERROR);
    auto found = exifOf(path("out.tif"));
    EXPECT_EQ(found["Exif.Image.ImageWidth"], "1"); // the raw file's structural tags are not carried over
    EXPECT_EQ(found["Exif.Image.Make"], "TestCam");
    EXPECT_EQ(found["Exif.GPSInfo.GPSLatitude"], "47/1 30/1 0/1");
    writeFile(path("bad.nef"), {'I', 'I', '*', 0, 1, 2, 3});
    EXPECT_NE(load(path("bad.nef"), picture), GFL_NO_ERROR);
}

TEST_F(GflTest, NamesAndContents)
{
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(gflGetFormatIndexByName(kNames[i]), i);
    for (const char *name : {"", "jpg", "JPEG", "webp"})
        EXPECT_EQ(gflGetFormatIndexByName(name), -1) << name;
    EXPECT_EQ(gflGetFormatIndexByName(nullptr), -1);

    const Picture picture = makePicture(8, 8, 3, 8);
    Picture read;
    for (int i = 0; i < 6; ++i) {
        ASSERT_EQ(save(path("any"), picture.get(), kNames[i]), GFL_NO_ERROR);
        const FileBytes bytes = readFile(path("any"));
        struct Case
        {
            const char *name;
            int holds; // the format that this name implies, or -1
        };
        for (const Case &c : {Case{"x.JPG", 0},
                              {"x.jpeg", 0},
                              {"x.jpe", 0},
                              {"x.Png", 1},
                              {"x.TIF", 2},
                              {"x.tiff", 2},
                              {"x.hdr", 3},
                              {"x.pic", 3},
                              {"x.exr", 4},
                              {"x.psd", 5},
                              {"x.tmp", -1},
                              {"x", -1}}) {
            writeFile(path(c.name), bytes);
            EXPECT_EQ(load(path(c.name), read), c.holds < 0 || c.holds == i ? GFL_NO_ERROR : GFL_ERROR_UNKNOWN_FORMAT)
                << kNames[i] << " as " << c.name;
        }
    }
    writeFile(path("text.jpg"), {'h', 'e', 'l', 'l', 'o'});
    EXPECT_EQ(load(path("text.jpg"), read), GFL_ERROR_UNKNOWN_FORMAT);
    writeFile(path("empty.jpg"), {});
    EXPECT_EQ(load(path("empty.jpg"), read), GFL_ERROR_FILE_READ);
    EXPECT_EQ(load(path("none.jpg"), read), GFL_ERROR_FILE_OPEN);
    EXPECT_EQ(load(folder.string(), read), GFL_ERROR_FILE_OPEN);
    EXPECT_EQ(read, nullptr);
    EXPECT_EQ(gflLoadBitmapUTF8(nullptr, nullptr, nullptr, nullptr), GFL_ERROR_BAD_PARAMETERS);
}

TEST_F(GflTest, SavingRejectsWhatIsNotAPicture)
{
    const Picture picture = makePicture(2, 2, 3, 8);
    EXPECT_EQ(save(path("a"), nullptr, "jpeg"), GFL_ERROR_BAD_BITMAP);
    EXPECT_EQ(save(path("a"), picture.get(), "webp"), GFL_ERROR_BAD_FORMAT_INDEX);
    picture->bitsPerComponent = 12;
    EXPECT_EQ(save(path("a"), picture.get(), "jpeg"), GFL_ERROR_BAD_BITMAP);
    picture->bitsPerComponent = 8;
    picture->type = 0x0004; // palette
    EXPECT_EQ(save(path("a"), picture.get(), "jpeg"), GFL_ERROR_BAD_BITMAP);
    const Picture wide = makePicture(65501, 1, 1, 8);
    EXPECT_EQ(save(path("a"), wide.get(), "jpeg"), GFL_ERROR_BAD_BITMAP);
    EXPECT_EQ(save(path("a"), wide.get(), "psd"), GFL_NO_ERROR); // in the large form
    Picture read;
    ASSERT_EQ(load(path("a"), read), GFL_NO_ERROR);
    EXPECT_EQ(read->width, 65501);
    EXPECT_EQ(filesInFolder(), 1u);
}

TEST_F(GflTest, SavingReplacesAFileOnlyWhenComplete)
{
    const Picture picture = makePicture(100, 100, 4, 16);
    for (int y = 0; y < 100; ++y) // noise, which no format can pack
        for (int x = 0; x < 100; ++x)
            for (int c = 0; c < 4; ++c)
                setFraction(*picture, x, y, c, (unsigned(x * 7919 + y * 104729 + c * 1299709) * 2654435761u >> 16) / 65535.0);
    const FileBytes old{'o', 'l', 'd'};
    for (const char *format : kNames) {
        const std::string name = path("target");
        writeFile(name, old);
        EXPECT_EQ(save(path("none/target"), picture.get(), format), GFL_ERROR_FILE_CREATE);
        EXPECT_EQ(save("/proc/target", picture.get(), format), GFL_ERROR_FILE_CREATE);
        EXPECT_EQ(save("/dev/full", picture.get(), format), GFL_ERROR_FILE_CREATE);
        EXPECT_EQ(save(folder.string(), picture.get(), format), GFL_ERROR_FILE_CREATE);

        // A file size limit makes writes fail like a full disk does.
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        for (const rlim_t bytes : {1u, 300u, 5000u}) {
            const rlimit small{bytes, before.rlim_max};
            setrlimit(RLIMIT_FSIZE, &small);
            const int code = save(name, picture.get(), format);
            setrlimit(RLIMIT_FSIZE, &before);
            EXPECT_EQ(code, GFL_ERROR_FILE_WRITE) << format << " " << bytes;
        }
        std::signal(SIGXFSZ, handler);
        EXPECT_EQ(readFile(name), old);
        EXPECT_EQ(filesInFolder(), 1u) << format;
    }
}

TEST_F(GflTest, ResultHasOrdinaryPermissionsAndLinksStay)
{
    const Picture picture = makePicture(2, 2, 3, 8);
    const auto modeOf = [&](const char *name) {
        struct stat status
        {
        };
        stat(path(name).c_str(), &status);
        return status.st_mode & 0777;
    };
    const mode_t old = umask(027);
    EXPECT_EQ(save(path("new.png"), picture.get(), "png"), GFL_NO_ERROR);
    umask(old);
    EXPECT_EQ(modeOf("new.png"), 0640u);
    chmod(path("new.png").c_str(), 0604);
    std::filesystem::create_symlink("new.png", path("link.png"));
    EXPECT_EQ(save(path("link.png"), picture.get(), "tiff"), GFL_NO_ERROR);
    EXPECT_TRUE(std::filesystem::is_symlink(path("link.png")));
    EXPECT_EQ(readFile(path("new.png"))[0], 'I');
    EXPECT_EQ(modeOf("new.png"), 0604u);
    const std::string longest(250, 'n');
    EXPECT_EQ(save(path(longest + ".png"), picture.get(), "png"), GFL_NO_ERROR);
    const auto here = std::filesystem::current_path();
    std::filesystem::current_path(folder);
    EXPECT_EQ(save("plain.png", picture.get(), "png"), GFL_NO_ERROR);
    std::filesystem::current_path(here);
    EXPECT_TRUE(std::filesystem::exists(path("plain.png")));
}

TEST_F(GflTest, BitmapsComeFromTheGivenAllocator)
{
    for (int i = 0; i < 6; ++i)
        ASSERT_EQ(save(path(std::string("a.") + kSuffixes[i]), makePicture(8, 8, 3, 8).get(), kNames[i]), GFL_NO_ERROR);
    Heap heap;
    ASSERT_EQ(gflLibraryInitEx(countedAlloc, countedRealloc, countedFree, &heap), GFL_NO_ERROR);
    EXPECT_EQ(gflLibraryInitEx(countedAlloc, nullptr, countedFree, &heap), GFL_ERROR_BAD_PARAMETERS);
    for (const char *suffix : kSuffixes) {
        Picture read;
        EXPECT_EQ(load(path(std::string("a.") + suffix), read), GFL_NO_ERROR);
        EXPECT_EQ(heap.blocks, 2) << suffix;
        read.reset();
        EXPECT_EQ(heap.blocks, 0) << suffix;
        heap.fails = true;
        EXPECT_EQ(load(path(std::string("a.") + suffix), read), GFL_ERROR_NO_MEMORY) << suffix;
        heap.fails = false;
    }
    gflFreeBitmap(nullptr);
    EXPECT_EQ(gflLibraryInitEx(nullptr, nullptr, nullptr, nullptr), GFL_NO_ERROR);
}

TEST_F(GflTest, SeveralThreadsReadAndWriteAtOnce)
{
    writeFile(path("source.jpg"), photograph());
    std::vector<std::thread> threads;
    std::atomic<int> failures{0};
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            for (int i = 0; i < 6; ++i) {
                const int format = (i + t) % 6;
                const std::string name = path(std::to_string(t) + "." + kSuffixes[format]);
                Picture picture;
                failures += load(path("source.jpg"), picture) != GFL_NO_ERROR;
                failures += save(name, picture.get(), kNames[format]) != GFL_NO_ERROR;
                failures += load(name, picture) != GFL_NO_ERROR;
            }
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(failures, 0);
}

} // namespace
