#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

#include <QImage>
#include <fuzzer/FuzzedDataProvider.h>
#include <sanitizer/asan_interface.h>

#include "FuzzTarget.h"
#include "HazeState.h"
#include "RemoveHaze.h"
#include "VImage.h"
#include "gflRows.h"
#include "ipp.h"

// Conversion, resampling and the engine on images of any shape, stride, form and values: nothing outside the pixels is touched,
// and the results are as the headers promise.
namespace {

constexpr int kMaxSide = 12;
constexpr unsigned short kTypes[] = {VImage::Grey, VImage::Rgb, VImage::Rgba};
constexpr int kDepths[] = {8, 16, 32};
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kTelling[] = {kNan,   -kNan,  kInfinity, -kInfinity, 0.0f, -0.0f,         1.0f,      1.5f,
                              -0.25f, 1e-40f, -1e-45f,   3.4e38f,    0.5f, 1.0f / 510.0f, 0.999999f, 1e9f};

int channelsOf(unsigned short type)
{
    return type == VImage::Grey ? 1 : type == VImage::Rgb ? 3 : 4;
}

/// Samples from the input and, once that is used up, from a sequence seeded by it.
class Samples
{
public:
    explicit Samples(FuzzedDataProvider &source) : data(source), state(source.ConsumeIntegral<std::uint32_t>() | 1u) {}
    std::uint8_t byte()
    {
        state = state * 1664525u + 1013904223u;
        return std::uint8_t(data.remaining_bytes() ? data.ConsumeIntegral<std::uint8_t>() : state >> 24);
    }
    float real(int kind)
    {
        if (kind == 0)
            return float(byte()) / 255.0f;
        if (kind == 1)
            return kTelling[byte() % std::size(kTelling)];
        std::uint32_t bits = 0;
        for (int i = 0; i < 4; ++i)
            bits = bits << 8 | byte();
        float value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    void fill(VImage &image, int kind)
    {
        const std::size_t count = std::size_t(image.Width()) * std::size_t(channelsOf(image.Type()));
        for (int y = 0; y < image.Height(); ++y) {
            unsigned char *const row = image.PixelAddress(0, y);
            if (image.BitsPerComponent() == 32)
                std::generate_n(reinterpret_cast<float *>(row), count, [&] { return real(kind); });
            else
                std::generate_n(row, count * unsigned(image.BitsPerComponent() / 8), [&] { return byte(); });
        }
    }

private:
    FuzzedDataProvider &data;
    std::uint32_t state;
};

/// An image with a gap after each row that must not be touched.
class Padded
{
public:
    Padded(int width, int height, unsigned short type, int bits, int gapSamples)
        : rowBytes(std::size_t(width) * std::size_t(channelsOf(type) * bits / 8)),
          stride(rowBytes + std::size_t(gapSamples) * std::size_t(bits / 8)), block(stride * std::size_t(height))
    {
        image.Create(width, height, type, bits, false, block.data(), int(stride));
        for (std::size_t y = 0; y < std::size_t(height); ++y)
            ASAN_POISON_MEMORY_REGION(block.data() + y * stride + rowBytes, stride - rowBytes);
    }
    ~Padded() { ASAN_UNPOISON_MEMORY_REGION(block.data(), block.size()); }
    Padded(const Padded &) = delete;
    Padded &operator=(const Padded &) = delete;

