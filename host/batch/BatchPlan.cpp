#include "BatchPlan.h"

#include <map>
#include <set>
#include <utility>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTranslator>
#include <sys/stat.h>

#include "argumentText.h"
#include "ignoresCase.h"
#include "inWindow.h"
#include "photoKind.h"

namespace {

using FileId = std::pair<dev_t, ino_t>;

std::optional<FileId> idOf(const QString &path)
{
    struct stat status;
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return FileId(status.st_dev, status.st_ino);
}

/// One spelling for each place, even where folders are links.
QString placeOf(const QString &path)
{
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? info.absolutePath() : folder) + '/' + info.fileName();
}

/// Absolute. A path with ".." is resolved on the disk, since cleaning it as text goes wrong after a link.
QString pathOf(const QString &given)
{
    return given.contains("..") ? placeOf(QDir::current().filePath(given)) : QFileInfo(given).absoluteFilePath();
}

/// The same for all spellings of a place that a file system may take for one.
QString foldedPlace(const QString &place)
{
    return place.normalized(QString::NormalizationForm_C).toCaseFolded();
}

constexpr int kFirstNumber = 2; ///< Of results that get one.

/// The text that the process appends to a photograph's name.
constexpr char kTagContext[] = "NimbraOne2One", kTag[] = "_dehazed";

/// The name of a result, without its folder.
QString fileNameWith(const QString &tag, const QString &photograph, bool needsTiff)
{
    const QFileInfo info(photograph);
    return info.completeBaseName() + tag + '.' + (needsTiff ? QStringLiteral("tiff") : info.suffix().toLower());
}

QString nameWith(const QString &tag, const QString &photograph, bool needsTiff)
{
    return QFileInfo(photograph).absolutePath() + QDir::separator() + fileNameWith(tag, photograph, needsTiff);
}

QString ownTag()
{
    return QCoreApplication::translate(kTagContext, kTag);
}

bool isThere(const QString &file)
{
    const QFileInfo info(file);
    return info.exists() || info.isSymLink();
}

/// The folder itself, or the nearest one above it that exists.
QString existingFolder(QString folder)
{
    while (!isThere(folder) && !QFileInfo(folder).isRoot())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

/// True if the result is not older than its photograph, and the settings file, if there is one, says that it was made at the
/// strength that is wanted now.
bool isCurrent(const BatchItem &item, const BatchPlan::Options &options)
{
    // Memory cards keep times in steps of two seconds, so that a time that was given to a result may come out earlier.
    constexpr int kStepMs = 2000;
    const QFileInfo result(item.result);
    const qint64 olderByMs = result.lastModified().msecsTo(QFileInfo(item.path).lastModified());
    if (!result.isFile() || olderByMs > (item.keepTime ? kStepMs : 0))
        return false;
    if (!options.settings)
        return true;
    const QDomElement made = options.settings->resultElement(item.path, item.result);
    return item.automatic ? SettingsFile::isAutomatic(made) : SettingsFile::strengthOf(made) == item.strength;
}

/// What of a packing applies to this result.
ResultPacking packingFor(const QString &result, const ResultPacking &wanted)
{
    ResultPacking packing;
    switch (pictureKindOfSuffix(QFileInfo(result).suffix().toLower().toStdString())) {
    case PhotoKind::Jpeg:
        packing.jpegQuality = wanted.jpegQuality;
        break;
    case PhotoKind::Tiff:
        packing.tiffCompression = wanted.tiffCompression;
        break;
    default:
        break;
    }
    return packing;
}

/// The name of a result that got a number because another one existed.
QString numbered(const QString &result, int number)
{
    const QFileInfo info(result);
    return QStringLiteral("%1/%2-%3.%4").arg(info.absolutePath(), info.completeBaseName()).arg(number).arg(info.suffix());
}

/// The name that a result would have without its number, or an empty text if it has none.
QString withoutNumber(const QString &result)
{
    const QFileInfo info(result);
    const QString stem = info.completeBaseName();
    const int hyphen = stem.lastIndexOf('-');
    const QString plain = QStringLiteral("%1/%2.%3").arg(info.absolutePath(), stem.left(hyphen), info.suffix());
    const int number = stem.mid(hyphen + 1).toInt();
    return hyphen > 0 && number >= kFirstNumber && numbered(plain, number) == result ? plain : QString();
}

/// The longest name that file systems take, less what the codec layer adds for its temporary file.
constexpr int kLongestName = 255 - 16;

} // namespace

QString BatchPlan::resultName(const QString &photograph, bool needsTiff)
{
    return nameWith(ownTag(), photograph, needsTiff);
}

