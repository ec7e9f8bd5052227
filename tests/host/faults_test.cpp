// What goes wrong around the program: full and write-protected folders, photographs that disappear, a killed program, two at
// once, odd names. In each case the sources are untouched, each result is complete or absent, and nothing else is left.

#include <algorithm>
#include <chrono>
#include <climits>
#include <csignal>
#include <functional>
#include <memory>
#include <vector>

#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <exiv2/exiv2.hpp>
#include <gmock/gmock.h>

#include "BatchPlan.h"
#include "BatchRunner.h"
#include "FileThreadLimit.h"
#include "HostApplication.h"
#include "PhotoLoader.h"
#include "PhotoTest.h"
#include "PluginFile.h"
#include "PrivateFolder.h"
#include "threadCount.h"

namespace {

const QStringList kSuffixes{"jpg", "png", "tif", "hdr", "exr", "psd"};

using Stage = BatchRunner::Stage;

/// A batch in this process, in which things happen at exact moments.
class BatchFaults : public testing::Test, protected BatchRunner::Observer
{
protected:
    /// The outcome of one photograph if `act` happens when this stage begins.
    BatchOutcome outcomeOf(const QString &path, Stage stage, const std::function<void()> &act, bool overwrite = false)
    {
        when = stage;
        happens = act;
        BatchRunner runner(host, plugin.process(), *this);
        runner.run(plan({path}, overwrite), 1);
        return last;
    }
    void stageBegins(int, Stage stage) override
    {
        if (stage == when)
            happens();
    }
    void finished(int, const BatchOutcome &outcome) override { last = outcome; }

    TestFolder folder;
    BatchOutcome last;

    std::vector<BatchItem> plan(const QStringList &paths, bool overwrite)
    {
        BatchPlan::Options options;
        options.existing = overwrite ? Existing::Replace : Existing::Refuse;
        return plan(paths, options);
    }
    std::vector<BatchItem> plan(const QStringList &paths, BatchPlan::Options options)
    {
        options.processName = "Veilaway";
        return BatchPlan::make(paths, host, options);
    }
    /// The outcome of one photograph; `act` happens when it is to be saved.
    BatchOutcome outcomeOf(
        const std::vector<BatchItem> &items, const std::function<void()> &act = [] {}, int jobs = 1)
    {
        when = Stage::Saving;
        happens = act;
        BatchRunner(host, plugin.process(), *this).run(items, jobs);
        return last;
    }

private:
    int argumentCount = 1;
    char programName[5] = "test";
    char *arguments[2] = {programName, nullptr};
    HostedApplication<QCoreApplication> host{argumentCount, arguments, QLocale(QLocale::English), /*lendServices=*/false};
    PluginFile plugin{QString()};
    Stage when = Stage::Reading;
    std::function<void()> happens;
};

/// While it exists, no file may grow beyond this size: to a program, a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit now{bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }

private:
    rlimit before{};
};

} // namespace

TEST_F(BatchFaults, PhotographsThatAreInProgressTogetherShareTheThreads)
{
    folder.photograph("one.jpg");
    folder.photograph("two.jpg");
    const std::int32_t before = threadCount;
    threadCount = 2;
    const int alone = fileThreadCount(); // 1 on a machine with a single processor
    for (const int jobs : {1, 2}) {
        int threads = 0;
        outcomeOf(
            plan({folder.path("one.jpg"), folder.path("two.jpg")}, /*overwrite=*/true),
            [&] { threads = threads == 0 ? fileThreadCount() : threads; }, jobs);
        EXPECT_EQ(threads, jobs == 1 ? alone : 1);
        EXPECT_EQ(fileThreadCount(), alone);
    }
    threadCount = before;
}

