#include "ipp.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "InstructionSet.h"

namespace {

/// The source pixels that contribute to one target pixel along one axis: `count` pixels starting at `first`, with weights
/// starting at weights[firstWeight].
struct Taps
{
    int first;
    int count;
    std::size_t firstWeight;
};

/// One axis: the lengths of source and target divided by their greatest common divisor, so that weights are whole numbers. The
/// weights of each target pixel add up to `weightSum`.
struct Axis
{
    std::int64_t sourceUnits;
    std::int64_t targetUnits;
    std::int64_t weightSum;
};

std::int64_t greatestCommonDivisor(std::int64_t a, std::int64_t b)
{
    while (b != 0)
        a = std::exchange(b, a % b);
    return a;
}

Axis axisOf(int source, int target, IppiInterpolation method)
{
    const std::int64_t divisor = greatestCommonDivisor(source, target);
    const std::int64_t sourceUnits = source / divisor;
    const std::int64_t targetUnits = target / divisor;
    return {sourceUnits, targetUnits, method == IppiInterpolation::Linear ? 2 * targetUnits : sourceUnits};
}

/// Calls tap(source pixel, weight) for each source pixel that contributes to target pixel `index`. A source pixel is targetUnits
/// long (2 targetUnits for linear, where halves occur), a target pixel sourceUnits.
template<typename Tap>
void forTaps(const Axis &axis, int source, int index, IppiInterpolation method, const Tap &tap)
{
    if (method == IppiInterpolation::Linear) {
        // (index + 0.5) * source / target - 0.5, in units of 1 / weightSum of a source pixel
        const std::int64_t position = (2 * std::int64_t(index) + 1) * axis.sourceUnits - axis.targetUnits;
        const std::int64_t left = position < 0 ? -1 : position / axis.weightSum;
        const std::int64_t right = position - left * axis.weightSum;
        if (left < 0)
            tap(0, axis.weightSum);
        else if (left >= source - 1)
            tap(source - 1, axis.weightSum);
        else {
            tap(int(left), axis.weightSum - right);
            if (right > 0)
                tap(int(left) + 1, right);
        }
        return;
    }
    const std::int64_t begin = index * axis.sourceUnits;
    const std::int64_t end = begin + axis.sourceUnits;
    for (std::int64_t pixel = begin / axis.targetUnits; pixel * axis.targetUnits < end; ++pixel) {
        const std::int64_t from = std::max(begin, pixel * axis.targetUnits);
        const std::int64_t to = std::min(end, (pixel + 1) * axis.targetUnits);
        tap(int(pixel), to - from);
    }
}

/// The most weights that one axis can have: area averaging counts a source pixel once per target pixel that it touches.
std::size_t weightLimit(int source, int target)
{
    return std::size_t(source) + 2 * std::size_t(target);
}

/// Integer samples are summed in doubles, where all their sums and products with the integer weights are exact.
template<typename Sample>
using SumOf = std::conditional_t<std::is_same_v<Sample, float>, float, double>;

template<typename Sample>
NIMBRA_INLINE Sample toSample(SumOf<Sample> value)
{
    if constexpr (std::is_same_v<Sample, float>)
        return value;
    constexpr double kToInteger = 4503599627370496.0; // 2^52: adding and subtracting it rounds to the nearest, ties to even
    return static_cast<Sample>(int((value + kToInteger) - kToInteger));
}

} // namespace

struct IppiResizeSpec
{
    IppiSize source;
    IppiSize target;
    PixelForm form;
    double weightSum[2];
    Taps *taps[2]; ///< Columns, rows; one entry for each target pixel.
    double *weights[2];
};