QSet<QString> BatchPlan::resultsAmong(const QStringList &files, const QStringList &photographs, HostApplication &host,
                                      const Options &options)
{
    QSet<QString> tags;
    for (const QString &language : HostApplication::languages()) {
        QTranslator catalogue;
        const bool found = catalogue.load(QStringLiteral(":/Translation/veilaway_%1.qm").arg(language));
        const QString tag = found ? catalogue.translate(kTagContext, kTag) : QString();
        tags << (tag.isEmpty() ? QString::fromLatin1(kTag) : tag);
    }
    QSet<QString> places, mayHaveNumber; // see Existing::Number
    for (const QString &photograph : photographs) {
        const QString path = pathOf(photograph);
        const bool tiff = host.imageDef(path)->needsTiffOutput();
        QSet<QString> own;
        for (const QString &tag : qAsConst(tags))
            own << placeOf(nameWith(tag, path, tiff));
        const QString wanted = placeOf(resultOf(path, photograph, options, tiff));
        mayHaveNumber += own;
        if (!options.outputIsFile && options.tag != QString())
            mayHaveNumber << wanted;
        own << wanted;
        if (options.settings)
            for (const QString &result : options.settings->results(path))
                own << placeOf(result);
        own.remove(placeOf(path)); // with an empty tag
        places += own;
    }
    QSet<QString> results;
    for (const QString &file : files) {
        const QString path = pathOf(file), place = placeOf(path);
        if ((places.contains(place) || mayHaveNumber.contains(withoutNumber(place))) && !QFileInfo(path).isDir())
            results << file;
    }
    return results;
}

QString BatchPlan::existsText(const QString &result)
{
    return tr("Its result \"%1\" already exists. Add --overwrite to replace it.").arg(result);
}

QString BatchPlan::folderText(const QString &folder, const Options &options)
{
    if (!QFileInfo(folder).isReadable())
        return tr("The folder can't be read. Give yourself the permission to read it.");
    return options.recursive ? tr("There are no photographs in this folder or those inside it.")
                             : tr("There are no photographs in this folder. Add --recursive for those in the folders inside it.");
}

QString BatchPlan::skippedText(const QString &result)
{
    return tr("Skipped: its result \"%1\" already exists.").arg(result);
}

QString BatchPlan::resultOf(const QString &path, const QString &given, const Options &options, bool needsTiff)
{
    const QString own = resultName(path, needsTiff);
    if (options.outputIsFile)
        return pathOf(options.output);
    if (options.output.isEmpty() && !options.tag)
        return own;
    const QString folder = options.output.isEmpty() ? QFileInfo(path).absolutePath()
                                                    : QDir::cleanPath(pathOf(options.output) + '/' + options.below.value(given));
    const QString result =
        (folder == "/" ? QString() : folder) + '/' + fileNameWith(options.tag.value_or(ownTag()), path, needsTiff);
    return placeOf(result) == placeOf(own) ? own : result;
}

