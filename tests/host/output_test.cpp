// Where results go, over a real folder tree: what was there before and is there afterwards, whatever the options, and whenever
// the program is killed.

#include <algorithm>
#include <climits>
#include <map>
#include <random>

#include <sys/stat.h>

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <exiv2/exiv2.hpp>
#include <gmock/gmock.h>

#include "PhotoLoader.h"
#include "PhotoTest.h"

namespace {

/// Everything in a folder, hidden or not: path and content, folders with a slash.
using Tree = std::map<QString, QByteArray>;

class Outputs : public PhotoTest
{
protected:
    Outputs()
    {
        for (const char *place : {"tree/sub/deep", "tree/odd $(x) \"quoted\"", "tree/.hidden", "tree/empty"})
            QDir().mkpath(folder.path(place));
        folder.photograph("tree/a.png", 40, 30, VImage::Rgba, 16);
        folder.photograph("tree/sub/B.JPG", 40, 30);
        folder.photograph("tree/sub/deep/c.tif", 40, 30, VImage::Rgb, 16);
        folder.photograph("tree/odd $(x) \"quoted\"/\u96fe e\u0301.hdr", 40, 30, VImage::Rgb, 32);
        folder.photograph("tree/.hidden/h.png", 40, 30);
        folder.write("tree/sub/notes.txt", "no photograph");
        QFile::link("..", folder.path("tree/sub/up"));
        const auto file = Exiv2::ImageFactory::open(QFile::encodeName(folder.path("tree/sub/B.JPG")).toStdString());
        file->readMetadata();
        file->xmpData()["Xmp.xmp.Rating"] = "4";
        file->writeMetadata();
    }

    Tree tree(const QString &root = "tree") const
    {
        Tree all;
        const QDir::Filters filters = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        for (QDirIterator entry(folder.path(root), filters, QDirIterator::Subdirectories); entry.hasNext();) {
            entry.next();
            const QString name = QDir(folder.path(root)).relativeFilePath(entry.filePath());
            const bool isFolder = entry.fileInfo().isDir() && !entry.fileInfo().isSymLink();
            all[isFolder ? name + '/' : name] = isFolder ? QByteArray() : folder.content(root + '/' + name);
        }
        return all;
    }
    /// What has been added, or changed (marked by a star), or removed (by a minus).
    static QStringList changes(const Tree &before, const Tree &after)
    {
        QStringList all;
        for (const auto &[name, content] : after)
            if (const auto old = before.find(name); old == before.end() || old->second != content)
                all << (old == before.end() ? name : '*' + name);
        for (const auto &[name, content] : before)
            if (!after.count(name))
                all << '-' + name;
        all.sort();
        return all;
    }
};

} // namespace

