#include "readPhoto.h"

#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <tuple>

#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>
#include <unistd.h>

#include "gfl.h"
#include "metadataLibrary.h"
#include "writePicture.h"

namespace {

using Cause = PhotoProblem::Cause;

class ReadPhotoTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        startMetadataLibrary();
        gflLibraryInitEx(nullptr, nullptr, nullptr, nullptr);
    }
    void SetUp() override { std::filesystem::create_directories(folder); }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::string path(const std::string &name) const { return (folder / name).string(); }

    const std::filesystem::path folder = std::filesystem::temp_directory_path() / ("readPhoto-" + std::to_string(::getpid()));
};

double sampleAt(const PhotoPixels &pixels, int x, int y, int component)
{
    const auto *row = static_cast<const std::uint8_t *>(pixels.data) + std::size_t(y) * std::size_t(pixels.strideBytes);
    const std::size_t at = std::size_t(x * pixels.components + component);
    if (pixels.bits == 8)
        return row[at] / 255.0;
    if (pixels.bits == 16)
        return reinterpret_cast<const std::uint16_t *>(row)[at] / 65535.0;
    return double(reinterpret_cast<const float *>(row)[at]);
}

double worstDifference(const PhotoPixels &pixels, const PictureForm &form)
{
    double worst = 0;
    for (int y = 0; y < pixels.height; ++y)
        for (int x = 0; x < pixels.width; ++x)
            for (int c = 0; c < pixels.components; ++c)
                worst = std::max(worst, std::abs(sampleAt(pixels, x, y, c) - drawnSample(form, x, y, c)));
    return worst;
}

} // namespace

TEST_F(ReadPhotoTest, PicturesAreReadAtTheirDepthWithAlphaUpright)
{
    struct Case
    {
        const char *name;
        const char *suffixes; ///< Those that hold it.
        int width, height, components, bits, orientation;
        bool premultiplied;
        int readBits;
    };
    const Case cases[] = {
        {"plain", "heic avif webp jxl", 64, 48, 3, 8, 1, false, 8},
        {"odd", "heic avif webp jxl", 67, 51, 3, 8, 1, false, 8},
        {"one pixel wide", "webp jxl", 1, 33, 3, 8, 1, false, 8},
        {"alpha", "heic avif webp jxl", 65, 49, 4, 8, 1, false, 8},
        {"multiplied alpha", "heic avif", 65, 49, 4, 8, 1, true, 8},
        {"grey", "heic avif jxl", 66, 50, 1, 8, 1, false, 8},
        {"grey of 10 bits", "heic jxl", 66, 50, 1, 10, 1, false, 16},
        {"10 bits", "heic avif jxl", 64, 50, 3, 10, 1, false, 16},
        {"12 bits with alpha", "heic jxl", 64, 50, 4, 12, 1, false, 16},
        {"16 bits", "jxl", 64, 50, 3, 16, 1, false, 16},
        {"float", "jxl", 64, 50, 4, 32, 1, false, 32},
        {"mirrored", "heic avif jxl", 70, 50, 3, 8, 2, false, 8},
        {"upside down", "heic avif jxl", 70, 50, 3, 8, 3, false, 8},
        {"turned and mirrored", "heic avif jxl", 70, 50, 3, 8, 5, false, 8},
        {"turned", "heic avif jxl", 70, 50, 3, 8, 6, false, 8},
        {"turned the other way, 10 bits", "heic avif jxl", 70, 50, 3, 10, 8, false, 16},
    };
    for (const std::string &suffix : writableSuffixes())
        for (const Case &c : cases) {
            if (std::string(c.suffixes).find(suffix) == std::string::npos)
                continue;
            SCOPED_TRACE(suffix + ", " + c.name);
            PictureForm form;
            form.width = c.width;
            form.height = c.height;
            form.components = c.components;
            form.bits = c.bits;
            form.orientation = c.orientation;
            form.premultiplied = c.premultiplied;
            form.exif = exifBlock(/*orientation=*/3, "of another kind"); // the container's counts
            if (suffix == "webp")
                form.exif.clear();
            ASSERT_NO_THROW(writePicture(path("a." + suffix), form));
            PhotoHead head;
            ASSERT_EQ(readHead(path("a." + suffix), head).cause, Cause::None);
            EXPECT_EQ(std::pair(head.width, head.height), std::pair(c.width, c.height));
            EXPECT_EQ(head.orientation, 1);
            EXPECT_EQ(head.bytesPerPixel, c.components * c.readBits / 8);
            EXPECT_TRUE(head.needsStandIn && head.pixels && !head.furtherPictures);
            PhotoPixels pixels;
            ASSERT_EQ(readPixels(path("a." + suffix), pixels).cause, Cause::None);
            ASSERT_EQ(std::pair(pixels.width, pixels.height), std::pair(c.width, c.height));
            EXPECT_EQ(std::pair(pixels.components, pixels.bits), std::pair(c.components, c.readBits));
            // Without loss, half a step of the stored depth, and half of the 16 bits on the way in and out. The other encoders
            // are set to a few steps of 8 bits.
            const bool lossy = suffix == "heic" || suffix == "avif";
            const double step = c.bits == 32 ? 1e-6 : 0.51 / ((1 << c.bits) - 1) + (c.readBits == 16 ? 1.0 / 65535 : 0);
            EXPECT_LE(worstDifference(pixels, form), lossy ? 0.03 : step);
        }
}

