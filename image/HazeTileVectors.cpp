#include "HazeTileKernel.h"

#ifdef __x86_64__

#    include <algorithm>
#    include <cstring>

// The header makes vectors of undefined content, which g++ 12 takes for oversights.
#    ifndef __clang__
#        pragma GCC diagnostic push
#        pragma GCC diagnostic ignored "-Wuninitialized"
#        pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#    endif
#    include <immintrin.h>
#    ifndef __clang__
#        pragma GCC diagnostic pop
#    endif

#    include "InstructionSet.h"

namespace {

constexpr int kChannels = 4; ///< R, G, B, A.

/// The pixels of a group that reaches past the last column: copied to memory where the whole group can be read.
NIMBRA_INLINE const float *wholeGroup(const float *pixels, int left, int group, float *copy)
{
    if (left >= group)
        return pixels;
    std::memcpy(copy, pixels, std::size_t(left) * kChannels * sizeof(float));
    std::fill(copy + left * kChannels, copy + group * kChannels, 0.0f);
    return copy;
}

#    define NIMBRA_AVX2_INLINE NIMBRA_AVX2 NIMBRA_INLINE
#    define NIMBRA_AVX512_INLINE NIMBRA_AVX512 NIMBRA_INLINE

struct Eight
{
    __m256 colour[3];
    __m256 alpha;
};

NIMBRA_AVX2_INLINE __m256 twoPixels(const float *pixels, int first, int second)
{
    return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(pixels + first * kChannels)),
                                _mm_loadu_ps(pixels + second * kChannels), 1);
}

/// Eight pixels as planes.
NIMBRA_AVX2_INLINE Eight eightPixels(const float *pixels)
{
    const __m256 a = twoPixels(pixels, 0, 4);
    const __m256 b = twoPixels(pixels, 1, 5);
    const __m256 c = twoPixels(pixels, 2, 6);
    const __m256 d = twoPixels(pixels, 3, 7);
    const __m256 low01 = _mm256_unpacklo_ps(a, b);
    const __m256 low23 = _mm256_unpacklo_ps(c, d);
    const __m256 high01 = _mm256_unpackhi_ps(a, b);
    const __m256 high23 = _mm256_unpackhi_ps(c, d);
    return {
        {_mm256_shuffle_ps(low01, low23, 0x44), _mm256_shuffle_ps(low01, low23, 0xee), _mm256_shuffle_ps(high01, high23, 0x44)},
        _mm256_shuffle_ps(high01, high23, 0xee)};
}

/// Indices into the range weights; not-a-number and infinity count as the largest difference.
NIMBRA_AVX2_INLINE __m256i indexOf(__m256 here, const float *there)
{
    const __m256 difference = _mm256_mul_ps(_mm256_sub_ps(here, _mm256_load_ps(there)), _mm256_set1_ps(1000.0f));
    const __m256 magnitude = _mm256_andnot_ps(_mm256_set1_ps(-0.0f), difference);
    // Not-a-number gives the second operand.
    return _mm256_cvttps_epi32(_mm256_min_ps(magnitude, _mm256_set1_ps(float(kRangeEntries))));
}

/// Entries `half` * 4 to `half` * 4 + 3.
template<int half>
NIMBRA_AVX2_INLINE __m256d gather(const double *table, __m256i index)
{
    return _mm256_i32gather_pd(table, _mm256_extracti128_si256(index, half), sizeof *table);
}

