#include "Session.h"

#include <algorithm>

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QSet>
#include <QStandardPaths>
#include <QUuid>

#include "SettingsFile.h"
#include "VException.h"

namespace {

constexpr int kDelayMs = 200; ///< From a change until it is kept: a drag is written a few times per second.
constexpr int kKeptSessions = 100;
const QString kSuffix = QStringLiteral(".json");

const QString kOpen = QStringLiteral("open"), kFile = QStringLiteral("settingsFile"), kModified = QStringLiteral("modified"),
              kCurrent = QStringLiteral("current"), kSaving = QStringLiteral("saving"), kPhotos = QStringLiteral("photographs"),
              kPolicy = QStringLiteral("existing"), kFolder = QStringLiteral("folder"), kTag = QStringLiteral("tag"),
              kPath = QStringLiteral("path"), kStrength = QStringLiteral("strength"), kStart = QStringLiteral("start"),
              kAutomatic = QStringLiteral("automatic"), kResult = QStringLiteral("result"),
              kResultStrength = QStringLiteral("resultStrength"), kResultQuality = QStringLiteral("resultQuality"),
              kQuality = QStringLiteral("quality"), kUnfinished = QStringLiteral("unfinished"),
              kInFile = QStringLiteral("inSettingsFile"), kFailed = QStringLiteral("failed"), kReason = QStringLiteral("reason");

QJsonValue fromStrength(const WantedStrength &strength)
{
    return strength.automatic ? QJsonValue(QLatin1String(WantedStrength::kAutomatic)) : QJsonValue(strength.percent);
}

std::optional<int> toPercent(const QJsonValue &value)
{
    const int percent = value.toInt(-1);
    return percent >= 0 && percent <= 100 ? std::optional(percent) : std::nullopt;
}

WantedStrength toStrength(const QJsonValue &value)
{
    if (value.toString() == QLatin1String(WantedStrength::kAutomatic))
        return {0, /*automatic=*/true};
    return {toPercent(value).value_or(WantedStrength::kUsual), /*automatic=*/false};
}

QJsonObject fromRecord(const Series::Record &record)
{
    QJsonObject photo{{kPath, record.path}, {kStrength, fromStrength(record.strength)}, {kStart, fromStrength(record.start)}};
    if (record.automatic)
        photo[kAutomatic] = *record.automatic;
    if (record.resultStrength) {
        photo[kResult] = record.result;
        photo[kResultStrength] = *record.resultStrength;
        if (record.resultQuality)
            photo[kResultQuality] = *record.resultQuality;
    }
    if (record.unfinished)
        photo[kUnfinished] = true;
    if (record.failed) {
        photo[kFailed] = true;
        photo[kReason] = record.reason;
    }
    return photo;
}

Series::Record toRecord(const QJsonObject &photo)
{
    Series::Record record;
    record.path = photo[kPath].toString();
    record.strength = toStrength(photo[kStrength]);
    record.start = toStrength(photo[kStart]);
    record.automatic = toPercent(photo[kAutomatic]);
    record.result = photo[kResult].toString();
    record.resultStrength = toPercent(photo[kResultStrength]);
    record.resultQuality = toPercent(photo[kResultQuality]);
    record.unfinished = photo[kUnfinished].toBool();
    record.failed = photo[kFailed].toBool();
    record.reason = photo[kReason].toString();
    return record;
}

QJsonArray fromRecords(const std::vector<Series::Record> &records)
{
    QJsonArray photos;
    for (const Series::Record &record : records)
        photos.append(fromRecord(record));
    return photos;
}

std::vector<Series::Record> toRecords(const QJsonValue &photos)
{
    std::vector<Series::Record> records;
    for (const auto &photo : photos.toArray())
        records.push_back(toRecord(photo.toObject()));
    return records;
}

std::optional<int> percentOf(const Series::Record &record)
{
    return record.strength.automatic ? record.automatic : record.strength.percent;
}

template<typename Same>
bool differ(const std::vector<Series::Record> &one, const std::vector<Series::Record> &other, Same same)
{
    return !std::equal(one.begin(), one.end(), other.begin(), other.end(), same);
}

/// In what the user has decided.
bool strengthsDiffer(const std::vector<Series::Record> &one, const std::vector<Series::Record> &other)
{
    return differ(one, other, [](const Series::Record &a, const Series::Record &b) {
        return a.path == b.path && a.strength.automatic == b.strength.automatic &&
               (a.strength.automatic || a.strength.percent == b.strength.percent);
    });
}

/// In what has become known.
bool resultsDiffer(const std::vector<Series::Record> &one, const std::vector<Series::Record> &other)
{
    return differ(one, other, [](const Series::Record &a, const Series::Record &b) {
        return percentOf(a) == percentOf(b) && a.result == b.result && a.resultStrength == b.resultStrength;
    });
}

QJsonObject fromOptions(const SaveQueue::Options &options)
{
    QJsonObject saving{{kPolicy, int(options.existing)}, {kFolder, options.folder}};
    if (options.tag)
        saving[kTag] = *options.tag;
    if (options.quality)
        saving[kQuality] = *options.quality;
    return saving;
}

SaveQueue::Options toOptions(const QJsonObject &saving)
{
    SaveQueue::Options options;
    options.existing = SaveQueue::Policy(qBound(0, saving[kPolicy].toInt(), int(SaveQueue::Policy::Skip)));
    options.folder = saving[kFolder].toString();
    if (saving.contains(kTag))
        options.tag = saving[kTag].toString();
    options.quality = toPercent(saving[kQuality]);
    return options;
}

/// Writes the whole file or nothing; returns what went wrong.
QString replaceFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile output(path);
    if (output.open(QIODevice::WriteOnly) && output.write(content) == content.size() && output.flush() && output.commit())
        return {};
    return Session::tr("The session can't be kept in \"%1\": %2. Make room, or give yourself permission to write there.")
        .arg(path, output.errorString());
}

} // namespace

