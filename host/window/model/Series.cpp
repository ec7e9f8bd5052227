#include "Series.h"

#include <algorithm>
#include <utility>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "BatchPlan.h"
#include "DefaultStrength.h"
#include "PhotographList.h"
#include "argumentText.h"
#include "photographText.h"

namespace {

constexpr int kBatchRows = 100;           ///< As many rows are inserted before the window gets its turn.
constexpr qint64 kQuickSuccession = 1000; ///< In milliseconds, between two changes by key that are one step.

bool same(const WantedStrength &one, const WantedStrength &other)
{
    return one.automatic == other.automatic && (one.automatic || one.percent == other.percent);
}

/// The photographs that these paths stand for, each once; folders without any go to `empty`.
QStringList filesOf(const QStringList &paths, QStringList &empty)
{
    QStringList arguments, files;
    for (const QString &path : paths)
        arguments << argumentText(QFile::encodeName(QDir::cleanPath(QFileInfo(path).absoluteFilePath())));
    const PhotographList list(arguments, {});
    for (const QString &name : list.photographs())
        if (const QString path = QString::fromUtf8(argumentBytes(name)); QFileInfo(path).isDir())
            empty << path;
        else
            files << path;
    files.removeDuplicates();
    return files;
}

QString kindName(const PhotoHead &head, const QString &path)
{
    if (head.raw)
        return Series::tr("Camera raw");
    switch (head.kind) {
    case PhotoKind::Jpeg:
        return QStringLiteral("JPEG");
    case PhotoKind::Png:
        return QStringLiteral("PNG");
    case PhotoKind::Tiff:
        return QStringLiteral("TIFF");
    case PhotoKind::Radiance:
        return QStringLiteral("Radiance HDR");
    case PhotoKind::OpenExr:
        return QStringLiteral("OpenEXR");
    case PhotoKind::Photoshop:
        return QStringLiteral("Photoshop");
    default:
        return QFileInfo(path).suffix().toUpper();
    }
}

} // namespace

struct Series::Photo
{
    enum class Work { None, Waiting, InWork };
    enum class Failure { None, Reading, Saving };

    QString path;
    WantedStrength strength;
    WantedStrength start;
    WantedStrength ordered;            ///< When it was last given to the queue,
    std::optional<int> orderedQuality; ///< and the quality then.
    std::optional<int> automatic;
    std::optional<int> resultStrength;
    std::optional<int> resultQuality;
    QString result;
    Work work = Work::None;
    Failure failure = Failure::None;
    bool kept = false;
    QString reason;
    Facts facts;
    QImage thumbnail;
    bool read = false; ///< Or failed to be.
};

/// Gives photographs other strengths.
class Series::StrengthCommand : public QUndoCommand
{
public:
    StrengthCommand(Series &owner, Photos changed, std::vector<WantedStrength> strengths, Merging how)
        : series(owner), photos(std::move(changed)), after(std::move(strengths)), merging(how), drag(owner.dragSerial),
          when(owner.clock.elapsed())
    {
        for (const auto &photo : photos)
            before.push_back(photo->strength);
    }

    void redo() override
    {
        give(after);
        if (std::exchange(isDone, true))
            series.tellStep(photos);
    }
    void undo() override
    {
        give(before);
        series.tellStep(photos);
    }
    int id() const override { return merging == Merging::None ? -1 : int(merging); }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto &next = *static_cast<const StrengthCommand *>(other); // the ids are equal
        const bool oneStep = merging == Merging::Drag ? next.drag == drag : next.when - when < kQuickSuccession;
        if (!oneStep || next.photos != photos)
            return false;
        after = next.after;
        when = next.when;
        setObsolete(std::equal(before.begin(), before.end(), after.begin(), same));
        return true;
    }

private:
    void give(const std::vector<WantedStrength> &strengths)
    {
        for (std::size_t i = 0; i < photos.size(); ++i) {
            photos[i]->strength = strengths[i];
            photos[i]->kept = false;
        }
        series.show(photos);
        Q_EMIT series.changed();
    }

    Series &series;
    const Photos photos;
    std::vector<WantedStrength> before;
    std::vector<WantedStrength> after;
    const Merging merging;
    const int drag;
    qint64 when;
    bool isDone = false; ///< Once: redo() is the first doing, too.
};

