#include "PrivateFolder.h"

#include <cerrno>
#include <cstdlib>
#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString kPrefix = QStringLiteral(".veilaway-run-");
const QString kLockName = QStringLiteral("lock");

int openLock(const QString &folder, int flags)
{
    return ::open(QFile::encodeName(folder + '/' + kLockName).constData(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | flags, 0600);
}

/// True if the descriptor is still that of the lock in this folder.
bool isLockOf(const QString &folder, int lock)
{
    struct stat opened, named;
    return ::fstat(lock, &opened) == 0 && ::lstat(QFile::encodeName(folder + '/' + kLockName).constData(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

int openFolder(const QString &path)
{
    return ::open(QFile::encodeName(path).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
}

/// Removes a folder with everything in it from its `parent`, a descriptor. The lock goes last, so that a folder that is half
/// removed is still recognised. `lock`, if it is open, is closed: on some file systems (NFS, FUSE), the file remains under
/// another name until then, and keeps the folder.
void removeWhole(int parent, const QString &folder, int lock)
{
    const QByteArray name = QFile::encodeName(QFileInfo(folder).fileName());
    const int inside = ::openat(parent, name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (DIR *const entries = inside < 0 ? nullptr : ::fdopendir(inside)) {
        while (const dirent *entry = ::readdir(entries))
            if (kLockName != QLatin1String(entry->d_name))
                ::unlinkat(inside, entry->d_name, 0); // folders, as . and .., stay
        ::unlinkat(inside, kLockName.toLatin1().constData(), 0);
        ::closedir(entries);
    }
    if (lock >= 0)
        ::close(lock);
    ::unlinkat(parent, name.constData(), AT_REMOVEDIR);
}

} // namespace

PrivateFolder::PrivateFolder(const QString &parent) : parentFolder(openFolder(parent))
{
    // Between its creation and its lock, another process may take the folder for an abandoned one and remove it.
    constexpr int kAttempts = 10;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        QByteArray name = QFile::encodeName(parent + '/' + kPrefix + "XXXXXX");
        if (!::mkdtemp(name.data())) {
            reason = qt_error_string(errno);
            return;
        }
        folder = QFile::decodeName(name);
        if (takeLock())
            return;
        reason = qt_error_string(errno);
        removeWhole(parentFolder, std::exchange(folder, QString()), -1);
    }
}

bool PrivateFolder::takeLock()
{
    lock = openLock(folder, O_CREAT | O_EXCL);
    if (lock < 0)
        return false;
    const bool refused = ::flock(lock, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (!refused && isLockOf(folder, lock))
        return true;
    ::close(std::exchange(lock, -1));
    return false;
}

PrivateFolder::~PrivateFolder()
{
    if (!folder.isEmpty())
        removeWhole(parentFolder, folder, lock);
    if (parentFolder >= 0)
        ::close(parentFolder);
}

void PrivateFolder::removeAbandoned(const QString &parent)
{
    const int parentFolder = openFolder(parent);
    const QStringList names = QDir(parent).entryList({kPrefix + '*'}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : names) {
        const QString abandoned = parent + '/' + name;
        struct stat status;
        if (::lstat(QFile::encodeName(abandoned).constData(), &status) != 0 || status.st_uid != ::geteuid())
            continue;
        const int found = openLock(abandoned, 0);
        if (found < 0 && errno == ENOENT)
            ::rmdir(QFile::encodeName(abandoned).constData()); // killed before it made the lock
        if (found < 0)
            continue;
        if (::flock(found, LOCK_EX | LOCK_NB) == 0 && isLockOf(abandoned, found))
            removeWhole(parentFolder, abandoned, found);
        else
            ::close(found);
    }
    if (parentFolder >= 0)
        ::close(parentFolder);
}
