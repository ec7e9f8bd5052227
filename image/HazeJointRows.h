#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "HazeTileKernel.h"
#include "VImage.h"

/// The joint bilateral step from a coarse map to a fine one, for any block of fine rows.
///
/// A fine pixel's neighbours are the 3 x 3 coarse pixels around its place on the coarse grid, except those outside the image and
/// those with an alpha of 0.0. Work proceeds in tiles of columns: once per coarse row, the neighbours of a tile are laid out as
/// planes at the fine width, so that the kernel of the joint step runs over consecutive memory, without tests.
/// Source: J. Kopf, M. Cohen, D. Lischinski, M. Uyttendaele, Joint Bilateral Upsampling, SIGGRAPH 2007, equation 4.
class HazeJointRows
{
public:
    /// Where rows are: row y at `first` + (y modulo `held`) * `step` floats. `held` is the image's height, or fewer rows for a
    /// ring that only ever holds a part of the image.
    template<typename Float>
    struct Rows
    {
        Float *first;
        std::ptrdiff_t step;
        int held;
        Float *row(int y) const { return first + std::ptrdiff_t(y % held) * step; }
    };
    struct Size
    {
        int width, height;
    };
    /// The pixels are R, G, B, A; the maps have one float per pixel.
    struct Images
    {
        Rows<const float> fine;
        Rows<const float> coarse;
        Rows<const float> coarseMap;
        Rows<float> map; ///< The result.
    };

    static Rows<const float> rowsOf(const VImage &image)
    {
        return {reinterpret_cast<const float *>(image.PixelAddress(0, 0)),
                std::ptrdiff_t(image.BytesPerLine()) / std::ptrdiff_t(sizeof(float)), std::max(1, image.Height())};
    }
    /// A map of an image's size.
    template<typename Float>
    static Rows<Float> rowsOf(Float *map, const VImage &image)
    {
        return {map, image.Width(), std::max(1, image.Height())};
    }

    HazeJointRows(Size fine, Size coarse);

    /// The coarse rows that the fine rows firstRow ... lastRow - 1 need: from `first` to `last`, none if `last` is the smaller
    /// one.
    struct Range
    {
        int first, last;
    };
    Range coarseRowsOf(int firstRow, int lastRow) const;

    /// Writes the rows firstRow ... lastRow - 1 of the map.
    void write(const Images &images, int firstRow, int lastRow, TileScratch &scratch) const;

private:
    void writeTile(const Images &images, int firstRow, int lastRow, int firstColumn, int columns, TileScratch &scratch) const;
    void spread(const Images &images, int coarseRow, int firstColumn, int columns, TileScratch &scratch) const;

    Size fine;
    Size coarse;
    const TileTables &tables;
    TileKernel kernel;
    float rowScale;
    int tileColumns;          ///< Fewer than kTileColumns if the coarse image is the wider one.
    std::vector<int> centres; ///< Coarse column of each fine column.
};