namespace {

template<typename Sample>
NIMBRA_INLINE void sumRows(const unsigned char *source, std::ptrdiff_t step, const Taps &taps, const double *weights,
                           double weightSum, std::size_t samples, SumOf<Sample> *sums)
{
    using Sum = SumOf<Sample>;
    const auto row = [&](int tap) { return reinterpret_cast<const Sample *>(source + step * (taps.first + tap)); };
    const auto weight = [&](int tap) { return static_cast<Sum>(weights[tap]); };

    const Sum total = static_cast<Sum>(weightSum);
    // With doubles a single division at the end is enough.
    const auto mean = [total](Sum sum) { return std::is_same_v<Sample, float> ? sum / total : sum; };
    const Sample *a = row(0);
    const Sum weightA = weight(0);
    if (taps.count == 1) {
        for (std::size_t i = 0; i < samples; ++i)
            sums[i] = mean(static_cast<Sum>(a[i]) * weightA);
        return;
    }
    const Sample *b = row(1);
    const Sum weightB = weight(1);
    if (taps.count == 2) {
        for (std::size_t i = 0; i < samples; ++i)
            sums[i] = mean(static_cast<Sum>(a[i]) * weightA + static_cast<Sum>(b[i]) * weightB);
        return;
    }
    if (taps.count == 3) {
        const Sample *c = row(2);
        const Sum weightC = weight(2);
        for (std::size_t i = 0; i < samples; ++i)
            sums[i] =
                mean(static_cast<Sum>(a[i]) * weightA + static_cast<Sum>(b[i]) * weightB + static_cast<Sum>(c[i]) * weightC);
        return;
    }
    for (std::size_t i = 0; i < samples; ++i)
        sums[i] = static_cast<Sum>(a[i]) * weightA + static_cast<Sum>(b[i]) * weightB;
    // Four rows at a time, so that the sums are loaded and stored less often.
    int tap = 2;
    for (; tap + 4 <= taps.count; tap += 4) {
        const Sample *r0 = row(tap), *r1 = row(tap + 1), *r2 = row(tap + 2), *r3 = row(tap + 3);
        const Sum w0 = weight(tap), w1 = weight(tap + 1), w2 = weight(tap + 2), w3 = weight(tap + 3);
        for (std::size_t i = 0; i < samples; ++i)
            sums[i] = sums[i] + static_cast<Sum>(r0[i]) * w0 + static_cast<Sum>(r1[i]) * w1 + static_cast<Sum>(r2[i]) * w2 +
                      static_cast<Sum>(r3[i]) * w3;
    }
    for (; tap < taps.count; ++tap) {
        const Sample *last = row(tap);
        const Sum lastWeight = weight(tap);
        for (std::size_t i = 0; i < samples; ++i)
            sums[i] = sums[i] + static_cast<Sum>(last[i]) * lastWeight;
    }
    if constexpr (std::is_same_v<Sample, float>)
        for (std::size_t i = 0; i < samples; ++i)
            sums[i] = mean(sums[i]);
}

template<typename Sample, int Channels>
NIMBRA_INLINE void sumColumns(const IppiResizeSpec &spec, const SumOf<Sample> *sums, Sample *target)
{
    using Sum = SumOf<Sample>;
    const bool sumsAreMeans = std::is_same_v<Sample, float>;
    const Sum total = static_cast<Sum>(spec.weightSum[0] * (sumsAreMeans ? 1.0 : spec.weightSum[1]));
    for (int x = 0; x < spec.target.width; ++x, target += Channels) {
        const Taps &taps = spec.taps[0][x];
        const double *weights = spec.weights[0] + taps.firstWeight;
        const Sum *from = sums + std::size_t(taps.first) * Channels;
        Sum mean[Channels] = {};
        for (int tap = 0; tap < taps.count; ++tap, from += Channels) {
            const Sum weight = static_cast<Sum>(weights[tap]);
            for (int channel = 0; channel < Channels; ++channel)
                mean[channel] += from[channel] * weight;
        }
        for (int channel = 0; channel < Channels; ++channel)
            target[channel] = toSample<Sample>(mean[channel] / total);
    }
}

template<typename Sample, int Channels>
NIMBRA_INLINE void resizeRow(const IppiResizeSpec &spec, const unsigned char *source, std::ptrdiff_t step, void *target, int y,
                             void *buffer)
{
    auto *sums = static_cast<SumOf<Sample> *>(buffer);
    const Taps &taps = spec.taps[1][y];
    sumRows<Sample>(source, step, taps, spec.weights[1] + taps.firstWeight, spec.weightSum[1],
                    std::size_t(spec.source.width) * Channels, sums);
    sumColumns<Sample, Channels>(spec, sums, static_cast<Sample *>(target));
}

template<typename Sample>
NIMBRA_INLINE void resizeRowOf(const IppiResizeSpec &spec, const unsigned char *source, std::ptrdiff_t step, void *target, int y,
                               void *buffer)
{
    switch (spec.form.components) {
    case 1:
        return resizeRow<Sample, 1>(spec, source, step, target, y, buffer);
    case 3:
        return resizeRow<Sample, 3>(spec, source, step, target, y, buffer);
    default:
        return resizeRow<Sample, 4>(spec, source, step, target, y, buffer);
    }
}

NIMBRA_INLINE void resizeAnyRowBody(const IppiResizeSpec &spec, const unsigned char *source, std::ptrdiff_t step, void *target,
                                    int y, void *buffer)
{
    switch (spec.form.bits) {
    case 8:
        return resizeRowOf<std::uint8_t>(spec, source, step, target, y, buffer);
    case 16:
        return resizeRowOf<std::uint16_t>(spec, source, step, target, y, buffer);
    default:
        return resizeRowOf<float>(spec, source, step, target, y, buffer);
    }
}
const auto resizeAnyRow = versionOf<resizeAnyRowBody>();

bool isEmpty(IppiSize size)
{
    return size.width <= 0 || size.height <= 0;
}

} // namespace

