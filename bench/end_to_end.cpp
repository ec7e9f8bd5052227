// The whole program on a drawn photograph, as an 8-bit JPEG and a 16-bit TIFF, compared with the best that the machine can do,
// all measured in one run: copy bandwidth, and reading and writing the same file with the codec layer alone. Prints medians of
// several rounds and judges nothing. usage: end_to_end [--megapixels N] [--rounds N] [--batch N] [--threads N,N,...]

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "HazeState.h"
#include "RemoveHaze.h"
#include "VException.h"
#include "VImage.h"
#include "drawScene.h"
#include "gfl.h"
#include "startLibraries.h"
#include "threadCount.h"
#include "workingForm.h"

namespace {

constexpr int kStrength = 80;
constexpr double kPixelBytes = 16.0; ///< In the working form.

/// What something costs: seconds and, for a program, its peak memory.
struct Cost
{
    double wall = 0.0;
    double cpu = 0.0;
    double peakBytes = 0.0;
};

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
}

double cpuOf(const rusage &usage)
{
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

Cost costOf(const std::function<void()> &work)
{
    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
    getrusage(RUSAGE_SELF, &after);
    return {wall.count(), cpuOf(after) - cpuOf(before), 0.0};
}

/// Starts programs from a separate small process, because the peak memory of a program is at least that of its parent process.
class Launcher
{
public:
    Launcher()
    {
        int toServer[2], fromServer[2];
        if (pipe2(toServer, O_CLOEXEC) != 0 || pipe2(fromServer, O_CLOEXEC) != 0 || (server = fork()) < 0)
            std::exit(1);
        requests = toServer[server == 0 ? 0 : 1];
        answers = fromServer[server == 0 ? 1 : 0];
        close(toServer[server == 0 ? 1 : 0]);
        close(fromServer[server == 0 ? 0 : 1]);
        if (server == 0)
            serve();
    }
    ~Launcher()
    {
        close(requests);
        waitpid(server, nullptr, 0);
    }
    Launcher(const Launcher &) = delete;
    Launcher &operator=(const Launcher &) = delete;

    /// Runs a program to its end and discards its output. Throws VException if it fails.
    Cost run(const QStringList &words)
    {
        const QByteArray text = words.join(QChar(0)).toUtf8() + '\0';
        const auto bytes = std::size_t(text.size());
        Cost cost{-1.0, 0.0, 0.0};
        if (write(requests, &bytes, sizeof bytes) == sizeof bytes && write(requests, text.data(), bytes) == ssize_t(bytes) &&
            read(answers, &cost, sizeof cost) == sizeof cost && cost.wall >= 0.0)
            return cost;
        throw VException(QStringLiteral("This command failed: %1").arg(words.join(' ')), V_LOCATION);
    }

private:
    [[noreturn]] void serve()
    {
        std::size_t bytes = 0;
        while (read(requests, &bytes, sizeof bytes) == sizeof bytes) {
            std::string text(bytes, '\0');
            for (std::size_t got = 0; got < bytes;) {
                const ssize_t count = read(requests, text.data() + got, bytes - got);
                if (count <= 0)
                    _exit(1);
                got += std::size_t(count);
            }
            const Cost cost = execute(text);
            if (write(answers, &cost, sizeof cost) != sizeof cost)
                break;
        }
        _exit(0);
    }
    /// Each word of `text` ends with a null. Returns a negative time if the program failed.
    static Cost execute(std::string &text)
    {
        std::vector<char *> arguments;
        for (std::size_t at = 0; at < text.size(); at += std::strlen(&text[at]) + 1)
            arguments.push_back(&text[at]);
        arguments.push_back(nullptr);
        const auto start = std::chrono::steady_clock::now();
        const pid_t child = fork();
        if (child == 0) {
            const int nowhere = open("/dev/null", O_WRONLY);
            dup2(nowhere, STDOUT_FILENO);
            execv(arguments.front(), arguments.data());
            _exit(127);
        }
        int status = -1;
        rusage usage{};
        if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0)
            return {-1.0, 0.0, 0.0};
        const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
        return {wall.count(), cpuOf(usage), double(usage.ru_maxrss) * 1024.0};
    }

    int requests = -1;
    int answers = -1;
    pid_t server = -1;
};

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The median of each figure.
Cost median(const std::vector<Cost> &costs)
{
    const auto of = [&](double Cost::*member) {
        std::vector<double> values;
        for (const Cost &cost : costs)
            values.push_back(cost.*member);
        return median(values);
    };
    return {of(&Cost::wall), of(&Cost::cpu), of(&Cost::peakBytes)};
}

