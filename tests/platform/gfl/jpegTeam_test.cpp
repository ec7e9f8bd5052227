#include <csignal>
#include <cstdio>

#include <sys/resource.h>

#include <jpeglib.h>

#include "GflFixture.h"
#include "JpegPart.h"
#include "RegularFile.h"

// JPEG files written and read by several threads, against the library's own writer and reader on one thread.
namespace {

/// How a file is coded. The defaults are those of the layer's own files.
struct Coding
{
    const char *name;
    int components = 3;
    int across = 1, down = 1; ///< Pixels per colour sample.
    int intervalUnits = 0;    ///< Restart interval; 0: none.
    int intervalRows = 0;     ///< The same in rows of units.
    bool optimised = false;
    bool progressive = false;
    bool arithmetic = false;
    bool scans = false; ///< One scan for each component.
};

/// A picture whose rows all differ: a gradient with grain that grows from left to right, about as much as in a photograph.
Picture makeNoisy(int width, int height, int components)
{
    Picture picture = makePicture(width, height, components, 8);
    paint(*picture);
    std::uint32_t state = 1;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < components; ++c) {
                state = state * 1664525u + 1013904223u;
                std::uint8_t &sample = *sampleAt(*picture, x, y, c);
                sample = std::uint8_t(std::clamp(sample + int(state >> 24) * x / (12 * width) - 5, 0, 255));
            }
    return picture;
}

FileBytes encode(const GflBitmap &bitmap, const Coding &coding)
{
    jpeg_compress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    jpeg_create_compress(&info);
    unsigned char *bytes = nullptr;
    unsigned long count = 0;
    jpeg_mem_dest(&info, &bytes, &count);
    info.image_width = JDIMENSION(bitmap.width);
    info.image_height = JDIMENSION(bitmap.height);
    info.input_components = coding.components;
    info.in_color_space = coding.components == 1 ? JCS_GRAYSCALE : coding.components == 3 ? JCS_RGB : JCS_CMYK;
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, 92, TRUE);
    info.comp_info[0].h_samp_factor = coding.across;
    info.comp_info[0].v_samp_factor = coding.down;
    for (int c = 1; c < info.num_components; ++c)
        info.comp_info[c].h_samp_factor = info.comp_info[c].v_samp_factor = 1;
    info.optimize_coding = coding.optimised;
    info.arith_code = coding.arithmetic;
    info.restart_interval = unsigned(coding.intervalUnits);
    info.restart_in_rows = coding.intervalRows;
    if (coding.progressive)
        jpeg_simple_progression(&info);
    const jpeg_scan_info scans[] = {{1, {0}, 0, 63, 0, 0}, {1, {1}, 0, 63, 0, 0}, {1, {2}, 0, 63, 0, 0}};
    if (coding.scans) {
        info.scan_info = scans;
        info.num_scans = 3;
    }
    jpeg_start_compress(&info, TRUE);
    while (info.next_scanline < info.image_height) {
        JSAMPROW row = sampleAt(bitmap, 0, int(info.next_scanline), 0);
        jpeg_write_scanlines(&info, &row, 1);
    }
    jpeg_finish_compress(&info);
    jpeg_destroy_compress(&info);
    FileBytes result(bytes, bytes + count);
    std::free(bytes);
    return result;
}

/// All samples, row by row, as the library decodes them, and how often it complained.
struct Decoded
{
    FileBytes samples;
    long warnings = 0;
};

Decoded decode(const FileBytes &file)
{
    Decoded result;
    jpeg_decompress_struct info;
    jpeg_error_mgr errors;
    info.err = jpeg_std_error(&errors);
    errors.emit_message = [](j_common_ptr common, int level) { common->err->num_warnings += level < 0; };
    jpeg_create_decompress(&info);
    jpeg_mem_src(&info, file.data(), file.size());
    jpeg_read_header(&info, TRUE);
    jpeg_start_decompress(&info);
    const std::size_t rowBytes = std::size_t(info.output_width) * std::size_t(info.output_components);
    result.samples.resize(rowBytes * info.output_height);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = result.samples.data() + rowBytes * info.output_scanline;
        jpeg_read_scanlines(&info, &row, 1);
    }
    result.warnings = errors.num_warnings;
    jpeg_destroy_decompress(&info);
    return result;
}

constexpr int kTeams[] = {1, 2, 3, 8};

class JpegTeamTest : public GflTest
{
protected:
    ~JpegTeamTest() override { gflSetTeamSize(1); }

