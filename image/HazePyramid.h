#pragma once

#include "HazeJointRows.h"
#include "ImageScaling.h"

class VImage;

/// The upper end of the pyramid of joint steps. The guide below the full image is nearly as large as that, and so is never held
/// as a whole: its rows are made in strips when they are needed, once for the guide below it and once for the last two steps,
/// which run together.
class HazePyramid
{
public:
    /// `full` must be Rgba with 32-bit samples and outlive this object.
    HazePyramid(const VImage &full, int guideWidth, int guideHeight);

    /// Makes `half` the guide reduced by half, for a guide of even sides.
    void halve(VImage &half) const;

    /// Writes the map of the full image, from the one of the coarse image below the guide: the last two steps.
    void write(const VImage &coarse, const float *coarseMap, float *map) const;

private:
    const VImage &full;
    HazeJointRows::Size guide;
    ImageScaling guideRows;
};
