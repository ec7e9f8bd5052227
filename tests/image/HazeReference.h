#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "VImage.h"

/// The engine's stages in a second, slow and plain version, one pixel after another.
namespace hazeReference {

/// R, G, B, A floats. `image` is a view of them with padded rows.
struct Picture
{
    Picture(int width, int height);
    float *at(int x, int y) { return samples.data() + std::size_t(y) * stride + std::size_t(x) * 4; }
    const float *at(int x, int y) const { return const_cast<Picture *>(this)->at(x, y); }

    int width;
    int height;
    std::size_t stride; ///< In floats.
    std::vector<float> samples;
    std::unique_ptr<VImage> image;
};

enum class Kind {
    Smooth, ///< A shaded scene with two hard edges.
    Noise,  ///< Every sample random between 0 and 1.
    Steps,  ///< Few levels, so that many values are equal.
    Wild,   ///< Some samples are not-a-number, infinity, -0.0 or far outside 0..1, and some have alpha 0.0.
};
Picture makePicture(int width, int height, Kind kind, unsigned seed = 1);
std::vector<float> makeMap(int width, int height, unsigned seed = 1);

struct DarkChannel
{
    float airlight[3];
    std::vector<float> map;
};
std::optional<DarkChannel> darkChannel(const Picture &picture);

/// (L + lambda I) as the upper triangle of a dense matrix; windows are inverted by elimination in 64 bits.
std::vector<float> mattingMatrix(const Picture &picture);
/// Solves A x = b by elimination in 64 bits, from the upper triangle.
std::vector<double> solve(const std::vector<float> &upper, std::vector<double> b);

std::vector<float> jointUpsample(const Picture &fine, const Picture &coarse, const std::vector<float> &map);

void recover(Picture &picture, const std::vector<float> &map, const float airlight[3], float strength);

/// The first place where the bits of two arrays of floats differ, or an empty text; every not-a-number counts as the same.
std::string firstDifference(const float *a, const float *b, std::size_t count);

} // namespace hazeReference
