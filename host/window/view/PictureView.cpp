#include "PictureView.h"

#include <algorithm>
#include <cmath>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QGestureEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include "OpenPhoto.h"
#include "PictureRenderer.h"
#include "pictureColours.h"

namespace {

constexpr int kGap = 2;            ///< Between the two pictures side by side.
constexpr int kGrip = 8;           ///< How far from the line it can be grasped.
constexpr int kHandleRadius = 13;  ///< Of the knob on the line.
constexpr int kFailureMargin = 40; ///< Around the reason of a failure.
constexpr int kChipMargin = 10;    ///< From the corner of the picture.
constexpr int kPatienceMs = 250;   ///< A wait that is shorter has no sign.
constexpr int kTurnMs = 40;        ///< Between two steps of the turning arc,
constexpr int kTurnDegrees = 14;   ///< each of so much: a turn takes a second.
constexpr double kLineStep = 0.02; ///< Of the picture, per key.
constexpr int kPanParts = 8;       ///< A key moves the picture by this part of the pane.
constexpr int kNotch = 120;        ///< Of a wheel, in eighths of a degree.

bool areSame(const PictureRequest &one, const PictureRequest &other)
{
    return one.photo == other.photo && one.size == other.size && one.scale == other.scale && one.corner == other.corner &&
           one.strength == other.strength && one.what == other.what && one.clipping == other.clipping &&
           one.colours == other.colours;
}

QRectF areaOf(const PictureRequest &request)
{
    return {request.corner, QSizeF(request.size) / request.scale};
}

QRectF scaled(const QRect &rect, double factor)
{
    return {rect.x() * factor, rect.y() * factor, rect.width() * factor, rect.height() * factor};
}

} // namespace

PictureView::PictureView(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    grabGesture(Qt::PinchGesture);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(tr("Photograph"));
    retry = new QPushButton(tr("Try again"), this);
    retry->setObjectName(QStringLiteral("retryReading"));
    retry->setAutoDefault(false);
    retry->hide();
    connect(retry, &QPushButton::clicked, this, &PictureView::retryWanted);
    describe();
    // Keys that are held act wherever the focus is in the window.
    qApp->installEventFilter(this);
}

PictureView::~PictureView() = default;

void PictureView::setRenderers(PictureRenderer *before, PictureRenderer *after)
{
    connect(this, &PictureView::wanted, this,
            [before, after](Side side, const PictureRequest &request) { (side == Before ? before : after)->request(request); });
    for (const auto &[side, renderer] : {std::pair{Before, before}, std::pair{After, after}}) {
        connect(
            renderer, &PictureRenderer::ready, this,
            [this, shown = side](const QImage &picture, const PictureRequest &request) { showPicture(shown, picture, request); });
        connect(renderer, &PictureRenderer::failed, this,
                [this](const PictureRequest &, const QString &reason) { Q_EMIT pictureFailed(reason); });
    }
}

void PictureView::clearPictures(const QString &path)
{
    shownPath = path;
    failure.clear();
    retry->hide();
    thumb = QImage();
    photo.reset();
    for (Arrived &pictures : arrived)
        pictures = {};
    for (PictureRequest &request : asked)
        request = {};
    drag = NoDrag;
    update();
}

void PictureView::showThumbnail(const QString &path, const QImage &thumbnail, QSize pixels)
{
    if (path != shownPath || !photo) {
        if (path != shownPath)
            clearPictures(path);
        sizeKnown = !pixels.isEmpty();
        thumb = thumbnail;
        if (sizeKnown)
            changeZoom([&] { zoom.setPhotograph(pixels); });
    }
    updateWaiting();
    update();
}

void PictureView::showPhoto(std::shared_ptr<const OpenPhoto> shown)
{
    if (!shown || shown->path() != shownPath)
        clearPictures(shown ? shown->path() : QString());
    photo = std::move(shown);
    failure.clear();
    retry->hide();
    sizeKnown = bool(photo);
    changeZoom([&] { zoom.setPhotograph(photo ? photo->size() : QSize()); });
    updateWaiting();
    askSoon();
    update();
}

void PictureView::showFailure(const QString &path, const QString &reason)
{
    clearPictures(path);
    failure = reason;
    retry->setVisible(!failure.isEmpty());
    layOut();
    updateWaiting();
    describe();
}

