#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "gflCodec.h"

// Radiance RGBE: text lines, an empty line, the size, then rows of pixels, each with three mantissas and one exponent. Source: G.
// Ward, Real Pixels, Graphics Gems II, 1991, and the Radiance file format description.
namespace gfl {
namespace {

constexpr int kShortestRle = 8;
constexpr int kLongestRle = 32767;
constexpr int kExponentBias = 128 + 8;

std::string line(InputStream &stream)
{
    constexpr std::size_t kLongest = 4096;
    std::string text;
    for (int c = stream.next(); c != '\n'; c = stream.next()) {
        if (c < 0 || text.size() >= kLongest)
            throw Failure{GFL_ERROR_FILE_READ};
        text += char(c);
    }
    if (!text.empty() && text.back() == '\r')
        text.pop_back();
    return text;
}

struct Size
{
    long width = 0;
    long height = 0;
    bool bottomUp = false;
    bool rightToLeft = false;
};

Size readHeader(InputStream &stream)
{
    constexpr int kMostLines = 1000;
    line(stream); // the signature
    bool blank = false;
    for (int i = 0; i < kMostLines && !blank; ++i) {
        const std::string text = line(stream);
        blank = text.empty();
        if (text.compare(0, 7, "FORMAT=") == 0 && text != "FORMAT=32-bit_rle_rgbe")
            throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
    }
    Size size;
    char ySign = 0;
    char xSign = 0;
    // Pictures stored column by column ("+X 600 +Y 400") are not supported.
    if (!blank || std::sscanf(line(stream).c_str(), "%cY %9ld %cX %9ld", &ySign, &size.height, &xSign, &size.width) != 4)
        throw Failure{GFL_ERROR_FILE_READ};
    size.bottomUp = ySign == '+';
    size.rightToLeft = xSign == '-';
    return size;
}

// Four planes, each in runs (128 + length, value) and stretches (length, values).
void readRuns(InputStream &stream, std::uint8_t *pixels, int width)
{
    for (int plane = 0; plane < 4; ++plane)
        for (int x = 0; x < width;) {
            const int code = stream.next();
            const int count = code > 128 ? code - 128 : code;
            if (count <= 0 || count > width - x)
                throw Failure{GFL_ERROR_FILE_READ};
            int value = code > 128 ? stream.next() : 0;
            for (int i = 0; i < count; ++i, ++x) {
                if (code <= 128)
                    value = stream.next();
                pixels[x * 4 + plane] = std::uint8_t(value);
            }
            if (value < 0)
                throw Failure{GFL_ERROR_FILE_READ};
        }
}

// Unpacked pixels; (1, 1, 1, n) repeats the previous pixel n times, and consecutive repeats count in higher digits.
void readOldRuns(InputStream &stream, std::uint8_t *pixels, int width, const std::uint8_t first[4])
{
    int shift = 0;
    std::uint8_t pixel[4];
    std::memcpy(pixel, first, sizeof pixel);
    for (int x = 0; x < width;) {
        if (x > 0 && pixel[0] == 1 && pixel[1] == 1 && pixel[2] == 1) {
            const long count = shift < 24 ? long(pixel[3]) << shift : 0;
            if (count > width - x)
                throw Failure{GFL_ERROR_FILE_READ};
            for (long i = 0; i < count; ++i, ++x)
                std::memcpy(pixels + std::size_t(x) * 4, pixels + (std::size_t(x) - 1) * 4, 4);
            shift += 8;
            if (shift > 32)
                throw Failure{GFL_ERROR_FILE_READ};
        } else {
            std::memcpy(pixels + std::size_t(x) * 4, pixel, 4);
            ++x;
            shift = 0;
        }
        if (x < width)
            stream.read(pixel, sizeof pixel);
    }
}

void readRow(InputStream &stream, std::uint8_t *pixels, int width)
{
    std::uint8_t first[4];
    stream.read(first, sizeof first);
    const int length = first[2] << 8 | first[3];
    const bool runs = width >= kShortestRle && width <= kLongestRle && first[0] == 2 && first[1] == 2 && first[2] < 128;
    if (!runs)
        readOldRuns(stream, pixels, width, first);
    else if (length == width)
        readRuns(stream, pixels, width);
    else
        throw Failure{GFL_ERROR_FILE_READ};
}

/// 2 to the power of (exponent - bias), exact for every byte value.
struct Scales
{
    float byExponent[256];
    Scales()
    {
        byExponent[0] = 0.0f; // means black
        for (int e = 1; e < 256; ++e)
            byExponent[e] = std::ldexp(1.0f, e - kExponentBias);
    }
};

// Rounds to the nearest mantissa, so that reading it back is off by half a step at most. Values that can't be stored (negative,
// NaN) become black; infinity becomes the largest value.
void encode(const float *rgb, std::uint8_t *pixel)
{
    constexpr float kSmallest = 1e-32f;    // well within the exponent's byte; the scale below stays finite
    constexpr float kLargest = 1.6947e38f; // 255 / 256 of 2^127
    float value[3];
    float largest = 0.0f;
    for (int c = 0; c < 3; ++c) {
        value[c] = rgb[c] > 0.0f ? std::min(rgb[c], kLargest) : 0.0f;
        largest = std::max(largest, value[c]);
    }
    if (largest < kSmallest) {
        std::memset(pixel, 0, 4);
        return;
    }
    int exponent;
    const float fraction = std::frexp(largest, &exponent); // at least 0.5, below 1
    if (fraction >= 255.5f / 256.0f)
        ++exponent;
    const float scale = std::ldexp(1.0f, 8 - exponent);
    for (int c = 0; c < 3; ++c)
        pixel[c] = std::uint8_t(std::min(value[c] * scale + 0.5f, 255.0f));
    pixel[3] = std::uint8_t(exponent + 128);
}

void appendRuns(Bytes &out, const std::uint8_t *pixels, int width)
{
    constexpr int kLongestPart = 127;
    constexpr int kWorthwhile = 4;
    for (int plane = 0; plane < 4; ++plane) {
        const auto at = [&](int x) { return pixels[std::size_t(x) * 4 + unsigned(plane)]; };
        const auto runAt = [&](int x) {
            int length = 1;
            while (length < kLongestPart && x + length < width && at(x + length) == at(x))
                ++length;
            return length;
        };
        for (int x = 0; x < width;) {
            int run = runAt(x);
            if (run >= kWorthwhile) {
                out.push_back(std::uint8_t(128 + run));
                out.push_back(at(x));
                x += run;
                continue;
            }
            const int start = x;
            while (x < width && x - start < kLongestPart && (run = runAt(x)) < kWorthwhile)
                x = std::min(x + run, start + kLongestPart);
            out.push_back(std::uint8_t(x - start));
            for (int i = start; i < x; ++i)
                out.push_back(at(i));
        }
    }
}

} // namespace

BitmapPointer readHdr(const ReadRequest &request)
{
    InputStream stream(request.file);
    const Size size = readHeader(stream);
    NewBitmap bitmap(request.file, size.width, size.height, {3, 32});
    if (!request.pixels)
        return bitmap.take();

    static const Scales scales;
    const int width = bitmap.width();
    Bytes pixels(std::size_t(width) * 4);
    for (int y = 0; y < bitmap.height(); ++y) {
        readRow(stream, pixels.data(), width);
        auto *target = reinterpret_cast<float *>(bitmap.row(y));
        for (int x = 0; x < width; ++x, target += 3) {
            const std::uint8_t *pixel = pixels.data() + std::size_t(size.rightToLeft ? width - 1 - x : x) * 4;
            const float scale = scales.byExponent[pixel[3]];
            for (int c = 0; c < 3; ++c)
                target[c] = float(pixel[c]) * scale;
        }
    }
    for (int top = 0, bottom = bitmap.height() - 1; size.bottomUp && top < bottom; ++top, --bottom)
        std::swap_ranges(bitmap.row(top), bitmap.row(top) + bitmap.record().bytesPerLine, bitmap.row(bottom));
    return bitmap.take();
}

void writeHdr(const WriteRequest &request)
{
    const GflBitmap &bitmap = request.bitmap;
    const std::string header = "#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y " + std::to_string(bitmap.height) + " +X " +
                               std::to_string(bitmap.width) + "\n";
    request.file.write(header.data(), header.size());
    const bool runs = request.compression != 0 && bitmap.width >= kShortestRle && bitmap.width <= kLongestRle;
    SourceRows rows(bitmap, {bitmap.componentsPerPixel == 4 ? 4 : 3, 32});
    const int components = bitmap.componentsPerPixel == 4 ? 4 : 3;
    Bytes pixels(std::size_t(bitmap.width) * 4);
    Bytes packed;
    for (int y = 0; y < bitmap.height; ++y) {
        const auto *source = reinterpret_cast<const float *>(rows.row(y));
        for (int x = 0; x < bitmap.width; ++x, source += components)
            encode(source, pixels.data() + std::size_t(x) * 4);
        if (!runs) {
            request.file.write(pixels);
            continue;
        }
        packed.assign({2, 2});
        putBig16(packed, unsigned(bitmap.width));
        appendRuns(packed, pixels.data(), bitmap.width);
        request.file.write(packed);
    }
}

} // namespace gfl
