#include "ComputePreview.h"

#include <algorithm>

#include "HandOverLocker.h"
#include "NimbraOne2One.h"

namespace {

class BusyGuard
{
public:
    explicit BusyGuard(omp_lock_t &lockToHold) : lock(lockToHold) { omp_set_lock(&lock); }
    ~BusyGuard() { omp_unset_lock(&lock); }
    BusyGuard(const BusyGuard &) = delete;
    BusyGuard &operator=(const BusyGuard &) = delete;

private:
    omp_lock_t &lock;
};

} // namespace

ComputePreview::ComputePreview(NimbraOne2One *processToCall, QObject *parent) : QThread(parent), process(processToCall)
{
    omp_init_lock(&busy);
}

ComputePreview::~ComputePreview()
{
    omp_destroy_lock(&busy);
}

void ComputePreview::run()
{
    const BusyGuard guard(busy);
    HazeState *record = nullptr;
    const float *cachedMap = nullptr;
    try {
        {
            const HandOverLocker locker(mutex);
            if (!source)
                return; // the image has been replaced meanwhile; a new request follows
            work.Assign(*source);
            workSettings = pendingSettings;
            cachedMap = workSettings.transmission;
            record = target;
        }
        process->RemoveHaze(work, workSettings);
    } catch (...) {
        // This thread has no caller to catch it. The engine writes pixels only in its last pass, after everything that can fail,
        // so `work` is the untouched copy, unless the copying itself failed.
        if (!record)
            work.Free();
        else if (workSettings.transmission != cachedMap)
            delete[] workSettings.transmission;
        workSettings.transmission = nullptr;
        return;
    }
    const HandOverLocker locker(mutex);
    record->transmission = workSettings.transmission;
    std::copy_n(workSettings.airlight, 3, record->airlight);
}