TEST_F(BatchFaults, APhotographThatChangesMeanwhile)
{
    const auto bytesOf = [this](const char *suffix) {
        folder.photograph(QStringLiteral("other.") + suffix);
        const QByteArray bytes = folder.content(QStringLiteral("other.") + suffix);
        QFile::remove(folder.path(QStringLiteral("other.") + suffix));
        return bytes;
    };
    const QByteArray jpeg = bytesOf("jpg"), tiff = bytesOf("tif");
    QString path;
    const auto gone = [&] { QFile::remove(path); };
    const auto fill = [&](const QByteArray &bytes) {
        return [&path, gone, bytes] {
            gone();
            QFile file(path);
            file.open(QIODevice::WriteOnly);
            file.write(bytes);
        };
    };
    const char kChanged[] = "changed, moved or deleted";
    const struct
    {
        const char *name, *suffix;
        Stage stage;
        std::function<void()> act;
        const char *said;
    } rows[] = {
        {"deleted", "png", Stage::Dehazing, gone, kChanged},
        {"another type", "png", Stage::Dehazing, fill(jpeg), kChanged},
        {"cut short", "tif", Stage::Dehazing, fill(tiff.left(400)), kChanged},
        {"empty", "jpg", Stage::Dehazing, fill(""), kChanged},
        {"a folder", "tif", Stage::Dehazing, [&] { gone(), QDir().mkdir(path); }, kChanged},
        {"a pipe", "png", Stage::Dehazing, [&] { gone(), mkfifo(QFile::encodeName(path).constData(), 0600); }, kChanged},
        {"deleted sooner", "png", Stage::Reading, gone, "can't be opened"},
        {"another type sooner", "tif", Stage::Reading, fill(jpeg), "known format"},
        {"a pipe sooner", "jpg", Stage::Reading, [&] { gone(), mkfifo(QFile::encodeName(path).constData(), 0600); },
         "can't be opened"},
        {"folder deleted", "png", Stage::Saving, [&] { QDir(QFileInfo(path).path()).removeRecursively(); }, kChanged},
        {"folder renamed", "tif", Stage::Saving, [&] { QDir().rename(QFileInfo(path).path(), QFileInfo(path).path() + "-away"); },
         kChanged},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const QString name = QString(row.name).replace(' ', '_');
        QDir(folder.path(".")).mkdir(name);
        path = folder.path(name + "/photo." + row.suffix);
        folder.photograph(name + "/photo." + row.suffix);
        const BatchOutcome outcome = outcomeOf(path, row.stage, row.act);
        EXPECT_EQ(int(outcome.status), int(BatchOutcome::Status::Failed));
        EXPECT_TRUE(outcome.message.contains(row.said)) << outcome.message;
        for (const QString &place : {name, name + "-away"}) {
            const QStringList left =
                QDir(folder.path(place)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
            EXPECT_TRUE(left.isEmpty() || left == QStringList(QStringLiteral("photo.") + row.suffix)) << left.join(' ');
        }
    }
}

TEST_F(BatchFaults, ADiskThatIsFullWhenTheResultIsWritten)
{
    for (const QString &suffix : kSuffixes)
        for (const bool older : {false, true}) {
            const QString name = QString("photo%1.").arg(older) + suffix,
                          result = QString("photo%1_dehazed.").arg(older) + suffix;
            folder.photograph(name, 90, 60, VImage::Rgb, suffix == "hdr" || suffix == "exr" ? 32 : 8);
            if (older)
                folder.write(result, "older");
            const QByteArray source = folder.content(name);
            const QStringList before = folder.files();
            std::unique_ptr<FullDisk> full;
            const BatchOutcome outcome = outcomeOf(
                folder.path(name), Stage::Saving, [&] { full = std::make_unique<FullDisk>(512); }, /*overwrite=*/true);
            full.reset();
            EXPECT_EQ(int(outcome.status), int(BatchOutcome::Status::Failed)) << result;
            EXPECT_TRUE(outcome.message.contains("Make room")) << outcome.message;
            EXPECT_EQ(folder.files(), before);
            EXPECT_EQ(folder.content(result), older ? "older" : "");
            EXPECT_EQ(folder.content(name), source);
        }
}

TEST_F(BatchFaults, AnotherProgramIsDoneFirst)
{
    const auto other = [this] { folder.write("photo_dehazed.png", "the other's"); };
    folder.photograph("photo.png");
    const BatchOutcome outcome = outcomeOf(folder.path("photo.png"), Stage::Dehazing, other);
    EXPECT_EQ(int(outcome.status), int(BatchOutcome::Status::Failed));
    EXPECT_TRUE(outcome.message.endsWith("already exists. Add --overwrite to replace it.")) << outcome.message;
    EXPECT_EQ(folder.content("photo_dehazed.png"), "the other's");

    // Nor is it lost when this program fails afterwards, even with --overwrite.
    QFile::remove(folder.path("photo_dehazed.png"));
    std::unique_ptr<FullDisk> full;
    const auto otherAndFull = [&] {
        other();
        full = std::make_unique<FullDisk>(64);
    };
    EXPECT_EQ(int(outcomeOf(folder.path("photo.png"), Stage::Saving, otherAndFull, /*overwrite=*/true).status),
              int(BatchOutcome::Status::Failed));
    full.reset();
    EXPECT_EQ(folder.content("photo_dehazed.png"), "the other's");

    EXPECT_EQ(int(outcomeOf(folder.path("photo.png"), Stage::Dehazing, other, /*overwrite=*/true).status),
              int(BatchOutcome::Status::Done));
    EXPECT_GT(folder.content("photo_dehazed.png").size(), 100);
}

TEST_F(BatchFaults, AResultElsewhereIsWholeOrAbsent)
{
    folder.photograph("photo.png");
    ASSERT_EQ(int(outcomeOf(plan({folder.path("photo.png")}, false)).status), int(BatchOutcome::Status::Done));
    const QByteArray whole = folder.content("photo_dehazed.png");
    const auto other = [this] { folder.write("out/sub/photo-x.png", "the other's"); };
    const auto seen = [this] {
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        return QDir(folder.path("out/sub")).entryList(all);
    };
    const auto nothing = [&] { EXPECT_TRUE(seen().size() == 1 && seen()[0].startsWith(".veilaway-run-")) << seen().join(' '); };
    using Status = BatchOutcome::Status;
    const struct
    {
        const char *name;
        Existing existing;
        std::function<void()> act;
        Status status;
        QByteArray left; // null: no folder either
    } rows[] = {
        {"the folder is made", Existing::Refuse, nothing, Status::Done, whole},
        {"made only when needed", Existing::Refuse, [] { throw VException("full", V_LOCATION); }, Status::Failed, {}},
        {"another is first", Existing::Refuse, other, Status::Failed, "the other's"},
        {"another is first, to be skipped", Existing::Skip, other, Status::Skipped, "the other's"},
        {"another is first, to be replaced", Existing::Replace, other, Status::Done, whole},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        QDir(folder.path("out")).removeRecursively();
        BatchPlan::Options options;
        options.output = folder.path("out");
        options.below[folder.path("photo.png")] = "sub";
        options.tag = "-x";
        options.existing = row.existing;
        EXPECT_EQ(int(outcomeOf(plan({folder.path("photo.png")}, options), row.act).status), int(row.status)) << last.message;
        EXPECT_EQ(folder.content("out/sub/photo-x.png"), row.left);
        EXPECT_EQ(seen(), row.left.isNull() ? QStringList() : QStringList("photo-x.png"));
        EXPECT_EQ(QFile::exists(folder.path("out")), !row.left.isNull());
    }
    // A killed run's folder has a lock that no one holds, or none yet; a living run's is left alone.
    const PrivateFolder living(folder.path("out/sub"));
    for (const char *abandoned : {"out/sub/.veilaway-run-abandoned", "out/sub/.veilaway-run-empty"})
        QDir().mkpath(folder.path(abandoned));
    folder.write("out/sub/.veilaway-run-abandoned/lock", "");
    folder.write("out/sub/.veilaway-run-abandoned/photo_dehazed.png", "half");
    BatchPlan::Options options;
    options.output = folder.path("out/sub");
    options.tag = "-x";
    options.existing = Existing::Number;
    EXPECT_EQ(int(outcomeOf(plan({folder.path("photo.png")}, options)).status), int(Status::Done)) << last.message;
    EXPECT_THAT(seen(), testing::UnorderedElementsAre(QFileInfo(living.path()).fileName(), "photo-x.png", "photo-x-2.png"));
    EXPECT_EQ(folder.content("out/sub/photo-x-2.png"), whole);
}

namespace {

class ProgramFaults : public PhotoTest
{
protected:
    /// A photograph with an XMP packet, which the program copies once the result exists.
    void photographWithXmp(const QString &name, int width, int height)
    {
        folder.photograph(name, width, height);
        const auto image = Exiv2::ImageFactory::open(QFile::encodeName(folder.path(name)).toStdString());
        image->readMetadata();
        image->xmpData()["Xmp.xmp.Rating"] = "4";
        image->writeMetadata();
    }
    bool isWhole(const QString &name)
    {
        try {
            return PhotoLoader::decode(folder.path(name)) != nullptr;
        } catch (const VException &) {
            return false;
        }
    }
    /// The script in a private view of the file system, where it may mount; -1 where the system allows none.
    Said inPrivateMounts(const QString &script)
    {
        const QString unshare = geteuid() == 0 ? "unshare -m" : "unshare -rm";
        if (folder.shell(unshare + " mount -t tmpfs none /mnt").code != 0)
            return {-1, QString(), QString()};
        return folder.shell(unshare + " /bin/sh -c '" + script + "'");
    }
};

#define SKIP_WITHOUT_MOUNTS(said)                                                                                                \
    if ((said).code == -1)                                                                                                       \
    GTEST_SKIP() << "no private mounts here (a container without them, or no unshare): not tested"

} // namespace

TEST_F(ProgramFaults, AFileSystemWithoutRoom)
{
    QStringList photographs;
    for (const QString &suffix : kSuffixes) {
        photographs << "p." + suffix;
        folder.photograph(photographs.last(), 200, 150, VImage::Rgb,
                          suffix == "tif"                      ? 16
                          : suffix == "hdr" || suffix == "exr" ? 32
                                                               : 8);
    }
    photographWithXmp("x.tif", 100, 80); // 24 KB
    folder.write("s.xml", "<veilaway/>");
    const Said said = inPrivateMounts("mkdir box; mount -t tmpfs -o size=4m none box; cp *.* box; cd box; "
                                      "cat /dev/zero >full 2>/dev/null; "
                                      "\"$V\" p.* --strength 0; echo =$?; "                          // nothing fits
                                      "\"$V\" ../x.tif --strength 0 --settings s.xml; echo =$?; "    // the settings don't
                                      "truncate -s -36K full; \"$V\" x.tif --strength 0; echo =$?; " // the result does, once
                                      "rm full; mkdir ../left; cp -a . ../left");
    SKIP_WITHOUT_MOUNTS(said);
    EXPECT_EQ(said.out.count("=1\n"), 2) << said.out << said.err;
    EXPECT_TRUE(said.out.endsWith("=0\n")) << said.out;
    for (const QString &photograph : photographs)
        EXPECT_TRUE(said.err.contains(QRegularExpression(
            QStringLiteral("veilaway: %1: [^\n]*Not enough free space on \"[^\n]*box\"[^\n]*\\. Make room[^\n]*\n")
                .arg(photograph))))
            << said.err;
    EXPECT_TRUE(said.err.contains("s.xml\" can't be written")) << said.err;
    EXPECT_TRUE(said.err.contains(
        "x.tif: The result was written, but the photograph's XMP could not be copied into it: No space left on device"))
        << said.err;
    EXPECT_THAT(QDir(folder.path("left")).entryList(QDir::Files | QDir::Hidden),
                testing::UnorderedElementsAreArray(photographs + QStringList{"x.tif", "x_dehazed.tif", "s.xml"}));
    EXPECT_EQ(folder.content("left/s.xml"), "<veilaway/>");
    EXPECT_TRUE(isWhole("left/x_dehazed.tif"));
    for (const QString &photograph : photographs)
        EXPECT_EQ(folder.content("left/" + photograph), folder.content(photograph)) << photograph;
}

TEST_F(ProgramFaults, WriteProtection)
{
    folder.photograph("a.png");
    folder.photograph("b.jpg");
    folder.write("b_dehazed.jpg", "older");
    // A superuser is stopped by a read-only mount only.
    const Said said = inPrivateMounts("mkdir ro; cp a.png ro; mount --bind ro ro; mount -o remount,ro,bind ro; "
                                      "mount --bind b_dehazed.jpg b_dehazed.jpg; mount -o remount,ro,bind b_dehazed.jpg; "
                                      "\"$V\" ro/a.png b.jpg --strength 0 --overwrite; echo =$?; "
                                      "\"$V\" a.png --strength 0 --settings ro/s.xml; echo =$?; "
                                      "\"$V\" a.png -q -s 0 -o ro/new; echo =$?; \"$V\" ro/a.png -q -s 0 -o new; echo =$?");
    SKIP_WITHOUT_MOUNTS(said);
    EXPECT_EQ(said.out, "=1\n=2\n=1\n=0\n") << said.err;
    EXPECT_TRUE(isWhole("new/a_dehazed.png"));
    EXPECT_TRUE(said.err.contains(QRegularExpression("ro/a.png: [^\n]*ro\" is read-only. Choose another one with --output.\n")))
        << said.err;
    EXPECT_TRUE(said.err.contains(QRegularExpression("b.jpg: [^\n]*b_dehazed.jpg\" is write-protected [^\n]*--output.\n")))
        << said.err;
    EXPECT_TRUE(said.err.contains("ro/s.xml\" can't be written: its folder")) << said.err;
    EXPECT_EQ(folder.content("b_dehazed.jpg"), "older");
    EXPECT_THAT(folder.files(), testing::ElementsAre("a.png", "b.jpg", "b_dehazed.jpg"));
}

TEST_F(ProgramFaults, NamesThatAFileSystemMayTakeForOne)
{
    folder.photograph("a.png");
    folder.photograph("A.PNG");
    // Whether an empty file system ignores case cannot be seen; this one does not, as its first file shows.
    const Said said =
        inPrivateMounts("mkdir box; mount -t tmpfs none box; "
                        "\"$V\" A.PNG a.png -s 0 -o box --overwrite; echo =$?; ls -A box; "
                        "\"$V\" A.PNG a.png -q -s 0 -o box --overwrite; echo =$?; ls -A box; umount box; rmdir box");
    SKIP_WITHOUT_MOUNTS(said);
    EXPECT_TRUE(said.out.endsWith("=1\nA_dehazed.png\n=0\nA_dehazed.png\na_dehazed.png\n")) << said.out;
    EXPECT_TRUE(said.err.contains("a.png: Its result") && said.err.contains("would also be the result of \"A.PNG\"")) << said.err;
}

TEST_F(ProgramFaults, APrivateFolderGoesAfterItsLockIsClosed)
{
    // Elsewhere the open file would remain under another name, and keep the folder.
    const int watch = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    int lock = 0;
    {
        const PrivateFolder home(folder.path("."));
        lock = inotify_add_watch(watch, QFile::encodeName(home.filePath("lock")).constData(), IN_CLOSE_WRITE);
        inotify_add_watch(watch, QFile::encodeName(folder.path(".")).constData(), IN_DELETE);
    }
    alignas(inotify_event) char events[4096];
    ASSERT_GT(read(watch, events, sizeof events), 0);
    close(watch);
    EXPECT_EQ(reinterpret_cast<const inotify_event *>(events)->wd, lock);
    EXPECT_EQ(folder.files(), QStringList());
}

TEST_F(ProgramFaults, AResultComesIntoBeingInOneStepAndNothingElseDoes)
{
    photographWithXmp("c.jpg", 40, 30);
    const int watch = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    inotify_add_watch(watch, QFile::encodeName(folder.path(".")).constData(), IN_CREATE | IN_MOVED_TO | IN_MODIFY);
    EXPECT_EQ(folder.run({"c.jpg", "--strength", "0"}).code, 0);
    alignas(inotify_event) char events[1 << 16];
    const ssize_t bytes = read(watch, events, sizeof events);
    close(watch);
    QStringList names;
    for (ssize_t at = 0; at < bytes;) {
        const auto *event = reinterpret_cast<const inotify_event *>(events + at);
        if (const QString name = event->name; !name.startsWith(".veilaway-run-"))
            names << name;
        at += ssize_t(sizeof *event + event->len);
    }
    EXPECT_EQ(names, QStringList("c_dehazed.jpg"));
}

TEST_F(ProgramFaults, KilledAtAnyMoment)
{
    folder.photograph("a.png", 600, 400, VImage::Rgb, 16);
    folder.photograph("b.tif", 400, 300, VImage::Rgb, 32);
    photographWithXmp("c.jpg", 400, 300);
    const QStringList run{"--strength", "0", "--overwrite", "--jobs", "2", "--settings", "s.xml", "a.png", "b.tif", "c.jpg"};
    const std::vector<QString> sources{"a.png", "b.tif", "c.jpg"}, results{"a_dehazed.png", "b_dehazed.tif", "c_dehazed.jpg"};
    qint64 wholeRun = INT_MAX; // milliseconds; the first run also waits for the disk
    for (int round = 0; round < 2; ++round) {
        QElapsedTimer timer;
        timer.start();
        ASSERT_EQ(folder.run(run).code, 0);
        wholeRun = std::min(wholeRun, timer.elapsed());
    }
    std::vector<QByteArray> sourceBytes, resultBytes;
    for (std::size_t i = 0; i < 3; ++i) {
        sourceBytes.push_back(folder.content(sources[i]));
        resultBytes.push_back(folder.content(results[i]));
    }
    const QByteArray settings = folder.content("s.xml");

    constexpr int kSteps = 8;
    int killed = 0;
    for (int step = 0; step < 2 * kSteps; ++step) {
        SCOPED_TRACE(step);
        const bool older = step % 2 == 1;
        QFile::remove(folder.path("s.xml"));
        for (const QString &result : results) {
            QFile::remove(folder.path(result));
            if (older)
                folder.write(result, "older");
        }
        // By turns at a share of the time that a run takes, and right behind one of the last calls that concern the folder.
        const int watch = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
        const auto process = folder.launch(run);
        if (step < kSteps) {
            process->waitForFinished(int(wholeRun * step / kSteps));
        } else {
            inotify_add_watch(watch, QFile::encodeName(folder.path(".")).constData(), IN_CREATE | IN_MOVED_TO | IN_CLOSE_WRITE);
            alignas(inotify_event) char events[4096];
            for (int left = step - kSteps + 1; left > 0 && !process->waitForFinished(0);) {
                const ssize_t size = read(watch, events, sizeof events);
                for (ssize_t at = 0; at < size; --left)
                    at += ssize_t(sizeof(inotify_event) + reinterpret_cast<const inotify_event *>(events + at)->len);
            }
        }
        close(watch);
        process->kill();
        process->waitForFinished();
        killed += process->exitStatus() == QProcess::CrashExit;

        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(folder.content(sources[i]), sourceBytes[i]);
            const QByteArray result = folder.content(results[i]);
            EXPECT_TRUE(result == resultBytes[i] || result == (older ? "older" : "")) << results[i] << ' ' << result.size();
        }
        EXPECT_TRUE(folder.content("s.xml").isEmpty() || folder.content("s.xml") == settings);
        for (const QString &name : folder.files())
            EXPECT_TRUE(name.startsWith("s.xml") || std::count(sources.begin(), sources.end(), name) ||
                        std::count(results.begin(), results.end(), name))
                << name;
    }
    EXPECT_GE(killed, kSteps / 2) << "the runs ended too soon for the test to tell";
    EXPECT_EQ(folder.run(run).code, 0);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(folder.content(results[i]), resultBytes[i]);
    EXPECT_EQ(QDir(folder.path("")).entryList({".veilaway*", ".gfl*"}, QDir::AllEntries | QDir::Hidden), QStringList());
}

