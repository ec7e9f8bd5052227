#include <csignal>
#include <functional>
#include <map>
#include <random>

#include <QApplication>
#include <QColorSpace>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTextCodec>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "DefaultStrength.h"
#include "HostApplication.h"
#include "PluginFile.h"
#include "SaveQueue.h"
#include "Series.h"
#include "Session.h"
#include "TestFolder.h"
#include "VException.h"
#include "profileName.h"

namespace {

using testing::ElementsAre;
using State = Series::State;

constexpr int kLimitMs = 300000; ///< Enough for a few runs of the engine under a sanitizer on a busy machine.
const QString kProcess = QStringLiteral("Veilaway");

HostApplication *host = nullptr;
VIPluginOne2One *one2one = nullptr;

/// Processes events until the condition holds; false after kLimitMs.
bool eventually(const std::function<bool()> &holds)
{
    bool late = false;
    QTimer limit, pulse;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, [&] { late = true; });
    limit.start(kLimitMs);
    pulse.start(5); // for conditions that no event comes with
    while (!late && !holds())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return !late;
}

WantedStrength fixed(int percent)
{
    return {percent, /*automatic=*/false};
}

const char *nameOf(State state)
{
    constexpr const char *kNames[] = {"untouched", "edited", "waiting", "in work", "saved", "changed since", "kept", "failed"};
    return kNames[int(state)];
}

/// The photographs with strength and state: "a.png 70 untouched, b.png auto edited".
std::string shown(const Series &series)
{
    QStringList photographs;
    for (int row = 0; row < series.rowCount(); ++row) {
        const WantedStrength strength = series.strength(row);
        photographs << QStringLiteral("%1 %2 %3")
                           .arg(QFileInfo(series.path(row)).fileName(),
                                strength.automatic ? "auto" : QString::number(strength.percent), nameOf(series.state(row)));
    }
    return photographs.join(", ").toStdString();
}

/// A window without widgets, in a folder of photographs.
class Window : public testing::Test
{
protected:
    QStringList paths(const QStringList &names) const
    {
        QStringList all;
        for (const QString &name : names)
            all << folder.path(name);
        return all;
    }
    QStringList photographs(const QStringList &names, int width = 48, int height = 32) const
    {
        for (const QString &name : names)
            folder.photograph(name, width, height);
        return paths(names);
    }
    Series::Added add(const QStringList &given)
    {
        std::optional<Series::Added> result;
        const auto watch = QObject::connect(&series, &Series::added, [&](const Series::Added &what) { result = what; });
        series.add(given);
        EXPECT_TRUE(eventually([&] { return result.has_value(); }));
        QObject::disconnect(watch);
        return result.value_or(Series::Added());
    }
    void readAll()
    {
        ASSERT_TRUE(eventually([&] { return series.unreadCount() == 0; }));
    }
    std::optional<SaveQueue::Summary> untilEnded(SaveQueue &queue)
    {
        std::optional<SaveQueue::Summary> summary;
        const auto watch = QObject::connect(&queue, &SaveQueue::ended, [&](const SaveQueue::Summary &last) { summary = last; });
        EXPECT_TRUE(eventually([&] { return summary.has_value(); }));
        QObject::disconnect(watch);
        return summary;
    }
    QString sessions() const { return folder.path("sessions"); }

    TestFolder folder;
    Series series{*host, one2one->guid(), 64};
};