void PictureView::setStrength(int strength)
{
    if (strength == percent)
        return;
    percent = strength;
    describe();
    askSoon();
}

void PictureView::setMode(Mode mode)
{
    if (mode == comparison)
        return;
    comparison = mode;
    drag = NoDrag;
    layOut();
    describe();
    askSoon();
    update();
}

void PictureView::setClipping(bool on)
{
    clippingShown = on;
    askSoon();
}

void PictureView::setScreenColours(std::shared_ptr<ScreenColours> colours)
{
    screenColours = std::move(colours);
    askSoon();
}

void PictureView::setPeek(Peek peek)
{
    set = peek;
    hold(held, heldKey);
}

void PictureView::hold(Peek peek, int key)
{
    held = peek;
    heldKey = key;
    const Peek now = held != NoPeek ? held : set;
    if (now == peeked)
        return;
    peeked = now;
    describe();
    askSoon();
    update();
    Q_EMIT peekChanged(peeked);
}

void PictureView::setSplitPosition(double position)
{
    split = std::clamp(position, 0.0, 1.0);
    update();
}

QSize PictureView::sizeHint() const
{
    return {960, 600};
}

QSize PictureView::minimumSizeHint() const
{
    return {320, 200};
}

void PictureView::changeZoom(const std::function<void()> &change)
{
    const double before = zoom.scale();
    const bool fitted = zoom.fits();
    const QRect placed = zoom.placed();
    change();
    if (zoom.scale() != before || zoom.fits() != fitted) {
        describe();
        Q_EMIT zoomChanged(zoom.scale(), zoom.fits());
    }
    if (zoom.placed() != placed)
        update();
    askSoon();
}

void PictureView::layOut()
{
    if (const QSize size = pane(0).size(); size != zoom.viewport())
        changeZoom([&] { zoom.setViewport(size); });
    retry->resize(retry->sizeHint());
    retry->move((width() - retry->width()) / 2, failureRoom().bottom() + retry->height() / 2);
}

/// Where the reason of a failure is, in the middle.
QRect PictureView::failureRoom() const
{
    return fontMetrics().boundingRect(rect().adjusted(kFailureMargin, kFailureMargin, -kFailureMargin, -kFailureMargin),
                                      Qt::AlignCenter | Qt::TextWordWrap, failure);
}

void PictureView::zoomToFit()
{
    changeZoom([&] { zoom.fit(); });
}

void PictureView::zoomTo(double scale)
{
    changeZoom([&] { zoom.setScale(scale, pointerInPane()); });
}

void PictureView::toggleFullSize()
{
    if (!zoom.fits() && zoom.scale() == 1)
        zoomToFit();
    else
        zoomTo(1);
}

void PictureView::zoomIn()
{
    changeZoom([&] { zoom.stepScale(1, pointerInPane()); });
}

void PictureView::zoomOut()
{
    changeZoom([&] { zoom.stepScale(-1, pointerInPane()); });
}

QRect PictureView::pane(int index) const
{
    const double ratio = devicePixelRatioF();
    const QSize whole(int(std::ceil(width() * ratio)), int(std::ceil(height() * ratio)));
    if (paneCount() == 1)
        return {QPoint(), whole};
    const int across = (whole.width() - int(kGap * ratio)) / 2;
    return {index == 0 ? 0 : whole.width() - across, 0, across, whole.height()};
}

/// From the widget to the pane that the position is in, in device pixels.
QPointF PictureView::inPane(QPointF position) const
{
    const QPointF device = position * devicePixelRatioF();
    const QRect right = pane(paneCount() - 1);
    return device.x() >= right.left() ? device - right.topLeft() : device;
}

QPointF PictureView::pointerInPane() const
{
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    return isVisible() && rect().contains(pointer) ? inPane(pointer) : QRectF(QPointF(), zoom.viewport()).center();
}

void PictureView::askSoon()
{
    if (!asking.isActive())
        asking.start(0, this);
}

void PictureView::ask()
{
    const QRect part = zoom.visible();
    if (!photo || part.isEmpty())
        return;
    PictureRequest request;
    request.photo = photo;
    request.size = part.size();
    request.scale = zoom.scale();
    request.corner = zoom.toPhotograph(part.topLeft());
    request.clipping = clippingShown;
    request.colours = screenColours;
    for (const Side side : {Before, After}) {
        const bool map = side == After && peeked == PeekMap;
        request.what = map ? PictureRequest::HazeMap : PictureRequest::Photo;
        request.strength = side == Before ? 0 : percent;
        if (areSame(request, asked[side]))
            continue;
        asked[side] = request;
        Q_EMIT wanted(side, request);
    }
}