TEST_F(ProgramFaults, SettingsThatChangeMeanwhile)
{
    folder.photograph("a.png");
    folder.photograph("b.png");
    const QByteArray entry = "<photo path='%1'><Veilaway hazeRemove='%2'/></photo>";
    const auto settings = [&entry](std::initializer_list<std::pair<const char *, const char *>> photographs) {
        QByteArray text;
        for (const auto &[path, strength] : photographs)
            text += QByteArray(entry).replace("%1", path).replace("%2", strength);
        return "<veilaway>" + text + "</veilaway>";
    };
    folder.write("s.xml", settings({{"a.png", "30"}}));
    const auto process = folder.launch({"--settings", "s.xml", "--jobs", "1", "a.png", "b.png", "--json"});
    ASSERT_TRUE(process->waitForReadyRead(60000)); // one result is there
    folder.write("s.xml", settings({{"a.png", "40"}, {"other.png", "50"}}));
    ASSERT_TRUE(process->waitForFinished(60000));
    EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().toStdString();
    const QByteArray kept = folder.content("s.xml");
    for (const char *part :
         {"<photo path=\"a.png\">\n        <Veilaway hazeRemove=\"40\"/>\n        <result",
          "<photo path=\"b.png\">\n        <Veilaway hazeRemove=\"70\"/>", "\"other.png\"", "path=\"a_dehazed.png\""})
        EXPECT_TRUE(kept.contains(part)) << part << '\n' << kept.toStdString();
    EXPECT_TRUE(QRegularExpression("<result[^>]*hazeRemove=\"30\"").match(kept).hasMatch()) << kept.toStdString();
}

