#include "ProgressView.h"

#include <cerrno>
#include <cstdio>

#include <QJsonDocument>
#include <QJsonObject>

#include "terminalText.h"

namespace {

constexpr int kBarWidth = 20;

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

QString bar(int filled)
{
    return '[' + QString(filled, '#') + QString(kBarWidth - filled, '-') + ']';
}

QString secondsText(double seconds)
{
    return QString::number(seconds, 'f', 1);
}

} // namespace

void ProgressView::complain(const QString &text)
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

void ProgressView::stageBegins(int item, BatchRunner::Stage stage)
{
    inProgress[item] = stage;
    if (style != Style::Bars)
        return;
    eraseBars();
    drawBars();
}

void ProgressView::finished(int index, const BatchOutcome &outcome)
{
    const BatchItem &item = items[std::size_t(index)];
    const bool unchanged = outcome.status == BatchOutcome::Status::Unchanged;
    const bool written = outcome.hasResult();
    const bool notBegun = outcome.reason == BatchOutcome::Reason::NotBegun;
    const bool stopped = outcome.status == BatchOutcome::Status::Stopped;
    inProgress.erase(index);
    outcomes[std::size_t(index)] = outcome;
    ++finishedCount;
    doneCount += written && !unchanged;
    unchangedCount += unchanged;
    const bool skipped = outcome.status == BatchOutcome::Status::Skipped;
    skippedCount += skipped;
    notBegunCount += notBegun;
    eraseBars();
    if (!outcome.message.isEmpty() && !notBegun && (!skipped || notes))
        complain(item.given + ": " + outcome.message);
    if (unchanged && notes)
        complain(item.given + ": " + outcome.unchanged);
    QString took = secondsText(outcome.seconds);
    took = item.automatic && written ? tr("%1 %, %2 s").arg(*outcome.strength).arg(took) : tr("%1 s").arg(took);
    switch (style) {
    case Style::Bars:
        if (written)
            say(QStringLiteral("%1 %2  %3 -> %4\n").arg(bar(kBarWidth), took, harmless(item.given), harmless(item.result)));
        break;
    case Style::Lines:
        if (written)
            say(tr("%1: %2 (%3)").arg(harmless(item.given), harmless(item.result), took) + '\n');
        break;
    case Style::Json: {
        const char *status = unchanged ? "unchanged" : written ? "done" : skipped ? "skipped" : stopped ? "stopped" : "failed";
        QJsonObject object{{"photo", item.given},
                           {"result", written ? QJsonValue(item.result) : QJsonValue()},
                           {"status", status},
                           {"strength", outcome.strength ? QJsonValue(*outcome.strength) : QJsonValue()},
                           {"automatic", item.automatic},
                           {"seconds", outcome.seconds},
                           {"message", outcome.message},
                           {"unchanged", unchanged ? QJsonValue(outcome.unchanged) : QJsonValue()}};
        if (!item.givenBytes.isEmpty())
            object.insert("photo_bytes", QString::fromLatin1(item.givenBytes.toPercentEncoding()));
        say(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + '\n');
        break;
    }
    case Style::Quiet:
        break;
    }
    drawBars();
}

void ProgressView::summarize()
{
    if (notBegunCount > 0)
        complain(tr("%n photograph(s) not started.", nullptr, notBegunCount));
    if (style == Style::Quiet || style == Style::Json || (items.size() == 1 && allDone()))
        return;
    const int failed = int(items.size()) - doneCount - unchangedCount - skippedCount;
    const QString text = failed == 0 ? tr("%n photograph(s) done.", nullptr, doneCount)
                                     : tr("%1 of %2 photographs done, %3 not.").arg(doneCount).arg(items.size()).arg(failed);
    write(stderr, text + (unchangedCount > 0 ? ' ' + tr("%n came back unchanged.", nullptr, unchangedCount) : QString()) + '\n');
}

void ProgressView::eraseBars()
{
    if (barsDrawn > 0)
        say(QStringLiteral("\r\x1b[%1A\x1b[J").arg(barsDrawn));
    barsDrawn = 0;
}

void ProgressView::drawBars()
{
    if (style != Style::Bars || inProgress.empty())
        return;
    const int columns = terminalWidth() - 1; // a line that wraps could not be redrawn
    QString text;
    for (const auto &[index, stage] : inProgress) {
        // The engine takes about two thirds of the time, reading and saving the rest.
        const int filled = stage == BatchRunner::Stage::Reading    ? 0
                           : stage == BatchRunner::Stage::Dehazing ? kBarWidth / 6
                                                                   : kBarWidth * 5 / 6;
        const QString word = stage == BatchRunner::Stage::Reading    ? tr("reading")
                             : stage == BatchRunner::Stage::Dehazing ? tr("removing haze")
                                                                     : tr("saving");
        text += fitted(bar(filled) + ' ' + word + "  " + harmless(items[std::size_t(index)].given), columns) + '\n';
        ++barsDrawn;
    }
    if (items.size() > 1) {
        text += fitted(tr("%1 of %2").arg(finishedCount).arg(items.size()), columns) + '\n';
        ++barsDrawn;
    }
    say(text);
}
