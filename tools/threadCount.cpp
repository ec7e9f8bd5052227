#include "threadCount.h"

std::int32_t threadCount = 1;
std::int32_t coreCount = 1;