/// Removes photographs, or says that they have been added. None is ever listed twice.
class Series::ListCommand : public QUndoCommand
{
public:
    enum class Kind { Add, Remove };
    ListCommand(Series &owner, Kind what, QList<int> rows) : series(owner), kind(what)
    {
        std::sort(rows.begin(), rows.end());
        for (const int row : qAsConst(rows))
            listed.emplace_back(row, owner.photos[std::size_t(row)]);
    }

    void redo() override
    {
        if (std::exchange(isDone, true) || kind == Kind::Remove)
            kind == Kind::Add ? list() : unlist();
    }
    void undo() override { kind == Kind::Add ? unlist() : list(); }

private:
    void unlist()
    {
        for (std::size_t end = listed.size(); end > 0;) {
            // The longest run of rows that end here and still hold these photographs.
            const int last = series.rowOf(listed[--end].second->path);
            if (!holds(last, listed[end].second))
                continue;
            int first = last;
            while (end > 0 && holds(first - 1, listed[end - 1].second)) {
                --first;
                --end;
            }
            series.take(first, last - first + 1);
        }
        Q_EMIT series.changed();
    }

    void list()
    {
        Photos back;
        for (std::size_t i = 0; i < listed.size();) {
            const int first = listed[i].first;
            Photos run;
            for (; i < listed.size() && listed[i].first - first == int(run.size()); ++i) {
                if (series.rowOf(listed[i].second->path) >= 0) {
                    ++i;
                    break;
                }
                run.push_back(listed[i].second);
            }
            back.insert(back.end(), run.begin(), run.end());
            if (!run.empty())
                series.insert(std::min(first, series.rowCount()), run);
        }
        Q_EMIT series.changed();
        series.tellStep(back);
    }

    bool holds(int row, const std::shared_ptr<Photo> &photo) const
    {
        return row >= 0 && series.photos[std::size_t(row)] == photo;
    }

    Series &series;
    const Kind kind;
    bool isDone = false;
    std::vector<std::pair<int, std::shared_ptr<Photo>>> listed; ///< In the order of their rows.
};

Series::Series(HostApplication &host, const QString &processGroup, int thumbnailSide, QObject *parent)
    : QAbstractListModel(parent), application(host), group(processGroup), reader(host, thumbnailSide)
{
    clock.start();
    adder.setMaxThreadCount(1);
    // On the reader's threads: a photograph that is being saved lets nobody ask it anything for a while.
    connect(
        &reader, &PhotoReader::checked, this,
        [this](const QString &path) {
            Photograph &photograph = *application.photograph(path);
            const PhotoHead head = photograph.facts();
            News fresh{path, {}, {}, {}, {}};
            fresh.facts.size = QSize(photograph.width(), photograph.height());
            fresh.facts.kind = kindName(head, path);
            fresh.facts.bytes = QFileInfo(path).size();
            post(std::move(fresh));
        },
        Qt::DirectConnection);
    connect(
        &reader, &PhotoReader::ready, this,
        [this](const QString &path, const QImage &picture) {
            Photograph &photograph = *application.photograph(path);
            News fresh{path, {}, photograph.automaticStrength().value_or(WantedStrength::kUsual), picture, {}};
            fresh.facts.bits = photograph.bitsPerChannel();
            fresh.facts.channels = photograph.channelCount();
            post(std::move(fresh));
        },
        Qt::DirectConnection);
    connect(
        &reader, &PhotoReader::failed, this,
        [this](const QString &path, const QString &reason) {
            post({path, {}, {}, {}, reason});
        },
        Qt::DirectConnection);
}

Series::~Series()
{
    adder.waitForDone();
}

int Series::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(photos.size());
}

QVariant Series::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const Photo &photo = *photos[std::size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return QFileInfo(photo.path).fileName();
    case Qt::DecorationRole:
    case ThumbnailRole:
        return photo.thumbnail;
    case Qt::ToolTipRole:
        return photographText(index) + QLatin1Char('\n') + QDir::toNativeSeparators(photo.path);
    case Qt::AccessibleTextRole:
        return photographText(index);
    case PathRole:
        return photo.path;
    case StrengthRole: {
        const auto percent = isReadable(index.row()) ? percentOf(photo) : std::nullopt;
        return percent ? QVariant(*percent) : QVariant();
    }
    case AutomaticRole:
        return photo.strength.automatic;
    case StateRole:
        return int(stateOf(photo));
    case ReasonRole:
        return photo.reason;
    case ResultNameRole:
        return facts(index.row()).resultName;
    default:
        return {};
    }
}

