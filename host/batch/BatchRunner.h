#pragma once

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <vector>

#include <QCoreApplication>

#include "BatchItem.h"
#include "HostApplication.h"
#include "VIPluginOne2One.h"

/// Runs a process over many photographs, several at a time, so that one is read or saved while the engine works on another. It
/// continues after a failure. A photograph that fails or is stopped leaves no new result, and an older result is not touched. A
/// photograph that needs more memory than is free while no other is in progress is refused. Folders for the results are created
/// when they are needed, and removed again if they remain empty.
class BatchRunner
{
    Q_DECLARE_TR_FUNCTIONS(BatchRunner)

public:
    enum class Stage { Reading, Dehazing, Saving };

    /// Receives the progress, on the threads of the batch but, except for mayBegin, never on two at once.
    class Observer
    {
    public:
        virtual ~Observer() = default;
        virtual void stageBegins(int item, Stage stage) = 0;
        virtual void finished(int item, const BatchOutcome &outcome) = 0;
        /// Asked before an item is begun, on several threads at once; may block, which holds the batch up. Without permission the
        /// item counts as stopped.
        virtual bool mayBegin(int /*item*/) { return true; }
    };

    /// What a run would take.
    struct Forecast
    {
        PhotoHead head;
        qint64 memoryBytes = 0;
    };

    BatchRunner(HostApplication &host, VIPluginOne2One &process, Observer &observer);

    /// What is known about an item before its run: nothing if there is nothing that speaks against it, otherwise the outcome that
    /// it would have. Reads no more than the head of the photograph, and writes nothing.
    std::optional<BatchOutcome> foresee(const BatchItem &item, Forecast &forecast);

    /// Works on all items, beginning them in their order, and returns when each has had its outcome. Works on `jobs` photographs
    /// at a time; 0 means as many as keep all cores busy and fit into the free memory. Before, removes what killed batches left
    /// behind in the folders of the results.
    void run(const std::vector<BatchItem> &items, int jobs);

    /// Begins no further photograph, and ends those in progress without a result, except where the result is being written
    /// already. May be called on any thread and from a signal handler.
    void stop() { stopping = true; }
    /// Cancels an earlier stop(), before the next batch.
    void resume() { stopping = false; }

    /// The engine returns photographs of this width and above unchanged, because the size of its analysis copy overflows. They
    /// are handed to it transposed, and refused if their height is not below this limit either.
    static constexpr int kRefusedWidth = 21475;

    /// The most memory, in bytes, that one photograph takes, with `facts` as the engine sees them; `untouched` at strength 0.
    static qint64 memoryFor(const PhotoHead &facts, bool untouched);

private:
    void work(const std::vector<BatchItem> &items);
    BatchOutcome process(const BatchItem &item, int index);
    /// Writes the result or throws. Notes the stage it is in, and in `outcome` the reason of a failure, why a result is
    /// unchanged, the strength of an automatic item as soon as it is known, and as message what the result lacks.
    void attempt(const BatchItem &item, int index, std::optional<Stage> &stage, BatchOutcome &outcome);
    void reserve(qint64 bytes);
    void giveBack(qint64 bytes);

    HostApplication &application;
    VIPluginOne2One &one2one;
    Observer &watcher;
    std::atomic<bool> stopping{false};
    std::atomic<std::size_t> next{0};
    std::atomic<int> workers{0}; ///< Threads that still have photographs to work on.
    std::mutex reportMutex;
    std::mutex memoryMutex; ///< Guards the next four.
    std::condition_variable memoryFreed;
    qint64 memoryLeft = 0;
    qint64 memoryForOne = 0; ///< What was free the last time that no photograph was in progress.
    int running = 0;
};
