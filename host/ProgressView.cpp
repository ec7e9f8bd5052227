#include "ProgressView.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <unistd.h>

#include "terminalText.h"

namespace {

int outputError = 0; ///< Of the first write to standard output that failed.

/// False if writing failed; errno has the reason.
bool write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const std::size_t length = std::size_t(bytes.size());
    return std::fwrite(bytes.constData(), 1, length, stream) == length && std::fflush(stream) == 0;
}

/// A file name may hold control characters, which a terminal would obey.
QString harmless(QString text)
{
    for (QChar &character : text)
        if (character.category() == QChar::Other_Control)
            character = '?';
    return text;
}

/// A path as short as it can be said in the current folder.
QString shortPath(const QString &path)
{
    const QString relative = QDir::current().relativeFilePath(path);
    return relative.startsWith("../") ? path : relative;
}

/// How much of a photograph's time has passed when a stage begins: the engine takes about two thirds of it.
double shareBefore(BatchRunner::Stage stage)
{
    return stage == BatchRunner::Stage::Reading ? 0 : stage == BatchRunner::Stage::Dehazing ? 1 / 6.0 : 5 / 6.0;
}

/// The name without its middle if it is longer than this, since numbers and suffixes at its end tell photographs apart.
QString shortened(const QString &name, int length)
{
    constexpr int kEnd = 8, kLeast = 2 * kEnd;
    length = std::max(length, kLeast);
    return name.size() <= length ? name : name.left(length - kEnd - 3) + "..." + name.right(kEnd);
}

QString secondsText(double seconds)
{
    return QString::number(seconds, 'f', 1);
}

QString durationText(double seconds)
{
    constexpr int kMinute = 60, kHour = 3600;
    const int whole = int(seconds + 0.5);
    if (whole < 2 * kMinute)
        return ProgressView::tr("%1 s").arg(whole);
    if (whole < 2 * kHour)
        return ProgressView::tr("%1 min").arg((whole + kMinute / 2) / kMinute);
    return ProgressView::tr("%1 h %2 min").arg(whole / kHour).arg(whole % kHour / kMinute);
}

} // namespace

ProgressView::ProgressView(Style look, bool withNotes, const std::vector<BatchItem> &batch)
    : style(look), notes(withNotes), items(batch), outcomes(batch.size())
{
    for (const BatchItem &item : items) {
        bytes.push_back(item.refusal.isEmpty() && item.skipped.isEmpty() ? QFileInfo(item.path).size() : 0);
        allBytes += bytes.back();
    }
    since.start();
}

bool ProgressView::isTerminal(int stream)
{
    return isatty(stream) && qgetenv("TERM") != "dumb";
}

void ProgressView::complain(const QString &text)
{
    const bool coloured = isTerminal(STDERR_FILENO) && qEnvironmentVariableIsEmpty("NO_COLOR");
    write(stderr, (coloured ? "\x1b[31mveilaway:\x1b[0m " : "veilaway: ") + harmless(text) + '\n');
}

void ProgressView::note(const QString &text)
{
    write(stderr, "veilaway: " + harmless(text) + '\n');
}

void ProgressView::say(const QString &text)
{
    if (!write(stdout, text) && outputError == 0)
        outputError = errno;
}

bool ProgressView::allSaid()
{
    if (outputError != 0)
        complain(tr("Writing to standard output failed: %1. Make room there, or redirect it.").arg(qt_error_string(outputError)));
    return outputError == 0;
}

bool ProgressView::allDone() const
{
    return counts[Failed] + counts[NotBegun] == 0;
}

void ProgressView::stageBegins(int item, BatchRunner::Stage stage)
{
    inProgress[item] = stage;
    if (style != Style::Terminal)
        return;
    erase();
    draw();
}

void ProgressView::finished(int index, const BatchOutcome &outcome)
{
    using Status = BatchOutcome::Status;
    const BatchItem &item = items[std::size_t(index)];
    const bool notBegun = outcome.reason == BatchOutcome::Reason::NotBegun, skipped = outcome.status == Status::Skipped;
    inProgress.erase(index);
    outcomes[std::size_t(index)] = outcome;
    finishedBytes += bytes[std::size_t(index)];
    ++finishedCount;
    ++counts[outcome.status == Status::Done        ? Done
             : outcome.status == Status::Unchanged ? Unchanged
             : skipped                             ? Skipped
             : notBegun                            ? NotBegun
                                                   : Failed];
    erase();
    if (!outcome.message.isEmpty() && !skipped && !notBegun)
        complain(item.given + ": " + outcome.message);
    if (outcome.status == Status::Failed && failure.isEmpty())
        failure = item.given + ": " + outcome.message;
    if (outcome.status == Status::Unchanged && notes)
        note(item.given + ": " + outcome.unchanged);
    const QString took = item.automatic && outcome.hasResult()
                             ? tr("%1 %, %2 s").arg(*outcome.strength).arg(secondsText(outcome.seconds))
                             : tr("%1 s").arg(secondsText(outcome.seconds));
    if (style == Style::Json)
        sayObject(index, outcome, nullptr);
    else if (style == Style::Terminal && outcome.hasResult())
        say(QStringLiteral("%1 -> %2 (%3)\n").arg(harmless(item.given), harmless(shortPath(item.result)), took));
    else if (style == Style::Lines && outcome.hasResult())
        say(tr("%1: %2 (%3)").arg(harmless(item.given), harmless(item.result), took) + '\n');
    draw();
}

