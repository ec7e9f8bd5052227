#include "SaveQueue.h"

#include <algorithm>
#include <cmath>

#include <QFileInfo>

#include "VException.h"

namespace {

/// What a photograph costs besides its pixels: the stages on the reduced copy take as long as the others on this many.
constexpr double kFixedWeight = 6e6;

// How much of a photograph's time has passed when a stage begins; the engine takes most of it.
constexpr double kStageStart[] = {0, 0.15, 0.85};

/// How long pictures on the screen come first after the last was asked for, and how long a stage waits for them at most.
constexpr std::chrono::milliseconds kQuiet(400), kMostPatience(8000);

BatchOutcome notBegun()
{
    BatchOutcome outcome;
    outcome.status = BatchOutcome::Status::Stopped;
    outcome.reason = BatchOutcome::Reason::NotBegun;
    return outcome;
}

} // namespace

bool SaveQueue::Options::operator==(const Options &other) const
{
    return existing == other.existing && folder == other.folder && tag == other.tag && quality == other.quality;
}

SaveQueue::SaveQueue(HostApplication &host, VIPluginOne2One &process, int jobs, QObject *parent)
    : QObject(parent), application(host), runner(host, process, *this), processName(process.name()), jobCount(jobs)
{
}

SaveQueue::~SaveQueue()
{
    quit();
}

BatchPlan::Options SaveQueue::planOptions(const Options &options)
{
    BatchPlan::Options plan;
    plan.existing = options.existing == Policy::KeepBoth ? Existing::Number
                    : options.existing == Policy::Skip   ? Existing::Skip
                                                         : Existing::Replace;
    plan.output = options.folder;
    plan.tag = options.tag;
    plan.packing.jpegQuality = options.quality;
    return plan;
}

QString SaveQueue::textOf(const BatchOutcome &outcome)
{
    if (outcome.status == BatchOutcome::Status::Skipped || outcome.reason == BatchOutcome::Reason::ResultExists)
        return tr("Its result already existed and was kept.");
    return outcome.unchanged.isEmpty() ? outcome.message : (outcome.unchanged + ' ' + outcome.message).trimmed();
}

void SaveQueue::add(const QVector<Order> &orders, const Options &next, const QStringList &series)
{
    if (quitting)
        return;
    everything = series;
    for (const Order &order : orders) {
        Job job;
        job.order = order;
        job.options = next;
        const auto waits =
            std::find_if(line.begin(), line.end(), [&](const Job &other) { return other.order.path == order.path; });
        if (waits != line.end()) {
            *waits = job;
        } else {
            withdraw(order.path);
            line.push_back(job);
        }
        Q_EMIT photoWaits(order.path);
    }
    if (!isActive() && !line.empty())
        beginRound();
    Q_EMIT progressChanged();
}

bool SaveQueue::withdraw(const QString &path)
{
    const std::lock_guard lock(mutex);
    for (Job &job : round)
        if (job.order.path == path && !job.begun && !job.withdrawn) {
            job.withdrawn = true;
            return true;
        }
    return false;
}

void SaveQueue::drop(const QString &path)
{
    const auto waits = std::find_if(line.begin(), line.end(), [&](const Job &job) { return job.order.path == path; });
    if (waits != line.end())
        line.erase(waits);
    else if (!withdraw(path))
        return;
    Q_EMIT photoEnded(path, notBegun(), QString());
    Q_EMIT progressChanged();
}

bool SaveQueue::isWaiting(const QString &path) const
{
    return std::any_of(line.begin(), line.end(), [&](const Job &job) { return job.order.path == path; });
}

bool SaveQueue::isPaused() const
{
    const std::lock_guard lock(mutex);
    return paused;
}

void SaveQueue::setPaused(bool next)
{
    {
        const std::lock_guard lock(mutex);
        if (paused == next)
            return;
        paused = next;
    }
    woken.notify_all();
    timeWork();
    Q_EMIT progressChanged();
}

