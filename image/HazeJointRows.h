#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class VImage;

/// The joint bilateral step from a coarse map to a fine one, for any block of fine rows.
///
/// A fine pixel's neighbours are the 3 x 3 coarse pixels around its place on the coarse grid, as far as they lie on it and have
/// an alpha other than 0.0. Work goes by tiles of columns: the neighbours of a tile are laid out as planes at the fine width once
/// a coarse row, so that all else runs over consecutive memory, without a test and for a fixed number of columns. Source: J.
/// Kopf, M. Cohen, D. Lischinski, M. Uyttendaele, Joint Bilateral Upsampling, SIGGRAPH 2007, equation 4.
class HazeJointRows
{
public:
    static constexpr int kTile = 128; ///< Columns; what lies behind the last one of an image is computed, too, and dropped.
    static constexpr int kSide = 3;   ///< Neighbours in each direction.

    /// One column offset of one coarse row, at the fine width.
    struct Neighbours
    {
        float colour[3][kTile];
        float map[kTile];
    };
    /// One coarse pixel. A neighbour without a say has the colour not-a-number, whose weight is 0.0, and the map value 0.0.
    struct Neighbour
    {
        float colour[3];
        float map;
    };
    /// Working memory of one thread; its contents don't matter.
    struct alignas(64) Scratch
    {
        Neighbours rows[kSide][kSide]; ///< Coarse row r at r modulo kSide; then by column offset.
        float colour[3][kTile];        ///< Of the fine pixels.
        std::uint32_t pairBlue[kTile]; ///< Entry of the pair table, and of the range weights for blue, in one word.
        std::uint32_t redGreen[kTile]; ///< Entries of the range weights, two in one word.
        double ranges[kSide][kTile];   ///< By column offset.
        float sumWeights[kTile];
        float sumValues[kTile];
        Neighbour coarse[kTile + 8]; ///< Of one coarse row, those that a tile can reach.
    };

    /// Both images must be Rgba with 32-bit samples; `coarseMap` has one float a pixel of `coarse`. All three outlive this.
    HazeJointRows(const VImage &fine, const VImage &coarse, const float *coarseMap);

    /// Writes the rows firstRow ... lastRow - 1 of `map`, which has one float a pixel of the fine image.
    void write(float *map, int firstRow, int lastRow, Scratch &scratch) const;

private:
    void writeTile(float *map, int firstRow, int lastRow, int firstColumn, int columns, Scratch &scratch) const;
    void spread(int coarseRow, int firstColumn, int columns, Scratch &scratch) const;

    const VImage &fine;
    const VImage &coarse;
    const float *coarseMap;
    const double *rangeWeights;
    const double *pairWeights; ///< The products of red's and green's weight.
    float rowScale;
    int tileColumns;          ///< Fewer than kTile where the coarse image is the wider one.
    std::vector<int> centres; ///< Coarse column of each fine column.
};
