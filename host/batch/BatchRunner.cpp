#include "BatchRunner.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>
#include <memory>
#include <new>
#include <optional>
#include <thread>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QThread>

#include "BatchPlan.h"
#include "FileThreadLimit.h"
#include "PrivateRun.h"
#include "VException.h"
#include "WantedStrength.h"
#include "inWindow.h"
#include "kernel32.h"
#include "threadCount.h"
#include "whyUnchanged.h"

namespace {

/// Ends a run from inside the plug-in; BatchRunner::stopping distinguishes this from a failure.
[[noreturn]] void endRun()
{
    throw VException(QStringLiteral("Stopped"), V_LOCATION);
}

bool exists(const QString &file)
{
    return QFileInfo::exists(file) || QFileInfo(file).isSymLink();
}

/// The folders that the results need and that don't exist yet, each before those inside it.
QStringList missingFolders(const std::vector<BatchItem> &items)
{
    QStringList missing;
    for (const BatchItem &item : items) {
        QStringList chain;
        for (QString folder = QFileInfo(item.result).absolutePath();
             !item.result.isEmpty() && !missing.contains(folder) && !QFileInfo::exists(folder);
             folder = QFileInfo(folder).absolutePath())
            chain.prepend(folder);
        missing += chain;
    }
    return missing;
}

constexpr QChar kIdeographicStop(0x3002); ///< The full stop of Chinese and Japanese.

/// Several at a time keep the cores busy while one of them decodes or encodes; more than this only cost memory.
constexpr int kMostJobs = 8;

} // namespace

BatchRunner::BatchRunner(HostApplication &host, VIPluginOne2One &process, Observer &observer)
    : application(host), one2one(process), watcher(observer)
{
}

void BatchRunner::run(const std::vector<BatchItem> &items, int jobs)
{
    next = 0;
    running = 0;
    PrivateRun::removeAbandoned(items);
    const QStringList created = missingFolders(items);
    memoryLeft = jobs > 0 ? std::numeric_limits<qint64>::max() : qint64(GetAvailableMemory() / 4 * 3);
    if (jobs <= 0)
        jobs = std::min(QThread::idealThreadCount(), kMostJobs);
    std::vector<std::thread> team;
    const int size = int(std::min(std::max(items.size(), std::size_t(1)), std::size_t(std::max(jobs, 1))));
    workers = size;
    try {
        while (int(team.size()) + 1 < size)
            team.emplace_back([&] { work(items); });
    } catch (const std::exception &) { // no more threads available: those started so far do the work
        workers -= size - int(team.size()) - 1;
    }
    work(items);
    for (std::thread &member : team)
        member.join();
    for (int i = created.size(); i-- > 0;)
        QDir().rmdir(created[i]); // only if it is empty
}

void BatchRunner::work(const std::vector<BatchItem> &items)
{
    for (std::size_t index; (index = next++) < items.size();) {
        const FileThreadLimit limit(threadCount / workers); // several photographs at a time share the cores
        QElapsedTimer timer;
        timer.start();
        BatchOutcome outcome = process(items[index], int(index));
        outcome.seconds = double(timer.nsecsElapsed()) / 1e9;
        if (!items[index].automatic)
            outcome.strength = items[index].strength;
        const std::lock_guard lock(reportMutex);
        watcher.finished(int(index), outcome);
    }
    --workers;
}

namespace {

/// The outcome of an item that is not begun, because of what the plan says.
std::optional<BatchOutcome> plannedOutcome(const BatchItem &item)
{
    BatchOutcome outcome;
    if (item.skipped.isEmpty() && item.refusal.isEmpty())
        return std::nullopt;
    outcome.status = item.skipped.isEmpty() ? BatchOutcome::Status::Failed : BatchOutcome::Status::Skipped;
    outcome.message = item.skipped.isEmpty() ? item.refusal : item.skipped;
    outcome.reason = item.reason;
    return outcome;
}

bool isUntouched(const BatchItem &item)
{
    return !item.automatic && item.strength == 0;
}

/// True if the engine would return the photograph unchanged because of its width. Throws VException if it is too high as well.
bool isWide(const PhotoHead &facts, bool untouched)
{
    const bool wide = !untouched && facts.width >= BatchRunner::kRefusedWidth;
    if (wide && facts.height >= BatchRunner::kRefusedWidth)
        throw VException(Photograph::tooLarge(BatchRunner::kRefusedWidth), V_LOCATION);
    return wide;
}

} // namespace