std::size_t bytesOf(const VImage &image)
{
    return std::size_t(image.Height()) * std::size_t(image.BytesPerLine());
}

/// The landscape in 3:2, drawn small and enlarged, because drawing takes far longer than everything that is measured; with grain
/// like that of a photograph.
void drawPhotograph(double megapixels, VImage &photograph)
{
    const int unit = std::max(1, int(std::sqrt(megapixels * 1e6 / 6.0)));
    QImage drawn = drawScene(900, 600, /*haze=*/true).convertToFormat(QImage::Format_RGB888);
    const VImage small(drawn.width(), drawn.height(), VImage::Rgb, 8, /*clear=*/false, drawn.bits(), drawn.bytesPerLine());
    VImage deep;
    small.ConvertTo(deep, VImage::Rgb, 16);
    deep.Resample(photograph, unit * 3, unit * 2);
    std::uint32_t noise = 1;
    for (int y = 0; y < photograph.Height(); ++y) {
        auto *sample = reinterpret_cast<std::uint16_t *>(photograph.PixelAddress(0, y));
        for (int x = 0; x < photograph.Width() * 3; ++x) {
            noise = noise * 1664525u + 1013904223u;
            sample[x] = std::uint16_t(std::clamp(int(sample[x]) + int(noise >> 20) - 2048, 0, 65535));
        }
    }
}

/// Bytes read and written per second when one working image is copied to another.
double copyBandwidth(const VImage &source, VImage &target, int team)
{
    std::vector<double> walls;
    const std::size_t bytes = bytesOf(source);
    for (int round = 0; round < 5; ++round)
        walls.push_back(costOf([&] {
                            std::vector<std::thread> threads;
                            for (int part = 0; part < team; ++part)
                                threads.emplace_back([&, part] {
                                    const std::size_t from = bytes * std::size_t(part) / std::size_t(team);
                                    const std::size_t to = bytes * std::size_t(part + 1) / std::size_t(team);
                                    std::memcpy(target.PixelAddress(0, 0) + from, source.PixelAddress(0, 0) + from, to - from);
                                });
                            for (std::thread &thread : threads)
                                thread.join();
                        }).wall);
    return 2.0 * double(bytes) / median(walls);
}

struct BitmapRelease
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
using Bitmap = std::unique_ptr<GflBitmap, BitmapRelease>;

Bitmap decode(const QString &file, int threads)
{
    gflSetTeamSize(threads);
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    GflBitmap *bitmap = nullptr;
    if (gflLoadBitmapUTF8(file.toUtf8().constData(), &bitmap, &params, nullptr) != GFL_NO_ERROR)
        throw VException(QStringLiteral("Can't read %1").arg(file), V_LOCATION);
    return Bitmap(bitmap);
}

/// One stage of a run, called as the process and the engine call it, with the fewest bytes per pixel of the full image that it
/// reads and writes; 0 if its cost does not depend on them.
struct Stage
{
    const char *name;
    double bytesPerPixel;
    std::vector<Cost> costs;
};

