#pragma once

#include <cstddef>

#include <QString>

#include "GflBitmap.h"

class QImage;

/// The only image type: the owner of one bitmap record. Samples are interleaved, rows run from top to bottom, and the first byte
/// of pixel (x, y) is data + bytesPerLine * y + bytesPerPixel * x. The stride of an owned image is width * bytesPerPixel rounded
/// up to a multiple of 4; a view has whatever stride it was given. Samples are unsigned 8 bits (full scale 255), unsigned 16 bits
/// (65535) or 32-bit floats (1.0; values outside are kept).
///
/// An image is empty (no record), owns its pixels, or is a view of memory that the caller keeps alive. It has no lock: only one
/// thread may use it at a time, except that several may write different rows. Failures are thrown as VException.
class VImage
{
public:
    /// Pixel types: one bit each, as in the bitmap record.
    static constexpr unsigned short Grey = 0x0002; ///< One sample.
    static constexpr unsigned short Rgb = 0x0010;  ///< R, G, B.
    static constexpr unsigned short Rgba = 0x0020; ///< R, G, B, A, not premultiplied; with 32 bits the engine's working form.

    VImage() = default;
    VImage(int width, int height, unsigned short type, int bitsPerComponent, bool clear = false, void *data = nullptr,
           int bytesPerLine = 0);
    ~VImage();
    VImage(const VImage &) = delete;
    VImage &operator=(const VImage &) = delete;

    /// Gives the image this shape. With `data` null it owns its pixels, which are zeroed if `clear` is set and otherwise
    /// undefined; with `data` it is a view of that memory, whose rows are `bytesPerLine` bytes apart. With `data` null, an image
    /// that already has exactly this shape keeps its storage, even if it is a view.
    ///
    /// Throws "Invalid Parameter" for an unknown type, which leaves the image empty, and "Not enough memory" if record or pixels
    /// can't be allocated, which includes a negative size and rows of 2 GiB or more. After the latter the image can only be given
    /// a new shape, freed or destroyed.
    void Create(int width, int height, unsigned short type, int bitsPerComponent, bool clear = false, void *data = nullptr,
                int bytesPerLine = 0);

    /// Makes the image empty. The memory behind a view is not freed.
    void Free();

    /// Deep copy: this image becomes an owning copy of `source`, with its stride, palette and name; comment and metadata are
    /// never copied. `source` must be another image. Throws "Not enough memory"; the image is then as after a failed Create.
    void Assign(const VImage &source);

    // The accessors below are called inside pixel loops, so they do not test for emptiness or bounds.
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

    // A host that links only the image record has the operations above. Those below belong to the plug-in.

    /// Converts a rectangle of width x height pixels with its corner at (x, y) in this image; it goes to (targetX, targetY) in
    /// `target`, which already exists. Each image has any of the nine forms: Grey, Rgb or Rgba with 8, 16 or 32 bits per sample.
    ///
    /// 8 bits become 16 by multiplying with 257; 16 become 8 by rounding to the nearest. Integers become floats by dividing by
    /// their full scale; floats become integers by clamping to 0..1, multiplying by full scale and rounding with ties to even; a
    /// float that is not a number becomes 0. Grey is 0.299 R + 0.587 G + 0.114 B. If the source has no alpha, the target's alpha
    /// is set to opaque, with three exceptions: Grey 16 to Rgba 16 and to Rgba 32 keep the target's alpha; Grey 32 to Rgba 16
    /// sets it to 255.
    ///
    /// Throws "Invalid Parameter" or "Invalid Bitmap" before anything is written, and "Not enough memory" with at most the alpha
    /// written. A negative corner is refused, except one in this image whose rectangle also reaches past the far edge; nothing
    /// else is tested or clipped, and the caller keeps the rectangle inside both images.
    void CopyRect(int x, int y, int width, int height, VImage &target, int targetX, int targetY) const;

    /// Converts the whole image into `target`, which takes this image's size and the given form. A view that already has exactly
    /// this shape stays one, and its memory is written (see Create). Throws "Invalid Bitmap" for an empty image or another type,
    /// and what Create and CopyRect throw.
    void ConvertTo(VImage &target, unsigned short type, int bitsPerComponent) const;

    /// Makes `image` an 8-bit picture of this image for the screen (QImage::Format_ARGB32). This image must not be empty. If the
    /// QImage can't be allocated it is null, and nothing is thrown for that.
    void ToQImage(QImage &image) const;

    /// Scales the whole image into `target`, in the same form: bilinear if either side grows, otherwise by area averaging; the
    /// same size gives a deep copy. Alpha is scaled like a colour. An image outside the nine forms gives a zeroed target. Throws
    /// a VException with an empty message for an empty image, what Create throws, and std::bad_alloc.
    void Resample(VImage &target, int width, int height) const;

    /// Turns the whole image the way a viewer displays a picture of this EXIF orientation: 1 unchanged, 2 mirrored left to right,
    /// 3 a half turn, 4 mirrored top to bottom, 5 mirrored along the diagonal (pixel (x, y) moves to (y, x)), 6 a quarter turn
    /// clockwise, 7 mirrored along the other diagonal, 8 a quarter turn anticlockwise. `target`, another image, takes this
    /// image's form; the pixels are moved unchanged, and orientations 5 to 8 exchange width and height. Throws "Invalid Bitmap"
    /// for an empty image and for one outside the nine forms, "Invalid Parameter" for another orientation or this image as
    /// target, and what Create throws.
    void Turn(VImage &target, int orientation) const;

