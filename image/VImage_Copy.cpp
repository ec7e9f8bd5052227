#include "VImage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

#include <QImage>

#include "imageRows.h"
#include "ipp.h"

namespace {

constexpr int kDepths[] = {8, 16, 32};
constexpr int kChannels[] = {1, 3, 4};
constexpr int kForms = 9;

/// Index of a form: ordered by depth, then by channels.
constexpr int formIndex(PixelForm form)
{
    return form.bits / 16 * 3 + form.components / 2;
}
constexpr PixelForm formOf(int index)
{
    return {kChannels[index % 3], kDepths[index / 3]};
}

constexpr std::uint8_t kOpaque8 = 255;
constexpr std::uint16_t kOpaque16 = 65535;
constexpr float kOpaque32 = 1.0f;
constexpr std::uint16_t kOpaque8In16 = 255;

/// How one form becomes another: at most one depth step and one channel step.
struct Plan
{
    bool scales;
    bool changesChannels;
    bool scalesFirst; ///< Matters if both steps are needed; the second one then reads the form `between`.
    PixelForm between;
    const void *alpha; ///< Value for the target's alpha, or null if alpha is copied, absent or kept.
};

/// The rule. When channels are reduced, they are mixed at the greater depth, so that nothing is lost before the grey is rounded;
/// when channels are added, this comes last, so that fewer samples have to be scaled.
constexpr Plan planOf(PixelForm from, PixelForm to)
{
    Plan plan{};
    plan.scales = from.bits != to.bits;
    plan.changesChannels = from.components != to.components;
    plan.scalesFirst = from.components < to.components || from.bits < to.bits;
    plan.between = plan.scalesFirst ? PixelForm{from.components, to.bits} : PixelForm{to.components, from.bits};
    if (to.components == 4 && from.components != 4) {
        plan.alpha = to.bits == 8    ? static_cast<const void *>(&kOpaque8)
                     : to.bits == 16 ? static_cast<const void *>(&kOpaque16)
                                     : static_cast<const void *>(&kOpaque32);
        // Three exceptions: 16-bit grey keeps the target's 16-bit or float alpha, and float grey sets 16-bit alpha to the full
        // scale of 8 bits. Fixed: hosts rely on it.
        if (from.components == 1 && from.bits == 16 && to.bits != 8)
            plan.alpha = nullptr;
        if (from.components == 1 && from.bits == 32 && to.bits == 16)
            plan.alpha = &kOpaque8In16;
    }
    return plan;
}

constexpr auto makePlans()
{
    std::array<std::array<Plan, kForms>, kForms> plans{};
    for (int from = 0; from < kForms; ++from)
        for (int to = 0; to < kForms; ++to)
            plans[std::size_t(from)][std::size_t(to)] = planOf(formOf(from), formOf(to));
    return plans;
}
constexpr auto kPlans = makePlans();
static_assert(formIndex(formOf(0)) == 0 && formIndex(formOf(5)) == 5 && formIndex(formOf(8)) == 8);

/// A rectangle's first pixel, its rows and its form.
struct Raster
{
    unsigned char *data;
    int step;
    PixelForm form;

    unsigned char *at(int x, int y) const { return data + std::ptrdiff_t(step) * y + x * std::ptrdiff_t(form.pixelBytes()); }
};

Raster rasterOf(const VImage &image, int x, int y)
{
    return {image.PixelAddress(x, y), image.BytesPerLine(), {image.Bitmap()->componentsPerPixel, image.BitsPerComponent()}};
}

// Fixed: hosts rely on it that a status is ignored; an empty rectangle leaves the target unchanged, and the call returns.
void scale(const Raster &from, const Raster &to, IppiSize size)
{
    (void)ippiScale(from.data, from.step, from.form.bits, to.data, to.step, to.form.bits, to.form.components, size);
}

void changeChannels(const Raster &from, const Raster &to, IppiSize size, const void *alpha)
{
    if (to.form.components == 1)
        (void)ippiRGBToGray(from.data, from.step, from.form.components, to.data, to.step, to.form.bits, size);
    else
        (void)ippiCopy(from.data, from.step, from.form.components, to.data, to.step, to.form.components, to.form.bits, size,
                       alpha);
}

void convert(const Plan &plan, const Raster &from, const Raster &to, const Raster &between, IppiSize size)
{
    if (!plan.changesChannels) {
        scale(from, to, size);
    } else if (!plan.scales) {
        changeChannels(from, to, size, plan.alpha);
    } else if (plan.scalesFirst) {
        scale(from, between, size);
        changeChannels(between, to, size, plan.alpha);
    } else {
        changeChannels(from, between, size, nullptr);
        scale(between, to, size);
    }
}

struct IppiRelease
{
    void operator()(unsigned char *raster) const { ippiFree(raster); }
};

/// With a buffer between the two steps, both run over one tile at a time. A tile this small (at most 4 KB of buffer) keeps memory
/// reads going between the steps.
constexpr int kTilePixels = 256;
constexpr double kPixelNanoseconds = 0.4; ///< What most conversions take per pixel.

} // namespace

