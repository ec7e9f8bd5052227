#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Bytes that can be read at any offset, such as those of an open file.
class ByteSource
{
public:
    virtual std::uint64_t size() const noexcept = 0;
    /// Copies up to `bytes` bytes and returns how many: fewer at the end or on an error.
    virtual std::size_t readAt(std::uint64_t offset, void *target, std::size_t bytes) const noexcept = 0;

protected:
    ~ByteSource() = default;
};

/// Thrown by a ByteReader whose bytes end before what is requested.
struct EndOfBytes
{
};

enum class ByteOrder { Big, Little };

/// Reads a stretch of untrusted bytes, in memory or in a file, from any position and never beyond its end: where the stretch is
/// too short for a request, the call throws EndOfBytes before it allocates or moves anything. So a parser reads what it expects,
/// in order, and needs no bounds checks.
class ByteReader
{
public:
    /// The bytes, or the source, must outlive the reader.
    ByteReader(const void *bytes, std::size_t count, ByteOrder order = ByteOrder::Big);
    explicit ByteReader(const std::vector<std::uint8_t> &bytes, ByteOrder order = ByteOrder::Big);
    explicit ByteReader(const ByteSource &source, ByteOrder order = ByteOrder::Big);
    ByteReader(ByteReader &&) = default;
    ByteReader(const ByteReader &) = delete;
    ByteReader &operator=(const ByteReader &) = delete;

    /// Byte order of the numbers read from now on.
    ByteOrder order() const { return byteOrder; }
    void setOrder(ByteOrder order) { byteOrder = order; }

    std::uint64_t position() const { return next; }
    std::uint64_t remaining() const { return end - next; }
    /// Whether `count` bytes from `position` lie inside the stretch.
    bool holds(std::uint64_t position, std::uint64_t count) const { return position <= end && count <= end - position; }
    /// Whether these few bytes come next. Does not move the position.
    bool startsWith(std::string_view bytes);

    void seek(std::uint64_t position);
    void skip(std::uint64_t count) { next += checked(count); }
    std::uint8_t u8() { return *take(1); }
    std::uint16_t u16() { return std::uint16_t(number(2)); }
    std::uint32_t u32() { return std::uint32_t(number(4)); }
    std::uint64_t u64() { return number(8); }
    void read(void *target, std::size_t count);
    std::vector<std::uint8_t> bytes(std::uint64_t count);
    /// The characters up to a zero byte, which is consumed too. Throws EndOfBytes also if more than `longest` characters precede
    /// it.
    std::string text(std::size_t longest);
    /// A reader of the next `count` bytes, whose positions start at 0; this reader moves past them.
    ByteReader stretch(std::uint64_t count);

private:
    std::uint64_t checked(std::uint64_t count) const { return count <= remaining() ? count : throw EndOfBytes{}; }
    /// The address of the next `count` bytes, which must fit into the window; moves past them.
    const std::uint8_t *take(std::size_t count)
    {
        checked(count);
        if (next < windowStart || next + count > windowEnd)
            fill(count);
        const std::uint8_t *const bytes = window + (next - windowStart);
        next += count;
        return bytes;
    }
    void fill(std::size_t count);
    std::uint64_t number(std::size_t count);

    const ByteSource *source = nullptr; ///< Null: all bytes are in memory.
    std::uint64_t start = 0;            ///< Where the stretch starts in the source.
    std::uint64_t end;                  ///< Length of the stretch: positions count from its start.
    std::uint64_t next = 0;
    const std::uint8_t *window = nullptr; ///< The bytes in memory: all of them, or those in `buffer`.
    std::uint64_t windowStart = 0;
    std::uint64_t windowEnd = 0;
    std::vector<std::uint8_t> buffer;
    ByteOrder byteOrder;
};
