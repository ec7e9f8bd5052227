#pragma once

#include <QByteArray>
#include <QString>

/// An argument of the command line, read as UTF-8. A byte that isn't valid becomes the lone surrogate U+DC00 + byte, which no
/// UTF-8 yields, so that a file name survives unaltered.
QString argumentText(const QByteArray &argument);
/// The inverse, with the same bytes. To show the text, decode them by QString::fromUtf8.
QByteArray argumentBytes(const QString &text);
