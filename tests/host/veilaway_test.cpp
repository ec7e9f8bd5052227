#include <csignal>
#include <cstring>
#include <limits>
#include <map>

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>
#include <exiv2/exiv2.hpp>
#include <gmock/gmock.h>

#include "HazeState.h"
#include "PhotoLoader.h"
#include "PhotoTest.h"
#include "Photograph.h"
#include "RemoveHaze.h"
#include "workingForm.h"

namespace {

const char kProcessGuid[] = "51D2A7E4-93C6-4F08-B1E5-6A0C7D3E9F21";

class Veilaway : public PhotoTest
{
protected:
    /// Path and attributes of each photograph in s.xml.
    QStringList entries()
    {
        QStringList all;
        QDomDocument document;
        EXPECT_TRUE(document.setContent(folder.content("s.xml")));
        for (QDomElement entry = document.documentElement().firstChildElement("photo"); !entry.isNull();
             entry = entry.nextSiblingElement("photo")) {
            const QDomElement element = entry.firstChildElement("Veilaway");
            all << entry.attribute("path") + ' ' + element.attribute("hazeRemove") + ' ' + element.attribute("strength");
        }
        return all;
    }
};

testing::AssertionResult contains(const QString &text, const QString &part)
{
    return text.contains(part)
               ? testing::AssertionSuccess()
               : testing::AssertionFailure() << '"' << part.toStdString() << "\" is not in: " << text.toStdString();
}

} // namespace

TEST_F(Veilaway, WrongCommandLinesExitWith2AndSayWhatIsWrong)
{
    folder.photograph("a.png");
    folder.write("broken.xml", "<veilaway><photo path=");
    folder.write("twice.xml", "<veilaway><photo path='a.png'><Veilaway hazeRemove='4'/></photo>"
                              "<photo path='./a.png'><Veilaway hazeRemove='5'/></photo></veilaway>");
    folder.write("odd.xml", "<veilaway><photo path='a.png'><Veilaway hazeRemove='101'/></photo></veilaway>");
    folder.write("other.xml", "<html/>");
    folder.write("more.xml", "<veilaway/><veilaway/>");
    const QStringList before = folder.files();
    const struct
    {
        QStringList arguments;
        const char *said;
    } cases[] = {
        {{}, "Name the photographs"},
        {{"run"}, "Name the photographs"},
        {{"a.png", "--strength", "101"}, "--strength must be"},
        {{"a.png", "--strength", "-1"}, "--strength must be"},
        {{"a.png", "--strength", "70.5"}, "70.5"},
        {{"a.png", "--strength="}, "--strength must be"},
        {{"a.png", "--strength"}, "strength"},
        {{"--set-default", "101"}, "--set-default must be"},
        {{"--set-default", "auto", "a.png"}, "leave out photographs"},
        {{"wizard", "--set-default", "auto"}, "leave out photographs"},
        {{"a.png", "--jobs", "0"}, "--jobs must be"},
        {{"a.png", "--language", "xx"}, "zh_TW"},
        {{"a.png", "--nonsense"}, "nonsense"},
        {{"a.png", "--strenght", "5"}, "Did you mean --strength?"},
        {{"a.png", "--skip"}, "Did you mean --skip-existing?"},
        {{"wizard", "--setings", "s.xml"}, "Did you mean --settings?"},
        {{"help", "walk"}, "run window wizard help"},
        {{"a.png", "--newer", "--overwrite"}, "only one"},
        {{"a.png", "-o", ""}, "--output must be"},
        {{"a.png", "-o", "a.gif"}, "written as \"gif\""},
        {{"a.png", "-o", "broken.xml"}, "is not a folder"},
        {{"a.png", "b.png", "-o", "c.png"}, "there are 2 photographs"},
        {{"a.png", "-o", "c.png", "--tag", "x"}, "leave it out"},
        {{"a.png", "--tag", "x/y"}, "slash"},
        {{"@none.txt"}, "The list \"none.txt\" can't be read"},
        {{"--quiet", "wizard"}, "--quiet can't be used with wizard"},
        {{"window", "--strength", "5"}, "--strength can't be used with window"},
        {{"--settings", "none.xml"}, "none.xml"},
        {{"a.png", "--strength", "9", "--settings", "broken.xml"}, "broken.xml"},
        {{"a.png", "--settings", "twice.xml"}, "twice"},
        {{"a.png", "--settings", "odd.xml"}, "0 to 100"},
        {{"a.png", "--settings", "other.xml"}, "<veilaway>"},
        {{"a.png", "--settings", "more.xml"}, "end of document. Repair it"},
        {{"a.png", "--settings", "no/such/folder.xml"}, "folder.xml"},
        {{"a.png", "--settings", "a_dehazed.png"}, "name of a result"},
    };
    for (const auto &[arguments, said] : cases) {
        const Said answer = folder.run(arguments);
        EXPECT_EQ(answer.code, 2) << arguments.join(' ');
        EXPECT_EQ(answer.out, "") << arguments.join(' ');
        EXPECT_TRUE(contains(answer.err, said)) << arguments.join(' ');
    }
    EXPECT_EQ(folder.files(), before);
    EXPECT_EQ(folder.content("broken.xml"), "<veilaway><photo path=");
}

