#include "VImage.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <new>
#include <optional>
#include <vector>

#include "HazeJointRows.h"
#include "HazeMattingRows.h"
#include "HazePyramid.h"
#include "InstructionSet.h"
#include "VSparseFactory.h"
#include "imageRows.h"
#include "ipp.h"
#include "kernel32.h"

namespace {

constexpr int kChannels = 4; ///< R, G, B, A.

QString invalidBitmap()
{
    return QStringLiteral("Invalid Bitmap");
}

// What the loops take per pixel, for teamFor().
constexpr double kNormaliseNanoseconds = 0.7;
constexpr double kMattingNanoseconds = 500.0;
constexpr double kJointNanoseconds = 6.0;
constexpr double kRecoverNanoseconds = 1.2;

std::size_t pixelCount(const VImage &image)
{
    return std::size_t(image.Width()) * std::size_t(image.Height());
}

struct IppiRelease
{
    void operator()(float *raster) const { ippiFree(raster); }
};

/// Per-channel minimum of an image over a square window.
struct ErodedImage
{
    explicit ErodedImage(const VImage &image)
        : raster(static_cast<float *>(ippiMalloc(image.Width(), image.Height(), {kChannels, 32}, &stepBytes)))
    {
        if (!raster)
            throw std::bad_alloc();
        const int k = std::max(image.Width(), image.Height()) / 100;
        const IppiSize region{image.Width(), image.Height()};
        const IppiSize mask{2 * k + 3, 2 * k + 3};
        const std::unique_ptr<unsigned char[]> buffer(new unsigned char[ippiFilterMinGetBufferSize(region, mask)]);
        // Fixed: the status is ignored; neither size can be empty here.
        (void)ippiFilterMinBorder(rowOf(image, 0), image.BytesPerLine(), raster.get(), stepBytes, region, mask, {k + 1, k + 1},
                                  buffer.get());
    }
    const float *row(int y) const { return raster.get() + std::ptrdiff_t(stepBytes) / std::ptrdiff_t(sizeof(float)) * y; }