void PictureView::showPicture(Side side, const QImage &picture, const PictureRequest &request)
{
    if (!photo || !request.photo || request.photo->path() != shownPath || picture.isNull())
        return;
    const Kind kind = request.what == PictureRequest::HazeMap ? MapPicture : side == Before ? BeforePicture : AfterPicture;
    Arrived &pictures = arrived[kind];
    pictures.picture = picture;
    pictures.request = request;
    const QSizeF whole(photo->width() * request.scale, photo->height() * request.scale);
    if (request.corner.isNull() && request.size.width() >= std::floor(whole.width()) &&
        request.size.height() >= std::floor(whole.height())) {
        pictures.whole = picture;
        pictures.wholeRequest = request;
    }
    updateWaiting();
    update();
}

void PictureView::updateWaiting()
{
    const bool waits = !shownPath.isEmpty() && failure.isEmpty() && !(photo && photo->isComplete());
    if (!waits) {
        waitShown = false;
        animation.stop();
        patience.stop();
    } else if (!waitShown && !patience.isActive()) {
        patience.start(kPatienceMs, this);
    }
}

void PictureView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == asking.timerId()) {
        asking.stop();
        layOut();
        ask();
    } else if (event->timerId() == patience.timerId()) {
        patience.stop();
        waitShown = true;
        if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0)
            animation.start(kTurnMs, this);
        update();
    } else if (event->timerId() == animation.timerId()) {
        turn = (turn + kTurnDegrees) % 360;
        update();
    } else {
        QWidget::timerEvent(event);
    }
}

/// Whether this key, pressed where `receiver` has the focus, is one that is held.
bool PictureView::holdsBy(const QKeyEvent &event, const QWidget &receiver) const
{
    if (event.key() == Qt::Key_Alt)
        return !(event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::MetaModifier));
    if (event.modifiers() != Qt::NoModifier || (event.key() != Qt::Key_Space && event.key() != Qt::Key_M))
        return false;
    // A field for numbers has no use for either, but one for text has.
    if (receiver.testAttribute(Qt::WA_InputMethodEnabled) && !qobject_cast<const QAbstractSpinBox *>(&receiver))
        return false;
    return !qobject_cast<const QComboBox *>(&receiver) &&
           !(event.key() == Qt::Key_Space && qobject_cast<const QAbstractButton *>(&receiver));
}

bool PictureView::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::ApplicationStateChange ||
        (watched == window() && (type == QEvent::WindowDeactivate || type == QEvent::WindowBlocked)))
        letGo();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::FocusOut)
        return false;
    const auto *receiver = qobject_cast<const QWidget *>(watched);
    if (!receiver || receiver->window() != window() || !isVisible())
        return false;
    if (type == QEvent::FocusOut) {
        letGo();
        return false;
    }
    const auto &key = *static_cast<QKeyEvent *>(event);
    const bool isAlt = key.key() == Qt::Key_Alt; // still opens menus
    if (key.isAutoRepeat())
        return !isAlt && holdsBy(key, *receiver);
    if (type == QEvent::KeyRelease) {
        if (held == NoPeek || key.key() != heldKey)
            return false;
        letGo();
        return !isAlt;
    }
    if (!holdsBy(key, *receiver)) {
        if (heldKey == Qt::Key_Alt) // it was the beginning of a combination
            letGo();
        return false;
    }
    hold(key.key() == Qt::Key_Space ? PeekBefore : PeekMap, key.key());
    return !isAlt;
}

std::vector<KeySheet::Row> PictureView::keys()
{
    const auto named = [](const char *keys) {
        return QKeySequence::listToString(QKeySequence::listFromString(QLatin1String(keys)), QKeySequence::NativeText);
    };
    return {{named("Space"), tr("Hold: the photograph before")},
            {named("M"), tr("Hold: the haze map; Alt does the same")},
            {named("Ctrl+Left; Ctrl+Right; Ctrl+Up; Ctrl+Down"), tr("Move over the photograph")},
            {named("Ctrl+Shift+Left; Ctrl+Shift+Right"), tr("Move the line between before and after")}};
}

