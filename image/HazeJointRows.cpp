#include "HazeJointRows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>

#include "HazeWeights.h"
#include "InstructionSet.h"
#include "imageRows.h"

namespace {

constexpr int kChannels = 4; ///< R, G, B, A.
constexpr int kRadius = 1;
constexpr int kBand = 64; ///< Rows to finish tile by tile, so that few pages of memory are in use at a time.
constexpr int kTile = HazeJointRows::kTile;
constexpr int kSide = HazeJointRows::kSide;
using Neighbours = HazeJointRows::Neighbours;
using Scratch = HazeJointRows::Scratch;

/// Place of a fine row or column on the coarse grid: multiplied in 32 bits, rounded in 64.
int centreOf(int place, float scale)
{
    return int(double(float(place) * scale) + 0.5);
}

/// Four pixels in, one vector per component out.
using FourFloats = float __attribute__((vector_size(16)));
NIMBRA_INLINE void transpose(const HazeJointRows::Neighbour *const pixels[4], FourFloats components[4])
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

/// Products of the weights of red and green for the differences that are common in photographs: one look-up instead of two.
constexpr int kPairBits = 6;
constexpr std::uint32_t kPairEntries = 1u << kPairBits;
const double *pairWeightTable()
{
    static const auto table = [] {
        std::array<double, std::size_t(kPairEntries) * kPairEntries> products{};
        const HazeRangeWeights &weights = hazeRangeWeights();
        for (std::size_t red = 0; red < kPairEntries; ++red) {
            for (std::size_t green = 0; green < kPairEntries; ++green)
                products[red * kPairEntries + green] = weights[red] * weights[green];
        }
        return products;
    }();
    return table.data();
}
constexpr int kBlueShift = 18; ///< Above the pair index, which fits below for any red and green.
constexpr int kBlock = 64;     ///< Columns that all use the pair table, or none of them does.
static_assert((kRangeEntries << kPairBits) + kRangeEntries < 1 << kBlueShift && kTile % kBlock == 0);

/// Passed by value, so that the loops need not read the pointers again.
struct Tables
{
    const double *range;
    const double *pairs;
};

/// Range weights of a tile for the neighbours at one offset.
NIMBRA_INLINE void lookUp(const Neighbours &neighbours, Tables tables, double *ranges, Scratch &scratch)
{
    std::uint32_t reach[kTile / kBlock]; // kPairEntries if the pair table does not reach
    for (int block = 0; block < kTile / kBlock; ++block) {
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
    // Loads limit these loops; gather instructions would be slower still.
    for (int block = 0; block < kTile / kBlock; ++block) {
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
NIMBRA_INLINE void addNeighbours(const Neighbours *row, Tables tables, const double *spatial, Scratch &scratch)
{
    for (int i = 0; i < kSide; ++i)
        lookUp(row[i], tables, scratch.ranges[i], scratch);
    for (int x = 0; x < kTile; ++x) {
        float sumWeights = scratch.sumWeights[x];
        float sumValues = scratch.sumValues[x];
        for (int i = 0; i < kSide; ++i) {
            const auto weight = float(scratch.ranges[i][x] * spatial[i]);
            sumWeights += weight;
            sumValues += row[i].map[x] * weight;
        }
        scratch.sumWeights[x] = sumWeights;
        scratch.sumValues[x] = sumValues;
    }
}

/// Writes one row of a tile; `rows` are the coarse rows that it needs, at most kSide, the first at row offset `firstOffset`.
NIMBRA_INLINE void writeTileRowBody(const float *pixel, float *map, int columns, const Neighbours *const *rows, int rowCount,
                                    int firstOffset, Tables tables, Scratch &scratch)
{
    for (int x = 0; x < columns; ++x) {
        for (int c = 0; c < 3; ++c)
            scratch.colour[c][x] = pixel[x * kChannels + c];
    }
    std::fill_n(scratch.sumWeights, kTile, 0.0f);
    std::fill_n(scratch.sumValues, kTile, 0.0f);
    for (int i = 0; i < rowCount; ++i)
        addNeighbours(rows[i], tables, &kHazeSpatialWeights[std::size_t(firstOffset + i + 2)][2 - kRadius], scratch);
    for (int x = 0; x < columns; ++x) {
        const float sumWeights = scratch.sumWeights[x];
        const float mean = scratch.sumValues[x] / sumWeights;
        map[x] = pixel[x * kChannels + 3] == 0.0f || sumWeights == 0.0f ? 0.0f : mean;
    }
}
const auto writeTileRow = versionOf<writeTileRowBody>();

} // namespace

HazeJointRows::HazeJointRows(const VImage &fineImage, const VImage &coarseImage, const float *map)
    : fine(fineImage), coarse(coarseImage), coarseMap(map), rangeWeights(hazeRangeWeights().data()),
      pairWeights(pairWeightTable()), rowScale(float(coarseImage.Height()) / float(fineImage.Height())), tileColumns(kTile),
      centres(std::size_t(std::max(0, fineImage.Width())))
{
    const float columnScale = float(coarse.Width()) / float(fine.Width());
    if (columnScale > 1.0f)
        tileColumns = std::max(1, int(kTile / columnScale));
    for (std::size_t x = 0; x < centres.size(); ++x)
        centres[x] = centreOf(int(x), columnScale);
}

void HazeJointRows::spread(int coarseRow, int firstColumn, int columns, Scratch &scratch) const
{
    const float *const pixels = rowOf(coarse, coarseRow);
    const float *const values = coarseMap + std::size_t(coarseRow) * std::size_t(coarse.Width());
    const int *const centre = centres.data() + firstColumn;
    const auto coarseWidth = unsigned(coarse.Width());
    const int first = centre[0] - kRadius;
    const int reached = centre[columns - 1] + kRadius - first + 1;
    for (int i = 0; i < reached; ++i) {
        const int column = first + i;
        const float *const pixel = pixels + std::ptrdiff_t(column) * kChannels;
        const bool counts = unsigned(column) < coarseWidth && pixel[3] != 0.0f;
        for (int c = 0; c < 3; ++c)
            scratch.coarse[i].colour[c] = counts ? pixel[c] : std::numeric_limits<float>::quiet_NaN();
        scratch.coarse[i].map = counts ? values[column] : 0.0f;
    }
    Neighbours *const target = scratch.rows[coarseRow % kSide];
    int places[kTile];
    for (int x = 0; x < kTile; ++x)
        places[x] = centre[std::min(x, columns - 1)] - centre[0];
    // Four columns at a time: single floats would wait for one another on their way to memory.
    for (int x = 0; x < columns; x += 4) {
        const Neighbour *four[4];
        for (int i = 0; i < 4; ++i)
            four[i] = scratch.coarse + places[x + i];
        for (int i = 0; i < kSide; ++i) {
            FourFloats components[4];
            transpose(four, components);
            for (int c = 0; c < 3; ++c)
                std::memcpy(target[i].colour[c] + x, &components[c], sizeof components[c]);
            std::memcpy(target[i].map + x, &components[3], sizeof components[3]);
            for (const Neighbour *&pixel : four)
                ++pixel;
        }
    }
}

void HazeJointRows::write(float *map, int firstRow, int lastRow, Scratch &scratch) const
{
    const int width = fine.Width();
    for (int band = firstRow; band < lastRow; band += kBand) {
        for (int firstColumn = 0; firstColumn < width; firstColumn += tileColumns)
            writeTile(map, band, std::min(band + kBand, lastRow), firstColumn, std::min(tileColumns, width - firstColumn),
                      scratch);
    }
}

void HazeJointRows::writeTile(float *map, int firstRow, int lastRow, int firstColumn, int columns, Scratch &scratch) const
{
    int held[kSide] = {-1, -1, -1}; // coarse rows that the scratch memory holds for this tile
    for (int y = firstRow; y < lastRow; ++y) {
        const int centre = centreOf(y, rowScale);
        const int first = std::max(centre - kRadius, 0);
        const int last = std::min(centre + kRadius, coarse.Height() - 1);
        const Neighbours *rows[kSide];
        for (int row = first; row <= last; ++row) {
            const int slot = row % kSide;
            if (held[slot] != row) {
                spread(row, firstColumn, columns, scratch);
                held[slot] = row;
            }
            rows[row - first] = scratch.rows[slot];
        }
        writeTileRow(rowOf(fine, y) + std::ptrdiff_t(firstColumn) * kChannels,
                     map + std::size_t(y) * std::size_t(fine.Width()) + firstColumn, columns, rows, std::max(0, last - first + 1),
                     first - centre, {rangeWeights, pairWeights}, scratch);
    }
}
