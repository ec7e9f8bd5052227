#include "SparseArena.h"

#include <algorithm>
#include <cstdint>

#include "kernel32.h"
#include "mkl.h"
#include "threadCount.h"

namespace {

// A region is only address space until it is touched, so it may be large; a piece is the most that a thread may leave unused.
constexpr std::size_t kRegionBytes = std::size_t(64) << 20;
constexpr std::size_t kPieceBytes = std::size_t(256) << 10;
constexpr std::size_t kMediumBlock = 1024;
constexpr std::size_t kHugePage = std::size_t(2) << 20;
constexpr std::size_t kSharedBlock = 2 * kHugePage;

/// From 1.
unsigned numberOfThisThread()
{
    static std::atomic<unsigned> threads{0};
    static thread_local const unsigned number = threads.fetch_add(1, std::memory_order_relaxed) + 1;
    return number;
}

/// The system clears a page when it is first touched, which takes about as long as filling it: in a large block the team shares
/// this.
void touchPages(char *block, std::size_t bytes)
{
    const auto pages = std::ptrdiff_t((bytes + kHugePage - 1) / kHugePage);
#pragma omp parallel for schedule(static) num_threads(int(std::min(pages, std::ptrdiff_t(std::max(1, threadCount)))))
    for (std::ptrdiff_t page = 0; page < pages; ++page)
        *const_cast<volatile char *>(block + std::size_t(page) * kHugePage) = 0;
}

} // namespace

SparseArena::~SparseArena()
{
    for (const Zone *zone : {&large, &small, &medium}) {
        for (const Region &region : zone->regions) {
            // Only pages that have been written save work; those of medium blocks may not have been.
            const std::size_t written = !given || zone == &medium ? 0 : (region.used + kHugePage - 1) / kHugePage * kHugePage;
            if (written > 0)
                mklGiveMemory(region.memory, written, ReleaseMemory);
            if (written < region.bytes)
                ReleaseMemory(region.memory + written, region.bytes - written);
        }
    }
}

void *SparseArena::take(Piece &piece, std::size_t bytes, std::size_t alignment)
{
    const std::size_t gap = -reinterpret_cast<std::uintptr_t>(piece.next) & (alignment - 1);
    const auto left = std::size_t(piece.end - piece.next);
    if (left < gap || left - gap < bytes)
        return nullptr;
    char *block = piece.next + gap;
    piece.next = block + bytes;
    return block;
}

void *SparseArena::allocate(std::size_t bytes, std::size_t alignment)
{
    const unsigned number = numberOfThisThread();
    Pieces &own = owned[number % owned.size()];
    unsigned owner = own.owner.load(std::memory_order_relaxed);
    if (owner == 0 && own.owner.compare_exchange_strong(owner, number, std::memory_order_relaxed))
        owner = number;
    if (owner == number)
        return takeFrom(own, bytes, alignment);
    const std::lock_guard<std::mutex> guard(sharedLock);
    return takeFrom(shared, bytes, alignment);
}

void *SparseArena::takeFrom(Pieces &pieces, std::size_t bytes, std::size_t alignment)
{
    if (bytes > kPieceBytes) {
        char *const block = cut(bytes, large).next; // on a page boundary, which meets any permitted alignment
        if (bytes >= kSharedBlock)
            touchPages(block, bytes);
        return block;
    }
    const bool isSmall = bytes < kMediumBlock;
    Piece &piece = isSmall ? pieces.small : pieces.medium;
    void *block = take(piece, bytes, alignment);
    if (block == nullptr) {
        piece = cut(bytes, isSmall ? small : medium);
        block = take(piece, bytes, alignment);
    }
    return block;
}

SparseArena::Piece SparseArena::cut(std::size_t bytes, Zone &zone)
{
    constexpr std::size_t kPage = 4096;
    if (bytes > std::size_t(-1) / 2)
        throw std::bad_alloc();
    const std::size_t wanted = std::max(kPieceBytes, (bytes + kPage - 1) / kPage * kPage);

    const std::lock_guard<std::mutex> guard(lock);
    if (std::size_t(zone.rest.end - zone.rest.next) < wanted) {
        const std::size_t size = std::max(kRegionBytes, (wanted + kHugePage - 1) / kHugePage * kHugePage);
        zone.regions.reserve(zone.regions.size() + 1);
        auto *const start = static_cast<char *>(ReserveMemory(size));
        if (!start)
            throw std::bad_alloc();
        zone.regions.push_back({start, size, 0});
        zone.rest = {start, start + size};
    }
    const Piece piece{zone.rest.next, zone.rest.next + wanted};
    zone.rest.next += wanted;
    zone.regions.back().used += wanted;
    return piece;
}
