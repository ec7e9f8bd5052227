#pragma once

#include <QString>
#include <QStringList>

#include <tbb/concurrent_vector.h>

/// Free bytes on the volume that holds `path`, including those that a quota withholds from the user; -1 if they can't be
/// determined. The path is converted through the local 8-bit encoding and cut after 511 characters; a path that this makes
/// unusable gives -1. Does not throw.
qint64 freeDiskSpace(QString path);

/// Returns if `neededBytes` fit on the volume of `filePath`'s folder (a volume of unknown free space counts as large enough) and
/// the file can be opened for writing. An existing file is not changed; a missing one is created and left empty. Otherwise throws
/// a VException with the caller's `location` and the translated reason, which names the absolute path. Safe on any thread.
void checkFileWritable(QString filePath, qint64 neededBytes, QString location);

/// A folder that is removed at the end if it holds no files.
struct VTempFolder
{
    QString path;
};

/// The libraries' temporary root and the folders under it. Owns the records in `folders`. Fixed: hosts rely on this layout,
/// although nothing here adds a folder.
class VTempManager
{
public:
    VTempManager();
    ~VTempManager();
    VTempManager(const VTempManager &) = delete;
    VTempManager &operator=(const VTempManager &) = delete;

    QString folderName;                            ///< Name of the libraries' folder under a root: OMBRE, which hosts rely on.
    QStringList roots;                             ///< One entry: QDir::tempPath().
    tbb::concurrent_vector<VTempFolder *> folders; ///< An entry may be null.
};

/// The manager in use (made here, or the host's), or null.
extern VTempManager *tempManager;

/// Uses `shared`, which its owner keeps. If that is null, makes a manager unless there is one already.
void initTempManager(VTempManager *shared);

/// Removes each empty folder in the list of a manager made here, and deletes the manager; a lent one is only forgotten. Harmless
/// if there is none. A folder that is not empty or can't be removed stays.
void releaseTempManager();
