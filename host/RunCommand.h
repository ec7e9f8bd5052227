#pragma once

#include <QCoreApplication>

#include "CommandLine.h"
#include "HostApplication.h"

/// The command `run`: photographs in, results beside them. Returns what the program ends with.
class RunCommand
{
    Q_DECLARE_TR_FUNCTIONS(RunCommand)

public:
    RunCommand(const CommandLine &commandLine, HostApplication &host) : line(commandLine), application(host) {}
    int run();

private:
    /// The strength of photographs that nothing else gives one: the stored default, or 70.
    int defaultStrength(const QString &group);
    void note(const QString &text) const;

    const CommandLine &line;
    HostApplication &application;
};
