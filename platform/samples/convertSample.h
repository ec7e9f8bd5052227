#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

/// Value of a sample that means full light, as a float: 255, 65535 or 1.
template<typename Sample>
constexpr float kFullScale = std::is_same_v<Sample, float> ? 1.0f : float(std::numeric_limits<Sample>::max());

/// One sample at another depth; `From` and `To` are std::uint8_t, std::uint16_t or float.
///
/// 8 to 16 bits: times 257. 16 to 8: times 255/65535, to the nearest. 8 bits to float: divided by 255. 16 bits to float: times
/// the reciprocal of 65535. Floats to integers: times full scale, limited to 0 and full scale, to the nearest, ties to even;
/// not-a-number gives 0. Equal depths: the same value. Without branches, so that a loop over a row becomes vector code; always
/// inlined, so that it becomes part of each version of a function that is compiled for several instruction sets.
template<typename From, typename To>
[[gnu::always_inline]] inline To convertSample(From sample)
{
    if constexpr (std::is_same_v<From, To>) {
        return sample;
    } else if constexpr (std::is_same_v<To, float>) {
        if constexpr (std::is_same_v<From, std::uint8_t>)
            return float(sample) / 255.0f;
        else
            return float(sample) * (1.0f / 65535.0f); // 65535 becomes exactly 1
    } else if constexpr (std::is_same_v<From, float>) {
        // Written so that not-a-number fails the first test. Adding 2^23 and taking it away rounds to the nearest, ties to even;
        // std::nearbyint would be a call on a bare x86-64.
        constexpr float kToInteger = 8388608.0f;
        const float product = sample * kFullScale<To>;
        const float positive = product > 0.0f ? product : 0.0f;
        const float limited = positive < kFullScale<To> ? positive : kFullScale<To>;
        return static_cast<To>(std::int32_t((limited + kToInteger) - kToInteger));
    } else if constexpr (std::is_same_v<To, std::uint16_t>) {
        return std::uint16_t(sample * 257);
    } else {
        // x / 257 to the nearest, by a factor that is 2^24 / 257 rounded up: exact for all 65536 values.
        return std::uint8_t(((sample + 128u) * 65281u) >> 24);
    }
}