    /// What reading `file` with each team gives must be what one thread gives: code and samples. Returns the latter.
    std::pair<int, FileBytes> readByAllTeams(const FileBytes &file)
    {
        writeFile(path("read.jpg"), file);
        std::pair<int, FileBytes> first;
        for (const int team : kTeams) {
            gflSetTeamSize(team);
            Picture picture;
            const int code = load(path("read.jpg"), picture);
            const std::pair<int, FileBytes> result(code, picture ? samplesOf(*picture) : FileBytes());
            if (team == 1)
                first = result;
            EXPECT_EQ(result.first, first.first) << team;
            EXPECT_TRUE(result.second == first.second) << team;
        }
        return first;
    }
};

constexpr Coding kWritten[] = {{"4:4:4"},          {"4:2:2", 3, 2, 1}, {"4:2:0", 3, 2, 2},
                               {"4:4:0", 3, 1, 2}, {"4:1:1", 3, 4, 1}, {"grey", 1}};

TEST_F(JpegTeamTest, FilesDoNotDependOnTheTeamAndHoldThePixelsOfTheLibrarysWriter)
{
    // Each has a megapixel: whole bands, few units in a row, a last band of a single row.
    const std::pair<int, int> sizes[] = {{1024, 1024}, {37, 30001}, {4099, 257}};
    for (const Coding &coding : kWritten)
        for (const auto &[width, height] : sizes) {
            SCOPED_TRACE(std::string(coding.name) + " " + std::to_string(width) + " x " + std::to_string(height));
            const Picture picture = makeNoisy(width, height, coding.components);
            const FileBytes expected = encode(*picture, coding);
            writeFile(path("expected.jpg"), expected);
            Picture packed;
            ASSERT_EQ(load(path("expected.jpg"), packed, GFL_LOAD_METADATA | GFL_LOAD_METADATA_ONLY), GFL_NO_ERROR);
            gflBitmapCopyPacking(packed.get(), picture.get());
            FileBytes first;
            for (const int team : kTeams) {
                gflSetTeamSize(team);
                ASSERT_EQ(save(path("written.jpg"), picture.get(), "jpeg"), GFL_NO_ERROR);
                const FileBytes file = readFile(path("written.jpg"));
                if (team == 1)
                    first = file;
                EXPECT_TRUE(file == first) << team;
            }
            const Decoded samples = decode(first);
            EXPECT_TRUE(samples.samples == decode(expected).samples);
            EXPECT_EQ(samples.warnings, 0);
            EXPECT_LT(double(first.size()), double(expected.size()) * 1.01);
            EXPECT_TRUE(readByAllTeams(first).second == samples.samples);
        }
}

TEST_F(JpegTeamTest, RowsAreConvertedInBandsToo)
{
    for (const auto &[components, bits] : {std::pair(4, 8), std::pair(3, 16), std::pair(4, 32)}) {
        SCOPED_TRACE(std::to_string(components) + " x " + std::to_string(bits));
        const Picture picture = makePicture(1033, 1021, components, bits);
        paint(*picture);
        FileBytes files[2];
        for (const int team : {1, 3}) {
            gflSetTeamSize(team);
            ASSERT_EQ(save(path("a.jpg"), picture.get(), "jpeg"), GFL_NO_ERROR);
            files[team / 3] = readFile(path("a.jpg"));
        }
        EXPECT_TRUE(files[0] == files[1]);
    }
}

TEST_F(JpegTeamTest, PixelsDoNotDependOnTheTeamAndAreThoseOfTheLibrarysReader)
{
    const Coding codings[] = {
        {"4:4:4 without intervals"},
        {"4:2:2 without intervals", 3, 2, 1},
        {"4:2:0 without intervals", 3, 2, 2},
        {"4:4:0 without intervals", 3, 1, 2},
        {"4:1:0 without intervals", 3, 4, 2},
        {"grey without intervals", 1},
        {"grey with the factors of colour", 1, 2, 2, 0, 1},
        {"4:4:4, a row", 3, 1, 1, 0, 1},
        {"4:2:2, a row", 3, 2, 1, 0, 1},
        {"4:2:0, a row", 3, 2, 2, 0, 1},
        {"4:2:0, a row, tables made for the file", 3, 2, 2, 0, 1, true},
        {"4:4:0, a row", 3, 1, 2, 0, 1},
        {"4:2:0, three rows", 3, 2, 2, 0, 3},
        {"4:2:0, more than half of the picture", 3, 2, 2, 0, 17},
        {"4:2:0, a unit", 3, 2, 2, 1},
        {"4:4:4, four units", 3, 1, 1, 4},
        {"4:2:2, units that fill whole rows now and then", 3, 2, 1, 22},
        {"4:2:0, units that never do", 3, 2, 2, 41 * 7 + 1},
        {"inks, five units", 4, 1, 1, 5},
        {"inks without intervals", 4, 2, 2},
        {"one scan for each colour", 3, 2, 2, 0, 1, false, false, false, true},
        {"progressive", 3, 2, 2, 0, 1, false, true},
        {"arithmetic", 3, 2, 2, 0, 1, false, false, true},
    };
    for (const Coding &coding : codings)
        for (const auto &[width, height] : {std::pair(528, 480), std::pair(643, 509)}) {
            SCOPED_TRACE(std::string(coding.name) + " " + std::to_string(width) + " x " + std::to_string(height));
            const FileBytes file = encode(*makeNoisy(width, height, coding.components), coding);
            const auto [code, samples] = readByAllTeams(file);
            ASSERT_EQ(code, GFL_NO_ERROR);
            if (coding.components < 4) {
                EXPECT_TRUE(samples == decode(file).samples);
            }
        }
}

