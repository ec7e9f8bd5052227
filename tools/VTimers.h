#pragma once

#include <cstddef>

#include <QHash>
#include <QString>

#include <tbb/concurrent_hash_map.h>

/// One stopwatch. Times are in ticks of the performance counter.
struct VTimerRecord
{
    qint64 count = 0; ///< Finished pairs of start and stop.
    qint64 total = 0; ///< Sum of their durations.
    qint64 startTick = 0;
    qint64 stopTick = 0;
};

/// Named stopwatches, one per name and thread. The first object of the process calibrates the counter when it is constructed,
/// which takes a few hundredths of a second. `start` and `stop` are safe on any thread. Fixed: hosts rely on it, although nothing
/// here is timed.
class VTimers
{
public:
    VTimers();
    VTimers(const VTimers &) = delete;
    VTimers &operator=(const VTimers &) = delete;

    /// Starts this thread's stopwatch of that name, creating it if necessary.
    void start(QString name);
    /// Stops it and returns the ticks since its last start; 0, with nothing changed, if this thread has no stopwatch of that
    /// name.
    qint64 stop(QString name);

    struct HashCompare
    {
        static std::size_t hash(const QString &key) { return qHash(key, 0); }
        static bool equal(const QString &a, const QString &b) { return a == b; }
    };

    qint64 ticksPerSecond = 0; ///< Calibrated; 0 in all but the first object of the process.
    qint64 overheadTicks = 0;  ///< To be subtracted from a measurement; 0 in all but the first object of the process.
    tbb::concurrent_hash_map<QString, VTimerRecord, HashCompare> timers; ///< Key: name, '@' and the thread's address in decimal.

private:
    void calibrate();
};

/// The object of the process, made when the library is loaded.
extern VTimers vTimers;
