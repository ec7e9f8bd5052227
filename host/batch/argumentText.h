#pragma once

#include <QByteArray>
#include <QString>

/// An argument of the command line, taken for UTF-8. A byte that is none becomes the lone surrogate U+DC00 + byte, which no UTF-8
/// gives, so that nothing of a name is lost.
QString argumentText(const QByteArray &argument);
/// The way back, the same bytes. Their text by QString::fromUtf8 is one to show.
QByteArray argumentBytes(const QString &text);
