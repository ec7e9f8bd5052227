#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

/// Data rows of a table's text: lines of `cellCount` cells separated by ';', in the local 8-bit set, without the blanks around
/// each cell. Lines that begin with '#', blank lines and lines of fewer cells are left out; the last cell takes what is left of
/// its line.
QList<QStringList> propertyRows(const QByteArray &text, int cellCount);
