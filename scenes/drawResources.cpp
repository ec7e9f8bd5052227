#include <cmath>
#include <cstdio>
#include <vector>

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include "HazeState.h"
#include "RemoveHaze.h"
#include "VException.h"
#include "VImage.h"
#include "drawScene.h"
#include "workingForm.h"

// Draws the plug-in's pictures from the sample landscape, and the program's icon. draw_resources FOLDER writes
// NimbraBeforeAfter.png, iconwait_01.png to iconwait_12.png, and veilaway_16.png to veilaway_256.png. In the source tree they are
// in resources/pictures.

namespace {

constexpr int kSceneWidth = 1200;
constexpr int kSceneHeight = 800;
const QRect kView(590, 30, 500, 500); // the church, the lake and the highest mountain

constexpr int kHalf = 128;
constexpr double kCorner = 10.0;
constexpr int kIcon = 64;
constexpr int kFrames = 12;
constexpr int kProgramIcons[] = {16, 24, 32, 48, 64, 128, 256};
constexpr double kPi = 3.14159265358979323846;

/// The engine's result for the hazy scene.
QImage withoutHaze(const QImage &hazy)
{
    VImage source(hazy.width(), hazy.height(), VImage::Rgb, 8);
    for (int y = 0; y < hazy.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(hazy.constScanLine(y));
        unsigned char *to = source.PixelAddress(0, y);
        for (int x = 0; x < hazy.width(); ++x, to += 3) {
            to[0] = static_cast<unsigned char>(qRed(from[x]));
            to[1] = static_cast<unsigned char>(qGreen(from[x]));
            to[2] = static_cast<unsigned char>(qBlue(from[x]));
        }
    }
    VImage working;
    toWorkingForm(source, working);
    HazeState state = {};
    state.strength = 90;
    RemoveHaze(working, state);
    delete[] state.transmission;
    QImage clear;
    working.ToQImage(clear);
    return clear;
}

QImage scaledView(const QImage &scene, int side)
{
    return scene.copy(kView).scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage transparent(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

/// Before on the left, after on the right, with a white seam between them.
QImage beforeAfter(const QImage &hazy, const QImage &clear)
{
    QImage image = transparent(2 * kHalf, kHalf);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(image.rect()), kCorner, kCorner);
    painter.setClipPath(outline);
    painter.drawImage(0, 0, scaledView(hazy, kHalf));
    painter.drawImage(kHalf, 0, scaledView(clear, kHalf));
    painter.fillRect(kHalf - 1, 0, 2, kHalf, Qt::white);
    return image;
}

/// One frame of the wait sign: twelve dots circling a small view of the scene, whose haze clears and returns.
QImage waitFrame(int frame, const QImage &hazy, const QImage &clear)
{
    QImage image = transparent(kIcon, kIcon);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(kIcon / 2.0, kIcon / 2.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(20, 26, 34, 170));
    painter.drawEllipse(QPointF(), 31.0, 31.0);

    constexpr double kViewRadius = 16.0;
    const QRectF view(-kViewRadius, -kViewRadius, 2 * kViewRadius, 2 * kViewRadius);
    QPainterPath circle;
    circle.addEllipse(view);
    painter.save();
    painter.setClipPath(circle);
    painter.drawImage(view, hazy);
    painter.setOpacity(0.5 - 0.5 * std::cos(2.0 * kPi * frame / kFrames));
    painter.drawImage(view, clear);
    painter.restore();

    for (int dot = 0; dot < kFrames; ++dot) {
        const int age = (frame - dot + kFrames) % kFrames;
        const double brightness = std::pow(1.0 - double(age) / kFrames, 1.5);
        const double angle = 2.0 * kPi * dot / kFrames - kPi / 2.0;
        painter.setBrush(QColor(255, 255, 255, 40 + int(215.0 * brightness)));
        painter.drawEllipse(QPointF(std::cos(angle), std::sin(angle)) * 23.5, 2.0 + brightness, 2.0 + brightness);
    }
    return image;
}

/// The program's icon: mountains behind a half-opened veil. Coordinates are hundredths of the icon's side.
QImage programIcon(int side)
{
    constexpr double kUnits = 100.0;
    QImage image = transparent(side, side);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / kUnits, side / kUnits);
    QPainterPath frame;
    frame.addRoundedRect(QRectF(3, 3, 94, 94), 20, 20);
    const auto fill = [&](const QPainterPath &shape, const QColor &top, const QColor &bottom) {
        QLinearGradient gradient(0, 0, 0, kUnits);
        gradient.setColorAt(0, top);
        gradient.setColorAt(1, bottom);
        painter.fillPath(shape & frame, gradient);
    };
    const auto ridge = [](const QVector<QPointF> &line) {
        QPainterPath shape;
        shape.addPolygon(QPolygonF(line));
        shape.closeSubpath();
        return shape;
    };

    fill(frame, QColor(36, 112, 196), QColor(158, 208, 244));
    QPainterPath sun;
    sun.addEllipse(QPointF(76, 25), 9.5, 9.5);
    painter.fillPath(sun, QColor(255, 214, 84));
    fill(ridge({{0, 78}, {17, 55}, {28, 64}, {53, 30}, {80, 62}, {89, 54}, {100, 68}, {100, 100}, {0, 100}}), QColor(40, 62, 110),
         QColor(74, 112, 160));
    painter.fillPath(ridge({{53, 30}, {62.5, 41.3}, {56.5, 45}, {52, 41}, {46.2, 45}, {44, 42.2}}), QColor(250, 252, 255));
    QPainterPath meadow(QPointF(0, 84));
    meadow.cubicTo({25, 66}, {45, 74}, {60, 80});
    meadow.cubicTo({75, 86}, {85, 80}, {100, 72});
    meadow.lineTo(100, 100);
    meadow.lineTo(0, 100);
    fill(meadow, QColor(60, 150, 70), QColor(26, 104, 52));

    QPainterPath veil(QPointF(0, 0));
    veil.lineTo(56, 0);
    veil.cubicTo({66, 30}, {28, 50}, {44, 74});
    veil.cubicTo({50, 83}, {46, 92}, {40, 100});
    veil.lineTo(0, 100);
    fill(veil, QColor(236, 240, 244, 205), QColor(236, 240, 244, 205));
    return image;
}

bool save(const QImage &image, const QString &path)
{
    if (image.save(path, "PNG", /*quality=*/0))
        return true;
    std::fprintf(stderr, "draw_resources: cannot write %s\n", qPrintable(path));
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "Usage: draw_resources FOLDER\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    try {
        const QImage hazy = drawScene(kSceneWidth, kSceneHeight, /*haze=*/true);
        const QImage clear = withoutHaze(hazy);
        bool written = save(beforeAfter(hazy, clear), folder + "/NimbraBeforeAfter.png");
        for (int frame = 0; frame < kFrames; ++frame)
            written &= save(waitFrame(frame, scaledView(hazy, 2 * kIcon), scaledView(clear, 2 * kIcon)),
                            QStringLiteral("%1/iconwait_%2.png").arg(folder).arg(frame + 1, 2, 10, QChar('0')));
        for (const int side : kProgramIcons)
            written &= save(programIcon(side), QStringLiteral("%1/veilaway_%2.png").arg(folder).arg(side));
        return written ? 0 : 1;
    } catch (const VException &failure) {
        std::fprintf(stderr, "draw_resources: %s\n", qPrintable(failure.message));
        return 1;
    }
}
