#pragma once

#include <QMutex>
#include <QThread>

#include <omp.h>

#include "HazeState.h"
#include "VImage.h"

class NimbraOne2One;

/// The worker behind the preview panel: runs the engine on a copy of the preview image and stores what depends only on the image
/// in the image's record. The panel decides when to run: it stages the input under `mutex` and starts the thread. A run that has
/// begun is not interrupted, and whatever the engine throws ends it quietly: the record receives nothing, `work` holds the
/// untouched copy (or nothing, if there was no memory for one), and `finished` is emitted as usual.
///
/// `work` and `workSettings` belong to the worker from the start until `finished` has arrived on the interface thread, and to the
/// panel otherwise. Where both locks are held, `busy` is taken before `mutex`.
class ComputePreview : public QThread
{
    Q_OBJECT

public:
    ComputePreview(NimbraOne2One *process, QObject *parent);
    /// The thread must have ended.
    ~ComputePreview() override;

    void run() override;

    NimbraOne2One *process; ///< Whose engine to call. Not owned.
    QMutex mutex;           ///< Guards target, source, pendingSettings and the record's map; not held while the engine works.
    HazeState *target = nullptr; ///< The image's record, which receives the results. Not owned.
    VImage work;                 ///< The copy that the engine changes in place: the result.
    /// The run's copy of the record. Its map belongs to the record and is never freed here.
    HazeState workSettings = {};
    VImage *source = nullptr;       ///< The preview image, or null if there is nothing to do. Not owned.
    HazeState pendingSettings = {}; ///< Staged copy of the image's record.
    omp_lock_t busy;                ///< Held during the whole of a run; while someone else holds it, the next run can't begin.
};
