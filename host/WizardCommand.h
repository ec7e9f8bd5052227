#pragma once

#include <QCoreApplication>

#include "CommandLine.h"
#include "HostApplication.h"

/// The command `wizard`, which shows the window until it is closed. Returns the exit status. Needs a QApplication.
class WizardCommand
{
    Q_DECLARE_TR_FUNCTIONS(WizardCommand)

public:
    WizardCommand(const CommandLine &commandLine, HostApplication &host) : line(commandLine), application(host) {}
    [[nodiscard]] int run();

private:
    const CommandLine &line;
    HostApplication &application;
};