QHash<int, QByteArray> Series::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractListModel::roleNames();
    names.insert({{PathRole, "path"},
                  {NameRole, "name"},
                  {StrengthRole, "strength"},
                  {AutomaticRole, "automatic"},
                  {StateRole, "state"},
                  {ReasonRole, "reason"},
                  {ThumbnailRole, "thumbnail"},
                  {ResultNameRole, "resultName"}});
    return names;
}

std::optional<int> Series::percentOf(const Photo &photo)
{
    return photo.strength.automatic ? photo.automatic : std::optional(photo.strength.percent);
}

Series::State Series::stateOf(const Photo &photo)
{
    if (photo.work != Photo::Work::None)
        return photo.work == Photo::Work::Waiting ? State::Waiting : State::InWork;
    if (photo.failure != Photo::Failure::None)
        return State::Failed;
    if (photo.resultStrength && percentOf(photo) == photo.resultStrength)
        return State::Saved;
    if (photo.kept)
        return State::Kept;
    if (photo.resultStrength)
        return State::ChangedSince;
    return same(photo.strength, photo.start) ? State::Untouched : State::Edited;
}

QStringList Series::paths() const
{
    QStringList all;
    for (const auto &photo : photos)
        all << photo->path;
    return all;
}

QString Series::path(int row) const
{
    return photos.at(std::size_t(row))->path;
}

int Series::rowOf(const QString &path) const
{
    return rows.value(path, -1);
}

WantedStrength Series::strength(int row) const
{
    return photos.at(std::size_t(row))->strength;
}

std::optional<int> Series::percent(int row) const
{
    return percentOf(*photos.at(std::size_t(row)));
}

Series::State Series::state(int row) const
{
    return stateOf(*photos.at(std::size_t(row)));
}

bool Series::isReadable(int row) const
{
    return photos.at(std::size_t(row))->failure != Photo::Failure::Reading;
}

Series::Facts Series::facts(int row) const
{
    const Photo &photo = *photos.at(std::size_t(row));
    Facts all = photo.facts;
    const bool tiff = application.imageDef(photo.path)->needsTiffOutput();
    const bool saved = stateOf(photo) == State::Saved;
    all.resultName =
        QFileInfo(saved ? photo.result : BatchPlan::resultOf(photo.path, photo.path, SaveQueue::planOptions(options), tiff))
            .fileName();
    return all;
}

Series::Record Series::record(int row) const
{
    const Photo &photo = *photos.at(std::size_t(row));
    Record record;
    record.path = photo.path;
    record.strength = photo.strength;
    record.start = photo.start;
    record.automatic = photo.automatic;
    record.resultStrength = photo.resultStrength;
    record.resultQuality = photo.resultQuality;
    record.result = photo.result;
    record.unfinished = photo.work != Photo::Work::None;
    record.failed = photo.failure == Photo::Failure::Saving;
    record.reason = photo.reason;
    return record;
}

std::vector<Series::Record> Series::records() const
{
    std::vector<Record> all;
    for (int row = 0; row < rowCount(); ++row)
        all.push_back(record(row));
    return all;
}

int Series::unsavedCount() const
{
    return int(std::count_if(photos.begin(), photos.end(), [](const auto &photo) {
        const State state = stateOf(*photo);
        return state == State::Edited || state == State::ChangedSince;
    }));
}

int Series::unreadCount() const
{
    return int(std::count_if(photos.begin(), photos.end(), [](const auto &photo) { return !photo->read; }));
}

std::shared_ptr<Series::Photo> Series::photo(const QString &path) const
{
    return known.value(path).lock();
}

void Series::renumber(int from)
{
    for (int row = from; row < rowCount(); ++row)
        rows[photos[std::size_t(row)]->path] = row;
}

void Series::insert(int row, const Photos &fresh)
{
    beginInsertRows({}, row, row + int(fresh.size()) - 1);
    photos.insert(photos.begin() + row, fresh.begin(), fresh.end());
    renumber(row);
    endInsertRows();
    for (const auto &photo : fresh) {
        known[photo->path] = photo;
        if (!photo->read)
            reader.read(photo->path);
    }
}

