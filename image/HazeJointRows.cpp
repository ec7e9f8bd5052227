#include "HazeJointRows.h"

#include <algorithm>
#include <cstring>
#include <limits>

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

HazeJointRows::HazeJointRows(Size fineSize, Size coarseSize)
    : fine(fineSize), coarse(coarseSize), tables(tileTables()), kernel(tileKernel()),
      rowScale(float(coarseSize.height) / float(fineSize.height)), tileColumns(kTileColumns),
      centres(std::size_t(std::max(0, fineSize.width)))
{
    const float columnScale = float(coarse.width) / float(fine.width);
    if (columnScale > 1.0f) {
        tileColumns = std::max(1, int(kTileColumns / columnScale));
        kernel.spread = spreadByLoops;
    }
    for (std::size_t x = 0; x < centres.size(); ++x)
        centres[x] = centreOf(int(x), columnScale);
}

HazeJointRows::Range HazeJointRows::coarseRowsOf(int firstRow, int lastRow) const
{
    return {std::max(centreOf(firstRow, rowScale) - kRadius, 0),
            std::min(centreOf(lastRow - 1, rowScale) + kRadius, coarse.height - 1)};
}

void HazeJointRows::spread(const Images &images, int coarseRow, int firstColumn, int columns, TileScratch &scratch) const
{
    const float *const pixels = images.coarse.row(coarseRow);
    const float *const values = images.coarseMap.row(coarseRow);
    const int *const centre = centres.data() + firstColumn;
    const auto coarseWidth = unsigned(coarse.width);
    const int first = centre[0] - kRadius;
    const int reached = centre[columns - 1] + kRadius - first + 1;
    // The next row's pixels are fetched early: a tile's rows are too far apart for the processor to foresee.
    const float *const nextPixels = images.coarse.row(std::min(coarseRow + 1, coarse.height - 1));
    constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
    for (int i = 0; i < reached; ++i) {
        const auto column = std::ptrdiff_t(first + i);
        CoarsePixel &target = scratch.coarse[i];
        target = {{kNone, kNone, kNone}, 0.0f};
        if (unsigned(column) >= coarseWidth)
            continue;
        const float *const pixel = pixels + column * kChannels;
        if (pixel[3] != 0.0f) {
            std::memcpy(&target, pixel, sizeof target);
            target.map = values[column];
        }
        __builtin_prefetch(nextPixels + column * kChannels);
    }
    int places[kTileColumns];
    for (int x = 0; x < columns; ++x)
        places[x] = centre[x] - centre[0];
    std::fill(places + columns, places + kTileColumns, places[columns - 1]);
    kernel.spread(places, columns, scratch, scratch.rows[coarseRow % kTileSide]);
}

void HazeJointRows::write(const Images &images, int firstRow, int lastRow, TileScratch &scratch) const
{
    for (int band = firstRow; band < lastRow; band += kBand) {
        for (int column = 0; column < fine.width; column += tileColumns)
            writeTile(images, band, std::min(band + kBand, lastRow), column, std::min(tileColumns, fine.width - column), scratch);
    }
}

void HazeJointRows::writeTile(const Images &images, int firstRow, int lastRow, int firstColumn, int columns,
                              TileScratch &scratch) const
{
    const std::ptrdiff_t corner = std::ptrdiff_t(firstColumn) * kChannels;
    int held[kTileSide] = {-1, -1, -1}; // coarse rows that the scratch memory holds for this tile
    for (int y = firstRow; y < lastRow; ++y) {
        const auto [first, last] = coarseRowsOf(y, y + 1);
        const TileNeighbours *rows[kTileSide];
        for (int row = first; row <= last; ++row) {
            const int slot = row % kTileSide;
            if (held[slot] != row) {
                spread(images, row, firstColumn, columns, scratch);
                held[slot] = row;
            }
            rows[row - first] = scratch.rows[slot];
        }
        kernel.write({images.fine.row(y) + corner, images.fine.row(std::min(y + 1, lastRow - 1)) + corner,
                      images.map.row(y) + firstColumn, columns, rows, std::max(0, last - first + 1),
                      first - centreOf(y, rowScale)},
                     tables, scratch);
    }
}
