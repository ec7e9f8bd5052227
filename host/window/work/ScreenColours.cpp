#include "ScreenColours.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <numeric>
#include <vector>

#include <QImage>
#include <lcms2.h>

#include "VException.h"
#include "VImage.h"
#include "screenProfile.h"
#include "threadCount.h"

namespace {

struct Release
{
    void operator()(void *handle) const { cmsCloseProfile(handle); }
};
using Profile = std::unique_ptr<void, Release>;

constexpr std::size_t kMostKept = 16; ///< Conversions; a series rarely has more than two or three profiles.
constexpr std::size_t kGreyValues = 65536;
/// Below this many pixels a team costs more than it gains.
constexpr qint64 kPixelsForTeam = 1 << 16;

/// Null unless the bytes are a profile of this kind of pixels.
Profile opened(const QByteArray &bytes, cmsColorSpaceSignature space)
{
    Profile profile(bytes.isEmpty() ? nullptr : cmsOpenProfileFromMem(bytes.constData(), cmsUInt32Number(bytes.size())));
    if (profile && cmsGetColorSpace(profile.get()) != space)
        profile.reset();
    return profile;
}

} // namespace

/// What is not needed is null or empty. The conversions are without lcms2's cache of the last pixel, so that several threads may
/// use them.
struct ScreenColours::Conversion
{
    Conversion() = default;
    Conversion(const Conversion &) = delete;
    Conversion &operator=(const Conversion &) = delete;
    ~Conversion()
    {
        for (const cmsHTRANSFORM transform : {quick, exact})
            if (transform)
                cmsDeleteTransform(transform);
    }

    cmsHTRANSFORM quick = nullptr; ///< BGRA with 8 bits to the same.
    cmsHTRANSFORM exact = nullptr; ///< RGBA with 16 bits to BGRA with 8.
    std::vector<QRgb> ofGrey;      ///< By the value in 16 bits.
};

ScreenColours::ScreenColours(const QByteArray &screenProfile) : screen(screenProfile) {}

ScreenColours::~ScreenColours() = default;

QByteArray ScreenColours::profileOfScreen()
{
    const std::vector<std::uint8_t> bytes = screenProfile();
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), int(bytes.size()));
}

std::shared_ptr<const ScreenColours::Conversion> ScreenColours::conversionFrom(const QByteArray &profile)
{
    const std::lock_guard lock(mutex);
    if (const auto found = conversions.find(profile); found != conversions.end())
        return found->second;

    const auto conversion = std::make_shared<Conversion>();
    Profile target = opened(screen, cmsSigRgbData);
    const Profile grey = opened(profile, cmsSigGrayData);
    Profile colour = opened(profile, cmsSigRgbData);
    if (target || colour || grey) {
        if (!target)
            target.reset(cmsCreate_sRGBProfile());
        if (!colour)
            colour.reset(cmsCreate_sRGBProfile());
        const auto transform = [&](const Profile &from, cmsUInt32Number form, cmsUInt32Number flags) {
            return cmsCreateTransform(from.get(), form, target.get(), TYPE_BGRA_8, INTENT_RELATIVE_COLORIMETRIC,
                                      flags | cmsFLAGS_NOCACHE | cmsFLAGS_BLACKPOINTCOMPENSATION);
        };
        // Unless optimizations are off, the library replaces a conversion from 16 bits by a table, which is wrong by up to 26 of
        // 255 where colours leave the screen's gamut.
        conversion->quick = transform(colour, TYPE_BGRA_8, 0);
        conversion->exact = transform(colour, TYPE_RGBA_16, cmsFLAGS_NOOPTIMIZE);
        if (const cmsHTRANSFORM ofGrey = grey ? transform(grey, TYPE_GRAY_16, cmsFLAGS_NOOPTIMIZE) : nullptr) {
            std::vector<std::uint16_t> values(kGreyValues);
            std::iota(values.begin(), values.end(), std::uint16_t(0));
            conversion->ofGrey.assign(kGreyValues, qRgb(0, 0, 0)); // sets the alpha, which the library leaves alone
            cmsDoTransform(ofGrey, values.data(), conversion->ofGrey.data(), cmsUInt32Number(kGreyValues));
            cmsDeleteTransform(ofGrey);
        }
    }
    if (conversions.size() >= kMostKept)
        conversions.clear();
    conversions[profile] = conversion;
    return conversion;
}

void ScreenColours::convert(const VImage &pixels, const QByteArray &profile, Quality quality, QImage &picture)
{
    const std::shared_ptr<const Conversion> conversion = conversionFrom(profile);
    pixels.ToQImage(picture); // without a conversion of colours; the alpha stays
    if (picture.isNull())
        throw std::bad_alloc();
    const bool grey = pixels.Type() == VImage::Grey && !conversion->ofGrey.empty();
    const bool exact = quality == Quality::Exact && pixels.BitsPerComponent() > 8;
    const cmsHTRANSFORM transform = exact ? conversion->exact : conversion->quick;
    if (!grey && !transform)
        return;
    VImage source;
    if (grey || exact)
        pixels.ConvertTo(source, grey ? VImage::Grey : VImage::Rgba, 16);
    const int width = picture.width(), height = picture.height();
    const int team = qint64(width) * height < kPixelsForTeam ? 1 : std::max(1, std::min(int(threadCount), height));
    unsigned char *const first = picture.bits();
    const qptrdiff stride = picture.bytesPerLine();
#pragma omp parallel for schedule(static) num_threads(team)
    for (int y = 0; y < height; ++y) {
        unsigned char *const row = first + stride * y;
        if (grey) {
            const auto *const values = reinterpret_cast<const std::uint16_t *>(source.PixelAddress(0, y));
            for (int x = 0; x < width; ++x)
                reinterpret_cast<QRgb *>(row)[x] = conversion->ofGrey[values[x]];
        } else {
            cmsDoTransform(transform, exact ? source.PixelAddress(0, y) : row, row, cmsUInt32Number(width));
        }
    }
}
