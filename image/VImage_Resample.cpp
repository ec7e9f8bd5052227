#include "VImage.h"

#include <cstdint>
#include <memory>
#include <new>

#include "imageRows.h"
#include "ipp.h"

namespace {

struct IppsRelease
{
    void operator()(void *block) const { ippsFree(block); }
};
template<typename T>
using IppsBlock = std::unique_ptr<T, IppsRelease>;

constexpr double kSampleNanoseconds = 0.2; ///< What scaling takes per sample of source and target together.

/// Scales all of `source` into all of `target`. Returns false, with the target unchanged, for a form that is not processed or an
/// image without pixels. Throws std::bad_alloc.
[[nodiscard]] bool resize(const VImage &source, VImage &target)
{
    if (!isProcessedType(source.Type()) || !isProcessedDepth(source.BitsPerComponent()))
        return false;
    const int channels = source.Bitmap()->componentsPerPixel;
    const IppiSize from{source.Width(), source.Height()};
    const IppiSize to{target.Width(), target.Height()};
    const auto method = to.width > from.width || to.height > from.height ? IppiInterpolation::Linear : IppiInterpolation::Super;
    const std::size_t specBytes = ippiResizeGetSize(from, to, method);
    if (specBytes == 0)
        return false;
    const IppsBlock<IppiResizeSpec> spec(static_cast<IppiResizeSpec *>(ippsMalloc(specBytes)));
    if (!spec)
        throw std::bad_alloc(); // the black target would be mistaken for the picture
    // Fixed: statuses are ignored here and below; the sizes have been checked.
    (void)ippiResizeInit(from, to, method, {channels, source.BitsPerComponent()}, spec.get());

    const std::int64_t pixels = std::int64_t(from.width) * from.height + std::int64_t(to.width) * to.height;
    const int team = teamFor(to.height, kSampleNanoseconds * double(pixels * channels));
    const std::size_t bufferBytes = ippiResizeGetBufferSize(spec.get());
    const IppsBlock<unsigned char> buffers(static_cast<unsigned char *>(ippsMalloc(bufferBytes * std::size_t(team))));
    if (!buffers)
        throw std::bad_alloc();
#pragma omp parallel for schedule(static) num_threads(team)
    for (int part = 0; part < team; ++part) {
        const int first = firstRowOf(part, team, to.height);
        (void)ippiResize(source.PixelAddress(0, 0), source.BytesPerLine(), target.PixelAddress(0, 0), target.BytesPerLine(),
                         first, firstRowOf(part + 1, team, to.height) - first, spec.get(),
                         buffers.get() + bufferBytes * std::size_t(part));
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
