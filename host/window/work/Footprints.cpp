#include "Footprints.h"

#include <algorithm>
#include <cmath>

#include "VImage.h"
#include "threadCount.h"

namespace {

/// Below this many pixels of the source a team costs more than it gains.
constexpr double kPixelsForTeam = 1 << 16;
/// Less than this much of a pixel is a rounding error of the intervals' ends.
constexpr double kSliver = 1e-6;

/// How much of pixel `pixel` the interval covers.
float covered(const Footprints::Interval &interval, int pixel)
{
    return float(std::min(double(pixel) + 1, interval.to) - std::max(double(pixel), interval.from));
}

/// Adds a row, colours multiplied by alpha, to the sums.
void addRow(const float *pixel, int width, float weight, float *sum, /*rgba*/ std::true_type)
{
    for (int x = 0; x < width; ++x, pixel += 4, sum += 4) {
        const float alpha = pixel[3] * weight;
        sum[0] += pixel[0] * alpha;
        sum[1] += pixel[1] * alpha;
        sum[2] += pixel[2] * alpha;
        sum[3] += alpha;
    }
}
void addRow(const float *value, int width, float weight, float *sum, /*rgba*/ std::false_type)
{
    for (int x = 0; x < width; ++x)
        sum[x] += value[x] * weight;
}

template<int kChannels>
void reduceRow(const VImage &source, int left, int top, const Footprints &columns, const Footprints::Interval &rows, float *sums,
               float *target)
{
    constexpr std::bool_constant<kChannels == 4> kRgba;
    const int sourceLeft = columns.sourceFirst(columns.first());
    const int width = columns.sourceEnd(columns.end()) - sourceLeft;
    std::fill_n(sums, std::size_t(width) * kChannels, 0.0f);
    for (int y = int(rows.from); y < rows.to; ++y)
        addRow(reinterpret_cast<const float *>(source.PixelAddress(sourceLeft - left, y - top)), width, covered(rows, y), sums,
               kRgba);
    for (int x = columns.first(); x < columns.end(); ++x, target += kChannels) {
        const Footprints::Interval under = columns.interval(x);
        float total[kChannels] = {};
        for (int pixel = int(under.from); pixel < under.to; ++pixel) {
            const float weight = covered(under, pixel);
            const float *sum = sums + std::size_t(pixel - sourceLeft) * kChannels;
            for (int channel = 0; channel < kChannels; ++channel)
                total[channel] += sum[channel] * weight;
        }
        const float area = float((under.to - under.from) * (rows.to - rows.from));
        if constexpr (kRgba) {
            const float colours = total[3] > 0.0f ? 1.0f / total[3] : 0.0f;
            for (int channel = 0; channel < 3; ++channel)
                target[channel] = total[channel] * colours;
            target[3] = total[3] / area;
        } else {
            target[0] = total[0] / area;
        }
    }
}

} // namespace

Footprints::Footprints(int count, double start, double step, int length) : imageLength(length)
{
    for (int pixel = 0; pixel < count; ++pixel) {
        const double from = std::max(0.0, start + pixel * step), to = std::min(double(length), start + (pixel + 1) * step);
        if (to - from < kSliver)
            continue;
        if (intervals.empty())
            begin = pixel;
        intervals.push_back({from, to});
    }
}

int Footprints::sourceEnd(int stop) const
{
    return std::min(imageLength, int(std::ceil(interval(stop - 1).to)));
}

int Footprints::nearest(int pixel) const
{
    const Interval under = interval(pixel);
    return std::min(imageLength - 1, int((under.from + under.to) / 2));
}

void reduceArea(const VImage &source, int left, int top, const Footprints &columns, const Footprints &rows, int firstRow,
                int endRow, VImage &target, int targetRow)
{
    const bool few = double(source.Width()) * source.Height() < kPixelsForTeam;
    const int team = few ? 1 : std::max(1, std::min(int(threadCount), endRow - firstRow));
    const std::size_t rowSums = std::size_t(source.Width()) * (source.Type() == VImage::Grey ? 1 : 4);
    std::vector<float> sums(rowSums * std::size_t(team)); // here, since nothing may be thrown inside the loop
#pragma omp parallel for schedule(static) num_threads(team)
    for (int part = 0; part < team; ++part) {
        float *const own = sums.data() + rowSums * std::size_t(part);
        const int rowCount = endRow - firstRow;
        for (int row = firstRow + rowCount * part / team, end = firstRow + rowCount * (part + 1) / team; row < end; ++row) {
            auto *const pixels = reinterpret_cast<float *>(target.PixelAddress(0, targetRow + row - firstRow));
            if (source.Type() == VImage::Grey)
                reduceRow<1>(source, left, top, columns, rows.interval(row), own, pixels);
            else
                reduceRow<4>(source, left, top, columns, rows.interval(row), own, pixels);
        }
    }
}
