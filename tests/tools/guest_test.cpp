#include <filesystem>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QPluginLoader>
#include <QPointer>
#include <QTemporaryDir>

#include <dlfcn.h>
#include <exiv2/exiv2.hpp>
#include <gmock/gmock.h>

#include "OneImage.h"
#include "VCpuTopology.h"
#include "VIApplication.h"
#include "VIPluginLibrary.h"
#include "VIPluginOne2One.h"
#include "VImage.h"
#include "VImageCacheRegistry.h"
#include "VImageSettings.h"
#include "VLog.h"
#include "VPoolMem.h"
#include "VTempManager.h"
#include "startLibraries.h"
#include "threadCount.h"

// What the plug-in leaves behind in the program that loads it. This program is the host, with libraries of its own.

namespace {

using Sets = std::vector<std::string>;

Sets registered; // by the plug-in file

/// Which of our resource sets this is, from the first distinctive name in its table of names: each name has two bytes of length,
/// four of hash, and its letters in UTF-16, high bytes first. Each set has such a name.
std::string setOf(const unsigned char *names)
{
    for (;;) {
        const int length = names[0] << 8 | names[1];
        QString name;
        for (int i = 0; i < length; ++i)
            name += QChar(names[7 + 2 * i], names[6 + 2 * i]);
        if (name == "cameras.txt")
            return "image";
        for (const char *set : {"Nimbra", "VTools", "VUI"})
            if (name.startsWith(QLatin1String(set) + QLatin1Char('_')))
                return set;
        names += 6 + 2 * length;
    }
}

} // namespace

// This definition precedes Qt's: it records the call and passes it on.
Q_DECL_EXPORT bool qRegisterResourceData(int version, const unsigned char *tree, const unsigned char *names,
                                         const unsigned char *data)
{
    static const auto next =
        reinterpret_cast<decltype(&qRegisterResourceData)>(dlsym(RTLD_NEXT, "_Z21qRegisterResourceDataiPKhS0_S0_"));
    Dl_info caller{};
    if (dladdr(__builtin_return_address(0), &caller) && QString(caller.dli_fname).endsWith(QLatin1String("Nimbra.so")))
        registered.push_back(setOf(names) + " " + std::to_string(version));
    return next(version, tree, names, data);
}

namespace {

/// A small hazy slope.
class Photograph : public OneImage
{
public:
    Photograph() : OneImage(48, 32, VImage::Rgb)
    {
        for (int y = 0; y < 32; ++y)
            for (int i = 0; i < 48 * 3; ++i)
                image.PixelAddress(0, y)[i] = static_cast<unsigned char>(210 - 3 * y + (i / 5 + y) % 4 * y);
    }
};

class Host : public QCoreApplication, public VIApplication
{
public:
    using QCoreApplication::QCoreApplication;

    /// The photograph's file: a TIFF with XMP, which uses all parts of the metadata library.
    QString writePhotograph()
    {
        const QString path = folder.filePath("photo.tif");
        photograph.image.Save(path, "tif", -1, QString());
        const auto file = Exiv2::ImageFactory::open(path.toStdString());
        file->readMetadata();
        file->xmpData()["Xmp.xmp.Rating"] = "4";
        file->writeMetadata();
        return path;
    }

    void *qt_metacast(const char *name) override
    {
        return qstrcmp(name, "VIApplication") == 0 ? static_cast<VIApplication *>(this) : QCoreApplication::qt_metacast(name);
    }
    QVariant value(const QString &, const QString &, const QVariant &fallback) override { return fallback; }
    void setValue(const QString &, const QString &, const QVariant &) override {}
    QLocale locale() override { return QLocale(QLocale::German, QLocale::Germany); }
    void loadTranslator(const QString &) override {}
    ImageDef *imageDef(const QString &) override { return &photograph; }
    VImageContext *imageLibraryContext() override { return lends ? &imageContext : nullptr; }
    VUIContext *interfaceLibraryContext() override { return lends ? &interfaceContext : nullptr; }

