#pragma once

#include <cstddef>

#include <QString>

#include "GflBitmap.h"

class QImage;

/// The one image type: one owner of one bitmap record. Samples are interleaved, rows run from top to bottom, and the first byte
/// of pixel (x, y) is data + bytesPerLine * y + bytesPerPixel * x. The stride of an owned image is width * bytesPerPixel rounded
/// up to a multiple of 4; a view has whatever stride it was given. Samples are unsigned 8 bits (full scale 255), unsigned 16 bits
/// (65535) or 32-bit floats (1.0; values outside are kept).
///
/// An image is empty (no record), owning, or a view of memory that the caller keeps alive. It holds no lock: one thread at a
/// time, except that several may write different rows. Failures are thrown as VException.
class VImage
{
public:
    /// Pixel types: one bit each, as the bitmap record has them.
    static constexpr unsigned short Grey = 0x0002; ///< One sample.
    static constexpr unsigned short Rgb = 0x0010;  ///< R, G, B.
    static constexpr unsigned short Rgba = 0x0020; ///< R, G, B, A, not premultiplied; the engine's working form with 32 bits.

    VImage() = default;
    VImage(int width, int height, unsigned short type, int bitsPerComponent, bool clear = false, void *data = nullptr,
           int bytesPerLine = 0);
    ~VImage();
    VImage(const VImage &) = delete;
    VImage &operator=(const VImage &) = delete;

    /// Gives the image this shape. With `data` null it owns its pixels, which are zeroed if `clear` is set and otherwise hold
    /// anything; with `data` it is a view of that memory with rows `bytesPerLine` bytes apart. An image that has this very shape
    /// already keeps its storage, a view too, when `data` is null.
    ///
    /// Throws "Invalid Parameter" for an unknown type (the image is empty then), "Not enough memory" when record or pixels can't
    /// be had, which includes a negative size and rows of 2 GiB and more (what is left is good only for a new
    /// shape, Free and the destructor).
    void Create(int width, int height, unsigned short type, int bitsPerComponent, bool clear = false, void *data = nullptr,
                int bytesPerLine = 0);

    /// Back to the empty image. A view leaves the caller's memory alone.
    void Free();

    /// Deep copy: this image becomes an owning copy of `source`, with its stride, palette and name; comment and metadata are
    /// never cloned. `source` must be another image. Throws "Not enough memory"; what is left then is as after a failed Create.
    void Assign(const VImage &source);

    // The accessors below stand inside pixel loops: no test for emptiness or bounds.
    unsigned short Type() const { return bitmap->type; }
    int BitsPerComponent() const { return bitmap->bitsPerComponent; }
    int Width() const { return bitmap->width; }
    int Height() const { return bitmap->height; }
    int BytesPerLine() const { return int(bitmap->bytesPerLine); }
    /// Byte address of pixel (x, y).
    unsigned char *PixelAddress(int x, int y) const
    {
        return static_cast<unsigned char *>(bitmap->data) + std::ptrdiff_t(bitmap->bytesPerLine) * y +
               std::ptrdiff_t(bitmap->bytesPerPixel) * x;
    }
    /// The record, or null for an empty image.
    GflBitmap *Bitmap() const { return bitmap; }

    // A host that links the image record alone has the operations above. Those that follow are the plug-in's.

    /// Converts the rectangle of this image with the corner (x, y) into the rectangle of `target` with the corner (targetX,
    /// targetY); both are width x height pixels. `target` exists already, in any of the nine forms; this image has any of them.
    ///
    /// Depth steps: 8 to 16 bits times 257; 16 to 8 to the nearest; integers to float divided by their full scale; float to
    /// integers clamped to 0..1, times full scale, ties to even. Colour to grey is 0.299 R + 0.587 G + 0.114 B. A target with
    /// alpha whose source has none gets an opaque one, with two exceptions: from Grey 16, Rgba 16 and Rgba 32 keep the alpha that
    /// they held; from Grey 32, Rgba 16 gets 255. A float that is not a number becomes 0 as an integer.
    ///
    /// Throws "Invalid Parameter" or "Invalid Bitmap" before anything is written, "Not enough memory" with at most the alpha
    /// written. The position tests refuse a negative corner only; the caller keeps the rectangle inside both images.
    void CopyRect(int x, int y, int width, int height, VImage &target, int targetX, int targetY) const;

    /// Converts the whole image into `target`, which gets this image's size and the form asked for (see Create: a view of that
    /// very shape is written through). Throws "Invalid Bitmap" for an empty image or another type, and what CopyRect throws.
    void ConvertTo(VImage &target, unsigned short type, int bitsPerComponent) const;

    /// Gives `image` an 8-bit picture of this image (QImage::Format_ARGB32), for the screen. This image must not be empty. A
    /// QImage that can't be had stays null, without an exception.
    void ToQImage(QImage &image) const;

    /// Scales the whole image into `target`, in the same form: bilinear if either side grows, otherwise by area averaging; the
    /// same size gives a deep copy. Alpha is scaled like a colour. An image of another form gives a zeroed target. Throws a
    /// VException with an empty message for an empty image, what Create throws, and std::bad_alloc.
    void Resample(VImage &target, int width, int height) const;

