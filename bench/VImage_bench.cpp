#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>

#include <benchmark/benchmark.h>

#include "VImage.h"
#include "threadCount.h"

// Conversions and reductions against the machine's copy and read bandwidth, measured in the same run: compare bytes_per_second.

namespace {

struct Form
{
    unsigned short type;
    int bits;
};
constexpr Form kRgb8{VImage::Rgb, 8}, kRgba8{VImage::Rgba, 8}, kRgb16{VImage::Rgb, 16}, kRgba16{VImage::Rgba, 16},
    kGrey8{VImage::Grey, 8}, kWorking{VImage::Rgba, 32};

/// Aspect ratio 3:2, like a photograph.
struct Frame
{
    explicit Frame(std::int64_t megapixels)
    {
        while (std::int64_t(width + 6) * (height + 4) <= megapixels * 1000000) {
            width += 6;
            height += 4;
        }
    }
    int width = 0;
    int height = 0;
};

std::int64_t bytesOf(const VImage &image)
{
    return std::int64_t{image.Bitmap()->bytesPerPixel} * image.Width() * image.Height();
}

void report(benchmark::State &state, std::int64_t pixels, std::int64_t bytes)
{
    state.SetItemsProcessed(state.iterations() * pixels);
    state.SetBytesProcessed(state.iterations() * bytes);
}

// Arguments: megapixels, threads.

/// Copies an image in the working form; counts the bytes read and written.
void copyBandwidth(benchmark::State &state)
{
    const Frame frame(state.range(0));
    const int team = int(state.range(1));
    const VImage source(frame.width, frame.height, kWorking.type, kWorking.bits, /*clear=*/true);
    VImage target(frame.width, frame.height, kWorking.type, kWorking.bits, /*clear=*/true);
    const std::int64_t bytes = bytesOf(source);
    for (auto _ : state) {
#pragma omp parallel for schedule(static) num_threads(team)
        for (int part = 0; part < team; ++part) {
            const std::int64_t from = bytes * part / team, to = bytes * (part + 1) / team;
            std::memcpy(target.PixelAddress(0, 0) + from, source.PixelAddress(0, 0) + from, std::size_t(to - from));
        }
        benchmark::ClobberMemory();
    }
    report(state, std::int64_t(frame.width) * frame.height, 2 * bytes);
}

void readBandwidth(benchmark::State &state)
{
    const Frame frame(state.range(0));
    const int team = int(state.range(1));
    const VImage source(frame.width, frame.height, kWorking.type, kWorking.bits, /*clear=*/true);
    const std::int64_t words = bytesOf(source) / 8;
    const auto *data = reinterpret_cast<const std::uint64_t *>(source.PixelAddress(0, 0));
    for (auto _ : state) {
        std::uint64_t all = 0;
#pragma omp parallel for schedule(static) num_threads(team) reduction(| : all)
        for (std::int64_t word = 0; word < words; ++word)
            all |= data[word];
        benchmark::DoNotOptimize(all);
    }
    report(state, std::int64_t(frame.width) * frame.height, bytesOf(source));
}

/// Counts the bytes of the whole rectangle, read and written.
void convert(benchmark::State &state, Form from, Form to)
{
    const Frame frame(state.range(0));
    threadCount = int(state.range(1));
    const VImage source(frame.width, frame.height, from.type, from.bits, /*clear=*/true);
    VImage target(frame.width, frame.height, to.type, to.bits, /*clear=*/true);
    for (auto _ : state) {
        source.ConvertTo(target, to.type, to.bits);
        benchmark::ClobberMemory();
    }
    threadCount = 1;
    report(state, std::int64_t(frame.width) * frame.height, bytesOf(source) + bytesOf(target));
}

/// Reduces to about 100,000 pixels, like the engine, or to half the size, like the pyramid. Counts the bytes read.
void reduce(benchmark::State &state, bool byHalf)
{
    const Frame frame(state.range(0));
    threadCount = int(state.range(1));
    const VImage source(frame.width, frame.height, kWorking.type, kWorking.bits, /*clear=*/true);
    const int width = byHalf ? frame.width / 2 : 387, height = byHalf ? frame.height / 2 : 258;
    VImage target;
    for (auto _ : state)
        source.Resample(target, width, height);
    threadCount = 1;
    report(state, std::int64_t(frame.width) * frame.height, bytesOf(source));
}

void sizes(benchmark::internal::Benchmark *run)
{
    run->ArgNames({"MP", "threads"})->ArgsProduct({{1, 24, 100}, {1, 2}})->UseRealTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(copyBandwidth)->Apply(sizes);
BENCHMARK(readBandwidth)->Apply(sizes);
BENCHMARK_CAPTURE(convert, rgb8_to_working, kRgb8, kWorking)->Apply(sizes);
BENCHMARK_CAPTURE(convert, rgb16_to_working, kRgb16, kWorking)->Apply(sizes);
BENCHMARK_CAPTURE(convert, rgba8_to_working, kRgba8, kWorking)->Apply(sizes);
BENCHMARK_CAPTURE(convert, rgba16_to_working, kRgba16, kWorking)->Apply(sizes);
BENCHMARK_CAPTURE(convert, grey8_to_working, kGrey8, kWorking)->Apply(sizes);
BENCHMARK_CAPTURE(convert, working_to_rgb8, kWorking, kRgb8)->Apply(sizes);
BENCHMARK_CAPTURE(convert, working_to_rgb16, kWorking, kRgb16)->Apply(sizes);
BENCHMARK_CAPTURE(convert, working_to_rgba8, kWorking, kRgba8)->Apply(sizes);
BENCHMARK_CAPTURE(convert, working_to_rgba16, kWorking, kRgba16)->Apply(sizes);
BENCHMARK_CAPTURE(reduce, to_100000_pixels, false)->Apply(sizes);
BENCHMARK_CAPTURE(reduce, by_half, true)->Apply(sizes);

} // namespace