// If parts were not read without a complaint, the layer would read the file once more on one thread, and nobody would notice.
TEST_F(JpegTeamTest, PartsAreFilesThatTheLibraryReadsWithoutAComplaint)
{
    const struct
    {
        Coding coding;
        int step; ///< Rows of units from one place where a part may begin to the next.
    } cases[] = {{{"a row", 3, 1, 1, 0, 1}, 1},
                 {{"three rows", 3, 1, 1, 0, 3}, 3},
                 {{"four units", 3, 1, 1, 4}, 2},
                 {{"eleven units", 3, 1, 1, 11}, 1},
                 {{"grey", 1, 2, 2, 12}, 2}};
    for (const auto &[coding, step] : cases) {
        SCOPED_TRACE(coding.name);
        const int width = 528, height = 473, unitRows = 60;
        const FileBytes bytes = encode(*makeNoisy(width, height, coding.components), coding);
        writeFile(path("parts.jpg"), bytes);
        const FileBytes whole = decode(bytes).samples;
        jpeg_decompress_struct info;
        jpeg_error_mgr errors;
        info.err = jpeg_std_error(&errors);
        jpeg_create_decompress(&info);
        jpeg_mem_src(&info, bytes.data(), bytes.size());
        jpeg_read_header(&info, TRUE);
        const RegularFile file(path("parts.jpg"));
        const auto intervals = gfl::JpegIntervals::find(file, info);
        jpeg_destroy_decompress(&info);
        ASSERT_TRUE(intervals);
        EXPECT_EQ(intervals->unitRows(), unitRows);
        EXPECT_EQ(intervals->step(), step);
        for (int first = 0; first < unitRows; first += 7 * step) {
            const int last = std::min(first + 7 * step, unitRows);
            gfl::JpegPart part(*intervals, first, last);
            FileBytes stream;
            for (auto block = part.block(); block.second > 0; block = part.block())
                stream.insert(stream.end(), block.first, block.first + block.second);
            const Decoded rows = decode(stream);
            const std::size_t rowBytes = std::size_t(width * coding.components);
            EXPECT_EQ(rows.warnings, 0) << first;
            ASSERT_EQ(rows.samples.size(), rowBytes * std::size_t(std::min(last * 8, height) - first * 8)) << first;
            EXPECT_EQ(std::memcmp(rows.samples.data(), &whole[rowBytes * std::size_t(first) * 8], rows.samples.size()), 0)
                << first;
        }
    }
}

