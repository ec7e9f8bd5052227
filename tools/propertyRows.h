#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

/// Data rows of a table's text: lines of `cellCount` cells separated by ';', in the local 8-bit encoding, each cell trimmed.
/// Lines that begin with '#', blank lines and lines with fewer cells are skipped; the last cell takes the rest of its line.
QList<QStringList> propertyRows(const QByteArray &text, int cellCount);