void PictureView::keyPressEvent(QKeyEvent *event)
{
    const int x = (event->key() == Qt::Key_Right) - (event->key() == Qt::Key_Left);
    const int y = (event->key() == Qt::Key_Down) - (event->key() == Qt::Key_Up);
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if ((x != 0 || y != 0) && modifiers == Qt::ControlModifier)
        changeZoom([&] { zoom.moveBy({-x * zoom.viewport().width() / kPanParts, -y * zoom.viewport().height() / kPanParts}); });
    else if (x != 0 && modifiers == (Qt::ControlModifier | Qt::ShiftModifier))
        setSplitPosition(split + x * kLineStep);
    else
        QWidget::keyPressEvent(event);
}

bool PictureView::event(QEvent *event)
{
    if (event->type() == QEvent::NativeGesture) { // of a touchpad
        const auto *gesture = static_cast<QNativeGestureEvent *>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            pinch(1 + gesture->value(), gesture->localPos());
            return true;
        }
    } else if (event->type() == QEvent::Gesture) { // of two fingers on the screen
        if (const QGesture *gesture = static_cast<QGestureEvent *>(event)->gesture(Qt::PinchGesture)) {
            const auto *fingers = static_cast<const QPinchGesture *>(gesture);
            drag = NoDrag;
            pinch(fingers->scaleFactor(), mapFromGlobal(fingers->centerPoint().toPoint()));
            return true;
        }
    } else if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Photograph"));
        retry->setText(tr("Try again"));
        describe();
        update();
    }
    return QWidget::event(event);
}

void PictureView::pinch(double factor, QPointF position)
{
    if (factor > 0)
        changeZoom([&] { zoom.scaleBy(factor, inPane(position)); });
    updateCursor(position);
}

void PictureView::hideEvent(QHideEvent *)
{
    letGo();
    drag = NoDrag;
}

void PictureView::resizeEvent(QResizeEvent *)
{
    layOut();
}

void PictureView::focusInEvent(QFocusEvent *event)
{
    keyboardFocus = event->reason() != Qt::MouseFocusReason && event->reason() != Qt::ActiveWindowFocusReason;
    update();
}

void PictureView::focusOutEvent(QFocusEvent *)
{
    keyboardFocus = false;
    update();
}

void PictureView::describe()
{
    QString text;
    if (!failure.isEmpty())
        text = failure;
    else if (peeked == PeekBefore)
        text = tr("Before, zoom %1 %").arg(zoom.scale() * 100, 0, 'f', 0);
    else if (peeked == PeekMap)
        text = tr("Haze map, zoom %1 %").arg(zoom.scale() * 100, 0, 'f', 0);
    else if (comparison == AfterOnly)
        text = tr("After %1 %, zoom %2 %").arg(percent).arg(zoom.scale() * 100, 0, 'f', 0);
    else
        text = tr("Before and after %1 %, zoom %2 %").arg(percent).arg(zoom.scale() * 100, 0, 'f', 0);
    setAccessibleDescription(text);
}

/// Where the line is, in device pixels.
int PictureView::lineAt() const
{
    const QRect part = zoom.visible();
    return part.left() + int(std::lround(split * part.width()));
}

bool PictureView::isOnLine(QPointF position) const
{
    const QPointF device = position * devicePixelRatioF();
    const QRect part = zoom.visible();
    return comparison == Split && peeked == NoPeek && device.y() >= part.top() && device.y() <= part.bottom() &&
           std::abs(device.x() - lineAt()) <= kGrip * devicePixelRatioF();
}

void PictureView::updateCursor(QPointF position)
{
    const QSize placed = zoom.placed().size();
    const bool movable = placed.width() > zoom.viewport().width() || placed.height() > zoom.viewport().height();
    if (drag == LineDrag || (drag == NoDrag && isOnLine(position)))
        setCursor(Qt::SplitHCursor);
    else if (drag == PanDrag)
        setCursor(Qt::ClosedHandCursor);
    else if (movable)
        setCursor(Qt::OpenHandCursor);
    else
        unsetCursor();
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton) {
        drag = event->button() == Qt::LeftButton && isOnLine(event->localPos()) ? LineDrag : PanDrag;
        dragFrom = event->localPos() * devicePixelRatioF();
        updateCursor(event->localPos());
    }
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF device = event->localPos() * devicePixelRatioF();
    const QRect part = zoom.visible();
    if (drag == LineDrag && !part.isEmpty()) {
        setSplitPosition((device.x() - part.left()) / part.width());
    } else if (drag == PanDrag) {
        const QPoint moved = (device - dragFrom).toPoint();
        changeZoom([&] { zoom.moveBy(moved); });
        dragFrom += moved; // what was rounded off is not lost
    }
    updateCursor(event->localPos());
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    drag = NoDrag;
    updateCursor(event->localPos());
}