TEST_F(Window, ListsPhotographsOnceInTheirOrderWithoutResults)
{
    const QDir here(folder.path(""));
    here.mkpath("trip");
    here.mkpath("empty");
    photographs({"z.png", "z_dehazed.png", "trip/b.JPG", "trip/a.png", "trip/a_dehazed.png", "trip/b_brumefrei.jpg",
                 "trip/a_dehazed-2.png", "trip/b_dehazed-13.jpg", "trip/a_dehazed-1.png", "trip/a-2.png"});
    folder.write("trip/notes.txt", "no photograph");
    folder.write("broken.png", "\x89PNG\r\n\x1a\n");

    int batches = 0;
    QObject::connect(&series, &Series::rowsInserted, [&] { ++batches; });
    const Series::Added first = add(paths({"z.png", "trip", "empty", "z.png", "trip/../z.png", "broken.png"}));
    EXPECT_EQ(first.photographs, 7);
    EXPECT_EQ(first.results, 3); // one without and two with a number
    EXPECT_EQ(first.emptyFolders, paths({"empty"}));

    readAll();
    EXPECT_EQ(shown(series), "z.png 70 untouched, a-2.png 70 untouched, a.png 70 untouched, a_dehazed-1.png 70 untouched, "
                             "b.JPG 70 untouched, b_brumefrei.jpg 70 untouched, broken.png 70 failed");
    EXPECT_NE(series.data(series.index(6), Series::ReasonRole).toString(), "");
    EXPECT_FALSE(series.data(series.index(6), Series::StrengthRole).isValid());
    EXPECT_EQ(series.facts(0).size, QSize(48, 32));
    EXPECT_EQ(series.facts(4).kind, "JPEG");
    EXPECT_EQ(series.facts(4).resultName, "b_dehazed.jpg");
    EXPECT_FALSE(series.data(series.index(0), Series::ThumbnailRole).value<QImage>().isNull());

    folder.photograph("broken.png");
    series.retry(6);
    readAll();
    EXPECT_EQ(series.state(6), State::Untouched);

    // A result that was listed as a photograph leaves when its photograph comes.
    series.clear();
    add(paths({"z_dehazed.png"}));
    EXPECT_EQ(add(paths({"z.png"})).photographs, 1);
    EXPECT_EQ(shown(series), "z.png 70 untouched");
}

TEST_F(Window, TakesAThousandPhotographsInBatches)
{
    QStringList many;
    for (int i = 0; i < 1000; ++i)
        many << folder.path(QStringLiteral("none%1.png").arg(i));
    int batches = 0, longest = 0;
    QObject::connect(&series, &Series::rowsInserted, [&](const QModelIndex &, int first, int last) {
        ++batches;
        longest = std::max(longest, last - first + 1);
    });
    series.add(many);
    EXPECT_EQ(series.rowCount(), 0); // it has returned at once
    ASSERT_TRUE(eventually([&] { return series.rowCount() == 1000; }));
    EXPECT_GE(batches, 10);
    EXPECT_LE(longest, 100);
}

TEST_F(Window, ReadsWhatIsInViewFirst)
{
    QStringList names;
    for (int i = 0; i < 20; ++i)
        names << QStringLiteral("p%1.png").arg(i);
    photographs(names, 300, 200);
    QObject::connect(&series, &Series::rowsInserted, [&] { series.readFirst({18, 19}); });
    std::map<int, int> turns; // by row: the event that its picture came with
    int event = 0;
    QObject::connect(&series, &Series::dataChanged, [&](const QModelIndex &first, const QModelIndex &last) {
        ++event;
        for (int row = first.row(); row <= last.row(); ++row)
            if (!series.data(series.index(row), Series::ThumbnailRole).value<QImage>().isNull())
                turns.emplace(row, event);
    });
    add(paths(names));
    readAll();
    ASSERT_EQ(turns.size(), 20u);
    EXPECT_LE(std::max(turns[18], turns[19]), turns[17]);
}

TEST(ProfileName, IsTheProfilesOwn)
{
    EXPECT_EQ(profileName({}), "sRGB");
    EXPECT_EQ(profileName("no profile"), "sRGB");
    EXPECT_EQ(profileName(QColorSpace(QColorSpace::AdobeRgb).iccProfile()), "Adobe RGB");
}