TEST_F(Veilaway, TheWizardNamesTheRemedyWhereNoWindowCanBeShown)
{
    folder.write("broken.xml", "<veilaway>");
    const char kNone[] = "^veilaway: The window can't be shown: [^\n]*ssh -X[^\n]*\n$";
    const struct
    {
        QStringList arguments;
        const char *environment;
        int code;
        const char *said;
    } cases[] = {
        {{"wizard"}, "DISPLAY=", 1, kNone},
        {{"window"}, "DISPLAY=:97531", 1, kNone},
        {{"wizard"}, "QT_QPA_PLATFORM=nonsense", 1, kNone},
        {{"wizard"}, "QT_QPA_PLATFORM=linuxfb:fb=none", 1, "The window can't be shown: linuxfb"},
        {{"--share-services", "wizard"}, "DISPLAY=", 1, kNone},
        {{"--language", "de", "wizard", "--", "-a.png"}, "DISPLAY=", 1, "Das Fenster kann nicht"},
        {{"--", "wizard"}, "DISPLAY=", 1, "wizard: There is no such file"},
        {{"wizard", "--settings", "broken.xml"}, "QT_QPA_PLATFORM=offscreen", 2, "broken.xml"},
        {{"window", "broken.xml"}, "QT_QPA_PLATFORM=nonsense;minimal", 2, "broken.xml"},
    };
    for (const auto &[arguments, environment, code, said] : cases) {
        const Said answer = folder.run(arguments, {environment});
        EXPECT_EQ(answer.code, code) << environment << ' ' << arguments.join(' ');
        EXPECT_TRUE(answer.err.contains(QRegularExpression(said))) << environment << ": " << answer.err;
        EXPECT_EQ(answer.out, "");
    }
}

TEST_F(Veilaway, HelpAndVersionAnswerOnStandardOutput)
{
    const Said help = folder.run({"--help"});
    EXPECT_EQ(help.code, 0);
    for (const char *part : {"--strength N", "--json", "--share-services", "_entnebelt", "Examples:", "  2  "})
        EXPECT_TRUE(contains(help.out, part));
    for (const char *language : {"de", "ja"}) {
        int longest = 0;
        for (const QString &line : folder.run({"--help", "--language", language}).out.split('\n'))
            longest = std::max(longest, line.size() + line.count(QRegularExpression("[\u2e80-\uffff]"))); // two columns each
        EXPECT_TRUE(longest > 76 && longest <= 80) << language << ' ' << longest;
    }
    EXPECT_TRUE(folder.run({"help", "wizard"}).out.contains("--settings") &&
                !folder.run({"wizard", "--help"}).out.contains("--overwrite"));
    const Said version = folder.run({"--version"});
    EXPECT_EQ(version.code, 0) << version.err;
    EXPECT_TRUE(contains(version.out, "Nimbra 3.0.0.400, Ombre"));
    const Said lost = folder.run({"--plugin", "none.so", "a.png"});
    EXPECT_EQ(lost.code, 1);
    EXPECT_TRUE(contains(lost.err, "--plugin FILE"));
}

TEST_F(Veilaway, TakesHazeAwayAndKeepsFormatDepthAndSource)
{
    const struct
    {
        QString name, result;
        unsigned short type;
        int bits;
    } cases[] = {
        {"grey8.png", "grey8_dehazed.png", VImage::Grey, 8},      {"grey16.png", "grey16_dehazed.png", VImage::Grey, 16},
        {"rgb16.tif", "rgb16_dehazed.tif", VImage::Rgb, 16},      {"rgba8.tiff", "rgba8_dehazed.tiff", VImage::Rgba, 8},
        {"rgba16.png", "rgba16_dehazed.png", VImage::Rgba, 16},   {"float.tif", "float_dehazed.tif", VImage::Rgb, 32},
        {"IMG 1.v2.JPG", "IMG 1.v2_dehazed.jpg", VImage::Rgb, 8},
    };
    QStringList arguments{"--strength", "90"};
    for (const auto &photo : cases) {
        folder.photograph(photo.name, 48, 32, photo.type, photo.bits);
        arguments << photo.name;
    }
    const QByteArray source = folder.content("IMG 1.v2.JPG");
    const Said answer = folder.run(arguments);
    EXPECT_EQ(answer.code, 0) << answer.err;
    EXPECT_EQ(folder.content("IMG 1.v2.JPG"), source);
    EXPECT_EQ(folder.files().size(), 2 * int(std::size(cases)));
    for (const auto &photo : cases) {
        EXPECT_TRUE(contains(answer.out, folder.path(photo.result)));
        const auto result = PhotoLoader::decode(folder.path(photo.result));
        EXPECT_EQ(result->image().Type(), photo.type) << photo.name;
        EXPECT_EQ(result->image().BitsPerComponent(), photo.bits) << photo.name;
        EXPECT_EQ(result->image().Width(), 48) << photo.name;
        EXPECT_GT(folder.contrast(photo.result), folder.contrast(photo.name) + 0.02) << photo.name;
    }
}

