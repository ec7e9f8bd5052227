#include "gflCallbacks.h"

#include <cstdlib>

#include "kernel32.h"

void *gflAllocCallback(std::size_t bytes, void *)
{
    void *block = std::malloc(bytes);
    AdviseHugePages(block, bytes);
    return block;
}

void *gflReallocCallback(void *block, std::size_t bytes, void *)
{
    return std::realloc(block, bytes);
}

void gflFreeCallback(void *block, void *)
{
    std::free(block);
}
