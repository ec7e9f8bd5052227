#include "VPoolMem.h"

VPoolMem *memoryPool = nullptr;

static VPoolMem *ownPool = nullptr;

VPoolMem::VPoolMem()
{
    omp_init_lock(&lock);
}

VPoolMem::~VPoolMem()
{
    for (std::int32_t i = 0; i < blockCount; ++i)
        delete[] blocks[i].memory;
    delete[] blocks;
    VPoolMemBloc *dropped = nullptr;
    while (freeBlocks.try_pop(dropped)) {
    }
    omp_destroy_lock(&lock);
}

void initPool(VPoolMem *shared)
{
    if (shared) {
        memoryPool = shared;
    } else if (!memoryPool) {
        if (!ownPool)
            ownPool = new VPoolMem;
        memoryPool = ownPool;
    }
}

void releasePool()
{
    delete ownPool;
    ownPool = memoryPool = nullptr;
}
