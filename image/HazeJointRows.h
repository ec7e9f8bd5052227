#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

class VImage;

/// The joint bilateral step from a coarse map to a fine one, for any block of fine rows.
///
/// A fine pixel's neighbours are the 3 x 3 coarse pixels around its place on the coarse grid, except those outside the image and
/// those with an alpha of 0.0. Work proceeds in tiles of columns: once per coarse row, the neighbours of a tile are laid out as
/// planes at the fine width, so that the rest runs over consecutive memory, without tests and for a fixed number of columns.
/// Source: J. Kopf, M. Cohen, D. Lischinski, M. Uyttendaele, Joint Bilateral Upsampling, SIGGRAPH 2007, equation 4.
class HazeJointRows
{
public:
    static constexpr int kTile = 128; ///< Columns; those past the image's last one are computed, too, and dropped.
    static constexpr int kSide = 3;   ///< Neighbours in each direction.

    /// The neighbours at one column offset in one coarse row, at the fine width.
    struct Neighbours
    {
        float colour[3][kTile];
        float map[kTile];
    };
    /// One coarse pixel. A neighbour that does not count has the colour not-a-number, whose weight is 0.0, and the map value 0.0.
    struct Neighbour
    {
        float colour[3];
        float map;
    };
    /// Working memory of one thread; its initial contents don't matter.
    struct alignas(64) Scratch
    {
        Neighbours rows[kSide][kSide]; ///< Coarse row r at r modulo kSide; then by column offset.
        float colour[3][kTile];        ///< Of the fine pixels.
        std::uint32_t pairBlue[kTile]; ///< Indices into the pair table and, for blue, the range weights, in one word.
        std::uint32_t redGreen[kTile]; ///< Two indices into the range weights in one word.
        double ranges[kSide][kTile];   ///< By column offset.
        float sumWeights[kTile];
        float sumValues[kTile];
        Neighbour coarse[kTile + 8]; ///< The pixels of one coarse row that a tile can reach.
    };

    /// Both images must be Rgba with 32-bit samples; `coarseMap` has one float per pixel of `coarse`. All three must outlive
    /// this object.
    HazeJointRows(const VImage &fine, const VImage &coarse, const float *coarseMap);

    /// Writes the rows firstRow ... lastRow - 1 of `map`, which has one float per pixel of the fine image.
    void write(float *map, int firstRow, int lastRow, Scratch &scratch) const;

private:
    void writeTile(float *map, int firstRow, int lastRow, int firstColumn, int columns, Scratch &scratch) const;
    void spread(int coarseRow, int firstColumn, int columns, Scratch &scratch) const;

    const VImage &fine;
    const VImage &coarse;
    const float *coarseMap;
    const double *rangeWeights;
    const double *pairWeights; ///< Products of the weights of red and green.
    float rowScale;
    int tileColumns;          ///< Fewer than kTile if the coarse image is the wider one.
    std::vector<int> centres; ///< Coarse column of each fine column.
};
