#include "RemoveHaze.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>

#include "HazeState.h"
#include "VImage.h"

namespace {

/// Width of the copy of about 100,000 pixels; a smaller image is enlarged to it. The product wraps around in 32 bits, and a
/// negative one, which has no square root, gives the smallest integer. Fixed: hosts rely on it.
int reducedWidth(int width, int height)
{
    const auto product = std::int32_t(std::uint32_t(width) * 100000u);
    const double root = std::sqrt(double(product) / double(height));
    constexpr double kIntegers = 2147483648.0;
    return root < kIntegers ? int(root) : std::numeric_limits<std::int32_t>::min();
}

/// (height * reduced width) / width; the product wraps around in 32 bits. Fixed: hosts rely on it. An image without columns has a
/// copy without rows.
int reducedHeight(int width, int height, int lowWidth)
{
    if (width == 0)
        return 0;
    const auto product = std::int32_t(std::uint32_t(height) * std::uint32_t(lowWidth));
    return int(std::int64_t(product) / width);
}

} // namespace

void RemoveHaze(VImage &image, HazeState &state)
{
    if (state.strength == 0)
        return;
    if (!state.transmission) {
        const int lowWidth = reducedWidth(image.Width(), image.Height());
        const int lowHeight = reducedHeight(image.Width(), image.Height(), lowWidth);
        VImage low;
        image.Resample(low, lowWidth, lowHeight);
        const std::unique_ptr<float[]> darkMap(low.HazeDarkChannel(state.airlight));
        if (!darkMap || !low.HazeMatting(darkMap.get()))
            return; // without an exception or a message. Fixed: hosts rely on it.
        state.transmission = image.HazeUpsample(darkMap.get(), &low);
    }
    const float fraction = float(state.strength) / 100.0f;
    image.HazeRecover(state.transmission, state.airlight, fraction);
}
