#include "kernel32.h"

#include <cstdint>

#include <sys/mman.h>

namespace {

constexpr std::size_t kPage = std::size_t(2) << 20;

std::size_t gapBefore(const void *block)
{
    return -reinterpret_cast<std::uintptr_t>(block) & (kPage - 1);
}

} // namespace

void AdviseHugePages(void *block, std::size_t bytes)
{
    // The C library maps blocks of this size one by one, so that the wish ends with the block.
    constexpr std::size_t kOwnMapping = std::size_t(32) << 20;
    if (!block || bytes < kOwnMapping)
        return;
    const std::size_t gap = gapBefore(block);
    madvise(static_cast<char *>(block) + gap, (bytes - gap) & ~(kPage - 1), MADV_HUGEPAGE);
}

void *ReserveMemory(std::size_t bytes)
{
    // One huge page more than needed; what lies before the border and behind the end goes back at once.
    if (bytes > SIZE_MAX - kPage)
        return nullptr;
    const std::size_t mapped = bytes + kPage;
    void *const memory = mmap(nullptr, mapped, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED)
        return nullptr;
    const std::size_t gap = gapBefore(memory);
    char *const start = static_cast<char *>(memory) + gap;
    if (gap > 0)
        munmap(memory, gap);
    if (gap < kPage)
        munmap(start + bytes, kPage - gap);
    madvise(start, bytes, MADV_HUGEPAGE); // a wish: without huge pages it is only slower
    return start;
}

void ReleaseMemory(void *memory, std::size_t bytes)
{
    if (memory)
        munmap(memory, bytes);
}
