#include "VPoolMem.h"

#include <memory>

VPoolMem *memoryPool = nullptr;

static std::unique_ptr<VPoolMem> ownPool;

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
        ownPool = std::make_unique<VPoolMem>();
        memoryPool = ownPool.get();
    }
}

void releasePool()
{
    ownPool.reset();
    memoryPool = nullptr;
}
