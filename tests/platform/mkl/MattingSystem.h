#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

/// One-based compressed rows, the solver layer's input.
struct TestRows
{
    std::int32_t order = 0;
    bool symmetric = true; ///< Only the upper triangle is stored.
    std::vector<float> values;
    std::vector<std::int32_t> rowStarts{1};
    std::vector<std::int32_t> columns;

    void add(std::int32_t column, float value)
    {
        columns.push_back(column + 1);
        values.push_back(value);
    }
    void endRow() { rowStarts.push_back(std::int32_t(columns.size()) + 1); }
};

/// The matting Laplacian of a picture with gradients, edges and some noise, plus 0.001 times the identity: each 3 by 3 window
/// adds delta_pq - (1 + (I_p - m)' C^-1 (I_q - m)) / 9 to cell (p, q). Computed in double.
inline TestRows mattingSystem(int width, int height, unsigned seed)
{
    constexpr int kSlots = 13; // below or right of a pixel, within two pixels: 3 in its row, 5 in each of the next two
    std::mt19937 random(seed);
    std::vector<std::array<double, 3>> picture(std::size_t(width) * std::size_t(height));
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double noise = double(random() % 1000) * 2e-5;
            const double edge = (x / 11 + y / 7) % 2 == 0 ? 0.3 : 0.0;
            picture[std::size_t(y) * std::size_t(width) + std::size_t(x)] = {0.2 + edge + 0.3 * x / width + noise,
                                                                             0.3 + 0.5 * edge + 0.2 * y / height + noise,
                                                                             0.5 - 0.3 * edge + 0.1 * std::sin(0.2 * x) + noise};
        }
    }

    std::vector<std::array<double, kSlots>> upper(picture.size(), std::array<double, kSlots>{});
    const auto slotOf = [](int dx, int dy) { return dy == 0 ? dx : 5 * dy + dx; };
    for (auto &row : upper)
        row[0] = 0.001;
    for (int y = 0; y + 2 < height; ++y) {
        for (int x = 0; x + 2 < width; ++x) {
            const auto at = [&](int k) { return std::size_t(y + k / 3) * std::size_t(width) + std::size_t(x + k % 3); };
            std::array<double, 3> mean{};
            std::array<std::array<double, 3>, 3> c{};
            for (int k = 0; k < 9; ++k)
                for (std::size_t i = 0; i < 3; ++i)
                    mean[i] += picture[at(k)][i] / 9.0;
            for (int k = 0; k < 9; ++k)
                for (std::size_t i = 0; i < 3; ++i)
                    for (std::size_t j = 0; j < 3; ++j)
                        c[i][j] += (picture[at(k)][i] - mean[i]) * (picture[at(k)][j] - mean[j]) / 9.0;
            for (std::size_t i = 0; i < 3; ++i)
                c[i][i] += 0.001 / 9.0;
            const auto minor = [&](std::size_t i, std::size_t j) {
                const std::size_t i1 = (i + 1) % 3, i2 = (i + 2) % 3, j1 = (j + 1) % 3, j2 = (j + 2) % 3;
                return c[i1][j1] * c[i2][j2] - c[i1][j2] * c[i2][j1];
            };
            const double determinant = c[0][0] * minor(0, 0) + c[0][1] * minor(0, 1) + c[0][2] * minor(0, 2);
            for (int p = 0; p < 9; ++p) {
                for (int q = p; q < 9; ++q) {
                    double affinity = 1.0;
                    for (std::size_t i = 0; i < 3; ++i)
                        for (std::size_t j = 0; j < 3; ++j)
                            affinity += (picture[at(p)][i] - mean[i]) * minor(j, i) / determinant * (picture[at(q)][j] - mean[j]);
                    const int slot = slotOf(q % 3 - p % 3, q / 3 - p / 3);
                    upper[at(p)][std::size_t(slot)] += (p == q ? 1.0 : 0.0) - affinity / 9.0;
                }
            }
        }
    }

    TestRows result;
    result.order = width * height;
    const bool windows = width > 2 && height > 2;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int pixel = y * width + x;
            for (int slot = 0; slot < (windows ? kSlots : 1); ++slot) {
                const int dy = slot < 3 ? 0 : (slot + 2) / 5;
                const int dx = slot - 5 * dy;
                if (x + dx >= 0 && x + dx < width && y + dy < height)
                    result.add(pixel + dy * width + dx, float(upper[std::size_t(pixel)][std::size_t(slot)]));
            }
            result.endRow();
        }
    }
    return result;
}

/// A x for the whole matrix, in double.
inline std::vector<double> product(const TestRows &matrix, const std::vector<double> &x)
{
    std::vector<double> result(x.size(), 0.0);
    for (std::size_t row = 0; row < x.size(); ++row) {
        for (auto cell = std::size_t(matrix.rowStarts[row] - 1); cell + 1 < std::size_t(matrix.rowStarts[row + 1]); ++cell) {
            const auto column = std::size_t(matrix.columns[cell] - 1);
            result[row] += double(matrix.values[cell]) * x[column];
            if (matrix.symmetric && column != row)
                result[column] += double(matrix.values[cell]) * x[row];
        }
    }
    return result;
}

/// Plain reference for positive definite systems: conjugate gradients in double, until the residual is 1e-12 of b.
inline std::vector<double> conjugateGradients(const TestRows &matrix, const std::vector<float> &b)
{
    const auto dot = [](const std::vector<double> &left, const std::vector<double> &right) {
        double sum = 0.0;
        for (std::size_t i = 0; i < left.size(); ++i)
            sum += left[i] * right[i];
        return sum;
    };
    std::vector<double> x(b.size(), 0.0);
    std::vector<double> residual(b.begin(), b.end());
    std::vector<double> direction = residual;
    double square = dot(residual, residual);
    const double enough = square * 1e-24;
    for (int step = 0; step < 100000 && square > enough; ++step) {
        const std::vector<double> image = product(matrix, direction);
        const double length = square / dot(direction, image);
        for (std::size_t i = 0; i < x.size(); ++i) {
            x[i] += length * direction[i];
            residual[i] -= length * image[i];
        }
        const double next = dot(residual, residual);
        for (std::size_t i = 0; i < x.size(); ++i)
            direction[i] = residual[i] + next / square * direction[i];
        square = next;
    }
    return x;
}
