#pragma once

#include <array>
#include <vector>

#include <QImage>

/// The airlight A of the sample landscape: R, G, B, encoded.
constexpr std::array<float, 3> kSceneAirlight{0.86f, 0.85f, 0.83f};

/// Draws the sample landscape: a meadow with trees, a village with a lake behind it, wooded hills and a mountain range, seen from
/// a hillside with the sun at the left. Distances run from 30 m to 20 km.
///
/// Returns an opaque image of width x height pixels, Format_RGB32, sRGB; null if either is below 1. The same size gives the same
/// picture. With `haze` false the air is clear: that is the scene J. With `haze` true each sample is J t + A (1 - t), where t =
/// exp(-beta d) with the distance d and A is kSceneAirlight; the sky itself thins out upwards. The mixture is made of encoded
/// samples, on which the dark channel prior works too. `transmission`, unless null, gets the t of the hazy picture, whichever is
/// drawn, one float a pixel, row by row. Source of the model: H. Koschmieder, Theorie der horizontalen Sichtweite, 1924. Runs a
/// team of OpenMP's default size; any thread may call it.
QImage drawScene(int width, int height, bool haze, std::vector<float> *transmission = nullptr);