/// The content of a session's file.
struct Session::Kept
{
    bool open = false; ///< A window worked on it when it was kept.
    QString settingsFile;
    bool modified = false;
    QString current;
    SaveQueue::Options saving;
    std::vector<Series::Record> photographs;
    std::vector<Series::Record> inFile;

    bool isUnfinished() const
    {
        return (open && !photographs.empty()) ||
               std::any_of(photographs.begin(), photographs.end(), [](const auto &photo) { return photo.unfinished; });
    }
};

QString Session::usualFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Ombre/veilaway/sessions");
}

Session::Session(Series &series, const QString &processName, const QString &folder, QObject *parent)
    : QObject(parent), photographs(series), tag(processName), place(folder)
{
    writer.setMaxThreadCount(1);
    timer.setSingleShot(true);
    timer.setInterval(kDelayMs);
    connect(&timer, &QTimer::timeout, this, &Session::tick);
    connect(&photographs, &Series::changed, this, &Session::onChanged);
    begin({}, nullptr);
}

Session::~Session()
{
    close();
}

QString Session::fileOf(const QString &session) const
{
    return place + '/' + session + kSuffix;
}

std::unique_ptr<QLockFile> Session::lock(const QString &name) const
{
    QDir().mkpath(place);
    auto file = std::make_unique<QLockFile>(place + '/' + name + QStringLiteral(".lock"));
    file->setStaleLockTime(0); // it ends with its process, not with time
    return file->tryLock(0) ? std::move(file) : nullptr;
}

std::unique_ptr<QLockFile> Session::lockSettings(const QString &file) const
{
    const QFileInfo info(file);
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    const QByteArray key = QFile::encodeName(folder + '/' + info.fileName());
    auto taken = lock(QString::fromLatin1(QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex()));
    // Where no lock can be made at all, the file can still be opened.
    if (!taken && QFileInfo(place).isWritable())
        throw VException(tr("Another window works on the settings file \"%1\". Close it there first.").arg(file), V_LOCATION);
    return taken;
}

Session::Kept Session::read(const QString &session) const
{
    QFile file(fileOf(session));
    QJsonParseError error{};
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QJsonObject root = QJsonDocument::fromJson(text, &error).object();
    if (!file.isOpen() || error.error != QJsonParseError::NoError)
        throw VException(tr("The session in \"%1\" can't be read: %2. Open its photographs or a settings file instead.")
                             .arg(file.fileName(), file.isOpen() ? error.errorString() : file.errorString()),
                         V_LOCATION);
    Kept kept;
    kept.open = root[kOpen].toBool();
    kept.settingsFile = root[kFile].toString();
    kept.modified = root[kModified].toBool();
    kept.current = root[kCurrent].toString();
    kept.saving = toOptions(root[kSaving].toObject());
    kept.photographs = toRecords(root[kPhotos]);
    kept.inFile = toRecords(root[kInFile]);
    return kept;
}

