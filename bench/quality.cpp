// How good the results are, on drawn scenes whose depth, airlight and truth are known. Draws each scene, runs the real veilaway
// on it as a 16-bit TIFF, and compares three pictures with the truth: the untouched one, the one made with the unrefined map, and
// the result. Also compares the strengths: fixed, automatic and best. Prints tables in Markdown; writes them, the files and a
// sheet of pictures per scene into FOLDER. Fails if a file differs from what the engine makes in this process, or, with --gain,
// if the PSNR of a result is not higher by that much than that of the untouched picture. usage: quality FOLDER [--width N]
// [--scene NAME]... [--gain DB]

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include "HazeState.h"
#include "RemoveHaze.h"
#include "VException.h"
#include "VImage.h"
#include "drawDepthScene.h"
#include "gfl.h"
#include "pictureMeasures.h"
#include "startLibraries.h"
#include "workingForm.h"

namespace {

constexpr int kFull = 100;
constexpr int kUsual = 70;
constexpr int kWeakest = 30, kStep = 5; ///< The strengths to try.
constexpr int kShown[] = {50, kUsual, 85, kFull};

std::size_t pixelsOf(const VImage &image)
{
    return std::size_t(image.Width()) * std::size_t(image.Height());
}

/// A view of RGBA floats as an image.
std::unique_ptr<VImage> viewOf(DepthScene &scene, std::vector<float> &pixels)
{
    return std::make_unique<VImage>(scene.width, scene.height, VImage::Rgba, 32, /*clear=*/false, pixels.data(),
                                    scene.width * 16);
}

void readFile(const QString &file, VImage &image)
{
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    GflBitmap *bitmap = nullptr;
    if (gflLoadBitmapUTF8(file.toUtf8().constData(), &bitmap, &params, nullptr) != GFL_NO_ERROR)
        throw VException(QStringLiteral("Can't read %1").arg(file), V_LOCATION);
    const std::unique_ptr<GflBitmap, void (*)(GflBitmap *)> owner(bitmap, [](GflBitmap *one) { gflFreeBitmap(one); });
    const VImage view(bitmap->width, bitmap->height, bitmap->type, bitmap->bitsPerComponent, /*clear=*/false, bitmap->data,
                      int(bitmap->bytesPerLine));
    image.Assign(view);
}

/// Returns the strength that was used.
int runProgram(const QString &file, const QString &strength)
{
    const QStringList words{file, "--strength", strength, "--language", "en", "--overwrite", "--json"};
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(QCoreApplication::applicationDirPath() + "/veilaway", words);
    if (!program.waitForFinished(-1) || program.exitStatus() != QProcess::NormalExit || program.exitCode() != 0)
        throw VException(QStringLiteral("veilaway failed: %1").arg(words.join(' ')), V_LOCATION);
    return QJsonDocument::fromJson(program.readAllStandardOutput()).object()["strength"].toInt();
}

bool samePixels(const VImage &a, const VImage &b)
{
    if (a.Width() != b.Width() || a.Height() != b.Height() || a.Type() != b.Type() ||
        a.BitsPerComponent() != b.BitsPerComponent())
        return false;
    const auto bytes = std::size_t(a.Width()) * a.Bitmap()->bytesPerPixel;
    for (int y = 0; y < a.Height(); ++y)
        if (std::memcmp(a.PixelAddress(0, y), b.PixelAddress(0, y), bytes) != 0)
            return false;
    return true;
}

/// The estimated transmission at full strength, without the lower limit that the recovery applies.
std::vector<float> transmissionOf(const float *map, std::size_t pixels)
{
    std::vector<float> transmission(map, map + pixels);
    for (float &value : transmission)
        value = std::clamp(1.0f - value, 0.0f, 1.0f);
    return transmission;
}

/// The engine's estimate without the matting step.
std::unique_ptr<float[]> mapWithoutRefinement(VImage &image)
{
    const int width = int(std::sqrt(100000.0 * image.Width() / image.Height()));
    VImage low;
    image.Resample(low, width, image.Height() * width / image.Width());
    float airlight[3];
    const std::unique_ptr<float[]> dark(low.HazeDarkChannel(airlight));
    if (!dark)
        throw VException(QStringLiteral("No airlight"), V_LOCATION);
    return std::unique_ptr<float[]>(image.HazeUpsample(dark.get(), &low));
}

/// Pictures side by side, four in a row.
class Sheet
{
public:
    explicit Sheet(const VImage &picture) : panelHeight(picture.Height() * kPanelWidth / picture.Width())
    {
        sheet.Create(kColumns * kPanelWidth, 2 * panelHeight, VImage::Rgb, 8, /*clear=*/true);
    }
    void add(const VImage &picture)
    {
        VImage panel;
        picture.Resample(panel, kPanelWidth, panelHeight);
        panel.CopyRect(0, 0, kPanelWidth, panelHeight, sheet, count % kColumns * kPanelWidth, count / kColumns * panelHeight);
        ++count;
    }
    void add(std::vector<float> map, int width, int height)
    {
        for (float &value : map)
            value = std::isnan(value) ? 0.0f : value;
        add(VImage(width, height, VImage::Grey, 32, /*clear=*/false, map.data(), width * 4));
    }
    void save(const QString &file) { sheet.Save(file, "jpeg", 8, {}); }

private:
    static constexpr int kColumns = 4;
    static constexpr int kPanelWidth = 300;
    int panelHeight;
    int count = 0;
    VImage sheet;
};

struct Likeness
{
    double psnr = 0.0, ssim = 0.0;
};

/// For the untouched picture, the unrefined map and the result.
struct Figures
{
    QString name;
    MapError map[3];
    std::optional<EdgeFigures> edges[2];
    double airlightError = 0.0;
    Likeness picture[3];
    std::map<int, Likeness> at; ///< By strength.
    int automaticStrength = 0;
    Likeness automatic;
};

Figures measure(const QString &name, int width, const QDir &folder)
{
    DepthScene scene = drawDepthScene(name, width, width * 2 / 3);
    if (scene.hazy.empty())
        throw VException(QStringLiteral("No such scene: %1").arg(name), V_LOCATION);
    const QString base = folder.filePath(QString(name).remove(',').replace(' ', '-'));
    const std::unique_ptr<VImage> truth = viewOf(scene, scene.truth);
    VImage file, untouched, unrefined, result;
    {
        bool opaque = true;
        for (std::size_t i = 3; i < scene.hazy.size(); i += 4)
            opaque = opaque && scene.hazy[i] == 1.0f;
        viewOf(scene, scene.hazy)->ConvertTo(file, opaque ? VImage::Rgb : VImage::Rgba, 16);
        file.Save(base + ".tiff", "tiff", -1, {});
    }
    toWorkingForm(file, untouched);
    const auto likeness = [&](const VImage &picture) { return Likeness{psnr(picture, *truth), ssim(picture, *truth)}; };

    HazeState state{kFull, {}, nullptr};
    toWorkingForm(file, result);
    RemoveHaze(result, state);
    const std::unique_ptr<float[]> map(state.transmission);
    if (!map)
        throw VException(QStringLiteral("No map: %1").arg(name), V_LOCATION);
    const std::unique_ptr<float[]> dark = mapWithoutRefinement(untouched);
    unrefined.Assign(untouched);
    unrefined.HazeRecover(dark.get(), state.airlight, 1.0f);

    Figures figures;
    figures.name = name;
    const auto written = [&](const QString &strength, VImage &image) {
        const int used = runProgram(base + ".tiff", strength);
        readFile(base + "_dehazed.tiff", image);
        return used;
    };
    {
        VImage expected, seen, working;
        written(QString::number(kFull), seen);
        result.ConvertTo(expected, file.Type(), file.BitsPerComponent());
        if (!samePixels(expected, seen))
            throw VException(QStringLiteral("Not what the engine makes: %1").arg(base + "_dehazed.tiff"), V_LOCATION);
        figures.automaticStrength = written("auto", seen);
        toWorkingForm(seen, working);
        figures.automatic = likeness(working);
    }
    for (state.strength = kWeakest; state.strength <= kFull; state.strength += kStep) {
        VImage working;
        working.Assign(untouched);
        RemoveHaze(working, state);
        figures.at[state.strength] = likeness(working);
    }
    const std::vector<float> clear(pixelsOf(untouched), 1.0f);
    const std::vector<float> rough = transmissionOf(dark.get(), clear.size()), fine = transmissionOf(map.get(), clear.size());
    const std::vector<float> *maps[] = {&clear, &rough, &fine};
    const VImage *pictures[] = {&untouched, &unrefined, &result};
    for (std::size_t i = 0; i < 3; ++i) {
        figures.map[i] = mapError(*maps[i], scene.transmission);
        figures.picture[i] = likeness(*pictures[i]);
    }
    for (std::size_t i = 0; i < 2; ++i)
        figures.edges[i] = edgeFigures(*maps[i + 1], scene.transmission, scene.width, scene.height);
    for (std::size_t c = 0; c < 3; ++c)
        figures.airlightError = std::max(figures.airlightError, double(std::fabs(state.airlight[c] - scene.airlight[c])));

    Sheet sheet(untouched);
    sheet.add(untouched);
    sheet.add(unrefined);
    sheet.add(result);
    sheet.add(*truth);
    sheet.add(clear, scene.width, scene.height);
    sheet.add(rough, scene.width, scene.height);
    sheet.add(fine, scene.width, scene.height);
    sheet.add(scene.transmission, scene.width, scene.height);
    sheet.save(base + "_sheet.jpg");
    return figures;
}

QString number(double value, int digits)
{
    return QString::number(value, 'f', digits);
}

QString row(const QStringList &cells)
{
    return "| " + cells.join(" | ") + " |\n";
}

/// Mean PSNR and SSIM over all scenes for several ways to choose the strength; the best ones by each measure are chosen knowing
/// the truth.
QString meansOf(const std::vector<Figures> &all)
{
    using Choice = std::function<Likeness(const Figures &)>;
    const auto mean = [&](const Choice &choice) {
        Likeness sum;
        for (const Figures &one : all) {
            const Likeness likeness = choice(one);
            sum.psnr += likeness.psnr / double(all.size());
            sum.ssim += likeness.ssim / double(all.size());
        }
        return sum;
    };
    const auto fixed = [&](int strength) { return mean([=](const Figures &one) { return one.at.at(strength); }); };
    QString text = row({"strength", "mean PSNR", "mean SSIM"}) + row({"---", "---", "---"});
    const auto add = [&](const QString &name, const Likeness &likeness) {
        text += row({name, number(likeness.psnr, 2), number(likeness.ssim, 3)});
    };
    add("untouched", mean([](const Figures &one) { return one.picture[0]; }));
    add(QStringLiteral("%1").arg(kUsual), fixed(kUsual));
    add("auto", mean([](const Figures &one) { return one.automatic; }));
    const struct
    {
        const char *name;
        double Likeness::*measure;
    } kinds[] = {{"PSNR", &Likeness::psnr}, {"SSIM", &Likeness::ssim}};
    for (const auto &[name, measure] : kinds) {
        int best = kWeakest;
        for (int strength = kWeakest; strength <= kFull; strength += kStep)
            best = fixed(strength).*measure > fixed(best).*measure ? strength : best;
        add(QStringLiteral("%1, the best for all by %2").arg(best).arg(QLatin1String(name)), fixed(best));
    }
    for (const auto &[name, measure] : kinds)
        add(QStringLiteral("the best for each by %1").arg(QLatin1String(name)), mean([by = measure](const Figures &one) {
                const auto less = [=](const auto &a, const auto &b) { return a.second.*by < b.second.*by; };
                return std::max_element(one.at.begin(), one.at.end(), less)->second;
            }));
    return text;
}

QString tablesOf(const std::vector<Figures> &all, int width)
{
    QString text;
    text += row({"scene", "error: untouched", "without refinement", "result", "bias of the result", "error of the airlight"}) +
            row({"---", "---", "---", "---", "---", "---"});
    for (const Figures &one : all)
        text += row({one.name, number(one.map[0].absolute, 3), number(one.map[1].absolute, 3), number(one.map[2].absolute, 3),
                     number(one.map[2].bias, 3), number(one.airlightError, 3)});
    text += "\n" + row({"scene", "halo: without refinement", "result", "step kept: without refinement", "result"}) +
            row({"---", "---", "---", "---", "---"});
    for (const Figures &one : all)
        if (one.edges[0])
            text += row({one.name, number(one.edges[0]->halo, 0), number(one.edges[1]->halo, 0),
                         number(one.edges[0]->stepKept, 2), number(one.edges[1]->stepKept, 2)});
    text += "\n" +
            row({"scene", "PSNR: untouched", "without refinement", "result", "SSIM: untouched", "without refinement", "result"}) +
            row({"---", "---", "---", "---", "---", "---", "---"});
    for (const Figures &one : all) {
        QStringList cells{one.name};
        for (const Likeness &picture : one.picture)
            cells << number(picture.psnr, 1);
        for (const Likeness &picture : one.picture)
            cells << number(picture.ssim, 3);
        text += row(cells);
    }
    QStringList head{"scene, PSNR at strength"}, line{"---", "---"};
    for (const int strength : kShown) {
        head << QString::number(strength);
        line << "---";
    }
    text += "\n" + row(head << "auto") + row(line);
    for (const Figures &one : all) {
        QStringList cells{one.name};
        for (const int strength : kShown)
            cells << number(one.at.at(strength).psnr, 1);
        text += row(cells << QStringLiteral("%1 (at %2)").arg(number(one.automatic.psnr, 1)).arg(one.automaticStrength));
    }
    text += "\n" + meansOf(all);
    return text + QStringLiteral("\n%1 scenes of %2 x %3 pixels.\n").arg(all.size()).arg(width).arg(width * 2 / 3);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption width("width", "Width of the scenes, which have the aspect ratio 3:2.", "N", "1500");
    const QCommandLineOption scene("scene", "Only this one; may be given several times.", "NAME");
    const QCommandLineOption gain("gain", "Fail if a result's PSNR does not exceed the untouched picture's by this.", "DB");
    parser.addOptions({width, scene, gain});
    parser.addPositionalArgument("FOLDER", "Folder for files and pictures.");
    parser.addHelpOption();
    parser.process(application);
    const QStringList folders = parser.positionalArguments();
    const int columns = parser.value(width).toInt();
    if (folders.size() != 1 || columns < 60 || columns > 12000) {
        std::fprintf(stderr, "usage: quality FOLDER [--width N] [--scene NAME]... [--gain DB]     N: 60 to 12000\n");
        return 2;
    }
    try {
        const QDir folder(folders.constFirst());
        if (!folder.mkpath("."))
            throw VException(QStringLiteral("Can't make %1").arg(folder.path()), V_LOCATION);
        startImageLibrary(nullptr);
        std::vector<Figures> all;
        const QStringList names = parser.isSet(scene) ? parser.values(scene) : depthSceneNames();
        for (const QString &name : names)
            all.push_back(measure(name, columns, folder));
        stopImageLibrary();
        const QByteArray text = tablesOf(all, columns).toUtf8();
        std::fputs(text.constData(), stdout);
        QFile table(folder.filePath("table.md"));
        if (!table.open(QIODevice::WriteOnly) || table.write(text) != text.size())
            throw VException(QStringLiteral("Can't write %1").arg(table.fileName()), V_LOCATION);
        for (const Figures &one : all)
            if (parser.isSet(gain) && one.picture[2].psnr < one.picture[0].psnr + parser.value(gain).toDouble())
                throw VException(QStringLiteral("Too far from the truth: %1").arg(one.name), V_LOCATION);
    } catch (const VException &failure) {
        std::fprintf(stderr, "quality: %s\n", qPrintable(failure.message));
        return 1;
    }
    return 0;
}
