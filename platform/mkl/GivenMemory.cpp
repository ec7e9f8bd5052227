#include "GivenMemory.h"

#include <algorithm>

namespace {

constexpr std::size_t kAlignment = 64;
constexpr std::size_t kHugePage = std::size_t(2) << 20; // a part of one is not returned: the system would have to split it

constexpr std::size_t roundUp(std::size_t bytes, std::size_t unit)
{
    return (bytes + unit - 1) / unit * unit;
}

} // namespace

GivenMemory::~GivenMemory()
{
    for (const Part &part : parts)
        part.release(part.memory, part.bytes);
}

void GivenMemory::add(void *memory, std::size_t bytes, Release release)
{
    parts.push_back({static_cast<char *>(memory), bytes, 0, release});
}

void *GivenMemory::take(std::size_t bytes)
{
    for (Part &part : parts) {
        if (bytes <= part.bytes - part.taken) {
            char *const block = part.memory + part.taken;
            part.taken = std::min(part.bytes, part.taken + roundUp(bytes, kAlignment));
            return block;
        }
    }
    return nullptr;
}

void GivenMemory::releaseUnused()
{
    for (Part &part : parts) {
        const std::size_t used = std::min(part.bytes, roundUp(part.taken, kHugePage));
        if (used < part.bytes)
            part.release(part.memory + used, part.bytes - used);
        part.bytes = used;
    }
    parts.erase(std::remove_if(parts.begin(), parts.end(), [](const Part &part) { return part.bytes == 0; }), parts.end());
}