TEST_F(Veilaway, RefusesWhatWouldDoHarmAndGoesOn)
{
    folder.photograph("good.png");
    folder.photograph("there.png");
    folder.write("there_dehazed.png", "older");
    folder.photograph("same.jpg");
    folder.photograph("same.JPG");
    folder.photograph("link.png");
    QFile::link("link.png", folder.path("link_dehazed.png"));
    folder.photograph("hard.png");
    ASSERT_EQ(link(QFile::encodeName(folder.path("hard.png")).constData(),
                   QFile::encodeName(folder.path("hard_dehazed.png")).constData()),
              0);
    folder.photograph("blocked.png");
    QDir(folder.path(".")).mkdir("blocked_dehazed.png");
    folder.write("empty.png", "");
    folder.write("text.jpg", "no picture");
    folder.photograph("wide.png", 21475, 2, VImage::Grey);
    const QByteArray radiance("#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y ");
    const QByteArray length(100000, '\0'); // a few bytes could not hold as much
    folder.write("large.hdr", radiance + "21475 +X 21475\n" + length);
    folder.write("vast.hdr", radiance + "4000000 +X 20000\n" + length);
    folder.photograph("cut.png");
    folder.write("cut.png", folder.content("cut.png").left(150));
    folder.photograph("liar.png");
    QFile::rename(folder.path("liar.png"), folder.path("liar.jpg"));
    QFile::link("nowhere", folder.path("dangling.png"));
    const struct
    {
        const char *photo, *said;
    } cases[] = {
        {"there.png", "--overwrite"},
        {"same.JPG", "same.jpg"},
        {"link.png", "same file"},
        {"blocked.png", "folder"},
        {"empty.png", "empty"},
        {"text.jpg", "known format"},
        {"large.hdr", "21474"},
        {"vast.hdr", "TB of memory, but only [0-9.]+ .B is free"},
        {"cut.png", "damaged"},
        {"liar.jpg", "suffix"},
        {"dangling.png", "link"},
        {"missing.png", "no such file"},
        {"blocked_dehazed.png", "no photographs in this folder"},
    };
    QStringList arguments{"--strength", "50", "same.jpg", "./good.png", "good.png"};
    for (const auto &refused : cases)
        arguments << refused.photo;
    const QStringList before = folder.files();
    const Said answer = folder.run(arguments);
    EXPECT_EQ(answer.code, 1);
    for (const auto &refused : cases)
        EXPECT_TRUE(answer.err.contains(
            QRegularExpression(QStringLiteral("veilaway: %1: [^\n]*%2[^\n]*\\.\n").arg(refused.photo, refused.said))))
            << refused.photo << ": " << answer.err;
    QStringList after = before;
    after << "good_dehazed.png"
          << "same_dehazed.jpg";
    EXPECT_THAT(folder.files(), testing::UnorderedElementsAreArray(after));
    EXPECT_EQ(folder.content("there_dehazed.png"), "older");

    // Even --overwrite never writes through a link to a source.
    const QByteArray hard = folder.content("hard.png");
    EXPECT_EQ(folder.run({"hard.png", "link.png", "--overwrite", "--strength", "50"}).code, 1);
    EXPECT_EQ(folder.content("hard.png"), hard);
    EXPECT_EQ(folder.content("hard_dehazed.png"), hard);

    // Without haze to remove, the size doesn't matter; --overwrite replaces an old result.
    EXPECT_EQ(folder.run({"wide.png", "there.png", "--overwrite", "--strength", "0"}).code, 0);
    EXPECT_NE(folder.content("there_dehazed.png"), "older");
}

TEST_F(Veilaway, AWidePhotographGetsWhatTheEngineMakesOfItWithRowsForColumns)
{
    constexpr int kWidth = 21475, kHeight = 13;
    const struct
    {
        const char *name;
        unsigned short type;
        int bits;
    } cases[] = {
        {"a.jpg", VImage::Rgb, 8},   {"c.png", VImage::Rgba, 16}, {"d.tif", VImage::Rgba, 8}, {"e.tiff", VImage::Grey, 16},
        {"f.psd", VImage::Rgba, 16}, {"g.exr", VImage::Rgb, 32},  {"h.hdr", VImage::Rgb, 32},
    };
    QStringList arguments{"--strength", "90", "--jobs", "2"};
    for (const auto &photo : cases) {
        folder.photograph(photo.name, kWidth, kHeight, photo.type, photo.bits);
        if (photo.bits < 32) { // the others have no EXIF block
            const auto file = Exiv2::ImageFactory::open(QFile::encodeName(folder.path(photo.name)).toStdString());
            file->readMetadata();
            file->exifData()["Exif.Image.Orientation"] = uint16_t(6);
            file->exifData()["Exif.Photo.PixelXDimension"] = uint32_t(kWidth);
            file->writeMetadata();
        }
        arguments << photo.name;
    }
    // To the program, a shell's limit on the size of files is a full disk.
    folder.write("a_dehazed.jpg", "older");
    const QStringList before = folder.files();
    const Said full = folder.shell("ulimit -f 8; \"$V\" a.jpg d.tif --overwrite --strength 90");
    EXPECT_EQ(full.code, 1);
    EXPECT_TRUE(contains(full.err, "Make room"));
    EXPECT_FALSE(full.err.contains("/.veilaway")) << full.err;
    EXPECT_EQ(folder.files(), before);
    EXPECT_EQ(folder.content("a_dehazed.jpg"), "older");

    const Said answer = folder.run(arguments + QStringList{"--overwrite"});
    EXPECT_EQ(answer.code, 0) << answer.err;
    EXPECT_EQ(answer.err.count('\n'), 1) << answer.err;
    EXPECT_EQ(QDir(folder.path("")).entryList({".veilaway*"}, QDir::AllEntries | QDir::Hidden), QStringList());
    for (const auto &photo : cases) {
        VImage turned, working;
        PhotoLoader::decode(folder.path(photo.name))->image().Turn(turned, Photograph::kRowsForColumns);
        toWorkingForm(turned, working);
        HazeState state{};
        state.strength = 90;
        RemoveHaze(working, state);
        const std::unique_ptr<float[]> map(state.transmission);
        VImage reference, upright;
        working.ConvertTo(reference, photo.type, photo.bits);
        reference.Turn(upright, Photograph::kRowsForColumns);
        const QString suffix = QString(photo.name).section('.', 1).toLower();
        upright.Save(folder.path("reference." + suffix), suffix, -1, folder.path(photo.name));

        const QString result = QString(photo.name).section('.', 0, 0) + "_dehazed." + suffix;
        const QByteArray bytes = folder.content(result), wanted = folder.content("reference." + suffix);
        if (!suffix.startsWith('j')) {
            EXPECT_EQ(bytes, wanted) << result;
            continue;
        }
        // Up to its tables, which hold steps for the other direction, the metadata is the same; pixels are rounded elsewhere.
        const int tables = wanted.indexOf("\xff\xdb");
        EXPECT_EQ(bytes.left(tables), wanted.left(tables)) << result;
        const auto seen = PhotoLoader::decode(folder.path(result)),
                   want = PhotoLoader::decode(folder.path("reference." + suffix));
        int furthest = 0;
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                furthest = std::max(furthest, std::abs(*seen->image().PixelAddress(x, y) - *want->image().PixelAddress(x, y)));
        EXPECT_LE(furthest, 24) << result; // a step of the finest pattern
    }
}