void SaveQueue::timeWork()
{
    if (stretch.isValid())
        doneSeconds += double(stretch.nsecsElapsed()) / 1e9;
    stretch.invalidate();
    if (isActive() && !isPaused())
        stretch.start();
}

void SaveQueue::beginRound()
{
    const Options options = line.front().options;
    const auto end = std::find_if(line.begin(), line.end(), [&](const Job &job) { return !(job.options == options); });
    std::vector<Order> orders;
    {
        const std::lock_guard lock(mutex);
        round.assign(std::make_move_iterator(line.begin()), std::make_move_iterator(end));
        for (const Job &job : round)
            orders.push_back(job.order);
        stopping = false;
    }
    line.erase(line.begin(), end);
    runner.resume();
    worker = std::thread([this, orders, options, series = everything] {
        runner.run(plan(orders, options, series), jobCount);
        QMetaObject::invokeMethod(this, &SaveQueue::endRound, Qt::QueuedConnection);
    });
    timeWork();
}

std::vector<BatchItem> SaveQueue::plan(const std::vector<Order> &orders, const Options &options, const QStringList &series)
{
    const BatchPlan::Options rules = planOptions(options);
    // All photographs of the series, so that no result takes the place of another one's.
    QHash<QString, BatchItem> planned;
    for (BatchItem &item : BatchPlan::make(series, application, rules))
        planned.insert(item.given, item);
    std::vector<BatchItem> items;
    std::vector<double> weights;
    for (const Order &order : orders) {
        const auto found = planned.constFind(order.path);
        // One that is listed under two names is planned under the first.
        BatchItem item = found != planned.constEnd() ? *found : BatchPlan::make({order.path}, application, rules).front();
        item.automatic = order.strength.automatic;
        item.strength = order.strength.percent;
        if (!item.automatic)
            item.settings = SettingsFile::withStrength(processName, item.strength);
        const QFileInfo result(item.result);
        if (options.existing == Policy::ReplaceChanged && !order.currentResult.isEmpty() &&
            result.absoluteFilePath() == QFileInfo(order.currentResult).absoluteFilePath() && result.isFile() &&
            result.lastModified() >= QFileInfo(item.path).lastModified())
            item.skipped = BatchPlan::skippedText(item.result);
        double pixels = 0;
        if (item.refusal.isEmpty() && item.skipped.isEmpty()) {
            try {
                const PhotoHead head = application.photograph(item.path)->facts();
                pixels = double(head.width) * head.height;
            } catch (const VException &) { // its run reports it
            }
        }
        weights.push_back(pixels > 0 ? pixels + kFixedWeight : 1);
        items.push_back(std::move(item));
    }
    const std::lock_guard lock(mutex);
    for (std::size_t i = 0; i < items.size(); ++i) {
        round[i].result = items[i].result;
        round[i].weight = weights[i];
    }
    return items;
}

bool SaveQueue::mayBegin(int item)
{
    std::unique_lock lock(mutex);
    waitForQuiet(lock);
    woken.wait(lock, [&] { return !paused || stopping; });
    Job &job = round[std::size_t(item)];
    job.begun = !stopping && !job.withdrawn;
    return job.begun;
}

void SaveQueue::giveWay()
{
    const std::lock_guard lock(mutex);
    quietUntil = std::chrono::steady_clock::now() + kQuiet;
}

void SaveQueue::waitForQuiet(std::unique_lock<std::mutex> &lock)
{
    const auto end = std::chrono::steady_clock::now() + kMostPatience;
    while (!stopping && std::chrono::steady_clock::now() < std::min(quietUntil, end))
        woken.wait_until(lock, std::min(quietUntil, end));
}

void SaveQueue::stageBegins(int item, BatchRunner::Stage stage)
{
    post({std::size_t(item), stage, {}});
    std::unique_lock lock(mutex);
    waitForQuiet(lock);
}

void SaveQueue::finished(int item, const BatchOutcome &outcome)
{
    post({std::size_t(item), {}, outcome});
}

