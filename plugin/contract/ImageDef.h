#pragma once

#include <QString>

class VImage;

/// The host's object for one image of its project. The host owns this object and the images that it hands out, which the plug-in
/// only reads.
class ImageDef
{
public:
    virtual ~ImageDef() = default;
    virtual QString displayName() = 0;  ///< For the list of images on the page.
    virtual int height() = 0;           ///< Pixels; paired with the second argument of acquireScaled.
    virtual int width() = 0;            ///< Pixels; paired with the first argument.
    virtual int channelCount() = 0;     ///< Of the source: 1 or 3; any other number means four.
    virtual int bitsPerChannel() = 0;   ///< Of the source.
    virtual bool needsTiffOutput() = 0; ///< True if the result must be a TIFF, whatever the source's suffix.
    /// The image at this size, read only, valid until the matching release: Grey, Rgb or Rgba with 8, 16 or 32 bits per sample.
    /// `flag` is always 1.
    virtual VImage *acquireScaled(int width, int height, int flag) = 0;
    virtual void releaseScaled(int width, int height, int flag) = 0;
    /// The same for the image at full size.
    virtual VImage *acquireFull(int flag) = 0;
    virtual void releaseFull(int flag) = 0;
};