class Stages
{
public:
    /// Starts a round. Each round must make the same calls in the same order, so that they find their entries again.
    void begin() { next = 0; }
    void run(const char *name, double bytesPerPixel, const std::function<void()> &work)
    {
        if (next == stages.size())
            stages.push_back({name, bytesPerPixel, {}});
        stages[next++].costs.push_back(costOf(work));
    }
    void print(double pixels, double bandwidth) const
    {
        std::printf("  %-26s %9s %9s %9s %10s %9s\n", "stage, in process", "wall ms", "CPU ms", "ns/pixel", "GB/s", "of copy");
        for (const Stage &stage : stages) {
            const Cost cost = median(stage.costs);
            std::printf("  %-26s %9.1f %9.1f %9.2f", stage.name, cost.wall * 1e3, cost.cpu * 1e3, cost.wall / pixels * 1e9);
            const double rate = stage.bytesPerPixel * pixels / cost.wall;
            if (stage.bytesPerPixel > 0.0)
                std::printf(" %10.2f %8.0f%%", rate * 1e-9, rate / bandwidth * 100.0);
            std::printf("\n");
        }
    }

private:
    std::vector<Stage> stages;
    std::size_t next = 0;
};

void runStages(const QString &file, const QString &result, const QString &format, Stages &stages)
{
    stages.begin();
    Bitmap source;
    stages.run("read the file", 0.0, [&] { source = decode(file, threadCount); });
    const int sourceBits = source->bitsPerComponent;
    const double sourceBytes = source->bytesPerPixel;
    const VImage view(source->width, source->height, source->type, sourceBits, /*clear=*/false, source->data,
                      int(source->bytesPerLine));
    VImage working;
    stages.run("to the working form", sourceBytes + kPixelBytes, [&] { toWorkingForm(view, working); });
    const double ratio = double(working.Width()) / working.Height();
    const int lowWidth = int(std::sqrt(100000.0 * ratio));
    VImage low;
    stages.run("reduce", kPixelBytes, [&] { working.Resample(low, lowWidth, int(lowWidth / ratio)); });
    float airlight[3];
    std::unique_ptr<float[]> dark;
    stages.run("dark channel", 0.0, [&] { dark.reset(low.HazeDarkChannel(airlight)); });
    if (!dark)
        throw VException(QStringLiteral("No airlight"), V_LOCATION);
    stages.run("matting: assemble, solve", 0.0, [&] {
        if (!low.HazeMatting(dark.get()))
            throw VException(QStringLiteral("No solution"), V_LOCATION);
    });
    std::unique_ptr<float[]> map;
    stages.run("upsample", 0.0, [&] { map.reset(working.HazeUpsample(dark.get(), &low)); });
    stages.run("recover", 2.0 * kPixelBytes + 4.0, [&] { working.HazeRecover(map.get(), airlight, kStrength / 100.0f); });
    VImage back;
    stages.run("to the source's form", sourceBytes + kPixelBytes, [&] { working.ConvertTo(back, source->type, sourceBits); });
    stages.run("write the file", 0.0, [&] { back.Save(result, format, -1, file); });
    stages.run("release", 0.0, [&] {
        back.Free();
        map.reset();
        working.Free();
        source.reset();
    });
}

void printCost(const char *name, const Cost &cost, double pixels)
{
    std::printf("  %-26s %9.1f %9.1f", name, cost.wall * 1e3, cost.cpu * 1e3);
    if (cost.peakBytes > 0.0)
        std::printf("   peak %.0f MB", cost.peakBytes * 1e-6);
    if (cost.peakBytes > 150e6 && pixels > 0.0)
        std::printf(" = 150 MB + %.1f B/pixel", (cost.peakBytes - 150e6) / pixels);
    std::printf("\n");
}

