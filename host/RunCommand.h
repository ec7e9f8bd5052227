#pragma once

#include <memory>
#include <vector>

#include <QCoreApplication>
#include <QSet>
#include <QStringList>

#include "BatchPlan.h"
#include "CommandLine.h"
#include "HostApplication.h"
#include "PluginFile.h"
#include "ProgressView.h"
#include "SettingsFile.h"

/// The command `run`, which processes photographs and writes the results, or with --dry-run shows what it would do. Returns the
/// exit status, which is above ExitBySignal if a signal stopped it.
class RunCommand
{
    Q_DECLARE_TR_FUNCTIONS(RunCommand)

public:
    RunCommand(const CommandLine &commandLine, HostApplication &host) : line(commandLine), application(host) {}
    [[nodiscard]] int run();

private:
    /// What ends the command before it has begun, in a member function.
    struct Ending
    {
        int code;
        QString complaint; ///< Or empty.
    };

    void loadPlugin();
    void openSettings();
    void listPhotographs();
    void chooseOutput();
    /// The strength of photographs without another one: the stored default, or 70. Prints a note that says which.
    WantedStrength defaultStrength(const QString &group);
    /// Takes the results of other photographs out of the list, with one note for all.
    void leaveOutResults();
    void makePlan();
    int showPlan(ProgressView &view);
    int work(ProgressView &view);
    /// False, after a complaint, if the settings can't be written.
    bool keepSettings(const ProgressView &view);
    void note(const QString &text) const;
    void notify(const QString &text) const;

    const CommandLine &line;
    HostApplication &application;
    std::unique_ptr<PluginFile> plugin;
    std::unique_ptr<SettingsFile> settings;
    QStringList recorded; ///< The photographs of the settings file.
    QStringList photographs;
    QSet<QString> results; ///< Among those two.
    BatchPlan::Options options;
    std::vector<BatchItem> items;
};
