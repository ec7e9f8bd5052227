// A complete host in one file: it removes the haze from photographs, at the stored strength or, with --edit, at the strength that
// a person chooses on the plug-in's page. docs/host-contract.md says what each call promises.
// usage: host [--edit [--accept | --cancel]] PLUGIN PHOTOGRAPH...    All paths are absolute. --accept and --cancel answer for the
// person as soon as the preview is shown.
// Exit status: 0 if each photograph has its result, 1 if one has none, because something failed or the person cancelled.
#include <QApplication>
#include <QFileInfo>
#include <QPluginLoader>
#include <QSettings>
#include <QTranslator>
#include <QWizard>
#include <cstdio>
#include <cstring>
#include <map>

#include "ImageDef.h"
#include "VException.h"
#include "VIApplication.h"
#include "VIPluginLibrary.h"
#include "VIPluginOne2One.h"
#include "VImage.h"

/// Does something that may fail and reports the reason; false if it failed.
template<typename Work>
bool attempt(Work work)
{
    try {
        work();
        return true;
    } catch (const VException &failure) { // not a std::exception
        std::fprintf(stderr, "host: %s\n", qPrintable(failure.message));
    } catch (const std::exception &failure) { // out of memory
        std::fprintf(stderr, "host: %s\n", failure.what());
    }
    return false;
}

/// One photograph, whose pixels are decoded when acquired and freed when released. Eight bits per sample are enough for an
/// example.
struct Photograph : ImageDef
{
    explicit Photograph(const QString &path) : file(path), size(QImage(path).size()) {}
    QString displayName() override { return QFileInfo(file).fileName(); }
    int width() override { return size.width(); }
    int height() override { return size.height(); }
    int channelCount() override { return 3; }
    int bitsPerChannel() override { return 8; }
    bool needsTiffOutput() override { return !QStringList{"jpg", "png"}.contains(QFileInfo(file).suffix().toLower()); }
    VImage *acquireFull(int) override { return decode(full, size); }
    void releaseFull(int) override { full.Free(); }
    VImage *acquireScaled(int width, int height, int) override { return decode(scaled, QSize(width, height)); }
    void releaseScaled(int, int, int) override { scaled.Free(); }

    VImage *decode(VImage &image, QSize wanted) const
    {
        QImage picture(file);
        if (picture.isNull())
            throw VException("Can't read " + file, V_LOCATION); // propagates through the plug-in's call to the host
        picture = picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB888);
        image.Create(picture.width(), picture.height(), VImage::Rgb, 8);
        for (int y = 0; y < picture.height(); ++y)
            std::memcpy(image.PixelAddress(0, y), picture.constScanLine(y), std::size_t(picture.width()) * 3);
        return &image;
    }
    const QString file;
    const QSize size;
    QDomElement settings; // null: the stored default
    VImage full, scaled;
};

struct Host : QApplication, VIApplication
{
    using QApplication::QApplication;
    void *qt_metacast(const char *name) override // so the plug-in finds its host
    {
        return std::strcmp(name, "VIApplication") == 0 ? static_cast<VIApplication *>(this) : QApplication::qt_metacast(name);
    }
    bool notify(QObject *receiver, QEvent *event) override // the page reads photographs too, and catches nothing
    {
        bool known = false;
        return attempt([&] { known = QApplication::notify(receiver, event); }) && known;
    }
    QVariant value(const QString &group, const QString &key, const QVariant &) override // any thread
    {
        return QSettings("Example", "host").value(group + '/' + key, 70); // the plug-in's own fallback is 0
    }
    void setValue(const QString &group, const QString &key, const QVariant &value) override
    {
        QSettings("Example", "host").setValue(group + '/' + key, value);
    }
    QLocale locale() override { return QLocale(); }
    void loadTranslator(const QString &fileName) override
    {
        if (translator.load(fileName, ":/Translation"))
            installTranslator(&translator);
    }
    ImageDef *imageDef(const QString &path) override { return &photographs.at(path); }
    VImageContext *imageLibraryContext() override { return nullptr; } // the plug-in makes its own
    VUIContext *interfaceLibraryContext() override { return nullptr; }

    std::map<QString, Photograph> photographs;
    QTranslator translator;
};

/// Answers for the person: accept or reject; null if the person answers.
using Answer = void (QDialog::*)();

/// Shows the page and takes the settings from it; false if the person cancels or the first photograph can't be read. The wizard
/// deletes the page.
bool edit(Host &host, VIPluginOne2One &process, const QStringList &paths, Answer answer)
{
    QWizard wizard;
    QWizardPage *const page = process.wizardPage();
    wizard.addPage(page); // the wizard owns it from now on
    if (answer)           // the page is complete once it shows its preview
        QObject::connect(page, &QWizardPage::completeChanged, [&] { page->isComplete() ? (wizard.*answer)() : void(); });
    if (!attempt([&] { process.setImages(paths); }) || wizard.exec() != QDialog::Accepted)
        return false;
    process.saveDefaults();
    for (auto &[path, photograph] : host.photographs)
        photograph.settings = process.settingsFor(path);
    return true;
}

/// Makes the result of each photograph; returns the number of failures. A run works on the calling thread, which may be any
/// thread.
int run(Host &host, VIPluginOne2One *process)
{
    int failures = 0;
    for (auto &[path, photograph] : host.photographs) {
        const VISettingsHandle settings = process->createSettings(photograph.settings);
        QString result;
        if (attempt([&, &file = path] { process->run(file, settings, &result); }))
            std::printf("%s\n", qPrintable(result));
        else
            ++failures;
        photograph.releaseFull(1); // a run that failed may have left that to the host
        process->destroySettings(settings);
    }
    return failures;
}

int main(int argc, char **argv)
{
    Host host(argc, argv);
    QStringList paths = QApplication::arguments().mid(1);
    const bool wantsPage = paths.removeAll("--edit") > 0, accepts = paths.removeAll("--accept") > 0,
               cancels = paths.removeAll("--cancel") > 0;
    QPluginLoader loader(paths.isEmpty() ? QString() : paths.takeFirst());
    for (const QString &path : qAsConst(paths))
        host.photographs.try_emplace(path, path);

    bool done = false;
    if (auto *library = qobject_cast<VIPluginLibrary *>(loader.instance())) {
        auto *process = qobject_cast<VIPluginOne2One *>(library->processes(1).constLast().data());
        const Answer answer = accepts ? &QDialog::accept : cancels ? &QDialog::reject : nullptr;
        done = (!wantsPage || edit(host, *process, paths, answer)) && run(host, process) == 0;
    } else {
        std::fprintf(stderr, "host: %s\n", qPrintable(loader.errorString()));
    }
    loader.unload(); // in every case: deletes the library object, and the process with it, while the application still exists
    return done ? 0 : 1;
}
