#include "frontKernels.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "InstructionSet.h"

// Before a loop over the columns of a tile: unrolled altogether, so that they stay in registers.
#ifdef __clang__
#    define NIMBRA_UNROLL _Pragma("clang loop unroll(full)")
#else
#    define NIMBRA_UNROLL _Pragma("GCC unroll 16")
#endif

namespace {

// Generic vectors, which each version of a kernel maps to its instruction set.
typedef float Lanes __attribute__((vector_size(kStrip * sizeof(float))));

NIMBRA_INLINE Lanes &lanes(float *at)
{
    return *reinterpret_cast<Lanes *>(at);
}
NIMBRA_INLINE const Lanes &lanes(const float *at)
{
    return *reinterpret_cast<const Lanes *>(at);
}

/// For each of `Strips` strips of rows, one `leftStep` floats after the other and their targets `targetStep` floats: target (16 x
/// 16) -= left (16 x depth) * right' (depth x 16), `Width` columns at a time. As many as fit into registers.
template<int Width, int Strips>
NIMBRA_INLINE void subtractProducts(float *target, std::ptrdiff_t targetStep, const float *left, std::ptrdiff_t leftStep,
                                    const float *right, int depth)
{
    for (int first = 0; first < kStrip; first += Width) {
        Lanes sum[Strips][Width];
        for (int s = 0; s < Strips; ++s)
            for (int c = 0; c < Width; ++c)
                sum[s][c] = lanes(target + s * targetStep + (first + c) * kStrip);
        const float *l = left;
        const float *r = right + first;
        for (int k = 0; k < depth; ++k, l += kStrip, r += kStrip) {
            for (int s = 0; s < Strips; ++s) {
                const Lanes column = lanes(l + s * leftStep);
                for (int c = 0; c < Width; ++c)
                    sum[s][c] -= column * r[c];
            }
        }
        for (int s = 0; s < Strips; ++s)
            for (int c = 0; c < Width; ++c)
                lanes(target + s * targetStep + (first + c) * kStrip) = sum[s][c];
    }
}

NIMBRA_INLINE bool factorTile(float *tile, const float *floors)
{
    for (int j = 0; j < kStrip; ++j) {
        float *column = tile + j * kStrip;
        const float pivot = column[j];
        if (!(pivot > floors[j]))
            return false;
        const float inverse = 1.0f / std::sqrt(pivot);
        for (int i = 0; i < j; ++i)
            column[i] = 0.0f;
        lanes(column) *= inverse;
        for (int c = j + 1; c < kStrip; ++c)
            lanes(tile + c * kStrip) -= lanes(column) * column[c];
        column[j] = inverse;
    }
    return true;
}

/// target := target * L'^-1, where L is the tile as left by factorTile, for as many rows at a time as one register holds.
template<int Rows>
NIMBRA_INLINE void divideTile(float *target, const float *tile)
{
    typedef float Part __attribute__((vector_size(Rows * sizeof(float))));
    for (int first = 0; first < kStrip; first += Rows) {
        Part column[kStrip];
        for (int j = 0; j < kStrip; ++j)
            column[j] = *reinterpret_cast<const Part *>(target + j * kStrip + first);
        NIMBRA_UNROLL
        for (int j = 0; j < kStrip; ++j) {
            column[j] *= tile[j * kStrip + j];
            NIMBRA_UNROLL
            for (int c = j + 1; c < kStrip; ++c)
                column[c] -= column[j] * tile[j * kStrip + c];
        }
        for (int j = 0; j < kStrip; ++j)
            *reinterpret_cast<Part *>(target + j * kStrip + first) = column[j];
    }
}

/// A register holds `Rows` floats, and the registers hold products of `Strips` strips, 1 or 2, and `Width` columns.
template<int RowCount, int StripCount, int ColumnCount>
struct Registers
{
    static_assert(StripCount == 1 || StripCount == 2);
    static constexpr int Rows = RowCount;
    static constexpr int Strips = StripCount;
    static constexpr int Width = ColumnCount;
};

template<typename Set>
NIMBRA_INLINE bool factorBody(float *panel, int pivotStrips, int strips, const float *floors)
{
    for (int block = 0; block < pivotStrips; ++block) {
        const int depth = block * kStrip;
        float *const blockRows = panel + panelStart(block, pivotStrips);
        float *const tile = blockRows + depth * kStrip;
        subtractProducts<Set::Width, 1>(tile, 0, blockRows, 0, blockRows, depth);
        if (!factorTile(tile, floors + depth))
            return false;
        for (int strip = block + 1; strip < strips;) {
            float *const rows = panel + panelStart(strip, pivotStrips);
            float *const target = rows + depth * kStrip;
            if (strip + Set::Strips <= strips) {
                const std::ptrdiff_t step = panelStart(strip + 1, pivotStrips) - panelStart(strip, pivotStrips);
                subtractProducts<Set::Width, Set::Strips>(target, step, rows, step, blockRows, depth);
                for (int s = 0; s < Set::Strips; ++s)
                    divideTile<Set::Rows>(target + s * step, tile);
                strip += Set::Strips;
            } else {
                subtractProducts<Set::Width, 1>(target, 0, rows, 0, blockRows, depth);
                divideTile<Set::Rows>(target, tile);
                ++strip;
            }
        }
    }
    return true;
}

template<typename Set>
NIMBRA_INLINE void updateBody(const float *panel, int pivots, int pivotStrips, int strips, float *contribution)
{
    const std::ptrdiff_t stripSize = std::ptrdiff_t(pivotStrips) * kStrip * kStrip;
    const float *const border = panel + panelStart(pivotStrips, pivotStrips);
    const int borderStrips = strips - pivotStrips;
    for (int row = 0; row < borderStrips;) {
        const float *const left = border + row * stripSize;
        float *const target = contribution + contributionStart(row);
        const bool together = row + Set::Strips <= borderStrips;
        const std::ptrdiff_t step = contributionStart(row + 1) - contributionStart(row);
        for (int column = 0; column <= row; ++column) {
            float *const tile = target + column * kStrip * kStrip;
            if (together)
                subtractProducts<Set::Width, Set::Strips>(tile, step, left, stripSize, border + column * stripSize, pivots);
            else
                subtractProducts<Set::Width, 1>(tile, 0, left, 0, border + column * stripSize, pivots);
        }
        if (together && Set::Strips > 1) // the lower strip's own diagonal
            subtractProducts<Set::Width, 1>(target + step + (row + 1) * kStrip * kStrip, 0, left + stripSize, 0, left + stripSize,
                                            pivots);
        row += together ? Set::Strips : 1;
    }
}

typedef std::int32_t LaneMask __attribute__((vector_size(kStrip * sizeof(std::int32_t))));
typedef float UnalignedLanes __attribute__((vector_size(kStrip * sizeof(float)), aligned(sizeof(float))));

/// Sets all bits of lanes first ... last - 1, and clears the others. By reference, as are all vectors here: functions that return
/// or take them by value differ between instruction sets.
NIMBRA_INLINE void choose(LaneMask &mask, int first, int last)
{
    const LaneMask lane = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};
    mask = LaneMask(lane >= first) & LaneMask(lane < last);
}