TEST_F(Veilaway, SaysTheSameToProgramsForAnyNumberOfJobsAndWithLentServices)
{
    QStringList photographs;
    for (int i = 0; i < 3; ++i) {
        photographs << QString("p%1.jpg").arg(i);
        folder.photograph(photographs.last(), 60 + 7 * i, 50);
    }
    photographs << "missing.jpg";
    std::vector<QByteArray> first;
    for (const QStringList &options : {QStringList{"--jobs", "1"}, {"--jobs", "3"}, {"--jobs", "2", "--share-services"}}) {
        const Said answer = folder.run(QStringList{"run", "--json", "--strength", "80", "--overwrite"} + options + photographs);
        EXPECT_EQ(answer.code, 1);
        EXPECT_TRUE(contains(answer.err, "missing.jpg"));
        QSet<QString> done;
        EXPECT_EQ(answer.out.count('\n'), 4);
        for (const QJsonObject &object : answer.objects()) {
            EXPECT_EQ(object["strength"].toInt(), 80);
            if (object["status"] != "done") {
                EXPECT_EQ(object["photo"].toString(), "missing.jpg");
                EXPECT_TRUE(object["result"].isNull());
                continue;
            }
            EXPECT_GT(object["seconds"].toDouble(), 0);
            done << object["result"].toString();
        }
        EXPECT_EQ(done.size(), 3);
        for (int i = 0; i < 3; ++i) {
            const QByteArray bytes = folder.content(QString("p%1_dehazed.jpg").arg(i));
            EXPECT_TRUE(done.contains(folder.path(QString("p%1_dehazed.jpg").arg(i))));
            if (int(first.size()) == i)
                first.push_back(bytes);
            EXPECT_EQ(bytes, first[std::size_t(i)]) << options.join(' ').toStdString();
        }
    }
    const Said quiet = folder.run(QStringList{"--quiet", "--strength", "0", "--overwrite"} + photographs.mid(0, 2));
    EXPECT_EQ(quiet.code, 0);
    EXPECT_EQ(quiet.out + quiet.err, "");
}

TEST_F(Veilaway, TheJsonIsAsItsSchemaSays)
{
    QFile file(DOCS "/veilaway-json.schema.json");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject schema = QJsonDocument::fromJson(file.readAll()).object(), properties = schema["properties"].toObject();
    const auto typeOf = [](const QJsonValue &value) -> QString {
        return value.isBool()                                            ? "boolean"
               : value.isNull()                                          ? "null"
               : value.isString()                                        ? "string"
               : value.isDouble() && value.toDouble() == value.toInt(-1) ? "integer"
                                                                         : "number";
    };
    folder.photograph("a.png");
    folder.photograph("nan.tif", 60, 40, VImage::Rgb, 32);
    folder.spoil("nan.tif");
    const QString run = "\"$V\" a.png nan.tif missing.png \"$(printf 'odd\\377.png')\" --json -s ";
    QSet<QString> seen, statuses;
    for (const char *options : {"60 -n", "60", "auto --skip-existing", "auto"})
        for (const QJsonObject &object : folder.shell(run + options).objects()) {
            for (const QJsonValue &required : schema["required"].toArray())
                EXPECT_TRUE(object.contains(required.toString())) << required.toString();
            for (auto member = object.begin(); member != object.end(); ++member) {
                const QJsonObject property = properties[member.key()].toObject();
                const QJsonArray types = property["type"].isArray() ? property["type"].toArray() : QJsonArray{property["type"]};
                const QString type = typeOf(member.value());
                EXPECT_TRUE(types.contains(type) || (type == "integer" && types.contains("number")))
                    << member.key() << ' ' << type;
                EXPECT_TRUE(!property.contains("enum") || property["enum"].toArray().contains(member.value())) << member.key();
                seen.insert(member.key());
            }
            statuses.insert(object["status"].toString());
        }
    EXPECT_EQ(seen.size(), properties.size());
    EXPECT_EQ(statuses, QSet<QString>({"planned", "done", "unchanged", "skipped", "failed"}));
}

