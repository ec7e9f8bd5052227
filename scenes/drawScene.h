#pragma once

#include <array>
#include <vector>

#include <QImage>

/// The airlight A of the sample landscape: R, G, B, encoded.
constexpr std::array<float, 3> kSceneAirlight{0.86f, 0.85f, 0.83f};

/// Draws the sample landscape: a meadow with trees, a village with a lake behind it, wooded hills and a mountain range, seen from
/// a hillside with the sun on the left. Distances range from 30 m to 20 km.
///
/// Returns an opaque image of width x height pixels, Format_RGB32, sRGB; null if either is below 1. The same size always gives
/// the same picture. With `haze` false the air is clear: that is the scene J. With `haze` true each sample is J t + A (1 - t),
/// where t = exp(-beta d) for the distance d and A is kSceneAirlight; in the sky the haze thins out upwards. Encoded samples are
/// mixed, as the dark channel prior works on encoded samples too. `transmission`, unless null, receives the t of the hazy picture
/// even if the clear one is drawn, one float per pixel, row by row. Source of the model: H. Koschmieder, Theorie der horizontalen
/// Sichtweite, 1924. Runs a team of OpenMP's default size; any thread may call it.
QImage drawScene(int width, int height, bool haze, std::vector<float> *transmission = nullptr);
