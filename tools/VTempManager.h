#pragma once

#include <QString>
#include <QStringList>

#include <tbb/concurrent_vector.h>

/// Free bytes of the volume that holds `path`, those that a quota keeps from the user included; -1 if that can't be found out.
/// The path goes through the local 8-bit encoding, and one that has no place in it gives -1. Does not throw.
qint64 freeDiskSpace(QString path);

/// Returns if `neededBytes` fit on the volume of `filePath`'s folder (one that can't be read counts as large enough) and the file
/// can be opened for writing. An existing file stays as it is; a missing one is created and left empty. Otherwise throws a
/// VException with the caller's `location` and the translated reason, which names the absolute path. Safe on any thread.
void checkFileWritable(QString filePath, qint64 neededBytes, QString location);

/// A folder to be removed at the end.
struct VTempFolder
{
    QString path;
};

/// The temporary root of the libraries and the folders under it. The manager owns the records in `folders`.
class VTempManager
{
public:
    VTempManager();
    ~VTempManager();
    VTempManager(const VTempManager &) = delete;
    VTempManager &operator=(const VTempManager &) = delete;

    QString folderName;                            ///< Name of the libraries' folder under a root.
    QStringList roots;                             ///< One entry: QDir::tempPath().
    tbb::concurrent_vector<VTempFolder *> folders; ///< An entry may be null.
};

/// The manager in use, or null: the one made here, or the host's.
extern VTempManager *tempManager;

/// With `shared` that one is taken; it stays its owner's. Otherwise one is made if there is none.
void initTempManager(VTempManager *shared);

/// Removes each folder in the list of the manager that was made here, if it holds nothing, and deletes the manager; a lent one is
/// only forgotten. Harmless without one. A folder that holds anything, or can't be removed, stays.
void releaseTempManager();