TEST_F(Veilaway, ReportsAPhotographThatCameBackUnchanged)
{
    folder.photograph("good.png");
    for (const char *name : {"nan.tif", "nan.exr"}) {
        folder.photograph(name, 60, 40, VImage::Rgb, 32);
        folder.spoil(name);
    }
    folder.photograph("tall.png", 1, 100001, VImage::Grey);
    folder.photograph("wide.png", 250000, 2, VImage::Grey); // shown to the engine with rows for columns
    const QStringList photographs{"good.png", "nan.tif", "nan.exr", "tall.png", "wide.png"};

    const Said said = folder.run(QStringList{"--json", "--strength", "60"} + photographs);
    EXPECT_EQ(said.code, 0) << said.err;
    EXPECT_EQ(said.out.count('\n'), photographs.size());
    for (const QJsonObject &object : said.objects()) {
        const QString photo = object["photo"].toString(), why = object["unchanged"].toString();
        EXPECT_TRUE(QFile::exists(object["result"].toString())) << photo;
        EXPECT_EQ(object["status"].toString(), photo == "good.png" ? "done" : "unchanged") << photo;
        EXPECT_TRUE(object.contains("unchanged"));
        if (photo == "good.png") {
            EXPECT_TRUE(object["unchanged"].isNull());
            continue;
        }
        const auto source = PhotoLoader::decode(folder.path(photo)), result = PhotoLoader::decode(object["result"].toString());
        const int rowBytes =
            source->image().Width() * source->image().Bitmap()->componentsPerPixel * source->image().BitsPerComponent() / 8;
        for (int y = 0; y < source->image().Height(); ++y)
            ASSERT_EQ(std::memcmp(result->image().PixelAddress(0, y), source->image().PixelAddress(0, y), std::size_t(rowBytes)),
                      0)
                << photo << ' ' << y;
        EXPECT_TRUE(contains(why, photo.startsWith("nan") ? "undefined values" : "100,000 times")) << photo;
        EXPECT_TRUE(contains(said.err, "veilaway: " + photo + ": " + why + '\n'));
    }
    EXPECT_EQ(said.err.count('\n'), 4) << said.err;

    const Said plain = folder.run(QStringList{"--strength", "60", "--overwrite"} + photographs);
    EXPECT_EQ(plain.code, 0);
    EXPECT_TRUE(plain.err.endsWith("\n1 photograph done. 4 came back unchanged.\n")) << plain.err;
    for (const char *style : {"--quiet", "--json"}) {
        const Said quiet = folder.run(QStringList{"--quiet", style, "--strength", "60", "--overwrite"} + photographs);
        EXPECT_EQ(quiet.code, 0);
        EXPECT_EQ(quiet.err, "");
    }
    // At strength 0, nothing has come back unchanged.
    const Said none = folder.run({"nan.tif", "tall.png", "--strength", "0", "--overwrite"});
    EXPECT_EQ(none.code, 0);
    EXPECT_EQ(none.err, "2 photographs done.\n");
    // Black holds no haze, and stays as it is.
    VImage(40, 30, VImage::Rgb, 8, /*clear=*/true).Save(folder.path("black.png"), "png", -1, QString());
    EXPECT_EQ(folder.run({"black.png", "--strength", "80"}).code, 0);
    EXPECT_EQ(folder.content("black_dehazed.png"), folder.content("black.png"));
}

TEST_F(Veilaway, SettingsMakeABatchRepeatable)
{
    QDir(folder.path(".")).mkdir("sub");
    folder.photograph("a.png");
    folder.photograph("sub/b.png");
    EXPECT_EQ(folder.run({"a.png", "sub/b.png", "--strength", "30", "--settings", "s.xml"}).code, 0);
    const QByteArray written = folder.content("s.xml");
    EXPECT_EQ(entries(), (QStringList{"a.png 30 ", "sub/b.png 30 "}));

    // One photograph again: its entry changes, the other one and a comment of the user stay.
    folder.write("s.xml", QByteArray(written).replace("<photo", "<!--mine--><photo"));
    EXPECT_EQ(folder.run({"a.png", "--strength", "0", "--settings", "s.xml", "--overwrite"}).code, 0);
    EXPECT_TRUE(contains(folder.content("s.xml"), "<!--mine-->"));

    const Said repeated = folder.run({"--settings", "s.xml", "--overwrite", "--json"});
    EXPECT_EQ(repeated.code, 0) << repeated.err;
    EXPECT_FALSE(repeated.err.contains("--strength")); // each has its own
    for (const QJsonObject &object : repeated.objects())
        EXPECT_EQ(object["strength"].toInt(), object["photo"].toString().endsWith("a.png") ? 0 : 30);
    // Moved as a whole, it still finds its photographs.
    QDir(folder.path(".")).mkdir("moved");
    for (const char *name : {"a.png", "s.xml", "sub"})
        ASSERT_TRUE(QFile::rename(folder.path(name), folder.path("moved/") + name));
    EXPECT_EQ(folder.run({"--settings", "moved/s.xml", "--overwrite"}).code, 0);
    EXPECT_TRUE(QFile::exists(folder.path("moved/a_dehazed.png")));
}

