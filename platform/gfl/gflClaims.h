#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// What a header may claim in relation to its file's size, so that a few bytes never make the layer allocate gigabytes. No honest
/// file comes near these bounds; a file that claims more is damaged.
namespace gfl {

/// Bytes that any file may claim at once: more than the rows of a small picture, and too little to matter.
constexpr std::uint64_t kSmallClaim = std::uint64_t(16) << 20;

/// Most bytes that one packed byte can expand to, in a packing without a bound of its own. None of them reaches it within a row;
/// LZW comes closest: its longest codes stand for almost 4096 bytes and take 12 bits.
constexpr std::uint64_t kMostPacked = 4096;

/// Most bytes that one deflated byte can expand to: a match of 258 bytes takes two bits.
constexpr std::uint64_t kDeflateRatio = 1032;

/// A ratio that a whole photograph seldom exceeds: up to it, memory is allocated at once; beyond it, only as the rows arrive.
constexpr std::uint64_t kUsualRatio = 64;

/// Texts and profiles in a photograph are smaller than this, even unpacked; anything larger is an attack on memory.
constexpr std::size_t kLargestText = std::size_t(64) << 20;

/// Most bytes of one unpacked piece: a row, a strip or a band of tiles.
constexpr std::uint64_t largestPiece(std::uint64_t fileBytes)
{
    return kSmallClaim + kMostPacked * fileBytes;
}

/// Most bytes that a library may allocate in one block. Some libraries hold several rows, or a tile, where this layer holds a
/// row.
constexpr std::uint64_t largestLibraryBlock(std::uint64_t fileBytes)
{
    return 4 * kSmallClaim + kMostPacked * fileBytes;
}

/// Bytes of a new bitmap's first pixel block; `total` is its final size.
constexpr std::uint64_t firstBlock(std::uint64_t total, std::uint64_t fileBytes)
{
    return std::min(total, kSmallClaim + kUsualRatio * fileBytes);
}

/// Most blocks of 8 x 8 whose coefficients the JPEG library may hold at once. A block takes at least one bit, or a 64th of one
/// with arithmetic coding; the first 1024 are free.
constexpr std::uint64_t mostJpegBlocks(std::uint64_t fileBytes, bool arithmetic)
{
    return fileBytes * 8 * (arithmetic ? 64 : 1) + 1024;
}

/// Most rows of a fax, each of which takes at least one bit.
constexpr std::uint64_t mostFaxRows(std::uint64_t fileBytes)
{
    return 8 * fileBytes;
}

} // namespace gfl