NIMBRA_INLINE void addChosen(float *target, const float *source, const LaneMask &mask)
{
    lanes(target) += Lanes(LaneMask(*reinterpret_cast<const UnalignedLanes *>(source)) & mask);
}

NIMBRA_INLINE void addBody(const float *child, int rows, const std::int32_t *targetRows, float *panel, int pivotStrips,
                           float *contribution)
{
    const int pivotRows = pivotStrips * kStrip;
    const int pivotColumns = int(std::lower_bound(targetRows, targetRows + rows, pivotRows) - targetRows);
    for (int strip = 0; strip * kStrip < rows; ++strip) {
        const int firstRow = strip * kStrip;
        const int count = std::min(kStrip, rows - firstRow);
        const std::int32_t *const targets = targetRows + firstRow;
        const float *const source = child + contributionStart(strip);
        // Lanes from `first` to `last` are neighbours in one strip of the front, too, though not in the same lanes.
        for (int first = 0, last = 0; first < count; first = last) {
            for (last = first + 1; last < count && targets[last] == targets[last - 1] + 1 && targets[last] % kStrip != 0;)
                ++last;
            const int targetStrip = targets[first] / kStrip;
            const int shift = targets[first] % kStrip - first;
            const float *const shifted = source - shift;
            // The front's columns from pivotRows on are in the contribution.
            const std::ptrdiff_t inPanel = panelStart(targetStrip, pivotStrips);
            const std::ptrdiff_t inContribution =
                targetStrip < pivotStrips ? 0 : contributionStart(targetStrip - pivotStrips) - std::ptrdiff_t(pivotRows) * kStrip;
            LaneMask mask;
            choose(mask, first + shift, last + shift);
            int column = 0;
            for (; column < std::min(firstRow, pivotColumns); ++column)
                addChosen(panel + (inPanel + std::ptrdiff_t(targetRows[column]) * kStrip), shifted + column * kStrip, mask);
            for (; column < firstRow; ++column)
                addChosen(contribution + (inContribution + std::ptrdiff_t(targetRows[column]) * kStrip),
                          shifted + column * kStrip, mask);
            for (; column < firstRow + last; ++column) {
                choose(mask, std::max(first, column - firstRow) + shift, last + shift); // only the lower triangle
                const std::ptrdiff_t targetColumn = std::ptrdiff_t(targetRows[column]) * kStrip;
                float *const target =
                    column < pivotColumns ? panel + (inPanel + targetColumn) : contribution + (inContribution + targetColumn);
                addChosen(target, shifted + column * kStrip, mask);
            }
        }
    }
}

