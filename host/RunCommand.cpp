#include "RunCommand.h"

#include <algorithm>
#include <atomic>
#include <csignal>

#include <QFileInfo>
#include <QMimeDatabase>
#include <unistd.h>

#include "DefaultStrength.h"
#include "PhotographList.h"
#include "VException.h"
#include "argumentText.h"
#include "notifyDesktop.h"

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

int RunCommand::run()
{
    try {
        loadPlugin();
        openSettings();
        listPhotographs();
        chooseOutput();
        leaveOutResults();
        makePlan();
    } catch (const Ending &ending) {
        if (!ending.complaint.isEmpty())
            ProgressView::complain(ending.complaint);
        notify(ending.complaint);
        return ending.code;
    }
    const auto style = line.json                                 ? ProgressView::Style::Json
                       : line.quiet                              ? ProgressView::Style::Quiet
                       : ProgressView::isTerminal(STDOUT_FILENO) ? ProgressView::Style::Terminal
                                                                 : ProgressView::Style::Lines;
    ProgressView view(style, /*withNotes=*/!line.quiet, items);
    return line.dryRun ? showPlan(view) : work(view);
}

void RunCommand::note(const QString &text) const
{
    if (!line.quiet)
        ProgressView::note(text);
}

void RunCommand::notify(const QString &text) const
{
    if (line.notify && !text.isEmpty() && !notifyDesktop(tr("Remove haze"), text.trimmed()))
        note(tr("There is no desktop that shows notifications."));
}

void RunCommand::loadPlugin()
{
    try {
        plugin = std::make_unique<PluginFile>(line.pluginFile);
    } catch (const VException &failure) {
        throw Ending{ExitSomeFailed, failure.message};
    }
    // The texts of the layers below the plug-in, whose catalogues are in its resources.
    for (const char *set : {"VImage", "VTools"})
        application.loadTranslator(QStringLiteral("%1_%2.qm").arg(QLatin1String(set), application.locale().name()));
}

void RunCommand::openSettings()
{
    if (line.settingsFile.isEmpty())
        return;
    settings = std::make_unique<SettingsFile>(line.settingsFile, plugin->process().name());
    try {
        settings->load();
    } catch (const VException &failure) {
        throw Ending{ExitUsage, failure.message};
    }
    recorded = settings->photographs();
    if (recorded.isEmpty() && line.photographs.isEmpty())
        throw Ending{
            ExitUsage,
            settings->exists()
                ? tr("The settings file \"%1\" names no photographs. Name some on the command line.").arg(settings->path())
                : tr("There is no settings file \"%1\". Name photographs on the command line to create it.")
                      .arg(settings->path())};
    if (!QFileInfo(QFileInfo(settings->path()).absolutePath()).isWritable())
        throw Ending{ExitUsage,
                     tr("The settings file \"%1\" can't be written: its folder is read-only or missing. Name a file in another "
                        "folder.")
                         .arg(settings->path())};
}

void RunCommand::listPhotographs()
{
    photographs = recorded;
    if (line.photographs.isEmpty())
        return;
    try {
        const PhotographList list(line.photographs, {line.literal, line.recursive, line.nullSeparated});
        photographs = list.photographs();
        options.below = list.below();
    } catch (const VException &failure) {
        throw Ending{ExitUsage, failure.message};
    }
    if (photographs.isEmpty()) {
        note(tr("The list names no photographs: there is nothing to do."));
        throw Ending{ExitAllDone, QString()};
    }
}

void RunCommand::chooseOutput()
{
    options.output = line.output;
    options.tag = line.tag;
    const QFileInfo output(line.output);
    if (line.output.isEmpty() || line.output.endsWith('/') || output.isDir())
        return;
    options.outputIsFile = PhotoLoader::canWrite(output.suffix().toLower());
    if (!options.outputIsFile) {
        if (output.exists())
            throw Ending{ExitUsage, tr("--output: \"%1\" exists and is not a folder. Name another one.").arg(line.output)};
        if (QMimeDatabase().mimeTypeForFile(line.output, QMimeDatabase::MatchExtension).name().startsWith("image/"))
            throw Ending{ExitUsage, tr("--output: results can't be written as \"%1\". Choose a name that ends in one of %2.")
                                        .arg(output.suffix(), PhotoLoader::pictureSuffixes().join(", "))};
        return;
    }
    QStringList different = photographs;
    different.removeDuplicates();
    if (different.size() > 1)
        throw Ending{ExitUsage, tr("--output names the file \"%1\", but there are %2 photographs. Name a folder, such as \"%3\".")
                                    .arg(line.output)
                                    .arg(different.size())
                                    .arg(output.path() == "." ? QStringLiteral("dehazed/") : output.path() + '/')};
    if (line.tag)
        throw Ending{ExitUsage, tr("--tag is for results that get their names from their photographs: leave it out, or name a "
                                   "folder as --output.")};
}