void SaveQueue::post(News fresh)
{
    const std::lock_guard lock(mutex);
    news.push_back(std::move(fresh));
    if (news.size() == 1)
        QMetaObject::invokeMethod(this, &SaveQueue::takeNews, Qt::QueuedConnection);
}

void SaveQueue::takeNews()
{
    std::vector<News> taken;
    std::vector<Job> jobs; // as they are after each
    {
        const std::lock_guard lock(mutex);
        taken.swap(news);
        for (const News &fresh : taken) {
            Job &job = round[fresh.job];
            job.ended |= !fresh.stage;
            job.share = fresh.stage ? kStageStart[int(*fresh.stage)] : 1;
            jobs.push_back(job);
        }
    }
    for (std::size_t i = 0; i < taken.size(); ++i)
        if (taken[i].stage)
            Q_EMIT photoBegins(jobs[i].order.path, int(*taken[i].stage));
        else if (!jobs[i].withdrawn)
            end(jobs[i], taken[i].outcome);
    Q_EMIT progressChanged();
}

void SaveQueue::end(const Job &job, const BatchOutcome &outcome)
{
    using Status = BatchOutcome::Status;
    const bool stopped = outcome.status == Status::Stopped;
    if (stopped && quitting)
        return;
    const bool kept = outcome.status == Status::Skipped || outcome.reason == BatchOutcome::Reason::ResultExists;
    ++endedCount;
    endedWeight += job.weight;
    savedWeight += outcome.hasResult() ? job.weight : 0;
    summary.saved += outcome.hasResult();
    summary.unchanged += outcome.status == Status::Unchanged;
    summary.kept += kept;
    summary.stopped += stopped;
    summary.failed += outcome.status == Status::Failed && !kept;
    Q_EMIT photoEnded(job.order.path, outcome, job.result);
    if (isWaiting(job.order.path))
        Q_EMIT photoWaits(job.order.path);
}

void SaveQueue::endRound()
{
    if (!worker.joinable()) // quit() was faster
        return;
    worker.join();
    takeNews();
    {
        const std::lock_guard lock(mutex);
        round.clear();
    }
    if (!line.empty()) {
        beginRound();
        return;
    }
    timeWork();
    Summary last = summary;
    last.seconds = doneSeconds;
    summary = {};
    endedCount = 0;
    endedWeight = savedWeight = doneSeconds = 0;
    Q_EMIT progressChanged();
    Q_EMIT ended(last);
}

void SaveQueue::stop()
{
    {
        const std::lock_guard lock(mutex);
        stopping = true;
        paused = false;
    }
    runner.stop();
    woken.notify_all();
    std::vector<Job> dropped;
    dropped.swap(line);
    for (const Job &job : dropped)
        end(job, notBegun());
    Q_EMIT progressChanged();
}

void SaveQueue::quit()
{
    quitting = true;
    line.clear();
    {
        const std::lock_guard lock(mutex);
        stopping = true;
    }
    runner.stop();
    woken.notify_all();
    if (!worker.joinable())
        return;
    worker.join();
    takeNews();
    const std::lock_guard lock(mutex);
    round.clear();
}

SaveQueue::Progress SaveQueue::progress() const
{
    const std::lock_guard lock(mutex);
    double known = endedWeight, inWork = 0;
    int open = 0;
    for (const Job &job : round)
        if (!job.withdrawn && !job.ended) {
            ++open;
            known += job.weight;
            inWork += job.share * job.weight;
        }
    Progress progress;
    progress.done = endedCount;
    progress.total = endedCount + open + int(line.size());
    const int knownCount = endedCount + open;
    const double all = known * progress.total / std::max(knownCount, 1), done = endedWeight + inWork;
    progress.fraction = all > 0 ? std::min(done / all, 1.0) : 0;
    const double seconds = doneSeconds + (stretch.isValid() ? double(stretch.nsecsElapsed()) / 1e9 : 0);
    if (savedWeight > 0 && !paused)
        progress.secondsLeft = int(std::ceil((all - done) * seconds / (savedWeight + inWork)));
    return progress;
}
