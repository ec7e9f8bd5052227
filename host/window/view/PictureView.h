#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QBasicTimer>
#include <QImage>
#include <QWidget>

#include "KeySheet.h"
#include "PictureRequest.h"
#include "PictureZoom.h"

class PictureRenderer;
class QPushButton;

/// The photograph on neutral grey: before and after on both sides of a line that can be dragged, side by side, or after alone.
///
/// The view asks for what is visible by wanted() and shows whatever arrives by showPicture(). The last picture stays until
/// the next one is there; while one zooms or pans, the last ones are scaled and moved until then. Of a new photograph the
/// thumbnail is shown, enlarged, until its pixels are there.
///
/// Keys that are held act wherever the focus is in the view's window, except where they mean something already (fields for text
/// take letters, and buttons take Space): Space shows before, M or Alt the haze map. They are let go with the key, and whenever
/// the focus moves or the window is no longer the active one.
///
/// Interface thread only.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    enum Mode { Split, SideBySide, AfterOnly };
    Q_ENUM(Mode)
    /// Which picture is asked for. Each has its own queue, so that dragging the strength never delays the picture before.
    enum Side { Before, After };
    Q_ENUM(Side)
    /// What is shown for as long as a key or button is held.
    enum Peek { NoPeek, PeekBefore, PeekMap };
    Q_ENUM(Peek)

    explicit PictureView(QWidget *parent = nullptr);
    ~PictureView() override;

    /// Connects wanted() and showPicture() with two renderers, which must outlive the view.
    void setRenderers(PictureRenderer *before, PictureRenderer *after);

    /// Another photograph, whose pixels are not there yet. `thumbnail` (upright, of any size, may be null) is shown enlarged.
    /// `pixels` is the upright size of the photograph, or empty if it is not known yet; the thumbnail's shape is used then.
    void showThumbnail(const QString &path, const QImage &thumbnail, QSize pixels);
    /// The photograph that is shown, as far as it is there, or another one. Until it is complete, a sign says that its haze is
    /// being estimated. Null empties the view.
    void showPhoto(std::shared_ptr<const OpenPhoto> photo);
    /// The photograph can't be shown: the reason is shown in its place, and a button to try again.
    void showFailure(const QString &path, const QString &reason);
    QString path() const { return shownPath; }

    void setStrength(int percent);
    int strength() const { return percent; }
    void setMode(Mode mode);
    Mode mode() const { return comparison; }
    void setClipping(bool on);
    bool clipping() const { return clippingShown; }
    void setScreenColours(std::shared_ptr<ScreenColours> colours);

    /// For buttons; keys do this by themselves.
    void setPeek(Peek peek);
    Peek peek() const { return peeked; }

    /// Device pixels per pixel of the photograph; 1 is 100 %.
    double scale() const { return zoom.scale(); }
    bool fits() const { return zoom.fits(); }
    /// 0 to 1 of the visible width of the photograph.
    double splitPosition() const { return split; }
    void setSplitPosition(double position);

    /// What its own keys do, for the sheet of keys.
    static std::vector<KeySheet::Row> keys();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void zoomToFit();
    /// 1 is 100 %; the point under the pointer stays if the pointer is over the view, else the middle.
    void zoomTo(double scale);
    /// Between 100 % and fit, as Z and a double click do.
    void toggleFullSize();
    void zoomIn();
    void zoomOut();
    /// Takes a picture that wanted() asked for. Pictures of another photograph are dropped.
    void showPicture(PictureView::Side side, const QImage &picture, const PictureRequest &request);

Q_SIGNALS:
    void wanted(PictureView::Side side, const PictureRequest &request);
    void zoomChanged(double scale, bool fits);
    void peekChanged(PictureView::Peek peek);
    /// The user wants a photograph that can't be shown to be tried again.
    void retryWanted();
    /// One of the renderers could not make a picture; the last one stays.
    void pictureFailed(const QString &reason);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    enum Kind { BeforePicture, AfterPicture, MapPicture };

    /// Pictures of one kind, as they arrived: the last one, and the last one of the whole photograph, for what the last one
    /// doesn't cover.
    struct Arrived
    {
        QImage picture, whole;
        PictureRequest request, wholeRequest;
    };

    void clearPictures(const QString &path);
    void layOut();
    void changeZoom(const std::function<void()> &change);
    void ask();
    void askSoon();
    void hold(Peek peek, int key);
    void letGo() { hold(NoPeek, 0); }
    bool holdsBy(const QKeyEvent &event, const QWidget &receiver) const;
    void describe();
    void updateCursor(QPointF position);
    void pinch(double factor, QPointF position);
    void updateWaiting();

    QRect pane(int index) const;
    int paneCount() const { return comparison == SideBySide ? 2 : 1; }
    QPointF inPane(QPointF position) const;
    QPointF pointerInPane() const;
    int lineAt() const;
    bool isOnLine(QPointF position) const;

    void paintPane(QPainter &painter, const QRect &pane, Kind kind, const QRect &part) const;
    void paintArrived(QPainter &painter, const QImage &picture, const PictureRequest &request) const;
    void paintThumbnail(QPainter &painter) const;
    void paintLine(QPainter &painter) const;
    void paintChip(QPainter &painter, const QRect &within, Qt::Alignment corner, const QString &text, bool turning = false) const;

    QRect failureRoom() const;

    QString shownPath, failure;
    QPushButton *retry;
    QImage thumb;
    std::shared_ptr<const OpenPhoto> photo;
    std::shared_ptr<ScreenColours> screenColours;
    PictureZoom zoom;
    bool sizeKnown = false;
    Arrived arrived[3];      ///< By Kind.
    PictureRequest asked[2]; ///< By Side.

    Mode comparison = Split;
    int percent = 0;
    bool clippingShown = false;
    Peek set = NoPeek, held = NoPeek, peeked = NoPeek;
    int heldKey = 0;
    double split = 0.5;

    enum { NoDrag, LineDrag, PanDrag } drag = NoDrag;
    QPointF dragFrom; ///< Device pixels.
    int wheelDelta = 0;
    bool keyboardFocus = false;
    QBasicTimer asking, patience, animation;
    bool waitShown = false;
    int turn = 0; ///< Degrees.
};