TEST_F(Window, StartsAtTheStoredDefault)
{
    const QStringList some = photographs({"a.png", "b.png", "c.png"});
    add({some[0]});
    series.useAsDefault({0, /*automatic=*/true});
    add({some[1]});
    series.useAsDefault(fixed(25));
    add({some[2]});
    series.setStrength({2}, fixed(90)); // which is no default
    EXPECT_EQ(series.defaultStrength().percent, 25);
    DefaultStrength(*host, one2one->guid()).store(std::nullopt);
    EXPECT_EQ(shown(series), "a.png 70 untouched, b.png auto untouched, c.png 90 edited");
    readAll();
    EXPECT_TRUE(series.percent(1).has_value());
}

TEST_F(Window, UndoesAndRedoes)
{
    const QStringList three = photographs({"a.png", "b.png", "c.png"});
    const QString more = photographs({"d.png"}).first();
    struct Case
    {
        const char *name;
        std::function<void(Series &)> act;
        const char *after;
        int steps; ///< That undo takes back everything.
    };
    const Case cases[] = {
        {"strength of one", [](Series &s) { s.setStrength({1}, fixed(40)); },
         "a.png 70 untouched, b.png 40 edited, c.png 70 untouched", 1},
        {"strength of all, automatic included",
         [](Series &s) {
             s.setAutomatic({0});
             s.setStrength({0, 1, 2}, s.strength(0));
         },
         "a.png auto edited, b.png auto edited, c.png auto edited", 2},
        {"the same strength is no step",
         [](Series &s) {
             s.setStrength({0, 1, 2}, fixed(70));
         },
         "a.png 70 untouched, b.png 70 untouched, c.png 70 untouched", 0},
        {"a drag is one step",
         [](Series &s) {
             s.beginDrag();
             for (int percent = 69; percent >= 30; --percent)
                 s.setStrength({0, 2}, fixed(percent));
             s.endDrag();
         },
         "a.png 30 edited, b.png 70 untouched, c.png 30 edited", 1},
        {"two drags are two steps",
         [](Series &s) {
             for (const int percent : {50, 20}) {
                 s.beginDrag();
                 s.setStrength({0}, fixed(percent + 1));
                 s.setStrength({0}, fixed(percent));
                 s.endDrag();
             }
         },
         "a.png 20 edited, b.png 70 untouched, c.png 70 untouched", 2},
        {"a drag and back is no step",
         [](Series &s) {
             s.beginDrag();
             for (const int percent : {60, 50, 60, 70})
                 s.setStrength({0}, fixed(percent));
             s.endDrag();
         },
         "a.png 70 untouched, b.png 70 untouched, c.png 70 untouched", 0},
        {"a key held down is one step, and stops at the end of the scale",
         [](Series &s) {
             s.setStrength({1}, fixed(95));
             for (int i = 0; i < 4; ++i)
                 s.nudge({0, 1}, 10);
         },
         "a.png 100 edited, b.png 100 edited, c.png 70 untouched", 2},
        {"reset",
         [](Series &s) {
             s.setStrength({0, 1, 2}, fixed(10));
             s.reset({0, 2});
         },
         "a.png 70 untouched, b.png 10 edited, c.png 70 untouched", 2},
        {"remove what has been changed",
         [](Series &s) {
             s.setStrength({1}, fixed(10));
             s.remove({2, 0});
             s.setStrength({0}, fixed(20));
         },
         "b.png 20 edited", 3},
        {"remove all",
         [](Series &s) {
             s.remove({0, 1, 2});
         },
         "", 1},
        {"remove, add again and add another",
         [&](Series &s) {
             s.remove({0});
             add({three[0], more});
             s.setStrength({3}, fixed(30));
         },
         "b.png 70 untouched, c.png 70 untouched, a.png 70 untouched, d.png 30 edited", 3},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        series.clear();
        add(three);
        const std::string before = shown(series);
        c.act(series);
        EXPECT_EQ(shown(series), c.after);
        int steps = 0;
        for (; series.undoStack().canUndo(); ++steps)
            series.undoStack().undo();
        EXPECT_EQ(steps, c.steps);
        EXPECT_EQ(shown(series), before);
        while (series.undoStack().canRedo())
            series.undoStack().redo();
        EXPECT_EQ(shown(series), c.after);
    }

    // A step that is undone says where.
    series.clear();
    add(three);
    QList<int> where;
    QObject::connect(&series, &Series::stepped, [&](const QList<int> &rows) { where = rows; });
    series.setStrength({1, 2}, fixed(30));
    series.remove({2});
    EXPECT_TRUE(where.isEmpty());
    series.undoStack().undo();
    EXPECT_EQ(where, QList<int>{2});
    series.undoStack().undo();
    EXPECT_EQ(where, QList<int>({1, 2}));
}

