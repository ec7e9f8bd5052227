#include <fstream>
#include <sstream>

#include <tiffio.h>

#include "GflFixture.h"

// Files as other programs write them, in forms that the layer reads but never writes. They are stored as texts in foreign/. A
// case:
//     case NAME.SUFFIX: WIDTH x HEIGHT, COMPONENTS x BITS bits[, within FRACTION][, needs every byte]
//     at X Y: a sample of each component, as a fraction of its full scale
// followed by the file's bytes: hexadecimal numbers (00*12 is twelve zeros) and "text"; # begins a comment.
namespace {

struct Pixel
{
    int x, y;
    std::vector<double> samples;
};

struct Case
{
    std::string name;
    int width = 0, height = 0, components = 0, bits = 0;
    double within = 0; ///< Tolerance; 0: half a step of the depth.
    bool needsEveryByte = false;
    std::vector<Pixel> pixels;
    FileBytes bytes;
};

void appendQuoted(FileBytes &bytes, std::istream &words)
{
    for (char c; words.get(c) && c != '"';) {
        if (c == '\\' && words.get(c))
            c = '\n';
        bytes.push_back(std::uint8_t(c));
    }
}

void appendBytes(FileBytes &bytes, const std::string &line)
{
    std::istringstream words(line);
    while (!(words >> std::ws).eof() && words.peek() != '#') {
        if (words.peek() == '"') {
            words.get();
            appendQuoted(bytes, words);
            continue;
        }
        std::string word;
        words >> word;
        std::size_t end = 0;
        const auto value = std::uint8_t(std::stoul(word, &end, 16));
        bytes.insert(bytes.end(), end < word.size() ? std::stoul(word.substr(end + 1)) : 1, value);
    }
}

Case caseFrom(const std::string &line)
{
    Case c;
    c.name = line.substr(5, line.find(':') - 5);
    const std::string facts = line.substr(line.find(':') + 1);
    EXPECT_EQ(
        std::sscanf(facts.c_str(), "%d x %d, %d x %d bits, within %lf", &c.width, &c.height, &c.components, &c.bits, &c.within),
        facts.find("within") == std::string::npos ? 4 : 5)
        << line;
    c.needsEveryByte = facts.find("needs every byte") != std::string::npos;
    return c;
}

std::vector<Case> casesOf(const char *file)
{
    std::ifstream text(std::string(FOREIGN_FILES) + "/" + file);
    std::vector<Case> cases;
    for (std::string line; std::getline(text, line);) {
        if (line.rfind("case ", 0) == 0) {
            cases.push_back(caseFrom(line));
        } else if (line.rfind("at ", 0) == 0) {
            Pixel pixel{};
            std::istringstream numbers(line.substr(3));
            numbers >> pixel.x >> pixel.y;
            numbers.ignore(1); // the colon
            for (double sample; numbers >> sample;)
                pixel.samples.push_back(sample);
            cases.back().pixels.push_back(pixel);
        } else {
            appendBytes(cases.back().bytes, line);
        }
    }
    return cases;
}

class ForeignFiles : public GflTest, public testing::WithParamInterface<const char *>
{
protected:
    void expectStatedPixels(const Case &c, const GflBitmap &read)
    {
        EXPECT_EQ(read.width, c.width);
        EXPECT_EQ(read.height, c.height);
        ASSERT_EQ(read.componentsPerPixel, c.components);
        ASSERT_EQ(read.bitsPerComponent, c.bits);
        // Half a step; with 32 bits, the rounding of single precision.
        const double step = c.bits == 8 ? 1 / 255.0 : c.bits == 16 ? 1 / 65535.0 : 1e-6;
        const double within = c.within > 0 ? c.within : step * 0.51;
        EXPECT_FALSE(c.pixels.empty());
        for (const Pixel &pixel : c.pixels) {
            ASSERT_EQ(pixel.samples.size(), std::size_t(c.components));
            for (int k = 0; k < c.components; ++k)
                EXPECT_NEAR(fractionAt(read, pixel.x, pixel.y, k), pixel.samples[std::size_t(k)], within)
                    << pixel.x << " " << pixel.y << " " << k;
        }
    }
};

/// Exchanging rows and columns in the coefficients transposes the picture; doing it twice restores it exactly.
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
    constexpr double kRounding = 3 / 255.0; // of the transform's two passes, whose order changes, and of subsampled colour
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            for (int k = 0; k < picture.componentsPerPixel; ++k) {
                ASSERT_NEAR(fractionAt(*turned, y, x, k), fractionAt(picture, x, y, k), kRounding) << x << " " << y << " " << k;
                ASSERT_EQ(fractionAt(*again, x, y, k), fractionAt(picture, x, y, k)) << x << " " << y << " " << k;
            }
}

TEST_P(ForeignFiles, AreReadAsStated)
{
    const std::vector<Case> cases = casesOf(GetParam());
    EXPECT_FALSE(cases.empty());
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        const std::string name = path(c.name);
        writeFile(name, c.bytes);
        Picture read;
        ASSERT_EQ(load(name, read), GFL_NO_ERROR);
        expectStatedPixels(c, *read);
        if (std::string(GetParam()) == "jpeg.txt")
            expectTransposes(name, *read);
        if (c.needsEveryByte) {
            std::filesystem::resize_file(name, c.bytes.size() - 1);
            EXPECT_EQ(load(name, read), GFL_ERROR_FILE_READ);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, ForeignFiles, testing::Values("tiff.txt", "png.txt", "jpeg.txt", "hdr.txt", "psd.txt"));

TEST_F(GflTest, LargeTiffKeepsItsOrientation)
{
    for (const Case &c : casesOf("tiff.txt"))
        if (c.name == "large.tif")
            writeFile(path("a.tif"), c.bytes);
    Picture read;
    ASSERT_EQ(load(path("a.tif"), read), GFL_NO_ERROR);
    ASSERT_EQ(save(path("b.tif"), read.get(), "tiff"), GFL_NO_ERROR);
    TIFF *tiff = TIFFOpen(path("b.tif").c_str(), "r");
    std::uint16_t orientation = 0;
    const char *model = nullptr;
    EXPECT_TRUE(TIFFGetField(tiff, TIFFTAG_ORIENTATION, &orientation) && TIFFGetField(tiff, TIFFTAG_MODEL, &model));
    EXPECT_EQ(orientation, ORIENTATION_RIGHTTOP);
    EXPECT_STREQ(model, "HZ-1");
    TIFFClose(tiff);
}

TEST_F(GflTest, TurningAJpegKeepsItsSegmentsOrLeavesNoFile)
{
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

} // namespace
