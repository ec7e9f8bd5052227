#pragma once

#include <QString>

/// Shows a notification of the desktop (org.freedesktop.Notifications). Returns false if there is no session bus to send it to.
bool desktopNotice(const QString &title, const QString &text);