TEST_F(Window, ShowsEachPhotographsWayThroughTheQueue)
{
    SaveQueue queue(*host, *one2one, 1);
    series.follow(queue);
    add(photographs({"a.png", "b.jpg", "same.png", "same.PNG"}) + paths({"missing.png"}));
    readAll();
    series.setAutomatic({1});
    std::map<QString, QStringList> ways;
    QObject::connect(&series, &Series::dataChanged, [&](const QModelIndex &first, const QModelIndex &last) {
        for (int row = first.row(); row <= last.row(); ++row) {
            QStringList &way = ways[QFileInfo(series.path(row)).fileName()];
            const QString state = nameOf(series.state(row));
            if (way.isEmpty() || way.last() != state)
                way << state;
        }
    });
    QList<double> fractions;
    QObject::connect(&queue, &SaveQueue::progressChanged, [&] { fractions << queue.progress().fraction; });
    series.saveAll();
    series.save({4}); // saveAll leaves out what can't be read
    EXPECT_EQ(queue.progress().total, 5);
    const auto summary = untilEnded(queue);
    ASSERT_TRUE(summary);
    EXPECT_EQ(std::make_tuple(summary->saved, summary->failed, summary->kept, summary->stopped), std::make_tuple(3, 2, 0, 0));
    EXPECT_EQ(ways["a.png"], (QStringList{"waiting", "in work", "saved"}));
    EXPECT_EQ(ways["b.jpg"], (QStringList{"waiting", "in work", "saved"}));
    EXPECT_EQ(ways["same.PNG"], (QStringList{"waiting", "failed"})); // its result would be that of same.png
    EXPECT_EQ(ways["missing.png"], (QStringList{"waiting", "failed"}));
    EXPECT_TRUE(std::is_sorted(fractions.begin(), fractions.end() - 1)); // the last one is that of the empty queue
    EXPECT_TRUE(QFileInfo::exists(folder.path("b_dehazed.jpg")));
    // Reasons are for the window: they name no option of the command line.
    SaveQueue::Options nowhere;
    nowhere.folder = folder.path("a.png");
    series.setSaveOptions(nowhere);
    series.save({1});
    ASSERT_TRUE(untilEnded(queue));
    for (const int row : {1, 3}) {
        EXPECT_EQ(series.state(row), State::Failed);
        EXPECT_FALSE(series.data(series.index(row), Series::ReasonRole).toString().contains("--"));
    }
    series.setSaveOptions({});

    series.setStrength({0}, fixed(20));
    EXPECT_EQ(series.state(0), State::ChangedSince);
    series.undoStack().undo();
    EXPECT_EQ(series.state(0), State::Saved);

    // What was mended is saved when it is tried again.
    folder.photograph("missing.png");
    series.retry(4);
    ASSERT_TRUE(untilEnded(queue));
    EXPECT_EQ(series.state(4), State::Saved);
}