void ProgressView::planned(int index, const BatchRunner::Forecast &forecast)
{
    const BatchItem &item = items[std::size_t(index)];
    ++counts[Planned];
    BatchOutcome outcome;
    if (!item.automatic)
        outcome.strength = item.strength;
    if (style == Style::Json)
        sayObject(index, outcome, &forecast);
    if (style == Style::Json || style == Style::Quiet)
        return;
    const QLocale locale;
    const QString strength = item.automatic ? tr("automatic strength") : tr("%1 %").arg(item.strength);
    say(tr("%1: %2 (%3 x %4 pixels, %5 of memory, %6)")
            .arg(harmless(item.given), harmless(style == Style::Terminal ? shortPath(item.result) : item.result),
                 QString::number(forecast.head.width), QString::number(forecast.head.height),
                 locale.formattedDataSize(forecast.memoryBytes, 1, QLocale::DataSizeSIFormat), strength) +
        '\n');
}

void ProgressView::sayObject(int index, const BatchOutcome &outcome, const BatchRunner::Forecast *forecast) const
{
    constexpr int kSchema = 1;
    using Status = BatchOutcome::Status;
    const BatchItem &item = items[std::size_t(index)];
    const bool unchanged = outcome.status == Status::Unchanged;
    const char *const status = forecast                            ? "planned"
                               : outcome.status == Status::Done    ? "done"
                               : unchanged                         ? "unchanged"
                               : outcome.status == Status::Skipped ? "skipped"
                               : outcome.status == Status::Stopped ? "stopped"
                                                                   : "failed";
    QJsonObject object{{"schema", kSchema},
                       {"photo", item.given},
                       {"result", outcome.hasResult() || forecast ? QJsonValue(item.result) : QJsonValue()},
                       {"status", status},
                       {"strength", outcome.strength ? QJsonValue(*outcome.strength) : QJsonValue()},
                       {"automatic", item.automatic},
                       {"seconds", outcome.seconds},
                       {"message", outcome.message},
                       {"unchanged", unchanged ? QJsonValue(outcome.unchanged) : QJsonValue()}};
    if (forecast) {
        object.insert("width", forecast->head.width);
        object.insert("height", forecast->head.height);
        object.insert("memory_bytes", forecast->memoryBytes);
    }
    if (!item.givenBytes.isEmpty())
        object.insert("photo_bytes", QString::fromLatin1(item.givenBytes.toPercentEncoding()));
    say(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + '\n');
}

void ProgressView::summarize()
{
    if (style != Style::Quiet && style != Style::Json && !(items.size() == 1 && counts[Done] + counts[Unchanged] == 1))
        write(stderr, summary() + '\n');
}

QString ProgressView::summary() const
{
    QStringList parts;
    if (counts[Planned] > 0)
        parts << tr("%n photograph(s) would be done.", nullptr, counts[Planned]);
    else
        parts << tr("%n photograph(s) done.", nullptr, counts[Done]);
    if (counts[Unchanged] > 0)
        parts << tr("%n came back unchanged.", nullptr, counts[Unchanged]);
    if (counts[Skipped] > 0)
        parts << tr("%n skipped.", nullptr, counts[Skipped]);
    if (counts[Failed] > 0)
        parts << tr("%n failed.", nullptr, counts[Failed]);
    if (counts[NotBegun] > 0)
        parts << tr("%n not started.", nullptr, counts[NotBegun]);
    return parts.join(' ');
}

void ProgressView::erase()
{
    if (linesDrawn > 0)
        say(QStringLiteral("\r\x1b[%1A\x1b[J").arg(linesDrawn));
    linesDrawn = 0;
}

QString ProgressView::total(int columns) const
{
    constexpr int kBarWidth = 20, kNotYet = 3; // seconds, in which there is nothing to conclude from
    double past = double(finishedBytes);
    for (const auto &[index, stage] : inProgress)
        past += double(bytes[std::size_t(index)]) * shareBefore(stage);
    const double share = allBytes > 0 ? past / double(allBytes) : 1, seconds = double(since.elapsed()) / 1000;
    QString text = tr("%1 of %2").arg(finishedCount).arg(items.size());
    if (share > 0 && seconds >= kNotYet)
        text += tr(", %1 left").arg(durationText(seconds * (1 - share) / share));
    const int width = std::clamp(columns - text.size() - 3, 0, kBarWidth), filled = std::min(int(share * width), width);
    return '[' + QString(filled, '#') + QString(width - filled, '-') + "] " + text;
}

QString ProgressView::inWork(int columns) const
{
    QStringList words, names;
    int room = columns;
    for (const auto &[index, stage] : inProgress) {
        words << (stage == BatchRunner::Stage::Reading    ? tr("reading %1")
                  : stage == BatchRunner::Stage::Dehazing ? tr("removing haze: %1")
                                                          : tr("saving %1"));
        names << harmless(QFileInfo(items[std::size_t(index)].given).fileName());
        room -= words.last().size();
    }
    for (int i = 0; i < words.size(); ++i)
        words[i] = words[i].arg(shortened(names[i], room / words.size()));
    return words.join(", ");
}

void ProgressView::draw()
{
    if (style != Style::Terminal || inProgress.empty())
        return;
    const int columns = terminalWidth() - 1; // a line that wraps could not be redrawn
    QString text = fitted(inWork(columns), columns) + '\n';
    if (items.size() > 1)
        text = fitted(total(columns), columns) + '\n' + text;
    linesDrawn = text.count('\n');
    say(text);
}
