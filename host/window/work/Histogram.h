#pragma once

#include <array>

class OpenPhoto;

/// How often each value occurs in a photograph before and after, counted in about half a million pixels at even distances.
struct Histogram
{
    using Bins = std::array<unsigned, 256>; ///< By value, from black to white.

    std::array<Bins, 3> before{}; ///< Red, green, blue; all three the same for grey.
    std::array<Bins, 3> after{};
    /// Shares, from 0 to 1, of the result's pixels with a channel at the lower or the upper end of its scale. These are the
    /// pixels that the clipping marks are put on.
    double black = 0;
    double white = 0;
};

/// Of the photograph as it would be saved, in its own colours, at this strength in per cent; as at 0 while it has no map. Fully
/// transparent pixels are not counted. Takes milliseconds; any thread. Throws VException and std::bad_alloc.
Histogram histogramOf(const OpenPhoto &photo, int strength);
