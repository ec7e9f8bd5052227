#include "AutomaticStrength.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "VImage.h"
#include "workingForm.h"

namespace {

/// The engine's copy of about 100,000 pixels, but without the wrapping of its 32-bit product. Empty for an image without an area,
/// and for one so narrow that its copy would have none.
void reduce(const VImage &photograph, VImage &low)
{
    if (!photograph.Bitmap() || photograph.Width() < 1 || photograph.Height() < 1)
        return;
    const double width = photograph.Width(), height = photograph.Height();
    const double columns = std::floor(std::sqrt(100000.0 * width / height));
    const double rows = std::floor(height * columns / width);
    if (columns < 1 || rows < 1)
        return;
    VImage small;
    photograph.Resample(small, int(columns), int(rows));
    toWorkingForm(small, low);
}

/// Mean luminance of what a viewer sees: pixels are weighted by their alpha. Not a number if all are transparent.
double meanLuminance(const VImage &picture)
{
    double sum = 0, weights = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        const auto *pixel = reinterpret_cast<const float *>(picture.PixelAddress(0, y));
        float rowSum = 0, rowWeights = 0;
        for (int x = 0; x < picture.Width(); ++x, pixel += 4) {
            const float luminance = 0.299f * std::clamp(pixel[0], 0.0f, 1.0f) + 0.587f * std::clamp(pixel[1], 0.0f, 1.0f) +
                                    0.114f * std::clamp(pixel[2], 0.0f, 1.0f);
            const float weight = std::clamp(pixel[3], 0.0f, 1.0f);
            rowSum += luminance * weight;
            rowWeights += weight;
        }
        sum += rowSum;
        weights += rowWeights;
    }
    return sum / weights;
}

bool allFinite(const VImage &picture)
{
    bool finite = true;
    for (int y = 0; y < picture.Height(); ++y) {
        const auto *sample = reinterpret_cast<const float *>(picture.PixelAddress(0, y));
        for (int i = 0; i < 4 * picture.Width(); ++i)
            finite = finite && std::isfinite(sample[i]);
    }
    return finite;
}

} // namespace

std::optional<int> AutomaticStrength::of(const VImage &photograph)
{
    VImage low, trial;
    reduce(photograph, low);
    if (!low.Bitmap() || !allFinite(low) || std::isnan(meanLuminance(low)))
        return std::nullopt;
    float airlight[3];
    const std::unique_ptr<float[]> map(low.HazeDarkChannel(airlight));
    if (!map)
        return std::nullopt;
    for (int strength = kStrongest; strength > kWeakest; --strength) {
        low.ConvertTo(trial, VImage::Rgba, 32);
        trial.HazeRecover(map.get(), airlight, float(strength) / 100.0f);
        if (meanLuminance(trial) >= kLuminance)
            return strength;
    }
    return kWeakest;
}
