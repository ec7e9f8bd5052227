#pragma once

#include <QString>

class VImage;

/// The host's object for one image of its project. The host owns it and the images that it hands out; the plug-in only reads
/// those.
class ImageDef
{
public:
    virtual ~ImageDef() = default;
    virtual QString displayName() = 0;  ///< For the list of images on the page.
    virtual int height() = 0;           ///< Pixels; goes with the second argument of acquireScaled.
    virtual int width() = 0;            ///< Pixels; goes with the first argument.
    virtual int channelCount() = 0;     ///< Of the source: 1, 3, or anything else for four.
    virtual int bitsPerChannel() = 0;   ///< Of the source.
    virtual bool needsTiffOutput() = 0; ///< True: the result is a TIFF whatever the source's suffix is.
    /// The image at this size, for reading, until the matching release; Grey, Rgb or Rgba of 8, 16 or 32 bits. `flag` is
    /// always 1.
    virtual VImage *acquireScaled(int width, int height, int flag) = 0;
    virtual void releaseScaled(int width, int height, int flag) = 0;
    /// The image at full size, in the same way.
    virtual VImage *acquireFull(int flag) = 0;
    virtual void releaseFull(int flag) = 0;
};