    VImage image;

private:
    std::size_t rowBytes;
    std::size_t stride;
    std::vector<unsigned char> block;
};

double sampleAt(const unsigned char *row, int bits, int index)
{
    if (bits == 8)
        return row[index];
    if (bits == 16)
        return reinterpret_cast<const std::uint16_t *>(row)[index];
    return double(reinterpret_cast<const float *>(row)[index]);
}

/// Compares with the codec layer's conversion, which converts whole pixels in one step. Colour to grey is left out, and so is the
/// alpha that a source lacks: both belong to the image room alone.
void compareWithCodecLayer(const VImage &from, int fromX, int fromY, const VImage &to, int toX, int toY, int width, int height)
{
    const int source = channelsOf(from.Type()), target = channelsOf(to.Type()), bits = to.BitsPerComponent();
    if (source > target && target == 1)
        return;
    std::vector<std::uint32_t> expected(std::size_t(width) * 4);
    auto *const row = reinterpret_cast<unsigned char *>(expected.data());
    for (int y = 0; y < height; ++y) {
        gfl::rowConverter(from.BitsPerComponent(), bits)(from.PixelAddress(fromX, fromY + y), source, row, target, width);
        const unsigned char *const got = to.PixelAddress(toX, toY + y);
        for (int i = 0; i < width * target; ++i) {
            if (target == 4 && source != 4 && i % 4 == 3)
                continue;
            const double a = sampleAt(got, bits, i), b = sampleAt(row, bits, i);
            require(a == b || (std::isnan(a) && std::isnan(b)), "the two layers convert alike");
        }
    }
}

void convert(FuzzedDataProvider &data, const VImage &source, Samples &samples)
{
    const unsigned short type = data.PickValueInArray(kTypes);
    const int bits = data.PickValueInArray(kDepths);
    const int right = data.ConsumeIntegralInRange(0, 4), below = data.ConsumeIntegralInRange(0, 4);
    const bool whole = data.ConsumeBool();
    const int x = whole ? 0 : data.ConsumeIntegralInRange(0, source.Width() - 1);
    const int y = whole ? 0 : data.ConsumeIntegralInRange(0, source.Height() - 1);
    const int width = source.Width() - x, height = source.Height() - y;
    const int left = whole ? 0 : right, top = whole ? 0 : below;
    Padded target(width + left, height + top, type, bits, data.ConsumeIntegralInRange(0, 9));
    samples.fill(target.image, 1);
    if (whole)
        source.ConvertTo(target.image, type, bits);
    else
        source.CopyRect(x, y, width, height, target.image, left, top);
    compareWithCodecLayer(source, x, y, target.image, left, top, width, height);
    VImage own;
    source.ConvertTo(own, type, bits);
}

void resample(FuzzedDataProvider &data, const VImage &source)
{
    const int width = data.ConsumeIntegralInRange(1, 2 * kMaxSide), height = data.ConsumeIntegralInRange(1, 2 * kMaxSide);
    if (width == source.Width() && height == source.Height())
        return; // gives a deep copy with the gaps, which belong to the record
    VImage target;
    source.Resample(target, width, height);
    if (source.BitsPerComponent() == 32)
        return;
    const auto limits = [](const VImage &image) {
        std::pair<double, double> found(1e9, -1e9);
        for (int y = 0; y < image.Height(); ++y)
            for (int i = 0; i < image.Width() * channelsOf(image.Type()); ++i) {
                const double value = sampleAt(image.PixelAddress(0, y), image.BitsPerComponent(), i);
                found = {std::min(found.first, value), std::max(found.second, value)};
            }
        return found;
    };
    const auto before = limits(source), after = limits(target);
    require(after.first >= before.first && after.second <= before.second, "means lie between the samples that they are made of");
}

void smallest(FuzzedDataProvider &data, const VImage &source)
{
    VImage floats;
    source.ConvertTo(floats, VImage::Rgba, 32);
    Padded target(floats.Width(), floats.Height(), VImage::Rgba, 32, 0);
    const IppiSize region{floats.Width(), floats.Height()};
    const IppiSize mask{data.ConsumeIntegralInRange(1, 30), data.ConsumeIntegralInRange(1, 30)};
    const IppiPoint anchor{data.ConsumeIntegralInRange(-1, 30), data.ConsumeIntegralInRange(-1, 30)};
    const std::vector<float> buffer((ippiFilterMinGetBufferSize(region, mask) + 3) / 4);
    (void)ippiFilterMinBorder(reinterpret_cast<float *>(floats.PixelAddress(0, 0)), floats.BytesPerLine(),
                              reinterpret_cast<float *>(target.image.PixelAddress(0, 0)), target.image.BytesPerLine(), region,
                              mask, anchor, const_cast<float *>(buffer.data()));
}

/// The last pass, whose results are always numbers and never negative.
void recover(FuzzedDataProvider &data, VImage &image, Samples &samples)
{
    HazeState state{};
    state.strength = data.ConsumeBool() ? data.ConsumeIntegralInRange(0, 100) : data.ConsumeIntegral<std::int32_t>();
    const int kind = data.ConsumeIntegralInRange(0, 2);
    for (float &value : state.airlight)
        value = samples.real(kind);
    std::vector<float> map(std::size_t(image.Width()) * std::size_t(image.Height()));
    std::generate(map.begin(), map.end(), [&] { return samples.real(kind); });
    state.transmission = map.data();
    RemoveHaze(image, state);
    for (int y = 0; state.strength != 0 && y < image.Height(); ++y) {
        const auto *pixel = reinterpret_cast<const float *>(image.PixelAddress(0, y));
        for (int x = 0; x < image.Width(); ++x, pixel += 4)
            require(pixel[3] == 0.0f || std::all_of(pixel, pixel + 3, [](float value) { return value >= 0.0f; }),
                    "a recovered sample is a number and not negative");
    }
}

// The stages take long, and the whole engine, which always works on 100,000 pixels, takes very long: they run only occasionally,
// chosen by a number that mutations can't aim at.

void stages(std::uint32_t shape, const VImage &source)
{
    float airlight[3] = {};
    VImage image, low;
    source.ConvertTo(image, VImage::Rgba, 32);
    image.Resample(low, 1 + int(shape / 64 % kMaxSide), 1 + int(shape / 4096 % kMaxSide));
    const std::unique_ptr<float[]> map(low.HazeDarkChannel(airlight));
    if (!map || !low.HazeMatting(map.get()))
        return;
    const std::unique_ptr<float[]> full(image.HazeUpsample(map.get(), &low));
    image.HazeRecover(full.get(), airlight, 0.8f);
}

void wholeEngine(const VImage &image)
{
    VImage working;
    image.ConvertTo(working, VImage::Rgba, 32);
    HazeState state{80, {}, nullptr};
    RemoveHaze(working, state);
    delete[] state.transmission;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count)
{
    FuzzedDataProvider data(bytes, count);
    const unsigned work = data.ConsumeIntegral<std::uint8_t>() % 16;
    const std::uint32_t aim = digest(bytes, count);
    const bool engine = work >= 13;
    const unsigned short type = engine ? VImage::Rgba : data.PickValueInArray(kTypes);
    const int bits = engine ? 32 : data.PickValueInArray(kDepths);
    const int width = data.ConsumeIntegralInRange(1, kMaxSide), height = data.ConsumeIntegralInRange(1, kMaxSide);
    const int gap = data.ConsumeIntegralInRange(0, 9);
    const int kind = data.ConsumeIntegralInRange(0, 2);
    Samples samples(data);
    Padded source(width, height, type, bits, gap);
    QImage picture;
    samples.fill(source.image, kind);
    if (work < 9)
        convert(data, source.image, samples);
    else if (work < 11)
        resample(data, source.image);
    else if (work == 11)
        smallest(data, source.image);
    else if (work == 12)
        source.image.ToQImage(picture);
    else if (aim % 64 == 0)
        stages(aim, source.image);
    else
        recover(data, source.image, samples);
    if (aim % 1000000 == 0)
        wholeEngine(source.image);
    return 0;
}
