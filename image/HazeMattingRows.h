#pragma once

#include <cstddef>
#include <vector>

/// The cells of the matting Laplacian for a block of image rows, formed row by row.
///
/// Row `row` of the image has the unknowns row * width ... row * width + width - 1. A pixel shares windows with the pixels up to
/// two columns and rows away; itself and those after it in the image are its cells in the upper triangle, at most kCells. Each
/// cell adds up its windows in the order of their corners, row by row, whatever block its row is in: windows that cross the edge
/// of a block are computed for both, and no window depends on another.
///
/// A window's covariance is not inverted if it is not finite, or not positive definite by more than 32 bits can resolve, as where
/// samples are far above 10 and colours so similar that eps is lost in rounding. The zero matrix takes the place of the inverse,
/// so that the window counts as one of a single colour. Source: A. Levin, D. Lischinski, Y. Weiss, A Closed-Form Solution to
/// Natural Image Matting, PAMI 2008, equation 12.
class HazeMattingRows
{
public:
    static constexpr int kWindow = 3;
    static constexpr int kCells = 13;

    /// Position of cell `index` relative to its pixel. Cell 0 is the pixel itself; they are ordered by row, then by column.
    struct Offset
    {
        int row;
        int column;
    };
    static constexpr Offset offsetOf(int index)
    {
        return index < 3 ? Offset{0, index} : Offset{1 + (index - 3) / 5, (index - 3) % 5 - 2};
    }

    /// `pixels` are rows of R, G, B, A floats, `rowStep` floats apart; the image has width x height pixels, both at least
    /// kWindow.
    HazeMattingRows(const float *pixels, std::ptrdiff_t rowStep, int width, int height);

    /// Prepares for firstRow and the rows after it. `diagonal` is the initial value of a pixel's own cell; the others start at
    /// 0.0.
    void start(int firstRow, float diagonal);

    /// The cells of the next row: kCells rows of `width` floats, one for each cell of its pixels. Cells that lie outside the
    /// image hold no meaningful value. Valid until the next call.
    [[nodiscard]] const float *next();

private:
    float *rowOfCells(int row) { return cells.data() + std::size_t(row % kWindow) * cellsPerRow; }
    float *rowOfColours(int row) { return colours.data() + std::size_t(row % kWindow) * std::size_t(width) * 3; }
    void openRow(int row);
    void addWindows(int y);

    const float *pixels;
    std::ptrdiff_t rowStep;
    int width;
    int height;
    std::size_t cellsPerRow;
    std::vector<float> cells;   ///< The rows that one row of windows covers; image row r is at r modulo kWindow.
    std::vector<float> colours; ///< The colours of the same rows: a row each of R, G and B.
    float diagonal = 0.0f;
    int nextRow = 0; ///< The row that next() returns.
};
