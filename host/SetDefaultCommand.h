#pragma once

#include <QCoreApplication>

#include "CommandLine.h"
#include "HostApplication.h"

/// The option --set-default, which stores the default strength. Returns the exit status.
class SetDefaultCommand
{
    Q_DECLARE_TR_FUNCTIONS(SetDefaultCommand)

public:
    SetDefaultCommand(const CommandLine &commandLine, HostApplication &host) : line(commandLine), application(host) {}
    [[nodiscard]] int run();

private:
    const CommandLine &line;
    HostApplication &application;
};