std::vector<BatchItem> BatchPlan::make(const QStringList &photographs, HostApplication &host, const Options &options)
{
    std::vector<BatchItem> items;
    std::map<QString, std::size_t> inputs; // place of the photograph -> item
    for (const QString &photograph : photographs) {
        BatchItem item;
        const QByteArray bytes = argumentBytes(photograph);
        item.given = QString::fromUtf8(bytes);
        if (item.given.toUtf8() != bytes)
            item.givenBytes = bytes;
        item.path = pathOf(item.given);
        const QDomElement stored = options.settings ? options.settings->element(item.path) : QDomElement();
        WantedStrength wanted = options.strength.value_or(options.defaultStrength);
        if (const auto known = SettingsFile::strengthOf(stored); known && !options.strength)
            wanted = {*known, /*automatic=*/false};
        item.automatic = wanted.automatic;
        item.strength = wanted.percent;
        item.refusal = QFileInfo(item.path).isDir() ? folderText(item.path, options)
                                                    : PhotoLoader::complaint(item.given.isEmpty() ? item.given : item.path);
        if (!item.refusal.isEmpty()) {
            items.push_back(std::move(item));
            continue;
        }
        if (!inputs.emplace(placeOf(item.path), items.size()).second)
            continue;
        item.recordable = true;
        item.existing = options.existing;
        item.keepTime = options.keepTime;
        const bool tiff = host.imageDef(item.path)->needsTiffOutput();
        item.result = resultOf(item.path, photograph, options, tiff);
        const QString suffix = QFileInfo(item.path).suffix();
        item.packing = packingFor(item.result, options.packing);
        if (tiff && !options.outputIsFile && !PhotoLoader::rawSuffixes().contains(suffix.toLower()))
            item.note = suffix.isEmpty() ? tr("It has no suffix, so the result is a TIFF.")
                                         : tr("\"%1\" is not a format that can be written, so the result is a TIFF.").arg(suffix);
        if (!item.automatic)
            item.settings =
                options.strength || stored.isNull() ? SettingsFile::withStrength(options.processName, item.strength) : stored;
        items.push_back(std::move(item));
    }

    std::map<FileId, std::size_t> sources;
    std::map<QString, std::size_t> sourceSpellings; // folded place -> item
    for (const auto &[place, index] : inputs) {
        if (const auto id = idOf(place))
            sources.emplace(*id, index);
        sourceSpellings.emplace(foldedPlace(place), index);
    }
    std::map<QString, std::size_t> results, resultSpellings; // place -> item
    /// The item with this place, or with one that is the same file although it is spelt differently. The file system's numbers
    /// don't tell: there may be no file yet, and some count each spelling.
    const auto itemAt = [&](const QString &place, const std::map<QString, std::size_t> &exact,
                            const std::map<QString, std::size_t> &folded) -> std::optional<std::size_t> {
        if (const auto found = exact.find(place); found != exact.end())
            return found->second;
        if (const auto found = folded.find(foldedPlace(place));
            found != folded.end() && ignoresCase(existingFolder(QFileInfo(place).absolutePath())))
            return found->second;
        return std::nullopt;
    };
    for (std::size_t index = 0; index < items.size(); ++index) {
        BatchItem &item = items[index];
        if (!item.refusal.isEmpty())
            continue;
        if (item.existing == Existing::Number) {
            const QString wanted = item.result;
            for (int number = kFirstNumber; isThere(item.result) || itemAt(placeOf(item.result), results, resultSpellings);
                 ++number)
                item.result = numbered(wanted, number);
        }
        const QString place = placeOf(item.result);
        std::optional<std::size_t> source = itemAt(place, inputs, sourceSpellings);
        if (const auto id = idOf(item.result); id && !source)
            if (const auto found = sources.find(*id); found != sources.end())
                source = found->second;
        if (source) {
            item.refusal = (inWindow() ? tr("Its result \"%1\" is the same file as the photograph \"%2\". Move one of the two "
                                            "away, or choose another folder for the results.")
                                       : tr("Its result \"%1\" is the same file as the photograph \"%2\". Move one of the two "
                                            "away, or choose another folder with --output."))
                               .arg(item.result, items[*source].given);
        } else if (const auto first = itemAt(place, results, resultSpellings)) {
            item.refusal = tr("Its result \"%1\" would also be the result of \"%2\". Rename one of the two photographs, or "
                              "give their results different folders.")
                               .arg(item.result, items[*first].given);
        } else {
            checkResult(item, options);
        }
        results.emplace(place, index);
        resultSpellings.emplace(foldedPlace(place), index);
    }
    return items;
}

void BatchPlan::checkResult(BatchItem &item, const Options &options)
{
    const QFileInfo result(item.result);
    const QString folder = existingFolder(result.absolutePath());
    if (result.isDir()) {
        item.refusal = tr("Its result can't be written: \"%1\" is a folder. Move the folder away.").arg(item.result);
    } else if (isThere(item.result) && item.existing == Existing::Refuse) {
        item.refusal = existsText(item.result);
        item.reason = BatchOutcome::Reason::ResultExists;
    } else if (isThere(item.result) && item.existing == Existing::Skip) {
        item.skipped = skippedText(item.result);
    } else if (item.existing == Existing::Update && isCurrent(item, options)) {
        item.skipped = tr("Skipped: its result \"%1\" is newer than the photograph.").arg(item.result);
    } else if (result.exists() && !(result.isFile() && result.isWritable())) {
        item.refusal =
            (inWindow()
                 ? tr("Its result \"%1\" is write-protected or not a regular file. Move it away, or choose another folder for "
                      "the results.")
                 : tr("Its result \"%1\" is write-protected or not a regular file. Move it away, or choose another folder with "
                      "--output."))
                .arg(item.result);
    } else if (!QFileInfo(folder).isDir()) {
        item.refusal =
            (inWindow() ? tr("Its result can't be written: \"%1\" is not a folder. Choose another one for the results.")
                        : tr("Its result can't be written: \"%1\" is not a folder. Choose another one with --output."))
                .arg(folder);
    } else if (!QFileInfo(folder).isWritable()) {
        item.refusal =
            (inWindow() ? tr("Its result can't be written: the folder \"%1\" is read-only. Choose another one for the results.")
                        : tr("Its result can't be written: the folder \"%1\" is read-only. Choose another one with --output."))
                .arg(folder);
    } else if (QFile::encodeName(result.fileName()).size() > kLongestName) {
        item.refusal = tr("The name of its result would be too long. Give the photograph a shorter name.");
    }
}