TEST_F(Window, TreatsExistingResultsAsAsked)
{
    // a has a result at its present strength, b one at another, c one of an earlier program, d none.
    using Policy = SaveQueue::Policy;
    struct Case
    {
        Policy policy;
        std::optional<int> quality;
        QStringList fresh; ///< Files that are new or have another content afterwards.
        int saved, kept;
        const char *states;
    };
    const Case cases[] = {
        {Policy::ReplaceChanged,
         {},
         {"b_dehazed.png", "c_dehazed.png", "d_dehazed.png"},
         3,
         1,
         "a.png 0 saved, b.png 90 saved, c.png 0 saved, d.png 0 saved"},
        {Policy::ReplaceChanged,
         95,
         {"a_dehazed.png", "b_dehazed.png", "c_dehazed.png", "d_dehazed.png"},
         4,
         0,
         "a.png 0 saved, b.png 90 saved, c.png 0 saved, d.png 0 saved"},
        {Policy::ReplaceAll,
         {},
         {"a_dehazed.png", "b_dehazed.png", "c_dehazed.png", "d_dehazed.png"},
         4,
         0,
         "a.png 0 saved, b.png 90 saved, c.png 0 saved, d.png 0 saved"},
        {Policy::KeepBoth,
         {},
         {"a_dehazed-2.png", "b_dehazed-2.png", "c_dehazed-2.png", "d_dehazed.png"},
         4,
         0,
         "a.png 0 saved, b.png 90 saved, c.png 0 saved, d.png 0 saved"},
        {Policy::Skip, {}, {"d_dehazed.png"}, 1, 3, "a.png 0 saved, b.png 90 kept, c.png 0 kept, d.png 0 saved"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(int(c.policy));
        for (const QString &file : folder.files())
            QFile::remove(folder.path(file));
        series.clear();
        SaveQueue queue(*host, *one2one, 0);
        series.follow(queue);
        series.setSaveOptions({});
        add(photographs({"a.png", "b.png", "c.png", "d.png"}));
        series.setStrength({0, 1, 2, 3}, fixed(0)); // at which a save takes no time
        series.save({0, 1});
        ASSERT_TRUE(untilEnded(queue));
        series.setStrength({1}, fixed(90));
        folder.write("c_dehazed.png", "of an earlier program");
        std::map<QString, std::pair<QByteArray, QDateTime>> before;
        for (const QString &file : folder.files())
            before[file] = {folder.content(file), QFileInfo(folder.path(file)).lastModified()};

        SaveQueue::Options options;
        options.existing = c.policy;
        options.quality = c.quality;
        series.setSaveOptions(options);
        series.saveAll();
        const auto summary = untilEnded(queue);
        ASSERT_TRUE(summary);
        EXPECT_EQ(std::make_tuple(summary->saved, summary->kept, summary->failed), std::make_tuple(c.saved, c.kept, 0));
        QStringList fresh;
        for (const QString &file : folder.files())
            if (const auto known = before.find(file);
                known == before.end() ||
                known->second != std::make_pair(folder.content(file), QFileInfo(folder.path(file)).lastModified()))
                fresh << file;
        EXPECT_EQ(fresh, c.fresh);
        EXPECT_EQ(shown(series), c.states);
    }
}

TEST_F(Window, PausesDropsAndStopsWithWholeResults)
{
    QStringList names;
    for (int i = 0; i < 8; ++i)
        names << QStringLiteral("p%1.png").arg(i);
    add(photographs(names, 200, 150));
    SaveQueue queue(*host, *one2one, 1);
    series.follow(queue);
    const auto count = [&](State state) {
        int found = 0;
        for (int row = 0; row < series.rowCount(); ++row)
            found += series.state(row) == state;
        return found;
    };
    queue.pause();
    series.saveAll();
    EXPECT_EQ(count(State::Waiting), 8);
    series.remove({7}); // while it waits
    series.setStrength({6}, fixed(10));
    series.save({6}); // with another strength
    queue.resume();
    ASSERT_TRUE(eventually([&] { return count(State::Saved) >= 2; }));
    queue.pause();
    ASSERT_TRUE(eventually([&] { return count(State::InWork) == 0; }));
    const int saved = count(State::Saved);
    EXPECT_LT(saved, 7);
    EXPECT_FALSE(queue.progress().secondsLeft);
    queue.resume();
    ASSERT_TRUE(eventually([&] { return count(State::Saved) > saved; }));
    EXPECT_TRUE(queue.progress().secondsLeft);
    queue.stop();
    const auto summary = untilEnded(queue);
    ASSERT_TRUE(summary);
    EXPECT_EQ(summary->saved, count(State::Saved));
    EXPECT_EQ(summary->saved + summary->stopped, 7);
    EXPECT_EQ(count(State::Waiting) + count(State::InWork), 0);
    EXPECT_EQ(folder.files().size(), 8 + summary->saved);

    // It goes on after a stop, and the photograph that was removed has no result.
    series.saveAll();
    ASSERT_TRUE(untilEnded(queue));
    EXPECT_EQ(count(State::Saved), 7);
    EXPECT_FALSE(QFileInfo::exists(folder.path("p7_dehazed.png")));
    EXPECT_EQ(series.record(6).resultStrength, 10);

    // Pictures on the screen come first.
    series.setStrength({0}, fixed(0));
    QElapsedTimer asked;
    asked.start();
    queue.giveWay();
    series.save({0});
    ASSERT_TRUE(eventually([&] { return series.state(0) == State::InWork || series.state(0) == State::Saved; }));
    EXPECT_GE(asked.elapsed(), 300);
    ASSERT_TRUE(eventually([&] { return series.state(0) == State::Saved; }));
}

TEST_F(Window, QuitInTheMiddleOfSavesGoesOnNextTime)
{
    constexpr int kCount = 16;
    QStringList names;
    for (int i = 0; i < kCount; ++i)
        names << QStringLiteral("p%1.jpg").arg(i, 2, 10, QLatin1Char('0'));
    add(photographs(names, 96, 64));
    {
        SaveQueue queue(*host, *one2one, 0);
        Session session(series, kProcess, sessions());
        series.follow(queue);
        series.setStrength({0, 1, 2, 3, 4, 5}, fixed(0)); // soon done
        series.setStrength({12}, fixed(33));
        SaveQueue::Options options;
        options.folder = folder.path("out");
        series.setSaveOptions(options);
        series.saveAll();
        session.setCurrentPhoto(series.path(5));
        ASSERT_TRUE(eventually([&] { return queue.progress().done >= 5; }));
        queue.quit();
        EXPECT_EQ(session.whatWouldBeLost(), "");
        session.close();
    }
    const QDir out(folder.path("out"));
    const int written = out.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size();
    EXPECT_GE(written, 5);
    EXPECT_LT(written, kCount);
    for (const QString &result : out.entryList(QDir::Files))
        EXPECT_FALSE(QImage(out.filePath(result)).isNull()) << result;

    Series later(*host, one2one->guid(), 64);
    Session session(later, kProcess, sessions());
    ASSERT_TRUE(session.restore());
    EXPECT_EQ(session.currentPhoto(), folder.path("p05.jpg"));
    ASSERT_EQ(later.rowCount(), kCount);
    EXPECT_EQ(later.percent(12), 33);
    SaveQueue queue(*host, *one2one, 0);
    later.follow(queue);
    later.saveUnfinished();
    EXPECT_EQ(queue.progress().total, kCount - written);
    const auto summary = untilEnded(queue);
    ASSERT_TRUE(summary);
    EXPECT_EQ(summary->saved, kCount - written);
    EXPECT_EQ(out.entryList(QDir::Files).size(), kCount);
    session.close();
    EXPECT_FALSE(Session(series, kProcess, sessions()).restore()) << "nothing is left to go on with";
}

/// Another window, as a process: this program with the name of what it does (see main), the folder of the sessions and arguments.
std::unique_ptr<QProcess> otherWindow(const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QCoreApplication::applicationFilePath(), arguments);
    EXPECT_TRUE(process->waitForReadyRead(kLimitMs)); // it says when it has begun
    return process;
}

