#pragma once

#include <array>

/// The weights of the joint bilateral step.

/// Entry k: the normal density of standard deviation 0.1 at k / 1000, rounded to six significant decimal digits (k and -k share
/// an entry). The last entry, after that of a difference of 2.0, is 0.0 and serves every larger difference. Fixed: hosts rely on
/// the six digits, since they compare results bit for bit.
constexpr int kRangeEntries = 2001;
using HazeRangeWeights = std::array<double, kRangeEntries + 1>;

/// Computed at the first call, not when the library is loaded; any thread may call it.
const HazeRangeWeights &hazeRangeWeights();

/// Offsets -2 to 2 in both directions, rows first; the 25 add up to 1. Fixed: hosts rely on the sum of all 25, although only the
/// inner 3 x 3 are used.
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
