#pragma once

#include <array>
#include <vector>

#include <QString>
#include <QStringList>

/// A drawn photograph about which everything is known, so that the estimate and the recovered scene can be measured against it.
///
/// hazy = truth * transmission + airlight * (1 - transmission), transmission = exp(-beta d). This is mixed from encoded values
/// for each of a pixel's four samples before they are averaged, so a pixel on an edge has the average of both sides. Where the
/// depth is infinite, the truth is the airlight. If a scene has sensor noise, only `hazy` contains it.
struct DepthScene
{
    int width = 0;
    int height = 0;
    std::vector<float> hazy;         ///< R, G, B, A per pixel, 0..1, row by row; A is 1, or 0 outside the border of some scenes.
    std::vector<float> truth;        ///< The same without haze or noise.
    std::vector<float> transmission; ///< One per pixel, 0..1; 0 in the sky, not a number where A is 0.
    std::array<float, 3> airlight{}; ///< Away from any lamps.
};

/// The names of all scenes, in the order of the result tables.
QStringList depthSceneNames();

/// Draws the scene with this name, width x height pixels; the same size always gives the same picture. The scenes are composed
/// for an aspect ratio of 3:2. An unknown name or a size below 1 gives an empty scene. Runs a team of OpenMP's default size.
DepthScene drawDepthScene(const QString &name, int width, int height);