TEST_F(Outputs, EveryWayOverAFolderTree)
{
    const QString odd = "odd $(x) \"quoted\"/", fog = odd + "\u96fe e\u0301_dehazed.hdr";
    const struct
    {
        const char *prepare;
        QString run; // the program, at strength 0
        int code;
        QStringList changed;
        const char *said; // on standard error
    } rows[] = {
        // Folders, with and without those inside
        {"", "$V .", 0, {"a_dehazed.png"}, ""},
        {"", "$V -r . -q", 0, {"a_dehazed.png", "sub/B_dehazed.jpg", "sub/deep/c_dehazed.tif", fog}, ""},
        {"$V -r . -q", "$V -r . --overwrite", 0, {}, "Left out 4 files"},
        {"", "$V empty a.png", 1, {"a_dehazed.png"}, "empty: There are no photographs in this folder"},
        {"", "$V ./empty -r", 1, {}, "or those inside it"},
        // Results elsewhere, with their names, their places and another tag
        {"",
         "$V -r . -o out",
         0,
         {"out/", "out/a_dehazed.png", "out/" + odd, "out/" + fog, "out/sub/", "out/sub/B_dehazed.jpg", "out/sub/deep/",
          "out/sub/deep/c_dehazed.tif"},
         "4 photographs done"},
        {"$V -r . -o out -q", "$V -r . -o out --overwrite", 0, {}, "Left out 4 files"},
        {"cp a.png a_entnebelt-2.png", "$V .", 0, {"a_dehazed.png"}, "Left out \"./a_entnebelt-2.png\""},
        {"$V -r . -o out -q --tag ''", "$V -r . -o out --tag '' --skip-existing", 0, {}, "0 photographs done. 4 skipped."},
        {"",
         "$V -r sub a.png -o out --tag '' --language de",
         0,
         {"out/", "out/B.jpg", "out/a.png", "out/deep/", "out/deep/c.tif"},
         ""},
        {"", "$V a.png --tag .x", 0, {"a.x.png"}, ""},
        {"", "$V a.png --tag ''", 1, {}, "is the same file as the photograph"},
        {"", "$V a.png -o . --tag ''", 1, {}, "is the same file as the photograph"},
        // Files, in a format that holds the samples
        {"", "$V a.png -o new/name.TIF", 0, {"new/", "new/name.TIF"}, ""},
        {"", "$V sub/B.JPG -o x.png", 0, {"x.png"}, ""},
        {"", "$V sub/deep/c.tif -o new/x.jpg", 1, {}, "16 bits per channel don't fit"},
        {"", "$V '" + QString(fog).remove("_dehazed") + "' -o x.exr", 0, {"x.exr"}, ""},
        {"", "$V sub/deep/c.tif -o new/x.jpg -n", 1, {}, "16 bits per channel don't fit"},
        {"", "$V a.png sub -o x.png", 2, {}, "there are 2 photographs"},
        {"", "$V a.png -o sub/notes.txt", 2, {}, "is not a folder"},
        {"", "$V a.png -o sub/notes.txt/x", 1, {}, "notes.txt\" is not a folder"},
        // Results that exist, older, newer and at another strength
        {"mkdir out; echo old >out/a_dehazed.png", "$V a.png -o out", 1, {}, "Add --overwrite"},
        {"mkdir out; echo old >out/a_dehazed.png", "$V a.png -o out --skip-existing", 0, {}, "1 skipped"},
        {"mkdir out; echo old >out/a_dehazed.png", "$V a.png -o out --overwrite", 0, {"*out/a_dehazed.png"}, ""},
        {"mkdir out; echo old >out/a_dehazed.png", "$V a.png -o out --newer", 0, {}, "1 skipped"},
        {"mkdir out; echo old >out/a_dehazed.png; touch -d 2001-01-01 out/a_dehazed.png",
         "$V a.png -o out --newer",
         0,
         {"*out/a_dehazed.png"},
         ""},
        {"$V a.png -q --settings s.xml", "$V --settings s.xml --newer", 0, {}, "1 skipped"},
        {"$V a.png -q --settings s.xml", "$V --settings s.xml -s 70 --newer", 0, {"*a_dehazed.png", "*s.xml"}, ""},
        {"$V a.png -q --settings s.xml; sed -i '/<Vei/s/0/70/' s.xml",
         "$PROGRAM --settings s.xml --newer",
         0,
         {"*a_dehazed.png", "*s.xml"},
         ""},
        {"mkdir kept out; echo old >kept/file; ln -s ../kept/file out/a_dehazed.png",
         "$V a.png -o out --overwrite",
         0,
         {"*kept/file", "*out/a_dehazed.png"},
         ""},
        {"mkdir out; ln -s /dev/null out/a_dehazed.png", "$V a.png -o out --overwrite -n", 1, {}, "not a regular file"},
        {"touch -d '2001-01-01 0:00:01.5' a.png; $V a.png -q --keep-time; touch -d 2001-01-01 a_dehazed.png", // as on a memory
                                                                                                              // card
         "$V a.png --keep-time --newer",
         0,
         {},
         "1 skipped"},
        {"mkdir -p out/a_dehazed.png", "$V a.png -o out --overwrite", 1, {}, "is a folder"},
        // Nothing but words
        {"", "$V -r . -o out -n", 0, {}, "would be done"},
        {"echo >bad.png; echo old >a_dehazed.png", "$V . -n", 1, {}, "2 failed"},
        // Lists, and photographs named twice
        {"printf 'a.png\\r\\nsub\\n\\n./a.png\\n' >list", "$V @list -q", 0, {"a_dehazed.png", "sub/B_dehazed.jpg"}, ""},
        {"", "find . -name '*.hdr' -print0 | $V a.png -0 - a.png", 0, {"a_dehazed.png", fog}, "2 photographs done"},
        {"", "printf 'a.png\\0' | $V -", 2, {}, "Add --null (-0)"},
        {"", "echo a.png | $V -0 -", 2, {}, "Leave out --null (-0)"},
        {"", "$V - -q </dev/null && $V - </dev/null", 0, {}, "names no photographs"},
        {"cp a.png ./-a.png", "$V -a.png", 2, {}, "Write \"./-a.png\""},
        {"cp a.png @a.png; cp a.png ./-", "$V -q ./@a.png -- -", 0, {"-_dehazed.tiff", "@a_dehazed.png"}, ""},
        // What killed runs left
        {"mkdir -p out/.veilaway-run-1/ .veilaway-run-2; echo >out/.veilaway-run-1/lock; echo >out/.veilaway-run-1/photo.png",
         "$V a.png -q -o out; $V a.png -q",
         0,
         {"-.veilaway-run-2/", "-out/.veilaway-run-1/", "-out/.veilaway-run-1/lock", "-out/.veilaway-run-1/photo.png",
          "a_dehazed.png", "out/a_dehazed.png"},
         ""},
        // Time
        {"touch -d 2001-01-01 a.png",
         "$V a.png -q -o out --keep-time; [ $(stat -c %Y out/a_dehazed.png) = $(stat -c %Y a.png) ]",
         0,
         {"out/", "out/a_dehazed.png"},
         ""},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.run);
        folder.shell("cp -a tree row");
        // By a name without blanks, whatever the build's folder is called.
        const QString start = "ln -sfn \"$V\" program; PROGRAM=$PWD/program; V=\"$PROGRAM -s 0\"; cd row; ";
        folder.shell(start + row.prepare);
        const Tree before = tree("row");
        const Said said = folder.shell(start + row.run);
        EXPECT_EQ(said.code, row.code) << said.err;
        EXPECT_TRUE(said.err.contains(row.said)) << said.err;
        QStringList wanted = row.changed;
        wanted.sort();
        EXPECT_EQ(changes(before, tree("row")), wanted);
        QDir(folder.path("row")).removeRecursively();
    }
}