void Series::take(int first, int count)
{
    QStringList gone;
    beginRemoveRows({}, first, first + count - 1);
    for (int row = first; row < first + count; ++row) {
        gone << photos[std::size_t(row)]->path;
        rows.remove(gone.last());
    }
    photos.erase(photos.begin() + first, photos.begin() + first + count);
    renumber(first);
    endRemoveRows();
    for (const QString &path : qAsConst(gone)) {
        reader.forget(path);
        if (queue)
            queue->drop(path);
    }
}

void Series::show(const Photos &changedPhotos)
{
    int first = rowCount(), last = -1;
    for (const auto &photo : changedPhotos)
        if (const int row = rowOf(photo->path); row >= 0) {
            first = std::min(first, row);
            last = std::max(last, row);
        }
    if (last >= 0)
        Q_EMIT dataChanged(createIndex(first, 0), createIndex(last, 0));
}

void Series::show(const std::shared_ptr<Photo> &photo)
{
    show(Photos{photo});
}

void Series::tellStep(const Photos &concerned)
{
    QList<int> listed;
    for (const auto &photo : concerned)
        if (const int row = rowOf(photo->path); row >= 0)
            listed << row;
    Q_EMIT stepped(listed);
}

void Series::add(const QStringList &given)
{
    pending << given;
    if (pending.size() == 1)
        beginAdding();
}

void Series::beginAdding()
{
    const int series = generation;
    arrived.clear();
    QStringList ours;
    for (const auto &photo : photos)
        if (!photo->result.isEmpty())
            ours << photo->result;
    adder.start([this, series, given = pending.first(), listed = paths(), ours, rules = SaveQueue::planOptions(options)] {
        Added what;
        const QStringList files = filesOf(given, what.emptyFolders), all = listed + files;
        QSet<QString> results = BatchPlan::resultsAmong(all, all, application, rules);
        results.unite(QSet<QString>(ours.begin(), ours.end()));
        QStringList fresh, listedResults;
        for (const QString &path : listed)
            if (results.contains(path))
                listedResults << path;
        for (const QString &path : files)
            if (results.contains(path))
                ++what.results;
            else
                fresh << path;
        const auto inWindow = [&](auto step) {
            QMetaObject::invokeMethod(
                this,
                [this, series, step]() mutable {
                    if (series == generation)
                        step();
                },
                Qt::QueuedConnection);
        };
        inWindow([this, listedResults] {
            for (const QString &path : listedResults)
                if (const int row = rowOf(path); row >= 0)
                    take(row, 1);
        });
        for (int first = 0; first < fresh.size(); first += kBatchRows)
            inWindow([this, batch = QStringList(fresh.mid(first, kBatchRows))] { append(batch); });
        const int before = listed.size() - listedResults.size();
        inWindow([this, what, before]() mutable {
            what.photographs = rowCount() - before;
            pending.removeFirst();
            if (before > 0 || undo.count() > 0)
                pushAdded();
            Q_EMIT changed();
            Q_EMIT added(what);
            if (!pending.isEmpty())
                beginAdding();
        });
    });
}

void Series::pushAdded()
{
    QList<int> fresh;
    for (const auto &photo : qAsConst(arrived))
        if (const int row = rowOf(photo->path); row >= 0)
            fresh << row;
    arrived.clear();
    if (fresh.isEmpty())
        return;
    auto *command = new ListCommand(*this, ListCommand::Kind::Add, fresh);
    command->setText(tr("Add %n photograph(s)", nullptr, fresh.size()));
    undo.push(command);
}

void Series::append(const QStringList &fresh)
{
    const WantedStrength start = defaultStrength();
    Photos batch;
    for (const QString &path : fresh) {
        if (rows.contains(path))
            continue;
        auto photo = std::make_shared<Photo>();
        photo->path = path;
        photo->strength = photo->start = start;
        batch.push_back(std::move(photo));
    }
    if (!batch.empty())
        insert(rowCount(), batch);
    arrived.insert(arrived.end(), batch.begin(), batch.end());
}

