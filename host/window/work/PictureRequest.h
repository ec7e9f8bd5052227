#pragma once

#include <memory>

#include <QPointF>
#include <QRgb>
#include <QSize>

class OpenPhoto;
class ScreenColours;

/// Which picture of a photograph is wanted, for the screen.
struct PictureRequest
{
    enum What {
        Photo,  ///< The result at `strength`.
        HazeMap ///< The haze map in grey: black is no haze, white the most.
    };

    /// The marks that `clipping` puts over pixels with a channel at the end of its scale, in the result's own colours.
    static constexpr QRgb kBlackMark = qRgb(122, 160, 255);
    static constexpr QRgb kWhiteMark = qRgb(255, 128, 116); ///< It wins over kBlackMark.

    std::shared_ptr<const OpenPhoto> photo;
    QSize size;       ///< Of the picture, in device pixels. What lies outside the photograph becomes transparent black.
    double scale = 1; ///< Device pixels per pixel of the photograph: 1 is 100 %.
    QPointF corner;   ///< The picture's top left corner, in pixels of the upright photograph.
    int strength = 0; ///< In per cent; 0 is the photograph before.
    What what = Photo;
    bool clipping = false;                  ///< Put marks on black and white pixels; only with Photo.
    std::shared_ptr<ScreenColours> colours; ///< Null: the screen is sRGB.
};
