#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <mutex>
#include <new>
#include <utility>
#include <vector>

/// Memory that only grows and is given back in one piece, for the many small blocks of one assembly. Safe on several threads:
/// each has pieces of its own to take blocks from. Where the system has huge pages, the memory lies on them. All bytes of a block
/// are 0. Small blocks and large ones lie apart, so that a large one that is never written takes address space only.
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
    /// The pieces of those threads that have this number; mostly that is one, and the flag is never fought for.
    struct alignas(64) Slot
    {
        std::atomic_flag taken = ATOMIC_FLAG_INIT;
        Piece small;
        Piece large;
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

/// Whether a new U without arguments is all zero, tried at load.
template<typename U>
inline const bool kZeroByDefault = [] {
    alignas(U) std::array<unsigned char, sizeof(U)> bytes{};
    U *const probe = ::new (bytes.data()) U();
    const bool zero = std::all_of(bytes.begin(), bytes.end(), [](unsigned char byte) { return byte == 0; });
    probe->~U();
    return zero;
}();

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
    /// An element whose default is all zero is there already: writing it would be the first touch of its page.
    template<typename U, typename... Arguments>
    void construct(U *place, Arguments &&...arguments)
    {
        if constexpr (sizeof...(Arguments) == 0) {
            if (kZeroByDefault<U>)
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
