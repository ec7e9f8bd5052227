#include <libdeflate.h>

#include "GflFixture.h"

// Files that are truncated, changed at random places, or claim more than they hold: only a result code may follow.
namespace {

struct Seed
{
    const char *suffix;
    const char *format;
    int compression;
};

constexpr Seed kSeeds[] = {{"jpg", "jpeg", -1}, {"png", "png", -1}, {"tif", "tiff", 0}, {"tif", "tiff", 2}, {"tif", "tiff", 4},
                           {"hdr", "hdri", -1}, {"hdr", "hdri", 0}, {"exr", "exr", 0},  {"exr", "exr", 1},  {"exr", "exr", 3},
                           {"exr", "exr", 4},   {"exr", "exr", 5},  {"exr", "exr", 7},  {"psd", "psd", -1}, {"psd", "psd", 0}};

class GflDamageTest : public GflTest
{
protected:
    GflDamageTest() { gflLibraryInitEx(countedAlloc, countedRealloc, countedFree, &heap); }
    ~GflDamageTest() override { gflLibraryInitEx(nullptr, nullptr, nullptr, nullptr); }

    FileBytes seedFile(const Seed &seed)
    {
        writeFile(path("source.jpg"), photograph());
        Picture picture;
        EXPECT_EQ(load(path("source.jpg"), picture), GFL_NO_ERROR);
        EXPECT_EQ(save(path("seed"), picture.get(), seed.format, -1, seed.compression), GFL_NO_ERROR);
        return readFile(path("seed"));
    }

