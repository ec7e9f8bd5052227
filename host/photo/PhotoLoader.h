#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include <QCoreApplication>
#include <QString>

#include "GflBitmap.h"
#include "VImage.h"
#include "photoKind.h"

/// What the head of a photograph's file says, without its pixels. A figure that it doesn't give is 0. The sizes are such that a
/// file of its length could hold them: their product, in bytes of any pixel, fits into 63 bits.
struct PhotoFacts
{
    int width = 0; ///< Pixels as stored, before any orientation.
    int height = 0;
    int orientation = 1; ///< EXIF's 1 to 8.
};

/// The pixels of one photograph at full size, as stored (no orientation applied).
class DecodedPhoto
{
public:
    VImage &image() { return pixels; }

private:
    friend class PhotoLoader;
    struct Release
    {
        void operator()(GflBitmap *record) const { gflFreeBitmap(record); }
    };
    std::unique_ptr<GflBitmap, Release> bitmap; ///< What `pixels` is a view of; null when it owns its pixels. Outlives it.
    VImage pixels;
};

/// Reads photographs: pictures through the codec layer, camera raw by developing it to 16 bits. Has no state; any thread.
/// The codec layer must have been started. What the content shows to be no photograph, or another one than the suffix says, no
/// library gets to see. Every failure is a VException whose message says what is wrong and what helps, without naming the file.
class PhotoLoader
{
    Q_DECLARE_TR_FUNCTIONS(PhotoLoader)

public:
    /// Says why the file can't be a photograph (missing, a folder, empty, unreadable), or nothing. Reads no content.
    static QString complaint(const QString &path);

    /// Reads the head of the file only. Throws where `complaint` has something to say, for what is no photograph, and for camera
    /// raw that can't be opened.
    static PhotoFacts describe(const QString &path);

    /// Bytes that a pixel takes in the image of `decode`, from the head of the file; 6 where that doesn't say. Throws
    /// for what is no photograph.
    static int pixelBytes(const QString &path);

    /// Reads the whole photograph. Pictures keep the depth and channels of their file; camera raw becomes 16-bit RGB or grey in
    /// sRGB, with the camera's white balance.
    static std::unique_ptr<DecodedPhoto> decode(const QString &path);

    /// True if a result can be written under this suffix (lower case, without the dot); all others become TIFF.
    static bool canWrite(const QString &suffix);

    /// The suffixes that can be written and those of camera raw, for texts and file dialogs.
    static QStringList pictureSuffixes();
    static QStringList rawSuffixes();

private:
    using Record = std::unique_ptr<GflBitmap, DecodedPhoto::Release>;
    /// A picture as the codec layer reads it: a code of the layer, and null on an error.
    static std::pair<int, Record> load(const QString &path, std::uint32_t flags);
    /// Throws for what is no photograph, or another one than its suffix says.
    static PhotoKind kindOf(const QString &path);
    static bool isRaw(const QString &path);
    static PhotoFacts describePicture(const QString &path);
    static PhotoFacts describeRaw(const QString &path);
    static void developRaw(const QString &path, VImage &image);
};
