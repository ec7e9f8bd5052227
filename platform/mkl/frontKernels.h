#pragma once

#include <cstdint>

/// The dense work of one front of a multifrontal Cholesky factorisation, in single precision.
///
/// A front is stored in strips of 16 rows. Its panel has `strips` strips: column c of strip s is 16 floats at panel +
/// panelStart(s, pivotStrips) + 16 * c. The first `pivotStrips` strips hold the pivots' rows, up to the diagonal: strip s has 16
/// * (s + 1) columns. The others are the border's, with a column for each pivot. Padding rows and columns are zero, with 1 on the
/// diagonal.
///
/// Its contribution to the fronts above is the lower triangle of the border: strip s has 16 * (s + 1) columns and begins at
/// contributionStart(s). kStrip floats before and after it can be read.
struct FrontKernels
{
    /// Factors the panel in place: L below the diagonal, 1 / L_jj on it. `floors` holds one float per column; false if a pivot is
    /// not above its floor, or NaN.
    bool (*factor)(float *panel, int pivotStrips, int strips, const float *floors);
    /// Subtracts the product of the border with its transpose, over the first `pivots` columns, from the contribution.
    void (*update)(const float *panel, int pivots, int pivotStrips, int strips, float *contribution);
    /// Adds the contribution of a child, which has `rows` rows, to a front and its contribution. `targetRows` holds the row of
    /// the front for each row of the child, ascending.
    void (*add)(const float *child, int rows, const std::int32_t *targetRows, float *panel, int pivotStrips, float *contribution);
    /// Solves L y = b for the pivots and subtracts their part from the border; `local` holds one float per row of the front.
    void (*forward)(const float *panel, int pivotStrips, int strips, float *local);
    /// Solves L' x = y for the pivots; the border's x is given.
    void (*backward)(const float *panel, int pivotStrips, int strips, float *local);
};

constexpr int kStrip = 16;

constexpr long contributionStart(long strip)
{
    return kStrip * kStrip * (strip * (strip + 1) / 2);
}

constexpr long panelStart(long strip, long pivotStrips)
{
    return strip < pivotStrips ? contributionStart(strip)
                               : contributionStart(pivotStrips) + kStrip * kStrip * pivotStrips * (strip - pivotStrips);
}

/// The version for instructionSet().
const FrontKernels &frontKernels();
