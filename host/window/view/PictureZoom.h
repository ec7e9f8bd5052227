#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>

/// Where a photograph is in a viewport. All of it counts in device pixels of the screen, so that at a scale of 1 each pixel of
/// the photograph is exactly one of the screen. A photograph that is smaller than the viewport is centred; a larger one has no
/// gap at any edge.
class PictureZoom
{
public:
    static constexpr double kLargestScale = 4;

    /// Another photograph. If the last one fitted the viewport, so does this one; otherwise it is shown at the same scale, and
    /// with the same part in the middle, so that a series can be compared. An empty size is allowed; then nothing is visible.
    void setPhotograph(QSize pixels);
    /// What fitted the viewport fits it again; otherwise the point in the middle stays there. May be empty.
    void setViewport(QSize devicePixels);

    QSize photograph() const { return photo; }
    QSize viewport() const { return view; }
    /// Device pixels per pixel of the photograph.
    double scale() const { return factor; }
    /// The whole photograph is visible, as large as the viewport allows, but never enlarged.
    bool fits() const { return fitted; }
    double fitScale() const;

    void fit();
    /// The point of the photograph under `anchor`, a position in the viewport, stays there as far as the edges allow. The scale
    /// is limited to fitScale() and kLargestScale.
    void setScale(double scale, QPointF anchor);
    /// The next larger (steps > 0) or smaller (steps < 0) scale: factors of the square root of 2 below 1, of 2 above, so that
    /// every scale from 1 on is whole. Stepping below fitScale() fits.
    void stepScale(int steps, QPointF anchor);
    /// As two fingers do; down to fitScale() it fits.
    void scaleBy(double multiplier, QPointF anchor);
    void moveBy(QPoint devicePixels);

    /// The photograph's rectangle in the viewport, which may be larger than the viewport.
    QRect placed() const;
    /// The part of it that is visible.
    QRect visible() const { return placed() & QRect(QPoint(), view); }
    /// From the viewport to the photograph's pixels, and back.
    QPointF toPhotograph(QPointF devicePixels) const;
    QRectF toViewport(const QRectF &pixels) const;

private:
    void showAt(QPointF pixel, QPointF position);
    void scaleOrFit(double wanted, QPointF anchor);
    void keepInside();

    QSize photo, view;
    double factor = 1;
    bool fitted = true;
    QPoint corner; ///< Of the photograph's top left in the viewport.
};
