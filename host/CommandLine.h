#pragma once

#include <optional>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "BatchItem.h"
#include "WantedStrength.h"

/// The parsed command line. Parsed before the application object exists, since that depends on it.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    enum class Command { Run, Window, Wizard, SetDefault, Help, Version, Completion };

    Command command = Command::Run;
    QStringList photographs;
    int literal = 0; ///< From this index on, `photographs` stood behind "--": they are never lists.
    QString topic;   ///< For Help: a command, or empty. For Completion: the shell.
    std::optional<WantedStrength> strength;
    std::optional<WantedStrength> newDefault; ///< For SetDefault; nothing removes the stored one.
    QString settingsFile;
    QString language;
    int jobs = 0;   ///< 0: as many as fit.
    QString output; ///< Empty: beside the photographs.
    std::optional<QString> tag;
    Existing existing = Existing::Refuse;
    bool keepTime = false;
    ResultPacking packing;
    bool recursive = false;
    bool nullSeparated = false;
    bool dryRun = false;
    bool notify = false;
    bool quiet = false;
    bool json = false;
    bool shareServices = false;
    QString pluginFile;

    /// What is wrong with the command line, or empty. If it is set, the other members are meaningless.
    QString error;

    /// True for the commands that show a window.
    bool needsDisplay() const { return error.isEmpty() && (command == Command::Window || command == Command::Wizard); }

    /// `arguments` start with the name of the program.
    static CommandLine parse(const QStringList &arguments);
};

/// The exit status of the program.
enum ExitCode : int {
    ExitAllDone = 0,
    ExitSomeFailed = 1,
    ExitUsage = 2,     ///< The command line or the settings file is wrong; nothing was begun.
    ExitBySignal = 128 ///< Plus the number of the signal that ends the process, as a shell counts.
};
