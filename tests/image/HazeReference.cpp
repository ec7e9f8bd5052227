#include "HazeReference.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <map>
#include <random>

namespace hazeReference {

namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

/// Ignores not-a-number; -0.0 is below 0.0.
float minimum(float a, float b)
{
    if (std::isnan(a) || std::isnan(b))
        return std::isnan(a) ? b : a;
    return a < b || (a == b && std::signbit(a)) ? a : b;
}

double rangeWeight(float difference)
{
    const float thousandths = difference * 1000.0f;
    if (!(std::fabs(thousandths) < 2001.0f))
        return 0.0;
    const long double k = std::trunc(thousandths);
    const long double density = std::exp(-50.0L * k * k / 1e6L) / (0.1L * std::sqrt(2.0L * std::acos(-1.0L)));
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.5Le", density);
    return std::strtod(digits, nullptr);
}

} // namespace

Picture::Picture(int pictureWidth, int pictureHeight)
    : width(pictureWidth), height(pictureHeight), stride(std::size_t(width) * 4 + 5), samples(stride * std::size_t(height), -7.0f)
{
    image =
        std::make_unique<VImage>(width, height, VImage::Rgba, 32, /*clear=*/false, samples.data(), int(stride * sizeof(float)));
}

Picture makePicture(int width, int height, Kind kind, unsigned seed)
{
    Picture picture(width, height);
    std::mt19937 random(seed);
    const auto below = [&random](unsigned limit) { return int(random() % limit); };
    const auto fraction = [&random] { return float(random() >> 8) * 0x1p-24f; };
    const float wild[] = {kNan, kInfinity, -kInfinity, -0.0f, 0.0f, 3.5f, -0.25f, 1e30f};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            float *const p = picture.at(x, y);
            const float depth = float(y) / float(height);
            const bool edge = x * 3 > width && y * 3 > height;
            for (int c = 0; c < 3; ++c) {
                switch (kind) {
                case Kind::Smooth:
                    p[c] = 0.8f - 0.5f * depth + (edge ? -0.15f : 0.1f) + 0.02f * float(c) + 0.02f * fraction();
                    break;
                case Kind::Steps:
                    p[c] = float(below(4)) / 4.0f;
                    break;
                case Kind::Wild:
                    p[c] = below(16) == 0 ? wild[below(8)] : fraction();
                    break;
                case Kind::Noise:
                    p[c] = fraction();
                    break;
                }
            }
            p[3] = kind == Kind::Wild ? (below(4) == 0 ? 0.0f : below(16) == 0 ? kNan : 1.0f) : 1.0f;
        }
    }
    return picture;
}

std::vector<float> makeMap(int width, int height, unsigned seed)
{
    std::vector<float> map(std::size_t(width) * std::size_t(height));
    std::mt19937 random(seed);
    for (float &value : map)
        value = float(random() >> 8) * 0x1p-24f * 1.2f - 0.1f;
    return map;
}

std::optional<DarkChannel> darkChannel(const Picture &picture)
{
    const int width = picture.width;
    const int height = picture.height;
    const int radius = std::max(width, height) / 100 + 1;
    std::vector<float> eroded;
    std::multimap<float, const float *> candidates; // newest first among equal keys
    const int seedRows = height < 1001 ? 1 : height / 1000;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            float low[3] = {kNan, kNan, kNan};
            for (int wy = std::max(0, y - radius); wy <= std::min(height - 1, y + radius); ++wy) {
                for (int wx = std::max(0, x - radius); wx <= std::min(width - 1, x + radius); ++wx) {
                    for (int c = 0; c < 3; ++c)
                        low[c] = minimum(low[c], picture.at(wx, wy)[c]);
                }
            }
            eroded.insert(eroded.end(), low, low + 3);
            float dark = minimum(minimum(low[0], low[1]), low[2]);
            if (std::isnan(dark))
                dark = -kInfinity;
            if (y >= seedRows) {
                if (!(candidates.begin()->first < dark))
                    continue;
                candidates.erase(candidates.begin());
            }
            candidates.emplace_hint(candidates.lower_bound(dark), dark, picture.at(x, y));
        }
    }
    float best = -1.0f;
    const float *chosen = nullptr;
    for (const auto &[dark, p] : candidates) {
        const auto luminance = float(0.3 * double(p[0]) + 0.59 * double(p[1]) + 0.11 * double(p[2]));
        if (luminance > best) {
            best = luminance;
            chosen = p;
        }
    }
    if (!chosen)
        return std::nullopt;
    DarkChannel result{{chosen[0], chosen[1], chosen[2]}, {}};
    for (std::size_t i = 0; i < eroded.size(); i += 3) {
        const float r = eroded[i] / chosen[0];
        const float g = eroded[i + 1] / chosen[1];
        const float b = eroded[i + 2] / chosen[2];
        const float low = std::isnan(g) || b <= g ? b : g;
        const float lowest = std::isnan(r) || low <= r ? low : r;
        result.map.push_back(std::isnan(lowest) ? 0.0f : lowest);
    }
    return result;
}

