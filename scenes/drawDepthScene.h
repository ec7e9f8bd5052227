#pragma once

#include <array>
#include <vector>

#include <QString>
#include <QStringList>

/// A drawn photograph of which everything is known: what the estimate and the recovered scene are measured by.
///
/// hazy = truth * transmission + airlight * (1 - transmission), transmission = exp(-beta d), on encoded samples, mixed before a
/// pixel's nine samples are averaged; a pixel that an edge crosses has the average of both sides. Where the depth is infinite the
/// truth is the airlight. Sensor noise, where a scene has it, is on `hazy` alone.
struct DepthScene
{
    int width = 0;
    int height = 0;
    std::vector<float> hazy;         ///< R, G, B, A a pixel, 0..1, row by row; A is 0 or 1; the border scenes have 0.
    std::vector<float> truth;        ///< The same without haze and noise.
    std::vector<float> transmission; ///< One a pixel, 0..1; 0 in the sky, not a number where A is 0.
    std::array<float, 3> airlight{}; ///< Far from any lamp, where there are lamps.
};

/// Names of all scenes, in the order of the tables.
QStringList depthSceneNames();

/// Draws the scene of that name, width x height pixels, both at least 1; the same size gives the same picture. The pictures are
/// composed for 3 to 2. An unknown name gives an empty scene. Runs a team of OpenMP's default size.
DepthScene drawDepthScene(const QString &name, int width, int height);