std::optional<BatchOutcome> BatchRunner::foresee(const BatchItem &item, Forecast &forecast)
{
    if (const auto planned = plannedOutcome(item))
        return planned;
    try {
        forecast.head = application.photograph(item.path)->facts();
        forecast.memoryBytes = memoryFor(forecast.head, isUntouched(item));
        [[maybe_unused]] const bool wide = isWide(forecast.head, isUntouched(item));
        PrivateRun::checkDepth(item, forecast.head.bits);
        return std::nullopt;
    } catch (const VException &failure) {
        BatchOutcome outcome;
        outcome.message = failure.message;
        return outcome;
    }
}

BatchOutcome BatchRunner::process(const BatchItem &item, int index)
{
    BatchOutcome outcome;
    std::optional<Stage> stage;
    const auto stopped = [&] {
        outcome.status = BatchOutcome::Status::Stopped;
        outcome.reason = stage ? BatchOutcome::Reason::Other : BatchOutcome::Reason::NotBegun;
        outcome.message = tr("Stopped; no result was written.");
        return outcome;
    };
    if (stopping || !watcher.mayBegin(index) || stopping)
        return stopped();
    if (const auto planned = plannedOutcome(item))
        return *planned;
    bool outOfMemory = false;
    try {
        attempt(item, index, stage, outcome);
        outcome.status = outcome.unchanged.isEmpty() ? BatchOutcome::Status::Done : BatchOutcome::Status::Unchanged;
        return outcome;
    } catch (const VException &failure) {
        outcome.message = failure.message.isEmpty() ? tr("The plug-in failed at %1").arg(failure.location) : failure.message;
    } catch (const std::bad_alloc &) {
        outOfMemory = true;
        outcome.message = tr("There is not enough memory.");
    } catch (const std::exception &failure) {
        outcome.message = QString::fromLocal8Bit(failure.what());
    }
    if (stopping)
        return stopped();
    if (outcome.reason == BatchOutcome::Reason::ResultExists) {
        if (item.existing == Existing::Skip) {
            outcome.status = BatchOutcome::Status::Skipped;
            outcome.message = BatchPlan::skippedText(item.result);
        }
        return outcome;
    }
    // The plug-in reads the photograph once more when it saves; a message that names it means that this failed.
    if (stage == Stage::Saving && outcome.message.contains('"' + item.path + '"')) {
        outcome.message =
            tr("The photograph was changed, moved or deleted while its haze was being removed. Put it back and try again.");
        return outcome;
    }
    outcome.message = outcome.message.trimmed().replace('\n', ", ");
    if (!outcome.message.endsWith('.') && !outcome.message.endsWith(kIdeographicStop))
        outcome.message += '.';
    if (outOfMemory || stage == Stage::Dehazing)
        outcome.message += ' ' + (inWindow() ? tr("Close other programs and try again.")
                                             : tr("Close other programs, or work on one photograph at a time (--jobs 1)."));
    else if (stage == Stage::Saving) {
        const QString temporary = QDir::tempPath(); // where the file system of the result has no links
        outcome.message +=
            ' ' + tr("Make room in the folder \"%1\", and check that you can write to it.")
                      .arg(outcome.message.contains('"' + temporary + '"') ? temporary : QFileInfo(item.result).absolutePath());
    }
    return outcome;
}

