#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QString>
#include <QStringList>

/// The photographs that the arguments of a command stand for: photographs, folders, and lists of both. All names are texts as
/// argumentText makes them.
///
/// A folder stands for the files in it with the suffix of a photograph, sorted by name, but for hidden ones. A list is @FILE, or
/// - for standard input; it holds one name per line, and a name in it is never another list. Folders without photographs and
/// folders that can't be read stand for themselves, to be refused.
class PhotographList
{
    Q_DECLARE_TR_FUNCTIONS(PhotographList)

public:
    struct Form
    {
        int literal = 0;            ///< Arguments from this index on are not lists.
        bool recursive = false;     ///< Folders stand for those inside them, too, except through links.
        bool nullSeparated = false; ///< Names in lists end with a null byte.
    };

    /// Reads folders and lists. Throws VException if a list can't be read; its message names the list and the remedy.
    PhotographList(const QStringList &arguments, const Form &form);

    /// In the order of the arguments. A photograph that is named twice is there twice.
    const QStringList &photographs() const { return names; }
    /// By photograph: its folder, relative to the folder that was named; nothing for those named themselves.
    const QHash<QString, QString> &below() const { return places; }

private:
    void addList(const QString &argument);
    void addName(const QString &name);
    /// Returns how many photographs there are.
    int addFolder(const QString &folder, const QString &relative);

    const Form form;
    QStringList names;
    QHash<QString, QString> places;
};
