#pragma once

#include <cstddef>
#include <vector>

/// Whole pages that a caller has given to a system, for blocks that live as long as this object.
class GivenMemory
{
public:
    using Release = void (*)(void *memory, std::size_t bytes);

    GivenMemory() = default;
    ~GivenMemory();
    GivenMemory(GivenMemory &&other) noexcept = default;
    GivenMemory &operator=(GivenMemory &&other) = delete;

    /// `memory` starts on a page boundary. Throws std::bad_alloc; then it still belongs to the caller.
    void add(void *memory, std::size_t bytes, Release release);
    /// A block aligned to 64 bytes, its contents arbitrary; null if no part has that much left.
    [[nodiscard]] void *take(std::size_t bytes);
    /// Releases the pages of which nothing has been taken.
    void releaseUnused();

private:
    struct Part
    {
        char *memory;
        std::size_t bytes;
        std::size_t taken;
        Release release;
    };

    std::vector<Part> parts;
};