void Series::restore(const std::vector<Record> &records)
{
    Photos batch;
    QSet<QString> seen;
    for (const Record &record : records) {
        if (rows.contains(record.path) || seen.contains(record.path))
            continue;
        seen << record.path;
        auto photo = std::make_shared<Photo>();
        photo->path = record.path;
        photo->strength = record.strength;
        photo->start = record.start;
        photo->automatic = record.automatic;
        if (record.resultStrength && QFileInfo::exists(record.result)) {
            photo->resultStrength = record.resultStrength;
            photo->resultQuality = record.resultQuality;
            photo->result = record.result;
        }
        photo->work = record.unfinished ? Photo::Work::Waiting : Photo::Work::None;
        photo->failure = record.failed ? Photo::Failure::Saving : Photo::Failure::None;
        photo->reason = record.reason;
        batch.push_back(std::move(photo));
    }
    if (batch.empty())
        return;
    insert(rowCount(), batch);
    Q_EMIT changed();
}

void Series::clear()
{
    ++generation;
    pending.clear();
    arrived.clear();
    undo.clear();
    if (rowCount() > 0)
        take(0, rowCount());
    known.clear();
    Q_EMIT changed();
}

void Series::post(News fresh)
{
    const std::lock_guard lock(newsMutex);
    news.push_back(std::move(fresh));
    if (news.size() == 1)
        QMetaObject::invokeMethod(this, &Series::takeNews, Qt::QueuedConnection);
}

void Series::takeNews()
{
    std::vector<News> taken;
    {
        const std::lock_guard lock(newsMutex);
        taken.swap(news);
    }
    Photos touched;
    bool kept = false;
    for (const News &fresh : taken) {
        const auto photo = this->photo(fresh.path);
        if (!photo)
            continue;
        if (!fresh.failure.isEmpty()) {
            photo->failure = Photo::Failure::Reading;
            photo->reason = fresh.failure;
            photo->read = true;
        } else if (!fresh.thumbnail.isNull()) {
            photo->thumbnail = fresh.thumbnail;
            photo->facts.bits = fresh.facts.bits;
            photo->facts.channels = fresh.facts.channels;
            photo->read = true;
            kept |= photo->automatic != fresh.automatic;
            photo->automatic = fresh.automatic;
        } else {
            photo->facts = fresh.facts;
        }
        touched.push_back(photo);
    }
    show(touched);
    if (kept)
        Q_EMIT changed();
}

void Series::readFirst(const QList<int> &given)
{
    QStringList first;
    for (const int row : given)
        first << path(row);
    reader.prefer(first);
}

void Series::knowAutomatic(const QString &path, int percent)
{
    const auto photo = this->photo(path);
    if (!photo || photo->automatic == percent)
        return;
    photo->automatic = percent;
    show(photo);
    Q_EMIT changed();
}

void Series::push(const QList<int> &given, const std::vector<WantedStrength> &strengths, Merging merging, const QString &text)
{
    // In a drag that returns to where it began, the step that undoes it is needed for the merge.
    Photos chosen;
    std::vector<WantedStrength> changedStrengths;
    bool any = false;
    for (int i = 0; i < given.size(); ++i) {
        const auto &photo = photos.at(std::size_t(given[i]));
        const bool changes = !same(photo->strength, strengths[std::size_t(i)]);
        any |= changes;
        if (changes || merging != Merging::None) {
            chosen.push_back(photo);
            changedStrengths.push_back(strengths[std::size_t(i)]);
        }
    }
    if (!any)
        return;
    auto *command = new StrengthCommand(*this, std::move(chosen), std::move(changedStrengths), merging);
    command->setText(text);
    undo.push(command);
}

void Series::setStrength(const QList<int> &given, const WantedStrength &strength)
{
    push(given, std::vector<WantedStrength>(std::size_t(given.size()), strength), dragDepth > 0 ? Merging::Drag : Merging::None,
         tr("Change strength"));
}

void Series::setAutomatic(const QList<int> &given)
{
    push(given, std::vector<WantedStrength>(std::size_t(given.size()), {0, /*automatic=*/true}), Merging::None,
         tr("Automatic strength"));
}

void Series::reset(const QList<int> &given)
{
    std::vector<WantedStrength> starts;
    for (const int row : given)
        starts.push_back(photos.at(std::size_t(row))->start);
    push(given, starts, Merging::None, tr("Reset strength"));
}

void Series::nudge(const QList<int> &given, int byPercent)
{
    QList<int> chosen;
    std::vector<WantedStrength> strengths;
    for (const int row : given)
        if (const auto now = percent(row)) {
            chosen << row;
            strengths.push_back({qBound(0, *now + byPercent, 100), /*automatic=*/false});
        }
    push(chosen, strengths, Merging::Nudge, tr("Change strength"));
}

