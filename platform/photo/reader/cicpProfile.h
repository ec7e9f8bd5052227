#pragma once

#include <cstdint>
#include <vector>

/// The colours of a picture as video does it: by numbers instead of a profile.
struct CicpColours
{
    int primaries = 2;                          ///< Of ITU-T H.273; 2 is unspecified.
    int transfer = 2;                           ///< Likewise.
    double red[2], green[2], blue[2], white[2]; ///< The primaries, as x and y.
};

/// An ICC profile for such colours. Of the two curves for high dynamic range, that of absolute luminance (PQ) is cut off at
/// 1000 cd/m², which becomes white; both also get the numbers, which programs that know them prefer. Unspecified colours are
/// sRGB. Empty for a curve or primaries without a meaning. The same numbers give the same bytes. Source: ITU-T H.273 (2021),
/// tables 2 and 3; ITU-R BT.2100.
std::vector<std::uint8_t> cicpProfile(const CicpColours &colours);
