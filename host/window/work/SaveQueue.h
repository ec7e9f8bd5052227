#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include "BatchPlan.h"
#include "BatchRunner.h"
#include "HostApplication.h"
#include "VIPluginOne2One.h"
#include "WantedStrength.h"

/// Saves photographs in the background: the command line's own plan and run, with the results written by the plug-in. What is
/// added while others are saved follows them. Interface thread only; the signals are delivered there too.
class SaveQueue : public QObject, private BatchRunner::Observer
{
    Q_OBJECT

public:
    /// What is done with a photograph whose result exists already. A result that is kept is not a failure.
    enum class Policy {
        ReplaceChanged, ///< Kept if it is Order::currentResult and not older than the photograph, or else replaced.
        ReplaceAll,
        KeepBoth, ///< The new result gets a number behind the tag.
        Skip
    };

    /// How results are written; each member as the option of the command line.
    struct Options
    {
        Policy existing = Policy::ReplaceChanged;
        QString folder;             ///< Absolute; empty for the photograph's own.
        std::optional<QString> tag; ///< Instead of the plug-in's; may be empty.
        std::optional<int> quality; ///< Of a JPEG, 1 to 100; otherwise the photograph's own.

        bool operator==(const Options &other) const;
    };

    /// One photograph to save.
    struct Order
    {
        QString path; ///< Absolute.
        WantedStrength strength;
        QString currentResult; ///< Absolute; the result that was made at this strength and quality, or empty.
    };

    struct Progress
    {
        int done = 0;                   ///< Photographs that have had their outcome,
        int total = 0;                  ///< of all that were added since the queue was last empty.
        double fraction = 0;            ///< Of the work, by pixels; 0 to 1.
        std::optional<int> secondsLeft; ///< Nothing until a first photograph is saved, and while paused.
    };

    struct Summary
    {
        int saved = 0;     ///< Results written, also those that show the photograph unchanged.
        int unchanged = 0; ///< Those of them that do.
        int kept = 0;      ///< Results that existed and were not to be replaced.
        int failed = 0;
        int stopped = 0;
        double seconds = 0;
    };

    /// `jobs` is that of BatchRunner::run.
    SaveQueue(HostApplication &host, VIPluginOne2One &process, int jobs, QObject *parent = nullptr);
    /// Like quit().
    ~SaveQueue() override;

    /// Adds photographs behind those that wait. One that waits already gets the new order; one that is in work is saved again.
    /// `series` are all photographs whose results may not overwrite each other.
    void add(const QVector<Order> &orders, const Options &next, const QStringList &series);
    /// Takes out a photograph that is waiting; one that is in work is saved.
    void drop(const QString &path);

    /// Begins no further photograph; those in work are saved.
    void pause() { setPaused(true); }
    void resume() { setPaused(false); }
    bool isPaused() const;
    /// Someone waits for pictures on the screen: for a moment nothing is begun, neither a photograph nor a stage of one. Whoever
    /// is given way to all the time delays each stage by several seconds and no more.
    void giveWay();
    /// Drops what is waiting and ends what is in work without a result, except where the result is being written already.
    /// Returns at once; `ended` follows.
    void stop();
    /// The same before the program ends, and waits for the results that are being written. What it stops stays unfinished: no
    /// outcome is reported for it. Nothing can be added afterwards.
    void quit();

    /// Something waits or is in work.
    bool isActive() const { return worker.joinable(); }
    Progress progress() const;

    /// The same for the batch, for the names of results.
    static BatchPlan::Options planOptions(const Options &options);
    /// What the window's user reads about this outcome; empty if there is nothing to say.
    static QString textOf(const BatchOutcome &outcome);

Q_SIGNALS:
    void photoWaits(const QString &path);
    /// `stage` is a BatchRunner::Stage.
    void photoBegins(const QString &path, int stage);
    /// `result` is the absolute path of the result, whether written, kept or neither.
    void photoEnded(const QString &path, const BatchOutcome &outcome, const QString &result);
    void progressChanged();
    /// The queue is empty.
    void ended(const SaveQueue::Summary &summary);

private:
    struct Job
    {
        Order order;
        Options options;
        double weight = 0; ///< In pixels; 0 if not known yet.
        double share = 0;  ///< Of the work, done.
        bool begun = false;
        bool withdrawn = false; ///< It was taken out while it waited; its outcome is not reported.
        bool ended = false;
        QString result;
    };
    /// What the batch's threads report.
    struct News
    {
        std::size_t job;
        std::optional<BatchRunner::Stage> stage;
        BatchOutcome outcome; ///< Without a stage.
    };

    void stageBegins(int item, BatchRunner::Stage stage) override;
    void finished(int item, const BatchOutcome &outcome) override;
    bool mayBegin(int item) override;

    void setPaused(bool next);
    void waitForQuiet(std::unique_lock<std::mutex> &lock);
    void timeWork(); ///< Call it where working begins or ends.
    void beginRound();
    std::vector<BatchItem> plan(const std::vector<Order> &orders, const Options &options, const QStringList &series);
    void endRound();
    void end(const Job &job, const BatchOutcome &outcome);
    bool withdraw(const QString &path); ///< From the round, if it waits there.
    bool isWaiting(const QString &path) const;
    void post(News fresh);
    void takeNews();

    HostApplication &application;
    BatchRunner runner;
    const QString processName;
    const int jobCount;

    std::vector<Job> line;  ///< What waits for the next round.
    QStringList everything; ///< The series.
    Summary summary;
    int endedCount = 0;
    double endedWeight = 0;
    double savedWeight = 0; ///< Without those that were not saved.
    double doneSeconds = 0; ///< How long the queue has worked before the present stretch.
    QElapsedTimer stretch;  ///< Valid while the queue works.
    bool quitting = false;
    std::thread worker;

    mutable std::mutex mutex; ///< Guards what follows.
    std::condition_variable woken;
    std::vector<Job> round; ///< What the batch works on, in the order of its items.
    std::vector<News> news;
    bool paused = false;
    bool stopping = false;
    std::chrono::steady_clock::time_point quietUntil;
};
