#include "HazeTileKernel.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

#include "InstructionSet.h"

namespace {

constexpr int kChannels = 4; ///< R, G, B, A.

/// Four pixels in, one vector per component out.
using FourFloats = float __attribute__((vector_size(16)));
NIMBRA_INLINE void transpose(const CoarsePixel *const pixels[4], FourFloats components[4])
{
    FourFloats pixel[4];
    for (int i = 0; i < 4; ++i)
        std::memcpy(&pixel[i], pixels[i], sizeof pixel[i]);
    const FourFloats low01 = __builtin_shufflevector(pixel[0], pixel[1], 0, 4, 1, 5);
    const FourFloats low23 = __builtin_shufflevector(pixel[2], pixel[3], 0, 4, 1, 5);
    const FourFloats high01 = __builtin_shufflevector(pixel[0], pixel[1], 2, 6, 3, 7);
    const FourFloats high23 = __builtin_shufflevector(pixel[2], pixel[3], 2, 6, 3, 7);
    components[0] = __builtin_shufflevector(low01, low23, 0, 1, 4, 5);
    components[1] = __builtin_shufflevector(low01, low23, 2, 3, 6, 7);
    components[2] = __builtin_shufflevector(high01, high23, 0, 1, 4, 5);
    components[3] = __builtin_shufflevector(high01, high23, 2, 3, 6, 7);
}

/// Index into the range weights for a difference; not-a-number and infinity count as the largest difference.
NIMBRA_INLINE std::uint32_t entryOf(float here, float there)
{
    constexpr auto kNone = float(kRangeEntries);
    const float magnitude = std::fabs((here - there) * 1000.0f);
    return std::uint32_t(std::int32_t(magnitude < kNone ? magnitude : kNone));
}

constexpr int kPairBits = TileTables::kPairBits;
constexpr std::uint32_t kPairEntries = TileTables::kPairEntries;
constexpr int kBlueShift = 18; ///< Above the pair index, which fits below for any red and green.
constexpr int kBlock = 64;     ///< Columns that all use the pair table, or none of them does.
static_assert((kRangeEntries << kPairBits) + kRangeEntries < 1 << kBlueShift && kTileColumns % kBlock == 0);

/// Passed by value, so that the loops need not read the pointers again.
struct Tables
{
    const double *range;
    const double *pairs;
};

/// Range weights of a tile for the neighbours at one offset.
NIMBRA_INLINE void lookUp(const TileNeighbours &neighbours, Tables tables, double *ranges, TileScratch &scratch)
{
    std::uint32_t reach[kTileColumns / kBlock]; // kPairEntries if the pair table does not reach
    for (int block = 0; block < kTileColumns / kBlock; ++block) {
        std::uint32_t farthest = 0;
        for (int x = block * kBlock; x < (block + 1) * kBlock; ++x) {
            const std::uint32_t red = entryOf(scratch.colour[0][x], neighbours.colour[0][x]);
            const std::uint32_t green = entryOf(scratch.colour[1][x], neighbours.colour[1][x]);
            const std::uint32_t blue = entryOf(scratch.colour[2][x], neighbours.colour[2][x]);
            farthest = (red | green) >= kPairEntries ? kPairEntries : farthest;
            scratch.pairBlue[x] = ((red << kPairBits) + green) | blue << kBlueShift;
            scratch.redGreen[x] = red | green << 16;
        }
        reach[block] = farthest;
    }
    const double *const weights = tables.range;
    const double *const pairWeights = tables.pairs;
    for (int block = 0; block < kTileColumns / kBlock; ++block) {
        const int first = block * kBlock;
        if (reach[block] < kPairEntries) {
            NIMBRA_SCALAR_LOOP
            for (int x = first; x < first + kBlock; ++x) {
                const std::uint32_t entries = scratch.pairBlue[x];
                ranges[x] = pairWeights[entries & 0xffffu] * weights[entries >> kBlueShift];
            }
        } else {
            NIMBRA_SCALAR_LOOP
            for (int x = first; x < first + kBlock; ++x) {
                const std::uint32_t entries = scratch.redGreen[x];
                ranges[x] = weights[entries & 0xffffu] * weights[entries >> 16] * weights[scratch.pairBlue[x] >> kBlueShift];
            }
        }
    }
}

/// Adds the neighbours in one coarse row to the sums of a tile, from left to right.
NIMBRA_INLINE void addNeighbours(const TileNeighbours *row, Tables tables, const double *spatial, TileScratch &scratch)
{
    for (int i = 0; i < kTileSide; ++i)
        lookUp(row[i], tables, scratch.ranges[i], scratch);
    for (int x = 0; x < kTileColumns; ++x) {
        float sumWeights = scratch.sumWeights[x];
        float sumValues = scratch.sumValues[x];
        for (int i = 0; i < kTileSide; ++i) {
            const auto weight = float(scratch.ranges[i][x] * spatial[i]);
            sumWeights += weight;
            sumValues += row[i].map[x] * weight;
        }
        scratch.sumWeights[x] = sumWeights;
        scratch.sumValues[x] = sumValues;
    }
}

NIMBRA_INLINE void writeByLoopsBody(const TileRow &row, const TileTables &tables, TileScratch &scratch)
{
    const Tables pointers{tables.range.data(), tables.pairs.data()};
    const float *const pixel = row.pixels;
    const float *const nextPixel = row.nextPixels;
    float *const map = row.map;
    const int columns = row.columns;
    for (int x = 0; x < columns; x += 4)
        __builtin_prefetch(nextPixel + x * kChannels);
    for (int x = 0; x < columns; ++x) {
        for (int c = 0; c < 3; ++c)
            scratch.colour[c][x] = pixel[x * kChannels + c];
    }
    std::fill_n(scratch.sumWeights, kTileColumns, 0.0f);
    std::fill_n(scratch.sumValues, kTileColumns, 0.0f);
    for (int i = 0; i < row.rowCount; ++i)
        addNeighbours(row.rows[i], pointers, spatialWeights(row, i), scratch);
    for (int x = 0; x < columns; ++x) {
        const float sumWeights = scratch.sumWeights[x];
        const float mean = scratch.sumValues[x] / sumWeights;
        map[x] = pixel[x * kChannels + 3] == 0.0f || sumWeights == 0.0f ? 0.0f : mean;
    }
}

/// The kernels that the processor and instructionSet() allow.
std::vector<TileKernel> kernels()
{
    std::vector<TileKernel> allowed{{"loops", spreadByLoops, versionOf<writeByLoopsBody>()}};
#ifdef __x86_64__
    if (instructionSet() >= InstructionSet::Avx2)
        allowed.push_back(kTileGathers);
    if (instructionSet() >= InstructionSet::Avx512)
        allowed.push_back(kTileRegisters);
#endif
    return allowed;
}

/// A tile to try the kernels on: fine grain, and an edge across a quarter of it.
struct Trial
{
    Trial()
    {
        const auto grainOf = [](int x) { return 0.05f * float(x * 37 % 64) / 64.0f; };
        for (int x = 0; x < kTileColumns; ++x) {
            for (int c = 0; c < kChannels; ++c)
                pixels[x * kChannels + c] = 0.5f + grainOf(x + c);
            for (auto &rows : scratch->rows) {
                for (int i = 0; i < kTileSide; ++i) {
                    for (int c = 0; c < 3; ++c)
                        rows[i].colour[c][x] = 0.5f + grainOf(x * 3 + i + c) + (x < kTileColumns / 4 ? 0.1f * float(i) : 0.0f);
                    rows[i].map[x] = 0.5f;
                }
            }
        }
    }
    void run(const TileKernel &kernel) const
    {
        const TileNeighbours *const rows[kTileSide] = {scratch->rows[0], scratch->rows[1], scratch->rows[2]};
        kernel.write({pixels, pixels, map, kTileColumns, rows, kTileSide, -1}, tileTables(), *scratch);
    }