NIMBRA_INLINE void forwardBody(const float *panel, int pivotStrips, int strips, float *local)
{
    const int columns = pivotStrips * kStrip;
    for (int strip = 0; strip < strips; ++strip) {
        const float *const rows = panel + panelStart(strip, pivotStrips);
        const int known = strip < pivotStrips ? strip * kStrip : columns;
        Lanes sum[4] = {lanes(local + strip * kStrip), {}, {}, {}};
        for (int k = 0; k < known; k += 4)
            for (int i = 0; i < 4; ++i)
                sum[i] -= lanes(rows + (k + i) * kStrip) * local[k + i];
        lanes(local + strip * kStrip) = (sum[0] + sum[1]) + (sum[2] + sum[3]);
        if (strip >= pivotStrips)
            continue;
        const float *tile = rows + std::ptrdiff_t(known) * kStrip;
        float *const own = local + known;
        for (int j = 0; j < kStrip; ++j, tile += kStrip) {
            own[j] *= tile[j];
            for (int i = j + 1; i < kStrip; ++i)
                own[i] -= tile[i] * own[j];
        }
    }
}

NIMBRA_INLINE void backwardBody(const float *panel, int pivotStrips, int strips, float *local)
{
    for (int block = pivotStrips - 1; block >= 0; --block) {
        const std::ptrdiff_t column = std::ptrdiff_t(block) * kStrip * kStrip;
        Lanes sum[kStrip] = {};
        for (int strip = block + 1; strip < strips; ++strip) {
            const float *const tile = panel + (panelStart(strip, pivotStrips) + column);
            const Lanes x = lanes(local + strip * kStrip);
            for (int j = 0; j < kStrip; ++j)
                sum[j] += lanes(tile + j * kStrip) * x;
        }
        const float *const tile = panel + (panelStart(block, pivotStrips) + column);
        float *const own = local + block * kStrip;
        for (int j = kStrip - 1; j >= 0; --j) {
            float rest = own[j];
            for (int i = 0; i < kStrip; ++i)
                rest -= sum[j][i];
            for (int i = j + 1; i < kStrip; ++i)
                rest -= tile[j * kStrip + i] * own[i];
            own[j] = rest * tile[j * kStrip + j];
        }
    }
}

// One version per register set; the widths leave room for a column and a factor beside the sums.
#define NIMBRA_VERSION(name, registers, ...)                                                                                     \
    __VA_ARGS__ bool factor##name(float *panel, int pivotStrips, int strips, const float *floors)                                \
    {                                                                                                                            \
        return factorBody<registers>(panel, pivotStrips, strips, floors);                                                        \
    }                                                                                                                            \
    __VA_ARGS__ void update##name(const float *panel, int pivots, int pivotStrips, int strips, float *contribution)              \
    {                                                                                                                            \
        updateBody<registers>(panel, pivots, pivotStrips, strips, contribution);                                                 \
    }                                                                                                                            \
    __VA_ARGS__ void add##name(const float *child, int rows, const std::int32_t *targetRows, float *panel, int pivotStrips,      \
                               float *contribution)                                                                              \
    {                                                                                                                            \
        addBody(child, rows, targetRows, panel, pivotStrips, contribution);                                                      \
    }                                                                                                                            \
    __VA_ARGS__ void forward##name(const float *panel, int pivotStrips, int strips, float *local)                                \
    {                                                                                                                            \
        forwardBody(panel, pivotStrips, strips, local);                                                                          \
    }                                                                                                                            \
    __VA_ARGS__ void backward##name(const float *panel, int pivotStrips, int strips, float *local)                               \
    {                                                                                                                            \
        backwardBody(panel, pivotStrips, strips, local);                                                                         \
    }                                                                                                                            \
    constexpr FrontKernels k##name = {factor##name, update##name, add##name, forward##name, backward##name};

using PlainRegisters = Registers<4, 1, 2>;
NIMBRA_VERSION(Plain, PlainRegisters, )
#ifdef __x86_64__
using Avx2Registers = Registers<8, 1, 4>;
NIMBRA_VERSION(Avx2, Avx2Registers, NIMBRA_AVX2)
using Avx512Registers = Registers<16, 2, 8>;
NIMBRA_VERSION(Avx512, Avx512Registers, NIMBRA_AVX512)
#endif

} // namespace

const FrontKernels &frontKernels()
{
#ifdef __x86_64__
    switch (instructionSet()) {
    case InstructionSet::Avx512:
        return kAvx512;
    case InstructionSet::Avx2:
        return kAvx2;
    case InstructionSet::Plain:
        break;
    }
#endif
    return kPlain;
}
