#include "PhotographList.h"

#include <algorithm>
#include <filesystem>

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include "PhotoLoader.h"
#include "VException.h"
#include "argumentText.h"

namespace {

const QSet<QString> &suffixesOfPhotographs()
{
    static const QSet<QString> suffixes = [] {
        const QStringList all = PhotoLoader::readableSuffixes();
        return QSet<QString>(all.begin(), all.end());
    }();
    return suffixes;
}

QString suffixOfName(const QString &name)
{
    return name.section('/', -1).section('.', -1).toLower();
}

} // namespace

PhotographList::PhotographList(const QStringList &arguments, const Form &wanted) : form(wanted)
{
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (i < form.literal && (argument == "-" || argument.startsWith('@')))
            addList(argument);
        else
            addName(argument);
    }
}

void PhotographList::addList(const QString &argument)
{
    const bool standard = argument == "-";
    QFile file(QString::fromUtf8(argumentBytes(argument.mid(1))));
    const bool opened = standard ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    QByteArray text = opened ? file.readAll() : QByteArray();
    if (!opened || file.error() != QFile::NoError)
        throw VException(tr("The list \"%1\" can't be read: %2. Check its name, or write ./@... for a photograph whose name "
                            "begins with @.")
                             .arg(standard ? argument : file.fileName(), file.errorString()),
                         V_LOCATION);
    if (text.startsWith("\xef\xbb\xbf"))
        text.remove(0, 3);
    // In the other form, the whole list would be one name, of which a message can hardly say what is wrong with it.
    if (!form.nullSeparated && text.contains('\0'))
        throw VException(
            tr("The list \"%1\" holds null bytes. Add --null (-0) if its names end with them, or save it as text in UTF-8.")
                .arg(standard ? argument : file.fileName()),
            V_LOCATION);
    if (form.nullSeparated && text.endsWith('\n') && !text.contains('\0'))
        throw VException(tr("The list \"%1\" holds no null bytes. Leave out --null (-0) if it has one name per line.")
                             .arg(standard ? argument : file.fileName()),
                         V_LOCATION);
    for (QByteArray line : text.split(form.nullSeparated ? '\0' : '\n')) {
        // Other systems end lines with a carriage return as well, which may also be a part of a name.
        if (!form.nullSeparated && line.endsWith('\r') && !QFileInfo::exists(QString::fromUtf8(line)))
            line.chop(1);
        if (!line.isEmpty())
            addName(argumentText(line));
    }
}

void PhotographList::addName(const QString &name)
{
    const QFileInfo info(QString::fromUtf8(argumentBytes(name)));
    if (!info.isDir() || addFolder(name, QString()) == 0)
        names << name;
}

int PhotographList::addFolder(const QString &folder, const QString &relative)
{
    namespace fs = std::filesystem;
    std::error_code failure;
    QStringList files, folders;
    fs::directory_iterator entry(argumentBytes(folder).toStdString(), failure);
    for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
        const QString name = argumentText(QByteArray::fromStdString(entry->path().filename().string()));
        std::error_code unknown;
        if (name.startsWith('.'))
            continue;
        if (entry->is_directory(unknown)) {
            if (form.recursive && !entry->is_symlink(unknown))
                folders << name;
        } else if (suffixesOfPhotographs().contains(suffixOfName(name))) {
            files << name;
        }
    }
    files.sort();
    folders.sort();
    const QString base = folder.endsWith('/') ? folder : folder + '/';
    for (const QString &file : files) {
        names << base + file;
        places.insert(names.last(), relative);
    }
    int count = files.size();
    for (const QString &inside : folders)
        count += addFolder(base + inside, relative.isEmpty() ? inside : relative + '/' + inside);
    if (failure && !relative.isEmpty()) {
        names << folder;
        ++count;
    }
    return count;
}
