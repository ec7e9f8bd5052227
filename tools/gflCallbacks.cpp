#include "gflCallbacks.h"

#include <cstdlib>

void *gflAllocCallback(std::size_t bytes, void *)
{
    return std::malloc(bytes);
}

void *gflReallocCallback(void *block, std::size_t bytes, void *)
{
    return std::realloc(block, bytes);
}

void gflFreeCallback(void *block, void *)
{
    std::free(block);
}