    float pixels[kTileColumns * kChannels];
    mutable float map[kTileColumns];
    std::unique_ptr<TileScratch> scratch = std::make_unique<TileScratch>();
};

TileKernel quickest(const std::vector<TileKernel> &candidates)
{
    constexpr int kRounds = 8; ///< Of which each kernel's best one counts: other programs only make a round slower.
    constexpr int kRows = 4;
    const Trial trial;
    std::vector<std::chrono::steady_clock::duration> best(candidates.size(), std::chrono::hours(1));
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < candidates.size(); ++i) {
            const auto start = std::chrono::steady_clock::now();
            for (int row = 0; row < kRows; ++row)
                trial.run(candidates[i]);
            best[i] = std::min(best[i], std::chrono::steady_clock::now() - start);
        }
    }
    return candidates[std::size_t(std::min_element(best.begin(), best.end()) - best.begin())];
}

TileKernel chooseKernel()
{
    const std::vector<TileKernel> candidates = kernels();
    const char *const wanted = std::getenv("NIMBRA_JOINT_STEP");
    if (wanted && *wanted) {
        for (const TileKernel &kernel : candidates) {
            if (std::strcmp(kernel.name, wanted) == 0)
                return kernel;
        }
        std::fprintf(stderr, "NIMBRA_JOINT_STEP: this processor has no \"%s\"\n", wanted);
    }
    return candidates.size() == 1 ? candidates.front() : quickest(candidates);
}

} // namespace

TileTables::TileTables() : range(hazeRangeWeights())
{
    for (std::size_t i = 0; i < kHalfEntries; ++i) {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &range[i], sizeof bits);
        low[i] = std::uint32_t(bits);
        high[i] = std::uint32_t(bits >> 32);
    }
    for (std::size_t red = 0; red < kPairEntries; ++red) {
        for (std::size_t green = 0; green < kPairEntries; ++green)
            pairs[red * kPairEntries + green] = range[red] * range[green];
    }
}

const TileTables &tileTables()
{
    static const TileTables tables;
    return tables;
}

void spreadByLoops(const int *places, int columns, const TileScratch &scratch, TileNeighbours *target)
{
    // Four columns at a time: single floats would wait for one another on their way to memory.
    for (int x = 0; x < columns; x += 4) {
        const CoarsePixel *four[4];
        for (int i = 0; i < 4; ++i)
            four[i] = scratch.coarse + places[x + i];
        for (int i = 0; i < kTileSide; ++i) {
            FourFloats components[4];
            transpose(four, components);
            for (int c = 0; c < 3; ++c)
                std::memcpy(target[i].colour[c] + x, &components[c], sizeof components[c]);
            std::memcpy(target[i].map + x, &components[3], sizeof components[3]);
            for (const CoarsePixel *&pixel : four)
                ++pixel;
        }
    }
}

const TileKernel &tileKernel()
{
    static const TileKernel kernel = chooseKernel();
    return kernel;
}
