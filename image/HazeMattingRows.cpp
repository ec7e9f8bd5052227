#include "HazeMattingRows.h"

#include <algorithm>

#include "ipp.h"

namespace {

constexpr double kEps = 0.001;
constexpr int kPixels = HazeMattingRows::kWindow * HazeMattingRows::kWindow;

constexpr int cellIndex(int rowOffset, int columnOffset)
{
    return rowOffset == 0 ? columnOffset : 3 + (rowOffset - 1) * 5 + columnOffset + 2;
}

/// Computes the covariance of the nine colours, with eps / 9 added to its diagonal, and each colour's distance from their mean.
/// Returns the largest mean square of a channel.
float windowStatistics(const float *corner, std::ptrdiff_t rowStep, float covariance[9], float distances[kPixels][3])
{
    float sum[3] = {};
    float products[3][3] = {};
    for (int i = 0; i < kPixels; ++i) {
        const float *const pixel = corner + (i / 3) * rowStep + (i % 3) * 4;
        for (int c = 0; c < 3; ++c) {
            sum[c] += pixel[c];
            for (int d = c; d < 3; ++d)
                products[c][d] += pixel[c] * pixel[d];
        }
    }
    float mean[3];
    for (int c = 0; c < 3; ++c)
        mean[c] = sum[c] / 9.0f;
    const float square = std::max({products[0][0], products[1][1], products[2][2]}) / 9.0f;
    for (int c = 0; c < 3; ++c) {
        // The diagonal is rounded only once, so that eps is not lost in a bright window.
        covariance[c * 3 + c] = float(double(-(mean[c] * mean[c])) + double(products[c][c] / 9.0f) + kEps / 9.0);
        for (int d = c + 1; d < 3; ++d)
            covariance[c * 3 + d] = covariance[d * 3 + c] = products[c][d] / 9.0f - mean[c] * mean[d];
    }
    for (int i = 0; i < kPixels; ++i) {
        const float *const pixel = corner + (i / 3) * rowStep + (i % 3) * 4;
        for (int c = 0; c < 3; ++c)
            distances[i][c] = pixel[c] - mean[c];
    }
    return square;
}

/// How far rounding can move a cell of the covariance, as a fraction of a mean square: sums of nine, and their products, in 32
/// bits.
constexpr double kRounding = 0x1p-20;

/// Whether the covariance is positive definite by more than its rounding errors, which eps ensures for samples up to about 10.
/// Where it is not, as in highlights of thousands, the inverse would consist of rounding errors and make the system unsolvable.
/// Written so that not-a-number fails.
bool hasInverse(const float covariance[9], float square)
{
    const auto m = [covariance](int row, int column) { return double(covariance[row * 3 + column]); };
    const double least = kRounding * double(square);
    const double minor = m(0, 0) * m(1, 1) - m(0, 1) * m(0, 1);
    const double determinant = m(0, 0) * (m(1, 1) * m(2, 2) - m(1, 2) * m(1, 2)) -
                               m(0, 1) * (m(0, 1) * m(2, 2) - m(1, 2) * m(0, 2)) +
                               m(0, 2) * (m(0, 1) * m(1, 2) - m(1, 1) * m(0, 2));
    // The pivots of an elimination, multiplied out.
    return m(0, 0) > least && minor > least * m(0, 0) && determinant > least * minor;
}

} // namespace

HazeMattingRows::HazeMattingRows(const float *imagePixels, std::ptrdiff_t imageRowStep, int imageWidth, int imageHeight)
    : pixels(imagePixels), rowStep(imageRowStep), width(imageWidth), height(imageHeight),
      cellsPerRow(std::size_t(imageWidth) * kCells), cells(cellsPerRow * kWindow)
{
}

void HazeMattingRows::start(int firstRow, float diagonalCell)
{
    diagonal = diagonalCell;
    nextRow = firstRow;
    // The windows that start above reach into the first row, too.
    const int firstWindow = std::max(0, firstRow - (kWindow - 1));
    for (int r = firstWindow; r < firstWindow + kWindow - 1; ++r)
        clearRow(r);
    for (int y = firstWindow; y < firstRow; ++y)
        addWindows(y);
}

const float *HazeMattingRows::next()
{
    addWindows(nextRow);
    return rowOfCells(nextRow++);
}

void HazeMattingRows::clearRow(int imageRow)
{
    float *cell = rowOfCells(imageRow);
    std::fill_n(cell, cellsPerRow, 0.0f);
    for (int x = 0; x < width; ++x, cell += kCells)
        *cell = diagonal;
}

void HazeMattingRows::addWindows(int y)
{
    if (y > height - kWindow)
        return;
    clearRow(y + kWindow - 1);
    float *const rows[kWindow] = {rowOfCells(y), rowOfCells(y + 1), rowOfCells(y + 2)};
    const float *const line = pixels + y * rowStep;
    for (int x = 0; x <= width - kWindow; ++x) {
        float covariance[9];
        float distances[kPixels][3];
        float inverse[9] = {};
        const float square = windowStatistics(line + x * 4, rowStep, covariance, distances);
        if (hasInverse(covariance, square))
            (void)ippmInvert3x3(covariance, inverse); // a failure leaves the zeros
        for (int i = 0; i < kPixels; ++i) {
            float weighted[3];
            (void)ippmMul3x3(inverse, distances[i], weighted);
            float *const cell = rows[i / 3] + std::ptrdiff_t(x + i % 3) * kCells;
            cell[0] += 1.0f;
            for (int j = i; j < kPixels; ++j) {
                const float *const other = distances[j];
                const float s = 1.0f + weighted[0] * other[0] + weighted[1] * other[1] + weighted[2] * other[2];
                float &target = cell[cellIndex(j / 3 - i / 3, j % 3 - i % 3)];
                target = float(double(target) - double(s) / 9.0);
            }
        }
    }
}
