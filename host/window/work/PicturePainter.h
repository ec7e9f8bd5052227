#pragma once

#include <functional>
#include <memory>

#include <QImage>

#include "Footprints.h"
#include "PictureRequest.h"
#include "ScreenColours.h"
#include "VImage.h"

/// Makes the pictures of a PictureRenderer. Keeps what the last draft was made from, so that another strength takes only the last
/// pass of the engine. Only one thread may use it at a time. Throws VException and std::bad_alloc.
class PicturePainter
{
public:
    /// Whether the photograph has what the picture needs.
    static bool canPaint(const PictureRequest &request);
    /// Whether draft() is already what exact() would return.
    static bool isDraftExact(const PictureRequest &request);

    /// The picture from a smaller copy of the photograph if it is reduced, and with quick colours.
    QImage draft(const PictureRequest &request);

    /// The picture from all pixels under it. Asks `isInterrupted` every few milliseconds, and returns a null picture once it says
    /// yes.
    static QImage exact(const PictureRequest &request, const std::function<bool()> &isInterrupted);

private:
    QImage reducedDraft(const PictureRequest &request);

    /// What is visible of a photograph, in the screen's pixels.
    std::weak_ptr<const OpenPhoto> photo;
    PictureRequest geometry; ///< Its size, scale and corner; nothing else is set.
    VImage pixels;           ///< In the engine's form.
    VImage values;           ///< Of the map, if the photograph has one.
};
