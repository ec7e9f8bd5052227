#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

/// What a header may claim, held against the size of its file, so that a few bytes never make the layer take gigabytes. All of it
/// is a bound that no honest file comes near; a file that claims more is damaged.
namespace gfl {

/// Bytes that any file may claim at once: more than the rows of a small picture, less than what would be missed.
constexpr std::uint64_t kSmallClaim = std::uint64_t(16) << 20;

/// What a packing without a bound of its own makes of a byte at the most. Within one row none of them reaches it; LZW comes near,
/// whose longest codes mean almost 4096 bytes and take 12 bits.
constexpr std::uint64_t kMostPacked = 4096;

/// The most that deflate makes of a byte: a match of 258 bytes takes two bits.
constexpr std::uint64_t kDeflateRatio = 1032;

/// What a photograph seldom exceeds as a whole: a file is trusted that far at once, beyond it only as its rows arrive.
constexpr std::uint64_t kUsualRatio = 64;

/// Text and profiles in a photograph are smaller, also when they are packed; more than that is an attack on the memory.
constexpr std::size_t kLargestText = std::size_t(64) << 20;

/// Bytes of one piece that is held unpacked: a row, a strip, a band of tiles.
constexpr std::uint64_t largestPiece(std::uint64_t fileBytes)
{
    return kSmallClaim + kMostPacked * fileBytes;
}

/// Bytes that a library may take in one block for itself. Some of them hold several rows, or a tile, where this layer has a row.
constexpr std::uint64_t largestLibraryBlock(std::uint64_t fileBytes)
{
    return 4 * kSmallClaim + kMostPacked * fileBytes;
}

/// Bytes of a new bitmap's first block, of `total` in the end.
constexpr std::uint64_t firstBlock(std::uint64_t total, std::uint64_t fileBytes)
{
    return std::min(total, kSmallClaim + kUsualRatio * fileBytes);
}

/// Blocks of 8 x 8 whose coefficients the JPEG library holds at once. A block takes a bit at least, or a 64th of one where it is
/// arithmetically coded; 1024 of them may be had for nothing.
constexpr std::uint64_t mostJpegBlocks(std::uint64_t fileBytes, bool arithmetic)
{
    return fileBytes * 8 * (arithmetic ? 64 : 1) + 1024;
}

/// Rows of a fax, each of which takes a bit at least.
constexpr std::uint64_t mostFaxRows(std::uint64_t fileBytes)
{
    return 8 * fileBytes;
}

} // namespace gfl
