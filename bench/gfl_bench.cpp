#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include <unistd.h>

#include <benchmark/benchmark.h>

#include "gfl.h"

// Reading and writing files with the codec layer, by 1, 2 and 4 threads. The files are in memory if the machine has such a
// folder. Besides the usual figures there is the processor time of the thread that has most to do, at best: about the wall time
// that an otherwise idle machine would take, also when this one is busy.

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

/// Hills in haze with fine grain, RGB with 8 or 16 bits, 3:2: as JPEG, about a third of a byte per pixel.
Bitmap drawHills(std::int64_t megapixels, int bits)
{
    Bitmap bitmap(static_cast<GflBitmap *>(std::calloc(1, sizeof(GflBitmap))));
    const int scale = int(std::sqrt(double(megapixels) * 1e6 / 6));
    bitmap->type = 0x0010;
    bitmap->width = 3 * scale;
    bitmap->height = 2 * scale;
    bitmap->bitsPerComponent = std::uint16_t(bits);
    bitmap->componentsPerPixel = 3;
    bitmap->bytesPerPixel = std::uint16_t(3 * bits / 8);
    bitmap->bytesPerLine = (std::uint32_t(bitmap->width) * bitmap->bytesPerPixel + 3) / 4 * 4;
    bitmap->lineAlignment = 4;
    bitmap->transparentIndex = -1;
    bitmap->data = std::malloc(std::size_t(bitmap->bytesPerLine) * std::size_t(bitmap->height));
    std::uint32_t state = 1;
    for (int y = 0; y < bitmap->height; ++y) {
        auto *pixel = static_cast<std::uint8_t *>(bitmap->data) + std::size_t(bitmap->bytesPerLine) * std::size_t(y);
        for (int x = 0; x < bitmap->width; ++x, pixel += bitmap->bytesPerPixel) {
            state = state * 1664525u + 1013904223u;
            const double hill =
                60.0 * std::sin(x * 0.011 + 3.0 * std::sin(y * 0.004)) + 20.0 * std::sin(x * 0.2) * std::sin(y * 0.17);
            const double base = 120.0 + hill + (bits == 8 ? double(state >> 29) : double(state >> 16) / 8192.0);
            for (int c = 0; c < 3; ++c) {
                const double value = base + 10.0 * c;
                const auto deep = std::uint16_t(value * 257.0);
                if (bits == 8)
                    pixel[c] = std::uint8_t(value);
                else
                    std::memcpy(pixel + 2 * c, &deep, sizeof deep);
            }
        }
    }
    return bitmap;
}

/// A format with its depth and compression or, for JPEG, without restart intervals.
struct Kind
{
    const char *format;
    int bits = 8;
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

/// Processor time of each of the process's threads, in milliseconds.
std::map<std::string, double> threadTimes()
{
    std::map<std::string, double> times;
    for (const auto &thread : std::filesystem::directory_iterator("/proc/self/task"))
        std::ifstream(thread.path() / "schedstat") >> times[thread.path().filename()];
    for (auto &time : times)
        time.second *= 1e-6;
    return times;
}

/// Runs `work` for each iteration, and notes the longest thread of the best one.
void measure(benchmark::State &state, int threads, const std::function<bool()> &work)
{
    double best = HUGE_VAL;
    gflSetTeamSize(threads);
    for (auto _ : state) {
        const auto before = threadTimes();
        if (!work())
            state.SkipWithError("the file was not written or read");
        double longest = 0.0;
        for (const auto &[thread, time] : threadTimes()) {
            const auto found = before.find(thread);
            longest = std::max(longest, time - (found == before.end() ? 0.0 : found->second));
        }
        best = std::min(best, longest);
    }
    gflSetTeamSize(1);
    state.counters["longest_thread_ms"] = best;
}

void report(benchmark::State &state, const GflBitmap &bitmap, const BenchFile &file)
{
    state.SetItemsProcessed(state.iterations() * std::int64_t(bitmap.width) * bitmap.height);
    state.counters["file_MB"] = double(file.bytes()) * 1e-6;
}

// Arguments: megapixels, threads.

void writeFile(benchmark::State &state, const Kind &kind)
{
    const Bitmap bitmap = drawHills(state.range(0), kind.bits);
    const BenchFile file(".written");
    measure(state, int(state.range(1)), [&] { return save(*bitmap, kind, file); });
    report(state, *bitmap, file);
}

void readFile(benchmark::State &state, const Kind &kind)
{
    const Bitmap bitmap = drawHills(state.range(0), kind.bits);
    const BenchFile file(".read");
    if (!save(*bitmap, kind, file))
        state.SkipWithError("the file was not written");
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    measure(state, int(state.range(1)), [&] {
        GflBitmap *read = nullptr;
        const int code = gflLoadBitmapUTF8(file.name(), &read, &params, nullptr);
        gflFreeBitmap(read);
        return code == GFL_NO_ERROR;
    });
    report(state, *bitmap, file);
}

void sizes(benchmark::internal::Benchmark *run)
{
    run->ArgNames({"MP", "threads"})
        ->ArgsProduct({{1, 24}, {1, 2, 4}})
        ->UseRealTime()
        ->MeasureProcessCPUTime()
        ->Unit(benchmark::kMillisecond);
}

constexpr Kind kJpeg{"jpeg"}, kJpegWithoutIntervals{"jpeg", 8, -1, true}, kPng8{"png"}, kPng16{"png", 16},
    kTiffPlain16{"tiff", 16, 0}, kTiffLzw8{"tiff", 8, 2}, kTiffLzw16{"tiff", 16, 2}, kTiffDeflate8{"tiff", 8, 4},
    kTiffDeflate16{"tiff", 16, 4};

BENCHMARK_CAPTURE(writeFile, jpeg, kJpeg)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, jpeg, kJpeg)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, jpeg_without_intervals, kJpegWithoutIntervals)->Apply(sizes);
BENCHMARK_CAPTURE(writeFile, png_8, kPng8)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, png_8, kPng8)->Apply(sizes);
BENCHMARK_CAPTURE(writeFile, png_16, kPng16)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, png_16, kPng16)->Apply(sizes);
BENCHMARK_CAPTURE(writeFile, tiff_plain_16, kTiffPlain16)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, tiff_plain_16, kTiffPlain16)->Apply(sizes);
BENCHMARK_CAPTURE(writeFile, tiff_lzw_8, kTiffLzw8)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, tiff_lzw_8, kTiffLzw8)->Apply(sizes);
BENCHMARK_CAPTURE(writeFile, tiff_lzw_16, kTiffLzw16)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, tiff_lzw_16, kTiffLzw16)->Apply(sizes);
BENCHMARK_CAPTURE(writeFile, tiff_deflate_8, kTiffDeflate8)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, tiff_deflate_8, kTiffDeflate8)->Apply(sizes);
BENCHMARK_CAPTURE(writeFile, tiff_deflate_16, kTiffDeflate16)->Apply(sizes);
BENCHMARK_CAPTURE(readFile, tiff_deflate_16, kTiffDeflate16)->Apply(sizes);

} // namespace