NIMBRA_AVX2 void writeByGathers(const TileRow &row, const TileTables &tables, TileScratch &)
{
    constexpr int kGroup = 8;
    const double *const range = tables.range.data();
    const double *const pairs = tables.pairs.data();
    for (int x = 0; x < row.columns; x += kGroup) {
        for (int line = 0; line < 2; ++line)
            _mm_prefetch(row.nextPixels + x * kChannels + line * 16, _MM_HINT_T0);
        const int left = row.columns - x;
        float copy[kGroup * kChannels];
        const Eight here = eightPixels(wholeGroup(row.pixels + x * kChannels, left, kGroup, copy));
        __m256 sumWeights = _mm256_setzero_ps();
        __m256 sumValues = _mm256_setzero_ps();
        for (int i = 0; i < row.rowCount; ++i) {
            const double *const spatial = spatialWeights(row, i);
            for (int j = 0; j < kTileSide; ++j) {
                const TileNeighbours &there = row.rows[i][j];
                const __m256i red = indexOf(here.colour[0], there.colour[0] + x);
                const __m256i green = indexOf(here.colour[1], there.colour[1] + x);
                const __m256i blue = indexOf(here.colour[2], there.colour[2] + x);
                __m256d low, high;
                const __m256i far =
                    _mm256_cmpgt_epi32(_mm256_or_si256(red, green), _mm256_set1_epi32(TileTables::kPairEntries - 1));
                if (_mm256_testz_si256(far, far)) {
                    const __m256i pair = _mm256_add_epi32(_mm256_slli_epi32(red, TileTables::kPairBits), green);
                    low = gather<0>(pairs, pair);
                    high = gather<1>(pairs, pair);
                } else {
                    low = _mm256_mul_pd(gather<0>(range, red), gather<0>(range, green));
                    high = _mm256_mul_pd(gather<1>(range, red), gather<1>(range, green));
                }
                const __m256d near = _mm256_set1_pd(spatial[j]);
                low = _mm256_mul_pd(_mm256_mul_pd(low, gather<0>(range, blue)), near);
                high = _mm256_mul_pd(_mm256_mul_pd(high, gather<1>(range, blue)), near);
                const __m256 weight =
                    _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(low)), _mm256_cvtpd_ps(high), 1);
                sumWeights = _mm256_add_ps(sumWeights, weight);
                sumValues = _mm256_add_ps(sumValues, _mm256_mul_ps(_mm256_load_ps(there.map + x), weight));
            }
        }
        const __m256 zero = _mm256_setzero_ps();
        const __m256 none =
            _mm256_or_ps(_mm256_cmp_ps(here.alpha, zero, _CMP_EQ_OQ), _mm256_cmp_ps(sumWeights, zero, _CMP_EQ_OQ));
        float values[kGroup];
        _mm256_storeu_ps(values, _mm256_andnot_ps(none, _mm256_div_ps(sumValues, sumWeights)));
        std::memcpy(row.map + x, values, std::size_t(std::min(left, kGroup)) * sizeof(float));
    }
}

struct Sixteen
{
    __m512 colour[3];
    __m512 alpha;
};

/// Sixteen pixels as planes.
NIMBRA_AVX512_INLINE Sixteen sixteenPixels(const float *pixels)
{
    const __m512 first = _mm512_loadu_ps(pixels);
    const __m512 second = _mm512_loadu_ps(pixels + 16);
    const __m512 third = _mm512_loadu_ps(pixels + 32);
    const __m512 fourth = _mm512_loadu_ps(pixels + 48);
    const __m512i redGreen = _mm512_setr_epi32(0, 4, 8, 12, 16, 20, 24, 28, 1, 5, 9, 13, 17, 21, 25, 29);
    const __m512i blueAlpha = _mm512_setr_epi32(2, 6, 10, 14, 18, 22, 26, 30, 3, 7, 11, 15, 19, 23, 27, 31);
    const __m512 lowRedGreen = _mm512_permutex2var_ps(first, redGreen, second);
    const __m512 highRedGreen = _mm512_permutex2var_ps(third, redGreen, fourth);
    const __m512 lowBlueAlpha = _mm512_permutex2var_ps(first, blueAlpha, second);
    const __m512 highBlueAlpha = _mm512_permutex2var_ps(third, blueAlpha, fourth);
    return {{_mm512_shuffle_f32x4(lowRedGreen, highRedGreen, 0x44), _mm512_shuffle_f32x4(lowRedGreen, highRedGreen, 0xee),
             _mm512_shuffle_f32x4(lowBlueAlpha, highBlueAlpha, 0x44)},
            _mm512_shuffle_f32x4(lowBlueAlpha, highBlueAlpha, 0xee)};
}

/// In thousandths.
NIMBRA_AVX512_INLINE __m512 differenceOf(__m512 here, const float *there)
{
    return _mm512_abs_ps(_mm512_mul_ps(_mm512_sub_ps(here, _mm512_load_ps(there)), _mm512_set1_ps(1000.0f)));
}