void Session::begin(const QString &session, std::unique_ptr<QLockFile> lockOfIt)
{
    id = session.isEmpty() ? QUuid::createUuid().toString(QUuid::WithoutBraces) : session;
    held = lockOfIt ? std::move(lockOfIt) : lock(id);
    settingsFile.clear();
    settingsHeld.reset();
    inFile.clear();
    current.clear();
    closed = false;
}

void Session::letGo()
{
    if (closed)
        return;
    timer.stop();
    writer.waitForDone();
    if (photographs.rowCount() > 0)
        report(keepNow(/*open=*/false));
    else
        QFile::remove(fileOf(id));
    closed = true;
    held.reset();
    settingsHeld.reset();
}

void Session::close()
{
    if (closed)
        return;
    letGo();
    prune();
}

void Session::prune() const
{
    const QFileInfoList all = QDir(place).entryInfoList({'*' + kSuffix}, QDir::Files, QDir::Time);
    for (int i = kKeptSessions; i < all.size(); ++i)
        if (const auto free = lock(all[i].completeBaseName()))
            QFile::remove(all[i].filePath());
    // A lock that a killed process left behind is gone once it has been taken and let go.
    for (const QString &left : QDir(place).entryList({QStringLiteral("*.lock")}, QDir::Files))
        lock(QFileInfo(left).completeBaseName());
}

QList<Session::Recent> Session::recent(int most) const
{
    QList<Recent> sessions;
    for (const QFileInfo &info : QDir(place).entryInfoList({'*' + kSuffix}, QDir::Files, QDir::Time)) {
        if (sessions.size() == most)
            break;
        try {
            if (info.completeBaseName() == id || !lock(info.completeBaseName()))
                continue;
            const Kept kept = read(info.completeBaseName());
            if (!kept.photographs.empty())
                sessions << Recent{info.completeBaseName(), kept.settingsFile, kept.photographs.front().path,
                                   int(kept.photographs.size()), info.lastModified()};
        } catch (const VException &) { // another program's file
        }
    }
    return sessions;
}

bool Session::goOnWith(const QString &session, bool onlyUnfinished)
{
    auto lockOfIt = lock(session);
    if (!lockOfIt)
        return false;
    const Kept kept = read(session);
    if (onlyUnfinished && !kept.isUnfinished())
        return false;
    std::unique_ptr<QLockFile> lockOfSettings;
    if (!kept.settingsFile.isEmpty())
        lockOfSettings = kept.settingsFile == settingsFile ? std::move(settingsHeld) : lockSettings(kept.settingsFile);
    letGo();
    begin(session, std::move(lockOfIt));
    settingsHeld = std::move(lockOfSettings);
    settingsFile = kept.settingsFile;
    inFile = kept.inFile;
    current = kept.current;
    photographs.clear();
    photographs.setSaveOptions(kept.saving);
    photographs.restore(kept.photographs);
    onChanged();
    return true;
}

bool Session::restore()
{
    for (const QFileInfo &info : QDir(place).entryInfoList({'*' + kSuffix}, QDir::Files, QDir::Time)) {
        try {
            if (info.completeBaseName() != id && goOnWith(info.completeBaseName(), /*onlyUnfinished=*/true))
                return true;
        } catch (const VException &) { // it can't be gone on with
        }
    }
    return false;
}

void Session::reopen(const QString &session)
{
    if (session != id && !goOnWith(session, /*onlyUnfinished=*/false))
        throw VException(tr("Another window works on this session. Close it there first."), V_LOCATION);
}

void Session::open(const QString &given)
{
    const QString path = QFileInfo(given).absoluteFilePath();
    SettingsFile file(path, tag);
    if (!file.exists())
        throw VException(tr("There is no settings file \"%1\". Check its name and folder.").arg(path), V_LOCATION);
    file.load();
    for (const Recent &earlier : recent(kKeptSessions))
        if (earlier.file == path && earlier.when >= QFileInfo(path).lastModified() && read(earlier.id).modified) {
            reopen(earlier.id);
            return;
        }

    std::vector<Series::Record> records;
    for (const QString &photo : file.photographs()) {
        Series::Record record;
        record.path = photo;
        const QDomElement element = file.element(photo);
        const auto percent = SettingsFile::strengthOf(element);
        record.strength = {percent.value_or(WantedStrength::kUsual), SettingsFile::isAutomatic(element)};
        record.start = record.strength;
        if (record.strength.automatic)
            record.automatic = percent;
        for (const QString &result : file.results(photo))
            if (const auto strength = SettingsFile::strengthOf(file.resultElement(photo, result)); strength) {
                record.result = result;
                record.resultStrength = strength;
            }
        records.push_back(std::move(record));
    }
    auto lockOfSettings = path == settingsFile ? std::move(settingsHeld) : lockSettings(path);
    letGo();
    begin({}, nullptr);
    settingsHeld = std::move(lockOfSettings);
    photographs.clear();
    photographs.restore(records);
    settingsFile = path;
    inFile = photographs.records();
    onChanged();
}

