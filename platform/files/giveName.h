#pragma once

#include <QString>

/// What became of a file that was to get another name.
enum class Naming {
    Done,
    Exists, ///< Another file has the name.
    Failed
};

/// Gives the complete file `from` the name `to`, on the same file system, in one step: under that name there is at any time what
/// was there before or the whole file. A file that already has the name is replaced only with `replace`. A symbolic link is
/// replaced itself. If it fails, `reason` gets the system's text. Any thread.
[[nodiscard]] Naming giveName(const QString &from, const QString &to, bool replace, QString &reason);