    Heap heap;
};

bool isReadCode(int code)
{
    return code == GFL_NO_ERROR || code == GFL_ERROR_FILE_READ || code == GFL_ERROR_NO_MEMORY || code == GFL_ERROR_UNKNOWN_FORMAT;
}

TEST_F(GflDamageTest, TruncationIsReportedWithoutReadingPixels)
{
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    params.flags |= GFL_LOAD_METADATA_ONLY;
    for (const Seed &seed : {kSeeds[0], kSeeds[1], kSeeds[2], kSeeds[4]}) {
        SCOPED_TRACE(std::string(seed.format) + " " + std::to_string(seed.compression));
        FileBytes bytes = seedFile(seed);
        const std::string name = path(std::string("cut.") + seed.suffix);
        const auto code = [&] {
            writeFile(name, bytes);
            GflBitmap *bitmap = nullptr;
            const int result = gflLoadBitmapUTF8(name.c_str(), &bitmap, &params, nullptr);
            gflFreeBitmap(bitmap);
            return result;
        };
        EXPECT_EQ(code(), GFL_NO_ERROR);
        bytes.resize(bytes.size() - bytes.size() / 8);
        EXPECT_EQ(code(), GFL_ERROR_FILE_READ);
    }
}

TEST_F(GflDamageTest, TruncationIsAnErrorUnlessAllPixelsAreThere)
{
    for (const Seed &seed : kSeeds) {
        SCOPED_TRACE(std::string(seed.format) + " " + std::to_string(seed.compression));
        const FileBytes whole = seedFile(seed);
        const std::string name = path(std::string("cut.") + seed.suffix);
        Picture full;
        ASSERT_EQ(load(path("seed"), full), GFL_NO_ERROR);
        const std::size_t bytes = std::size_t(full->bytesPerLine) * std::size_t(full->height);
        std::size_t shortestReadable = whole.size();
        for (std::size_t length = 0; length < whole.size(); length += length < 64 || length + 64 > whole.size() ? 1 : 7) {
            writeFile(name, FileBytes(whole.begin(), whole.begin() + std::ptrdiff_t(length)));
            Picture read;
            const int code = load(name, read);
            EXPECT_TRUE(isReadCode(code)) << length;
            EXPECT_EQ(read == nullptr, code != GFL_NO_ERROR) << length;
            if (!read)
                continue;
            shortestReadable = std::min(shortestReadable, length);
            EXPECT_EQ(std::memcmp(read->data, full->data, bytes), 0) << length;
        }
        EXPECT_GE(shortestReadable + 16, whole.size()); // at most an end marker is dispensable
    }
}

TEST_F(GflDamageTest, ChangedBytesNeverDoMoreThanFail)
{
#ifndef GFL_MUTATIONS
#    define GFL_MUTATIONS 60 // per seed
#endif
    std::uint64_t state = 20240506;
    const auto draw = [&](std::size_t below) {
        state = state * 6364136223846793005u + 1442695040888963407u;
        return std::size_t(state >> 33) % below;
    };
    for (const Seed &seed : kSeeds) {
        const FileBytes whole = seedFile(seed);
        const std::string name = path(std::string("changed.") + seed.suffix);
        for (int i = 0; i < GFL_MUTATIONS; ++i) {
            FileBytes bytes = whole;
            const std::size_t front = draw(2) ? std::min<std::size_t>(bytes.size(), 400) : bytes.size();
            for (std::size_t change = 0, count = 1 + draw(8); change < count; ++change) {
                static constexpr std::uint8_t kSpecial[] = {0x00, 0xFF, 0x7F, 0x80, 0x01};
                std::uint8_t &at = bytes[draw(front)];
                at = draw(2) ? kSpecial[draw(5)] : std::uint8_t(at ^ 1u << draw(8));
            }
            if (draw(8) == 0)
                bytes.resize(draw(bytes.size()));
            writeFile(name, bytes);
            Picture read;
            const int code = load(name, read, draw(4) ? GFL_LOAD_METADATA : GFL_LOAD_METADATA_ONLY);
            EXPECT_TRUE(isReadCode(code)) << seed.format << " " << i << ": " << code;
            if (read && read->data) { // damaged metadata must not stop a save
                EXPECT_EQ(save(path("again"), read.get(), seed.format), GFL_NO_ERROR) << seed.format << " " << i;
            }
            if (read && (i % 4) == 0) {
                const Picture small = makePicture(2, 2, 3, 8);
                GflExif *exif = gflBitmapGetEXIF2(read.get());
                gflBitmapSetEXIF2(small.get(), exif);
                gflFreeEXIF2(exif);
                for (const char *format : kNames)
                    EXPECT_EQ(save(path("again"), small.get(), format), GFL_NO_ERROR) << seed.format << " " << i << format;
            }
        }
    }
}

void putBig(FileBytes &bytes, std::size_t at, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes[at + std::size_t(i)] = std::uint8_t(value >> 8 * (count - 1 - i));
}

std::size_t find(const FileBytes &bytes, const std::string &text)
{
    const FileBytes part(text.begin(), text.end());
    const auto at = std::search(bytes.begin(), bytes.end(), part.begin(), part.end());
    EXPECT_NE(at, bytes.end());
    return std::size_t(at - bytes.begin());
}

// Writes a size into the header of an intact file.
void claim(FileBytes &bytes, const std::string &format, std::uint32_t width, std::uint32_t height)
{
    if (format == "jpeg") {
        const std::size_t frame = find(bytes, "\xFF\xC0");
        putBig(bytes, frame + 5, std::min(height, 65500u), 2);
        putBig(bytes, frame + 7, std::min(width, 65500u), 2);
    } else if (format == "png") {
        putBig(bytes, 16, width, 4);
        putBig(bytes, 20, height, 4);
        putBig(bytes, 29, libdeflate_crc32(0, &bytes[12], 17), 4);
    } else if (format == "tiff") { // in the byte order of photograph()'s EXIF; the directory ends the file
        const std::size_t directory =
            std::size_t(bytes[4]) << 24 | std::size_t(bytes[5]) << 16 | std::size_t(bytes[6]) << 8 | bytes[7];
        for (std::size_t at = directory + 2; at + 12 <= bytes.size(); at += 12) {
            const int tag = bytes[at] << 8 | bytes[at + 1];
            if (tag != 256 && tag != 257)
                continue;
            putBig(bytes, at + 2, 4, 2); // a long
            putBig(bytes, at + 8, tag == 256 ? width : height, 4);
        }
    } else if (format == "hdri") {
        const std::string old = "-Y 16 +X 24";
        const std::string size = "-Y " + std::to_string(height) + " +X " + std::to_string(width);
        const auto at = bytes.begin() + std::ptrdiff_t(find(bytes, old));
        bytes.insert(bytes.erase(at, at + std::ptrdiff_t(old.size())), size.begin(), size.end());
    } else if (format == "exr") {
        const std::size_t window = find(bytes, "dataWindow") + 11 + 6 + 4;
        for (int i = 0; i < 4; ++i) {
            bytes[window + 8 + std::size_t(i)] = std::uint8_t((width - 1) >> 8 * i);
            bytes[window + 12 + std::size_t(i)] = std::uint8_t((height - 1) >> 8 * i);
        }
    } else {
        putBig(bytes, 14, height, 4);
        putBig(bytes, 18, width, 4);
    }
}

TEST_F(GflDamageTest, AClaimedSizeIsNotAllocatedBeforeTheFileFillsIt)
{
    constexpr std::uint32_t kSizes[][2] = {
        {100000, 100000}, {100000, 16}, {24, 1000000000}, {2000000000, 16}, {2147483647, 2147483647}};
    constexpr std::size_t kModest = std::size_t(64) << 20;
    for (const Seed &seed : kSeeds)
        for (const auto &size : kSizes)
            for (const bool cut : {false, true}) {
                SCOPED_TRACE(std::string(seed.format) + " " + std::to_string(seed.compression) + " " + std::to_string(size[0]) +
                             " x " + std::to_string(size[1]) + (cut ? " cut" : ""));
                FileBytes bytes = seedFile(seed);
                claim(bytes, seed.format, size[0], size[1]);
                const std::string name = path(std::string("claim.") + seed.suffix);
                writeFile(name, bytes);
                if (cut)
                    std::filesystem::resize_file(name, bytes.size() / 2);
                heap.largest = 0;
                Picture read;
                const int code = load(name, read);
                EXPECT_TRUE(code != GFL_NO_ERROR && isReadCode(code)) << code;
                EXPECT_LE(heap.largest, kModest);
            }
}

} // namespace
