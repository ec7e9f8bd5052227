// The plug-in file as a host sees it: loaded by Qt and used only through the contract, by a program that links nothing else of
// ours than the image record.

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QImage>
#include <QPluginLoader>
#include <QPointer>
#include <QProcess>
#include <QTemporaryDir>
#include <QWizardPage>

#include <gmock/gmock.h>

#include "TestHost.h"
#include "VException.h"
#include "VIPluginLibrary.h"
#include "VIPluginOne2One.h"

namespace {

const QString kProcessGuid = QStringLiteral("51D2A7E4-93C6-4F08-B1E5-6A0C7D3E9F21");
const QString kStored = kProcessGuid + QStringLiteral("/hazeRemove");

QPluginLoader &plugin()
{
    static QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
    return loader;
}

class PluginEnvironment : public TestHostEnvironment
{
public:
    void TearDown() override
    {
        delete plugin().instance();
        TestHostEnvironment::TearDown();
    }
};

const auto *const kEnvironment = testing::AddGlobalTestEnvironment(new PluginEnvironment);

class Plugin : public testing::Test
{
protected:
    void SetUp() override
    {
        host.reset();
        library = plugin().instance();
        ASSERT_NE(library, nullptr) << qPrintable(plugin().errorString());
        interface = qobject_cast<VIPluginLibrary *>(library);
        ASSERT_NE(interface, nullptr);
    }
    void TearDown() override { delete object; }

    /// A new process; it is deleted at the end of the test.
    VIPluginOne2One *newProcess()
    {
        delete object;
        object = interface->processes(1).last();
        return qobject_cast<VIPluginOne2One *>(object);
    }

    QDomElement element(const QString &strength)
    {
        QDomElement result = document.createElement(QStringLiteral("Veilaway"));
        if (!strength.isNull())
            result.setAttribute(QStringLiteral("hazeRemove"), strength);
        return result;
    }
    int strengthOf(VIPluginOne2One *process, VISettingsHandle settings)
    {
        const int strength = process->settingsToElement(settings).attribute(QStringLiteral("hazeRemove")).toInt();
        process->destroySettings(settings);
        return strength;
    }

