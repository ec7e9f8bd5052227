#include "ProgressView.h"

#include <cstdio>
#include <cwchar>

#include <QJsonDocument>
#include <QJsonObject>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int kBarWidth = 20;

void write(std::FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream);
    std::fflush(stream);
}

/// A file name may hold anything; a terminal would obey some of it.
QString harmless(QString text)
{
    for (QChar &character : text)
        if (character.category() == QChar::Other_Control)
            character = '?';
    return text;
}

int terminalWidth()
{
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

/// The text cut to so many columns of a terminal; a line that wraps could not be redrawn.
QString fitted(const QString &text, int columns)
{
    QString kept;
    for (const uint code : text.toUcs4()) {
        columns -= std::max(wcwidth(wchar_t(code)), 0);
        if (columns < 0)
            break;
        kept += QString::fromUcs4(&code, 1);
    }
    return kept;
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

void ProgressView::stageBegins(int item, BatchRunner::Stage stage)
{
    inHand[item] = stage;
    if (style != Style::Bars)
        return;
    eraseBars();
    drawBars();
}

void ProgressView::finished(int index, const BatchOutcome &outcome)
{
    const BatchItem &item = items[std::size_t(index)];
    const bool unchanged = outcome.status == BatchOutcome::Status::Unchanged;
    const bool written = unchanged || outcome.status == BatchOutcome::Status::Done;
    inHand.erase(index);
    ++finishedCount;
    doneCount += written && !unchanged;
    unchangedCount += unchanged;
    eraseBars();
    if (!outcome.message.isEmpty())
        complain(item.given + ": " + outcome.message);
    if (unchanged && notes)
        complain(item.given + ": " + outcome.unchanged);
    switch (style) {
    case Style::Bars:
        if (written)
            write(stdout, QStringLiteral("%1 %2  %3 -> %4\n")
                              .arg(bar(kBarWidth), tr("%1 s").arg(secondsText(outcome.seconds)), harmless(item.given),
                                   harmless(item.result)));
        break;
    case Style::Lines:
        if (written)
            write(stdout,
                  tr("%1: %2 (%3 s)").arg(harmless(item.given), harmless(item.result), secondsText(outcome.seconds)) + '\n');
        break;
    case Style::Json: {
        const char *status = unchanged                                         ? "unchanged"
                             : written                                         ? "done"
                             : outcome.status == BatchOutcome::Status::Stopped ? "stopped"
                                                                               : "failed";
        const QJsonObject object{{"photo", item.given},
                                 {"result", written ? QJsonValue(item.result) : QJsonValue()},
                                 {"status", status},
                                 {"strength", item.strength},
                                 {"seconds", outcome.seconds},
                                 {"message", outcome.message},
                                 {"unchanged", unchanged ? QJsonValue(outcome.unchanged) : QJsonValue()}};
        write(stdout, QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + '\n');
        break;
    }
    case Style::Quiet:
        break;
    }
    drawBars();
}

void ProgressView::summarize()
{
    if (style == Style::Quiet || style == Style::Json || (items.size() == 1 && allDone()))
        return;
    const int failed = int(items.size()) - doneCount - unchangedCount;
    const QString text = failed == 0 ? tr("%1 photographs done.").arg(doneCount)
                                     : tr("%1 of %2 photographs done, %3 not.").arg(doneCount).arg(items.size()).arg(failed);
    write(stderr, text + (unchangedCount > 0 ? ' ' + tr("%1 came back unchanged.").arg(unchangedCount) : QString()) + '\n');
}

void ProgressView::eraseBars()
{
    if (barsDrawn > 0)
        write(stdout, QStringLiteral("\r\x1b[%1A\x1b[J").arg(barsDrawn));
    barsDrawn = 0;
}

void ProgressView::drawBars()
{
    if (style != Style::Bars || inHand.empty())
        return;
    const int columns = terminalWidth() - 1;
    QString text;
    for (const auto &[index, stage] : inHand) {
        // The engine takes about two thirds of the time; reading and saving share the rest.
        const int filled = stage == BatchRunner::Stage::Reading    ? 0
                           : stage == BatchRunner::Stage::Dehazing ? kBarWidth / 6
                                                                   : kBarWidth * 5 / 6;
        const QString word = stage == BatchRunner::Stage::Reading    ? tr("reading")
                             : stage == BatchRunner::Stage::Dehazing ? tr("taking haze away")
                                                                     : tr("saving");
        text += fitted(bar(filled) + ' ' + word + "  " + harmless(items[std::size_t(index)].given), columns) + '\n';
        ++barsDrawn;
    }
    if (items.size() > 1) {
        text += fitted(tr("%1 of %2").arg(finishedCount).arg(items.size()), columns) + '\n';
        ++barsDrawn;
    }
    write(stdout, text);
}