TEST_F(Veilaway, ResultsAmongThePhotographsAreLeftOutAndRemovedFromTheSettings)
{
    const QStringList photographs{"a.png", "B.JPG", "c.dng", "plain"};
    folder.photograph("a.png");
    folder.photograph("B.JPG");
    folder.raw("c.dng");
    folder.photograph("plain.png");
    QFile::rename(folder.path("plain.png"), folder.path("plain"));
    const QByteArray entry = "<photo path='%1'><Veilaway hazeRemove='9'/></photo>";
    const QStringList recorded = QStringList(photographs).replaceInStrings(QRegularExpression("$"), " 0 ");
    QStringList all = photographs;
    for (const char *language : {"en", "de", "zh_TW"}) {
        SCOPED_TRACE(language);
        // Each row begins with the results of those before it, in another language.
        const QStringList options{"--settings", "s.xml", "--language", language};
        const Said first = folder.run(all + options + QStringList{"--strength", "0"});
        EXPECT_EQ(first.code, 0) << first.err;
        EXPECT_EQ(entries(), recorded);
        all = folder.files();
        all.removeOne("s.xml");
        const QStringList before = folder.files();

        const Said again = folder.run(all + options + QStringList{"--json"});
        EXPECT_EQ(again.out.count('\n'), photographs.size()) << again.out;
        EXPECT_EQ(again.out.count("--overwrite"), photographs.size()) << "for each photograph its result";
        EXPECT_EQ(again.err.count('\n'), photographs.size() + 1) << again.err;
        EXPECT_EQ(entries(), recorded);
        EXPECT_EQ(folder.files(), before);

        // A file as an earlier version left it, with a result that no longer exists.
        QByteArray spoilt = folder.content("s.xml");
        for (const QString &name : all)
            if (!photographs.contains(name))
                spoilt.replace("</veilaway>", QByteArray(entry).replace("%1", name.toUtf8()) + "</veilaway>");
        folder.write("s.xml", spoilt.replace("</veilaway>", QByteArray(entry).replace("%1", "a_sinbruma.png") + "</veilaway>"));
        const Said mended = folder.run(options + QStringList{"--overwrite"});
        EXPECT_EQ(mended.code, 0) << mended.err;
        EXPECT_EQ(entries(), recorded);
        EXPECT_EQ(folder.files(), before);
    }
    // Without its source, a result is a photograph like any other.
    EXPECT_EQ(folder.run({"a_dehazed.png", "B.JPG", "--strength", "0", "--overwrite"}).code, 0);
    EXPECT_TRUE(folder.files().contains("a_dehazed_dehazed.png"));
}

TEST_F(Veilaway, StrengthFallsBackToTheStoredDefaultAndThenTo70)
{
    folder.photograph("a.png");
    const struct
    {
        const char *set, *stored, *said;
        int used;
        bool automatic;
    } cases[] = {
        {"", "", "no default stored: using 70", 70, false},
        {"", "25", "default of 25", 25, false},
        {"auto", "", "the automatic strength", 80, true},
        {"0", "", "default of 0", 0, false},
        {"", "150", "using 70", 70, false},
        {"auto", "30", "the automatic strength", 80, true},
        {"none", "", "no default stored: using 70", 70, false},
    };
    for (const auto &[set, stored, said, used, automatic] : cases) {
        if (*set) {
            const Said answer = folder.run({"--set-default", set});
            EXPECT_EQ(answer.code, 0) << answer.err;
            EXPECT_NE(answer.out, "") << set;
        }
        if (*stored) // as the window's page does
            QSettings(folder.path("config/Ombre/veilaway.ini"), QSettings::IniFormat)
                .setValue(QString(kProcessGuid) + "/hazeRemove", QString(stored));
        const Said answer = folder.run({"a.png", "--json", "--overwrite"});
        EXPECT_EQ(answer.code, 0) << answer.err;
        EXPECT_TRUE(contains(answer.err, said));
        const QJsonObject object = answer.objects().at(0);
        EXPECT_EQ(object["strength"].toInt(), used) << set << stored;
        EXPECT_EQ(object["automatic"].toBool(), automatic) << set << stored;
    }
    folder.write("file", "");
    const Said full = folder.run({"--set-default", "40"}, {"XDG_CONFIG_HOME=" + folder.path("file")});
    EXPECT_EQ(full.code, 1);
    EXPECT_TRUE(contains(full.err, "can't be stored in"));
}

TEST_F(Veilaway, TheAutomaticStrengthIsTheSameForAPhotographInEveryRun)
{
    // A bright photograph, the same darkened, one that the engine can't take the haze from, and a wide one.
    folder.photograph("bright.png", 60, 40, VImage::Rgb, 16);
    const auto photo = PhotoLoader::decode(folder.path("bright.png"));
    for (int y = 0; y < 40; ++y)
        for (int i = 0; i < 60 * 3; ++i)
            reinterpret_cast<std::uint16_t *>(photo->image().PixelAddress(0, y))[i] /= 2;
    photo->image().Save(folder.path("dark.png"), "png", -1, QString());
    VImage none(8, 8, VImage::Rgb, 32);
    for (int y = 0; y < 8; ++y)
        for (int i = 0; i < 24; ++i)
            reinterpret_cast<float *>(none.PixelAddress(0, y))[i] = std::numeric_limits<float>::quiet_NaN();
    none.Save(folder.path("none.tif"), "tiff", -1, QString());
    folder.photograph("wide.png", 21475, 13);
    folder.raw("raw.dng");
    const QStringList photographs{"bright.png", "dark.png", "none.tif", "wide.png", "raw.dng"};
    std::map<QString, int> strengths;
    for (const QStringList &options : {QStringList{"--jobs", "1"}, {"--jobs", "3", "--share-services"}}) {
        const Said answer = folder.run(photographs + options + QStringList{"--strength", "auto", "--json", "--overwrite"});
        EXPECT_EQ(answer.code, 0) << answer.err;
        for (const QJsonObject &object : answer.objects()) {
            const auto [entry, fresh] = strengths.emplace(object["photo"].toString(), object["strength"].toInt());
            EXPECT_EQ(object["strength"].toInt(), entry->second) << entry->first;
            EXPECT_TRUE(object["automatic"].toBool()) << entry->first;
        }
    }
    EXPECT_EQ(strengths["bright.png"], 80);
    EXPECT_EQ(strengths["dark.png"], 50);
    EXPECT_EQ(strengths["none.tif"], 70);
    EXPECT_EQ(strengths["wide.png"], 80);

    // Each result is what its number makes.
    for (const auto &[name, strength] : strengths) {
        const QString result = name.section('.', 0, 0) + "_dehazed." + (name == "raw.dng" ? "tiff" : name.section('.', 1));
        const QByteArray automatic = folder.content(result);
        EXPECT_EQ(folder.run({name, "--strength", QString::number(strength), "--overwrite"}).code, 0);
        EXPECT_EQ(folder.content(result), automatic) << name;
    }
}

