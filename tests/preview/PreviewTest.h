#pragma once

#include <functional>

#include <QEventLoop>
#include <QTimer>

#include "HazeState.h"
#include "NimbraOne2One.h"
#include "TestHost.h"
#include "UIHazePage.h"
#include "UIHazePreview.h"

constexpr int kLimitMs = 300000; ///< For a run of the engine under a sanitizer on a busy machine.

/// Watches a panel from the start: counts the runs of its worker and processes events until a condition holds.
class PanelWatch : public QObject
{
public:
    explicit PanelWatch(UIHazePreview &panelToWatch) : panel(panelToWatch)
    {
        // Connected after the panel, so the panel has already responded here. Conditions are checked nowhere else, so that no
        // wait can end between the panel's response and its count.
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

/// Turns Qt's messages into failures, because a photographer's console must stay empty.
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

/// The image as the screen shows it.
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

/// A record that already has a map, so that a run costs only one pass. The caller deletes the map.
inline HazeState recordWithMap(int width, int height)
{
    HazeState record = {0, {0.9f, 0.9f, 0.9f}, new float[std::size_t(width) * std::size_t(height)]};
    for (int i = 0; i < width * height; ++i)
        record.transmission[i] = 0.2f + 0.6f * float(i % width) / float(width);
    return record;
}