#if !defined(__has_feature)
#    define __has_feature(feature) 0
#endif
#if !__has_feature(address_sanitizer) && !__has_feature(thread_sanitizer) // they need address space without end, and /proc
TEST_F(ProgramFaults, TooLittleMemory)
{
    folder.photograph("a.tif", 300, 200);
    ASSERT_EQ(folder.run({"a.tif", "--strength", "60"}).code, 0);
    const QByteArray whole = folder.content("a_dehazed.tif");
    int failed = 0;
    // From where the run-time of OpenMP gets its threads: without them it ends the process by itself.
    for (int megabytes = 220;; megabytes += 50) {
        QFile::remove(folder.path("a_dehazed.tif"));
        const Said said = folder.shell(QString("ulimit -v %1; \"$V\" a.tif --strength 60 --quiet").arg(megabytes * 1024),
                                       {"OMP_THREAD_LIMIT=2", "MALLOC_ARENA_MAX=1"}); // each thread takes address space
        if (said.code == 0)
            break;
        ++failed;
        ASSERT_TRUE(said.code == 1 &&
                    said.err.contains(QRegularExpression("a.tif: [^\n]*ot enough memory.*Close other programs")))
            << megabytes << ": " << said.code << ' ' << said.err;
        EXPECT_THAT(folder.files(), testing::ElementsAre("a.tif"));
    }
    EXPECT_GT(failed, 1);
    EXPECT_EQ(folder.content("a_dehazed.tif"), whole);
}

