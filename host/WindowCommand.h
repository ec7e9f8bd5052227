#pragma once

#include <QCoreApplication>

#include "CommandLine.h"
#include "HostApplication.h"

/// The command `window`, which shows the workspace until it is closed. Returns the exit status. Needs a QApplication.
class WindowCommand
{
    Q_DECLARE_TR_FUNCTIONS(WindowCommand)

public:
    WindowCommand(const CommandLine &commandLine, HostApplication &host) : line(commandLine), application(host) {}
    [[nodiscard]] int run();

private:
    const CommandLine &line;
    HostApplication &application;
};
