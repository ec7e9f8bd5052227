#pragma once

#include <memory>

#include <QByteArray>
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

    /// A file for a process to take the metadata from, of a photograph that PhotoHead::needsStandIn; see makeStandIn.
    static QByteArray standIn(const QString &path);

    /// The suffixes that can be written, those of camera raw, and all that can be read here, for texts and file dialogs.
    static QStringList pictureSuffixes();
    static QStringList rawSuffixes();
    static QStringList readableSuffixes();
    /// The names of all formats that this installation can read, but for camera raw.
    static QStringList formatNames();
};