    TestHost &host = TestHost::self();
    QObject *library = nullptr;
    VIPluginLibrary *interface = nullptr;
    QPointer<QObject> object;
    QDomDocument document;
    QTemporaryDir folder;
};

TEST_F(Plugin, ExportsTwoFunctionsAndNamesNoFolderOfTheBuild)
{
    QProcess symbols;
    symbols.start(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"), QStringLiteral("--format=posix"),
                                         QStringLiteral(PLUGIN_FILE)});
    ASSERT_TRUE(symbols.waitForFinished());
    QStringList names;
    for (const QByteArray &line : symbols.readAllStandardOutput().split('\n'))
        if (!line.isEmpty())
            names += QString::fromLatin1(line.left(line.indexOf(' ')));
    EXPECT_THAT(names,
                testing::UnorderedElementsAre(QStringLiteral("qt_plugin_instance"), QStringLiteral("qt_plugin_query_metadata")));

#ifdef SOURCE_FOLDER // not with debug information: the compiler then passes whole paths to the OpenMP run-time
    QFile file(QStringLiteral(PLUGIN_FILE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_FALSE(file.readAll().contains(SOURCE_FOLDER "/"));
#endif
}

TEST_F(Plugin, WhatAHostKnowsItBy)
{
    const QJsonObject data = plugin().metaData();
    EXPECT_EQ(data.value("IID").toString(), "com.ombre.haze");
    EXPECT_EQ(data.value("debug"), QJsonValue(false)); // in every build
    VIPluginOne2One *const process = newProcess();
    auto *const about = qobject_cast<VIAbout *>(library);
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(library->objectName(), "Nimbra");
    EXPECT_EQ(object->objectName(), "NimbraOne2One");
    EXPECT_EQ(process->guid(), kProcessGuid);
    EXPECT_EQ(process->author(), about->author());
    for (VIAbout *one : {about, static_cast<VIAbout *>(process)})
        EXPECT_EQ(one->version(), "3.0.0.400");
    EXPECT_EQ(process->beforeAfterIcon().availableSizes(), QList<QSize>{QSize(256, 128)});
}

TEST_F(Plugin, CastsByName)
{
    auto *const process = static_cast<VIPluginOne2One *>(newProcess());
    EXPECT_EQ(library->qt_metacast("Library"), library);
    EXPECT_EQ(library->qt_metacast("VIPluginLibrary"), interface);
    EXPECT_EQ(library->qt_metacast("VIAbout"), qobject_cast<VIAbout *>(library));
    EXPECT_EQ(library->qt_metacast("VIPluginProcess"), nullptr);
    EXPECT_EQ(object->qt_metacast("NimbraOne2One"), object.data());
    for (const char *name : {"VIPluginOne2One", "VIPluginProcess", "VIAbout"})
        EXPECT_EQ(object->qt_metacast(name), process) << name;
    EXPECT_EQ(object->qt_metacast("QObject"), object.data());
    EXPECT_EQ(object->qt_metacast("Veilaway"), nullptr);

    std::unique_ptr<QObject> made(object->metaObject()->newInstance());
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->parent(), nullptr);
}

TEST_F(Plugin, StartAsksTheHostInOrderAndWorksWithoutOne)
{
    delete library;
    host.calls.clear();
    host.language = QLocale(QLocale::French, QLocale::France);
    library = plugin().instance();
    EXPECT_EQ(host.calls, QStringList({"loadTranslator Nimbra_fr_FR.qm", "imageLibraryContext", "interfaceLibraryContext"}));
    EXPECT_EQ(qobject_cast<VIAbout *>(library)->description(), "Commentaire");
    EXPECT_EQ(plugin().instance(), library);

    delete library;
    host.reset();
    host.isHost = false;
    library = plugin().instance();
    EXPECT_EQ(host.calls, QStringList());
    EXPECT_EQ(qobject_cast<VIAbout *>(library)->description(), "Comment");
    EXPECT_EQ(qobject_cast<VIPluginLibrary *>(library)->processes(1).size(), 1);

    delete library;
    host.isHost = true;
    host.language = QLocale(QLocale::English, QLocale::UnitedStates);
    ASSERT_NE(plugin().instance(), nullptr);
}

TEST_F(Plugin, ProcessesAreMadeOnRequestAndOwnedByTheLibrary)
{
    delete library;
    interface = qobject_cast<VIPluginLibrary *>(plugin().instance());
    EXPECT_EQ(interface->processes(0), QList<QPointer<QObject>>());
    const QPointer<QObject> first = interface->processes(1).value(0);
    const auto both = interface->processes(1);
    ASSERT_EQ(both.size(), 2);
    EXPECT_EQ(both[0], first);
    EXPECT_NE(both[1], first);
    EXPECT_EQ(interface->processes(0), both);
    delete both[0];
    EXPECT_TRUE(interface->processes(0)[0].isNull());

    delete plugin().instance();
    EXPECT_TRUE(both[1].isNull());
}

TEST_F(Plugin, StrengthOfNewSettings)
{
    const struct
    {
        const char *name;
        QVariant stored;
        QDomElement element;
        int strength;
    } rows[] = {
        {"nothing_stored", {}, {}, 0},
        {"stored_default", 35, {}, 35},
        {"stored_value_is_not_clamped", 150, {}, 150},
        {"element_wins", 35, element("40"), 40},
        {"element_is_not_clamped", 35, element("-7"), -7},
        {"element_without_attribute_gives_0", 35, element({}), 0},
        {"element_that_is_not_a_number_gives_0", 35, element("much"), 0},
    };
    for (const auto &row : rows) {
        host.stored.clear();
        if (row.stored.isValid())
            host.stored[kStored] = row.stored;
        VIPluginOne2One *const process = newProcess();
        EXPECT_EQ(strengthOf(process, process->createSettings(row.element)), row.strength) << row.name;
    }
    EXPECT_EQ(host.fallbackType, int(QMetaType::QString));

    host.isHost = false;
    VIPluginOne2One *const process = newProcess();
    EXPECT_EQ(strengthOf(process, process->createSettings({})), 0) << "no host";
    process->saveDefaults();
}

TEST_F(Plugin, SettingsAreCopiedToAnElementAndBetweenHandles)
{
    host.stored[kStored] = 25;
    VIPluginOne2One *const process = newProcess();
    const VISettingsHandle forty = process->createSettings(element("40"));
    const QDomElement made = process->settingsToElement(forty);
    EXPECT_EQ(made.tagName(), "Veilaway");
    EXPECT_EQ(made.attribute("hazeRemove"), "40");
    EXPECT_EQ(made.attributes().count(), 1);
    EXPECT_TRUE(made.parentNode().isNull());

    const VISettingsHandle copy = process->createSettings({});
    process->copySettings(copy, forty);
    EXPECT_EQ(strengthOf(process, copy), 40);
    process->destroySettings(forty);
    process->destroySettings(nullptr);

    host.stored.clear();
    process->saveDefaults(); // writes the default that was stored when the process was made
    EXPECT_EQ(host.stored.value(kStored), QVariant(25));
}

TEST_F(Plugin, EachImageOfThePageHasItsOwnSettings)
{
    host.stored[kStored] = 25;
    VIPluginOne2One *const process = newProcess();
    const std::unique_ptr<QWizardPage> page(process->wizardPage());
    EXPECT_EQ(process->wizardPage(), page.get());
    process->setImages({"/p/a.jpg", "/p/b.jpg", "/p/a.jpg"});
    host.stored[kStored] = 60;
    EXPECT_EQ(process->settingsFor("/p/b.jpg").attribute("hazeRemove"), "25");
    EXPECT_EQ(process->settingsFor("/p/unknown.jpg").attribute("hazeRemove"), "60");
    process->setImages({"/p/b.jpg"});
    EXPECT_EQ(process->settingsFor("/p/b.jpg").attribute("hazeRemove"), "60");
    process->setImages({});
}

TEST_F(Plugin, FailuresReachASeparatelyBuiltHostAsValues)
{
    const QString bare = folder.filePath("bare");
    const QString empty = folder.filePath("empty.png");
    const QString lost = folder.filePath("no/such/folder/photo.png");
    host.image(empty).givesEmptyImage = true;
    const struct
    {
        QString path;
        QString message; ///< How it begins.
        QStringList calls;
    } rows[] = {
        {bare, "Invalid Parameter", {"acquireFull 1", "releaseFull 1"}},
        {empty, "Invalid Bitmap", {"acquireFull 1"}},
        {lost, "", {"acquireFull 1", "releaseFull 1"}},
    };
    for (const auto &row : rows) {
        VIPluginOne2One *const process = newProcess();
        const VISettingsHandle settings = process->createSettings({});
        host.calls.clear();
        QString output;
        try {
            process->run(row.path, settings, &output);
            ADD_FAILURE() << qPrintable(row.path) << " did not fail";
        } catch (const VException &failure) {
            EXPECT_TRUE(failure.message.startsWith(row.message)) << qPrintable(failure.message);
            EXPECT_THAT(failure.location.toStdString(),
                        testing::MatchesRegex("File: \"\\.\\./image/VImage[A-Za-z_]*\\.cpp\" Line: [0-9]+"));
        }
        process->destroySettings(settings);
        EXPECT_TRUE(output.contains("_dehazed.")) << "the name is known before any work";
        EXPECT_FALSE(QFile::exists(output));
        EXPECT_EQ(host.calls, row.calls) << qPrintable(row.path);
    }
}

TEST_F(Plugin, EveryCatalogueLoadsAndHasTheTag)
{
    const char *const rows[][2] = {
        {"fr", "_dehazed"},
        {"de", "_entnebelt"},
        {"es", "_sinbruma"},
        {"it", "_senza foschia"},
        {"pl", "_dehazed"},
        {"ja", "_除去薄霧"},
        {"zh_CN", "_离开薄雾"},
        {"zh_TW", "_去除糢糊"},
        {"re", "_удалена атмосферная дымка"},
        {"en", ""},
    };
    const QByteArray description = newProcess()->description().toUtf8();
    for (const auto &[language, tag] : rows) {
        QTranslator catalogue;
        EXPECT_TRUE(catalogue.load(QStringLiteral("Nimbra_%1.qm").arg(language), QStringLiteral(":/Translation"))) << language;
        EXPECT_EQ(catalogue.translate("NimbraOne2One", "_dehazed"), tag);
        for (const auto &[context, text] : {std::pair("NimbraOne2One", description.constData()),
                                            {"Library", "Comment"},
                                            {"UIHazePreview", "Preview is uptodate"},
                                            {"UIHazePreviewClass", "Power"},
                                            {"UIImageDefListWizard", "Next"},
                                            {"UIImageDefListWizardClass", "Apply to all images"}})
            EXPECT_EQ(catalogue.translate(context, text).isEmpty(), !*tag) << language << ' ' << text;
    }
    EXPECT_FALSE(QFile::exists(QStringLiteral(":/Translation/Nimbra_ru.qm")));
}

TEST_F(Plugin, Pictures)
{
    const QString pictures = QStringLiteral(":/%1/Resources/").arg(kProcessGuid);
    const QStringList files = QDir(pictures).entryList(QDir::Files, QDir::Name);
    ASSERT_EQ(files.size(), 13);
    for (const QString &file : files) {
        const QImage picture(pictures + file);
        EXPECT_EQ(picture.format(), QImage::Format_ARGB32) << qPrintable(file);
        EXPECT_EQ(picture.size(), file.startsWith("iconwait") ? QSize(64, 64) : QSize(256, 128)) << qPrintable(file);
    }
}

} // namespace
