#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "HazeWeights.h"

// The inner loops of the joint bilateral step, on tiles of columns; HazeJointRows drives them.

constexpr int kTileColumns = 128;                ///< Kernels may compute columns past the image's last one, and drop them.
constexpr int kTileSide = 3;                     ///< Neighbours in each direction.
constexpr int kCoarsePixels = kTileColumns + 32; ///< More than a tile can reach in one coarse row: kernels read past the last.

/// The neighbours at one column offset in one coarse row, at the fine width.
struct alignas(64) TileNeighbours
{
    float colour[3][kTileColumns];
    float map[kTileColumns];
};

/// One coarse pixel. A neighbour that does not count has the colour not-a-number, whose weight is 0.0, and the map value 0.0.
struct CoarsePixel
{
    float colour[3];
    float map;
};

/// Working memory of one thread; its initial contents don't matter.
struct alignas(64) TileScratch
{
    TileNeighbours rows[kTileSide][kTileSide]; ///< Coarse row r at r modulo kTileSide; then by column offset.
    CoarsePixel coarse[kCoarsePixels];         ///< Those of one coarse row that the tile reaches.
    float colour[3][kTileColumns];             ///< Of the fine pixels.
    std::uint32_t pairBlue[kTileColumns];      ///< Indices into the pair table and, for blue, the range weights, in one word.
    std::uint32_t redGreen[kTileColumns];      ///< Two indices into the range weights in one word.
    double ranges[kTileSide][kTileColumns];    ///< By column offset.
    float sumWeights[kTileColumns];
    float sumValues[kTileColumns];
};

/// The range weights, arranged for looking them up quickly.
struct alignas(64) TileTables
{
    static constexpr int kPairBits = 6;
    static constexpr std::uint32_t kPairEntries = 1u << kPairBits;
    static constexpr std::uint32_t kHalfEntries = 128; ///< Beyond them, weights are looked up one by one.

    TileTables();

    std::array<std::uint32_t, kHalfEntries> low;  ///< The lower halves of the first range weights.
    std::array<std::uint32_t, kHalfEntries> high; ///< The upper ones.
    HazeRangeWeights range;
    /// Products of the weights of red and green for the differences that are common in photographs: one look-up instead of two.
    std::array<double, std::size_t(kPairEntries) * kPairEntries> pairs;
};

/// One row of a tile to write.
struct TileRow
{
    const float *pixels;               ///< Of the fine image: R, G, B, A.
    const float *nextPixels;           ///< Those of the row after it, to be fetched early.
    float *map;                        ///< The result.
    int columns;                       ///< At most kTileColumns.
    const TileNeighbours *const *rows; ///< The coarse rows that it needs, each with kTileSide column offsets.
    int rowCount;                      ///< At most kTileSide.
    int firstOffset;                   ///< Row offset of the first of them, -1 to 1.
};

/// One way of computing the step. All give the same bits.
struct TileKernel
{
    const char *name;
    /// Lays out the neighbours of a tile in one coarse row, for each column offset. `places` holds the place in scratch.coarse of
    /// each column's first neighbour, for kTileColumns columns, those past the last one included; the coarse image must not be
    /// the wider one.
    void (*spread)(const int *places, int columns, const TileScratch &scratch, TileNeighbours *target);
    void (*write)(const TileRow &row, const TileTables &tables, TileScratch &scratch);
};

/// The spatial weights of the neighbours in coarse row `index`, from left to right.
inline const double *spatialWeights(const TileRow &row, int index)
{
    return &kHazeSpatialWeights[std::size_t(row.firstOffset + index + 2)][1];
}

const TileTables &tileTables();

/// The kernel that was the quickest in a trial of a fraction of a millisecond, on this machine and at the first call, among those
/// that instructionSet() allows: gather instructions are quick on some processors and very slow on others. The environment's
/// NIMBRA_JOINT_STEP (loops, gathers or registers) names another; if it can't be had, a line on standard error says so, and the
/// trial decides. Any thread.
const TileKernel &tileKernel();

/// TileKernel::spread in plain loops, for any two images.
void spreadByLoops(const int *places, int columns, const TileScratch &scratch, TileNeighbours *target);

#ifdef __x86_64__
extern const TileKernel kTileGathers;   ///< Eight pixels at a time, by the gather instructions of AVX2.
extern const TileKernel kTileRegisters; ///< Sixteen at a time; AVX-512 holds the common weights in registers.
#endif
