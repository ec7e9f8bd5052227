#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include <QApplication>
#include <QDialog>
#include <QGestureEvent>
#include <QLineEdit>
#include <QNativeGestureEvent>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "OpenPhoto.h"
#include "PictureRenderer.h"
#include "PictureView.h"
#include "TestFolder.h"
#include "pictureColours.h"

namespace {

constexpr int kLimitMs = 30000;

using Side = PictureView::Side;

/// What the fake renderer paints for a pixel of the photograph: where it is, and which picture it belongs to.
QRgb codeOf(int x, int y, int picture)
{
    return qRgb(x & 255, y & 255, 60 * picture);
}

enum Picture { BeforeCode = 1, AfterCode = 2, MapCode = 3, OlderCode = 4 };

/// A window with a view, above it something that shifts it, and beside it other things that take the focus.
class View : public testing::Test
{
protected:
    void SetUp() override
    {
        window.setGeometry(0, 0, 701, 543);
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(3, 5, 7, 1);
        layout->setSpacing(1);
        layout->addWidget(&button);
        layout->addWidget(&text);
        layout->addWidget(&slider);
        layout->addWidget(&view, 1);
        QObject::connect(&view, &PictureView::wanted, &window, [this](Side side, const PictureRequest &request) {
            requests.push_back({side, request});
            if (answers)
                answer(side, request);
        });
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kLimitMs));
        view.setFocus(Qt::MouseFocusReason); // without a frame
    }

    /// A photograph of 3000 x 2000 pixels, whose own colours don't matter here.
    void open(const QString &name = QStringLiteral("valley.jpg"))
    {
        folder.photograph(name, 3000, 2000);
        view.showPhoto(OpenPhoto::read(folder.path(name)));
        settle();
    }
    void settle() { QTest::qWait(1); }

    void answer(Side side, const PictureRequest &request)
    {
        QImage picture(request.size, QImage::Format_RGB32);
        const int code = request.what == PictureRequest::HazeMap ? MapCode : side == PictureView::Before ? BeforeCode : AfterCode;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                picture.setPixel(
                    x, y, codeOf(int(request.corner.x() + x / request.scale), int(request.corner.y() + y / request.scale), code));
        view.showPicture(side, picture, request);
    }

    /// The view in device pixels, as it is in the window.
    QImage grab()
    {
        const double ratio = view.devicePixelRatioF();
        const QPoint corner(int(std::round(view.x() * ratio)), int(std::round(view.y() * ratio)));
        return window.grab().toImage().convertToFormat(QImage::Format_RGB32).copy(QRect(corner, deviceSize()));
    }
    QSize deviceSize()
    {
        const double ratio = view.devicePixelRatioF();
        return {int(std::ceil(view.width() * ratio)), int(std::ceil(view.height() * ratio))};
    }
    /// Which picture is seen at this part of the view's width and height.
    int pictureAt(double x, double y)
    {
        const QImage seen = grab();
        return int(std::lround(qBlue(seen.pixel(int(x * seen.width()), int(y * seen.height()))) / 60.0));
    }
    QPoint at(double x, double y) { return {int(x * view.width()), int(y * view.height())}; }
    void drag(QPoint from, QPoint to)
    {
        const auto send = [&](QEvent::Type type, QPoint position, Qt::MouseButton changed, Qt::MouseButtons held) {
            QMouseEvent event(type, position, view.mapToGlobal(position), changed, held, Qt::NoModifier);
            QApplication::sendEvent(&view, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, (from + to) / 2, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
        settle();
    }

    TestFolder folder;
    QWidget window;
    QPushButton button{QStringLiteral("Button")};
    QLineEdit text;
    QSlider slider{Qt::Horizontal};
    PictureView view;
    bool answers = true;
    std::vector<std::pair<Side, PictureRequest>> requests;
};

TEST(PictureZoom, KeepsThePointUnderThePointerAndLeavesNoGap)
{
    for (const QSize photo : {QSize(1, 1), QSize(3, 2), QSize(799, 601), QSize(6000, 4000), QSize(20000, 50)})
        for (const QSize viewport : {QSize(1, 1), QSize(640, 480), QSize(1111, 777)})
            for (const QPointF part : {QPointF(0, 0), QPointF(0.31, 0.77), QPointF(1, 1)}) {
                PictureZoom zoom;
                zoom.setViewport(viewport);
                zoom.setPhotograph(photo);
                EXPECT_TRUE(zoom.fits());
                EXPECT_EQ(zoom.visible(), zoom.placed());
                EXPECT_LE(zoom.scale(), 1);
                const double fitted = zoom.scale();
                const QPointF anchor(part.x() * viewport.width(), part.y() * viewport.height());
                for (const int step : {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, -1, -1, 1, -1, -1, -1, -1}) {
                    const QPointF pixel = zoom.toPhotograph(anchor);
                    zoom.stepScale(step, anchor);
                    const QRect placed = zoom.placed();
                    const QPointF moved = (zoom.toPhotograph(anchor) - pixel) * zoom.scale();
                    // An axis on which the photograph is smaller than the viewport is centred, one that reaches an edge stops
                    // there.
                    if (placed.left() < 0 && placed.right() >= viewport.width()) {
                        EXPECT_LE(std::abs(moved.x()), 0.51);
                    }
                    if (placed.top() < 0 && placed.bottom() >= viewport.height()) {
                        EXPECT_LE(std::abs(moved.y()), 0.51);
                    }
                    EXPECT_TRUE(placed.width() >= viewport.width()
                                    ? placed.left() <= 0 && placed.right() >= viewport.width() - 1
                                    : std::abs(placed.left() + placed.right() + 1 - viewport.width()) <= 1);
                    EXPECT_TRUE(zoom.scale() < 1 || zoom.scale() == std::floor(zoom.scale())) << zoom.scale();
                    EXPECT_GE(zoom.scale(), fitted);
                }
            }
}

struct Resized
{
    const char *name;
    QSize photo, viewport;
    double scale; ///< Zoomed to it before; 0 for fit.
    QSize then;   ///< The viewport's next size.
    double expected;
};

TEST(PictureZoom, AViewportOfAnotherSizeKeepsTheMiddleOrFitsAgain)
{
    const Resized kCases[] = {
        {"fit_stays_fit", {4000, 3000}, {400, 300}, 0, {800, 300}, 0.1},
        {"full_size_stays", {4000, 3000}, {400, 300}, 1, {800, 300}, 1},
        {"larger_than_the_scale_allows", {4000, 3000}, {400, 300}, 0.2, {2000, 1500}, 0.5},
        {"never_enlarged_to_fit", {400, 300}, {400, 300}, 0, {2000, 1500}, 1},
    };
    for (const Resized &one : kCases) {
        PictureZoom zoom;
        zoom.setPhotograph(one.photo);
        zoom.setViewport(one.viewport);
        if (one.scale > 0)
            zoom.setScale(one.scale, QPointF(one.viewport.width() / 3.0, one.viewport.height() / 4.0));
        const QPointF middle = zoom.toPhotograph(QRectF(QPointF(), one.viewport).center());
        zoom.setViewport(one.then);
        EXPECT_NEAR(zoom.scale(), one.expected, 1e-9) << one.name;
        const QPointF moved = zoom.toPhotograph(QRectF(QPointF(), one.then).center()) - middle;
        EXPECT_TRUE(zoom.fits() || moved.manhattanLength() * zoom.scale() <= 1.01) << one.name;
    }
}

TEST_F(View, APixelOfThePhotographIsOneOfTheScreen)
{
    open();
    for (const double scale : {1.0, 2.0, 4.0}) {
        view.zoomTo(scale);
        settle();
        drag(at(0.8, 0.6), at(0.4, 0.3)); // to some odd corner
        for (const PictureView::Mode mode : {PictureView::Split, PictureView::SideBySide, PictureView::AfterOnly}) {
            view.setMode(mode);
            settle();
            const PictureRequest &request = requests.back().second;
            EXPECT_EQ(request.scale, scale);
            const QImage seen = grab();
            const int across = mode == PictureView::SideBySide ? request.size.width() : seen.width();
            const int split = int(std::lround(view.splitPosition() * seen.width()));
            const int margin = int(20 * view.devicePixelRatioF()); // where the line is
            int wrong = 0;
            for (int y = seen.height() / 5; y < seen.height() * 2 / 5; ++y) // below the labels, above the knob
                for (int x = 0; x < seen.width() - 1; ++x) {                // the last column may be half a pixel
                    const bool second = mode == PictureView::SideBySide ? x >= seen.width() - across : x >= split;
                    if (mode == PictureView::Split ? std::abs(x - split) < margin
                                                   : mode == PictureView::SideBySide && x >= across && x < seen.width() - across)
                        continue;
                    const int inPane = mode == PictureView::SideBySide && second ? x - (seen.width() - across) : x;
                    const int code = mode == PictureView::AfterOnly || second ? AfterCode : BeforeCode;
                    wrong += seen.pixel(x, y) !=
                             codeOf(int(request.corner.x() + inPane / scale), int(request.corner.y() + y / scale), code);
                }
            EXPECT_EQ(wrong, 0) << "scale " << scale << ", mode " << mode;
        }
    }
}

TEST_F(View, ThePointerZoomsWhereItIsAndPansBothSides)
{
    open();
    view.setMode(PictureView::SideBySide);
    settle();
    EXPECT_TRUE(view.fits());
    // A pixel in the right half, as a part of the photograph, before and after.
    const QPoint pointer = at(0.8, 0.45);
    const auto pixelUnder = [&] {
        const PictureRequest &request = requests.back().second;
        const double ratio = view.devicePixelRatioF();
        const QSize whole = deviceSize();
        const QSize pane((whole.width() - int(2 * ratio)) / 2, whole.height());
        const QPointF inPane = QPointF(pointer) * ratio - QPointF(whole.width() - pane.width(), 0);
        const QPoint topLeft((pane.width() - request.size.width()) / 2, (pane.height() - request.size.height()) / 2);
        return request.corner + (inPane - topLeft) / request.scale;
    };
    const QPointF wanted = pixelUnder();
    QTest::mouseDClick(&view, Qt::LeftButton, Qt::NoModifier, pointer);
    settle();
    EXPECT_EQ(view.scale(), 1);
    EXPECT_LE((pixelUnder() - wanted).manhattanLength(), 4);
    for (int notch = 0; notch < 4; ++notch) { // a quarter of a step each
        QWheelEvent wheel(pointer, view.mapToGlobal(pointer), {}, QPoint(0, 30), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&view, &wheel);
        settle();
        EXPECT_EQ(view.scale(), notch < 3 ? 1 : 2);
    }
    EXPECT_LE((pixelUnder() - wanted).manhattanLength(), 4);

    // Two fingers on a touchpad, then on the screen.
    QNativeGestureEvent spread(Qt::ZoomNativeGesture, nullptr, pointer, pointer, view.mapToGlobal(pointer), -0.25, 0, 0);
    QApplication::sendEvent(&view, &spread);
    settle();
    EXPECT_EQ(view.scale(), 1.5);
    EXPECT_LE((pixelUnder() - wanted).manhattanLength(), 4);
    QPinchGesture fingers;
    fingers.setScaleFactor(4 / 3.0);
    fingers.setCenterPoint(view.mapToGlobal(pointer));
    QGestureEvent pinch({&fingers});
    QApplication::sendEvent(&view, &pinch);
    settle();
    EXPECT_DOUBLE_EQ(view.scale(), 2);
    EXPECT_LE((pixelUnder() - wanted).manhattanLength(), 4);

    requests.clear();
    const PictureRequest *last[2] = {};
    drag(pointer, pointer + QPoint(10, -20));
    for (const auto &[side, request] : requests)
        last[side] = &request;
    ASSERT_TRUE(last[0] && last[1]);
    EXPECT_EQ(last[0]->corner, last[1]->corner);
    EXPECT_LE((pixelUnder() + QPointF(10, -20) * view.devicePixelRatioF() / 2 - wanted).manhattanLength(), 4);
}

TEST_F(View, TheLineIsDraggedAndNothingElseMovesIt)
{
    open();
    EXPECT_EQ(pictureAt(0.4, 0.3), BeforeCode);
    EXPECT_EQ(pictureAt(0.6, 0.3), AfterCode);
    requests.clear();
    drag(at(0.5, 0.3), at(0.7, 0.5));
    EXPECT_EQ(pictureAt(0.6, 0.3), BeforeCode);
    EXPECT_TRUE(requests.empty()); // both pictures are there
    drag(at(0.2, 0.3), at(0.9, 0.5));
    EXPECT_EQ(pictureAt(0.6, 0.3), BeforeCode);
    const double dragged = view.splitPosition();
    QTest::keyClick(&view, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_LT(view.splitPosition(), dragged);
    drag({int(view.splitPosition() * view.width()), view.height() / 3}, {-50, 10});
    EXPECT_EQ(view.splitPosition(), 0);
}

TEST_F(View, TheLastPictureStaysUntilTheNextOneIsThere)
{
    open();
    view.setMode(PictureView::AfterOnly);
    settle();
    answers = false;
    const struct
    {
        const char *name;
        std::function<void()> act;
    } kActs[] = {
        {"strength", [&] { view.setStrength(80); }},
        {"zoomed_in", [&] { view.zoomTo(1); }},
        {"moved", [&] { drag(at(0.5, 0.5), at(0.1, 0.1)); }},
        {"mode", [&] { view.setMode(PictureView::SideBySide); }},
        {"clipping", [&] { view.setClipping(true); }},
        {"map_that_is_not_there", [&] { view.setPeek(PictureView::PeekMap); }},
        {"zoomed_out", [&] { view.zoomToFit(); }},
    };
    for (const auto &[name, act] : kActs) {
        act();
        settle();
        EXPECT_EQ(pictureAt(0.9, 0.5), AfterCode) << name;
        EXPECT_EQ(pictureAt(0.7, 0.5), AfterCode) << name;
    }
    // At 100 % a picture arrives, of a part; what is around it stays when one zooms out.
    view.setPeek(PictureView::NoPeek);
    view.setMode(PictureView::AfterOnly);
    answers = true;
    view.zoomTo(4);
    settle();
    answers = false;
    view.zoomToFit();
    settle();
    EXPECT_EQ(pictureAt(0.05, 0.5), AfterCode);
    EXPECT_EQ(pictureAt(0.95, 0.5), AfterCode);

    // Of another photograph the thumbnail is shown at once, and pictures that were asked for the last one are dropped.
    const auto late = requests.back();
    QImage thumbnail(30, 20, QImage::Format_RGB32);
    thumbnail.fill(codeOf(0, 0, OlderCode));
    view.showThumbnail(folder.path("hill.jpg"), thumbnail, {3000, 2000});
    answer(late.first, late.second);
    EXPECT_EQ(pictureAt(0.5, 0.3), OlderCode);
    open(QStringLiteral("hill.jpg"));
    EXPECT_EQ(pictureAt(0.5, 0.3), OlderCode);
    for (const auto &[side, request] : std::vector(requests.end() - 2, requests.end()))
        answer(side, request);
    EXPECT_EQ(pictureAt(0.5, 0.3), AfterCode);
}

TEST_F(View, AStrengthThatIsDraggedAsksForEachWithItsMarks)
{
    open();
    view.setClipping(true);
    settle();
    requests.clear();
    for (int strength = 1; strength <= 5; ++strength) {
        view.setStrength(strength);
        settle();
    }
    ASSERT_EQ(requests.size(), 5u); // and none for the picture before
    for (std::size_t i = 0; i < requests.size(); ++i) {
        EXPECT_EQ(requests[i].first, PictureView::After);
        EXPECT_EQ(requests[i].second.strength, int(i) + 1);
        EXPECT_TRUE(requests[i].second.clipping);
    }
}

struct Held
{
    const char *name;
    Qt::Key key;
    int seen; ///< On the left, where otherwise before is, and on the right.
};

TEST_F(View, AHeldKeyIsLetGoWhateverTakesTheFocus)
{
    open();
    const Held kKeys[] = {{"space", Qt::Key_Space, BeforeCode}, {"m", Qt::Key_M, MapCode}, {"alt", Qt::Key_Alt, MapCode}};
    const struct
    {
        const char *name;
        std::function<void(Qt::Key)> act;
    } kEnds[] = {
        {"the key", [&](Qt::Key key) { QTest::keyRelease(&view, key); }},
        {"another widget", [&](Qt::Key) { slider.setFocus(); }},
        {"another window",
         [&](Qt::Key) {
             QWidget other;
             other.show();
             other.activateWindow();
             EXPECT_TRUE(QTest::qWaitForWindowActive(&other, kLimitMs));
         }},
        {"a dialog",
         [&](Qt::Key) {
             QDialog dialog(&window);
             QTimer::singleShot(50, &dialog, &QDialog::reject);
             dialog.exec();
         }},
        {"hidden", [&](Qt::Key) { view.hide(); }},
    };
    for (const Held &held : kKeys)
        for (const auto &[name, act] : kEnds) {
            window.activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kLimitMs));
            view.setFocus(Qt::MouseFocusReason);
            settle();
            QTest::keyPress(&view, held.key);
            settle();
            EXPECT_EQ(pictureAt(0.2, 0.3), held.seen) << held.name;
            EXPECT_EQ(pictureAt(0.8, 0.3), held.seen) << held.name;
            act(held.key);
            EXPECT_EQ(view.peek(), PictureView::NoPeek) << held.name << " and " << name;
            view.show();
            settle();
            EXPECT_EQ(pictureAt(0.2, 0.3), BeforeCode) << held.name << " and " << name;
            EXPECT_EQ(pictureAt(0.8, 0.3), AfterCode) << held.name << " and " << name;
        }
}