TEST_F(Veilaway, SettingsKeepTheAutomaticNumberAndThatItWasChosen)
{
    folder.photograph("a.png");
    folder.photograph("b.png");
    folder.write("b_dehazed.png", "older");
    const struct
    {
        QStringList arguments;
        const char *photo; // the automatic ones among these
        QString kept;
    } cases[] = {
        {{"a.png", "b.png", "--strength", "auto"}, "a.png", "a.png 80 auto"}, // the other was refused before a number was chosen
        {{"a.png", "b.png", "--strength", "auto", "--overwrite"}, "a.pngb.png", "a.png 80 auto\nb.png 80 auto"},
        {{"--overwrite"}, "", "a.png 80 auto\nb.png 80 auto"}, // the same numbers again
        {{"a.png", "--strength", "80", "--overwrite"}, "", "a.png 80 \nb.png 80 auto"},
    };
    for (const auto &[arguments, photo, kept] : cases) {
        const Said answer = folder.run(arguments + QStringList{"--settings", "s.xml", "--json", "--jobs", "1"});
        EXPECT_EQ(entries().join('\n'), kept) << answer.err;
        QString automatic;
        for (const QJsonObject &object : answer.objects())
            if (object["automatic"].toBool() && object["status"] == "done")
                automatic += object["photo"].toString();
        EXPECT_EQ(automatic, photo) << answer.out;
    }
}

TEST_F(Veilaway, TheTagFollowsTheLanguage)
{
    folder.photograph("a.png");
    const struct
    {
        QStringList options, environment;
        QString result;
    } cases[] = {
        {{"--language", "de"}, {}, "a_entnebelt.png"},
        {{"--language", "ru"}, {}, QStringLiteral("a_удалена атмосферная дымка.png")},
        {{"--language", "zh-HK"}, {}, QStringLiteral("a_去除糢糊.png")},
        {{}, {"LC_ALL=es_ES.UTF-8"}, "a_sinbruma.png"},
        {{"--language", "en"}, {"LC_ALL=es_ES.UTF-8"}, "a_dehazed.png"},
        {{}, {"LC_ALL=xx_XX"}, "a_dehazed.png"},
    };
    for (const auto &[options, environment, result] : cases) {
        QFile::remove(folder.path("a_dehazed.png"));
        const Said answer = folder.run(QStringList{"a.png", "--strength", "0"} + options, environment);
        EXPECT_EQ(answer.code, 0) << answer.err;
        EXPECT_TRUE(QFile::exists(folder.path(result))) << result;
        EXPECT_TRUE(contains(answer.out, result));
        // The name is known before the work.
        EXPECT_EQ(folder.run(QStringList{"a.png", "--strength", "0"} + options, environment).code, 1) << result;
    }
}

TEST_F(Veilaway, MetadataGoesFromThePhotographIntoTheResult)
{
    const std::string packet =
        "<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?><x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF "
        "xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'><rdf:Description rdf:about='' "
        "xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmp:Rating='4'/></rdf:RDF></x:xmpmeta><?xpacket end='w'?>";
    const auto read = [this](const QString &name) {
        auto image = Exiv2::ImageFactory::open(QFile::encodeName(folder.path(name)).toStdString());
        image->readMetadata();
        return image;
    };
    for (const QString name : {"a.jpg", "a.png", "a.tif"}) {
        folder.photograph(name, 40, 24);
        {
            const auto image = read(name);
            image->exifData()["Exif.Image.Orientation"] = uint16_t(6);
            image->setXmpPacket(packet);
            image->writeXmpFromPacket(true);
            image->writeMetadata();
        }
        const Said answer = folder.run({name, "--strength", "0"});
        EXPECT_EQ(answer.code, 0) << answer.err;
        EXPECT_EQ(answer.err, "");
        const QString result = QString(name).replace('.', "_dehazed.");
        const auto image = read(result);
        EXPECT_EQ(image->exifData()["Exif.Image.Orientation"].toString(), "6") << name;
        EXPECT_EQ(image->xmpData()["Xmp.xmp.Rating"].toString(), "4") << name;
        if (name != "a.tif") { // the library rewrites the packet of a TIFF
            EXPECT_TRUE(folder.content(result).contains(packet.c_str())) << name;
        }
        EXPECT_EQ(PhotoLoader::decode(folder.path(result))->image().Width(), 40) << name; // not turned
    }
    EXPECT_EQ(folder.files().size(), 6);
}

