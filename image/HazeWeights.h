#pragma once

#include <array>
#include <cstdint>

/// The weights of the joint bilateral step, made by the compiler.

/// Entry k: the normal density of standard deviation 0.1 at k / 1000, rounded to six significant decimal digits (k and -k share
/// an entry). The last entry, behind the one of a difference of 2.0, is the 0.0 that stands for anything farther.
constexpr int kRangeEntries = 2001;
using HazeRangeWeights = std::array<double, kRangeEntries + 1>;

namespace hazeWeights {

/// 1 / 10^n as mantissa / 2^64 times a power of 2; the mantissa's highest bit is set.
struct NegativePower
{
    unsigned __int128 mantissa = 0; ///< The 64 bits and 64 more, truncated.
    double scale = 0.0;             ///< Value of the mantissa's last bit.
};
constexpr int kPowers = 100;

constexpr std::array<NegativePower, kPowers> negativePowers()
{
    std::array<NegativePower, kPowers> powers{};
    unsigned __int128 mantissa = static_cast<unsigned __int128>(1) << 127;
    double scale = 1.0;
    for (int bit = 0; bit < 127; ++bit)
        scale *= 0.5;
    for (NegativePower &power : powers) {
        power.mantissa = mantissa;
        power.scale = scale;
        mantissa /= 10;
        while (!(mantissa >> 127)) {
            mantissa <<= 1;
            scale *= 0.5;
        }
    }
    return powers;
}

/// The double nearest to digits / 10^n, for digits of at most 20 bits and not 0. The power's error of less than 2^-117 is far
/// below the distance of any such decimal from a tie.
constexpr double decimal(std::uint32_t digits, const NegativePower &power)
{
    unsigned __int128 product = (power.mantissa >> 20) * digits; // 108 + 20 bits
    double scale = power.scale * 1048576.0;
    constexpr unsigned __int128 kLimit = static_cast<unsigned __int128>(1) << 53;
    unsigned __int128 rest = 0;
    unsigned __int128 half = 0;
    int dropped = 0;
    while ((product >> dropped) >= kLimit)
        ++dropped;
    if (dropped > 0) {
        half = static_cast<unsigned __int128>(1) << (dropped - 1);
        rest = product & ((half << 1) - 1);
        product >>= dropped;
    }
    for (int bit = 0; bit < dropped; ++bit)
        scale *= 2.0;
    return static_cast<double>(static_cast<std::uint64_t>(product + (rest > half ? 1 : 0))) * scale;
}

constexpr HazeRangeWeights rangeWeights()
{
    constexpr std::array<NegativePower, kPowers> powers = negativePowers();
    // Density at k / 1000: peak * exp(-k^2 / 20000). From one entry to the next it falls by a ratio that falls by exp(-1/10000).
    constexpr long double kPeak = 3.98942280401432677939946L;
    constexpr long double kFirstRatio = 0.99995000124997916692708L;    // exp(-1/20000)
    constexpr long double kRatioOfRatios = 0.99990000499983333749992L; // exp(-1/10000)
    HazeRangeWeights weights{};
    long double digits = kPeak * 100000.0L; // six digits before the point
    long double ratio = kFirstRatio;
    int power = 5;
    for (int k = 0; k < kRangeEntries; ++k) {
        weights[static_cast<std::size_t>(k)] =
            decimal(static_cast<std::uint32_t>(digits + 0.5L), powers[static_cast<std::size_t>(power)]);
        digits *= ratio;
        ratio *= kRatioOfRatios;
        while (digits < 100000.0L) {
            digits *= 10.0L;
            ++power;
        }
    }
    return weights;
}

} // namespace hazeWeights

inline constexpr HazeRangeWeights kHazeRangeWeights = hazeWeights::rangeWeights();

/// Offsets -2 to 2 in both directions, rows first; the 25 make 1.
inline constexpr auto kHazeSpatialWeights = [] {
    std::array<std::array<double, 5>, 5> weights{{{1.0, 3.5, 6.0, 3.5, 1.0},
                                                  {3.5, 15.5, 26.0, 15.5, 3.5},
                                                  {6.0, 26.0, 63.5, 26.0, 6.0},
                                                  {3.5, 15.5, 26.0, 15.5, 3.5},
                                                  {1.0, 3.5, 6.0, 3.5, 1.0}}};
    for (auto &row : weights) {
        for (double &weight : row)
            weight /= 285.5;
    }
    return weights;
}();
