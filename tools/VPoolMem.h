#pragma once

#include <atomic>
#include <cstdint>

#include <omp.h>
#include <tbb/cache_aligned_allocator.h>
#include <tbb/concurrent_queue.h>

/// One block of a pool, which owns the memory and frees it as an array.
struct VPoolMemBloc
{
    unsigned char *memory;
};

/// The pool of memory blocks that the libraries share. The plug-in takes no block from it: it carries the host's pool, or an
/// empty one of its own.
class VPoolMem
{
public:
    VPoolMem();
    /// Frees the blocks, then their table, and forgets the free ones: they only point into both. No other thread may use the
    /// pool.
    ~VPoolMem();
    VPoolMem(const VPoolMem &) = delete;
    VPoolMem &operator=(const VPoolMem &) = delete;

    omp_lock_t lock;
    std::int32_t countA = 0; ///< Spare, like the other two.
    std::int64_t countB = 0;
    std::int32_t blockCount = 0;    ///< Records in `blocks`.
    VPoolMemBloc *blocks = nullptr; ///< Array made with new[]; the pool owns it.
    tbb::concurrent_queue<VPoolMemBloc *, tbb::cache_aligned_allocator<VPoolMemBloc *>> freeBlocks;
    std::int32_t countC = 0;
    std::atomic<std::int64_t> countD{0};
};

/// The pool in use, or null: the one made here, or the host's.
extern VPoolMem *memoryPool;

/// With `shared` that one is taken; it stays its owner's. Otherwise an empty one is made if there is none.
void initPool(VPoolMem *shared);
/// Deletes the pool that was made here; a lent one is only forgotten. Harmless without one.
void releasePool();
