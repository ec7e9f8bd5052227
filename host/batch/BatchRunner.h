#pragma once

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <vector>

#include <QCoreApplication>

#include "BatchItem.h"
#include "HostApplication.h"
#include "VIPluginOne2One.h"

/// Runs a process over many photographs, several at a time, so that reading, engine and writing of neighbours overlap. It goes on
/// after a failure, and a failed or stopped photograph leaves no result behind, but an older one as it was. A photograph that
/// would take more memory than is free when nothing else is in hand is refused.
class BatchRunner
{
    Q_DECLARE_TR_FUNCTIONS(BatchRunner)

public:
    enum class Stage { Reading, Dehazing, Saving };

    /// Told what goes on, from the threads of the batch but never from two at once.
    class Observer
    {
    public:
        virtual ~Observer() = default;
        virtual void stageBegins(int item, Stage stage) = 0;
        virtual void finished(int item, const BatchOutcome &outcome) = 0;
    };

    BatchRunner(HostApplication &host, VIPluginOne2One &process, Observer &observer);

    /// Works on all items and returns when each has had its outcome; begins them in their order. `jobs` photographs at a time, or
    /// for 0 as many as keep all cores busy and fit into the free memory.
    void run(const std::vector<BatchItem> &items, int jobs);

    /// No further photograph begins, and those in hand end before their result is written, unless that has begun. May be called
    /// on any thread and from a signal handler.
    void stop() { stopping = true; }
    /// Takes a stop back, before the next batch.
    void resume() { stopping = false; }

    /// From this width on photographs come back from the engine unchanged, since the size of its analysis copy wraps. They are
    /// handed to it with rows for columns, and refused where their height is no smaller.
    static constexpr int kRefusedWidth = 21475;

private:
    void work(const std::vector<BatchItem> &items);
    BatchOutcome process(const BatchItem &item, int index);
    /// Writes the result or throws. Notes the stage it is in, and in `outcome` the reason of a failure, why a result is
    /// unchanged, and the strength of an automatic item as soon as it is known.
    void attempt(const BatchItem &item, int index, std::optional<Stage> &stage, BatchOutcome &outcome);
    void reserve(qint64 bytes);
    void giveBack(qint64 bytes);

    HostApplication &application;
    VIPluginOne2One &one2one;
    Observer &watcher;
    std::atomic<bool> stopping{false};
    std::atomic<std::size_t> next{0};
    std::mutex reportMutex;
    std::mutex memoryMutex; ///< Over the next four.
    std::condition_variable memoryFreed;
    qint64 memoryLeft = 0;
    qint64 memoryForOne = 0; ///< What was free when last no photograph was in hand.
    int running = 0;
};
