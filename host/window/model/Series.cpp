#include "Series.h"

struct Series::Photo
{
};

Series::Series(HostApplication &host, const QString &processGroup, int, QObject *parent)
    : QAbstractListModel(parent), application(host), group(processGroup)
{
}

Series::~Series() = default;

int Series::rowCount(const QModelIndex &) const
{
    return 0;
}
QVariant Series::data(const QModelIndex &, int) const
{
    return {};
}
QHash<int, QByteArray> Series::roleNames() const
{
    return {};
}
Series::Added Series::add(const QStringList &)
{
    return {};
}
void Series::restore(const std::vector<Record> &) {}
void Series::clear() {}
QStringList Series::paths() const
{
    return {};
}
QString Series::path(int) const
{
    return {};
}
int Series::rowOf(const QString &) const
{
    return -1;
}
WantedStrength Series::strength(int) const
{
    return {};
}
std::optional<int> Series::percent(int) const
{
    return {};
}
Series::State Series::state(int) const
{
    return {};
}
Series::Facts Series::facts(int) const
{
    return {};
}
Series::Record Series::record(int) const
{
    return {};
}
std::vector<Series::Record> Series::records() const
{
    return {};
}
void Series::setStrength(const QList<int> &, const WantedStrength &) {}
void Series::setAutomatic(const QList<int> &) {}
void Series::reset(const QList<int> &) {}
void Series::remove(const QList<int> &) {}
void Series::beginDrag() {}
void Series::endDrag() {}
void Series::nudge(const QList<int> &, int) {}
WantedStrength Series::defaultStrength() const
{
    return {};
}
void Series::useAsDefault(const WantedStrength &) {}
void Series::knowAutomatic(const QString &, int) {}
void Series::setSaveOptions(const SaveQueue::Options &) {}
void Series::follow(SaveQueue &) {}
void Series::save(const QList<int> &) {}
void Series::saveAll() {}
void Series::retry(int) {}
int Series::unsavedCount() const
{
    return 0;
}
int Series::unreadCount() const
{
    return 0;
}
