#pragma once

#include <atomic>
#include <cstdint>

#include <omp.h>
#include <tbb/cache_aligned_allocator.h>
#include <tbb/concurrent_queue.h>

/// One block of a pool. The pool owns `memory` and frees it as an array.
struct VPoolMemBloc
{
    unsigned char *memory;
};

/// The pool of memory blocks that the libraries share. Fixed: hosts rely on this layout, although the plug-in never takes a
/// block: it only holds the host's pool, or an empty one made here.
class VPoolMem
{
public:
    VPoolMem();
    /// Frees the blocks, then their table, and drops the entries of `freeBlocks`, which only point into that table. No other
    /// thread may use the pool.
    ~VPoolMem();
    VPoolMem(const VPoolMem &) = delete;
    VPoolMem &operator=(const VPoolMem &) = delete;

    omp_lock_t lock;
    std::int32_t countA = 0; ///< Spare, like the other counts.
    std::int64_t countB = 0;
    std::int32_t blockCount = 0;    ///< Records in `blocks`.
    VPoolMemBloc *blocks = nullptr; ///< Made with new[] and owned by the pool.
    tbb::concurrent_queue<VPoolMemBloc *, tbb::cache_aligned_allocator<VPoolMemBloc *>> freeBlocks;
    std::int32_t countC = 0;
    std::atomic<std::int64_t> countD{0};
};

/// The pool in use (made here, or the host's), or null.
extern VPoolMem *memoryPool;

/// Uses `shared`, which its owner keeps. If that is null, makes an empty pool unless there is one already.
void initPool(VPoolMem *shared);
/// Deletes a pool made here; a lent one is only forgotten. Harmless if there is none.
void releasePool();
