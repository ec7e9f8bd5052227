#pragma once

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

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
    /// What is done with a photograph whose result exists already.
    enum class Existing {
        ReplaceChanged, ///< Kept if it was made at the same strength and is not older than the photograph, or else replaced.
        ReplaceAll,
        KeepBoth, ///< The new result gets a number behind the tag.
        Skip
    };

    /// How results are written; each member as the option of the command line.
    struct Options
    {
        Existing existing = Existing::ReplaceChanged;
        QString folder;             ///< Absolute; empty for the photograph's own.
        QString tag;                ///< Empty for the plug-in's.
        std::optional<int> quality; ///< Of a JPEG.

        bool operator==(const Options &other) const;
    };

    /// One photograph to save.
    struct Order
    {
        QString path; ///< Absolute.
        WantedStrength strength;
        std::optional<int> resultStrength; ///< The one that its present result was made at, if known.
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
        int kept = 0;      ///< Results that existed and were not to be replaced. No failures.
        int failed = 0;
        int stopped = 0;
        double seconds = 0;
    };

    /// `jobs` is that of BatchRunner::run.
    SaveQueue(HostApplication &host, VIPluginOne2One &process, int jobs, QObject *parent = nullptr);
    /// Like quit().
    ~SaveQueue() override;

    /// Adds photographs. One that is waiting gets the new order in its place; one that is in work is saved again. `series` are
    /// all photographs that must keep their results: none of them is overwritten, and no other photograph gets a name that one
    /// of them has.
    void add(const QVector<Order> &orders, const Options &options, const QStringList &series);
    /// Adds a photograph that failed, with its order.
    void retry(const QString &path);
    /// Takes out a photograph that is waiting; one that is in work is saved.
    void drop(const QString &path);

    /// Begins no further photograph; those in work are saved.
    void pause();
    void resume();
    bool isPaused() const { return paused; }
    /// Drops what is waiting and ends what is in work without a result, except where the result is being written already.
    /// Returns at once; `ended` follows.
    void stop();
    /// The same before the program ends, and waits for the results that are being written. What it stops stays unfinished: no
    /// outcome is reported for it. Nothing can be added afterwards.
    void quit();

    bool isActive() const;
    /// The photographs that are waiting or in work, in their order.
    QVector<Order> unfinished() const;
    Progress progress() const;

    /// What the user reads in place of the command line's message for this outcome; empty if there is nothing to say.
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
        double pixels = 0;
    };

    void stageBegins(int item, BatchRunner::Stage stage) override;
    void finished(int item, const BatchOutcome &outcome) override;

    HostApplication &application;
    VIPluginOne2One &one2one;
    BatchRunner runner;
    const int jobCount;
    bool paused = false;
};