    /// Writes the image to `fileName`. `format` is "jpeg", "png", "tiff", "hdri", "exr" or "psd" in any case, or "jpg", "tif",
    /// "hdr". `quality` -1 uses the format's defaults; otherwise it is 0..12 for "jpeg" and the compression for the others.
    /// `metadataSource` names the file whose colour profile, IPTC and EXIF are attached to this image and written, or is empty.
    ///
    /// Throws "Invalid Bitmap", "Invalid Parameter", or the reason why the source can't be read or the file can't be written.
    void Save(QString fileName, QString format, int quality, QString metadataSource);

    /// Dark channel of this image, normalised by the atmospheric light: the smallest of R/A_R, G/A_G, B/A_B over a square window
    /// of 2k + 3 pixels, k being a hundredth of the longer side.
    ///
    /// This image must be Rgba with 32-bit samples (W x H). Writes the atmospheric light (R, G, B, in sample units) to `airlight`
    /// and returns W*H floats, row by row, which the caller releases with delete[]; null, with `airlight` untouched, if no pixel
    /// qualifies. Throws "Invalid Bitmap" for any other form. Runs up to `threadCount` threads.
    ///
    /// The minimum ignores samples that are not a number; a pixel whose window holds nothing else ranks last as airlight. A
    /// quotient that is not a number, such as 0.0 / 0.0, is ignored; a pixel with three of them gets 0.0. Light in a channel that
    /// the airlight lacks gives an infinite quotient, which counts as infinite.
    /// Source: K. He, J. Sun, X. Tang, Single Image Haze Removal Using Dark Channel Prior, CVPR 2009, sections 4.1 and 4.4.
    [[nodiscard]] float *HazeDarkChannel(float airlight[3]);

    /// Refines a dark map along the edges of this image: solves (L + lambda I) x = lambda b, L being the matting Laplacian over
    /// 3 x 3 windows with eps 0.001, and lambda 0.001. `darkMap` holds W*H floats: b on entry, x on return.
    ///
    /// This image must be Rgba with 32-bit samples; its alpha is not read. Returns false, with `darkMap` multiplied by lambda,
    /// if the system could not be solved, as happens if a colour sample is not a finite number. A window whose covariance can't
    /// be inverted in 32 bits counts as one of a single colour. The result does not depend on the size of the team. Throws
    /// "Invalid Bitmap" for any other form, and std::bad_alloc. Runs up to `threadCount` threads. Source: A. Levin, D.
    /// Lischinski, Y. Weiss, A Closed-Form Solution to Natural Image Matting, PAMI 2008, equation 12; its use for haze: He, Sun,
    /// Tang, CVPR 2009, section 4.2.
    [[nodiscard]] bool HazeMatting(float *darkMap);

    /// Carries a map from `lowImage`'s size up to this image's, by joint bilateral steps of at most a factor of 2, guided by this
    /// image. `lowMap` holds one float per pixel of `lowImage`. Returns W*H floats, row by row, which the caller releases with
    /// delete[]; 0.0 where this image's alpha is 0.0. Both images must be Rgba with 32-bit samples and are only read. Throws
    /// "Invalid Bitmap" for any other form. Runs up to `threadCount` threads.
    ///
    /// Neighbours whose difference in a channel is 2.001 or more, or not a number, have the weight 0.0; a pixel whose weights are
    /// all 0.0 gets 0.0. A map value that is not a number carries over to every pixel that it is a neighbour of.
    /// Source: J. Kopf, M. Cohen, D. Lischinski, M. Uyttendaele, Joint Bilateral Upsampling, SIGGRAPH 2007, equation 4.
    [[nodiscard]] float *HazeUpsample(float *lowMap, VImage *lowImage);

    /// One step of HazeUpsample, over the 3 x 3 neighbours on the coarse grid; same arguments, result and errors.
    [[nodiscard]] float *HazeJointUpsample(float *lowMap, VImage *lowImage);

    /// Takes the haze out, in place: J = A + (I - A) / max(1 - transmission * strength, 0.1), not below 0. `transmission` holds
    /// W*H floats, the refined dark map; `strength` is a fraction, nominally 0..1. Alpha is not written, and a pixel with alpha
    /// 0.0 stays as it is. Throws "Invalid Bitmap" unless this image is Rgba with 32-bit samples. Runs up to `threadCount`
    /// threads. A colour sample that is not a number becomes 0.0, and so do all three of a pixel whose transmission is not a
    /// number. Source: He, Sun, Tang, CVPR 2009, equations 1 and 16.
    void HazeRecover(const float *transmission, const float airlight[3], float strength);

private:
    GflBitmap *bitmap = nullptr;
    bool ownsData = true;  ///< False for a view; true whenever `bitmap` is null.
    bool userFlag = false; ///< Spare: carried over by Assign, never read. Fixed: hosts rely on the layout.
};