    /// Turns the whole image as a viewer shows a picture of this EXIF orientation: 1 as it is, 2 mirrored, 3 upside down, 4
    /// mirrored upside down, 5 rows for columns (pixel (x, y) comes to (y, x)), 6 a quarter turn clockwise, 7 as 5 but along the
    /// other diagonal, 8 a quarter turn anticlockwise. `target`, another image, gets the form of this one and its pixels
    /// unchanged; from 5 on width and height change places. Throws "Invalid Bitmap" for an empty image and for one outside the
    /// nine forms, "Invalid Parameter" for another orientation or this image as target, and what Create throws.
    void Turn(VImage &target, int orientation) const;

    /// Writes the image to `fileName`. `format` is "jpeg", "png", "tiff", "hdri", "exr" or "psd" in any case, or "jpg", "tif",
    /// "hdr". `quality` -1 leaves the format's defaults; otherwise 0..12 for "jpeg" and the compression for the others.
    /// `metadataSource` names the file whose colour profile, IPTC and EXIF are attached to this image and written, or is empty.
    ///
    /// Throws "Invalid Bitmap", "Invalid Parameter", or the reason why the source could not be read or the file not be written.
    void Save(QString fileName, QString format, int quality, QString metadataSource);

    /// Dark channel of this image, normalised by the atmospheric light: the smallest of R/A_R, G/A_G, B/A_B over a square window
    /// of 2k + 3 pixels, k being a hundredth of the longer side.
    ///
    /// This image must be Rgba with 32-bit samples (W x H). Writes the atmospheric light (R, G, B, in sample units) to `airlight`
    /// and returns W*H floats, row by row, which the caller releases with delete[]; null, with `airlight` untouched, if no pixel
    /// qualifies. Throws "Invalid Bitmap" for any other form. Runs a team of `threadCount`.
    ///
    /// A sample that is not a number is passed over by the minimum; a pixel whose window holds nothing else ranks last as
    /// airlight. A quotient that is not a number, as of two channels without any light, has no say; a pixel of three such ones is
    /// 0.0. Other light over an airlight without any is infinite, and counts as such.
    /// Source: K. He, J. Sun, X. Tang, Single Image Haze Removal Using Dark Channel Prior, CVPR 2009, sections 4.1 and 4.4.
    float *HazeDarkChannel(float airlight[3]);

    /// Refines a dark map along the edges of this image: solves (L + lambda I) x = lambda b, L being the matting Laplacian over
    /// 3 x 3 windows with eps 0.001, and lambda 0.001. `darkMap` holds W*H floats, b on entry and x on return.
    ///
    /// This image must be Rgba with 32-bit samples; its alpha is not read. Returns false, with `darkMap` multiplied by lambda,
    /// if the system could not be solved; a colour sample that is not a finite number leads there. A window whose covariance
    /// has no inverse left in 32 bits counts as one of a single colour. The result does not depend on the team. Throws
    /// "Invalid Bitmap" for any other form, std::bad_alloc. Runs a team of `threadCount`. Source: A. Levin, D. Lischinski, Y.
    /// Weiss, A Closed-Form Solution to Natural Image Matting, PAMI 2008, equation 12; its use for haze: He, Sun, Tang, CVPR
    /// 2009, section 4.2.
    bool HazeMatting(float *darkMap);

    /// Carries a map from `lowImage`'s size up to this image's, by joint bilateral steps of at most a factor of 2, guided by this
    /// image. `lowMap` holds one float a pixel of `lowImage`. Returns W*H floats, row by row, which the caller releases with
    /// delete[]; 0.0 where this image's alpha is 0.0. Both images must be Rgba with 32-bit samples and are only read. Throws
    /// "Invalid Bitmap" for any other form. Runs a team of `threadCount`.
    ///
    /// Neighbours that differ by 2.001 or more in a channel, or by what is not a number, have the weight 0.0; a pixel without any
    /// weight gets 0.0. A map value that is not a number spoils the pixels whose neighbour it is.
    /// Source: J. Kopf, M. Cohen, D. Lischinski, M. Uyttendaele, Joint Bilateral Upsampling, SIGGRAPH 2007, equation 4.
    float *HazeUpsample(float *lowMap, VImage *lowImage);

    /// One step of HazeUpsample, over the 3 x 3 neighbours on the coarse grid; the same arguments, result and errors.
    float *HazeJointUpsample(float *lowMap, VImage *lowImage);

    /// Takes the haze out, in place: J = A + (I - A) / max(1 - transmission * strength, 0.1), not below 0. `transmission` holds
    /// W*H floats, the refined dark map; `strength` is a fraction, nominally 0..1. Alpha is not written, and a pixel with alpha
    /// 0.0 stays as it is. Throws "Invalid Bitmap" unless this image is Rgba with 32-bit samples. Runs a team of `threadCount`.
    /// A sample that is not a number becomes 0.0; so do all three of a pixel whose transmission is none.
    /// Source: He, Sun, Tang, CVPR 2009, equations 1 and 16.
    void HazeRecover(const float *transmission, const float airlight[3], float strength);

private:
    GflBitmap *bitmap = nullptr;
    bool ownsData = true;  ///< False for a view; true whenever `bitmap` is null.
    bool userFlag = false; ///< Spare: carried over by Assign, read by nothing.
};
