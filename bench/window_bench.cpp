#include <algorithm>
#include <fstream>
#include <functional>
#include <string>

#include <QApplication>
#include <QColorSpace>
#include <QDir>
#include <QEventLoop>
#include <QListView>
#include <QSpinBox>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "Histogram.h"
#include "HostApplication.h"
#include "PhotoStore.h"
#include "PictureRenderer.h"
#include "PluginFile.h"
#include "SaveQueue.h"
#include "ScreenColours.h"
#include "WizardWindow.h"
#include "WorkspaceWindow.h"
#include "drawScene.h"

// How long a photographer waits for a window. It is painted as on a screen; QT_QPA_PLATFORM=offscreen needs none. Photographs are
// drawn; the workspace's can be replaced by the file that NIMBRA_BENCH_PHOTO names.

namespace {

HostApplication *host = nullptr;
PluginFile *plugin = nullptr;
QString folder;

void processEventsUntil(const std::function<bool()> &holds)
{
    while (!holds())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

struct Window
{
    Window() : window(*host, plugin->process(), nullptr, /*jobs=*/0) { window.show(); }

    void finishPage()
    {
        processEventsUntil([&] { return window.currentPage()->isComplete(); });
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
BENCHMARK(choosing_to_first_result)->Arg(1)->Arg(24)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

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
BENCHMARK(strength_to_picture)->Arg(1)->Arg(24)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

/// What the workspace does, without its widgets: the store, and a renderer for the result on a screen with a wide gamut.
class Workspace
{
public:
    Workspace()
    {
        QObject::connect(&renderer, &PictureRenderer::ready, &renderer,
                         [this](const QImage &, const PictureRequest &, bool isExact) { (isExact ? exacts : pictures) += 1; });
    }

    void show(const QString &path, const QStringList &neighbours = {})
    {
        store.show(path, neighbours);
        shown = path;
    }
    bool isComplete(const QString &path) const
    {
        const auto photo = store.photo(path);
        return photo && photo->isComplete();
    }
    void finish(const QString &path)
    {
        processEventsUntil([&] { return isComplete(path); });
    }
    /// From the request to the picture of 1100 x 600 at most, fitted in or the middle at 100 %.
    void picture(int strength, bool fullSize, bool exact = false)
    {
        PictureRequest request;
        request.photo = store.photo(shown);
        const QSize whole = request.photo->size();
        const QSize fitted = fullSize ? whole.boundedTo({1100, 600}) : whole.scaled(1100, 600, Qt::KeepAspectRatio);
        request.size = fitted;
        request.scale = fullSize ? 1 : double(fitted.width()) / whole.width();
        if (fullSize)
            request.corner = QPoint((whole.width() - fitted.width()) / 2, (whole.height() - fitted.height()) / 2);
        request.strength = strength;
        request.clipping = true;
        request.colours = colours;
        const int before = exact ? exacts : exacts + pictures;
        renderer.request(request);
        processEventsUntil([&] { return (exact ? exacts : exacts + pictures) > before; });
    }

    PhotoStore store;

private:
    PictureRenderer renderer;
    QString shown;
    int pictures = 0, exacts = 0;
    const std::shared_ptr<ScreenColours> colours =
        std::make_shared<ScreenColours>(QColorSpace(QColorSpace::DisplayP3).iccProfile());
};

/// Photographs that are the same but for their names.
QStringList photographs(std::int64_t megapixels, int count)
{
    const QString replaced = QString::fromLocal8Bit(qgetenv("NIMBRA_BENCH_PHOTO"));
    const QString source = replaced.isEmpty() ? drawn(megapixels) : replaced;
    QStringList links;
    for (int i = 0; i < count; ++i) {
        links << QStringLiteral("%1/same_%2_%3.jpg").arg(folder).arg(megapixels).arg(i);
        QFile::link(source, links.last());
    }
    return links;
}

/// The result at 70 % of a photograph that has just been opened.
void workspace_first_picture(benchmark::State &state)
{
    const QString photograph = photographs(state.range(0), 1).first();
    for (auto _ : state) {
        state.PauseTiming();
        auto workspace = std::make_unique<Workspace>();
        state.ResumeTiming();
        workspace->show(photograph);
        workspace->finish(photograph);
        workspace->picture(70, /*fullSize=*/false);
        state.PauseTiming();
        workspace.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(workspace_first_picture)->Arg(1)->Arg(24)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

/// The photograph before, which is there first.
void workspace_first_pixels(benchmark::State &state)
{
    const QString photograph = photographs(state.range(0), 1).first();
    for (auto _ : state) {
        state.PauseTiming();
        auto workspace = std::make_unique<Workspace>();
        state.ResumeTiming();
        workspace->show(photograph);
        processEventsUntil([&] { return bool(workspace->store.photo(photograph)); });
        workspace->picture(0, /*fullSize=*/false);
        state.PauseTiming();
        workspace.reset(); // waits for the map
        state.ResumeTiming();
    }
}
BENCHMARK(workspace_first_pixels)->Arg(1)->Arg(24)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

/// Pictures per second while the strength is dragged, at 100 % or fitted in.
void workspace_drag(benchmark::State &state)
{
    Workspace workspace;
    const QString photograph = photographs(state.range(0), 1).first();
    workspace.show(photograph);
    workspace.finish(photograph);
    const bool fullSize = state.range(1) != 0;
    workspace.picture(50, fullSize);
    int strength = 0;
    for (auto _ : state) {
        strength = strength % 99 + 1;
        workspace.picture(strength, fullSize);
    }
    state.counters["pictures"] = benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(workspace_drag)
    ->ArgNames({"", "full"})
    ->ArgsProduct({{1, 24}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

/// The same while other photographs are saved in the background, at 100 %.
void workspace_drag_while_saving(benchmark::State &state)
{
    constexpr int kSaved = 200; // more than are done in this time
    const QStringList all = photographs(state.range(0), kSaved);
    Workspace workspace;
    workspace.show(all.first());
    workspace.finish(all.first());
    SaveQueue queue(*host, plugin->process(), /*jobs=*/0);
    QVector<SaveQueue::Order> orders;
    for (const QString &path : all)
        orders << SaveQueue::Order{path, {70, /*automatic=*/false}, {}};
    queue.add(orders, {}, all);
    processEventsUntil([&] { return queue.progress().fraction > 0; });
    int strength = 0;
    for (auto _ : state) {
        strength = strength % 99 + 1;
        queue.giveWay();
        workspace.picture(strength, /*fullSize=*/true);
    }
    state.counters["pictures"] = benchmark::Counter(double(state.iterations()), benchmark::Counter::kIsRate);
    queue.quit();
    for (const QString &result : QDir(folder).entryList({QStringLiteral("same_*_dehazed.jpg")}))
        QFile::remove(QDir(folder).filePath(result));
}
BENCHMARK(workspace_drag_while_saving)->Arg(24)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

/// From the end of a drag to the picture from all pixels, the moment of rest included.
void workspace_exact_picture(benchmark::State &state)
{
    Workspace workspace;
    const QString photograph = photographs(state.range(0), 1).first();
    workspace.show(photograph);
    workspace.finish(photograph);
    for (auto _ : state)
        workspace.picture(70, /*fullSize=*/false, /*exact=*/true);
}
BENCHMARK(workspace_exact_picture)->Arg(1)->Arg(24)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

/// The result of the next photograph, which has been prepared or not.
void workspace_next_photograph(benchmark::State &state)
{
    const QStringList both = photographs(state.range(0), 2);
    const bool prepared = state.range(1) != 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto workspace = std::make_unique<Workspace>();
        workspace->show(both[0], prepared ? both.mid(1) : QStringList());
        workspace->finish(both[0]);
        workspace->picture(70, /*fullSize=*/false);
        if (prepared)
            workspace->finish(both[1]);
        state.ResumeTiming();
        workspace->show(both[1]);
        workspace->finish(both[1]);
        workspace->picture(70, /*fullSize=*/false);
        state.PauseTiming();
        workspace.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(workspace_next_photograph)
    ->ArgNames({"", "prepared"})
    ->ArgsProduct({{1, 24}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();

void workspace_histogram(benchmark::State &state)
{
    Workspace workspace;
    const QString photograph = photographs(state.range(0), 1).first();
    workspace.show(photograph);
    workspace.finish(photograph);
    const auto photo = workspace.store.photo(photograph);
    for (auto _ : state)
        benchmark::DoNotOptimize(histogramOf(*photo, 70));
}
BENCHMARK(workspace_histogram)->Arg(1)->Arg(24)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

/// What /proc says of this process, in MB.
double memoryNow()
{
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmRSS:") {
    }
    double kilobytes = 0;
    status >> kilobytes;
    return kilobytes / 1024;
}

/// The most memory while photographs are shown one after the other, each with its neighbours, and after the last.
void workspace_walk(benchmark::State &state)
{
    const QStringList series = photographs(state.range(0), int(state.range(1)));
    double most = 0;
    for (auto _ : state) {
        Workspace workspace;
        for (int i = 0; i < series.size(); ++i) {
            workspace.show(series[i], series.mid(i + 1, 1) + series.mid(i - 1, i > 0 ? 1 : 0));
            workspace.finish(series[i]);
            workspace.picture(70, /*fullSize=*/false);
            most = std::max(most, memoryNow());
        }
    }
    state.counters["MB"] = most;
}
BENCHMARK(workspace_walk)
    ->ArgNames({"", "photographs"})
    ->Args({1, 20})
    ->Args({24, 200})
    ->Unit(benchmark::kSecond)
    ->Iterations(1)
    ->UseRealTime();

/// From dropping photographs to a list of all of them; their small pictures follow.
void workspace_adding(benchmark::State &state)
{
    const QStringList series = photographs(1, int(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto window = std::make_unique<WorkspaceWindow>(*host, plugin->process(), /*jobs=*/0);
        window->show();
        const QAbstractItemModel *listed = window->findChild<QListView *>()->model();
        state.ResumeTiming();
        window->addPhotographs(series);
        processEventsUntil([&] { return listed->rowCount() == series.size(); });
        window->repaint();
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(workspace_adding)->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    const QTemporaryDir place;
    folder = place.path();
    for (const char *kept : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(kept, QFile::encodeName(folder));
    HostedApplication<QApplication> application(argc, argv, QLocale(QLocale::English), /*lendServices=*/true);
    QApplication::setQuitOnLastWindowClosed(false);
    application.setUsual(QStringLiteral("hazeRemove"), 70); // at 0 the engine has nothing to do
    host = &application;
    PluginFile file{QString()};
    plugin = &file;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
