#pragma once

#include <cstddef>
#include <vector>

/// The cells of the matting Laplacian for a block of image rows, formed row by row.
///
/// Row `row` of the image stands for the unknowns row * width ... row * width + width - 1. A pixel shares windows with the pixels
/// up to two columns and rows away; those behind it in the image are its cells in the upper triangle, at most kCells. Each cell
/// takes its windows in the order of their corners, row by row, whatever block its row lies in: blocks only repeat the windows
/// that reach over their edges, and no window depends on another.
///
/// A window has no inverse if its covariance is not positive definite beyond what 32 bits can tell, or not finite: where samples
/// are far above 10 and colours so alike that rounding drowns eps. The zero matrix stands for it, so that the window counts as
/// one of a single colour. Source: A. Levin, D. Lischinski, Y. Weiss, A Closed-Form Solution to Natural Image Matting, PAMI
/// 2008, equation 12.
class HazeMattingRows
{
public:
    static constexpr int kWindow = 3;
    static constexpr int kCells = 13;

    /// Where cell `index` of a pixel lies, seen from it. Cell 0 is the pixel itself; rows rise, and columns within a row.
    struct Offset
    {
        int row;
        int column;
    };
    static constexpr Offset offsetOf(int index)
    {
        return index < 3 ? Offset{0, index} : Offset{1 + (index - 3) / 5, (index - 3) % 5 - 2};
    }

    /// `pixels` are rows of R, G, B, A floats, `rowStep` floats apart; the image has width x height of them, both at least
    /// kWindow.
    HazeMattingRows(const float *pixels, std::ptrdiff_t rowStep, int width, int height);

    /// Prepares for firstRow and the rows behind it. `diagonal` is what a pixel's own cell holds before its first window; the
    /// others hold 0.0.
    void start(int firstRow, float diagonal);

    /// The cells of the next row: kCells a pixel, pixel by pixel. Those whose pixel lies outside of the image mean nothing. Valid
    /// until the next call.
    const float *next();

private:
    float *rowOfCells(int row) { return cells.data() + std::size_t(row % kWindow) * cellsPerRow; }
    void clearRow(int row);
    void addWindows(int y);

    const float *pixels;
    std::ptrdiff_t rowStep;
    int width;
    int height;
    std::size_t cellsPerRow;
    std::vector<float> cells; ///< The rows that the windows of one row reach, image row r at r modulo kWindow.
    float diagonal = 0.0f;
    int nextRow = 0; ///< Row to hand out next.
};
