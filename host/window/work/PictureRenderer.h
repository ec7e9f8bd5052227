#pragma once

#include <memory>

#include <QImage>
#include <QObject>

#include "PictureRequest.h"

/// Makes pictures of photographs for the screen, on a thread of its own. One renderer serves one place on the screen: the newest
/// request replaces any that has not begun, and each picture that has begun is finished, so that a strength that is being dragged
/// shows a steady row of pictures.
///
/// At 100 % and above, a picture shows what is saved, pixel by pixel; above 100 % each pixel is a square. Below 100 %, a picture
/// is made from a smaller copy of the photograph at first. If no request follows, it is made again from all pixels: recovered,
/// then reduced by area averaging, which is the saved picture as a viewer shows it. A new request ends this within milliseconds.
///
/// A strength other than 0 and the haze map need a photograph that is complete; a request for one that is not is not answered.
/// Make it again with the complete photograph. One that the engine can't work on is shown unchanged, its map black.
///
/// Interface thread only; the signals are delivered there.
class PictureRenderer : public QObject
{
    Q_OBJECT

public:
    explicit PictureRenderer(QObject *parent = nullptr);
    /// Drops what has not begun and waits for the picture in progress. Nothing is delivered afterwards.
    ~PictureRenderer() override;

    void request(const PictureRequest &wanted);

    /// The picture, at once and on the caller's thread; the exact one if it is reduced. Throws VException and std::bad_alloc.
    static QImage picture(const PictureRequest &wanted);

Q_SIGNALS:
    /// Format_RGB32, or Format_ARGB32_Premultiplied if it reaches beyond the photograph. Transparent parts of a photograph show
    /// a checkerboard. `exact` is false for a picture from a smaller copy, which is followed by an exact one unless another
    /// request comes first.
    void ready(const QImage &picture, const PictureRequest &request, bool exact);
    /// There was not enough memory for the picture.
    void failed(const PictureRequest &request, const QString &reason);

private:
    class Worker;
    std::unique_ptr<Worker> worker;
};

Q_DECLARE_METATYPE(PictureRequest)