/// Table entries 0 to `entries` - 1 for the indices, each a half of a double.
template<std::uint32_t entries>
NIMBRA_AVX512_INLINE __m512i halvesOf(const __m512i *table, __m512i index)
{
    if constexpr (entries == 32) {
        return _mm512_permutex2var_epi32(table[0], index, table[1]);
    } else {
        const __mmask16 upper = _mm512_test_epi32_mask(index, _mm512_set1_epi32(entries / 2));
        return _mm512_mask_blend_epi32(upper, halvesOf<entries / 2>(table, index),
                                       halvesOf<entries / 2>(table + entries / 32, index));
    }
}

/// Range weights of sixteen pixels: those of the first two, of the third two and so on, and those of the others.
struct Weights
{
    __m512d even;
    __m512d odd;
};

template<std::uint32_t entries>
NIMBRA_AVX512_INLINE Weights weightsOf(const __m512i *lowTable, const __m512i *highTable, __m512i index)
{
    const __m512i low = halvesOf<entries>(lowTable, index);
    const __m512i high = halvesOf<entries>(highTable, index);
    return {_mm512_castsi512_pd(_mm512_unpacklo_epi32(low, high)), _mm512_castsi512_pd(_mm512_unpackhi_epi32(low, high))};
}

NIMBRA_AVX512_INLINE Weights product(const Weights &a, const Weights &b)
{
    return {_mm512_mul_pd(a.even, b.even), _mm512_mul_pd(a.odd, b.odd)};
}

template<std::uint32_t entries>
NIMBRA_AVX512_INLINE Weights productOf(const __m512i *low, const __m512i *high, const __m512i *index)
{
    return product(product(weightsOf<entries>(low, high, index[0]), weightsOf<entries>(low, high, index[1])),
                   weightsOf<entries>(low, high, index[2]));
}

/// Whether an index has one of the bits from `entries`, a power of 2, upwards; `all` is the union of the indices' bits.
NIMBRA_AVX512_INLINE bool anyAt(__m512i all, std::uint32_t entries)
{
    return _mm512_cmpge_epu32_mask(all, _mm512_set1_epi32(int(entries))) != 0;
}

/// The weights of any differences, one by one. Not inlined, so that the loop keeps its registers.
__attribute__((noinline)) NIMBRA_AVX512 void weightsOneByOne(const TileTables &tables, __m512 red, __m512 green, __m512 blue,
                                                             Weights &weights)
{
    const __m512 differences[3] = {red, green, blue};
    __m512i index[3];
    for (int c = 0; c < 3; ++c) // not-a-number gives the second operand of the minimum
        index[c] = _mm512_cvttps_epi32(_mm512_min_ps(differences[c], _mm512_set1_ps(float(kRangeEntries))));
    alignas(64) std::uint32_t entries[3][16];
    for (int c = 0; c < 3; ++c)
        _mm512_store_si512(entries[c], index[c]);
    const double *const range = tables.range.data();
    alignas(64) double products[16];
    for (int i = 0; i < 16; ++i)
        products[(i & 2) * 4 + i / 4 * 2 + (i & 1)] = range[entries[0][i]] * range[entries[1][i]] * range[entries[2][i]];
    weights = {_mm512_load_pd(products), _mm512_load_pd(products + 8)};
}