TEST_F(Veilaway, CameraRawAndUnknownSuffixesBecomeTiff)
{
    folder.raw("shot.dng");
    folder.raw("shot2.xyz");
    folder.photograph("plain.jpg");
    QFile::rename(folder.path("plain.jpg"), folder.path("plain"));
    const Said answer = folder.run({"shot.dng", "shot2.xyz", "plain", "--strength", "60"});
    EXPECT_EQ(answer.code, 0) << answer.err;
    EXPECT_TRUE(contains(answer.err, "plain: It has no suffix, so the result is a TIFF."));
    for (const auto &[name, width, bits] : {std::tuple("shot_dehazed.tiff", 64, 16), std::tuple("shot2_dehazed.tiff", 64, 16),
                                            std::tuple("plain_dehazed.tiff", 48, 8)}) {
        const auto photo = PhotoLoader::decode(folder.path(name));
        EXPECT_EQ(photo->image().Type(), VImage::Rgb) << name;
        EXPECT_EQ(photo->image().BitsPerComponent(), bits) << name;
        EXPECT_EQ(photo->image().Width(), width) << name; // lies on its side, as stored
        EXPECT_GT(folder.contrast(name), 0.3) << name;
    }
    auto image = Exiv2::ImageFactory::open(QFile::encodeName(folder.path("shot_dehazed.tiff")).toStdString());
    image->readMetadata();
    EXPECT_EQ(image->exifData()["Exif.Image.Orientation"].toString(), "6");
    EXPECT_EQ(image->exifData()["Exif.Image.Model"].toString(), "One");
    EXPECT_EQ(image->pixelHeight(), 48);

    folder.write("cut.dng", folder.content("shot.dng").left(100));
    const Said cut = folder.run({"cut.dng", "--strength", "60"});
    EXPECT_EQ(cut.code, 1);
    EXPECT_TRUE(contains(cut.err, "cut.dng: The camera raw file"));
}

TEST_F(Veilaway, InterruptedItKeepsOnlyCompleteResults)
{
    QStringList photographs;
    for (int i = 0; i < 60; ++i) {
        photographs << QString("p%1.png").arg(i, 2, 10, QChar('0'));
        folder.photograph(photographs.last());
    }
    const QStringList before = folder.files();
    // The signal is sent when the first line is there, so at least one result is; sixty take far longer than that.
    const auto process = folder.launch(QStringList{"--strength", "50", "--jobs", "2"} + photographs);
    ASSERT_TRUE(process->waitForReadyRead(60000));
    kill(pid_t(process->processId()), SIGTERM);
    ASSERT_TRUE(process->waitForFinished(60000));
    EXPECT_EQ(process->exitStatus(), QProcess::CrashExit) << "a shell's loop would go on";
    EXPECT_EQ(process->exitCode(), SIGTERM);
    const QString said = process->readAllStandardError();
    EXPECT_TRUE(contains(said, "veilaway: Stopping; finishing the file being saved. "));
    const QRegularExpressionMatch notBegun = QRegularExpression(" (\\d+) not started.\n").match(said);
    int results = 0;
    for (const QString &name : folder.files())
        if (!before.contains(name)) {
            ++results;
            EXPECT_TRUE(name.startsWith('p') && name.endsWith(".png")) << name;
            EXPECT_NO_THROW(PhotoLoader::decode(folder.path(name))) << name;
        }
    EXPECT_GE(results, 1);
    EXPECT_EQ(results + said.count("veilaway: p") + notBegun.captured(1).toInt(), 60) << said;
    EXPECT_LE(said.count("veilaway: p"), 2) << said;
}

TEST_F(Veilaway, ReportsThatStandardOutputCanNotBeWritten)
{
    folder.photograph("a.png");
    for (const char *arguments :
         {"a.png --strength 0 --overwrite", "a.png --strength 0 --overwrite --json", "--help", "--version"})
        for (const char *output : {">/dev/full", ">&-"}) {
            const Said answer = folder.shell(QStringLiteral("\"$V\" %1 %2").arg(arguments, output));
            EXPECT_EQ(answer.code, 1) << arguments << output;
            EXPECT_TRUE(contains(answer.err, "Writing to standard output failed: ")) << arguments << output;
        }
    EXPECT_EQ(folder.shell("\"$V\" a.png --strength 0 --overwrite --quiet >&-").code, 0) << "nothing was to be said";
    EXPECT_NO_THROW(PhotoLoader::decode(folder.path("a_dehazed.png")));
}

TEST_F(Veilaway, ATerminalShowsTheTotalAndWhatIsInWorkWithinItsWidth)
{
    if (!QFile::exists("/usr/bin/script"))
        GTEST_SKIP() << "no terminal to be had: script(1) is missing";
    for (const char *name : {"a.png", "b\x1b.png", "a very long name that no narrow terminal holds.png"})
        folder.photograph(name);
    const QString run =
        "script -qec 'stty cols 40; %1 \"$V\" --strength 50 --overwrite -j 2 *.png missing.png' /dev/null </dev/null";
    const Said coloured = folder.shell(run.arg("TERM=xterm")), plain = folder.shell(run.arg("TERM=xterm NO_COLOR=1")),
               dumb = folder.shell(run.arg("TERM=dumb"));
    EXPECT_EQ(plain.code, 1) << plain.out;
    for (const char *part : {"] 1 of 4", "removing haze: ", "reading a", "ds.png", "a.png -> a_dehazed.png (", "b?_dehazed.png",
                             "3 photographs done. 1 failed.\r\n", "veilaway: missing.png: "})
        EXPECT_TRUE(contains(plain.out, part));
    EXPECT_TRUE(contains(coloured.out, "\x1b[31mveilaway:\x1b[0m missing.png: "));
    EXPECT_FALSE(dumb.out.contains('\x1b')) << dumb.out;
    for (const QString &line : plain.out.split("\r\n"))
        if (line.contains("] ") || line.contains(QRegularExpression("reading|removing haze|saving"))) {
            EXPECT_LT(QString(line).remove(QRegularExpression("\r|\x1b\\[[0-9]*[A-Z]")).size(), 40) << line;
        }
}
