#pragma once

#include <QString>

/// Text on a terminal, measured in its columns: a letter takes one, an ideograph two, a combining mark none. LC_CTYPE must be a
/// UTF-8 locale.

/// The width of the terminal on standard output, or 80 if there is none.
int terminalWidth();
/// The beginning of `text` that fits into `columns`.
QString fitted(const QString &text, int columns);
/// `text` with each of its lines broken so that none is wider than `columns`, except for single words that are. What follows a
/// break is indented like its line, or like the description if the line has a label with two or more blanks behind it.
QString wrapped(const QString &text, int columns);
