#include "ByteReader.h"

#include <algorithm>
#include <cstring>
#include <functional>

#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

/// A file that reports its original size but holds only `held` bytes.
struct File final : ByteSource
{
    explicit File(Bytes content) : bytes(std::move(content)), held(bytes.size()) {}
    std::uint64_t size() const noexcept override { return bytes.size(); }
    std::size_t readAt(std::uint64_t offset, void *target, std::size_t count) const noexcept override
    {
        const std::size_t part = offset < held ? std::min(count, held - std::size_t(offset)) : 0;
        std::memcpy(target, bytes.data() + offset, part);
        return part;
    }
    Bytes bytes;
    std::size_t held;
};

Bytes counted(std::size_t count)
{
    Bytes bytes(count);
    for (std::size_t i = 0; i < count; ++i)
        bytes[i] = std::uint8_t(i * 7 + i / 256);
    return bytes;
}

TEST(ByteReader, ReadsNumbersInBothOrdersAtAnyPosition)
{
    const File file(counted(10000)); // longer than the window
    for (const bool inMemory : {true, false})
        for (const std::size_t at : {0u, 1u, 4089u, 4093u, 4095u, 4096u, 9992u}) {
            ByteReader reader = inMemory ? ByteReader(file.bytes) : ByteReader(file);
            for (const ByteOrder order : {ByteOrder::Big, ByteOrder::Little}) {
                reader.setOrder(order);
                reader.seek(at);
                const auto wanted = [&](std::size_t first, std::size_t count) {
                    std::uint64_t value = 0;
                    for (std::size_t i = 0; i < count; ++i)
                        value |= std::uint64_t(file.bytes[first + i]) << 8 * (order == ByteOrder::Big ? count - 1 - i : i);
                    return value;
                };
                EXPECT_EQ(reader.u64(), wanted(at, 8)) << at;
                reader.seek(at);
                EXPECT_EQ(reader.u8(), file.bytes[at]);
                EXPECT_EQ(reader.u16(), wanted(at + 1, 2)) << at;
                EXPECT_EQ(reader.u32(), wanted(at + 3, 4)) << at;
            }
        }
}

TEST(ByteReader, ReadsNothingBeyondTheEndAndFailuresMoveNothing)
{
    Bytes bytes = counted(5000);
    bytes[4990] = 0;
    const File file(bytes);
    const std::function<void(ByteReader &)> tooMuch[] = {
        [](ByteReader &r) { r.seek(11); },
        [](ByteReader &r) { r.skip(8); },
        [](ByteReader &r) { r.u64(); },
        [](ByteReader &r) { r.bytes(~std::uint64_t(0)); },
        [](ByteReader &r) { r.stretch(1 << 30); },
        [](ByteReader &r) { r.text(100); },
        [](ByteReader &r) {
            std::uint8_t target[8];
            r.read(target, sizeof target);
        },
    };
    for (const bool inMemory : {true, false}) {
        ByteReader whole = inMemory ? ByteReader(file.bytes) : ByteReader(file);
        whole.seek(4980);
        ByteReader part = whole.stretch(10); // more bytes follow, outside the stretch; the first is the text's zero
        EXPECT_EQ(whole.position(), 4990u);
        part.seek(3);
        for (std::size_t i = 0; i < std::size(tooMuch); ++i) {
            EXPECT_THROW(tooMuch[i](part), EndOfBytes) << i;
            EXPECT_EQ(part.position(), 3u) << i;
        }
        EXPECT_FALSE(part.startsWith("12345678"));
        EXPECT_TRUE(part.holds(10, 0));
        EXPECT_FALSE(part.holds(11, 0));
        EXPECT_FALSE(part.holds(2, ~std::uint64_t(0)));
        EXPECT_EQ(part.bytes(7), Bytes(bytes.begin() + 4983, bytes.begin() + 4990));
        whole.seek(4985);
        EXPECT_THROW(whole.text(4), EndOfBytes); // five characters
        EXPECT_EQ(whole.position(), 4985u);
        EXPECT_EQ(whole.text(5), std::string(bytes.begin() + 4985, bytes.begin() + 4990));
        EXPECT_EQ(whole.position(), 4991u);
    }
}

TEST(ByteReader, EndsWhereAShrunkenFileEnds)
{
    File file(counted(9000));
    file.held = 6000;
    ByteReader reader(file);
    reader.seek(5999);
    EXPECT_EQ(reader.u8(), file.bytes[5999]);
    EXPECT_THROW(reader.u8(), EndOfBytes);
    reader.seek(0);
    EXPECT_THROW(reader.bytes(6001), EndOfBytes);
    EXPECT_EQ(reader.bytes(6000).back(), file.bytes[5999]);
}

} // namespace