TEST_F(Outputs, TheSamePixelsAndMetadataAsBesideThePhotograph)
{
    const QStringList photographs{"tree/a.png", "tree/sub/B.JPG", "tree/sub/deep/c.tif"};
    ASSERT_EQ(folder.run(QStringList{"-s", "80"} + photographs).code, 0);
    // On another file system, where there is one.
    struct stat here, there;
    QTemporaryDir shared("/dev/shm/veilaway-XXXXXX");
    const bool other = shared.isValid() && stat(QFile::encodeName(folder.path("")).constData(), &here) == 0 &&
                       stat("/dev/shm", &there) == 0 && here.st_dev != there.st_dev;
    if (!other)
        std::puts("/dev/shm is not another file system here: not tested");
    for (const QString &output : {folder.path("out"), shared.path()}) {
        const Said said = folder.run(QStringList{"-s", "80", "-o", output} + photographs);
        EXPECT_EQ(said.code, 0) << said.err;
        for (const auto &[beside, name] : {std::pair("tree/a_dehazed.png", "a_dehazed.png"),
                                           {"tree/sub/B_dehazed.jpg", "B_dehazed.jpg"},
                                           {"tree/sub/deep/c_dehazed.tif", "c_dehazed.tif"}}) {
            QFile file(output + '/' + name);
            EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll() == folder.content(beside)) << file.fileName();
        }
    }
    // In another format: the same samples, from lossless to lossless.
    ASSERT_EQ(folder.run({"-s", "80", "tree/a.png", "-o", "out/a.tiff"}).code, 0);
    const auto png = PhotoLoader::decode(folder.path("tree/a_dehazed.png")),
               tiff = PhotoLoader::decode(folder.path("out/a.tiff"));
    for (int y = 0; y < 30; ++y)
        ASSERT_EQ(std::memcmp(png->image().PixelAddress(0, y), tiff->image().PixelAddress(0, y), 40 * 8), 0) << y;
}

TEST_F(Outputs, KilledAtAnyMomentABatchLeavesWholeResultsAndTheNextOneCleansUp)
{
    const QStringList run{"-s", "0", "-r", "tree", "-o", "out", "-j", "2", "-q"};
    const Tree sources = tree();
    int wholeRun = INT_MAX; // milliseconds; the first run also waits for the disk
    for (int round = 0; round < 2; ++round) {
        QDir(folder.path("out")).removeRecursively();
        QElapsedTimer timer;
        timer.start();
        ASSERT_EQ(folder.run(run).code, 0);
        wholeRun = std::min(wholeRun, int(timer.elapsed()));
    }
    const Tree whole = tree("out");
    const auto hidden = [](const auto &entry) { return entry.first.contains(QRegularExpression("(^|/)\\.veilaway-run-")); };
    const auto inWork = [&] {
        const Tree now = tree("out");
        return std::any_of(now.begin(), now.end(), hidden);
    };
    constexpr int kKills = 50;
    constexpr unsigned kSeed = 20261123;
    std::mt19937 random(kSeed);
    std::uniform_int_distribution<int> moment(0, wholeRun);
    int killedInWork = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        SCOPED_TRACE(kill);
        QDir(folder.path("out")).removeRecursively();
        const auto process = folder.launch(run);
        // By turns at any moment of a run, and at the first sign of work, however slow the machine is.
        if (kill % 2 == 0)
            process->waitForFinished(moment(random));
        else
            while (!inWork() && !process->waitForFinished(0))
                continue;
        process->kill();
        process->waitForFinished();
        killedInWork += process->exitStatus() == QProcess::CrashExit && inWork();
        for (const auto &entry : tree("out"))
            if (!hidden(entry)) {
                const auto &[name, content] = entry;
                EXPECT_TRUE(whole.count(name) && whole.at(name) == content) << name;
            }
        const Said next = folder.run(QStringList(run) << "--skip-existing");
        EXPECT_EQ(next.code, 0) << next.err;
        EXPECT_EQ(changes(whole, tree("out")), QStringList());
    }
    EXPECT_EQ(changes(sources, tree()), QStringList());
    EXPECT_GT(killedInWork, 0) << "no run was killed in the middle of its work";
}