std::vector<float> mattingMatrix(const Picture &picture)
{
    const int width = picture.width;
    const auto n = std::size_t(width * picture.height);
    std::vector<float> matrix(n * n);
    for (std::size_t i = 0; i < n; ++i)
        matrix[i * n + i] = 0.001f;
    for (int y = 0; y + 3 <= picture.height; ++y) {
        for (int x = 0; x + 3 <= width; ++x) {
            const auto at = [&](int i) { return picture.at(x + i % 3, y + i / 3); };
            float mean[3] = {};
            double c[3][6] = {}; // the covariance, and the unit matrix that becomes its inverse
            for (int a = 0; a < 3; ++a) {
                for (int i = 0; i < 9; ++i)
                    mean[a] += at(i)[a];
                mean[a] /= 9.0f;
                c[a][3 + a] = 1.0;
            }
            for (int a = 0; a < 3; ++a) {
                for (int b = 0; b < 3; ++b) {
                    float moment = 0.0f;
                    for (int i = 0; i < 9; ++i)
                        moment += at(i)[a] * at(i)[b];
                    moment /= 9.0f;
                    const float square = mean[a] * mean[b];
                    const float mixed = moment - square;
                    const auto own = float(-double(square) + double(moment) + 0.001 / 9.0);
                    c[a][b] = double(a == b ? own : mixed);
                }
            }
            for (int k = 0; k < 3; ++k) { // positive definite: needs no pivoting
                for (int column = 5; column >= k; --column)
                    c[k][column] /= c[k][k];
                for (int row = 0; row < 3; ++row) {
                    for (int column = 5; column >= k && row != k; --column)
                        c[row][column] -= c[row][k] * c[k][column];
                }
            }
            for (int i = 0; i < 9; ++i) {
                const float d[3] = {at(i)[0] - mean[0], at(i)[1] - mean[1], at(i)[2] - mean[2]};
                float v[3];
                for (int a = 0; a < 3; ++a)
                    v[a] = float(c[a][3]) * d[0] + float(c[a][4]) * d[1] + float(c[a][5]) * d[2];
                for (int j = i; j < 9; ++j) {
                    float s = 1.0f;
                    for (int a = 0; a < 3; ++a)
                        s += v[a] * (at(j)[a] - mean[a]);
                    const auto p = std::size_t((y + i / 3) * width + x + i % 3);
                    const auto q = std::size_t((y + j / 3) * width + x + j % 3);
                    float &cell = matrix[p * n + q];
                    if (i == j)
                        cell += 1.0f;
                    cell = float(double(cell) - double(s) / 9.0);
                }
            }
        }
    }
    return matrix;
}

std::vector<double> solve(const std::vector<float> &upper, std::vector<double> b)
{
    std::vector<double> a(upper.begin(), upper.end());
    const std::size_t n = b.size();
    for (std::size_t k = 0; k < n; ++k) {
        for (std::size_t i = k + 1; i < n; ++i) {
            const double factor = a[k * n + i] / a[k * n + k];
            if (factor == 0.0)
                continue;
            for (std::size_t j = i; j < n; ++j)
                a[i * n + j] -= factor * a[k * n + j];
            b[i] -= factor * b[k];
        }
    }
    for (std::size_t k = n; k-- > 0;) {
        for (std::size_t j = k + 1; j < n; ++j)
            b[k] -= a[k * n + j] * b[j];
        b[k] /= a[k * n + k];
    }
    return b;
}

std::vector<float> jointUpsample(const Picture &fine, const Picture &coarse, const std::vector<float> &map)
{
    constexpr double kSpatial[3] = {15.5 / 285.5, 26.0 / 285.5, 63.5 / 285.5}; // indexed by the number of offsets that are 0
    const float scaleX = float(coarse.width) / float(fine.width);
    const float scaleY = float(coarse.height) / float(fine.height);
    std::vector<float> result;
    for (int y = 0; y < fine.height; ++y) {
        for (int x = 0; x < fine.width; ++x) {
            const float *const p = fine.at(x, y);
            const int cy = int(double(float(y) * scaleY) + 0.5);
            const int cx = int(double(float(x) * scaleX) + 0.5);
            float sumW = 0.0f;
            float sumV = 0.0f;
            for (int dy = std::max(-cy, -1); dy < std::min(coarse.height - cy, 2) && p[3] != 0.0f; ++dy) {
                for (int dx = std::max(-cx, -1); dx < std::min(coarse.width - cx, 2); ++dx) {
                    const float *const q = coarse.at(cx + dx, cy + dy);
                    if (q[3] == 0.0f)
                        continue;
                    const double range = rangeWeight(p[0] - q[0]) * rangeWeight(p[1] - q[1]) * rangeWeight(p[2] - q[2]);
                    const auto weight = float(range * kSpatial[(dx == 0) + (dy == 0)]);
                    sumW += weight;
                    sumV += map[std::size_t((cy + dy) * coarse.width + cx + dx)] * weight;
                }
            }
            result.push_back(sumW == 0.0f ? 0.0f : sumV / sumW);
        }
    }
    return result;
}

void recover(Picture &picture, const std::vector<float> &map, const float airlight[3], float strength)
{
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            float *const p = picture.at(x, y);
            if (p[3] == 0.0f)
                continue;
            float t = 1.0f - map[std::size_t(y * picture.width + x)] * strength;
            if (double(t) < 0.1)
                t = 0.1f;
            for (int c = 0; c < 3; ++c) {
                const float recovered = airlight[c] + (p[c] - airlight[c]) / t;
                p[c] = recovered > 0.0f ? recovered : 0.0f;
            }
        }
    }
}

std::string firstDifference(const float *a, const float *b, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (std::memcmp(a + i, b + i, sizeof(float)) != 0 && !(std::isnan(a[i]) && std::isnan(b[i])))
            return "at " + std::to_string(i) + ": " + std::to_string(a[i]) + " and " + std::to_string(b[i]);
    }
    return {};
}

} // namespace hazeReference
