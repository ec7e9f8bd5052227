#include "DisplayWatch.h"

#include <cstdlib>

#include <QGuiApplication>
#include <QTranslator>

#include "CommandLine.h"
#include "ProgressView.h"

namespace {

QtMessageHandler usual = nullptr;
QString language;
QString reason; ///< The first complaint of a platform plug-in, or of the search for one.

[[noreturn]] void endWithout()
{
    // The application object has no translators yet.
    QTranslator texts;
    texts.load(QStringLiteral("veilaway_%1.qm").arg(language), QStringLiteral(":/Translation"));
    constexpr char kText[] = QT_TRANSLATE_NOOP(
        "DisplayWatch", "The window can't be shown: %1. Start it in a desktop session, or from another machine with ssh -X. "
                        "Without a window, veilaway PHOTO... does the work.");
    const QString text = texts.translate("DisplayWatch", kText);
    ProgressView::complain((text.isEmpty() ? QString(kText) : text).arg(reason.trimmed()));
    std::_Exit(ExitSomeFailed); // a half-made application object can't be destroyed
}

void take(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if ((type == QtWarningMsg || type == QtInfoMsg) && QByteArray(context.category).startsWith("qt.qpa")) {
        if (reason.isEmpty())
            reason = message;
        return;
    }
    if (type == QtFatalMsg) {
        if (reason.isEmpty())
            reason = message;
        endWithout();
    }
    usual(type, context, message);
}

} // namespace

DisplayWatch::DisplayWatch(const QLocale &locale)
{
    language = locale.name();
    usual = qInstallMessageHandler(take);
}

DisplayWatch::~DisplayWatch()
{
    qInstallMessageHandler(usual);
}

void DisplayWatch::checkScreens() const
{
    if (QGuiApplication::primaryScreen())
        return;
    if (reason.isEmpty())
        reason = QGuiApplication::platformName() + QStringLiteral(": no screen");
    endWithout();
}
