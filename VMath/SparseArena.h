#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <mutex>
#include <new>
#include <vector>

/// Memory that only grows and is given back in one piece, for the many small blocks of one assembly. Safe on several threads:
/// each has a piece of its own to take blocks from. Where the system has huge pages, the memory lies on them.
class SparseArena
{
public:
    SparseArena() = default;
    ~SparseArena();
    SparseArena(const SparseArena &) = delete;
    SparseArena &operator=(const SparseArena &) = delete;

    /// `alignment`: a power of 2, at most 4096. Throws std::bad_alloc.
    void *allocate(std::size_t bytes, std::size_t alignment);

private:
    struct Piece
    {
        char *next = nullptr;
        char *end = nullptr;
    };
    /// The piece of those threads that have this number; mostly that is one, and the flag is never fought for.
    struct alignas(64) Slot
    {
        std::atomic_flag taken = ATOMIC_FLAG_INIT;
        Piece piece;
    };
    struct Region
    {
        char *memory;
        std::size_t bytes;
    };

    static void *take(Piece &piece, std::size_t bytes, std::size_t alignment);
    /// A piece of at least `bytes`, cut from the current region; a new region if it is used up.
    Piece cut(std::size_t bytes);

    std::array<Slot, 64> slots;
    std::mutex lock; ///< Guards what follows.
    Piece rest;      ///< What is left of the last region.
    std::vector<Region> regions;
};

/// The arena as a container's allocator. Blocks are not given back one by one. Neither are elements destroyed: whatever a
/// container on an arena holds must own nothing outside of the arena.
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
