#include "VImage.h"

#include "ImageScaling.h"
#include "imageRows.h"

namespace {

constexpr double kSampleNanoseconds = 0.2; ///< What scaling takes per sample of source and target together.

/// Scales all of `source` into all of `target`. Returns false, with the target unchanged, for a form that is not processed or an
/// image without pixels. Throws std::bad_alloc.
[[nodiscard]] bool resize(const VImage &source, VImage &target)
{
    if (!isProcessedType(source.Type()) || !isProcessedDepth(source.BitsPerComponent()))
        return false;
    const ImageScaling scaling(source, target.Width(), target.Height());
    if (!scaling)
        return false;
    const auto samplesOf = [](const VImage &image) {
        return double(image.Width()) * image.Height() * image.Bitmap()->componentsPerPixel;
    };
    const int height = target.Height();
    const int team = teamFor(height, kSampleNanoseconds * (samplesOf(source) + samplesOf(target)));
    const IppsBlock<unsigned char> buffers = scaling.buffers(team);
#pragma omp parallel for schedule(static) num_threads(team)
    for (int part = 0; part < team; ++part) {
        const int first = firstRowOf(part, team, height);
        scaling.write(first, firstRowOf(part + 1, team, height) - first, target.PixelAddress(0, first), target.BytesPerLine(),
                      scaling.bufferOf(buffers, part));
    }
    return true;
}

} // namespace

void VImage::Resample(VImage &target, int width, int height) const
{
    if (!bitmap)
        throw VException(QString(), V_RECORD_LOCATION); // without a message. Fixed: hosts rely on it.
    if (width == Width() && height == Height())
        return target.Assign(*this);
    target.Create(width, height, Type(), BitsPerComponent());
    if (!resize(*this, target))
        target.Create(width, height, Type(), BitsPerComponent(), /*clear=*/true);
}
