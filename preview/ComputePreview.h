#pragma once

#include <QMutex>
#include <QThread>

#include <omp.h>

#include "HazeState.h"
#include "VImage.h"

class NimbraOne2One;

/// The worker behind the preview panel: runs the engine on a copy of the preview image and hands what belongs to the image back
/// to the image's record. When to run is the panel's affair: it stages the input under `mutex` and starts the thread. A run that
/// has begun goes to its end, and whatever the engine throws ends it quietly: the record receives nothing, `work` holds the
/// untouched copy (or nothing, if there was no memory for one), and `finished` comes as ever.
///
/// `work` and `workSettings` belong to the worker from the start until `finished` has arrived on the interface thread, and to the
/// panel otherwise. Where both locks are held, `busy` is taken before `mutex`.
class ComputePreview : public QThread
{
    Q_OBJECT

public:
    ComputePreview(NimbraOne2One *process, QObject *parent);
    /// The thread has ended by then.
    ~ComputePreview() override;

    void run() override;

    NimbraOne2One *process; ///< Whose engine to call. Not owned.
    QMutex mutex;           ///< Guards target, source, pendingSettings and the record's map; not held while the engine works.
    HazeState *target = nullptr; ///< The image's own record, which receives the results. Not owned.
    VImage work;                 ///< What the engine changes in place, and the result.
    /// The run's own copy of the record. Its map is the record's and is never freed here.
    HazeState workSettings = {};
    VImage *source = nullptr;       ///< The preview image, or null: nothing to do. Not owned.
    HazeState pendingSettings = {}; ///< Staged copy of the image's record.
    omp_lock_t busy;                ///< Held for the whole of a run; whoever else holds it keeps the next run from beginning.
};
