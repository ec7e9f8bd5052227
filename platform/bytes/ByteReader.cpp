#include "ByteReader.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kWindow = 4096; // a directory, or a header with a few attributes

}

ByteReader::ByteReader(const void *bytes, std::size_t count, ByteOrder order)
    : end(count), window(static_cast<const std::uint8_t *>(bytes)), windowEnd(count), byteOrder(order)
{
}

ByteReader::ByteReader(const std::vector<std::uint8_t> &bytes, ByteOrder order) : ByteReader(bytes.data(), bytes.size(), order) {}

ByteReader::ByteReader(const ByteSource &bytes, ByteOrder order) : source(&bytes), end(bytes.size()), byteOrder(order) {}

void ByteReader::seek(std::uint64_t position)
{
    next = position <= end ? position : throw EndOfBytes{};
}

/// Brings the next `count` bytes into the window, with what follows them, which parsers usually want next.
void ByteReader::fill(std::size_t count)
{
    buffer.resize(std::size_t(std::min<std::uint64_t>(remaining(), kWindow)));
    window = buffer.data();
    windowStart = next;
    windowEnd = next + source->readAt(start + next, buffer.data(), buffer.size());
    if (windowEnd - next < count)
        throw EndOfBytes{}; // the file has become shorter, or can't be read
}

std::uint64_t ByteReader::number(std::size_t count)
{
    const std::uint8_t *const bytes = take(count);
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < count; ++i)
        value = value << 8 | bytes[byteOrder == ByteOrder::Big ? i : count - 1 - i];
    return value;
}

bool ByteReader::startsWith(std::string_view bytes)
{
    const std::uint64_t before = next;
    const bool found = holds(next, bytes.size()) && std::memcmp(take(bytes.size()), bytes.data(), bytes.size()) == 0;
    next = before;
    return found;
}

void ByteReader::read(void *target, std::size_t count)
{
    if (count == 0)
        return;
    if (source && checked(count) > kWindow) {
        if (source->readAt(start + next, target, count) != count)
            throw EndOfBytes{};
        next += count;
    } else {
        std::memcpy(target, take(count), count);
    }
}

std::vector<std::uint8_t> ByteReader::bytes(std::uint64_t count)
{
    std::vector<std::uint8_t> result(std::size_t(checked(count)));
    read(result.data(), result.size());
    return result;
}

std::string ByteReader::text(std::size_t longest)
{
    const std::uint64_t before = next;
    try {
        std::string result;
        for (std::uint8_t c = u8(); c != 0; c = u8())
            result.size() < longest ? result.push_back(char(c)) : throw EndOfBytes{};
        return result;
    } catch (const EndOfBytes &) {
        next = before;
        throw;
    }
}

ByteReader ByteReader::stretch(std::uint64_t count)
{
    checked(count);
    ByteReader part = source ? ByteReader(*source, byteOrder) : ByteReader(window + next, std::size_t(count), byteOrder);
    part.start = start + next;
    part.end = count;
    next += count;
    return part;
}