TEST_F(Window, SurvivesKillsWholeOrOlder)
{
    const QStringList some = photographs({"a.png", "b.png", "c.png", "d.png", "e.png"});
    std::mt19937 random(1);
    for (int round = 0; round < 12; ++round) {
        SCOPED_TRACE(round);
        const auto window = otherWindow(QStringList{"--changing-window", sessions()} + some);
        window->waitForReadyRead(int(random() % 700));
        EXPECT_FALSE(window->waitForFinished(int(random() % 60)));
        ::kill(pid_t(window->processId()), SIGKILL);
        window->waitForFinished(kLimitMs);
        // It has said each strength that must be there by now.
        const QList<QByteArray> kept = window->readAllStandardOutput().trimmed().split('\n');
        const int least = kept.last().toInt();
        Series later(*host, one2one->guid(), 64);
        Session session(later, kProcess, sessions());
        ASSERT_TRUE(session.restore());
        EXPECT_EQ(later.paths(), some);
        for (int row = 0; row < later.rowCount(); ++row)
            EXPECT_EQ(later.percent(row), later.percent(0));
        EXPECT_GE(later.percent(0).value_or(-1), least);
        later.clear();
    }
    EXPECT_EQ(QDir(sessions()).entryList(QDir::Files), QStringList()) << "an empty session leaves nothing, nor does a killed one";
}

