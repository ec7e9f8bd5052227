#include "workingForm.h"

#include "imageRows.h"

namespace {

void fillOpaque(VImage &image)
{
    const int width = image.Width();
    for (int y = 0; y < image.Height(); ++y) {
        float *pixel = rowOf(image, y);
        for (int x = 0; x < width; ++x, pixel += 4)
            pixel[3] = 1.0f;
    }
}

} // namespace

void toWorkingForm(const VImage &source, VImage &working)
{
    if (source.Bitmap() && source.Type() == VImage::Grey && source.BitsPerComponent() == 16) {
        working.Create(source.Width(), source.Height(), VImage::Rgba, 32);
        fillOpaque(working);
    }
    source.ConvertTo(working, VImage::Rgba, 32);
}
