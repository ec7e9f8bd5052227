#include "SparseArena.h"

#include <algorithm>
#include <cstdint>

#include "kernel32.h"

namespace {

// A region is only address space until it is touched, so it may be large; a piece is the most that a thread may leave unused.
constexpr std::size_t kRegionBytes = std::size_t(64) << 20;
constexpr std::size_t kPieceBytes = std::size_t(256) << 10;
constexpr std::size_t kLargeBlock = 1024;

unsigned numberOfThisThread()
{
    static std::atomic<unsigned> threads{0};
    static thread_local const unsigned number = threads.fetch_add(1, std::memory_order_relaxed);
    return number;
}

} // namespace

SparseArena::~SparseArena()
{
    for (const Region &region : regions)
        ReleaseMemory(region.memory, region.bytes);
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
    Slot &slot = slots[numberOfThisThread() % slots.size()];
    while (slot.taken.test_and_set(std::memory_order_acquire)) {
    }
    struct Opener
    {
        std::atomic_flag &flag;
        ~Opener() { flag.clear(std::memory_order_release); }
    } opener{slot.taken};

    Piece &piece = bytes < kLargeBlock ? slot.small : slot.large;
    void *block = take(piece, bytes, alignment);
    if (block == nullptr) {
        // After a block larger than a piece the thread keeps whichever piece has more room left.
        Piece fresh = cut(bytes);
        block = take(fresh, bytes, alignment);
        if (fresh.end - fresh.next > piece.end - piece.next)
            piece = fresh;
    }
    return block;
}

SparseArena::Piece SparseArena::cut(std::size_t bytes)
{
    // Pieces start on page boundaries, so that any permitted alignment is met without a gap.
    constexpr std::size_t kPage = 4096;
    if (bytes > std::size_t(-1) / 2)
        throw std::bad_alloc();
    const std::size_t wanted = std::max(kPieceBytes, (bytes + kPage - 1) / kPage * kPage);

    const std::lock_guard<std::mutex> guard(lock);
    if (std::size_t(rest.end - rest.next) < wanted) {
        const std::size_t size = std::max(kRegionBytes, wanted);
        regions.reserve(regions.size() + 1);
        auto *const start = static_cast<char *>(ReserveMemory(size));
        if (!start)
            throw std::bad_alloc();
        regions.push_back({start, size});
        rest = {start, start + size};
    }
    const Piece piece{rest.next, rest.next + wanted};
    rest.next += wanted;
    return piece;
}
