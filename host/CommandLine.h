#pragma once

#include <optional>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "WantedStrength.h"

/// What the user asked for. Read before the application object exists, since that depends on it.
class CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    enum class Command { Run, Wizard, SetDefault, Help, Version };

    Command command = Command::Run;
    QStringList photographs;
    std::optional<WantedStrength> strength;
    std::optional<WantedStrength> newDefault; ///< Of SetDefault; nothing takes the stored one back.
    QString settingsFile;
    QString language;
    int jobs = 0; ///< 0: as many as fit.
    bool overwrite = false;
    bool quiet = false;
    bool json = false;
    bool shareServices = false;
    QString pluginFile;

    /// What is wrong with the command line, or empty. Nothing else holds then.
    QString error;

    /// `arguments` as the program got them, its own name first.
    static CommandLine parse(const QStringList &arguments);
    /// Paragraphs without line breaks, see wrapped().
    static QString help();
};

/// What the program ends with.
enum ExitCode : int {
    ExitAllDone = 0,
    ExitSomeFailed = 1,
    ExitUsage = 2,     ///< The command line or the settings file can't be followed; nothing was begun.
    ExitBySignal = 128 ///< Plus the number of the signal by which the process is to end, as a shell counts.
};
