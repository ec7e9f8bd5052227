#include <csignal>

#include <sys/resource.h>

#include <tiffio.h>

#include "GflFixture.h"

// TIFF files, whose strips and tiles several threads pack and unpack, against the library on one thread.
namespace {

/// How a file is stored. Rows per strip, or width and height of a tile.
struct Storage
{
    const char *name;
    int components, bits, compression;
    int predictor = PREDICTOR_NONE;
    int rows = 7;
    int tileWidth = 0;
    bool bigEndian = false;
    bool planar = false;
    int photometric = -1; ///< -1: grey or RGB.
    int fillOrder = FILLORDER_MSB2LSB;
};

constexpr int kWidth = 301, kHeight = 1207; // several bands for each team

std::uint32_t sampleOf(std::uint32_t x, std::uint32_t y, std::uint32_t c)
{
    return x * 37 + y * 501 + c * 7000 + ((x * 7919 + y * 104729 + c * 1299709) * 2654435761u >> 26);
}

/// One strip or tile: `samples` samples for each of `width` x `height` pixels, beginning with sample `first`.
FileBytes pieceOf(const Storage &s, std::uint32_t x0, std::uint32_t y0, std::uint32_t width, std::uint32_t height,
                  std::uint32_t first, std::uint32_t samples)
{
    FileBytes bytes;
    for (std::uint32_t y = y0; y < y0 + height; ++y) {
        std::uint32_t window = 0;
        int held = 0;
        for (std::uint32_t i = 0; i < width * samples; ++i) {
            const std::uint32_t value = sampleOf(x0 + i / samples, y, first + i % samples);
            const float real = float(value & 0xFFFF) / 65536.0f;
            std::uint8_t raw[4];
            if (s.bits == 32) {
                std::memcpy(raw, &real, 4);
                bytes.insert(bytes.end(), raw, raw + 4);
            } else if (s.bits == 16) { // in the machine's order; the library swaps
                std::memcpy(raw, &value, 2);
                bytes.insert(bytes.end(), raw, raw + 2);
            } else { // packed, the first sample in the highest bits
                window = window << s.bits | (value & ((1u << s.bits) - 1));
                for (held += s.bits; held >= 8; held -= 8)
                    bytes.push_back(std::uint8_t(window >> (held - 8)));
            }
        }
        if (held > 0)
            bytes.push_back(std::uint8_t(window << (8 - held)));
    }
    return bytes;
}

struct Tiff
{
    TIFF *handle;
    Tiff(const std::string &name, const char *mode) : handle(TIFFOpen(name.c_str(), mode)) {}
    ~Tiff() { TIFFClose(handle); }
    void set(std::uint32_t tag, int value) { TIFFSetField(handle, tag, value); }
};

void writeStored(const std::string &name, const Storage &s)
{
    Tiff tiff(name, s.bigEndian ? "wb" : "wl");
    tiff.set(TIFFTAG_IMAGEWIDTH, kWidth);
    tiff.set(TIFFTAG_IMAGELENGTH, kHeight);
    tiff.set(TIFFTAG_BITSPERSAMPLE, s.bits);
    tiff.set(TIFFTAG_SAMPLESPERPIXEL, s.components);
    tiff.set(TIFFTAG_PHOTOMETRIC, s.photometric >= 0  ? s.photometric
                                  : s.components == 1 ? PHOTOMETRIC_MINISBLACK
                                                      : PHOTOMETRIC_RGB);
    tiff.set(TIFFTAG_PLANARCONFIG, s.planar ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    tiff.set(TIFFTAG_SAMPLEFORMAT, s.bits == 32 ? SAMPLEFORMAT_IEEEFP : SAMPLEFORMAT_UINT);
    tiff.set(TIFFTAG_FILLORDER, s.fillOrder);
    tiff.set(TIFFTAG_COMPRESSION, s.compression);
    if (s.predictor != PREDICTOR_NONE)
        tiff.set(TIFFTAG_PREDICTOR, s.predictor);
    std::vector<std::uint16_t> colours(3u << s.bits % 16);
    for (std::size_t i = 0; i < colours.size(); ++i)
        colours[i] = std::uint16_t(i * 77);
    if (s.photometric == PHOTOMETRIC_PALETTE)
        TIFFSetField(tiff.handle, TIFFTAG_COLORMAP, colours.data(), colours.data() + colours.size() / 3,
                     colours.data() + colours.size() / 3 * 2);
    if (s.tileWidth > 0) {
        tiff.set(TIFFTAG_TILEWIDTH, s.tileWidth);
        tiff.set(TIFFTAG_TILELENGTH, s.rows);
    } else {
        tiff.set(TIFFTAG_ROWSPERSTRIP, s.rows);
    }
    const auto components = std::uint32_t(s.components), rows = std::uint32_t(s.rows), across = std::uint32_t(s.tileWidth);
    std::uint32_t index = 0;
    for (std::uint32_t plane = 0; plane < (s.planar ? components : 1); ++plane)
        for (std::uint32_t y = 0; y < std::uint32_t(kHeight); y += rows)
            for (std::uint32_t x = 0; x < std::uint32_t(kWidth); x += across ? across : std::uint32_t(kWidth)) {
                FileBytes piece =
                    pieceOf(s, x, y, across ? across : std::uint32_t(kWidth),
                            across ? rows : std::min(rows, std::uint32_t(kHeight) - y), plane, s.planar ? 1 : components);
                const auto bytes = tmsize_t(piece.size());
                ASSERT_EQ(across ? TIFFWriteEncodedTile(tiff.handle, index, piece.data(), bytes)
                                 : TIFFWriteEncodedStrip(tiff.handle, index, piece.data(), bytes),
                          bytes);
                ++index;
            }
}

constexpr int kDeflate = COMPRESSION_ADOBE_DEFLATE, kLzw = COMPRESSION_LZW, kNone = COMPRESSION_NONE;
constexpr int kDifference = PREDICTOR_HORIZONTAL;

constexpr Storage kStorages[] = {
    {"deflated RGB 8", 3, 8, kDeflate},
    {"deflated differences, RGB 8", 3, 8, kDeflate, kDifference},
    {"deflated differences, RGBA 16, other order", 4, 16, kDeflate, kDifference, 5, 0, true},
    {"deflated grey 16, other order", 1, 16, kDeflate, PREDICTOR_NONE, 64, 0, true},
    {"deflated float", 3, 32, kDeflate, PREDICTOR_NONE, 30},
    {"deflated differences of the bits of floats", 3, 32, kDeflate, kDifference, 30, 0, true},
    {"deflated differences of floats", 3, 32, kDeflate, PREDICTOR_FLOATINGPOINT, 30},
    {"deflated grey 12", 1, 12, kDeflate},
    {"deflated, bits reversed", 3, 8, kDeflate, kDifference, 7, 0, false, false, -1, FILLORDER_LSB2MSB},
    {"old number of deflate", 1, 8, COMPRESSION_DEFLATE, kDifference},
    {"deflated one row at a time", 3, 8, kDeflate, kDifference, 1},
    {"deflated in one strip", 3, 8, kDeflate, kDifference, kHeight},
    {"deflated planes", 3, 16, kDeflate, kDifference, 33, 0, true, true},
    {"LZW differences, RGB 16", 3, 16, kLzw, kDifference},
    {"LZW palette", 1, 8, kLzw, PREDICTOR_NONE, 7, 0, false, false, PHOTOMETRIC_PALETTE},
    {"LZW, white is zero", 1, 8, kLzw, PREDICTOR_NONE, 7, 0, false, false, PHOTOMETRIC_MINISWHITE},
    {"LZW inks", 4, 8, kLzw, PREDICTOR_NONE, 7, 0, false, false, PHOTOMETRIC_SEPARATED},
    {"plain RGB 16, other order", 3, 16, kNone, PREDICTOR_NONE, 7, 0, true},
    {"plain bits", 1, 1, kNone},
    {"plain planes", 3, 8, kNone, PREDICTOR_NONE, 50, 0, false, true},
    {"deflated tiles", 3, 16, kDeflate, kDifference, 48, 64},
    {"LZW tiles in planes", 3, 8, kLzw, kDifference, 16, 304, false, true},
    {"plain tiles", 1, 8, kNone, PREDICTOR_NONE, 160, 16},
    {"run lengths, which one thread reads", 3, 8, COMPRESSION_PACKBITS},
};

class TiffTeamTest : public GflTest
{
protected:
    ~TiffTeamTest() override { gflSetTeamSize(1); }

    struct Result
    {
        int code;
        FileBytes samples;
    };
    Result loaded(const std::string &name, int team)
    {
        gflSetTeamSize(team);
        Picture read;
        const int code = load(name, read);
        return {code, read ? samplesOf(*read) : FileBytes()};
    }
};

constexpr int kTeams[] = {1, 2, 3, 8};

TEST_F(TiffTeamTest, EveryTeamReadsWhatTheLibraryReads)
{
    for (const Storage &s : kStorages) {
        SCOPED_TRACE(s.name);
        const std::string name = path("s.tif");
        writeStored(name, s);
        const FileBytes known =
            s.bits >= 8 && s.bits != 12 && s.photometric < 0 && !s.planar
                ? pieceOf(s, 0, 0, std::uint32_t(kWidth), std::uint32_t(kHeight), 0, std::uint32_t(s.components))
                : loaded(name, 1).samples;
        for (const int team : kTeams) {
            const Result result = loaded(name, team);
            EXPECT_EQ(result.code, GFL_NO_ERROR) << team;
            EXPECT_TRUE(result.samples == known) << team;
        }
    }
}

/// What the library reads from strips of 8-bit samples, row by row.
std::pair<int, FileBytes> readByLibrary(const std::string &name)
{
    TIFFSetErrorHandler(nullptr);
    const Tiff tiff(name, "rm");
    const auto rowBytes = std::size_t(TIFFScanlineSize(tiff.handle));
    FileBytes samples(rowBytes * kHeight);
    for (std::uint32_t y = 0; y < std::uint32_t(kHeight); ++y)
        if (TIFFReadScanline(tiff.handle, samples.data() + rowBytes * y, y) != 1)
            return {GFL_ERROR_FILE_READ, {}};
    return {GFL_NO_ERROR, samples};
}

TEST_F(TiffTeamTest, EveryTeamReportsDamageLikeTheLibrary)
{
    const Storage storages[] = {{"deflate", 3, 8, kDeflate, kDifference, 33},
                                {"deflated rows", 3, 8, kDeflate, kDifference, 1},
                                {"LZW", 3, 8, kLzw, kDifference, 33},
                                {"plain", 3, 8, kNone, PREDICTOR_NONE, 33},
                                {"LZW tiles", 3, 8, kLzw, kDifference, 48, 64}};
    for (const Storage &s : storages) {
        writeStored(path("whole.tif"), s);
        const FileBytes whole = readFile(path("whole.tif"));
        std::vector<std::pair<std::size_t, std::size_t>> pieces; // offset and length
        {
            const Tiff tiff(path("whole.tif"), "r");
            for (std::uint32_t i = 0; i < (s.tileWidth ? TIFFNumberOfTiles(tiff.handle) : TIFFNumberOfStrips(tiff.handle)); ++i)
                pieces.emplace_back(TIFFGetStrileOffset(tiff.handle, i), TIFFGetStrileByteCount(tiff.handle, i));
        }
        const struct
        {
            const char *name;
            std::size_t piece; ///< As a fraction of 100.
            void (*damage)(std::uint8_t *piece, std::size_t bytes);
        } damages[] = {
            {"a changed byte in the middle", 50, [](std::uint8_t *piece, std::size_t bytes) { piece[bytes / 2] ^= 0x10; }},
            {"a changed check sum", 70, [](std::uint8_t *piece, std::size_t bytes) { piece[bytes - 1] ^= 0x10; }},
            {"a changed first byte", 0, [](std::uint8_t *piece, std::size_t) { piece[0] ^= 0x21; }},
            {"zeros to the end", 99, [](std::uint8_t *piece, std::size_t bytes) { std::fill_n(piece + 9, bytes - 9, 0); }},
            {"the old form of LZW at the start", 0,
             [](std::uint8_t *piece, std::size_t) {
                 piece[0] = 0;
                 piece[1] |= 1;
             }},
            {"the old form of LZW later", 60,
             [](std::uint8_t *piece, std::size_t) {
                 piece[0] = 0;
                 piece[1] |= 1;
             }},
        };
        const std::string name = path("damaged.tif");
        const auto expectAlike = [&] {
            const Result one = loaded(name, 1);
            const auto [code, samples] = s.tileWidth ? std::pair(one.code, one.samples) : readByLibrary(name);
            for (const int team : {1, 2, 5}) {
                const Result result = loaded(name, team);
                EXPECT_EQ(result.code, code) << team;
                EXPECT_TRUE(result.samples == samples) << team;
            }
            return code;
        };
        for (const auto &d : damages) {
            SCOPED_TRACE(std::string(s.name) + ": " + d.name);
            FileBytes bytes = whole;
            const auto &[offset, length] = pieces[std::min(pieces.size() * d.piece / 100, pieces.size() - 1)];
            d.damage(bytes.data() + offset, length);
            writeFile(name, bytes);
            expectAlike();
        }
        SCOPED_TRACE(std::string(s.name) + ": the last piece ends beyond the file");
        FileBytes bytes = whole;
        const auto last = std::uint32_t(pieces.back().first), beyond = std::uint32_t(whole.size() - pieces.back().second + 1);
        const auto *pattern = reinterpret_cast<const std::uint8_t *>(&last);
        const auto entry = std::find_end(bytes.begin(), bytes.end(), pattern, pattern + 4);
        ASSERT_NE(entry, bytes.end());
        std::memcpy(&*entry, &beyond, 4);
        writeFile(name, bytes);
        EXPECT_EQ(expectAlike(), GFL_ERROR_FILE_READ);
    }
}

/// Samples in the form of LZW that very old files have, which begins with the lowest bits: codes of 9 bits, cleared before they
/// grow.
FileBytes oldLzw(const FileBytes &samples)
{
    constexpr unsigned kClear = 256, kEnd = 257, kBits = 9;
    constexpr std::size_t kBetweenClears = 200;
    FileBytes packed;
    std::uint32_t window = 0;
    unsigned held = 0;
    const auto put = [&](unsigned code) {
        window |= code << held;
        for (held += kBits; held >= 8; held -= 8, window >>= 8)
            packed.push_back(std::uint8_t(window));
    };
    for (std::size_t i = 0; i < samples.size(); ++i) {
        if (i % kBetweenClears == 0)
            put(kClear);
        put(samples[i]);
    }
    put(kEnd);
    packed.push_back(std::uint8_t(window));
    return packed;
}

// For a single reader, the first strip decides on the form of all.
TEST_F(TiffTeamTest, EveryTeamTakesTheFormOfLzwFromTheFirstStrip)
{
    constexpr int kRows = 300; // for each of two strips, each of which is a thread's work
    for (const auto &[firstOld, secondOld] : {std::pair(true, true), {true, false}, {false, true}}) {
        SCOPED_TRACE(std::to_string(firstOld) + std::to_string(secondOld));
        const Storage s{"", 3, 8, kLzw, PREDICTOR_NONE, kRows};
        FileBytes samples;
        {
            Tiff tiff(path("o.tif"), "wl");
            for (const auto &[tag, value] : {std::pair(TIFFTAG_IMAGEWIDTH, kWidth),
                                             {TIFFTAG_IMAGELENGTH, 2 * kRows},
                                             {TIFFTAG_BITSPERSAMPLE, 8},
                                             {TIFFTAG_SAMPLESPERPIXEL, 3},
                                             {TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB},
                                             {TIFFTAG_ROWSPERSTRIP, kRows},
                                             {TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG},
                                             {TIFFTAG_COMPRESSION, kLzw}})
                tiff.set(std::uint32_t(tag), value);
            for (const bool old : {firstOld, secondOld}) {
                const std::uint32_t strip = samples.empty() ? 0 : 1;
                FileBytes piece = pieceOf(s, 0, strip * kRows, std::uint32_t(kWidth), kRows, 0, 3);
                samples.insert(samples.end(), piece.begin(), piece.end());
                if (old)
                    piece = oldLzw(piece);
                const auto bytes = tmsize_t(piece.size());
                ASSERT_EQ(old ? TIFFWriteRawStrip(tiff.handle, strip, piece.data(), bytes)
                              : TIFFWriteEncodedStrip(tiff.handle, strip, piece.data(), bytes),
                          bytes);
            }
        }
        for (const int team : kTeams) {
            const Result result = loaded(path("o.tif"), team);
            EXPECT_EQ(result.code, firstOld == secondOld ? GFL_NO_ERROR : GFL_ERROR_FILE_READ) << team;
            if (firstOld == secondOld) {
                EXPECT_TRUE(result.samples == samples) << team;
            }
        }
    }
}

TEST_F(TiffTeamTest, EveryTeamWritesTheLibrarysStrips)
{
    writeFile(path("photograph.jpg"), photograph());
    Picture source;
    ASSERT_EQ(load(path("photograph.jpg"), source), GFL_NO_ERROR);
    GflExif *const exif = gflBitmapGetEXIF2(source.get()); // in the other byte order, which its file takes
    for (const auto &[components, bits] : {std::pair(1, 8), {3, 8}, {3, 16}, {4, 16}, {3, 32}})
        for (const int compression : {0, 2, 4})
            for (const bool bigEndian : {false, true}) {
                SCOPED_TRACE(std::to_string(components) + "x" + std::to_string(bits) + ", compression " +
                             std::to_string(compression) + (bigEndian ? ", other order" : ""));
                const Picture picture = makePicture(kWidth, 907, components, bits);
                paint(*picture);
                gflBitmapSetEXIF2(picture.get(), bigEndian ? exif : nullptr);
                FileBytes first;
                for (const int team : {1, 3}) {
                    gflSetTeamSize(team);
                    ASSERT_EQ(save(path("w.tif"), picture.get(), "tiff", -1, compression), GFL_NO_ERROR);
                    const FileBytes file = readFile(path("w.tif"));
                    first = first.empty() ? file : first;
                    EXPECT_TRUE(file == first) << team;
                }
                const Tiff made(path("w.tif"), "r");
                Tiff plain(path("plain.tif"), bigEndian ? "wb" : "wl");
                std::uint32_t rows = 0;
                TIFFGetField(made.handle, TIFFTAG_ROWSPERSTRIP, &rows);
                for (const int tag : {TIFFTAG_BITSPERSAMPLE, TIFFTAG_SAMPLESPERPIXEL, TIFFTAG_COMPRESSION, TIFFTAG_PHOTOMETRIC,
                                      TIFFTAG_PLANARCONFIG, TIFFTAG_SAMPLEFORMAT}) {
                    std::uint16_t value = 0;
                    TIFFGetFieldDefaulted(made.handle, std::uint32_t(tag), &value);
                    plain.set(std::uint32_t(tag), value);
                }
                plain.set(TIFFTAG_IMAGEWIDTH, kWidth);
                plain.set(TIFFTAG_IMAGELENGTH, 907);
                plain.set(TIFFTAG_ROWSPERSTRIP, int(rows));
                const std::uint16_t alpha = EXTRASAMPLE_UNASSALPHA;
                if (components == 4)
                    TIFFSetField(plain.handle, TIFFTAG_EXTRASAMPLES, 1, &alpha);
                if (compression)
                    plain.set(TIFFTAG_PREDICTOR, bits == 32 ? PREDICTOR_FLOATINGPOINT : PREDICTOR_HORIZONTAL);
                FileBytes samples = samplesOf(*picture);
                const std::size_t stripBytes = rows * std::size_t(kWidth) * picture->bytesPerPixel;
                std::uint32_t strips = 0;
                for (std::size_t at = 0; at < samples.size(); at += stripBytes)
                    TIFFWriteEncodedStrip(plain.handle, strips++, samples.data() + at,
                                          tmsize_t(std::min(stripBytes, samples.size() - at)));
                ASSERT_EQ(TIFFNumberOfStrips(made.handle), strips);
                ASSERT_GT(strips, 1u);
                TIFFFlush(plain.handle);
                const Tiff reread(path("plain.tif"), "r");
                for (std::uint32_t i = 0; i < strips; ++i) {
                    const auto stripOf = [&](TIFF *tiff) {
                        FileBytes strip(std::size_t(TIFFGetStrileByteCount(tiff, i)));
                        EXPECT_EQ(TIFFReadRawStrip(tiff, i, strip.data(), tmsize_t(strip.size())), tmsize_t(strip.size()));
                        return strip;
                    };
                    EXPECT_TRUE(stripOf(made.handle) == stripOf(reread.handle)) << i;
                }
            }
    gflFreeEXIF2(exif);
}

TEST_F(TiffTeamTest, AFullDiskIsReportedByEveryTeam)
{
    const Picture picture = makePicture(701, 907, 3, 16);
    std::uint32_t state = 1;
    for (int y = 0; y < 907; ++y) // noise, which no format can pack
        for (int i = 0; i < 701 * 6; ++i)
            sampleAt(*picture, 0, y, 0)[i] = std::uint8_t((state = state * 1664525u + 1013904223u) >> 24);
    const FileBytes old{'o', 'l', 'd'};
    writeFile(path("target"), old);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN); // a limit makes writes fail like a full disk does
    for (const auto &[format, compression] : {std::pair("tiff", 0), {"tiff", 2}, {"tiff", 4}, {"png", -1}})
        for (const int team : kTeams)
            for (const rlim_t bytes : {300u, 1500000u}) {
                const rlimit small{bytes, before.rlim_max};
                gflSetTeamSize(team);
                setrlimit(RLIMIT_FSIZE, &small);
                const int code = save(path("target"), picture.get(), format, -1, compression);
                setrlimit(RLIMIT_FSIZE, &before);
                EXPECT_EQ(code, GFL_ERROR_FILE_WRITE) << format << " " << compression << " " << team << " " << bytes;
            }
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(readFile(path("target")), old);
    EXPECT_EQ(filesInFolder(), 1u);
}

} // namespace
