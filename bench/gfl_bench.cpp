#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include <unistd.h>

#include <benchmark/benchmark.h>

#include "gfl.h"

// Reading and writing files with the codec layer, by 1 and 2 threads. The files are in memory if the machine has such a folder.

namespace {

struct BitmapRelease
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
using Bitmap = std::unique_ptr<GflBitmap, BitmapRelease>;

class BenchFile
{
public:
    explicit BenchFile(const char *suffix)
        : path(((std::filesystem::is_directory("/dev/shm") ? std::filesystem::path("/dev/shm")
                                                           : std::filesystem::temp_directory_path()) /
                ("gfl_bench_" + std::to_string(::getpid())))
                   .string() +
               suffix)
    {
    }
    ~BenchFile() { std::filesystem::remove(path); }
    BenchFile(const BenchFile &) = delete;
    BenchFile &operator=(const BenchFile &) = delete;
    const char *name() const { return path.c_str(); }
    std::size_t bytes() const { return std::size_t(std::filesystem::file_size(path)); }

private:
    std::string path;
};

/// Hills in haze with fine grain, RGB with 8 bits, 3:2: as JPEG, about a third of a byte per pixel.
Bitmap drawHills(std::int64_t megapixels)
{
    Bitmap bitmap(static_cast<GflBitmap *>(std::calloc(1, sizeof(GflBitmap))));
    const int scale = int(std::sqrt(double(megapixels) * 1e6 / 6));
    bitmap->type = 0x0010;
    bitmap->width = 3 * scale;
    bitmap->height = 2 * scale;
    bitmap->bytesPerLine = (std::uint32_t(bitmap->width) * 3 + 3) / 4 * 4;
    bitmap->lineAlignment = 4;
    bitmap->bitsPerComponent = 8;
    bitmap->componentsPerPixel = bitmap->bytesPerPixel = 3;
    bitmap->transparentIndex = -1;
    bitmap->data = std::malloc(std::size_t(bitmap->bytesPerLine) * std::size_t(bitmap->height));
    std::uint32_t state = 1;
    for (int y = 0; y < bitmap->height; ++y) {
        auto *pixel = static_cast<std::uint8_t *>(bitmap->data) + std::size_t(bitmap->bytesPerLine) * std::size_t(y);
        for (int x = 0; x < bitmap->width; ++x, pixel += 3) {
            state = state * 1664525u + 1013904223u;
            const double hill =
                60.0 * std::sin(x * 0.011 + 3.0 * std::sin(y * 0.004)) + 20.0 * std::sin(x * 0.2) * std::sin(y * 0.17);
            const double base = 120.0 + hill + double(state >> 29);
            for (int c = 0; c < 3; ++c)
                pixel[c] = std::uint8_t(base + 10.0 * c);
        }
    }
    return bitmap;
}

/// A format with its compression or, for JPEG, without restart intervals.
struct Kind
{
    const char *format;
    int compression = -1;
    bool withoutIntervals = false;
};

bool save(const GflBitmap &bitmap, const Kind &kind, const BenchFile &file)
{
    GflSaveParams params;
    gflGetDefaultSaveParams(&params);
    params.formatIndex = gflGetFormatIndexByName(kind.format);
    params.compression = std::int16_t(kind.compression);
    if (gflSaveBitmapUTF8(file.name(), &bitmap, &params) != GFL_NO_ERROR)
        return false;
    // Turning a file drops its intervals.
    return !kind.withoutIntervals || (gflTransposeJpegUTF8(file.name(), file.name()) == GFL_NO_ERROR &&
                                      gflTransposeJpegUTF8(file.name(), file.name()) == GFL_NO_ERROR);
}

void report(benchmark::State &state, const GflBitmap &bitmap, const BenchFile &file)
{
    gflSetTeamSize(1);
    state.SetItemsProcessed(state.iterations() * std::int64_t(bitmap.width) * bitmap.height);
    state.counters["file_MB"] = double(file.bytes()) * 1e-6;
}

// Arguments: megapixels, threads.

void writeFile(benchmark::State &state, const Kind &kind)
{
    const Bitmap bitmap = drawHills(state.range(0));
    const BenchFile file(".written");
    gflSetTeamSize(int(state.range(1)));
    for (auto _ : state) {
        if (!save(*bitmap, kind, file))
            state.SkipWithError("the file was not written");
    }
    report(state, *bitmap, file);
}

void readFile(benchmark::State &state, const Kind &kind)
{
    const Bitmap bitmap = drawHills(state.range(0));
    const BenchFile file(".read");
    if (!save(*bitmap, kind, file))
        state.SkipWithError("the file was not written");
    gflSetTeamSize(int(state.range(1)));
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    for (auto _ : state) {
        GflBitmap *read = nullptr;
        if (gflLoadBitmapUTF8(file.name(), &read, &params, nullptr) != GFL_NO_ERROR)
            state.SkipWithError("the file was not read");
        gflFreeBitmap(read);
    }
    report(state, *bitmap, file);
}

void sizes(benchmark::internal::Benchmark *run)
{
    run->ArgNames({"MP", "threads"})
        ->ArgsProduct({{1, 24}, {1, 2}})
        ->UseRealTime()
        ->MeasureProcessCPUTime()
        ->Unit(benchmark::kMillisecond);
}

constexpr Kind kJpeg{"jpeg"}, kJpegWithoutIntervals{"jpeg", -1, true};

BENCHMARK_CAPTURE(writeFile, jpeg, kJpeg)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, jpeg, kJpeg)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, jpeg_without_intervals, kJpegWithoutIntervals)->Apply(sizes);

} // namespace
