#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

/// Building blocks of drawn scenes: vectors for colours and places, and noise that is the same on every machine.
namespace sceneMath {

struct Vector
{
    float x = 0, y = 0, z = 0;
};

inline Vector operator+(Vector a, Vector b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vector operator*(Vector a, float f)
{
    return {a.x * f, a.y * f, a.z * f};
}
inline Vector operator*(Vector a, Vector b)
{
    return {a.x * b.x, a.y * b.y, a.z * b.z};
}
inline float dot(Vector a, Vector b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline Vector normalised(Vector a)
{
    return a * (1 / std::sqrt(dot(a, a)));
}
inline float mix(float a, float b, float part)
{
    return a + (b - a) * part;
}
inline Vector mix(Vector a, Vector b, float part)
{
    return a * (1 - part) + b * part;
}
inline float smoothstep(float from, float to, float value)
{
    const float part = std::clamp((value - from) / (to - from), 0.0f, 1.0f);
    return part * part * (3 - 2 * part);
}

// A number in 0..1 for each cell of the plane. The unsigned arithmetic wraps around on purpose.
inline float cellValue(int x, int z, std::uint32_t seed)
{
    std::uint32_t bits = std::uint32_t(x) * 0x8da6b343u ^ std::uint32_t(z) * 0xd8163841u ^ seed * 0xcb1ab31fu;
    bits = (bits ^ bits >> 15) * 0x2c1b3c6du;
    bits = (bits ^ bits >> 12) * 0x297a2d39u;
    return float((bits ^ bits >> 15) >> 8) / 16777216.0f;
}

inline float noise(float x, float z, std::uint32_t seed)
{
    const float floorX = std::floor(x), floorZ = std::floor(z);
    const int cellX = int(floorX), cellZ = int(floorZ);
    const float u = smoothstep(0, 1, x - floorX), v = smoothstep(0, 1, z - floorZ);
    return mix(mix(cellValue(cellX, cellZ, seed), cellValue(cellX + 1, cellZ, seed), u),
               mix(cellValue(cellX, cellZ + 1, seed), cellValue(cellX + 1, cellZ + 1, seed), u), v);
}

// Sum of noises with halving wavelengths, in 0..1. Wavelengths below `smallest` are omitted: they can't be seen at that distance.
inline float fractal(float x, float z, float wavelength, float smallest, int octaves, std::uint32_t seed, bool ridged = false)
{
    float sum = 0, weight = 0.5f, total = 0;
    x /= wavelength;
    z /= wavelength;
    for (int i = 0; i < octaves && (wavelength > smallest || i < 2); ++i) {
        float value = noise(x, z, seed + std::uint32_t(i));
        if (ridged) {
            value = 1 - std::fabs(2 * value - 1);
            value *= value;
        }
        sum += weight * value;
        total += weight;
        weight *= 0.5f;
        wavelength *= 0.5f;
        // Each octave is rotated; otherwise the edges of the cells would add up to visible lines.
        const float turned = 2 * (0.8f * x - 0.6f * z);
        z = 2 * (0.6f * x + 0.8f * z);
        x = turned;
    }
    return sum / total;
}

} // namespace sceneMath
