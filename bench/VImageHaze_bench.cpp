#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "HazeState.h"
#include "RemoveHaze.h"
#include "VImage.h"
#include "threadCount.h"

// Every stage of the engine, on a drawn scene. The first argument is the size in megapixels, the second the size of the team.
// Copy is the machine's limit: the same pixels copied from one image to another. The bytes are the fewest that a stage must move.
// 100 megapixels take 6 GB: they run with --benchmark_filter=/100/ and only if NIMBRA_BENCH_LARGE is set.

namespace {

constexpr int kMegapixels[] = {1, 12, 24, 100};
constexpr std::size_t kPixelBytes = 4 * sizeof(float);

std::pair<int, int> sizeOf(std::int64_t megapixels)
{
    switch (megapixels) {
    case 1:
        return {1224, 816};
    case 12:
        return {4256, 2832};
    case 24:
        return {6000, 4000};
    default:
        return {12240, 8160};
    }
}

/// Grain of an ordinary photograph, as in bench/end_to_end, and of one that is hardly more than noise: the range of one tone as a
/// fraction of white.
constexpr float kFine = 0.06f;
constexpr float kRough = 0.2f;

/// Rows of hills, with grain, in haze that thickens with distance.
void draw(VImage &image, float roughness)
{
    for (int y = 0; y < image.Height(); ++y) {
        auto *p = reinterpret_cast<float *>(image.PixelAddress(0, y));
        const float v = float(y) / float(image.Height());
        for (int x = 0; x < image.Width(); ++x, p += 4) {
            const auto hash = unsigned(x * 73856093) ^ unsigned(y * 19349663);
            const float grain = roughness * float(hash >> 8 & 255u) / 255.0f;
            const float ridge = float((x / 97 + y / 61) % 7) / 7.0f;
            const float t = 0.15f + 0.8f * std::min(1.0f, v * 0.7f + ridge * 0.3f);
            p[0] = 0.85f + (0.35f * ridge + 0.5f * grain - 0.85f) * t;
            p[1] = 0.88f + (0.30f * ridge + grain - 0.88f) * t;
            p[2] = 0.92f + (0.15f * ridge + 0.5f * grain - 0.92f) * t;
            p[3] = 1.0f;
        }
    }
}

/// Keeps one scene at a time, because the large ones fill the memory.
const VImage &scene(std::int64_t megapixels, float roughness = kFine)
{
    static std::pair<std::int64_t, float> drawn;
    static VImage image;
    if (drawn != std::pair(megapixels, roughness)) {
        const auto [width, height] = sizeOf(megapixels);
        image.Create(width, height, VImage::Rgba, 32);
        draw(image, roughness);
        drawn = {megapixels, roughness};
    }
    return image;
}

std::size_t pixelsOf(const VImage &image)
{
    return std::size_t(image.Width()) * std::size_t(image.Height());
}

/// Sets the team for one run, and reports its rates at the end.
class Run
{
public:
    Run(benchmark::State &benchmarkState, std::size_t pixelCount, std::size_t bytesPerPixel)
        : state(benchmarkState), pixels(pixelCount), bytes(pixelCount * bytesPerPixel)
    {
        threadCount = std::int32_t(state.range(1));
    }
    ~Run()
    {
        threadCount = 1;
        state.SetItemsProcessed(state.iterations() * std::int64_t(pixels));
        state.SetBytesProcessed(state.iterations() * std::int64_t(bytes));
    }
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

private:
    benchmark::State &state;
    std::size_t pixels;
    std::size_t bytes;
};

/// Makes the copy that the estimate runs on, with the size that the engine chooses.
void reduce(const VImage &image, VImage &low)
{
    const double ratio = double(image.Width()) / double(image.Height());
    const int width = int(std::sqrt(100000.0 * ratio));
    image.Resample(low, width, int(double(width) / ratio));
}

void Copy(benchmark::State &state)
{
    const VImage &image = scene(state.range(0));
    VImage target(image.Width(), image.Height(), VImage::Rgba, 32, /*clear=*/true);
    const Run run(state, pixelsOf(image), 2 * kPixelBytes);
    const auto rowBytes = std::size_t(image.BytesPerLine());
    for (auto _ : state) {
#pragma omp parallel for schedule(static) num_threads(threadCount)
        for (int y = 0; y < image.Height(); ++y)
            std::memcpy(target.PixelAddress(0, y), image.PixelAddress(0, y), rowBytes);
    }
}

void DarkChannel(benchmark::State &state)
{
    VImage image;
    image.Assign(scene(state.range(0)));
    const Run run(state, pixelsOf(image), kPixelBytes + sizeof(float));
    for (auto _ : state) {
        float airlight[3];
        const std::unique_ptr<float[]> map(image.HazeDarkChannel(airlight));
        benchmark::DoNotOptimize(map.get());
    }
}

/// Assembly and solve, always of the copy, whatever the image's size.
void Matting(benchmark::State &state)
{
    VImage low;
    reduce(scene(state.range(0)), low);
    float airlight[3];
    const std::unique_ptr<float[]> dark(low.HazeDarkChannel(airlight));
    std::vector<float> map(pixelsOf(low));
    const Run run(state, map.size(), kPixelBytes + 2 * sizeof(float));
    for (auto _ : state) {
        std::copy_n(dark.get(), map.size(), map.begin());
        if (!low.HazeMatting(map.data()))
            state.SkipWithError("no solution");
    }
}

void Upsample(benchmark::State &state)
{
    VImage image;
    image.Assign(scene(state.range(0)));
    VImage low;
    reduce(image, low);
    float airlight[3];
    const std::unique_ptr<float[]> dark(low.HazeDarkChannel(airlight));
    const Run run(state, pixelsOf(image), kPixelBytes + sizeof(float));
    for (auto _ : state) {
        const std::unique_ptr<float[]> map(image.HazeUpsample(dark.get(), &low));
        benchmark::DoNotOptimize(map.get());
    }
}

/// The last level alone, from a guide image smaller by a factor of 1.94, as for 24 megapixels.
template<const float &roughness>
void JointUpsample(benchmark::State &state)
{
    VImage image;
    image.Assign(scene(state.range(0), roughness));
    VImage guide;
    image.Resample(guide, image.Width() * 100 / 194, image.Height() * 100 / 194);
    std::vector<float> values(pixelsOf(guide));
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = float(i % 1024) / 1024.0f;
    const Run run(state, pixelsOf(image), kPixelBytes + sizeof(float));
    for (auto _ : state) {
        const std::unique_ptr<float[]> map(image.HazeJointUpsample(values.data(), &guide));
        benchmark::DoNotOptimize(map.get());
    }
}

void Recover(benchmark::State &state)
{
    VImage image;
    image.Assign(scene(state.range(0)));
    const std::vector<float> map(pixelsOf(image), 0.001f); // hardly changes the image, even when repeated
    const float airlight[3] = {0.85f, 0.88f, 0.92f};
    const Run run(state, pixelsOf(image), 2 * kPixelBytes + sizeof(float));
    for (auto _ : state)
        image.HazeRecover(map.data(), airlight, 0.7f);
}

/// The first call on an image: estimate, map and recovery.
void WholeEngine(benchmark::State &state)
{
    VImage image;
    const Run run(state, pixelsOf(scene(state.range(0))), 3 * kPixelBytes + 2 * sizeof(float));
    for (auto _ : state) {
        state.PauseTiming();
        image.Assign(scene(state.range(0)));
        state.ResumeTiming();
        HazeState haze{70, {}, nullptr};
        RemoveHaze(image, haze);
        delete[] haze.transmission;
    }
}

[[maybe_unused]] const bool registered = [] {
    const std::pair<const char *, void (*)(benchmark::State &)> stages[] = {{"Copy", Copy},
                                                                            {"DarkChannel", DarkChannel},
                                                                            {"Matting", Matting},
                                                                            {"Upsample", Upsample},
                                                                            {"JointUpsample", JointUpsample<kFine>},
                                                                            {"JointUpsampleOfNoise", JointUpsample<kRough>},
                                                                            {"Recover", Recover},
                                                                            {"WholeEngine", WholeEngine}};
    const bool large = std::getenv("NIMBRA_BENCH_LARGE") != nullptr;
    for (const int megapixels : kMegapixels) {
        if (megapixels == 100 && !large)
            continue;
        for (const int team : {1, std::max(2, int(std::thread::hardware_concurrency()))}) {
            for (const auto &[name, stage] : stages)
                benchmark::RegisterBenchmark(name, stage)
                    ->ArgNames({"megapixels", "team"})
                    ->Args({megapixels, team})
                    ->Unit(benchmark::kMillisecond)
                    ->MeasureProcessCPUTime()
                    ->UseRealTime();
        }
    }
    return true;
}();

} // namespace
