#pragma once

#include <QCoreApplication>
#include <QSet>
#include <QStringList>

#include "CommandLine.h"
#include "HostApplication.h"

/// The command `run`, which processes photographs and writes the results beside them. Returns the exit status, which is above
/// ExitBySignal if a signal stopped it.
class RunCommand
{
    Q_DECLARE_TR_FUNCTIONS(RunCommand)

public:
    RunCommand(const CommandLine &commandLine, HostApplication &host) : line(commandLine), application(host) {}
    [[nodiscard]] int run();

private:
    /// The strength of photographs without another one: the stored default, or 70. Prints a note that says which.
    WantedStrength defaultStrength(const QString &group);
    /// Removes `results` from `photographs`, with one note for all.
    void leaveOut(const QSet<QString> &results, QStringList &photographs) const;
    void note(const QString &text) const;

    const CommandLine &line;
    HostApplication &application;
};