    int stepBytes = 0;
    std::unique_ptr<float, IppiRelease> raster;
};

/// A pixel that may show the densest haze.
struct Candidate
{
    float darkValue;
    const float *pixel; ///< In the source. Pixels are visited in order of address, so a higher one is newer.
};

/// Whether `a` comes after `b` in walking order: by rising dark value, and among equal values the newest first. Fixed: hosts rely
/// on it.
bool comesAfter(const Candidate &a, const Candidate &b)
{
    return a.darkValue != b.darkValue ? a.darkValue > b.darkValue : std::less<>()(a.pixel, b.pixel);
}

/// The brightest pixels of the dark channel, as many as the seed rows hold, in walking order.
std::vector<Candidate> brightestCandidates(const VImage &image, const ErodedImage &eroded)
{
    const int width = image.Width();
    const int height = image.Height();
    const int seedRows = height < 1001 ? 1 : height / 1000;
    std::vector<Candidate> heap; // the first to be removed is on top
    heap.reserve(std::size_t(seedRows) * std::size_t(width));
    float threshold = -std::numeric_limits<float>::infinity();
    for (int y = 0; y < height; ++y) {
        const float *pixel = rowOf(image, y);
        const float *minima = eroded.row(y);
        const bool seed = y < seedRows;
        for (int x = 0; x < width; ++x, pixel += kChannels, minima += kChannels) {
            const float darkValue = std::fmin(std::fmin(minima[0], minima[1]), minima[2]);
            if (seed) {
                // Not-a-number can't be ordered: it ranks with the lowest.
                heap.push_back({std::isnan(darkValue) ? threshold : darkValue, pixel});
            } else if (threshold < darkValue) {
                std::pop_heap(heap.begin(), heap.end(), comesAfter);
                heap.back() = {darkValue, pixel};
                std::push_heap(heap.begin(), heap.end(), comesAfter);
                threshold = heap.front().darkValue;
            }
        }
        if (y == seedRows - 1) {
            std::make_heap(heap.begin(), heap.end(), comesAfter);
            threshold = heap.front().darkValue;
        }
    }
    std::sort(heap.begin(), heap.end(), [](const Candidate &a, const Candidate &b) { return comesAfter(b, a); });
    return heap;
}

/// The source pixel with the highest luminance, the first in walking order among equals; null if none is above -1.0. The weights
/// differ from those of conversions to grey. Fixed: hosts rely on it.
const float *brightestPixel(const std::vector<Candidate> &candidates)
{
    float best = -1.0f;
    const float *chosen = nullptr;
    for (const Candidate &candidate : candidates) {
        const float *const p = candidate.pixel;
        const auto luminance = float(0.3 * double(p[0]) + 0.59 * double(p[1]) + 0.11 * double(p[2]));
        if (luminance > best) {
            best = luminance;
            chosen = p;
        }
    }
    return chosen;
}

/// A channel that is 0.0 in both window and airlight gives not-a-number and is ignored; if all three are, the pixel counts as
/// clear. std::min and std::max return their first operand if the second is not a number or equal to it.
NIMBRA_INLINE void normaliseRowBody(const float *minima, float *darkMap, int width, const float *airlight)
{
    const float airR = airlight[0];
    const float airG = airlight[1];
    const float airB = airlight[2];
    for (int x = 0; x < width; ++x, minima += kChannels) {
        const float r = minima[0] / airR;
        const float g = minima[1] / airG;
        const float b = minima[2] / airB;
        const float lowest = std::min(std::min(std::min(std::numeric_limits<float>::infinity(), b), g), r);
        const float highest = std::max(std::max(std::max(0.0f, b), g), r);
        darkMap[x] = std::min(lowest, highest); // they are the wrong way round only where all three are not a number
    }
}
const auto normaliseRow = versionOf<normaliseRowBody>();

NIMBRA_INLINE void recoverRowBody(float *pixel, const float *transmission, int width, const float *airlight, float strength)
{
    const float airR = airlight[0];
    const float airG = airlight[1];
    const float airB = airlight[2];
    for (int x = 0; x < width; ++x, pixel += kChannels) {
        const float r = pixel[0];
        const float g = pixel[1];
        const float b = pixel[2];
        const bool keep = pixel[3] == 0.0f;
        float t = 1.0f - transmission[x] * strength;
        // No float lies between the double 0.1 and the float 0.1, so this is the same as comparing with the double.
        t = t < 0.1f ? 0.1f : t;
        const float newR = airR + (r - airR) / t;
        const float newG = airG + (g - airG) / t;
        const float newB = airB + (b - airB) / t;
        pixel[0] = keep ? r : newR > 0.0f ? newR : 0.0f;
        pixel[1] = keep ? g : newG > 0.0f ? newG : 0.0f;
        pixel[2] = keep ? b : newB > 0.0f ? newB : 0.0f;
    }
}
const auto recoverRow = versionOf<recoverRowBody>();

constexpr double kLambda = 0.001;
constexpr float kLambdaCell = 0.001f;

/// Adds the matting Laplacian to the factory, whose rows already exist.
void addMattingLaplacian(const VImage &image, VSparseFactory &factory)
{
    const int width = image.Width();
    const int height = image.Height();
    if (width < HazeMattingRows::kWindow || height < HazeMattingRows::kWindow)
        return;
    const int parts = teamFor(height, kMattingNanoseconds * width * height);
    const auto rowStep = std::ptrdiff_t(image.BytesPerLine()) / std::ptrdiff_t(sizeof(float));
    std::vector<HazeMattingRows> blocks(std::size_t(parts), HazeMattingRows(rowOf(image, 0), rowStep, width, height));
    bool outOfMemory = false;
#pragma omp parallel for schedule(static) num_threads(parts)
    for (int part = 0; part < parts; ++part) {
        try {
            HazeMattingRows &block = blocks[std::size_t(part)];
            const int end = firstRowOf(part + 1, parts, height);
            int row = firstRowOf(part, parts, height);
            block.start(row, kLambdaCell);
            for (; row < end; ++row) {
                const float *const cells = block.next();
                for (int x = 0; x < width; ++x) {
                    const int p = row * width + x;
                    VSparseFactory::Cell rowCells[HazeMattingRows::kCells];
                    VSparseFactory::Cell *last = rowCells;
                    const bool inside = row + 2 < height && x >= 2 && x + 2 < width;
                    for (int index = 0; index < HazeMattingRows::kCells; ++index) {
                        const HazeMattingRows::Offset offset = HazeMattingRows::offsetOf(index);
                        const int column = x + offset.column;
                        if (inside || (row + offset.row < height && column >= 0 && column < width))
                            *last++ = {p + offset.row * width + offset.column, cells[std::ptrdiff_t(index) * width + x]};
                    }
                    factory.SetRow(p, rowCells, last);
                }
            }
        } catch (...) { // only the memory for a cell can fail here
#pragma omp atomic write
            outOfMemory = true;
        }
    }
    if (outOfMemory)
        throw std::bad_alloc();
}

} // namespace

