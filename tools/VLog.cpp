#include "VLog.h"

VLog *logInstance = nullptr;

void initLog(VLog *shared)
{
    logInstance = shared ? shared : new VLog;
}

void releaseLog()
{
    delete logInstance;
    logInstance = nullptr;
}
