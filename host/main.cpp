#include <clocale>
#include <csignal>
#include <optional>

#include <QApplication>
#include <QHashFunctions>
#include <QIcon>
#include <QLocale>
#include <QTextCodec>
#include <fcntl.h>
#include <unistd.h>

#include "CommandLine.h"
#include "DisplayWatch.h"
#include "HostApplication.h"
#include "OptionTable.h"
#include "PluginFile.h"
#include "ProgressView.h"
#include "RunCommand.h"
#include "SetDefaultCommand.h"
#include "VException.h"
#include "WindowCommand.h"
#include "WizardCommand.h"
#include "argumentText.h"
#include "readPhoto.h"
#include "terminalText.h"

namespace {

QLocale wantedLocale(const QString &language)
{
    const QString system = QLocale::system().uiLanguages().value(0);
    return HostApplication::localeFor(language.isEmpty() ? system : language).value_or(QLocale(QLocale::English));
}

/// Notices that the licences of linked libraries require where the user finds them; see docs/licences.md.
constexpr char kNotices[] = R"(
Copyright 2026 the Nimbra developers. There is NO WARRANTY, to the extent that the law permits.
The program and the plug-in with their libraries are under the GNU General Public License, version 3. They use MUMPS, Copyright
1991-2022 CERFACS, CNRS, ENS Lyon, INP Toulouse, Inria, Mumps Technologies, University of Bordeaux, and SCOTCH, Copyright 2004,
2007, 2008, 2010-2012 ENSEIRB, INRIA & CNRS, both governed by the CeCILL-C licence (http://www.cecill.info). This software is based
in part on the work of the Independent JPEG Group.
)";

/// The formats that are read where their libraries are there.
QString furtherFormatsText()
{
    QStringList readable, missing;
    for (const FurtherFormat &format : furtherFormats())
        if (const QString name = QString::fromStdString(format.name); format.library.empty())
            missing << name;
        else
            readable << name + " (" + QString::fromStdString(format.library) + ')';
    QString text;
    if (!readable.isEmpty())
        text += CommandLine::tr("Also read here: %1").arg(readable.join(", ")) + '\n';
    if (!missing.isEmpty())
        text += CommandLine::tr("Not read here, for want of a decoder: %1").arg(missing.join(", ")) + '\n';
    return text;
}

int showVersion(const CommandLine &line)
{
    ProgressView::say("veilaway " NIMBRA_VERSION "\n");
    try {
        ProgressView::say(PluginFile(line.pluginFile).identity() + '\n' + furtherFormatsText() + kNotices);
        return ExitAllDone;
    } catch (const VException &failure) {
        ProgressView::complain(failure.message);
        return ExitSomeFailed;
    }
}

/// Runs every command that shows no window.
int answer(const CommandLine &line, HostApplication &application)
{
    switch (line.command) {
    case CommandLine::Command::Help:
        ProgressView::say(OptionTable::help(line.topic, terminalWidth()));
        return ExitAllDone;
    case CommandLine::Command::Completion:
        ProgressView::say(OptionTable::completion(line.topic));
        return ExitAllDone;
    case CommandLine::Command::Version:
        return showVersion(line);
    case CommandLine::Command::SetDefault:
        return SetDefaultCommand(line, application).run();
    default:
        return RunCommand(line, application).run();
    }
}

/// Keeps the first file that the program opens from taking the descriptor of a closed standard stream, and receiving its output.
void holdStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) == -1)
            open("/dev/null", stream == STDERR_FILENO ? O_WRONLY : O_RDONLY); // so that writing to it fails
}

int runProgram(int argc, char **argv)
{
    // File names are UTF-8 even where the environment sets no locale; otherwise Qt would turn their letters into "?".
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    // The attributes in a settings file are written in the same order every time.
    qSetGlobalQHashSeed(0);
    // A closed pipe or a limit on the size of files is a failed write and must not end the program.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);

    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << argumentText(argv[i]);
    // Parsed before the application object exists, which depends on it; its messages are not in the user's language yet.
    const CommandLine line = CommandLine::parse(arguments);
    const QLocale locale = wantedLocale(line.language);

    const auto settle = [](HostApplication &application) {
        if (!std::setlocale(LC_CTYPE, "C.UTF-8")) // the application object has set the environment's
            std::setlocale(LC_CTYPE, "en_US.UTF-8");
        QLocale::setDefault(application.locale()); // of numbers and sizes in the window
        QCoreApplication::setApplicationName(QStringLiteral("veilaway"));
        QCoreApplication::setApplicationVersion(QStringLiteral(NIMBRA_VERSION));
        application.loadTranslator(QStringLiteral("veilaway_%1.qm").arg(application.locale().name()));
    };
    if (line.needsDisplay()) {
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
        std::optional<DisplayWatch> watch(locale);
        HostedApplication<QApplication> application(argc, argv, locale, line.shareServices);
        watch->checkScreens();
        watch.reset();
        settle(application);
        QApplication::setDesktopFileName(QStringLiteral("org.example.nimbra.veilaway"));
        QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("veilaway")));
        return line.command == CommandLine::Command::Window ? WindowCommand(line, application).run()
                                                            : WizardCommand(line, application).run();
    }
    HostedApplication<QCoreApplication> application(argc, argv, locale, line.shareServices);
    settle(application);
    if (!line.error.isEmpty()) {
        ProgressView::complain(CommandLine::parse(arguments).error + ' ' + CommandLine::tr("See veilaway --help."));
        return ExitUsage;
    }
    const int code = answer(line, application);
    return ProgressView::allSaid() || code != ExitAllDone ? code : ExitSomeFailed;
}

} // namespace

int main(int argc, char **argv)
{
    holdStandardStreams();
    const int code = runProgram(argc, argv);
    if (code > ExitBySignal) { // all is cleaned up; a shell ends its loop only if the signal itself ends the process
        std::signal(code - ExitBySignal, SIG_DFL);
        std::raise(code - ExitBySignal);
    }
    return code;
}