float *VImage::HazeDarkChannel(float airlight[3])
{
    if (Type() != Rgba)
        throw VException(invalidBitmap(), V_LOCATION);
    if (BitsPerComponent() != 32)
        throw VException(invalidBitmap(), V_LOCATION);
    const int width = Width();
    const int height = Height();
    if (width <= 0 || height <= 0)
        return nullptr;
    const ErodedImage eroded(*this);
    const float *const brightest = brightestPixel(brightestCandidates(*this, eroded));
    if (!brightest)
        return nullptr;
    std::unique_ptr<float[]> darkMap(new float[pixelCount(*this)]);
    std::copy_n(brightest, 3, airlight);

    float *const first = darkMap.get();
    const int team = teamFor(height, kNormaliseNanoseconds * width * height);
#pragma omp parallel for schedule(static) num_threads(team)
    for (int y = 0; y < height; ++y)
        normaliseRow(eroded.row(y), first + std::size_t(y) * std::size_t(width), width, airlight);
    return darkMap.release();
}

bool VImage::HazeMatting(float *darkMap)
{
    if (Type() != Rgba)
        throw VException(invalidBitmap(), V_LOCATION);
    if (BitsPerComponent() != 32)
        throw VException(invalidBitmap(), V_LOCATION);
    const std::size_t unknowns = pixelCount(*this);
    const std::unique_ptr<float[]> x(new float[unknowns]);
    std::optional<VSparseFactory> factory(std::in_place, /*symmetricMatrix=*/true);
    // The factory's rows are created here, on one thread, because they must not grow in parallel.
    for (std::size_t i = 0; i < unknowns; ++i) {
        darkMap[i] = float(double(darkMap[i]) * kLambda);
        const int p = int(i);
        VSparseFactory::CellAccessor cell;
        ((*factory).*factory->cellAccess)(p, p, cell);
        cell->second = kLambdaCell;
    }
    addMattingLaplacian(*this, *factory);
    try {
        VSparseMatrix matrix;
        factory->ToCsr(matrix);
        factory->GiveMemoryToSolver(); // which needs about as much
        factory.reset();
        matrix.Solve(darkMap, x.get());
        std::copy_n(x.get(), unknowns, darkMap);
    } catch (...) {
        return false; // without the reason. Fixed: hosts rely on it.
    }
    return true;
}

