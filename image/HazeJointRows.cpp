#include "HazeJointRows.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "HazeWeights.h"
#include "VImage.h"
#include "ippVersions.h"

namespace {

constexpr int kChannels = 4; ///< R, G, B, A.
constexpr int kRadius = 1;
constexpr int kBand = 64; ///< Rows that are done tile after tile, so that few pages of memory are in use at a time.
using Neighbours = HazeJointRows::Neighbours;
using Scratch = HazeJointRows::Scratch;

/// Place on the coarse grid of a fine row or column: the product in 32 bits, its half step in 64.
int centreOf(int place, float scale)
{
    return static_cast<int>(static_cast<double>(static_cast<float>(place) * scale) + 0.5);
}

const float *rowOf(const VImage &image, int y)
{
    return reinterpret_cast<const float *>(image.PixelAddress(0, y));
}

/// Entry of the range weights for a difference; not-a-number and infinity are as far as can be.
IPP_INLINE std::uint32_t entryOf(float here, float there)
{
    constexpr auto kNone = static_cast<float>(kRangeEntries);
    const float magnitude = std::fabs((here - there) * 1000.0f);
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(magnitude < kNone ? magnitude : kNone));
}

/// Adds the neighbours at one offset to the sums of a tile.
IPP_INLINE void addNeighbours(const Neighbours &neighbours, double spatial, int columns, Scratch &scratch)
{
    for (int x = 0; x < columns; ++x) {
        const std::uint32_t red = entryOf(scratch.colour[0][x], neighbours.colour[0][x]);
        const std::uint32_t green = entryOf(scratch.colour[1][x], neighbours.colour[1][x]);
        scratch.redGreen[x] = red | green << 16;
        scratch.blue[x] = entryOf(scratch.colour[2][x], neighbours.colour[2][x]);
    }
    const double *const weights = kHazeRangeWeights.data();
    // What bounds this loop are its loads. Gathering ones are slower still.
#pragma clang loop vectorize(disable) unroll_count(4)
    for (int x = 0; x < columns; ++x) {
        const std::uint32_t pair = scratch.redGreen[x];
        scratch.ranges[x] = weights[pair & 0xffffu] * weights[pair >> 16] * weights[scratch.blue[x]];
    }
    for (int x = 0; x < columns; ++x) {
        const auto weight = static_cast<float>(scratch.ranges[x] * spatial);
        scratch.sumWeights[x] += weight;
        scratch.sumValues[x] += neighbours.map[x] * weight;
    }
}

/// One row of a tile; `rows` are its kSide or fewer coarse rows, the first at row offset `firstOffset`.
IPP_VERSIONS void writeTileRow(const float *pixel, float *map, int columns, const Neighbours *const *rows, int rowCount,
                               int firstOffset, Scratch &scratch)
{
    for (int x = 0; x < columns; ++x) {
        for (int c = 0; c < 3; ++c)
            scratch.colour[c][x] = pixel[x * kChannels + c];
    }
    std::fill_n(scratch.sumWeights, columns, 0.0f);
    std::fill_n(scratch.sumValues, columns, 0.0f);
    for (int i = 0; i < rowCount; ++i) {
        for (int dx = -kRadius; dx <= kRadius; ++dx) {
            const double spatial =
                kHazeSpatialWeights[static_cast<std::size_t>(firstOffset + i + 2)][static_cast<std::size_t>(dx + 2)];
            addNeighbours(rows[i][dx + kRadius], spatial, columns, scratch);
        }
    }
    for (int x = 0; x < columns; ++x) {
        const float sumWeights = scratch.sumWeights[x];
        const float mean = scratch.sumValues[x] / sumWeights;
        map[x] = pixel[x * kChannels + 3] == 0.0f || sumWeights == 0.0f ? 0.0f : mean;
    }
}

} // namespace

HazeJointRows::HazeJointRows(const VImage &fineImage, const VImage &coarseImage, const float *map)
    : fine(fineImage), coarse(coarseImage), coarseMap(map),
      rowScale(static_cast<float>(coarseImage.Height()) / static_cast<float>(fineImage.Height())),
      centres(static_cast<std::size_t>(std::max(0, fineImage.Width())))
{
    const float columnScale = static_cast<float>(coarse.Width()) / static_cast<float>(fine.Width());
    for (std::size_t x = 0; x < centres.size(); ++x)
        centres[x] = centreOf(static_cast<int>(x), columnScale);
}

void HazeJointRows::spread(int coarseRow, int firstColumn, int columns, Neighbours neighbours[kSide]) const
{
    const float *const pixels = rowOf(coarse, coarseRow);
    const float *const values = coarseMap + static_cast<std::size_t>(coarseRow) * static_cast<std::size_t>(coarse.Width());
    const int *const centre = centres.data() + firstColumn;
    const auto coarseWidth = static_cast<unsigned>(coarse.Width());
    for (int dx = -kRadius; dx <= kRadius; ++dx) {
        Neighbours &target = neighbours[dx + kRadius];
        for (int x = 0; x < columns; ++x) {
            const int column = centre[x] + dx;
            const float *const pixel = pixels + static_cast<std::ptrdiff_t>(column) * kChannels;
            const bool counts = static_cast<unsigned>(column) < coarseWidth && pixel[3] != 0.0f;
            for (int c = 0; c < 3; ++c)
                target.colour[c][x] = counts ? pixel[c] : std::numeric_limits<float>::quiet_NaN();
            target.map[x] = counts ? values[column] : 0.0f;
        }
    }
}

void HazeJointRows::write(float *map, int firstRow, int lastRow, Scratch &scratch) const
{
    const int width = fine.Width();
    for (int band = firstRow; band < lastRow; band += kBand) {
        for (int firstColumn = 0; firstColumn < width; firstColumn += kTile)
            writeTile(map, band, std::min(band + kBand, lastRow), firstColumn, std::min(kTile, width - firstColumn), scratch);
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
                spread(row, firstColumn, columns, scratch.rows[slot]);
                held[slot] = row;
            }
            rows[row - first] = scratch.rows[slot];
        }
        writeTileRow(rowOf(fine, y) + static_cast<std::ptrdiff_t>(firstColumn) * kChannels,
                     map + static_cast<std::size_t>(y) * static_cast<std::size_t>(fine.Width()) + firstColumn, columns, rows,
                     std::max(0, last - first + 1), first - centre, scratch);
    }
}