TEST_F(JpegTeamTest, DamagedFilesAreTheSameToEveryTeam)
{
    const auto markers = [](const FileBytes &file) {
        std::vector<std::size_t> found;
        for (std::size_t i = 0; i + 1 < file.size(); ++i)
            if (file[i] == 0xFF && file[i + 1] >= JPEG_RST0 && file[i + 1] < JPEG_RST0 + 8)
                found.push_back(i);
        return found;
    };
    const Picture picture = makeNoisy(528, 480, 3);
    const FileBytes plain = encode(*picture, {"", 3, 2, 2}), divided = encode(*picture, {"", 3, 2, 2, 0, 1});
    const std::vector<std::size_t> at = markers(divided);
    ASSERT_EQ(at.size(), 29u);
    const auto edited = [&](auto edit) {
        FileBytes file = divided;
        edit(file);
        return file;
    };
    const auto cut = [](const FileBytes &file, std::size_t length) {
        return FileBytes(file.begin(), file.begin() + std::ptrdiff_t(length));
    };
    const auto position = [&](std::size_t marker) { return std::ptrdiff_t(at[marker]); };
    const struct
    {
        const char *name;
        FileBytes file;
        int code;
    } cases[] = {
        {"a marker is missing", edited([&](FileBytes &f) { f.erase(f.begin() + position(9), f.begin() + position(9) + 2); }),
         GFL_ERROR_FILE_READ},
        {"an interval is missing", edited([&](FileBytes &f) { f.erase(f.begin() + position(9), f.begin() + position(10)); }),
         GFL_ERROR_FILE_READ},
        {"eight intervals are missing", edited([&](FileBytes &f) { f.erase(f.begin() + position(9), f.begin() + position(17)); }),
         GFL_ERROR_FILE_READ},
        {"an interval too many", edited([&](FileBytes &f) {
             f.insert(f.begin() + position(9), divided.begin() + position(1), divided.begin() + position(9));
         }),
         GFL_NO_ERROR},
        {"a wrong number", edited([&](FileBytes &f) { f[at[9] + 1] ^= 1; }), GFL_ERROR_FILE_READ},
        {"another marker", edited([&](FileBytes &f) { f[at[9] + 1] = 0xDC; }), GFL_ERROR_FILE_READ},
        {"an interval without its end",
         edited([&](FileBytes &f) { f.erase(f.begin() + position(9) - 20, f.begin() + position(9)); }), GFL_ERROR_FILE_READ},
        {"bytes too many before a marker", edited([&](FileBytes &f) { f.insert(f.begin() + position(9), 5, 0x11); }),
         GFL_NO_ERROR},
        {"fill bytes before a marker", edited([&](FileBytes &f) { f.insert(f.begin() + position(9), 3, 0xFF); }), GFL_NO_ERROR},
        {"a marker before the end", edited([&](FileBytes &f) {
             f.insert(f.end() - 2, {0xFF, 0xD5});
         }),
         GFL_NO_ERROR},
        {"no end marker", cut(divided, divided.size() - 2), GFL_ERROR_FILE_READ},
        {"cut off", cut(divided, divided.size() / 2), GFL_ERROR_FILE_READ},
        {"cut off at a marker", cut(divided, at[14]), GFL_ERROR_FILE_READ},
        {"more behind the end", edited([&](FileBytes &f) { f.insert(f.end(), divided.begin(), divided.end()); }), GFL_NO_ERROR},
        {"cut off, without intervals", cut(plain, plain.size() / 2), GFL_ERROR_FILE_READ},
        {"cut off near the end, without intervals", cut(plain, plain.size() - 40), GFL_ERROR_FILE_READ},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(readByAllTeams(c.file).first, c.code);
    }
    std::uint32_t state = 7;
    for (int i = 0; i < 60; ++i) {
        FileBytes file = i % 2 ? divided : plain;
        state = state * 1664525u + 1013904223u;
        file[600 + state % (file.size() - 600)] ^= std::uint8_t(1u << state % 8);
        SCOPED_TRACE(i);
        readByAllTeams(file);
    }
}

TEST_F(JpegTeamTest, DamageStaysWithinItsBand)
{
    const Picture picture = makeNoisy(1033, 1021, 3);
    gflSetTeamSize(2);
    ASSERT_EQ(save(path("whole.jpg"), picture.get(), "jpeg"), GFL_NO_ERROR);
    FileBytes file = readFile(path("whole.jpg"));
    const Decoded whole = decode(file);
    const std::size_t middle = file.size() / 2;
    std::fill(file.begin() + std::ptrdiff_t(middle), file.begin() + std::ptrdiff_t(middle) + 400, 0x55);
    const Decoded damaged = decode(file);
    ASSERT_EQ(damaged.samples.size(), whole.samples.size());
    std::size_t differing = 0;
    for (std::size_t row = 0, bytes = 1033 * 3; row < 1021; ++row)
        differing += std::memcmp(&whole.samples[row * bytes], &damaged.samples[row * bytes], bytes) != 0;
    EXPECT_GT(differing, 0u);
    EXPECT_LE(differing, 16u); // a row of units, or two where the damage lies across their marker
}

TEST_F(JpegTeamTest, AFullDiskIsReportedByEveryTeam)
{
    const Picture picture = makeNoisy(1033, 1021, 3);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    for (const int team : kTeams)
        for (const rlim_t bytes : {rlim_t(100), rlim_t(200000)}) { // in the headers, or among the bands
            const rlimit small{bytes, before.rlim_max};
            gflSetTeamSize(team);
            setrlimit(RLIMIT_FSIZE, &small);
            const int code = save(path("full.jpg"), picture.get(), "jpeg");
            setrlimit(RLIMIT_FSIZE, &before);
            EXPECT_EQ(code, GFL_ERROR_FILE_WRITE) << team;
            EXPECT_EQ(filesInFolder(), 0u) << team;
        }
    std::signal(SIGXFSZ, handler);
}

} // namespace
