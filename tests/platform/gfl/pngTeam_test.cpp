#include <zlib.h>

#include "GflFixture.h"

// PNG files, which are packed in bands of rows, possibly by several threads.
namespace {

enum class Content { Noisy, Noise, Flat };

Picture makeContent(Content content, int width, int height, int components, int bits)
{
    Picture picture = makePicture(width, height, components, bits);
    paint(*picture);
    std::uint32_t state = 1;
    for (int y = 0; y < height; ++y) {
        std::uint8_t *row = sampleAt(*picture, 0, y, 0);
        for (std::size_t i = 0; i < std::size_t(width) * picture->bytesPerPixel; ++i) {
            state = state * 1664525u + 1013904223u;
            row[i] = content == Content::Flat    ? std::uint8_t(7)
                     : content == Content::Noise ? std::uint8_t(state >> 24)
                                                 : std::uint8_t(row[i] ^ (state >> 30));
        }
    }
    return picture;
}

/// The data of all IDAT chunks, whose number is counted.
FileBytes pixelStream(const FileBytes &file, int &chunks)
{
    FileBytes stream;
    chunks = 0;
    for (std::size_t at = 8; at + 12 <= file.size();) {
        const std::size_t length =
            std::size_t(file[at]) << 24 | std::size_t(file[at + 1]) << 16 | std::size_t(file[at + 2]) << 8 | file[at + 3];
        if (std::memcmp(&file[at + 4], "IDAT", 4) == 0) {
            ++chunks;
            stream.insert(stream.end(), file.begin() + std::ptrdiff_t(at + 8), file.begin() + std::ptrdiff_t(at + 8 + length));
        }
        at += length + 12;
    }
    return stream;
}

// Bands end in every kind of deflate block: stored (noise, or level 0), with fixed codes (flat), and with codes in the block.
TEST_F(GflTest, BandsOfAPngAreOneStreamForEveryTeam)
{
    const struct
    {
        const char *name;
        Content content;
        int width, height, components, bits, level;
        bool severalBands;
    } cases[] = {
        {"one pixel", Content::Noisy, 1, 1, 3, 8, -1, false},
        {"just one band", Content::Noisy, 1023, 341, 3, 8, -1, false},
        {"usual, odd sizes", Content::Noisy, 1021, 1401, 3, 8, -1, true},
        {"16 bits with alpha", Content::Noisy, 333, 2777, 4, 16, -1, true},
        {"grey, one column", Content::Noisy, 1, 700000, 1, 8, -1, true},
        {"one row for each band", Content::Noisy, 400001, 5, 3, 8, -1, true},
        {"noise", Content::Noise, 1021, 1401, 3, 8, -1, true},
        {"flat", Content::Flat, 1021, 1401, 3, 8, -1, true},
        {"flat, smallest", Content::Flat, 1021, 1401, 3, 8, 9, true},
        {"stored", Content::Noisy, 1021, 1401, 3, 8, 0, true},
        {"fastest", Content::Noisy, 1021, 1401, 3, 8, 1, true},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        const Picture picture = makeContent(c.content, c.width, c.height, c.components, c.bits);
        FileBytes first;
        for (const int team : {1, 3}) {
            gflSetTeamSize(team);
            EXPECT_EQ(save(path("p.png"), picture.get(), "png", -1, c.level), GFL_NO_ERROR);
            gflSetTeamSize(1);
            const FileBytes file = readFile(path("p.png"));
            first = first.empty() ? file : first;
            ASSERT_TRUE(file == first) << team;
        }
        int chunks = 0;
        const FileBytes stream = pixelStream(first, chunks);
        EXPECT_EQ(chunks > 1, c.severalBands);
        // Another unpacker than libpng's reads the stream to its last byte, with its check sum.
        const std::size_t bytes = (std::size_t(c.width) * picture->bytesPerPixel + 1) * std::size_t(c.height);
        FileBytes rows(bytes + 1);
        uLongf unpacked = rows.size();
        uLong used = stream.size();
        EXPECT_EQ(uncompress2(rows.data(), &unpacked, stream.data(), &used), Z_OK);
        EXPECT_EQ(unpacked, bytes);
        EXPECT_EQ(used, stream.size());
        Picture read;
        ASSERT_EQ(load(path("p.png"), read), GFL_NO_ERROR);
        EXPECT_TRUE(samplesOf(*read) == samplesOf(*picture));
    }
}

} // namespace
