#include "PictureZoom.h"

#include <algorithm>
#include <cmath>

namespace {

/// Where a photograph that is `size` long begins in a viewport that is `room` long: in the middle, or without a gap at either
/// end.
int placeInside(int position, int size, int room)
{
    return size <= room ? (room - size) / 2 : std::clamp(position, room - size, 0);
}

int lengthAt(double scale, int pixels)
{
    return std::max(1, int(std::lround(pixels * scale)));
}

} // namespace

double PictureZoom::fitScale() const
{
    if (photo.isEmpty() || view.isEmpty())
        return 1;
    return std::min({1.0, double(view.width()) / photo.width(), double(view.height()) / photo.height()});
}

void PictureZoom::setPhotograph(QSize pixels)
{
    if (pixels == photo)
        return;
    const QPointF middle = toPhotograph(QRectF(QPointF(), view).center());
    const QPointF part(middle.x() / std::max(1, photo.width()), middle.y() / std::max(1, photo.height()));
    const bool keepsScale = !fitted && !photo.isEmpty() && !pixels.isEmpty();
    photo = pixels;
    if (keepsScale && factor >= fitScale())
        showAt({part.x() * photo.width(), part.y() * photo.height()}, QRectF(QPointF(), view).center());
    else
        fit();
}

/// Puts this point of the photograph at this position in the viewport, as far as the edges allow.
void PictureZoom::showAt(QPointF pixel, QPointF position)
{
    corner = (position - pixel * factor).toPoint();
    keepInside();
}

void PictureZoom::setViewport(QSize devicePixels)
{
    if (devicePixels == view)
        return;
    const QPointF middle = toPhotograph(QRectF(QPointF(), view).center());
    view = devicePixels;
    if (fitted || factor < fitScale()) {
        fit();
        return;
    }
    showAt(middle, QRectF(QPointF(), view).center());
}

void PictureZoom::fit()
{
    factor = fitScale();
    fitted = true;
    keepInside();
}

void PictureZoom::setScale(double scale, QPointF anchor)
{
    const QPointF pixel = toPhotograph(anchor);
    factor = std::clamp(scale, fitScale(), kLargestScale);
    fitted = false;
    showAt(pixel, anchor);
}

void PictureZoom::stepScale(int steps, QPointF anchor)
{
    double wanted = factor;
    for (int step = 0; step < std::abs(steps); ++step) {
        // The next exponent of 2 on a grid of halves below 1 and of wholes above. What is within a hundredth of a step counts as
        // on the grid.
        const double exponent = std::log2(wanted), down = std::floor((exponent - 0.01) * 2) / 2,
                     up = std::ceil((exponent + 0.01) * 2) / 2;
        const double next =
            steps > 0 ? (up > 0 ? std::floor(exponent + 0.01) + 1 : up) : (down > 0 ? std::ceil(exponent - 0.01) - 1 : down);
        wanted = std::exp2(next);
    }
    scaleOrFit(wanted, anchor);
}

void PictureZoom::scaleBy(double multiplier, QPointF anchor)
{
    scaleOrFit(factor * multiplier, anchor);
}

void PictureZoom::scaleOrFit(double wanted, QPointF anchor)
{
    if (wanted < factor && wanted <= fitScale())
        fit();
    else
        setScale(wanted, anchor);
}

void PictureZoom::moveBy(QPoint devicePixels)
{
    corner += devicePixels;
    keepInside();
}

QRect PictureZoom::placed() const
{
    if (photo.isEmpty())
        return {};
    return {corner, QSize(lengthAt(factor, photo.width()), lengthAt(factor, photo.height()))};
}

QPointF PictureZoom::toPhotograph(QPointF devicePixels) const
{
    return (devicePixels - QPointF(corner)) / factor;
}

QRectF PictureZoom::toViewport(const QRectF &pixels) const
{
    return {QPointF(corner) + pixels.topLeft() * factor, pixels.size() * factor};
}

void PictureZoom::keepInside()
{
    const QSize size = placed().size();
    corner = {placeInside(corner.x(), size.width(), view.width()), placeInside(corner.y(), size.height(), view.height())};
}