TEST_F(Window, TwoProgramsDontShareASession)
{
    const QStringList some = photographs({"a.png", "b.png"});
    add(some);
    const QString file = folder.path("both.xml");
    {
        Session session(series, kProcess, sessions());
        session.saveAs(file);
    }
    const auto window = otherWindow({"--holding-window", sessions(), file});
    Session session(series, kProcess, sessions());
    EXPECT_FALSE(session.restore());
    for (const Session::Recent &recent : session.recent()) // the one that was closed above, and not the other window's
        EXPECT_NE(recent.photographs, 0);
    EXPECT_THROW(session.open(file), VException);
    EXPECT_THROW(session.saveAs(file), VException);
    window->kill();
    window->waitForFinished(kLimitMs);
    EXPECT_TRUE(session.restore());
    EXPECT_EQ(session.file(), file);
    EXPECT_EQ(series.paths(), some);
}

TEST_F(Window, ExchangesSettingsFilesWithTheCommandLine)
{
    photographs({"a.png", "b.png", "c.png"});
    ASSERT_EQ(folder.run({"--settings", "s.xml", "--strength", "40", "a.png", "b.png"}).code, 0);
    QByteArray text = folder.content("s.xml");
    text.replace("<photo path=\"a.png\">", "<!-- mine --><photo path=\"a.png\" stars=\"5\">");
    text.replace("</veilaway>", "<other>kept</other></veilaway>");
    folder.write("s.xml", text);

    Session session(series, kProcess, sessions());
    session.open(folder.path("s.xml"));
    EXPECT_EQ(shown(series), "a.png 40 saved, b.png 40 saved");
    EXPECT_FALSE(session.isModified());
    series.setStrength({1}, fixed(60));
    EXPECT_TRUE(session.isModified());
    series.undoStack().undo();
    EXPECT_FALSE(session.isModified());
    series.undoStack().redo();
    series.remove({0});
    add(paths({"c.png"}));
    series.setAutomatic({1});
    EXPECT_EQ(folder.content("s.xml"), text) << "written without being asked";
    session.save();
    EXPECT_FALSE(session.isModified());
    text = folder.content("s.xml");
    for (const char *kept : {"<!-- mine -->", "<other>kept</other>", "path=\"b.png\"", "path=\"c.png\""})
        EXPECT_TRUE(text.contains(kept)) << kept;
    EXPECT_FALSE(text.contains("a.png"));

    // The automatic strength follows when it is known; the command line then works at it.
    readAll();
    const QByteArray number = "hazeRemove=\"" + QByteArray::number(series.percent(1).value()) + '"';
    ASSERT_TRUE(eventually([&] { return folder.content("s.xml").contains(number); }));
    const Said said = folder.run({"--settings", "s.xml", "--newer", "--json", "--jobs", "1"});
    ASSERT_EQ(said.code, 0) << said.err;
    ASSERT_EQ(said.objects().size(), 2u);
    EXPECT_EQ(said.objects()[0]["strength"].toInt(), 60);
    EXPECT_EQ(said.objects()[1]["strength"].toInt(), series.percent(1));
}