TEST_F(ProgramFaults, TooFewThreads)
{
    for (const char *name : {"a.png", "b.png", "c.png"})
        folder.photograph(name);
    // Their stacks take all the address space.
    const Said said = folder.shell("ulimit -s 200000; ulimit -v 500000; \"$V\" ?.png --strength 0 --jobs 3 --quiet",
                                   {"OMP_THREAD_LIMIT=1", "MALLOC_ARENA_MAX=1"});
    EXPECT_EQ(said.code, 0) << said.err;
    EXPECT_EQ(folder.files().size(), 6);
}

TEST_F(ProgramFaults, AFileSystemWhereEveryFileHasAName)
{
    folder.photograph("new.tif", 300, 200);
    folder.photograph("old.tif", 300, 200);
    folder.write("old_dehazed.tif", "older");
    // An unnamed file is given its name through /proc.
    const Said said =
        inPrivateMounts("mount -t tmpfs none /proc; "
                        "rm -f *_dehazed.tif; (ulimit -f 8; $V new.tif --strength 0); echo =$?; ls -A; "
                        "echo older >old_dehazed.tif; $V new.tif old.tif --strength 0 --overwrite --quiet; echo =$?");
    SKIP_WITHOUT_MOUNTS(said);
    EXPECT_EQ(said.out, "=1\nnew.tif\nold.tif\n=0\n") << said.err;
    EXPECT_EQ(folder.files().size(), 4);
    EXPECT_TRUE(isWhole("new_dehazed.tif"));
    EXPECT_EQ(folder.content("old_dehazed.tif"), folder.content("new_dehazed.tif"));
}
#endif

