#include <clocale>
#include <csignal>
#include <cstdio>
#include <optional>

#include <QApplication>
#include <QIcon>
#include <QLocale>
#include <QTextCodec>

#include "CommandLine.h"
#include "DisplayWatch.h"
#include "HostApplication.h"
#include "PluginFile.h"
#include "ProgressView.h"
#include "RunCommand.h"
#include "VException.h"
#include "WizardCommand.h"

namespace {

QLocale wantedLocale(const QString &language)
{
    const QString system = QLocale::system().uiLanguages().value(0);
    return HostApplication::localeFor(language.isEmpty() ? system : language).value_or(QLocale(QLocale::English));
}

/// What the licences of linked libraries want said where the user finds it. docs/licences.md tells which.
constexpr char kNotices[] = R"(
Copyright 2026 the Nimbra developers. There is NO WARRANTY, to the extent that the law permits.
The program and the plug-in with their libraries are under the GNU General Public License, version 3. They use MUMPS, Copyright
1991-2022 CERFACS, CNRS, ENS Lyon, INP Toulouse, Inria, Mumps Technologies, University of Bordeaux, and SCOTCH, Copyright 2004,
2007, 2008, 2010-2012 ENSEIRB, INRIA & CNRS, both governed by the CeCILL-C licence (http://www.cecill.info). This software is based
in part on the work of the Independent JPEG Group.
)";

int showVersion(const CommandLine &line)
{
    std::printf("veilaway %s\n", NIMBRA_VERSION);
    try {
        std::printf("%s\n", PluginFile(line.pluginFile).identity().toUtf8().constData());
        std::fputs(kNotices, stdout);
        return ExitAllDone;
    } catch (const VException &failure) {
        ProgressView::complain(failure.message);
        return ExitSomeFailed;
    }
}

} // namespace

int main(int argc, char **argv)
{
    // File names are UTF-8 here, also where the environment sets no locale; otherwise Qt would turn their letters into "?".
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // A reader that goes away, or a limit on the size of files, is a failed write and not the end.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);

    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromUtf8(argv[i]);
    // Read before the application object is there, which depends on it; its messages are not in the user's language yet.
    const CommandLine line = CommandLine::parse(arguments);
    const QLocale locale = wantedLocale(line.language);

    const auto settle = [](HostApplication &application) {
        if (!std::setlocale(LC_CTYPE, "C.UTF-8")) // the application object has set the environment's
            std::setlocale(LC_CTYPE, "en_US.UTF-8");
        QCoreApplication::setApplicationName(QStringLiteral("veilaway"));
        QCoreApplication::setApplicationVersion(QStringLiteral(NIMBRA_VERSION));
        application.loadTranslator(QStringLiteral("veilaway_%1.qm").arg(application.locale().name()));
    };
    if (line.command == CommandLine::Command::Wizard && line.error.isEmpty()) {
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
        std::optional<DisplayWatch> watch(locale);
        HostedApplication<QApplication> application(argc, argv, locale, line.shareServices);
        watch->checkScreens();
        watch.reset();
        settle(application);
        QApplication::setDesktopFileName(QStringLiteral("veilaway"));
        QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("veilaway")));
        return WizardCommand(line, application).run();
    }
    HostedApplication<QCoreApplication> application(argc, argv, locale, line.shareServices);
    settle(application);
    if (!line.error.isEmpty()) {
        ProgressView::complain(CommandLine::parse(arguments).error + ' ' + CommandLine::tr("See veilaway --help."));
        return ExitUsage;
    }
    switch (line.command) {
    case CommandLine::Command::Help:
        std::fputs(CommandLine::help().toUtf8().constData(), stdout);
        return ExitAllDone;
    case CommandLine::Command::Version:
        return showVersion(line);
    default:
        return RunCommand(line, application).run();
    }
}
