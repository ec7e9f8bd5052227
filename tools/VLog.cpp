#include "VLog.h"

VLog *logInstance = nullptr;

static VLog *ownLog = nullptr;

void initLog(VLog *shared)
{
    if (shared) {
        logInstance = shared;
    } else {
        releaseLog();
        logInstance = ownLog = new VLog;
    }
}

void releaseLog()
{
    delete ownLog;
    ownLog = logInstance = nullptr;
}
