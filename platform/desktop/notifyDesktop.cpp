#include "notifyDesktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QVariantMap>

bool notifyDesktop(const QString &title, const QString &text)
{
    // Without an address, the library would start a bus of its own.
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") &&
        !QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus"))
        return false;
    constexpr int kPatienceMs = 2000, kUsualTime = -1;
    const QString name = QStringLiteral("org.freedesktop.Notifications"), program = QStringLiteral("veilaway");
    QDBusMessage call =
        QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/Notifications"), name, QStringLiteral("Notify"));
    call << program << 0U << program << title << text.toHtmlEscaped() << QStringList()
         << QVariantMap{{QStringLiteral("desktop-entry"), program}} << kUsualTime;
    return QDBusConnection::sessionBus().call(call, QDBus::Block, kPatienceMs).type() == QDBusMessage::ReplyMessage;
}