std::size_t ippiResizeGetSize(IppiSize source, IppiSize target, IppiInterpolation)
{
    if (isEmpty(source) || isEmpty(target))
        return 0;
    return sizeof(IppiResizeSpec) + (std::size_t(target.width) + std::size_t(target.height)) * sizeof(Taps) +
           (weightLimit(source.width, target.width) + weightLimit(source.height, target.height)) * sizeof(double);
}

IppStatus ippiResizeInit(IppiSize source, IppiSize target, IppiInterpolation method, PixelForm form, IppiResizeSpec *spec)
{
    if (!spec)
        return ippStsNullPtrErr;
    if (isEmpty(source) || isEmpty(target))
        return ippStsSizeErr;
    spec->source = source;
    spec->target = target;
    spec->form = form;
    const int sourceLength[2] = {source.width, source.height};
    const int targetLength[2] = {target.width, target.height};
    auto *taps = reinterpret_cast<Taps *>(spec + 1);
    auto *weights = reinterpret_cast<double *>(taps + std::size_t(target.width) + std::size_t(target.height));
    for (int side = 0; side < 2; ++side) {
        const Axis axis = axisOf(sourceLength[side], targetLength[side], method);
        spec->weightSum[side] = double(axis.weightSum);
        spec->taps[side] = taps;
        spec->weights[side] = weights;
        std::size_t used = 0;
        for (int index = 0; index < targetLength[side]; ++index, ++taps) {
            *taps = {0, 0, used};
            forTaps(axis, sourceLength[side], index, method, [&](int pixel, std::int64_t weight) {
                if (taps->count++ == 0)
                    taps->first = pixel;
                weights[used++] = double(weight);
            });
        }
        weights += used;
    }
    return ippStsNoErr;
}

std::size_t ippiResizeGetBufferSize(const IppiResizeSpec *spec)
{
    const std::size_t samples = std::size_t(spec->source.width) * std::size_t(spec->form.components);
    return samples * (spec->form.bits == 32 ? sizeof(float) : sizeof(double));
}

IppStatus ippiResize(const void *source, int sourceStep, void *target, int targetStep, int firstRow, int rowCount,
                     const IppiResizeSpec *spec, void *buffer)
{
    if (!source || !target || !spec || !buffer)
        return ippStsNullPtrErr;
    if (firstRow < 0 || rowCount < 0 || rowCount > spec->target.height - firstRow)
        return ippStsSizeErr;
    for (int y = firstRow; y < firstRow + rowCount; ++y)
        resizeAnyRow(*spec, static_cast<const unsigned char *>(source), sourceStep,
                     static_cast<unsigned char *>(target) + std::ptrdiff_t(targetStep) * y, y, buffer);
    return ippStsNoErr;
}
