#include "HazeMattingRows.h"

#include <algorithm>

#include "InstructionSet.h"
#include "ipp.h"

namespace {

constexpr double kEps = 0.001;
constexpr int kPixels = HazeMattingRows::kWindow * HazeMattingRows::kWindow;

constexpr int cellIndex(int rowOffset, int columnOffset)
{
    return rowOffset == 0 ? columnOffset : 3 + (rowOffset - 1) * 5 + columnOffset + 2;
}

/// Neighbouring windows of one row. Each loop runs over the windows; all of this fits into the first-level cache.
struct Windows
{
    static constexpr int kMost = 128;
    using Numbers = float[kMost];

    Numbers mean[3];
    Numbers products[6];           ///< Sums of R R, R G, R B, G G, G B, B B.
    Numbers distances[kPixels][3]; ///< Of each colour from the mean.
    Numbers inverse[9];
    Numbers weighted[3];
};

/// Adds up colours and their products, and computes means and distances. `colours` are the rows of R, G and B of three image
/// rows.
NIMBRA_INLINE void measureBody(Windows &windows, const float *const colours[kPixels], int x, int count)
{
    for (Windows::Numbers &sum : windows.mean)
        std::fill_n(sum, count, 0.0f);
    for (Windows::Numbers &sum : windows.products)
        std::fill_n(sum, count, 0.0f);
    for (int i = 0; i < kPixels; ++i) {
        const float *const r = colours[i / 3 * 3] + x + i % 3;
        const float *const g = colours[i / 3 * 3 + 1] + x + i % 3;
        const float *const b = colours[i / 3 * 3 + 2] + x + i % 3;
        for (int n = 0; n < count; ++n) {
            windows.mean[0][n] += r[n];
            windows.mean[1][n] += g[n];
            windows.mean[2][n] += b[n];
            windows.products[0][n] += r[n] * r[n];
            windows.products[1][n] += r[n] * g[n];
            windows.products[2][n] += r[n] * b[n];
            windows.products[3][n] += g[n] * g[n];
            windows.products[4][n] += g[n] * b[n];
            windows.products[5][n] += b[n] * b[n];
        }
    }
    for (int c = 0; c < 3; ++c) {
        for (int n = 0; n < count; ++n)
            windows.mean[c][n] /= 9.0f;
        for (int i = 0; i < kPixels; ++i) {
            const float *const colour = colours[i / 3 * 3 + c] + x + i % 3;
            for (int n = 0; n < count; ++n)
                windows.distances[i][c][n] = colour[n] - windows.mean[c][n];
        }
    }
}
const auto measure = versionOf<measureBody>();

/// The covariance of a window's nine colours, with eps / 9 added to its diagonal. Returns the largest mean square of a channel.
float covarianceOf(const Windows &windows, int n, float covariance[9])
{
    float square = 0.0f;
    for (int c = 0, product = 0; c < 3; ++c) {
        const float mean = windows.mean[c][n];
        const float meanSquare = windows.products[product++][n] / 9.0f;
        square = c == 0 ? meanSquare : std::max(square, meanSquare);
        // The diagonal is rounded only once, so that eps is not lost in a bright window.
        covariance[c * 3 + c] = float(double(-(mean * mean)) + double(meanSquare) + kEps / 9.0);
        for (int d = c + 1; d < 3; ++d)
            covariance[c * 3 + d] = covariance[d * 3 + c] = windows.products[product++][n] / 9.0f - mean * windows.mean[d][n];
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

void invert(Windows &windows, int count)
{
    for (int n = 0; n < count; ++n) {
        float covariance[9];
        float inverse[9] = {};
        const float square = covarianceOf(windows, n, covariance);
        if (hasInverse(covariance, square))
            (void)ippmInvert3x3(covariance, inverse); // a failure leaves the zeros
        for (int k = 0; k < 9; ++k)
            windows.inverse[k][n] = inverse[k];
    }
}

/// Adds the windows' terms to the cells of three image rows. A cell's windows are added from left to right: those in which its
/// pixel is furthest to the right come first.
NIMBRA_INLINE void addTermsBody(Windows &windows, float *const rows[HazeMattingRows::kWindow], int width, int x, int count)
{
    for (int i = 2; i < kPixels; i = i % 3 == 0 ? i + 5 : i - 1) {
        for (int c = 0; c < 3; ++c) {
            for (int n = 0; n < count; ++n)
                windows.weighted[c][n] = windows.inverse[c * 3][n] * windows.distances[i][0][n] +
                                         windows.inverse[c * 3 + 1][n] * windows.distances[i][1][n] +
                                         windows.inverse[c * 3 + 2][n] * windows.distances[i][2][n];
        }
        float *const own = rows[i / 3] + x + i % 3;
        for (int n = 0; n < count; ++n)
            own[n] += 1.0f;
        for (int j = i; j < kPixels; ++j) {
            float *const target = own + std::ptrdiff_t(cellIndex(j / 3 - i / 3, j % 3 - i % 3)) * width;
            for (int n = 0; n < count; ++n) {
                const float s = 1.0f + windows.weighted[0][n] * windows.distances[j][0][n] +
                                windows.weighted[1][n] * windows.distances[j][1][n] +
                                windows.weighted[2][n] * windows.distances[j][2][n];
                target[n] = float(double(target[n]) - double(s) / 9.0);
            }
        }
    }
}
const auto addTerms = versionOf<addTermsBody>();

} // namespace

HazeMattingRows::HazeMattingRows(const float *imagePixels, std::ptrdiff_t imageRowStep, int imageWidth, int imageHeight)
    : pixels(imagePixels), rowStep(imageRowStep), width(imageWidth), height(imageHeight),
      cellsPerRow(std::size_t(imageWidth) * kCells), cells(cellsPerRow * kWindow), colours(std::size_t(imageWidth) * 3 * kWindow)
{
}

void HazeMattingRows::start(int firstRow, float diagonalCell)
{
    diagonal = diagonalCell;
    nextRow = firstRow;
    // The windows that start above reach into the first row, too.
    const int firstWindow = std::max(0, firstRow - (kWindow - 1));
    for (int r = firstWindow; r < firstWindow + kWindow - 1; ++r)
        openRow(r);
    for (int y = firstWindow; y < firstRow; ++y)
        addWindows(y);
}

const float *HazeMattingRows::next()
{
    addWindows(nextRow);
    return rowOfCells(nextRow++);
}

void HazeMattingRows::openRow(int imageRow)
{
    float *const own = rowOfCells(imageRow);
    std::fill_n(own, width, diagonal);
    std::fill_n(own + width, cellsPerRow - std::size_t(width), 0.0f);
    const float *pixel = pixels + imageRow * rowStep;
    float *const r = rowOfColours(imageRow);
    float *const g = r + width;
    float *const b = g + width;
    for (int x = 0; x < width; ++x, pixel += 4) {
        r[x] = pixel[0];
        g[x] = pixel[1];
        b[x] = pixel[2];
    }
}

void HazeMattingRows::addWindows(int y)
{
    if (y > height - kWindow)
        return;
    openRow(y + kWindow - 1);
    float *rows[kWindow];
    const float *rowColours[kPixels];
    for (int r = 0; r < kWindow; ++r) {
        rows[r] = rowOfCells(y + r);
        for (int c = 0; c < 3; ++c)
            rowColours[r * 3 + c] = rowOfColours(y + r) + std::ptrdiff_t(c) * width;
    }
    Windows windows;
    for (int x = 0; x <= width - kWindow; x += Windows::kMost) {
        const int count = std::min(Windows::kMost, width - kWindow + 1 - x);
        measure(windows, rowColours, x, count);
        invert(windows, count);
        addTerms(windows, rows, width, x, count);
    }
}