void Session::startOver()
{
    letGo();
    begin({}, nullptr);
    photographs.clear();
    onChanged();
}

bool Session::isModified() const
{
    return !settingsFile.isEmpty() && strengthsDiffer(photographs.records(), inFile);
}

void Session::write(bool afresh)
{
    const std::vector<Series::Record> now = photographs.records();
    SettingsFile file(settingsFile, tag);
    if (!afresh) {
        file.load();
        for (const Series::Record &record : inFile)
            if (photographs.rowOf(record.path) < 0)
                file.remove(record.path);
    }
    for (const Series::Record &record : now) {
        const std::optional<int> percent = percentOf(record);
        // An automatic strength that is not known yet follows when it is.
        file.setElement(record.path,
                        SettingsFile::withStrength(tag, percent.value_or(WantedStrength::kUsual), record.strength.automatic));
        if (record.resultStrength)
            file.setResult(record.path, record.result, *record.resultStrength,
                           record.strength.automatic && percent == record.resultStrength);
    }
    file.save();
    inFile = now;
}

void Session::save()
{
    write(/*afresh=*/false);
    onChanged();
}

void Session::saveAs(const QString &given)
{
    const QString path = QFileInfo(given).absoluteFilePath();
    if (path == settingsFile) {
        save();
        return;
    }
    if (photographs.rowOf(path) >= 0)
        throw VException(tr("\"%1\" is one of the photographs. Give the settings file another name.").arg(path), V_LOCATION);
    auto lockOfSettings = lockSettings(path);
    const QString before = settingsFile;
    settingsFile = path;
    try {
        write(/*afresh=*/true);
    } catch (const VException &) {
        settingsFile = before;
        throw;
    }
    settingsHeld = std::move(lockOfSettings);
    onChanged();
}

void Session::setCurrentPhoto(const QString &path)
{
    if (current == path)
        return;
    current = path;
    keepSoon();
}

void Session::onChanged()
{
    keepSoon();
    Q_EMIT changed();
}

void Session::keepSoon()
{
    if (!closed && !timer.isActive())
        timer.start();
}

void Session::tick()
{
    if (!settingsFile.isEmpty()) {
        const std::vector<Series::Record> now = photographs.records();
        const bool known = std::all_of(now.begin(), now.end(), percentOf);
        if (known && !strengthsDiffer(now, inFile) && resultsDiffer(now, inFile)) {
            try {
                write(/*afresh=*/false);
            } catch (const VException &) { // the session has it; the user hears of it when saving
            }
        }
    }
    const QString path = fileOf(id);
    if (photographs.rowCount() == 0 && !QFileInfo::exists(path))
        return;
    writer.start([this, path, bytes = content(/*open=*/true)] {
        const QString failure = replaceFile(path, bytes);
        QMetaObject::invokeMethod(
            this, [this, failure] { report(failure); }, Qt::QueuedConnection);
    });
}

QByteArray Session::content(bool open) const
{
    const QJsonObject root{{kOpen, open},
                           {kFile, settingsFile},
                           {kModified, isModified()},
                           {kCurrent, current},
                           {kSaving, fromOptions(photographs.saveOptions())},
                           {kPhotos, fromRecords(photographs.records())},
                           {kInFile, fromRecords(inFile)}};
    return QJsonDocument(root).toJson(QJsonDocument::Compact);
}

QString Session::keepNow(bool open)
{
    writer.waitForDone();
    return replaceFile(fileOf(id), content(open));
}

void Session::report(const QString &next)
{
    if (problem == next)
        return;
    problem = next;
    Q_EMIT keepingFailed(problem);
}

QString Session::whatWouldBeLost()
{
    if (closed || photographs.rowCount() == 0)
        return {};
    report(keepNow(/*open=*/true));
    const int unsaved = photographs.unsavedCount();
    if (problem.isEmpty() || (unsaved == 0 && !isModified()))
        return {};
    return tr("The strengths of %n photograph(s) would be lost.", nullptr, std::max(unsaved, 1)) + ' ' + problem;
}
