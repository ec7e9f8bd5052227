#include "ignoresCase.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <sys/stat.h>

namespace {

/// The name with small letters for capitals and the reverse. Of ASCII only: other letters may have no counterpart.
QString inOtherCase(QString name)
{
    for (QChar &letter : name)
        if (letter.unicode() < 0x80)
            letter = letter.isLower() ? letter.toUpper() : letter.toLower();
    return name;
}

bool onSameDevice(const QString &one, const QString &other)
{
    struct stat here, there;
    return ::stat(QFile::encodeName(one).constData(), &here) == 0 && ::stat(QFile::encodeName(other).constData(), &there) == 0 &&
           here.st_dev == there.st_dev;
}

/// True if there is such a file in the folder.
bool isIn(const QString &folder, const QString &name)
{
    struct stat status;
    return ::lstat(QFile::encodeName(folder + '/' + name).constData(), &status) == 0;
}

} // namespace

bool ignoresCase(const QString &folder)
{
    const QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &name : names)
        if (const QString other = inOtherCase(name); other != name && !names.contains(other))
            return isIn(folder, other);
    const QFileInfo own(QFileInfo(folder).canonicalFilePath());
    const QString other = inOtherCase(own.fileName());
    return other == own.fileName() || !onSameDevice(folder, own.path()) || isIn(own.path(), other);
}