void measureFormat(Launcher &launcher, const QString &program, const QString &file, const QString &format, int rounds,
                   double bandwidth)
{
    double pixels = 0.0;
    std::vector<Cost> codec, whole;
    const QString copy = file + ".copy." + format, result = file + ".stages." + format;
    Stages stages;
    for (int round = 0; round < rounds; ++round) {
        codec.push_back(costOf([&] {
            const Bitmap bitmap = decode(file, 1);
            pixels = double(bitmap->width) * bitmap->height;
            GflSaveParams params;
            gflGetDefaultSaveParams(&params);
            params.formatIndex = gflGetFormatIndexByName(format.toLatin1().constData());
            if (gflSaveBitmapUTF8(copy.toUtf8().constData(), bitmap.get(), &params) != GFL_NO_ERROR)
                throw VException(QStringLiteral("Can't write %1").arg(copy), V_LOCATION);
        }));
        whole.push_back(launcher.run({program, file, "--strength", QString::number(kStrength), "--overwrite", "--quiet"}));
        runStages(file, result, format, stages);
    }
    QFile::remove(copy);
    QFile::remove(result);
    const Cost floor = median(codec), run = median(whole);
    std::printf("\n%s: %.1f megapixels, %.1f MB, medians of %d\n  %-26s %9s %9s\n", qPrintable(format), pixels * 1e-6,
                double(QFile(file).size()) * 1e-6, rounds, "", "wall ms", "CPU ms");
    printCost("whole program", run, pixels);
    printCost("codec layer, 1 thread", floor, pixels);
    std::printf("  program / codec: wall %.2f, CPU %.2f; %.1f ns wall a pixel\n", run.wall / floor.wall, run.cpu / floor.cpu,
                run.wall / pixels * 1e9);
    stages.print(pixels, bandwidth);
}

/// The first run on a preview image, and a change of its strength.
void measurePreview(const VImage &photograph, int rounds)
{
    VImage small, fresh;
    photograph.Resample(small, 1024, 683);
    std::vector<Cost> first, change;
    for (int round = 0; round < rounds; ++round) {
        HazeState state{kStrength, {}, nullptr};
        toWorkingForm(small, fresh);
        first.push_back(costOf([&] { RemoveHaze(fresh, state); }));
        toWorkingForm(small, fresh);
        change.push_back(costOf([&] { RemoveHaze(fresh, state); }));
        delete[] state.transmission;
    }
    std::printf("\npreview, 1024 x 683\n");
    printCost("first estimate", median(first), 0.0);
    printCost("change of strength", median(change), 0.0);
}

/// How the time falls with the number of processors, each of which gets a thread: medians of rounds that take the counts in turn.
/// The serial part is what the times for one and for the most threads leave for work that does not share.
void measureThreads(Launcher &launcher, const QString &program, const QString &file, const std::vector<int> &counts, int rounds)
{
    std::vector<std::vector<Cost>> costs(counts.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < counts.size(); ++i) {
            const QString processors = QStringLiteral("0-%1").arg(counts[i] - 1);
            costs[i].push_back(launcher.run({"/usr/bin/taskset", "-c", processors, program, file, "--strength",
                                             QString::number(kStrength), "--overwrite", "--quiet"}));
        }
    }
    std::printf("\nby threads: %s\n  %-10s %9s %9s %9s\n", qPrintable(file.section('/', -1)), "threads", "wall ms", "CPU ms",
                "speed-up");
    const double first = median(costs.front()).wall;
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const Cost cost = median(costs[i]);
        std::printf("  %-10d %9.1f %9.1f %9.2f\n", counts[i], cost.wall * 1e3, cost.cpu * 1e3, first / cost.wall);
    }
    const double most = counts.back();
    if (counts.front() == 1 && most > 1) {
        const double serial = (median(costs.back()).wall - first / most) / (1.0 - 1.0 / most);
        std::printf("  serial part %.0f ms, part that the threads share %.0f ms; by this model, 16 cores take %.0f ms\n",
                    serial * 1e3, (first - serial) * 1e3, (serial + (first - serial) / 16.0) * 1e3);
    }
}

