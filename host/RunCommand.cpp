#include "RunCommand.h"

#include <algorithm>
#include <atomic>
#include <csignal>
#include <memory>

#include <QFileInfo>
#include <unistd.h>

#include "BatchPlan.h"
#include "DefaultStrength.h"
#include "PluginFile.h"
#include "ProgressView.h"
#include "SettingsFile.h"
#include "VException.h"
#include "argumentText.h"

namespace {

std::atomic<BatchRunner *> interruptible{nullptr};
std::atomic<int> caughtSignal{0};
QByteArray notice; ///< Prepared before the batch, since a signal handler may not allocate.

/// The first signal stops the batch in good order, a second one ends the program at once.
void stopBatch(int number)
{
    caughtSignal = number;
    if (BatchRunner *runner = interruptible) {
        runner->stop();
        [[maybe_unused]] const auto written = ::write(STDERR_FILENO, notice.constData(), std::size_t(notice.size()));
    }
}

class StopOnSignal
{
public:
    explicit StopOnSignal(BatchRunner &runner)
    {
        notice = "\nveilaway: " +
                 RunCommand::tr("Stopping; finishing the file being saved. Press Ctrl-C again to quit at once.").toUtf8() + '\n';
        interruptible = &runner;
        struct sigaction action = {};
        action.sa_handler = stopBatch;
        action.sa_flags = int(SA_RESETHAND) | SA_RESTART;
        for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
            struct sigaction before = {};
            sigaction(number, nullptr, &before);
            if (before.sa_handler != SIG_IGN) // nohup
                sigaction(number, &action, nullptr);
        }
    }
    ~StopOnSignal() { interruptible = nullptr; }
    StopOnSignal(const StopOnSignal &) = delete;
    StopOnSignal &operator=(const StopOnSignal &) = delete;
};

} // namespace

void RunCommand::note(const QString &text) const
{
    if (!line.quiet)
        ProgressView::complain(text);
}

WantedStrength RunCommand::defaultStrength(const QString &group)
{
    const auto stored = DefaultStrength(application, group).stored();
    note(!stored             ? tr("No --strength given and no default stored: using %1.").arg(WantedStrength::kUsual)
         : stored->automatic ? tr("No --strength given: using your stored default, the automatic strength.")
                             : tr("No --strength given: using your stored default of %1.").arg(stored->percent));
    return stored.value_or(WantedStrength{WantedStrength::kUsual, /*automatic=*/false});
}

void RunCommand::leaveOut(const QSet<QString> &results, QStringList &photographs) const
{
    const auto isResult = [&](const QString &photograph) { return results.contains(photograph); };
    const auto first = std::find_if(photographs.begin(), photographs.end(), isResult);
    if (first == photographs.end())
        return;
    const QString example = QString::fromUtf8(argumentBytes(*first));
    const int before = photographs.size();
    photographs.erase(std::remove_if(first, photographs.end(), isResult), photographs.end());
    note(
        tr("Left out %n file(s) that are results of the other photographs, such as \"%1\".", nullptr, before - photographs.size())
            .arg(example));
}

int RunCommand::run()
{
    std::unique_ptr<PluginFile> plugin;
    try {
        plugin = std::make_unique<PluginFile>(line.pluginFile);
    } catch (const VException &failure) {
        ProgressView::complain(failure.message);
        return ExitSomeFailed;
    }
    // The texts of the layers below the plug-in, whose catalogues are in its resources.
    for (const char *set : {"VImage", "VTools"})
        application.loadTranslator(QStringLiteral("%1_%2.qm").arg(QLatin1String(set), application.locale().name()));
    VIPluginOne2One &process = plugin->process();

    std::unique_ptr<SettingsFile> settings;
    QStringList photographs = line.photographs;
    if (!line.settingsFile.isEmpty()) {
        settings = std::make_unique<SettingsFile>(line.settingsFile, process.name());
        try {
            settings->load();
        } catch (const VException &failure) {
            ProgressView::complain(failure.message);
            return ExitUsage;
        }
        if (photographs.isEmpty())
            photographs = settings->photographs();
        if (photographs.isEmpty()) {
            ProgressView::complain(
                settings->exists()
                    ? tr("The settings file \"%1\" names no photographs. Name some on the command line.").arg(settings->path())
                    : tr("There is no settings file \"%1\". Name photographs on the command line to create it.")
                          .arg(settings->path()));
            return ExitUsage;
        }
        if (!QFileInfo(QFileInfo(settings->path()).absolutePath()).isWritable()) {
            ProgressView::complain(tr("The settings file \"%1\" can't be written: its folder is read-only or missing. Name a "
                                      "file in another folder.")
                                       .arg(settings->path()));
            return ExitUsage;
        }
    }

    const QStringList recorded = settings ? settings->photographs() : QStringList();
    const QSet<QString> results = BatchPlan::resultsAmong(photographs + recorded, photographs, application);
    leaveOut(results, photographs);

    BatchPlan::Options options;
    options.strength = line.strength;
    options.existing = line.overwrite ? Existing::Replace : Existing::Refuse;
    options.processName = process.name();
    options.settings = settings.get();
    const auto lacksStrength = [&](const QString &photograph) {
        return !settings || settings->element(QFileInfo(photograph).absoluteFilePath()).isNull();
    };
    if (!line.strength && std::any_of(photographs.begin(), photographs.end(), lacksStrength))
        options.defaultStrength = defaultStrength(process.guid());
    const std::vector<BatchItem> items = BatchPlan::make(photographs, application, options);
    for (const BatchItem &item : items) {
        if (settings && QFileInfo(item.result).absoluteFilePath() == settings->path()) {
            ProgressView::complain(
                tr("The settings file \"%1\" has the name of a result. Give it another name.").arg(settings->path()));
            return ExitUsage;
        }
        if (!item.note.isEmpty() && item.refusal.isEmpty())
            note(item.given + ": " + item.note);
    }

    const auto style = line.json               ? ProgressView::Style::Json
                       : line.quiet            ? ProgressView::Style::Quiet
                       : isatty(STDOUT_FILENO) ? ProgressView::Style::Bars
                                               : ProgressView::Style::Lines;
    ProgressView view(style, /*withNotes=*/!line.quiet, items);
    BatchRunner runner(application, process, view);
    {
        const StopOnSignal guard(runner);
        runner.run(items, line.jobs);
    }
    view.summarize();

    bool settingsKept = true;
    if (settings) {
        for (const QString &path : recorded)
            if (results.contains(path))
                settings->remove(path);
        for (std::size_t i = 0; i < items.size(); ++i) {
            const BatchItem &item = items[i];
            const auto strength = view.strength(i);
            if (item.recordable && !item.automatic)
                settings->setElement(item.path, item.settings);
            else if (item.recordable && strength)
                settings->setElement(item.path, SettingsFile::withStrength(process.name(), *strength, /*automatic=*/true));
            if (view.hasResult(i))
                settings->setResult(item.path, item.result, *strength, SettingsFile::isAutomatic(settings->element(item.path)));
        }
        try {
            settings->save();
        } catch (const VException &failure) {
            ProgressView::complain(failure.message);
            settingsKept = false;
        }
    }
    if (caughtSignal != 0)
        return ExitBySignal + caughtSignal;
    return view.allDone() && settingsKept ? ExitAllDone : ExitSomeFailed;
}
