#include "pictureMeasures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>

#include "VImage.h"

namespace {

const float *rowOf(const VImage &image, int y)
{
    return reinterpret_cast<const float *>(image.PixelAddress(0, y));
}

double clamped(float sample)
{
    return std::clamp(double(sample), 0.0, 1.0);
}

std::size_t indexOf(int x, int y, int width)
{
    return std::size_t(y) * std::size_t(width) + std::size_t(x);
}

using Plane = std::vector<double>;

/// One value per pixel.
template<typename Value>
Plane planeOf(const VImage &image, Value value)
{
    Plane plane;
    plane.reserve(std::size_t(image.Width()) * std::size_t(image.Height()));
    for (int y = 0; y < image.Height(); ++y) {
        const float *pixel = rowOf(image, y);
        for (int x = 0; x < image.Width(); ++x, pixel += 4)
            plane.push_back(value(pixel));
    }
    return plane;
}

constexpr int kRadius = 5; // of an SSIM window

/// Means over the windows; they are meaningless at the borders, where no whole window fits.
Plane windowMeans(const Plane &plane, int width, int height)
{
    std::array<double, 2 * kRadius + 1> weights{};
    double sum = 0.0;
    for (int i = -kRadius; i <= kRadius; ++i)
        sum += weights[std::size_t(i + kRadius)] = std::exp(-i * i / (2.0 * 1.5 * 1.5));
    for (double &weight : weights)
        weight /= sum;
    Plane across(plane.size()), means(plane.size());
#pragma omp parallel for schedule(static)
    for (int y = 0; y < height; ++y)
        for (int x = kRadius; x < width - kRadius; ++x)
            for (int i = -kRadius; i <= kRadius; ++i)
                across[indexOf(x, y, width)] += weights[std::size_t(i + kRadius)] * plane[indexOf(x + i, y, width)];
#pragma omp parallel for schedule(static)
    for (int y = kRadius; y < height - kRadius; ++y)
        for (int i = -kRadius; i <= kRadius; ++i)
            for (int x = 0; x < width; ++x)
                means[indexOf(x, y, width)] += weights[std::size_t(i + kRadius)] * across[indexOf(x, y + i, width)];
    return means;
}

double median(std::vector<float> &values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return double(*middle);
}

/// The line from an edge pixel outwards on one side.
class Side
{
public:
    Side(const std::vector<float> &trueValues, int columns, int rows, int longest)
        : truth(trueValues), width(columns), height(rows), reach(longest)
    {
    }
    /// False if the line leaves the picture. It starts two pixels away, past the pixels that the edge crosses.
    bool walk(int x, int y, double stepX, double stepY)
    {
        places.clear();
        for (int i = 2; i < reach + 2; ++i) {
            const int atX = int(std::lround(x + i * stepX)), atY = int(std::lround(y + i * stepY));
            if (atX < 0 || atY < 0 || atX >= width || atY >= height)
                return false;
            places.push_back(indexOf(atX, atY, width));
        }
        return true;
    }
    double level() const { return double(truth[places.front()]); }
    bool isLevel(double step) const
    {
        return std::all_of(places.begin(), places.end(),
                           [&](std::size_t place) { return std::fabs(double(truth[place]) - level()) <= 0.1 * step; });
    }
    double plateau(const std::vector<float> &estimate)
    {
        outer.clear();
        for (std::size_t i = places.size() / 2; i < places.size(); ++i)
            outer.push_back(estimate[places[i]]);
        return median(outer);
    }
    double halo(const std::vector<float> &estimate, double step)
    {
        const double level = plateau(estimate);
        int inside = 0;
        for (std::size_t i = 0; i < places.size(); ++i) {
            inside = std::fabs(double(estimate[places[i]]) - level) <= 0.1 * step ? inside + 1 : 0;
            if (inside == 3)
                return i == 2 ? 0.0 : double(i) - 1.0;
        }
        return double(places.size());
    }

private:
    const std::vector<float> &truth;
    int width, height, reach;
    std::vector<std::size_t> places;
    std::vector<float> outer;
};

} // namespace

double psnr(const VImage &picture, const VImage &truth)
{
    double sum = 0.0;
    std::size_t count = 0;
    for (int y = 0; y < truth.Height(); ++y) {
        const float *a = rowOf(picture, y), *b = rowOf(truth, y);
        for (int x = 0; x < truth.Width(); ++x, a += 4, b += 4) {
            if (b[3] == 0.0f)
                continue;
            for (int c = 0; c < 3; ++c)
                sum += std::pow(clamped(a[c]) - clamped(b[c]), 2);
            count += 3;
        }
    }
    return sum > 0.0 ? std::min(99.0, -10.0 * std::log10(sum / double(count))) : 99.0;
}