void measureBatch(Launcher &launcher, const QString &program, const QString &file, int count)
{
    QStringList words{program};
    for (int i = 0; i < count; ++i) {
        words << QString(file).replace(QStringLiteral("."), QStringLiteral("%1.").arg(i));
        QFile::copy(file, words.last());
    }
    words << "--strength" << QString::number(kStrength) << "--overwrite"
          << "--quiet";
    const Cost cost = launcher.run(words);
    const double cores = double(std::max(1u, std::thread::hardware_concurrency()));
    std::printf("\nbatch of %d: %.2f s wall, %.2f s each, %.2f s CPU, %.0f%% of %.0f cores, peak %.0f MB\n", count, cost.wall,
                cost.wall / count, cost.cpu, cost.cpu / cost.wall / cores * 100.0, cores, cost.peakBytes * 1e-6);
}

void measure(Launcher &launcher, double megapixels, int rounds, int batch, const std::vector<int> &threads)
{
    const QString program = QCoreApplication::applicationDirPath() + "/veilaway";
    QTemporaryDir folder;
    const QString jpeg = folder.filePath("photo.jpeg"), tiff = folder.filePath("deep.tiff");
    double bandwidth = 0.0;
    {
        VImage photograph;
        drawPhotograph(megapixels, photograph);
        photograph.Save(tiff, "tiff", -1, {});
        VImage working, target, eight;
        toWorkingForm(photograph, working);
        target.Assign(working);
        const double one = copyBandwidth(working, target, 1);
        bandwidth = std::max(one, copyBandwidth(working, target, threadCount));
        std::printf("copy bandwidth, read and written: %.2f GB/s by 1 thread, %.2f GB/s by %d\n", one * 1e-9, bandwidth * 1e-9,
                    int(threadCount));
        photograph.ConvertTo(eight, VImage::Rgb, 8);
        eight.Save(jpeg, "jpeg", -1, {});
        measurePreview(photograph, rounds);
    }
    std::vector<Cost> start;
    for (int round = 0; round < rounds; ++round)
        start.push_back(launcher.run({program, "--version"}));
    std::printf("\n");
    printCost("start, load the plug-in", median(start), 0.0);
    measureFormat(launcher, program, jpeg, "jpeg", rounds, bandwidth);
    measureFormat(launcher, program, tiff, "tiff", rounds, bandwidth);
    for (const QString &file : {jpeg, tiff}) {
        if (!threads.empty())
            measureThreads(launcher, program, file, threads, rounds);
    }
    if (batch > 0)
        measureBatch(launcher, program, jpeg, batch);
}

/// The counts in rising order. Those that are not positive, and those beyond the machine's cores, are left out, the latter with a
/// word.
std::vector<int> threadCounts(const QString &list)
{
    std::vector<int> counts;
    const int cores = int(std::max(1u, std::thread::hardware_concurrency()));
    for (const QString &text : list.split(',')) {
        const int count = text.toInt();
        if (count > cores)
            std::printf("%d threads: skipped, this machine runs %d\n", count, cores);
        else if (count > 0)
            counts.push_back(count);
    }
    std::sort(counts.begin(), counts.end());
    return counts;
}

} // namespace

int main(int argc, char **argv)
{
    Launcher launcher; // first, while this process is small
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption megapixels("megapixels", "Size of the photograph.", "N", "24");
    const QCommandLineOption rounds("rounds", "Number of rounds; medians are printed.", "N", "5");
    const QCommandLineOption batch("batch", "Photographs in the batch; 0 for none.", "N", "20");
    const QCommandLineOption threads("threads", "Also measure the program with each of these numbers of threads.", "N,N,...", "");
    parser.addOptions({megapixels, rounds, batch, threads});
    parser.addHelpOption();
    parser.process(application);
    try {
        startImageLibrary(nullptr);
        measure(launcher, std::max(0.1, parser.value(megapixels).toDouble()), std::max(1, parser.value(rounds).toInt()),
                parser.value(batch).toInt(), threadCounts(parser.value(threads)));
        stopImageLibrary();
    } catch (const VException &failure) {
        std::fprintf(stderr, "end_to_end: %s\n", qPrintable(failure.message));
        return 1;
    }
    return 0;
}
