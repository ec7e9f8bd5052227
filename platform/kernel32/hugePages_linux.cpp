#include "kernel32.h"

#include <sys/mman.h>

void AdviseHugePages(void *block, std::size_t bytes)
{
    // The C library maps blocks of this size one by one, so that the wish ends with the block.
    constexpr std::size_t kOwnMapping = std::size_t(32) << 20;
    constexpr std::size_t kPage = std::size_t(2) << 20;
    if (!block || bytes < kOwnMapping)
        return;
    const std::size_t gap = -reinterpret_cast<std::uintptr_t>(block) & (kPage - 1);
    madvise(static_cast<char *>(block) + gap, (bytes - gap) & ~(kPage - 1), MADV_HUGEPAGE);
}