void BatchRunner::attempt(const BatchItem &item, int index, std::optional<Stage> &stage, BatchOutcome &outcome)
{
    const PhotoHead facts = application.photograph(item.path)->facts();
    const bool untouched = isUntouched(item), wide = isWide(facts, untouched);
    PrivateRun::checkDepth(item, facts.bits);
    const int limit = untouched ? 0 : kRefusedWidth;

    PrivateRun run(application, item, /*rowsForColumns=*/wide);
    Photograph &photograph = run.photograph();

    const qint64 bytes = memoryFor(photograph.facts(), untouched);
    reserve(bytes);
    VISettingsHandle settings = nullptr;
    const auto finish = [&](void *) {
        one2one.destroySettings(settings);
        photograph.watch({});
        photograph.dropFull();
        giveBack(bytes);
    };
    const std::unique_ptr<void, decltype(finish)> end(this, finish);

    const auto resultExists = [&] {
        outcome.reason = BatchOutcome::Reason::ResultExists;
        throw VException(BatchPlan::existsText(item.result), V_LOCATION);
    };
    photograph.refuseFrom(limit);
    photograph.watch([&](Photograph::Use use) {
        if (stopping)
            endRun();
        if (use == Photograph::Use::Read)
            PrivateRun::checkDepth(item, photograph.bitsPerChannel());
        if (use == Photograph::Use::Released && !item.replaces() && exists(item.result))
            resultExists();
        stage = use == Photograph::Use::Reading ? Stage::Reading : use == Photograph::Use::Read ? Stage::Dehazing : Stage::Saving;
        const std::lock_guard lock(reportMutex);
        watcher.stageBegins(index, *stage);
    });
    if (item.automatic) {
        photograph.decodeAhead();
        outcome.strength = photograph.automaticStrength().value_or(WantedStrength::kUsual);
    }
    {
        const std::lock_guard lock(reportMutex); // two elements may belong to one document
        settings = one2one.createSettings(item.automatic ? SettingsFile::withStrength(one2one.name(), *outcome.strength)
                                                         : item.settings);
    }
    run.run(one2one, settings);
    outcome.unchanged = whyUnchanged(one2one, settings);
    QStringList lacks;
    if (facts.furtherPictures)
        lacks << tr("The file also holds a gain map or further pictures, which don't fit the result and are left out.");
    if (const QString reason = run.carryXmp(); !reason.isEmpty())
        lacks << tr("The result was written, but the photograph's XMP could not be copied into it: %1.").arg(reason);
    if (const QString reason = run.bringHome(); !reason.isEmpty())
        lacks << tr("The result was written, but could not be given the photograph's time of modification: %1.").arg(reason);
    outcome.message = lacks.join(' ');
    if (!run.publish())
        resultExists();
}

qint64 BatchRunner::memoryFor(const PhotoHead &facts, bool untouched)
{
    // The source and the working image of 16 bytes per pixel exist throughout. Added to them is first the sparse system, whose
    // size is the same for every photograph, and at the end the haze map of 4 bytes per pixel, with the guide and the map of the
    // last level that is held: the copy of 100,000 pixels, doubled as long as it stays narrower than half the photograph.
    // Measured for a whole process: 161 MB for the system, and 48 to 65 MB beside the map and that level. Transposing a picture
    // takes two copies of it, or 12 bytes per pixel of coefficients, which is less than all that.
    constexpr int kWorkingBytes = 16, kMapBytes = 4;
    constexpr qint64 kSystem = qint64(160) << 20, kOther = qint64(64) << 20;
    const qint64 pixels = qint64(facts.width) * facts.height;
    const qint64 images = pixels * (facts.bytesPerPixel + kWorkingBytes);
    if (untouched || pixels == 0)
        return images;
    qint64 level = std::max(1, int(std::sqrt(100000.0 * facts.width / facts.height)));
    while (level * 4 < facts.width)
        level *= 2;
    const qint64 levelPixels = level * level * facts.height / facts.width;
    return images + std::max(kSystem, pixels * kMapBytes + levelPixels * (kWorkingBytes + kMapBytes) + kOther);
}

void BatchRunner::reserve(qint64 bytes)
{
    std::unique_lock lock(memoryMutex);
    memoryFreed.wait(lock, [&] { return running == 0 || memoryLeft >= bytes; });
    if (running == 0)
        memoryForOne = qint64(GetAvailableMemory());
    if (bytes > memoryForOne) {
        const QLocale locale = application.locale();
        const auto size = [&](qint64 count) { return locale.formattedDataSize(count, 1, QLocale::DataSizeSIFormat); };
        throw VException(
            tr("It needs about %1 of memory, but only %2 is free. Close other programs, or scale the photograph down.")
                .arg(size(bytes), size(memoryForOne)),
            V_LOCATION);
    }
    ++running;
    memoryLeft -= bytes;
}

void BatchRunner::giveBack(qint64 bytes)
{
    {
        const std::lock_guard lock(memoryMutex);
        --running;
        memoryLeft += bytes;
    }
    memoryFreed.notify_all();
}