TEST_F(ProgramFaults, TwoProgramsOnOnePhotograph)
{
    folder.photograph("a.tif", 300, 200, VImage::Rgb, 16);
    ASSERT_EQ(folder.run({"a.tif", "--strength", "0"}).code, 0);
    const QByteArray source = folder.content("a.tif"), whole = folder.content("a_dehazed.tif");
    for (int round = 0; round < 6; ++round) {
        const bool overwrite = round % 2;
        QFile::remove(folder.path("a_dehazed.tif"));
        const Said said =
            folder.shell(QString("one() { \"$V\" a.tif --strength 0 --quiet --settings s.xml %1; echo =$?; }; one & one; wait")
                             .arg(overwrite ? "--overwrite" : ""));
        if (overwrite) {
            EXPECT_EQ(said.out, "=0\n=0\n") << said.err;
        } else {
            EXPECT_TRUE(said.out.contains("=0\n")) << said.err;
            EXPECT_EQ(said.out.count("=1\n"), said.err.count("already exists. Add --overwrite")) << said.err;
        }
        EXPECT_EQ(folder.content("a.tif"), source);
        EXPECT_EQ(folder.content("a_dehazed.tif"), whole);
        EXPECT_TRUE(folder.content("s.xml").endsWith("</veilaway>\n"));
        EXPECT_THAT(folder.files(), testing::ElementsAre("a.tif", "a_dehazed.tif", "s.xml"));
    }
}

