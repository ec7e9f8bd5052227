#pragma once

#include "ImageDef.h"
#include "VImage.h"

/// A photograph that is only ever run at full size: one image of 8 bits, lent as often as it is asked for.
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
