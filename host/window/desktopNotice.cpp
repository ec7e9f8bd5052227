#include "desktopNotice.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

bool desktopNotice(const QString &title, const QString &text)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return false;
    QDBusMessage notify = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const uint replacesNone = 0;
    const int desktopsOwnTime = -1;
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("veilaway")}};
    notify << QStringLiteral("veilaway") << replacesNone << QStringLiteral("veilaway") << title << text.toHtmlEscaped()
           << QStringList() << hints << desktopsOwnTime;
    return bus.send(notify);
}
