#include "FailingAllocations.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <new>

#include <sys/mman.h>

namespace {

std::atomic<bool> counting{false};
std::atomic<long> calls{0};
std::atomic<long> failing{0};

bool failsNow()
{
    return counting && ++calls == failing;
}

} // namespace

FailingAllocations::FailingAllocations(long number)
{
    calls = 0;
    failing = number;
    counting = true;
}

FailingAllocations::~FailingAllocations()
{
    counting = false;
}

long FailingAllocations::count()
{
    return calls;
}

extern "C" {

#define ALLOCATES(name, parameters, arguments, failure)                                                                          \
    void *__real_##name parameters;                                                                                              \
    void *__wrap_##name parameters                                                                                               \
    {                                                                                                                            \
        if (failsNow())                                                                                                          \
            failure;                                                                                                             \
        return __real_##name arguments;                                                                                          \
    }

ALLOCATES(malloc, (std::size_t bytes), (bytes), return nullptr)
ALLOCATES(calloc, (std::size_t count, std::size_t bytes), (count, bytes), return nullptr)
ALLOCATES(realloc, (void *block, std::size_t bytes), (block, bytes), return nullptr)
ALLOCATES(aligned_alloc, (std::size_t alignment, std::size_t bytes), (alignment, bytes), return nullptr)
ALLOCATES(mmap, (void *place, std::size_t bytes, int protection, int flags, int file, off_t offset),
          (place, bytes, protection, flags, file, offset), return MAP_FAILED)
// new and new[]: plain, aligned and nothrow.
ALLOCATES(_Znwm, (std::size_t bytes), (bytes), throw std::bad_alloc())
ALLOCATES(_Znam, (std::size_t bytes), (bytes), throw std::bad_alloc())
ALLOCATES(_ZnwmSt11align_val_t, (std::size_t bytes, std::align_val_t alignment), (bytes, alignment), throw std::bad_alloc())
ALLOCATES(_ZnamSt11align_val_t, (std::size_t bytes, std::align_val_t alignment), (bytes, alignment), throw std::bad_alloc())
ALLOCATES(_ZnwmRKSt9nothrow_t, (std::size_t bytes, const std::nothrow_t &tag), (bytes, tag), return nullptr)

int __real_posix_memalign(void **block, std::size_t alignment, std::size_t bytes);
int __wrap_posix_memalign(void **block, std::size_t alignment, std::size_t bytes)
{
    return failsNow() ? ENOMEM : __real_posix_memalign(block, alignment, bytes);
}
}
