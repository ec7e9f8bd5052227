#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

/// The sample value of full light, as a float: 255, 65535 or 1.
template<typename Sample>
constexpr float kFullScale = std::is_same_v<Sample, float> ? 1.0f : float(std::numeric_limits<Sample>::max());

/// One sample at another depth; `From` and `To` are std::uint8_t, std::uint16_t or float.
///
/// 8 to 16 bits: times 257. 16 to 8 bits: times 255/65535, rounded to the nearest. 8 bits to float: divided by 255. 16 bits to
/// float: times the reciprocal of 65535. Float to integer: times full scale, clamped to 0 and full scale, rounded to the nearest,
/// ties to even; NaN gives 0. Equal depths: unchanged. Branch-free, so that a loop over a row is vectorised; always inlined, so
/// that it becomes part of each version of a function compiled for several instruction sets.
template<typename From, typename To>
[[gnu::always_inline]] inline To convertSample(From sample)
{
    if constexpr (std::is_same_v<From, To>) {
        return sample;
    } else if constexpr (std::is_same_v<To, float>) {
        if constexpr (std::is_same_v<From, std::uint8_t>)
            return float(sample) / 255.0f;
        else
            return float(sample) * (1.0f / 65535.0f); // 65535 gives exactly 1
    } else if constexpr (std::is_same_v<From, float>) {
        // Written so that NaN fails the first test. Adding and subtracting 2^23 rounds to the nearest, ties to even;
        // std::nearbyint would be a function call on baseline x86-64.
        constexpr float kToInteger = 8388608.0f;
        const float product = sample * kFullScale<To>;
        const float positive = product > 0.0f ? product : 0.0f;
        const float limited = positive < kFullScale<To> ? positive : kFullScale<To>;
        return static_cast<To>(std::int32_t((limited + kToInteger) - kToInteger));
    } else if constexpr (std::is_same_v<To, std::uint16_t>) {
        return std::uint16_t(sample * 257);
    } else {
        // x / 257 to the nearest, through the factor 2^24 / 257 rounded up: exact for all 65536 values.
        return std::uint8_t(((sample + 128u) * 65281u) >> 24);
    }
}
