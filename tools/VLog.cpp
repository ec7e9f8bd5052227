#include "VLog.h"

#include <memory>

VLog *logInstance = nullptr;

static std::unique_ptr<VLog> ownLog;

void initLog(VLog *shared)
{
    if (!shared)
        ownLog = std::make_unique<VLog>();
    logInstance = shared ? shared : ownLog.get();
}

void releaseLog()
{
    ownLog.reset();
    logInstance = nullptr;
}