NIMBRA_AVX512 void writeByRegisters(const TileRow &row, const TileTables &tables, TileScratch &)
{
    constexpr int kGroup = 16;
    constexpr std::uint32_t kHeld = 64; ///< Entries that the registers have room for.
    constexpr std::uint32_t kInMemory = TileTables::kHalfEntries;
    const auto *const lowTable = reinterpret_cast<const __m512i *>(tables.low.data());
    const auto *const highTable = reinterpret_cast<const __m512i *>(tables.high.data());
    __m512i low[kHeld / 16], high[kHeld / 16];
    for (std::size_t i = 0; i < kHeld / 16; ++i) {
        low[i] = _mm512_load_si512(lowTable + i);
        high[i] = _mm512_load_si512(highTable + i);
    }
    const __m512i interleaved = _mm512_setr_epi64(0, 8, 1, 9, 2, 10, 3, 11);
    for (int x = 0; x < row.columns; x += kGroup) {
        for (int line = 0; line < kChannels; ++line)
            _mm_prefetch(row.nextPixels + x * kChannels + line * 16, _MM_HINT_T0);
        const int left = row.columns - x;
        float copy[kGroup * kChannels];
        const Sixteen here = sixteenPixels(wholeGroup(row.pixels + x * kChannels, left, kGroup, copy));
        __m512 sumWeights = _mm512_setzero_ps();
        __m512 sumValues = _mm512_setzero_ps();
        for (int i = 0; i < row.rowCount; ++i) {
            const double *const spatial = spatialWeights(row, i);
            for (int j = 0; j < kTileSide; ++j) {
                const TileNeighbours &there = row.rows[i][j];
                __m512 differences[3];
                __m512i index[3];
                for (int c = 0; c < 3; ++c) {
                    differences[c] = differenceOf(here.colour[c], there.colour[c] + x);
                    index[c] = _mm512_cvttps_epi32(differences[c]); // above every entry for not-a-number and what is too large
                }
                const __m512i all = _mm512_or_si512(_mm512_or_si512(index[0], index[1]), index[2]);
                Weights weights;
                if (__builtin_expect(anyAt(all, kHeld), 0) == 0)
                    weights = productOf<kHeld>(low, high, index);
                else if (__builtin_expect(anyAt(all, kInMemory), 0) == 0)
                    weights = productOf<kInMemory>(lowTable, highTable, index);
                else
                    weightsOneByOne(tables, differences[0], differences[1], differences[2], weights);
                const __m512d near = _mm512_set1_pd(spatial[j]);
                const __m512d even = _mm512_castps_pd(_mm512_castps256_ps512(_mm512_cvtpd_ps(_mm512_mul_pd(weights.even, near))));
                const __m512d odd = _mm512_castps_pd(_mm512_castps256_ps512(_mm512_cvtpd_ps(_mm512_mul_pd(weights.odd, near))));
                const __m512 weight = _mm512_castpd_ps(_mm512_permutex2var_pd(even, interleaved, odd));
                sumWeights = _mm512_add_ps(sumWeights, weight);
                sumValues = _mm512_add_ps(sumValues, _mm512_mul_ps(_mm512_load_ps(there.map + x), weight));
            }
        }
        const __m512 zero = _mm512_setzero_ps();
        const __mmask16 some =
            _mm512_cmp_ps_mask(here.alpha, zero, _CMP_NEQ_UQ) & _mm512_cmp_ps_mask(sumWeights, zero, _CMP_NEQ_UQ);
        const auto inside = __mmask16(left >= kGroup ? 0xffff : (1 << left) - 1);
        _mm512_mask_storeu_ps(row.map + x, inside, _mm512_maskz_div_ps(some, sumValues, sumWeights));
    }
}

NIMBRA_AVX512 void spreadByRegisters(const int *places, int columns, const TileScratch &scratch, TileNeighbours *target)
{
    constexpr int kGroup = 16;
    constexpr int kReach = 32; ///< Coarse pixels that a group is chosen from.
    alignas(64) float planes[4][kCoarsePixels + kReach];
    const int reached = places[columns - 1] + kTileSide;
    for (int i = 0; i < reached; i += kGroup) {
        const Sixteen pixels = sixteenPixels(reinterpret_cast<const float *>(scratch.coarse + i));
        for (int c = 0; c < 3; ++c)
            _mm512_store_ps(planes[c] + i, pixels.colour[c]);
        _mm512_store_ps(planes[3] + i, pixels.alpha);
    }
    for (int x = 0; x < columns; x += kGroup) {
        const int first = places[x];
        const __m512i place = _mm512_sub_epi32(_mm512_loadu_si512(places + x), _mm512_set1_epi32(first));
        for (int c = 0; c < 4; ++c) {
            const __m512 low = _mm512_loadu_ps(planes[c] + first);
            const __m512 high = _mm512_loadu_ps(planes[c] + first + kGroup);
            for (int i = 0; i < kTileSide; ++i) {
                float *const plane = c < 3 ? target[i].colour[c] : target[i].map;
                _mm512_store_ps(plane + x, _mm512_permutex2var_ps(low, _mm512_add_epi32(place, _mm512_set1_epi32(i)), high));
            }
        }
    }
}

} // namespace

const TileKernel kTileGathers = {"gathers", spreadByLoops, writeByGathers};
const TileKernel kTileRegisters = {"registers", spreadByRegisters, writeByRegisters};

#endif
