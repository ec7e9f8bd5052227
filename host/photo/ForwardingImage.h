#pragma once

#include "ImageDef.h"
#include "Photograph.h"

/// A second address for a photograph: forwards every call to it.
class ForwardingImage : public ImageDef
{
public:
    Photograph *target = nullptr; ///< Not owned; set before any use.

    QString displayName() override { return target->displayName(); }
    int height() override { return target->height(); }
    int width() override { return target->width(); }
    int channelCount() override { return target->channelCount(); }
    int bitsPerChannel() override { return target->bitsPerChannel(); }
    bool needsTiffOutput() override { return target->needsTiffOutput(); }
    VImage *acquireScaled(int width, int height, int flag) override { return target->acquireScaled(width, height, flag); }
    void releaseScaled(int width, int height, int flag) override { target->releaseScaled(width, height, flag); }
    VImage *acquireFull(int flag) override { return target->acquireFull(flag); }
    void releaseFull(int flag) override { target->releaseFull(flag); }
};