void PictureView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || isOnLine(event->localPos()))
        return;
    if (!zoom.fits() && zoom.scale() == 1)
        zoomToFit();
    else
        changeZoom([&] { zoom.setScale(1, inPane(event->localPos())); });
    updateCursor(event->localPos());
}

void PictureView::wheelEvent(QWheelEvent *event)
{
    // With Alt, which is held for the map, wheels turn sideways.
    const int delta =
        event->modifiers() & Qt::AltModifier ? event->angleDelta().x() + event->angleDelta().y() : event->angleDelta().y();
    if ((delta < 0) != (wheelDelta < 0))
        wheelDelta = 0;
    wheelDelta += delta;
    if (const int steps = wheelDelta / kNotch; steps != 0) {
        wheelDelta -= steps * kNotch;
        changeZoom([&] { zoom.stepScale(steps, inPane(event->position())); });
    }
    updateCursor(event->position());
    event->accept();
}

void PictureView::paintEvent(QPaintEvent *)
{
    layOut(); // the screen may be another
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    painter.fillRect(rect(), kSurround);
    // Until the picture of the map is there, what is in view stays.
    const Peek shownPeek = peeked == PeekMap && arrived[MapPicture].picture.isNull() ? NoPeek : peeked;
    const bool halved = comparison == Split && shownPeek == NoPeek;
    const auto kindOf = [&](int side) {
        return shownPeek == PeekMap ? MapPicture : shownPeek == PeekBefore || side == 0 ? BeforePicture : AfterPicture;
    };

    // Pictures in device pixels.
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    const QRect first = pane(0), second = pane(paneCount() - 1);
    if (halved) {
        QRect left = first, right = first;
        left.setRight(lineAt() - 1);
        right.setLeft(lineAt());
        paintPane(painter, first, BeforePicture, left);
        paintPane(painter, first, AfterPicture, right);
    } else {
        if (comparison == SideBySide)
            paintPane(painter, first, kindOf(0), first);
        paintPane(painter, second, kindOf(1), second);
    }
    painter.restore();

    painter.setRenderHint(QPainter::Antialiasing);
    if (!failure.isEmpty()) {
        painter.setPen(kOnSurround);
        painter.drawText(failureRoom(), Qt::AlignCenter | Qt::TextWordWrap, failure);
    } else if (!shownPath.isEmpty()) {
        const QRect part = sizeKnown ? zoom.visible() : QRect(QPoint(), zoom.viewport());
        const auto within = [&](const QRect &shown) {
            return scaled(part.translated(shown.topLeft()) & shown, 1 / ratio).toRect();
        };
        const Arrived &result = arrived[AfterPicture];
        // What is there, and the strength that it has, even if another one has been asked for.
        const auto name = [&](const QRect &shown, Qt::Alignment corner, Kind kind) {
            if (!arrived[kind].picture.isNull())
                paintChip(painter, within(shown), corner | Qt::AlignTop,
                          kind == MapPicture      ? tr("Haze map")
                          : kind == BeforePicture ? tr("Before")
                                                  : tr("After %1 %").arg(result.request.strength));
        };
        if (halved) {
            const int line = int(lineAt() / ratio);
            painter.setClipRect(QRect(0, 0, line, height()));
            name(first, Qt::AlignLeft, BeforePicture);
            painter.setClipRect(QRect(line, 0, width() - line, height()));
            name(first, Qt::AlignRight, AfterPicture);
            painter.setClipping(false);
            paintLine(painter);
        } else {
            if (comparison == SideBySide)
                name(first, Qt::AlignLeft, kindOf(0));
            name(second, Qt::AlignRight, kindOf(1));
        }
        if (waitShown)
            paintChip(painter, within(second), Qt::AlignRight | Qt::AlignBottom,
                      photo ? tr("Estimating the haze") : tr("Reading the photograph"), /*turning=*/true);
    }
    if (keyboardFocus) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

/// Paints what there is of this kind into `part` of a pane.
void PictureView::paintPane(QPainter &painter, const QRect &shown, Kind kind, const QRect &part) const
{
    painter.save();
    painter.setClipRect(part);
    painter.translate(shown.topLeft());
    const Arrived &pictures = arrived[kind];
    if (!pictures.picture.isNull()) {
        if (!pictures.whole.isNull() &&
            !areaOf(pictures.request)
                 .contains(QRectF(zoom.toPhotograph(zoom.visible().topLeft()), QSizeF(zoom.visible().size()) / zoom.scale())))
            paintArrived(painter, pictures.whole, pictures.wholeRequest);
        paintArrived(painter, pictures.picture, pictures.request);
    } else if (kind == AfterPicture && !arrived[BeforePicture].picture.isNull()) {
        paintArrived(painter, arrived[BeforePicture].picture, arrived[BeforePicture].request);
    } else {
        paintThumbnail(painter);
    }
    painter.restore();
}

void PictureView::paintArrived(QPainter &painter, const QImage &picture, const PictureRequest &request) const
{
    const QRectF place = zoom.toViewport(areaOf(request));
    if (request.scale == zoom.scale()) {
        painter.drawImage(place.topLeft().toPoint(), picture); // pixel by pixel
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture);
}

void PictureView::paintThumbnail(QPainter &painter) const
{
    if (thumb.isNull())
        return;
    QRect place = zoom.placed();
    if (!sizeKnown) {
        place.setSize(thumb.size().scaled(zoom.viewport(), Qt::KeepAspectRatio));
        place.moveCenter(QRect(QPoint(), zoom.viewport()).center());
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, thumb);
}

void PictureView::paintLine(QPainter &painter) const
{
    const double ratio = devicePixelRatioF();
    const QRectF part = scaled(zoom.visible(), 1 / ratio);
    const double x = lineAt() / ratio;
    // White between dark edges, to be seen on any photograph.
    painter.fillRect(QRectF(x - 2, part.top(), 4, part.height()), kLineEdge);
    painter.fillRect(QRectF(x - 1, part.top(), 2, part.height()), kLine);
    const QPointF middle(x, part.center().y());
    painter.setPen(QPen(kLineEdge, 1));
    painter.setBrush(kLine);
    painter.drawEllipse(middle, kHandleRadius, kHandleRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kSurround);
    for (const int towards : {-1, 1})
        painter.drawPolygon(QPolygonF(QVector<QPointF>{middle + QPointF(towards * 3, -5), middle + QPointF(towards * 9, 0),
                                                       middle + QPointF(towards * 3, 5)}));
}

void PictureView::paintChip(QPainter &painter, const QRect &within, Qt::Alignment corner, const QString &text, bool turning) const
{
    const QFontMetrics metrics = fontMetrics();
    const int padding = metrics.height() / 2, arc = turning ? metrics.height() + padding / 2 : 0;
    const QRect room = within.adjusted(kChipMargin, kChipMargin, -kChipMargin, -kChipMargin);
    QRect chip(0, 0, metrics.horizontalAdvance(text) + arc + 2 * padding, metrics.height() + padding);
    chip.moveTop(corner & Qt::AlignTop ? room.top() : room.bottom() + 1 - chip.height());
    chip.moveLeft(corner & Qt::AlignLeft ? room.left() : room.right() + 1 - chip.width());
    painter.setPen(Qt::NoPen);
    painter.setBrush(kChip);
    painter.drawRoundedRect(chip, 4, 4);
    painter.setPen(kOnChip);
    painter.drawText(chip.adjusted(padding + arc, 0, -padding, 0), Qt::AlignVCenter | Qt::AlignLeft, text);
    if (turning) {
        const int side = metrics.ascent();
        painter.setPen(QPen(kOnChip, 2, Qt::SolidLine, Qt::RoundCap));
        painter.setBrush(Qt::NoBrush);
        painter.drawArc(QRectF(chip.left() + padding, chip.center().y() - side / 2.0 + 0.5, side, side), -turn * 16, 270 * 16);
    }
}