void Series::beginDrag()
{
    if (dragDepth++ == 0)
        ++dragSerial;
}

void Series::endDrag()
{
    dragDepth = std::max(dragDepth - 1, 0);
}

void Series::remove(const QList<int> &given)
{
    if (given.isEmpty())
        return;
    auto *command = new ListCommand(*this, ListCommand::Kind::Remove, given);
    command->setText(tr("Remove %n photograph(s)", nullptr, given.size()));
    undo.push(command);
}

WantedStrength Series::defaultStrength() const
{
    return DefaultStrength(application, group).stored().value_or(WantedStrength{WantedStrength::kUsual, /*automatic=*/false});
}

void Series::useAsDefault(const WantedStrength &strength)
{
    DefaultStrength(application, group).store(strength);
}

void Series::setSaveOptions(const SaveQueue::Options &next)
{
    if (options == next)
        return;
    options = next;
    if (rowCount() > 0)
        Q_EMIT dataChanged(createIndex(0, 0), createIndex(rowCount() - 1, 0), {ResultNameRole});
    Q_EMIT changed();
}

void Series::follow(SaveQueue &next)
{
    queue = &next;
    connect(queue, &SaveQueue::photoWaits, this, &Series::onWaits);
    connect(queue, &SaveQueue::photoBegins, this, &Series::onBegins);
    connect(queue, &SaveQueue::photoEnded, this, &Series::onEnded);
}

SaveQueue::Order Series::orderOf(const Photo &photo) const
{
    const bool current =
        photo.resultStrength && percentOf(photo) == photo.resultStrength && photo.resultQuality == options.quality;
    return {photo.path, photo.strength, current ? photo.result : QString()};
}

void Series::save(const QList<int> &given)
{
    QVector<SaveQueue::Order> orders;
    for (const int row : given) {
        Photo &photo = *photos.at(std::size_t(row));
        photo.ordered = photo.strength;
        photo.orderedQuality = options.quality;
        orders << orderOf(photo);
    }
    if (queue && !orders.isEmpty())
        queue->add(orders, options, paths());
}

void Series::saveAll()
{
    QList<int> all;
    for (int row = 0; row < rowCount(); ++row)
        if (isReadable(row))
            all << row;
    save(all);
}

void Series::saveUnfinished()
{
    QList<int> unfinished;
    for (int row = 0; row < rowCount(); ++row)
        if (photos[std::size_t(row)]->work == Photo::Work::Waiting)
            unfinished << row;
    save(unfinished);
}

void Series::retry(int row)
{
    const auto &photo = photos.at(std::size_t(row));
    if (photo->failure == Photo::Failure::Saving) {
        save({row});
    } else if (photo->failure == Photo::Failure::Reading) {
        photo->failure = Photo::Failure::None;
        photo->reason.clear();
        photo->read = false;
        show(photo);
        reader.read(photo->path);
    }
}

void Series::onWaits(const QString &path)
{
    const auto photo = this->photo(path);
    if (!photo)
        return;
    photo->work = Photo::Work::Waiting;
    show(photo);
    Q_EMIT changed();
}

void Series::onBegins(const QString &path)
{
    const auto photo = this->photo(path);
    if (!photo || photo->work == Photo::Work::InWork)
        return;
    photo->work = Photo::Work::InWork;
    show(photo);
}

void Series::onEnded(const QString &path, const BatchOutcome &outcome, const QString &result)
{
    const auto photo = this->photo(path);
    if (!photo)
        return;
    photo->work = Photo::Work::None;
    if (outcome.hasResult()) {
        photo->resultStrength = outcome.strength;
        photo->resultQuality = photo->orderedQuality;
        photo->result = result;
        if (photo->ordered.automatic && !photo->automatic)
            photo->automatic = outcome.strength;
    }
    const bool kept = outcome.status == BatchOutcome::Status::Skipped || outcome.reason == BatchOutcome::Reason::ResultExists;
    if (outcome.status != BatchOutcome::Status::Stopped) {
        photo->kept = kept;
        photo->failure = outcome.hasResult() || kept ? Photo::Failure::None : Photo::Failure::Saving;
        photo->reason = SaveQueue::textOf(outcome);
    }
    show(photo);
    Q_EMIT changed();
}
