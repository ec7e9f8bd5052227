#include "SaveQueue.h"

bool SaveQueue::Options::operator==(const Options &other) const
{
    return existing == other.existing && folder == other.folder && tag == other.tag && quality == other.quality;
}

SaveQueue::SaveQueue(HostApplication &host, VIPluginOne2One &process, int jobs, QObject *parent)
    : QObject(parent), application(host), one2one(process), runner(host, process, *this), jobCount(jobs)
{
}

SaveQueue::~SaveQueue() = default;

void SaveQueue::add(const QVector<Order> &, const Options &, const QStringList &) {}
void SaveQueue::retry(const QString &) {}
void SaveQueue::drop(const QString &) {}
void SaveQueue::pause() {}
void SaveQueue::resume() {}
void SaveQueue::stop() {}
void SaveQueue::quit() {}

bool SaveQueue::isActive() const
{
    return false;
}

QVector<SaveQueue::Order> SaveQueue::unfinished() const
{
    return {};
}

SaveQueue::Progress SaveQueue::progress() const
{
    return {};
}

QString SaveQueue::textOf(const BatchOutcome &outcome)
{
    return outcome.message;
}

void SaveQueue::stageBegins(int, BatchRunner::Stage) {}
void SaveQueue::finished(int, const BatchOutcome &) {}
