#include "startLibraries.h"

#include <utility>

#include <omp.h>

#include "VCpuTopology.h"
#include "VLog.h"
#include "VPoolMem.h"
#include "VTempManager.h"
#include "kernel32.h"
#include "loadOrder.h"
#include "threadCount.h"

VToolsContext toolsContext;

namespace {

bool started = false;
bool poolIsOwn = false; ///< Made because the host lends none; likewise the next.
bool foldersAreOwn = false;
std::int32_t *sharedValue = nullptr;

void takeShared(const VToolsContext &context)
{
    initLog(context.log);
    initTopology(context.topology);
    threadCount = *context.threadCount;
    coreCount = *context.coreCount;
    poolIsOwn |= !context.pool && !memoryPool;
    foldersAreOwn |= !context.tempManager && !tempManager;
    initPool(context.pool);
    initTempManager(context.tempManager);
    sharedValue = context.sharedValue;
}

void makeOwn()
{
    initLog(nullptr);
    initTopology(nullptr);
    kmp_set_blocktime(0);                                  // fixed: hosts rely on it, for the whole process
    omp_get_max_threads();                                 // starts the run-time before the topology is walked
    omp_set_schedule(omp_sched_guided, /*chunk_size=*/10); // fixed: no loop here has a run-time schedule, a host's may
    threadCount = physicalCores() * threadsPerCore();      // fixed: hosts rely on the truncated quotient
    coreCount = physicalCores();
    if (const auto quota = std::int32_t(GetProcessorQuota()); quota > 0 && quota < threadCount)
        threadCount = quota;
    initPool(nullptr);
    initTempManager(nullptr);
    sharedValue = new std::int32_t(0);
    started = true;
}

} // namespace

void startTools(VToolsContext *context)
{
    if (started)
        return;
    registerToolsResources();
    if (context)
        takeShared(*context);
    else
        makeOwn();
    toolsContext = {logInstance, &cpuTopology, memoryPool, tempManager, sharedValue, &threadCount, &coreCount};
}

void stopTools()
{
    if (!started) {
        // What was lent is forgotten, so that a later start alone makes its own objects.
        if (std::exchange(poolIsOwn, false))
            releasePool();
        if (std::exchange(foldersAreOwn, false))
            releaseTempManager();
        logInstance = nullptr;
        cpuTopology = nullptr;
        memoryPool = nullptr;
        tempManager = nullptr;
        sharedValue = nullptr;
        toolsContext = {};
        return;
    }
    releasePool();
    releaseTempManager();
    releaseTopology();
    releaseLog();
    delete sharedValue;
    sharedValue = nullptr;
    toolsContext = {};
    started = false;
}
