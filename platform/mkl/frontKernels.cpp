#include "frontKernels.h"

#include <cmath>
#include <cstddef>

#include "InstructionSet.h"

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

/// target (16 x 16) -= left (16 x depth) * right' (depth x 16), `Width` columns at a time: as many as fit into registers.
template<int Width>
NIMBRA_INLINE void subtractProduct(float *target, const float *left, const float *right, int depth)
{
    for (int first = 0; first < kStrip; first += Width) {
        Lanes sum[Width];
        for (int c = 0; c < Width; ++c)
            sum[c] = lanes(target + (first + c) * kStrip);
        const float *l = left;
        const float *r = right + first;
        for (int k = 0; k < depth; ++k, l += kStrip, r += kStrip) {
            const Lanes column = lanes(l);
            for (int c = 0; c < Width; ++c)
                sum[c] -= column * r[c];
        }
        for (int c = 0; c < Width; ++c)
            lanes(target + (first + c) * kStrip) = sum[c];
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

/// target := target * L'^-1, where L is the tile as left by factorTile.
NIMBRA_INLINE void divideTile(float *target, const float *tile)
{
    for (int j = 0; j < kStrip; ++j) {
        Lanes sum = lanes(target + j * kStrip);
        for (int i = 0; i < j; ++i)
            sum -= lanes(target + i * kStrip) * tile[i * kStrip + j];
        lanes(target + j * kStrip) = sum * tile[j * kStrip + j];
    }
}

template<int Width>
NIMBRA_INLINE bool factorBody(float *panel, int pivotStrips, int strips, const float *floors)
{
    const std::ptrdiff_t stripSize = std::ptrdiff_t(pivotStrips) * kStrip * kStrip;
    for (int block = 0; block < pivotStrips; ++block) {
        const float *const blockRows = panel + block * stripSize;
        const float *const tile = blockRows + block * kStrip * kStrip;
        for (int strip = block; strip < strips; ++strip) {
            float *const rows = panel + strip * stripSize;
            float *const target = rows + block * kStrip * kStrip;
            subtractProduct<Width>(target, rows, blockRows, block * kStrip);
            if (strip > block)
                divideTile(target, tile);
            else if (!factorTile(target, floors + block * kStrip))
                return false;
        }
    }
    return true;
}

template<int Width>
NIMBRA_INLINE void updateBody(const float *panel, int pivots, int pivotStrips, int strips, float *contribution)
{
    const std::ptrdiff_t stripSize = std::ptrdiff_t(pivotStrips) * kStrip * kStrip;
    const float *const border = panel + pivotStrips * stripSize;
    for (int row = 0; row < strips - pivotStrips; ++row) {
        float *const target = contribution + contributionStart(row);
        for (int column = 0; column <= row; ++column)
            subtractProduct<Width>(target + column * kStrip * kStrip, border + row * stripSize, border + column * stripSize,
                                   pivots);
    }
}

NIMBRA_INLINE void forwardBody(const float *panel, int pivotStrips, int strips, float *local)
{
    const int columns = pivotStrips * kStrip;
    for (int strip = 0; strip < strips; ++strip, panel += std::ptrdiff_t(columns) * kStrip) {
        const int known = strip < pivotStrips ? strip * kStrip : columns;
        Lanes sum[4] = {lanes(local + strip * kStrip), {}, {}, {}};
        for (int k = 0; k < known; k += 4)
            for (int i = 0; i < 4; ++i)
                sum[i] -= lanes(panel + (k + i) * kStrip) * local[k + i];
        lanes(local + strip * kStrip) = (sum[0] + sum[1]) + (sum[2] + sum[3]);
        if (strip >= pivotStrips)
            continue;
        const float *tile = panel + std::ptrdiff_t(known) * kStrip;
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
    const std::ptrdiff_t stripSize = std::ptrdiff_t(pivotStrips) * kStrip * kStrip;
    for (int block = pivotStrips - 1; block >= 0; --block) {
        Lanes sum[kStrip] = {};
        for (int strip = block + 1; strip < strips; ++strip) {
            const float *const tile = panel + strip * stripSize + block * kStrip * kStrip;
            const Lanes x = lanes(local + strip * kStrip);
            for (int j = 0; j < kStrip; ++j)
                sum[j] += lanes(tile + j * kStrip) * x;
        }
        const float *const tile = panel + block * stripSize + block * kStrip * kStrip;
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
#define NIMBRA_VERSION(name, width, ...)                                                                                         \
    __VA_ARGS__ bool factor##name(float *panel, int pivotStrips, int strips, const float *floors)                                \
    {                                                                                                                            \
        return factorBody<width>(panel, pivotStrips, strips, floors);                                                            \
    }                                                                                                                            \
    __VA_ARGS__ void update##name(const float *panel, int pivots, int pivotStrips, int strips, float *contribution)              \
    {                                                                                                                            \
        updateBody<width>(panel, pivots, pivotStrips, strips, contribution);                                                     \
    }                                                                                                                            \
    __VA_ARGS__ void forward##name(const float *panel, int pivotStrips, int strips, float *local)                                \
    {                                                                                                                            \
        forwardBody(panel, pivotStrips, strips, local);                                                                          \
    }                                                                                                                            \
    __VA_ARGS__ void backward##name(const float *panel, int pivotStrips, int strips, float *local)                               \
    {                                                                                                                            \
        backwardBody(panel, pivotStrips, strips, local);                                                                         \
    }                                                                                                                            \
    constexpr FrontKernels k##name = {factor##name, update##name, forward##name, backward##name};

NIMBRA_VERSION(Plain, 2, )
#ifdef __x86_64__
NIMBRA_VERSION(Avx2, 4, NIMBRA_AVX2)
NIMBRA_VERSION(Avx512, 8, NIMBRA_AVX512)
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
