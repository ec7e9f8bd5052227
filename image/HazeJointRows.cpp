#include "HazeJointRows.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "imageRows.h"

namespace {

constexpr int kChannels = 4; ///< R, G, B, A.
constexpr int kRadius = 1;
constexpr int kBand = 64; ///< Rows to finish tile by tile, so that few pages of memory are in use at a time.

/// Place of a fine row or column on the coarse grid: multiplied in 32 bits, rounded in 64.
int centreOf(int place, float scale)
{
    return int(double(float(place) * scale) + 0.5);
}

} // namespace

HazeJointRows::HazeJointRows(const VImage &fineImage, const VImage &coarseImage, const float *map)
    : fine(fineImage), coarse(coarseImage), coarseMap(map), tables(tileTables()), kernel(tileKernel()),
      rowScale(float(coarseImage.Height()) / float(fineImage.Height())), tileColumns(kTileColumns),
      centres(std::size_t(std::max(0, fineImage.Width())))
{
    const float columnScale = float(coarse.Width()) / float(fine.Width());
    if (columnScale > 1.0f) {
        tileColumns = std::max(1, int(kTileColumns / columnScale));
        kernel.spread = spreadByLoops;
    }
    for (std::size_t x = 0; x < centres.size(); ++x)
        centres[x] = centreOf(int(x), columnScale);
}

void HazeJointRows::spread(int coarseRow, int firstColumn, int columns, TileScratch &scratch) const
{
    const float *const pixels = rowOf(coarse, coarseRow);
    const float *const values = coarseMap + std::size_t(coarseRow) * std::size_t(coarse.Width());
    const int *const centre = centres.data() + firstColumn;
    const auto coarseWidth = unsigned(coarse.Width());
    const int first = centre[0] - kRadius;
    const int reached = centre[columns - 1] + kRadius - first + 1;
    // The next row's pixels are fetched early: a tile's rows are too far apart for the processor to foresee.
    const float *const nextPixels = rowOf(coarse, std::min(coarseRow + 1, coarse.Height() - 1));
    constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
    for (int i = 0; i < reached; ++i) {
        const auto column = std::ptrdiff_t(first + i);
        const float *const pixel = pixels + column * kChannels;
        CoarsePixel &target = scratch.coarse[i];
        if (unsigned(column) < coarseWidth && pixel[3] != 0.0f) {
            std::memcpy(&target, pixel, sizeof target);
            target.map = values[column];
            __builtin_prefetch(nextPixels + column * kChannels);
        } else {
            target = {{kNone, kNone, kNone}, 0.0f};
        }
    }
    int places[kTileColumns];
    for (int x = 0; x < columns; ++x)
        places[x] = centre[x] - centre[0];
    std::fill(places + columns, places + kTileColumns, places[columns - 1]);
    kernel.spread(places, columns, scratch, scratch.rows[coarseRow % kTileSide]);
}

void HazeJointRows::write(float *map, int firstRow, int lastRow, TileScratch &scratch) const
{
    const int width = fine.Width();
    for (int band = firstRow; band < lastRow; band += kBand) {
        for (int firstColumn = 0; firstColumn < width; firstColumn += tileColumns)
            writeTile(map, band, std::min(band + kBand, lastRow), firstColumn, std::min(tileColumns, width - firstColumn),
                      scratch);
    }
}

void HazeJointRows::writeTile(float *map, int firstRow, int lastRow, int firstColumn, int columns, TileScratch &scratch) const
{
    int held[kTileSide] = {-1, -1, -1}; // coarse rows that the scratch memory holds for this tile
    for (int y = firstRow; y < lastRow; ++y) {
        const int centre = centreOf(y, rowScale);
        const int first = std::max(centre - kRadius, 0);
        const int last = std::min(centre + kRadius, coarse.Height() - 1);
        const TileNeighbours *rows[kTileSide];
        for (int row = first; row <= last; ++row) {
            const int slot = row % kTileSide;
            if (held[slot] != row) {
                spread(row, firstColumn, columns, scratch);
                held[slot] = row;
            }
            rows[row - first] = scratch.rows[slot];
        }
        const std::ptrdiff_t corner = std::ptrdiff_t(firstColumn) * kChannels;
        kernel.write({rowOf(fine, y) + corner, rowOf(fine, std::min(y + 1, lastRow - 1)) + corner,
                      map + std::size_t(y) * std::size_t(fine.Width()) + firstColumn, columns, rows,
                      std::max(0, last - first + 1), first - centre},
                     tables, scratch);
    }
}
