#include <functional>

#include <QApplication>
#include <QEventLoop>
#include <QSpinBox>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "HostApplication.h"
#include "PluginFile.h"
#include "WizardWindow.h"
#include "drawScene.h"

// How long a photographer waits for the window. It is painted as on a screen; QT_QPA_PLATFORM=offscreen needs none.

namespace {

HostApplication *host = nullptr;
PluginFile *plugin = nullptr;
QString folder;

struct Window
{
    Window() : window(*host, plugin->process(), nullptr, /*jobs=*/0) { window.show(); }

    void until(const std::function<bool()> &holds)
    {
        while (!holds())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    void finishPage()
    {
        until([&] { return window.currentPage()->isComplete(); });
        window.repaint();
    }
    /// From choosing a photograph to the first result on the screen.
    void begin(const QString &photograph)
    {
        window.addPhotographs({photograph});
        finishPage();
        window.next();
        finishPage();
    }

    WizardWindow window;
};

QString drawn(std::int64_t megapixels)
{
    const QString path = QStringLiteral("%1/%2.jpg").arg(folder).arg(megapixels);
    if (!QFile::exists(path)) {
        int side = 1;
        while (std::int64_t{6} * (side + 1) * (side + 1) <= megapixels * 1000000)
            ++side;
        drawScene(600, 400, /*haze=*/true)
            .scaled(3 * side, 2 * side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .save(path, nullptr, 92);
    }
    return path;
}

/// Measures the first time: each round opens a new photograph, for which nothing is cached.
void choosing_to_first_result(benchmark::State &state)
{
    const QString source = drawn(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        static int round = 0;
        const QString fresh = QStringLiteral("%1/round_%2.jpg").arg(folder).arg(++round);
        QFile::link(source, fresh);
        auto window = std::make_unique<Window>();
        state.ResumeTiming();
        window->begin(fresh);
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(choosing_to_first_result)->Arg(1)->Arg(24)->Unit(benchmark::kMillisecond)->UseRealTime();

void strength_to_picture(benchmark::State &state)
{
    Window window;
    window.begin(drawn(state.range(0)));
    auto *strength = window.window.findChild<QSpinBox *>("spinBoxPourcent");
    int value = 0;
    for (auto _ : state) {
        value = value % 99 + 1;
        strength->setValue(value);
        window.finishPage();
    }
}
BENCHMARK(strength_to_picture)->Arg(1)->Arg(24)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir place;
    folder = place.path();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
    HostedApplication<QApplication> application(argc, argv, QLocale(QLocale::English), /*lendServices=*/true);
    QApplication::setQuitOnLastWindowClosed(false);
    application.setUsual(QStringLiteral("hazeRemove"), 70); // at 0 the engine has nothing to do
    host = &application;
    PluginFile file{QString()};
    plugin = &file;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