TEST_F(View, HeldKeysActWhereTheyMeanNothingElse)
{
    open();
    const struct
    {
        QWidget *focus;
        bool space, m;
    } kCases[] = {{&view, true, true}, {&slider, true, true}, {&button, false, true}, {&text, false, false}};
    for (const auto &[focus, space, m] : kCases) {
        focus->setFocus();
        for (const auto &[key, holds] : {std::pair{Qt::Key_Space, space}, std::pair{Qt::Key_M, m}}) {
            QTest::keyPress(focus, key, key == Qt::Key_M ? Qt::NoModifier : Qt::NoModifier);
            EXPECT_EQ(view.peek() != PictureView::NoPeek, holds) << focus->metaObject()->className() << " " << key;
            QTest::keyRelease(focus, key);
            EXPECT_EQ(view.peek(), PictureView::NoPeek);
        }
    }
    // What begins with Alt is a combination, and a button's peek survives the focus.
    QTest::keyPress(&view, Qt::Key_Alt);
    QTest::keyPress(&view, Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(view.peek(), PictureView::NoPeek);
    view.setPeek(PictureView::PeekMap);
    button.setFocus();
    EXPECT_EQ(view.peek(), PictureView::PeekMap);
}

TEST_F(View, ShowsTheRenderersOwnPixelsAndMarks)
{
    const QString path = folder.path("slope.png");
    folder.photograph("slope.png", 500, 400);
    QImage pixels(path);
    for (int x = 0; x < 40; ++x)
        for (int y = 0; y < 40; ++y) {
            pixels.setPixel(x + 150, y + 200, qRgb(0, 0, 0));
            pixels.setPixel(x + 200, y + 200, qRgb(255, 255, 255));
        }
    ASSERT_TRUE(pixels.save(path));
    answers = false;
    PictureRenderer before, after;
    view.setRenderers(&before, &after);
    int pictures = 0;
    for (const PictureRenderer *renderer : {&before, &after})
        QObject::connect(renderer, &PictureRenderer::ready, &window, [&] { ++pictures; });
    view.setStrength(70);
    view.setClipping(true);
    view.setMode(PictureView::AfterOnly);
    view.showPhoto(OpenPhoto::read(path)->withMap());
    view.zoomTo(1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return pictures >= 2; }, kLimitMs));
    for (const auto &[peek, wanted] :
         {std::pair{PictureView::NoPeek, PictureView::After}, std::pair{PictureView::PeekBefore, PictureView::Before}}) {
        view.setPeek(peek);
        settle();
        const auto last =
            std::find_if(requests.rbegin(), requests.rend(), [side = wanted](const auto &one) { return one.first == side; });
        const QImage expected = PictureRenderer::picture(last->second).convertToFormat(QImage::Format_RGB32), seen = grab();
        const QPoint corner((seen.width() - expected.width()) / 2, (seen.height() - expected.height()) / 2);
        const QRect part(expected.width() / 8, expected.height() / 3, expected.width() / 2,
                         expected.height() / 2); // without labels
        EXPECT_TRUE(seen.copy(part.translated(corner)) == expected.copy(part));
        if (peek == PictureView::PeekBefore) {
            EXPECT_EQ(seen.pixel(corner + QPoint(170, 220) - (last->second.corner).toPoint()), PictureRequest::kBlackMark);
            EXPECT_EQ(seen.pixel(corner + QPoint(220, 220) - (last->second.corner).toPoint()), PictureRequest::kWhiteMark);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
