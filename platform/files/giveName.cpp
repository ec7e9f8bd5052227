#include "giveName.h"

#include <cerrno>
#include <cstdio>

#include <QFile>
#include <fcntl.h>
#include <sys/stat.h>

Naming giveName(const QString &from, const QString &to, bool replace, QString &reason)
{
    const QByteArray source = QFile::encodeName(from), target = QFile::encodeName(to);
    int failed = replace ? ::rename(source.constData(), target.constData())
                         : ::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE);
    if (failed && !replace && (errno == EINVAL || errno == ENOSYS)) { // a file system that can't check in the same step
        struct stat status;
        if (::lstat(target.constData(), &status) == 0)
            return Naming::Exists;
        failed = ::rename(source.constData(), target.constData());
    }
    if (!failed)
        return Naming::Done;
    if (errno == EEXIST)
        return Naming::Exists;
    reason = qt_error_string(errno);
    return Naming::Failed;
}