TEST_F(ProgramFaults, NamesOfAnyLetters)
{
    const QStringList names{" two  blanks ",
                            "quotes\"'`",
                            "line\nfeed\r\ttab",
                            "%1 %2 %%",
                            "$(x);*?[a]\\",
                            "<a>&amp;",
                            QStringLiteral("Ж霧é e\u0301 \U0001F32B"),
                            "-dash"};
    QStringList photographs, results;
    for (const QString &name : names) {
        photographs << name + ".png";
        results << folder.path(name + "_dehazed.png");
        folder.photograph(photographs.last(), 16, 12);
    }
    const QStringList options{"--strength", "0", "--json", "--settings", "s.xml"};
    const auto resultsIn = [](const Said &said) {
        QStringList named;
        for (const QJsonObject &object : said.objects())
            named << object["result"].toString();
        return named;
    };
    const Said first = folder.run(options + QStringList{"--"} + photographs);
    EXPECT_EQ(first.code, 0) << first.err;
    EXPECT_THAT(resultsIn(first), testing::UnorderedElementsAreArray(results));
    // And read back from the settings file.
    const Said again = folder.run({"--settings", "s.xml", "--json", "--overwrite"});
    EXPECT_EQ(again.code, 0) << again.err;
    EXPECT_THAT(resultsIn(again), testing::UnorderedElementsAreArray(results));
    for (const QString &result : results)
        EXPECT_TRUE(QFile::exists(result)) << result;
    EXPECT_EQ(folder.files().size(), 2 * names.size() + 1);
}

