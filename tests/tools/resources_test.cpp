#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTranslator>

#include <gtest/gtest.h>

#include "VException.h"
#include "startLibraries.h"
#include "throwGflError.h"

namespace {

const QStringList kQt = {"ar", "cs", "de", "es", "fr", "it", "ja", "pl", "ru", "zh_CN", "zh_TW"};
const QStringList kImage = {"ar", "cs", "de", "en", "es", "fi", "fr", "it", "ja", "nb", "nl", "pl", "ru", "zh_CN", "zh_TW"};
const QStringList kTools = {"cs", "de", "en", "es", "fi", "fr", "it", "nb", "nl", "pl", "ru", "zh_CN", "zh_TW"};
const QStringList kInterface = {"cs", "de", "en", "es", "fi", "fr", "it", "ja", "nb", "nl", "pl", "ru", "zh_CN", "zh_TW"};

struct Catalogue
{
    const char *name;
    QStringList languages;
    /// Context and source text of each entry.
    std::vector<std::pair<const char *, const char *>> texts;
};

const Catalogue kCatalogues[] = {
    {"VImage",
     kImage,
     {{"VException", "Error GFL : \"%1\""},
      {"VException", "File : \"%1\""},
      {"VException", "Not enough free space on \"%1\" to finish operation"},
      {"VException", "Cannot write into file \"%1\""},
      {"VException", "Delete locked vic"},
      {"VException", "No more block freeable :\nnot enough memory available\nor too many threads used"},
      {"VException", "No more space in temporary folder"},
      {"VException", "Not enough space for one line in one block"}}},
    {"VTools",
     kTools,
     {{"VException", "Error GFL : \"%1\""},
      {"VException", "File : \"%1\""},
      {"VException", "Not enough free space on \"%1\" to finish operation"},
      {"VException", "Cannot write into file \"%1\""},
      {"VException", "File \"%1\" is not found"},
      {"VLog", "Critical error"},
      {"VLog", "Can not open file %1"},
      {"VSystemInfo", "Bytes"},
      {"VSystemInfo", "KB"},
      {"VSystemInfo", "MB"},
      {"VSystemInfo", "GB"},
      {"VSystemInfo", "TB"}}},
    {"VUI",
     kInterface,
     {{"UIImageDefListWizard", "Next"}, {"UIImageDefListWizard", "Prev"}, {"UIImageDefListWizardClass", "Apply to all images"}}},
};

class Resources : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        startImageLibrary(nullptr); // registered twice by now
        startInterfaceLibrary(nullptr);
    }
    static void TearDownTestSuite() { stopImageLibrary(); }
};

TEST_F(Resources, EveryCatalogueHasEveryTextInEveryLanguage)
{
    QStringList expected;
    for (const Catalogue &catalogue : kCatalogues) {
        for (const QString &language : catalogue.languages) {
            const QString file = QString("%1_%2.qm").arg(catalogue.name, language);
            expected << file;
            QTranslator translator;
            ASSERT_TRUE(translator.load(file, ":/Translation")) << qPrintable(file);
            for (const auto &[context, source] : catalogue.texts) {
                const QString text = translator.translate(context, source);
                EXPECT_FALSE(text.isEmpty()) << qPrintable(file) << ": " << source;
                for (const char *part : {"%1", "\n"})
                    EXPECT_EQ(text.count(part), QString(source).count(part)) << qPrintable(file) << ": " << source;
                if (language == "en") {
                    EXPECT_EQ(text, source);
                } else if (qstrlen(source) > 5) { // units and "Next" may be the same
                    EXPECT_NE(text, source) << qPrintable(file);
                }
            }
        }
    }
    QStringList found = QDir(":/Translation").entryList({"V*.qm"});
    found.sort();
    expected.sort();
    EXPECT_EQ(found, expected);
}

TEST_F(Resources, QtsCataloguesLoadByEitherName)
{
    if (!QFile::exists(":/Translation/qtbase_de.qm"))
        GTEST_SKIP() << "Qt's translations were not installed when this was built";
    for (const QString &language : kQt) {
        for (const char *name : {"qt", "qtbase"}) {
            QTranslator translator;
            ASSERT_TRUE(translator.load(QString("%1_%2").arg(name, language), ":/Translation")) << qPrintable(language);
            EXPECT_FALSE(translator.translate("QPlatformTheme", "Cancel").isEmpty()) << name << qPrintable(language);
        }
    }
}

TEST_F(Resources, FailuresAreTranslatedButKeepTheirNames)
{
    int argc = 1;
    char name[] = "test";
    char *argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);
    QTranslator german;
    ASSERT_TRUE(german.load("VTools_de_DE.qm", ":/Translation"));
    QCoreApplication::installTranslator(&german);
    try {
        throwGflError(4, "/photo.tif", QString());
        FAIL();
    } catch (const VException &failure) {
        EXPECT_EQ(failure.message, "GFL-Fehler: \"GFL_ERROR_FILE_WRITE\"\nDatei: \"/photo.tif\"");
    }
}

} // namespace