TEST_F(Window, LosesNothingWhenItCloses)
{
    add(photographs({"a.png"}));
    const QString file = folder.path("s.xml");
    {
        Session session(series, kProcess, sessions());
        session.saveAs(file);
        series.setStrength({0}, fixed(15));
        EXPECT_EQ(session.whatWouldBeLost(), "");
    }
    series.clear();
    {
        // What was changed without being saved is there when the file is opened again, or among the recent sessions.
        Session session(series, kProcess, sessions());
        EXPECT_FALSE(session.restore()) << "it was closed in good order";
        ASSERT_EQ(session.recent().size(), 1);
        EXPECT_EQ(session.recent()[0].file, file);
        session.open(file);
        EXPECT_EQ(series.percent(0), 15);
        EXPECT_TRUE(session.isModified());
        session.save();
        session.startOver();
        EXPECT_EQ(series.rowCount(), 0);
        EXPECT_EQ(session.recent().size(), 1);
        session.reopen(session.recent()[0].id);
        EXPECT_EQ(series.percent(0), 15);
        EXPECT_FALSE(session.isModified());
    }
    // A session that can't be kept, as on a full disk.
    series.clear();
    Session session(series, kProcess, folder.path("full"));
    add(paths({"a.png"}));
    ASSERT_EQ(session.whatWouldBeLost(), "");
    const QString kept = QDir(folder.path("full")).entryList({"*.json"}).value(0);
    const QByteArray before = folder.content("full/" + kept);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit full{rlim_t(before.size() / 2), usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &full);
    session.setCurrentPhoto(series.path(0));
    EXPECT_EQ(session.whatWouldBeLost(), "") << "there is nothing that the user has changed";
    series.setStrength({0}, fixed(16));
    QString problem;
    QObject::connect(&session, &Session::keepingFailed, [&](const QString &text) { problem = text; });
    EXPECT_TRUE(session.whatWouldBeLost().contains("full"));
    EXPECT_EQ(folder.content("full/" + kept), before);
    setrlimit(RLIMIT_FSIZE, &usual);
    EXPECT_EQ(session.whatWouldBeLost(), "");
    EXPECT_EQ(problem, "");
    EXPECT_NE(folder.content("full/" + kept), before);
    folder.write("unreadable.xml", "<veilaway><photo/>");
    EXPECT_THROW(session.open(folder.path("unreadable.xml")), VException);
    EXPECT_THROW(session.open(folder.path("none.xml")), VException);
    EXPECT_EQ(series.percent(0), 16) << "nothing has changed";
}

/// Gives all photographs one strength after another and says which of them has been kept.
int changeForEver(const QString &folder, const QStringList &paths)
{
    Series series(*host, one2one->guid(), 64);
    Session session(series, kProcess, folder);
    series.add(paths);
    eventually([&] { return series.rowCount() == paths.size(); });
    for (int percent = 0; percent <= 100; percent = percent < 100 ? percent + 1 : 100) {
        QList<int> rows;
        for (int row = 0; row < series.rowCount(); ++row)
            rows << row;
        series.setStrength(rows, fixed(percent));
        if (percent % 5 == 0 && percent < 100) {
            session.whatWouldBeLost(); // keeps it at once
            std::printf("%d\n", percent);
            std::fflush(stdout);
        }
        QTimer::singleShot(15, QCoreApplication::instance(), [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    }
    return 0;
}

int holdForEver(const QString &folder, const QString &file)
{
    Series series(*host, one2one->guid(), 64);
    Session session(series, kProcess, folder);
    session.open(file);
    session.whatWouldBeLost();
    std::puts("open");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
    HostedApplication<QApplication> application(argc, argv, QLocale("en"), /*lendServices=*/false);
    host = &application;
    PluginFile plugin{QString()};
    one2one = &plugin.process();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--changing-window")
        return changeForEver(arguments.value(2), arguments.mid(3));
    if (arguments.value(1) == "--holding-window")
        return holdForEver(arguments.value(2), arguments.value(3));
    return RUN_ALL_TESTS();
}