TEST_F(ReadPhotoTest, TheStandInHasColourProfileExifAndXmpAndSaysHowThePixelsLie)
{
    const std::string xmp =
        "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
        "<rdf:Description rdf:about='' xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmp:Rating='4'/></rdf:RDF>"
        "</x:xmpmeta>";
    for (const std::string &suffix : writableSuffixes())
        for (const auto &[primaries, transfer, trace] :
             {std::tuple(0, 0, ""), std::tuple(12, 13, "Display P3"), std::tuple(9, 16, "cicp")}) {
            const bool numbers = primaries != 0;
            if (numbers && suffix != "heic" && suffix != "avif")
                continue;
            SCOPED_TRACE(suffix);
            PictureForm form;
            form.exif = exifBlock(/*orientation=*/6, "valley");
            form.xmp = xmp;
            form.primaries = primaries;
            form.transfer = transfer;
            writePicture(path("a." + suffix), form);
            PhotoHead head;
            ASSERT_EQ(readHead(path("a." + suffix), head).cause, Cause::None);
            const int orientation = suffix == "webp" ? 6 : 1; // this container has none of its own
            EXPECT_EQ(head.orientation, orientation);
            std::vector<std::uint8_t> bytes;
            ASSERT_EQ(makeStandIn(path("a." + suffix), bytes).cause, Cause::None);
            std::ofstream(path("stand-in"), std::ios::binary)
                .write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));

            GflLoadParams params;
            gflGetDefaultLoadParams(&params);
            params.flags = GFL_LOAD_METADATA;
            GflBitmap *bitmap = nullptr;
            ASSERT_EQ(gflLoadBitmapUTF8(path("stand-in").c_str(), &bitmap, &params, nullptr), GFL_NO_ERROR);
            EXPECT_TRUE(gflBitmapHasEXIF(bitmap));
            EXPECT_TRUE(gflBitmapHasICCProfile(bitmap) || (!numbers && suffix != "jxl"));
            gflFreeBitmap(bitmap);
            const auto image = Exiv2::ImageFactory::open(path("stand-in"));
            image->readMetadata();
            EXPECT_EQ(image->exifData()["Exif.Image.ImageDescription"].toString(), "valley");
            EXPECT_EQ(image->exifData()["Exif.Image.Orientation"].toString(), std::to_string(orientation));
            EXPECT_EQ(image->xmpData()["Xmp.xmp.Rating"].toString(), "4");
            if (numbers) {
#if EXIV2_TEST_VERSION(0, 28, 0)
                const std::string text(image->iccProfile().cbegin(), image->iccProfile().cend());
#else
                const std::string text(image->iccProfile()->pData_, image->iccProfile()->pData_ + image->iccProfile()->size_);
#endif
                std::string letters; // the profile's are of 16 bits
                std::copy_if(text.begin(), text.end(), std::back_inserter(letters), [](char c) { return c != 0; });
                EXPECT_NE(letters.find(trace), std::string::npos) << trace;
            }
        }
}

