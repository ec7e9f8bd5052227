// A host in one file: it lends the plug-in one photograph and has the haze taken out of it.
// usage: host /absolute/path/of/Nimbra.so /absolute/path/of/photograph
#include <QApplication>
#include <QPluginLoader>
#include <cstdio>
#include <cstring>

#include "ImageDef.h"
#include "VException.h"
#include "VIApplication.h"
#include "VIPluginLibrary.h"
#include "VIPluginOne2One.h"
#include "VImage.h"

struct Photograph : ImageDef
{
    explicit Photograph(const QString &path)
    {
        const QImage picture = QImage(path).convertToFormat(QImage::Format_RGBA8888);
        image.Create(picture.width(), picture.height(), VImage::Rgba, 8);
        for (int y = 0; y < picture.height(); ++y)
            std::memcpy(image.PixelAddress(0, y), picture.constScanLine(y), static_cast<std::size_t>(picture.width()) * 4);
    }
    QString displayName() override { return {}; }
    int height() override { return image.Height(); }
    int width() override { return image.Width(); }
    int channelCount() override { return 3; }
    int bitsPerChannel() override { return 8; }
    bool needsTiffOutput() override { return false; }
    VImage *acquireScaled(int, int, int) override { return nullptr; } // for the page only
    void releaseScaled(int, int, int) override {}
    VImage *acquireFull(int) override { return &image; }
    void releaseFull(int) override {}
    VImage image;
};

struct Host : QApplication, VIApplication
{
    using QApplication::QApplication;
    void *qt_metacast(const char *name) override
    {
        return std::strcmp(name, "VIApplication") == 0 ? static_cast<VIApplication *>(this) : QApplication::qt_metacast(name);
    }
    QVariant value(const QString &, const QString &, const QVariant &fallback) override { return fallback; }
    void setValue(const QString &, const QString &, const QVariant &) override {}
    QLocale locale() override { return QLocale::c(); }
    void loadTranslator(const QString &) override {}
    ImageDef *imageDef(const QString &) override { return photograph; }
    VImageContext *imageLibraryContext() override { return nullptr; }
    VUIContext *interfaceLibraryContext() override { return nullptr; }
    ImageDef *photograph = nullptr;
};

int main(int argc, char **argv)
{
    Host host(argc, argv);
    const QStringList words = QApplication::arguments();
    QPluginLoader loader(words.value(1));
    auto *library = qobject_cast<VIPluginLibrary *>(loader.instance());
    if (!library) {
        std::fprintf(stderr, "%s\n", qPrintable(loader.errorString()));
        return 1;
    }
    int failures = 0;
    {
        auto *process = qobject_cast<VIPluginOne2One *>(library->processes(1).constLast().data());
        Photograph photograph(words.value(2));
        host.photograph = &photograph;
        QDomDocument settings;
        settings.setContent(QString("<Veilaway hazeRemove=\"70\"/>")); // or as settingsToElement gave it
        VISettingsHandle handle = process->createSettings(settings.documentElement());
        QString result;
        try {
            process->run(words.value(2), handle, &result);
            std::printf("%s\n", qPrintable(result));
        } catch (const VException &failure) {
            std::fprintf(stderr, "%s\n", qPrintable(failure.message));
            failures = 1;
        }
        process->destroySettings(handle);
    }
    loader.unload();
    return failures;
}