double ssim(const VImage &picture, const VImage &truth)
{
    const int width = truth.Width(), height = truth.Height();
    const auto luminance = [](const float *pixel) {
        return 0.299 * clamped(pixel[0]) + 0.587 * clamped(pixel[1]) + 0.114 * clamped(pixel[2]);
    };
    const Plane a = planeOf(picture, luminance), b = planeOf(truth, luminance);
    const auto meansOf = [&](const Plane &one, const Plane &other) {
        Plane product(one.size());
        std::transform(one.begin(), one.end(), other.begin(), product.begin(), std::multiplies<>());
        return windowMeans(product, width, height);
    };
    const Plane meanA = windowMeans(a, width, height), meanB = windowMeans(b, width, height);
    const Plane meanAA = meansOf(a, a), meanBB = meansOf(b, b), meanAB = meansOf(a, b);
    const Plane opaque =
        windowMeans(planeOf(truth, [](const float *pixel) { return pixel[3] == 0.0f ? 0.0 : 1.0; }), width, height);
    constexpr double kC1 = 0.01 * 0.01, kC2 = 0.03 * 0.03;
    double sum = 0.0;
    std::size_t count = 0;
    for (int y = kRadius; y < height - kRadius; ++y)
        for (int x = kRadius; x < width - kRadius; ++x) {
            const std::size_t i = indexOf(x, y, width);
            if (opaque[i] < 1.0 - 1e-9)
                continue;
            const double squareA = meanA[i] * meanA[i], squareB = meanB[i] * meanB[i], product = meanA[i] * meanB[i];
            sum += (2.0 * product + kC1) * (2.0 * (meanAB[i] - product) + kC2) /
                   ((squareA + squareB + kC1) * (meanAA[i] - squareA + meanBB[i] - squareB + kC2));
            ++count;
        }
    return count > 0 ? sum / double(count) : 1.0;
}

MapError mapError(const std::vector<float> &estimate, const std::vector<float> &truth)
{
    MapError error;
    std::size_t count = 0;
    for (std::size_t i = 0; i < truth.size(); ++i) {
        if (std::isnan(truth[i]))
            continue;
        const double difference = double(estimate[i]) - double(truth[i]);
        error.absolute += std::fabs(difference);
        error.bias += difference;
        ++count;
    }
    if (count > 0) {
        error.absolute /= double(count);
        error.bias /= double(count);
    }
    return error;
}

std::optional<EdgeFigures> edgeFigures(const std::vector<float> &estimate, const std::vector<float> &truth, int width, int height)
{
    const int reach = std::max(6, int(kEdgeReach * float(width)));
    Side near(truth, width, height, reach), far(truth, width, height, reach);
    std::vector<float> halos, kept;
    for (int y = 2; y < height - 2; ++y)
        for (int x = 2; x < width - 2; ++x) {
            const auto at = [&](int dx, int dy) { return double(truth[indexOf(x + dx, y + dy, width)]); };
            if (std::fabs(at(1, 0) - at(-1, 0)) < double(kEdgeStep) && std::fabs(at(0, 1) - at(0, -1)) < double(kEdgeStep))
                continue;
            double gradientX = 0.0, gradientY = 0.0; // towards the clearer side
            for (int i = -2; i <= 2; ++i)
                for (int j = 1; j <= 2; ++j) {
                    gradientX += at(j, i) - at(-j, i);
                    gradientY += at(i, j) - at(i, -j);
                }
            const double length = std::hypot(gradientX, gradientY);
            if (!(length > 0.0) || !far.walk(x, y, -gradientX / length, -gradientY / length))
                continue;
            std::size_t clearest = indexOf(x, y, width); // for a twig this may be all there is
            for (int i = -1; i <= 1; ++i)
                for (int j = -1; j <= 1; ++j)
                    if (at(j, i) > double(truth[clearest]))
                        clearest = indexOf(x + j, y + i, width);
            const double step = double(truth[clearest]) - far.level();
            if (!(step >= double(kEdgeStep)) || !far.isLevel(step))
                continue;
            const bool bothCount = near.walk(x, y, gradientX / length, gradientY / length) && near.isLevel(step);
            const double above = bothCount ? near.plateau(estimate) : double(estimate[clearest]);
            halos.push_back(float(std::max(far.halo(estimate, step), bothCount ? near.halo(estimate, step) : 0.0)));
            kept.push_back(float((above - far.plateau(estimate)) / step));
        }
    if (halos.empty())
        return std::nullopt;
    return EdgeFigures{median(halos), median(kept)};
}