void VImage::CopyRect(int x, int y, int width, int height, VImage &target, int targetX, int targetY) const
{
    if (&target == this)
        throw VException("Invalid Parameter", V_LOCATION);
    if (!bitmap)
        throw VException("Invalid Bitmap", V_LOCATION);
    if (!isProcessedDepth(BitsPerComponent()))
        throw VException("Invalid Bitmap", V_LOCATION);
    if (!isProcessedType(Type()))
        throw VException("Invalid Bitmap", V_LOCATION);
    if (!target.bitmap)
        throw VException("Invalid Parameter", V_LOCATION);
    if (!isProcessedType(target.Type()))
        throw VException("Invalid Parameter", V_LOCATION);
    if (!isProcessedDepth(target.BitsPerComponent()))
        throw VException("Invalid Parameter", V_LOCATION);
    // These tests and no others; in particular, a rectangle that runs past a far edge is neither refused nor clipped. Fixed:
    // hosts rely on it.
    if (targetX < 0 && targetX < target.Width())
        throw VException("Invalid Parameter", V_LOCATION);
    if (targetY < 0 && targetY < target.Height())
        throw VException("Invalid Parameter", V_LOCATION);
    if (x < 0 && x < Width() && std::int64_t(x) + width <= Width())
        throw VException("Invalid Parameter", V_LOCATION);
    if (y < 0 && y < Height() && std::int64_t(y) + height <= Height())
        throw VException("Invalid Parameter", V_LOCATION);
    if (width <= 0 || height <= 0)
        return;

    const Raster from = rasterOf(*this, x, y);
    const Raster to = rasterOf(target, targetX, targetY);
    const Plan &plan = kPlans[std::size_t(formIndex(from.form))][std::size_t(formIndex(to.form))];

    const bool buffered = plan.scales && plan.changesChannels;
    const int tileWidth = buffered ? std::min(width, kTilePixels) : width;
    const int tileHeight = std::clamp(kTilePixels / tileWidth, 1, height);
    const int bands = (height - 1) / tileHeight + 1;
    const int team = teamFor(bands, kPixelNanoseconds * width * height);

    Raster buffer{nullptr, 0, plan.between};
    std::unique_ptr<unsigned char, IppiRelease> buffers;
    if (buffered) {
        buffers.reset(static_cast<unsigned char *>(ippiMalloc(tileWidth, tileHeight * team, plan.between, &buffer.step)));
        if (!buffers)
            throw VException("Not enough memory", V_LOCATION);
        buffer.data = buffers.get();
    }
#pragma omp parallel for schedule(static) num_threads(team)
    for (int part = 0; part < team; ++part) {
        Raster between = buffer;
        if (between.data)
            between.data = buffer.at(0, tileHeight * part);
        for (int band = firstRowOf(part, team, bands), end = firstRowOf(part + 1, team, bands); band < end; ++band) {
            const int top = band * tileHeight;
            for (int left = 0; left < width; left += tileWidth) {
                const IppiSize size{std::min(tileWidth, width - left), std::min(tileHeight, height - top)};
                convert(plan, {from.at(left, top), from.step, from.form}, {to.at(left, top), to.step, to.form}, between, size);
            }
        }
    }
}

void VImage::ConvertTo(VImage &target, unsigned short type, int bitsPerComponent) const
{
    if (!bitmap)
        throw VException("Invalid Bitmap", V_LOCATION);
    if (!isProcessedType(Type()))
        throw VException("Invalid Bitmap", V_LOCATION);
    target.Create(Width(), Height(), type, bitsPerComponent);
    CopyRect(0, 0, Width(), Height(), target, 0, 0);
}

void VImage::ToQImage(QImage &image) const
{
    image = QImage(Width(), Height(), QImage::Format_ARGB32);
    if (image.isNull())
        return;
    VImage view(Width(), Height(), Rgba, 8, /*clear=*/false, image.bits(), int(image.bytesPerLine()));
    ConvertTo(view, Rgba, 8);
    constexpr int kRgbaToBgra[4] = {2, 1, 0, 3}; // QImage stores a pixel's bytes in the order B, G, R, A
    (void)ippiSwapChannels(view.PixelAddress(0, 0), view.BytesPerLine(), {Width(), Height()}, kRgbaToBgra);
}
