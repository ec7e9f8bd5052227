#pragma once

#include <QEventLoop>
#include <QTimer>

#include "HazeState.h"
#include "NimbraOne2One.h"
#include "TestHost.h"
#include "UIHazePage.h"
#include "UIHazePreview.h"

constexpr int kLimitMs = 300000; ///< For a run of the engine under a sanitizer on a busy machine.

/// Watches a panel from its first moment: counts the runs of its worker and lets the events run until something holds.
class PanelWatch : public QObject
{
public:
    explicit PanelWatch(UIHazePreview &panelToWatch) : panel(panelToWatch)
    {
        // Behind the panel's own connection: the panel has answered by then, and nothing but this tells of it, so that no wait
        // ends between an answer and its count.
        connect(&panel.thread, &QThread::finished, this, [this] {
            ++runs;
            check();
        });
    }

    bool isComplete() const { return panel.property("isComplete").toBool(); }
    bool finish()
    {
        return until([this] { return isComplete(); });
    }
    bool until(const std::function<bool()> &holds)
    {
        condition = holds;
        QTimer::singleShot(kLimitMs, &loop, [this] { loop.exit(1); });
        const bool held = holds() || loop.exec() == 0;
        condition = nullptr;
        return held;
    }

    int runs = 0;

private:
    void check()
    {
        if (condition && condition())
            loop.exit(0);
    }

    UIHazePreview &panel;
    QEventLoop loop;
    std::function<bool()> condition;
};

/// Turns Qt's messages into failures: a photographer's console stays empty.
class PreviewTest : public testing::Test
{
protected:
    PreviewTest()
    {
        host.reset();
        qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { ADD_FAILURE() << qPrintable(text); });
    }
    ~PreviewTest() override { qInstallMessageHandler(nullptr); }

    TestHost &host = TestHost::self();
};

/// What the screen shows of an image.
inline QImage screenImage(const VImage &image)
{
    QImage screen;
    image.ToQImage(screen);
    return screen;
}

/// A small hazy landscape in the engine's form.
inline std::unique_ptr<VImage> landscape(int width, int height)
{
    auto image = std::make_unique<VImage>(width, height, VImage::Rgba, 32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            auto *const pixel = reinterpret_cast<float *>(image->PixelAddress(x, y));
            for (int channel = 0; channel < 3; ++channel)
                pixel[channel] = 0.2f + 0.6f * float((x * 7 + y * 13 + channel * 5) % 32) / 32.0f;
            pixel[3] = 1.0f;
        }
    return image;
}

/// A record whose map is there already, so that a run costs one pass. Its owner deletes the map.
inline HazeState recordWithMap(int width, int height)
{
    HazeState record = {0, {0.9f, 0.9f, 0.9f}, new float[std::size_t(width) * std::size_t(height)]};
    for (int i = 0; i < width * height; ++i)
        record.transmission[i] = 0.2f + 0.6f * float(i % width) / float(width);
    return record;
}
