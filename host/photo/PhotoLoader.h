#pragma once

#include <memory>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "VImage.h"
#include "readPhoto.h"

/// The pixels of one photograph at full size, as stored (no orientation applied).
class DecodedPhoto
{
public:
    VImage &image() { return pixels; }

private:
    friend class PhotoLoader;
    PhotoPixels read; ///< What `pixels` is a view of; empty when it owns its pixels. Outlives it.
    VImage pixels;
};

/// Reads photographs for the program: readPhoto, with each problem as a VException whose message says what is wrong and what
/// helps, without naming the file. Has no state; any thread. The codec layer must have been started.
class PhotoLoader
{
    Q_DECLARE_TR_FUNCTIONS(PhotoLoader)

public:
    /// Why the file can't be a photograph (missing, a folder, empty, unreadable), or an empty string. Reads no content.
    static QString complaint(const QString &path);

    /// Reads only the head of the file. Also throws what `complaint` says.
    static PhotoHead describe(const QString &path);

    /// Reads the whole photograph; see readPixels.
    static std::unique_ptr<DecodedPhoto> decode(const QString &path);

    /// True if a result can be written under this suffix (lower case, without the dot); all others become TIFF.
    static bool canWrite(const QString &suffix);

    /// The suffixes that can be written and those of camera raw, for texts and file dialogs.
    static QStringList pictureSuffixes();
    static QStringList rawSuffixes();
};