    bool lends = false;

private:
    QTemporaryDir folder;
    Photograph photograph;
};

std::size_t entriesOf(const char *folder)
{
    const std::filesystem::directory_iterator entries(folder);
    return std::size_t(std::distance(begin(entries), end(entries)));
}

class Guest : public testing::TestWithParam<bool>
{
protected:
    static void loadOnce(const QString &photograph = QString())
    {
        registered.clear();
        QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
        loader.setLoadHints({}); // the default keeps the file loaded
        ASSERT_TRUE(loader.instance()) << qPrintable(loader.errorString());
        EXPECT_TRUE(QFile::exists(":/Translation/Nimbra_de.qm"));
        // What the host keeps of it must not lie in the plug-in's memory.
        auto *library = qobject_cast<VIPluginLibrary *>(loader.instance());
        auto *process = qobject_cast<VIPluginOne2One *>(library->processes(1).last());
        const QString name = process->name();
        const QString guid = qobject_cast<VIAbout *>(loader.instance())->guid();
        const VISettingsHandle settings = process->createSettings(QDomElement());
        QDomElement element = process->settingsToElement(settings);
        process->destroySettings(settings);
        if (!photograph.isEmpty()) {
            QDomDocument document;
            QDomElement strong = document.createElement("Veilaway");
            strong.setAttribute("hazeRemove", 80);
            const VISettingsHandle own = process->createSettings(strong);
            QString result;
            process->run(photograph, own, &result);
            process->destroySettings(own);
            EXPECT_TRUE(QFile::exists(result));
        }
        ASSERT_TRUE(loader.unload());
        EXPECT_EQ(name, "Veilaway");
        EXPECT_EQ(guid, "8E04C3B7-2AF1-4D96-A37C-F1B86C05D24E");
        EXPECT_EQ(element.attribute("hazeRemove"), "0");
        EXPECT_FALSE(QFile::exists(":/Translation/Nimbra_de.qm"));
    }
};

TEST_P(Guest, LeavesNothingBehind)
{
    int argc = 1;
    char name[] = "test";
    char *argv[] = {name, nullptr};
    Host host(argc, argv);
    host.lends = GetParam();
    QDir::setSearchPaths("Data", {"/host"});
    QDir::setSearchPaths("UI", {"/host"});
    startImageLibrary(nullptr);
    interfaceContext.flag = new std::uint8_t(7);
    const QPointer<VLog> log = logInstance;
    threadCount = 3; // the host's own choice

    const QString photograph = host.writePhotograph();
    Exiv2::XmpParser::terminate(); // like a host that has not used it yet
    const auto messages = Exiv2::LogMsg::level();
    loadOnce(photograph); // what the system itself keeps after the first time
    const std::size_t threads = entriesOf("/proc/self/task");
    const std::size_t files = entriesOf("/proc/self/fd");
    for (int round = 0; round < 10; ++round)
        loadOnce(round == 5 ? photograph : QString());
    EXPECT_EQ(entriesOf("/proc/self/task"), threads);
    EXPECT_EQ(entriesOf("/proc/self/fd"), files);

    // The metadata library still works without the plug-in.
    EXPECT_EQ(Exiv2::LogMsg::level(), messages);
    Exiv2::XmpProperties::registerNs("http://example.org/host/", "host");
    Exiv2::XmpData xmp;
    xmp["Xmp.host.word"] = "fog";
    std::string packet;
    EXPECT_EQ(Exiv2::XmpParser::encode(packet, xmp), 0);
    Exiv2::XmpParser::terminate();

    EXPECT_EQ(QDir::searchPaths("Data").value(0), "/host");
    EXPECT_EQ(QDir::searchPaths("UI"), QStringList(GetParam() ? "/host" : ":/UI"));
    EXPECT_FALSE(log.isNull());
    EXPECT_EQ(logInstance, log);
    EXPECT_EQ(threadCount, 3);
    EXPECT_EQ(memoryPool->blockCount, 0);
    EXPECT_EQ(tempManager->folderName, "OMBRE");
    EXPECT_EQ(imageSettings->rawGamma, 2.2f);
    EXPECT_EQ(imageContext.cacheRegistry->intB, 256);
    EXPECT_TRUE(cpuTopology->enumerated);
    EXPECT_EQ(*interfaceContext.flag, 7);
    delete std::exchange(interfaceContext.flag, nullptr);
    stopImageLibrary();
    EXPECT_TRUE(log.isNull());
}

INSTANTIATE_TEST_SUITE_P(Services, Guest, testing::Bool(),
                         [](const testing::TestParamInfo<bool> &row) { return row.param ? "lent" : "alone"; });

TEST(GuestLoad, RegistersItsResourceSetsInOrder)
{
    registered.clear();
    void *const file = dlopen(PLUGIN_FILE, RTLD_NOW);
    ASSERT_TRUE(file) << dlerror();
    ASSERT_GE(registered.size(), 4u);
    registered.resize(4); // the others repeat these
    EXPECT_THAT(registered, testing::ElementsAre("Nimbra 1", "image 1", "VTools 1", "VUI 1"));
    dlclose(file);
}

} // namespace
