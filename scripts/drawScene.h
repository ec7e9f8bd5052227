#pragma once

#include <QImage>

/// Draws the sample landscape: a meadow with trees, a village with a lake behind it, wooded hills and a mountain range, seen from
/// a hillside with the sun at the left. Distances run from 30 m to 20 km.
///
/// Returns an opaque image of width x height pixels, Format_RGB32, sRGB; null if either is below 1. The same size gives the same
/// picture. With `haze` false the air is clear: that is the scene J. With `haze` true each sample is J t + A (1 - t), where t =
/// exp(-beta d) with the distance d and A is a slightly warm airlight; the sky itself thins out upwards. The mixture is made of
/// encoded samples, on which the dark channel prior works too. Source of the model: H. Koschmieder, Theorie der horizontalen
/// Sichtweite, 1924. Runs a team of OpenMP's default size; any thread may call it.
QImage drawScene(int width, int height, bool haze);