float *VImage::HazeUpsample(float *lowMap, VImage *lowImage)
{
    if (Type() != Rgba)
        throw VException(invalidBitmap(), V_LOCATION);
    if (BitsPerComponent() != 32)
        throw VException(invalidBitmap(), V_LOCATION);
    if (lowImage->Type() != Rgba)
        throw VException(invalidBitmap(), V_LOCATION);
    if (lowImage->BitsPerComponent() != 32)
        throw VException(invalidBitmap(), V_LOCATION);

    int levels = 1;
    if (lowImage->Width() > 0) {
        for (float ratio = float(Width()) / float(lowImage->Width()); ratio > 2.0f; ratio *= 0.5f)
            ++levels;
    }
    if (levels == 1)
        return HazeJointUpsample(lowMap, lowImage);

    // Guide images of the levels in between, each reduced from the next finer one and released after its last use. The last of
    // them is left to the pyramid.
    const std::size_t steps = std::size_t(levels) - 1;
    const HazePyramid pyramid(*this, lowImage->Width() << steps, lowImage->Height() << steps);
    std::vector<std::unique_ptr<VImage>> made;
    made.resize(steps);
    std::vector<VImage *> guides(steps, lowImage);
    for (std::size_t i = steps - 1; i > 0; --i) {
        made[i] = std::make_unique<VImage>();
        guides[i] = made[i].get();
        if (i == steps - 1)
            pyramid.halve(*guides[i]);
        else
            guides[i + 1]->Resample(*guides[i], lowImage->Width() << i, lowImage->Height() << i);
    }
    std::unique_ptr<float[]> map;
    for (std::size_t i = 0; i + 1 < steps; ++i) {
        map.reset(guides[i + 1]->HazeJointUpsample(map ? map.get() : lowMap, guides[i]));
        made[i].reset();
    }
    std::unique_ptr<float[]> fullMap(new float[pixelCount(*this)]);
    AdviseHugePages(fullMap.get(), pixelCount(*this) * sizeof(float));
    pyramid.write(*guides.back(), map ? map.get() : lowMap, fullMap.get());
    return fullMap.release();
}

float *VImage::HazeJointUpsample(float *lowMap, VImage *lowImage)
{
    if (Type() != Rgba)
        throw VException(invalidBitmap(), V_LOCATION);
    if (BitsPerComponent() != 32)
        throw VException(invalidBitmap(), V_LOCATION);
    if (lowImage->Type() != Rgba)
        throw VException(invalidBitmap(), V_LOCATION);
    if (lowImage->BitsPerComponent() != 32)
        throw VException(invalidBitmap(), V_LOCATION);

    std::unique_ptr<float[]> map(new float[pixelCount(*this)]);
    AdviseHugePages(map.get(), pixelCount(*this) * sizeof(float));
    const HazeJointRows rows({Width(), Height()}, {lowImage->Width(), lowImage->Height()});
    const int height = Height();
    const int parts = teamFor(height, kJointNanoseconds * double(pixelCount(*this)));
    std::vector<TileScratch> scratch;
    scratch.resize(std::size_t(parts));
    const HazeJointRows::Images images{HazeJointRows::rowsOf(*this), HazeJointRows::rowsOf(*lowImage),
                                       HazeJointRows::rowsOf<const float>(lowMap, *lowImage),
                                       HazeJointRows::rowsOf(map.get(), *this)};
#pragma omp parallel for schedule(static) num_threads(parts)
    for (int part = 0; part < parts; ++part)
        rows.write(images, firstRowOf(part, parts, height), firstRowOf(part + 1, parts, height), scratch[std::size_t(part)]);
    return map.release();
}

void VImage::HazeRecover(const float *transmission, const float airlight[3], float strength)
{
    if (Type() != Rgba)
        throw VException(invalidBitmap(), V_LOCATION);
    if (BitsPerComponent() != 32)
        throw VException(invalidBitmap(), V_LOCATION);
    const int width = Width();
    const int height = Height();
    const int team = teamFor(height, kRecoverNanoseconds * width * height);
#pragma omp parallel for schedule(static) num_threads(team)
    for (int y = 0; y < height; ++y)
        recoverRow(rowOf(*this, y), transmission + std::size_t(y) * std::size_t(width), width, airlight, strength);
}
