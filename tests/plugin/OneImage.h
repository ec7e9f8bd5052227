#pragma once

#include "ImageDef.h"
#include "VImage.h"

/// A photograph that is only used at full size: one 8-bit image, lent at each request.
class OneImage : public ImageDef
{
public:
    OneImage(int width, int height, unsigned short type) : image(width, height, type, 8) {}

    QString displayName() override { return {}; }
    int height() override { return image.Height(); }
    int width() override { return image.Width(); }
    int channelCount() override { return image.Bitmap()->componentsPerPixel; }
    int bitsPerChannel() override { return 8; }
    bool needsTiffOutput() override { return false; }
    VImage *acquireScaled(int, int, int) override { return nullptr; }
    void releaseScaled(int, int, int) override {}
    VImage *acquireFull(int) override { return &image; }
    void releaseFull(int) override {}

    VImage image;
};
