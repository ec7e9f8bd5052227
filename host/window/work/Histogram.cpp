#include "Histogram.h"

#include <cstdint>
#include <cstring>
#include <vector>

#include "OpenPhoto.h"
#include "clippedPixels.h"
#include "workingForm.h"

namespace {

/// Counts the values of a picture. Pixels that are fully transparent are left out.
void countValues(const VImage &picture, std::array<Histogram::Bins, 3> &bins)
{
    VImage colours;
    picture.ConvertTo(colours, VImage::Rgba, 8);
    for (int y = 0; y < colours.Height(); ++y) {
        const unsigned char *pixel = colours.PixelAddress(0, y);
        for (int x = 0; x < colours.Width(); ++x, pixel += 4)
            if (pixel[3] > 0)
                for (std::size_t channel = 0; channel < 3; ++channel)
                    ++bins[channel][pixel[channel]];
    }
}

} // namespace

Histogram histogramOf(const OpenPhoto &photo, int strength)
{
    const VImage &before = photo.samples();
    VImage working, after;
    toWorkingForm(before, working);
    if (photo.hasMap())
        photo.recover(working, photo.sampledMap(), strength);
    working.ConvertTo(after, before.Type(), before.BitsPerComponent());

    Histogram histogram;
    countValues(before, histogram.before);
    countValues(after, histogram.after);
    double counted = 0, black = 0, white = 0;
    for (const unsigned pixels : histogram.after.front())
        counted += pixels;
    std::vector<std::uint8_t> marks(std::size_t(after.Width()));
    for (int y = 0; y < after.Height(); ++y) {
        findClippedPixels(after, y, marks.data());
        for (const std::uint8_t mark : marks) {
            black += (mark & kClippedBlack) != 0;
            white += (mark & kClippedWhite) != 0;
        }
    }
    if (counted > 0) {
        histogram.black = black / counted;
        histogram.white = white / counted;
    }
    return histogram;
}
