#include "HazePyramid.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "VImage.h"
#include "imageRows.h"

namespace {

constexpr int kChannels = 4;  ///< R, G, B, A.
constexpr int kHalfRows = 16; ///< Rows of the half guide that a strip is made for.
constexpr int kBand = 64;     ///< Rows of the full image that a strip is made for.
// What the loops take per pixel of the full image, for teamFor().
constexpr double kHalveNanoseconds = 1.5;
constexpr double kStepsNanoseconds = 8.0;

HazeJointRows::Size sizeOf(const VImage &image)
{
    return {image.Width(), image.Height()};
}

/// A thread's strip of the guide, a ring of rows, and of its map.
struct Strip
{
    Strip(int width, int rows)
        : pixels(new float[std::size_t(width) * std::size_t(rows) * kChannels]),
          map(new float[std::size_t(width) * std::size_t(rows)])
    {
    }

    std::unique_ptr<float[]> pixels;
    std::unique_ptr<float[]> map;
    TileScratch scratch;
};

} // namespace

HazePyramid::HazePyramid(const VImage &fullImage, int guideWidth, int guideHeight)
    : full(fullImage), guide{guideWidth, guideHeight}, guideRows(fullImage, guideWidth, guideHeight)
{
}

void HazePyramid::halve(VImage &half) const
{
    half.Create(guide.width / 2, guide.height / 2, VImage::Rgba, 32);
    if (!guideRows)
        return;
    const int height = half.Height();
    const int parts = teamFor(height, kHalveNanoseconds * full.Width() * full.Height());
    const IppsBlock<unsigned char> guideBuffers = guideRows.buffers(parts);
    std::vector<std::unique_ptr<VImage>> strips;
    for (int part = 0; part < parts; ++part)
        strips.push_back(std::make_unique<VImage>(guide.width, 2 * kHalfRows, VImage::Rgba, 32));
    std::vector<ImageScaling> halves;
    for (const auto &strip : strips)
        halves.emplace_back(*strip, half.Width(), kHalfRows);
    const IppsBlock<unsigned char> halfBuffers = halves.front().buffers(parts);
#pragma omp parallel for schedule(static) num_threads(parts)
    for (int part = 0; part < parts; ++part) {
        VImage &strip = *strips[std::size_t(part)];
        const ImageScaling &rows = halves[std::size_t(part)];
        const int end = firstRowOf(part + 1, parts, height);
        for (int first = firstRowOf(part, parts, height); first < end; first += kHalfRows) {
            const int count = std::min(kHalfRows, end - first);
            guideRows.write(2 * first, 2 * count, strip.PixelAddress(0, 0), strip.BytesPerLine(),
                            guideRows.bufferOf(guideBuffers, part));
            rows.write(0, count, half.PixelAddress(0, first), half.BytesPerLine(), rows.bufferOf(halfBuffers, part));
        }
    }
}

void HazePyramid::write(const VImage &coarse, const float *coarseMap, float *map) const
{
    const HazeJointRows lower(guide, sizeOf(coarse));
    const HazeJointRows upper(sizeOf(full), guide);
    const int height = full.Height();
    int held = 1; // rows of a strip: as many as any band needs
    for (int row = 0; row < height; ++row) {
        const HazeJointRows::Range rows = upper.coarseRowsOf(row, std::min(row + kBand, height));
        held = std::max(held, rows.last - rows.first + 1);
    }
    const int parts = teamFor(height, kStepsNanoseconds * full.Width() * height);
    std::vector<std::unique_ptr<Strip>> strips;
    for (int part = 0; part < parts; ++part)
        strips.push_back(std::make_unique<Strip>(guide.width, held));
    const IppsBlock<unsigned char> buffers = guideRows ? guideRows.buffers(parts) : nullptr;
    const std::ptrdiff_t guideStep = std::ptrdiff_t(guide.width) * kChannels;
#pragma omp parallel for schedule(static) num_threads(parts)
    for (int part = 0; part < parts; ++part) {
        Strip &strip = *strips[std::size_t(part)];
        const HazeJointRows::Rows<float> pixels{strip.pixels.get(), guideStep, held};
        const HazeJointRows::Rows<const float> guidePixels{strip.pixels.get(), guideStep, held};
        const HazeJointRows::Images lowerImages{guidePixels,
                                                HazeJointRows::rowsOf(coarse),
                                                HazeJointRows::rowsOf(coarseMap, coarse),
                                                {strip.map.get(), guide.width, held}};
        const HazeJointRows::Images upperImages{
            HazeJointRows::rowsOf(full), guidePixels, {strip.map.get(), guide.width, held}, HazeJointRows::rowsOf(map, full)};
        int next = 0; // the first guide row that has not been made yet
        for (int first = firstRowOf(part, parts, height), end = firstRowOf(part + 1, parts, height); first < end;
             first += kBand) {
            const int last = std::min(first + kBand, end);
            const HazeJointRows::Range rows = upper.coarseRowsOf(first, last);
            next = std::max(next, rows.first);
            for (int row = next; row <= rows.last; ++row)
                guideRows.write(row, 1, pixels.row(row), 0, guideRows.bufferOf(buffers, part));
            lower.write(lowerImages, next, rows.last + 1, strip.scratch);
            next = rows.last + 1;
            upper.write(upperImages, first, last, strip.scratch);
        }
    }
}
