#pragma once

#include <QByteArray>
#include <QString>

/// What a colour profile (ICC) calls itself, on one line, in the user's language if it knows it; "sRGB" for none and for one that
/// can't be read, as for ScreenColours. Any thread.
QString profileName(const QByteArray &icc);
