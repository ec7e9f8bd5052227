#pragma once

#include <QString>

/// Shows a notification of the desktop, with the program's icon. Neither text is markup. False if there is no desktop that shows
/// notifications. The application object must exist; may take a second.
bool notifyDesktop(const QString &title, const QString &text);
