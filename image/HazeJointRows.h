#pragma once

#include <vector>

#include "HazeTileKernel.h"

class VImage;

/// The joint bilateral step from a coarse map to a fine one, for any block of fine rows.
///
/// A fine pixel's neighbours are the 3 x 3 coarse pixels around its place on the coarse grid, except those outside the image and
/// those with an alpha of 0.0. Work proceeds in tiles of columns: once per coarse row, the neighbours of a tile are laid out as
/// planes at the fine width, so that the kernel of the joint step runs over consecutive memory, without tests.
/// Source: J. Kopf, M. Cohen, D. Lischinski, M. Uyttendaele, Joint Bilateral Upsampling, SIGGRAPH 2007, equation 4.
class HazeJointRows
{
public:
    /// Both images must be Rgba with 32-bit samples; `coarseMap` has one float per pixel of `coarse`. All three must outlive
    /// this object.
    HazeJointRows(const VImage &fine, const VImage &coarse, const float *coarseMap);

    /// Writes the rows firstRow ... lastRow - 1 of `map`, which has one float per pixel of the fine image.
    void write(float *map, int firstRow, int lastRow, TileScratch &scratch) const;

private:
    void writeTile(float *map, int firstRow, int lastRow, int firstColumn, int columns, TileScratch &scratch) const;
    void spread(int coarseRow, int firstColumn, int columns, TileScratch &scratch) const;

    const VImage &fine;
    const VImage &coarse;
    const float *coarseMap;
    const TileTables &tables;
    TileKernel kernel;
    float rowScale;
    int tileColumns;          ///< Fewer than kTileColumns if the coarse image is the wider one.
    std::vector<int> centres; ///< Coarse column of each fine column.
};
