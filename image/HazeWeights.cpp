#include "HazeWeights.h"

#include <charconv>
#include <cmath>
#include <cstddef>

namespace {

/// `value` rounded to six significant decimal digits, independently of the locale.
double sixDigits(double value)
{
    char text[16]; // "3.98942e+00", or an exponent of three digits
    const auto printed = std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, 5);
    std::from_chars(text, printed.ptr, value);
    return value;
}

HazeRangeWeights rangeWeights()
{
    constexpr double kPeak = 3.989422804014327; // 1 / (0.1 * sqrt(2 * pi))
    HazeRangeWeights weights{};
    for (int k = 0; k < kRangeEntries; ++k)
        weights[std::size_t(k)] = sixDigits(kPeak * std::exp(-k * k / 20000.0));
    return weights;
}

} // namespace

const HazeRangeWeights &hazeRangeWeights()
{
    static const HazeRangeWeights weights = rangeWeights();
    return weights;
}
