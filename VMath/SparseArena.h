#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <mutex>
#include <new>
#include <utility>
#include <vector>

/// Memory that only grows and is released all at once, for the many small blocks of one assembly. Safe on several threads: each
/// thread takes its blocks from its own pieces. Uses huge pages where the system has them. All bytes of a block are 0. Small
/// blocks, medium ones and those of more than a piece are kept apart: medium ones may never be written, and then cost address
/// space only.
class SparseArena
{
public:
    SparseArena() = default;
    ~SparseArena();
    SparseArena(const SparseArena &) = delete;
    SparseArena &operator=(const SparseArena &) = delete;

    /// `alignment`: a power of 2, at most 4096. Throws std::bad_alloc.
    void *allocate(std::size_t bytes, std::size_t alignment);
    /// From now on, the destructor gives the memory to the next system that its thread solves.
    void giveToSolver() { given = true; }

private:
    struct Piece
    {
        char *next = nullptr;
        char *end = nullptr;
    };
    struct alignas(64) Pieces
    {
        std::atomic<unsigned> owner{0}; ///< Number of the thread; 0 until there is one.
        Piece small;
        Piece medium;
    };
    struct Region
    {
        char *memory;
        std::size_t bytes;
        std::size_t used;
    };
    /// Regions for one kind of block. No huge page holds blocks of two kinds.
    struct Zone
    {
        Piece rest; ///< What is left of the last region.
        std::vector<Region> regions;
    };

    static void *take(Piece &piece, std::size_t bytes, std::size_t alignment);
    void *takeFrom(Pieces &pieces, std::size_t bytes, std::size_t alignment);
    /// A piece of at least `bytes` bytes, cut from what is left of a region, or from a new one if that is too little.
    Piece cut(std::size_t bytes, Zone &zone);

    std::array<Pieces, 64> owned; ///< Each is used by its owner only, without a lock.
    Pieces shared;                ///< For threads whose place in `owned` has another owner.
    std::mutex sharedLock;
    std::mutex lock; ///< Guards the members below.
    Zone small;
    Zone medium;
    Zone large;
    bool given = false;
};

/// Whether a default-constructed U is all zero bytes. Nothing is left of this in optimised code but the answer, so that a loop
/// which constructs nothing but zeros disappears with it.
template<typename U>
inline bool zeroByDefault()
{
    alignas(U) std::array<unsigned char, sizeof(U)> bytes{};
    U *const probe = ::new (bytes.data()) U();
    bool zero = true;
    for (const unsigned char byte : bytes)
        zero = zero && byte == 0;
    probe->~U();
    return zero;
}

/// Lets a container allocate from an arena. Single blocks are never released and elements never destroyed: whatever a container
/// on an arena holds must own nothing outside the arena.
template<typename T>
class SparseAllocator
{
public:
    using value_type = T;

    explicit SparseAllocator(SparseArena &memory) : arena(&memory) {}
    template<typename U>
    SparseAllocator(const SparseAllocator<U> &other) : arena(other.arena)
    {
    }

    T *allocate(std::size_t count)
    {
        if (count > std::size_t(-1) / sizeof(T))
            throw std::bad_alloc();
        return static_cast<T *>(arena->allocate(count * sizeof(T), alignof(T)));
    }
    void deallocate(T *, std::size_t) {}
    /// An element whose default is all zero exists already: writing it would touch its page for the first time.
    template<typename U, typename... Arguments>
    void construct(U *place, Arguments &&...arguments)
    {
        if constexpr (sizeof...(Arguments) == 0) {
            if (zeroByDefault<U>())
                return;
        }
        ::new (static_cast<void *>(place)) U(std::forward<Arguments>(arguments)...);
    }
    template<typename U>
    void destroy(U *)
    {
    }

    template<typename U>
    bool operator==(const SparseAllocator<U> &other) const
    {
        return arena == other.arena;
    }
    template<typename U>
    bool operator!=(const SparseAllocator<U> &other) const
    {
        return arena != other.arena;
    }

    SparseArena *arena;
};