void RunCommand::leaveOutResults()
{
    options.settings = settings.get();
    results = BatchPlan::resultsAmong(photographs + recorded, photographs, application, options);
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

WantedStrength RunCommand::defaultStrength(const QString &group)
{
    const auto stored = DefaultStrength(application, group).stored();
    note(!stored             ? tr("No --strength given and no default stored: using %1.").arg(WantedStrength::kUsual)
         : stored->automatic ? tr("No --strength given: using your stored default, the automatic strength.")
                             : tr("No --strength given: using your stored default of %1.").arg(stored->percent));
    return stored.value_or(WantedStrength{WantedStrength::kUsual, /*automatic=*/false});
}

void RunCommand::makePlan()
{
    options.strength = line.strength;
    options.existing = line.existing;
    options.keepTime = line.keepTime;
    options.packing = line.packing;
    options.recursive = line.recursive;
    options.processName = plugin->process().name();
    const auto lacksStrength = [&](const QString &photograph) {
        return !settings || settings->element(QFileInfo(photograph).absoluteFilePath()).isNull();
    };
    if (!line.strength && std::any_of(photographs.begin(), photographs.end(), lacksStrength))
        options.defaultStrength = defaultStrength(plugin->process().guid());
    items = BatchPlan::make(photographs, application, options);
    for (const BatchItem &item : items) {
        if (settings && QFileInfo(item.result).absoluteFilePath() == settings->path())
            throw Ending{ExitUsage,
                         tr("The settings file \"%1\" has the name of a result. Give it another name.").arg(settings->path())};
        if (!item.note.isEmpty() && item.refusal.isEmpty() && item.skipped.isEmpty())
            note(item.given + ": " + item.note);
    }
}

int RunCommand::showPlan(ProgressView &view)
{
    BatchRunner runner(application, plugin->process(), view);
    for (std::size_t i = 0; i < items.size(); ++i) {
        BatchRunner::Forecast forecast;
        if (auto outcome = runner.foresee(items[i], forecast)) {
            if (!items[i].automatic)
                outcome->strength = items[i].strength;
            view.finished(int(i), *outcome);
        } else {
            view.planned(int(i), forecast);
        }
    }
    view.summarize();
    return view.allDone() ? ExitAllDone : ExitSomeFailed;
}

int RunCommand::work(ProgressView &view)
{
    BatchRunner runner(application, plugin->process(), view);
    {
        const StopOnSignal guard(runner);
        runner.run(items, line.jobs);
    }
    view.summarize();
    notify(view.summary() + '\n' + view.firstFailure());
    const bool settingsKept = keepSettings(view);
    if (caughtSignal != 0)
        return ExitBySignal + caughtSignal;
    return view.allDone() && settingsKept ? ExitAllDone : ExitSomeFailed;
}

bool RunCommand::keepSettings(const ProgressView &view)
{
    if (!settings)
        return true;
    try { // what the user or another run has written meanwhile is not to be lost
        settings->load();
    } catch (const VException &failure) {
        ProgressView::complain(failure.message);
        return false;
    }
    for (const QString &path : qAsConst(recorded))
        if (results.contains(path))
            settings->remove(path);
    const QString name = plugin->process().name();
    for (std::size_t i = 0; i < items.size(); ++i) {
        const BatchItem &item = items[i];
        const auto strength = view.strength(i);
        // A strength that comes from the file is not written back: it may have been changed there meanwhile, for the next run.
        if (item.recordable && !item.automatic && (line.strength || settings->element(item.path).isNull()))
            settings->setElement(item.path, item.settings);
        if (item.recordable && item.automatic && strength)
            settings->setElement(item.path, SettingsFile::withStrength(name, *strength, /*automatic=*/true));
        if (view.hasResult(i))
            settings->setResult(item.path, item.result, *strength, item.automatic || SettingsFile::isAutomatic(item.settings));
    }
    try {
        settings->save();
        return true;
    } catch (const VException &failure) {
        ProgressView::complain(failure.message);
        return false;
    }
}