TEST_F(ProgramFaults, ANameThatTheSettingsCanNotHold)
{
    folder.photograph("bell\a.png", 16, 12);
    folder.photograph("plain.png", 16, 12);
    const Said said = folder.run({"bell\a.png", "plain.png", "--strength", "0", "--settings", "s.xml"});
    EXPECT_EQ(said.code, 1);
    EXPECT_TRUE(said.err.contains("s.xml\" can't hold the photograph \"bell?.png\"")) << said.err;
    EXPECT_TRUE(QFile::exists(folder.path("bell\a_dehazed.png")));
    EXPECT_EQ(folder.run({"--settings", "s.xml", "--overwrite"}).code, 0) << "of the others it keeps the strength";
}

TEST_F(ProgramFaults, ANameThatIsNotUtf8IsRefused)
{
    // The plug-in's interface can't pass it on.
    folder.photograph("plain.png", 16, 12);
    const Said said =
        folder.shell("n=$(printf 'odd\\303\\251\\377\\303.png'); mkdir \"$n.d\"; cp plain.png \"$n\"; cp plain.png \"$n.d\"; "
                     "\"$V\" \"$n\" plain.png --strength 0; echo =$?; "
                     "\"$V\" \"$n\" --json 2>/dev/null; \"$V\" plain.png --settings \"$n\"; echo =$?; "
                     "cd \"$n.d\"; \"$V\" plain.png --strength 0; echo =$?; ls; cd ..; rm -r \"$n\" \"$n.d\"");
    const QString json = said.out.mid(said.out.indexOf('{')).section('\n', 0, 0);
    const QString bytes = QJsonDocument::fromJson(json.toUtf8()).object()["photo_bytes"].toString();
    EXPECT_EQ(QByteArray::fromPercentEncoding(bytes.toUtf8()), "odd\303\251\377\303.png") << json;
    EXPECT_TRUE(said.out.contains("=2\n") && said.err.contains("--settings must be")) << said.err;
    EXPECT_TRUE(said.out.endsWith("=1\nplain.png\n")) << said.out;
    EXPECT_EQ(said.out.count("=1\n"), 2);
    EXPECT_EQ(said.err.count(QRegularExpression("veilaway: (odd.*|plain).png: Its name or that of a folder[^\n]*Rename it.\n")),
              2)
        << said.err;
    EXPECT_THAT(folder.files(), testing::ElementsAre("plain.png", "plain_dehazed.png"));
}
