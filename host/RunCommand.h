#pragma once

#include <QCoreApplication>
#include <QSet>
#include <QStringList>

#include "CommandLine.h"
#include "HostApplication.h"

/// The command `run`: photographs in, results beside them. Returns what the program ends with, above ExitBySignal after a signal
/// that stopped it in good order.
class RunCommand
{
    Q_DECLARE_TR_FUNCTIONS(RunCommand)

public:
    RunCommand(const CommandLine &commandLine, HostApplication &host) : line(commandLine), application(host) {}
    [[nodiscard]] int run();

private:
    /// The strength of photographs that nothing else gives one: the stored default, or 70.
    WantedStrength defaultStrength(const QString &group);
    /// Takes these out of the photographs, with one note for all.
    void leaveOut(const QSet<QString> &results, QStringList &photographs) const;
    void note(const QString &text) const;

    const CommandLine &line;
    HostApplication &application;
};