TEST_F(ReadPhotoTest, WhatIsNotOnePhotographOrIsNotWholeIsRefusedBeforeItsMemoryIsTaken)
{
    for (const std::string &suffix : writableSuffixes()) {
        SCOPED_TRACE(suffix);
        const std::string whole = path("a." + suffix), cut = path("cut." + suffix);
        PictureForm form;
        form.width = 500;
        form.height = 400;
        writePicture(whole, form);
        PhotoPixels pixels;
        EXPECT_EQ(readPixels(whole, pixels, /*mostBytes=*/500 * 400 * 3).cause, Cause::NoMemory);
        EXPECT_EQ(pixels.data, nullptr);
        EXPECT_EQ(readPixels(whole, pixels, /*mostBytes=*/500 * 400 * 40).cause, Cause::None);

        std::ifstream file(whole, std::ios::binary);
        const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
        for (const double part : {0.02, 0.3, 0.6, 0.9, 0.99}) {
            std::ofstream(cut, std::ios::binary).write(bytes.data(), std::streamsize(double(bytes.size()) * part));
            EXPECT_EQ(readPixels(cut, pixels).cause, Cause::Damaged) << part;
        }
        PhotoHead head;
        if (suffix == "webp" || suffix == "jxl") {
            form.animated = true;
            writePicture(whole, form);
            EXPECT_EQ(readHead(whole, head).cause, Cause::Animation);
            EXPECT_EQ(readPixels(whole, pixels).cause, Cause::Animation);
            form.animated = false;
        }
        if (suffix == "jxl") {
            form.inks = true;
            writePicture(whole, form);
            EXPECT_EQ(readHead(whole, head).cause, Cause::PixelForm);
            form.inks = false;
        }
        if (suffix != "webp") {
            form.secondPicture = true;
            writePicture(whole, form);
            EXPECT_EQ(readHead(whole, head).cause, Cause::None);
            EXPECT_TRUE(head.furtherPictures);
            EXPECT_EQ(readPixels(whole, pixels).cause, Cause::None);
            EXPECT_EQ(std::pair(pixels.width, pixels.height), std::pair(500, 400));
        }
    }
}

TEST_F(ReadPhotoTest, AJpegTellsOfItsFurtherPicturesButNotOfReducedCopies)
{
    const auto segment = [](int marker, const std::string &content) {
        const std::size_t size = content.size() + 2;
        return std::string{char(0xFF), char(marker), char(size >> 8), char(size)} + content;
    };
    const auto index = [&](const std::vector<std::uint32_t> &kinds) {
        const auto number = [](std::uint32_t value, int bytes) {
            std::string text;
            while (bytes-- > 0)
                text += char(value >> 8 * bytes);
            return text;
        };
        std::string content = std::string("MPF\0MM\0*", 8) + number(8, 4) + number(1, 2) + number(0xB002, 2) + number(7, 2) +
                              number(std::uint32_t(kinds.size()) * 16, 4) + number(8 + 2 + 12 + 4, 4) + number(0, 4);
        for (const std::uint32_t kind : kinds)
            content += number(kind, 4) + std::string(12, '\0');
        return segment(0xE2, content);
    };
    const auto packet = [&](const std::string &properties) {
        return segment(0xE1, std::string("http://ns.adobe.com/xap/1.0/\0", 29) + properties);
    };
    const struct
    {
        const char *name;
        std::string segments;
        bool further;
    } cases[] = {
        {"none", "", false},
        {"reduced copies", index({0x20030000, 0x010001, 0x010002}), false},
        {"panorama", index({0x20030000, 0x020001}), true},
        {"undefined, as for gain maps", index({0x20030000, 0}), true},
        {"damaged index", segment(0xE2, std::string("MPF\0MM\0*\xFF\xFF\xFF\xFF", 12)), false},
        {"ISO gain map", segment(0xE2, std::string("urn:iso:std:iso:ts:21496:-1\0\0\0\0\0", 32)), true},
        {"gain map in XMP", packet("xmlns:hdrgm='http://ns.adobe.com/hdr-gain-map/1.0/'"), true},
        {"film", packet("xmlns:GCamera='http://ns.google.com/photos/1.0/camera/' GCamera:MotionPhoto='1'"), true},
        {"other XMP of that camera", packet("xmlns:GCamera='http://ns.google.com/photos/1.0/camera/' GCamera:Mode='1'"), false},
    };
    std::string plain;
    {
        GflSaveParams params;
        gflGetDefaultSaveParams(&params);
        params.formatIndex = gflGetFormatIndexByName("jpeg");
        std::uint8_t pixel[4] = {};
        GflBitmap bitmap{};
        bitmap.type = 0x0010;
        bitmap.width = bitmap.height = 1;
        bitmap.bytesPerLine = 4;
        bitmap.bitsPerComponent = 8;
        bitmap.componentsPerPixel = bitmap.bytesPerPixel = 3;
        bitmap.data = pixel;
        ASSERT_EQ(gflSaveBitmapUTF8(path("plain.jpg").c_str(), &bitmap, &params), GFL_NO_ERROR);
        std::ifstream file(path("plain.jpg"), std::ios::binary);
        plain.assign(std::istreambuf_iterator<char>(file), {});
    }
    for (const auto &c : cases) {
        std::ofstream(path("a.jpg"), std::ios::binary) << plain.substr(0, 2) << c.segments << plain.substr(2);
        PhotoHead head;
        ASSERT_EQ(readHead(path("a.jpg"), head).cause, Cause::None) << c.name;
        EXPECT_EQ(head.furtherPictures, c.further) << c.name;
    }
}
