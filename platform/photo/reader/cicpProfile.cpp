#include "cicpProfile.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>

#include <lcms2.h>

namespace {

using Curve = std::unique_ptr<cmsToneCurve, decltype(&cmsFreeToneCurve)>;

constexpr int kSrgb = 13, kPq = 16, kHlg = 18;

Curve parametric(double gamma, double scale, double offset, double slope, double limit)
{
    const double values[] = {gamma, scale, offset, slope, limit};
    return {cmsBuildParametricToneCurve(nullptr, 4, values), cmsFreeToneCurve};
}

template<typename Function>
Curve tabulated(Function function)
{
    std::vector<cmsUInt16Number> table(4096);
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = cmsUInt16Number(std::clamp(function(double(i) / double(table.size() - 1)), 0.0, 1.0) * 65535 + 0.5);
    return {cmsBuildTabulatedToneCurve16(nullptr, cmsUInt32Number(table.size()), table.data()), cmsFreeToneCurve};
}

/// From a sample to light, white being 1.
double lightOfPq(double sample)
{
    constexpr double kM1 = 2610.0 / 16384, kM2 = 2523.0 / 32, kC1 = 107.0 / 128, kC2 = 2413.0 / 128, kC3 = 2392.0 / 128;
    constexpr double kFullLuminance = 10000, kWhiteLuminance = 1000;
    const double power = std::pow(sample, 1 / kM2);
    return std::pow(std::max(power - kC1, 0.0) / (kC2 - kC3 * power), 1 / kM1) * (kFullLuminance / kWhiteLuminance);
}

double lightOfHlg(double sample)
{
    constexpr double kA = 0.17883277, kB = 0.28466892, kC = 0.55991073;
    return sample <= 0.5 ? sample * sample / 3 : (std::exp((sample - kC) / kA) + kB) / 12;
}

Curve curveOf(int transfer)
{
    switch (transfer) {
    case 1: // television
    case 6:
    case 14:
    case 15:
        return parametric(1 / 0.45, 1 / 1.099, 0.099 / 1.099, 1 / 4.5, 0.081);
    case 2:
    case kSrgb:
        return parametric(2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045);
    case 4:
        return {cmsBuildGamma(nullptr, 2.2), cmsFreeToneCurve};
    case 5:
        return {cmsBuildGamma(nullptr, 2.8), cmsFreeToneCurve};
    case 8:
        return {cmsBuildGamma(nullptr, 1), cmsFreeToneCurve};
    case kPq:
        return tabulated(lightOfPq);
    case kHlg:
        return tabulated(lightOfHlg);
    default:
        return {nullptr, cmsFreeToneCurve};
    }
}

std::string nameOf(int primaries, int transfer)
{
    if (transfer == kSrgb && primaries == 1)
        return "sRGB";
    if (transfer == kSrgb && primaries == 12)
        return "Display P3";
    return "H.273 primaries " + std::to_string(primaries) + ", transfer " + std::to_string(transfer);
}

} // namespace

std::vector<std::uint8_t> cicpProfile(const CicpColours &colours)
{
    constexpr double kRec709[] = {0.64, 0.33, 0.30, 0.60, 0.15, 0.06, 0.3127, 0.3290};
    const bool unspecified = colours.primaries == 2;
    const double *const of[] = {unspecified ? kRec709 : colours.red, unspecified ? kRec709 + 2 : colours.green,
                                unspecified ? kRec709 + 4 : colours.blue, unspecified ? kRec709 + 6 : colours.white};
    for (const double *place : of)
        if (!(place[0] >= 0 && place[0] <= 1 && place[1] > 0 && place[1] <= 1))
            return {};
    const Curve curve = curveOf(colours.transfer);
    if (!curve)
        return {};
    const cmsCIExyY white{of[3][0], of[3][1], 1};
    const cmsCIExyYTRIPLE primaries{{of[0][0], of[0][1], 1}, {of[1][0], of[1][1], 1}, {of[2][0], of[2][1], 1}};
    cmsToneCurve *const curves[] = {curve.get(), curve.get(), curve.get()};
    const std::unique_ptr<void, decltype(&cmsCloseProfile)> profile(cmsCreateRGBProfile(&white, &primaries, curves),
                                                                    cmsCloseProfile);
    if (!profile)
        return {};
    const int namedPrimaries = unspecified ? 1 : colours.primaries,
              namedTransfer = colours.transfer == 2 ? kSrgb : colours.transfer;
    const std::unique_ptr<cmsMLU, decltype(&cmsMLUfree)> name(cmsMLUalloc(nullptr, 1), cmsMLUfree);
    cmsMLUsetASCII(name.get(), "en", "US", nameOf(namedPrimaries, namedTransfer).c_str());
    cmsWriteTag(profile.get(), cmsSigProfileDescriptionTag, name.get());
    if (colours.transfer == kPq || colours.transfer == kHlg) {
        cmsVideoSignalType numbers{cmsUInt8Number(namedPrimaries), cmsUInt8Number(namedTransfer), /*MatrixCoefficients=*/0,
                                   /*VideoFullRangeFlag=*/1};
        cmsSetProfileVersion(profile.get(), 4.4);
        cmsWriteTag(profile.get(), cmsSigcicpTag, &numbers);
    }
    cmsUInt32Number count = 0;
    cmsSaveProfileToMem(profile.get(), nullptr, &count);
    std::vector<std::uint8_t> bytes(count);
    if (count == 0 || !cmsSaveProfileToMem(profile.get(), bytes.data(), &count))
        return {};
    constexpr std::uint8_t kDate[] = {0x07, 0xD0, 0, 1, 0, 1, 0, 0, 0, 0, 0, 0}; // instead of today's
    std::copy(std::begin(kDate), std::end(kDate), bytes.begin() + 24);
    return bytes;
}
