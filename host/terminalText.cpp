#include "terminalText.h"

#include <algorithm>
#include <cwchar>

#include <QRegularExpression>
#include <QTextBoundaryFinder>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

int columnsOf(uint code)
{
    return std::max(wcwidth(wchar_t(code)), 0);
}

int columnsOf(const QString &text)
{
    int columns = 0;
    for (const uint code : text.toUcs4())
        columns += columnsOf(code);
    return columns;
}

/// The text in pieces that a line may end with: words with the blanks behind them, or single ideographs.
QStringList piecesOf(const QString &text)
{
    QStringList pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    int begin = 0;
    while (finder.toNextBoundary() >= 0) {
        const int end = finder.position();
        // Breaks behind hyphens and slashes would cut options and paths.
        if (end < text.size() && !text[end - 1].isSpace() && columnsOf(text[end - 1].unicode()) < 2 &&
            columnsOf(text[end].unicode()) < 2)
            continue;
        pieces << text.mid(begin, end - begin);
        begin = end;
    }
    return pieces;
}

QString wrappedLine(const QString &line, int columns)
{
    static const QRegularExpression label(QStringLiteral("^ *\\S+( \\S+)* {2,}|^ *"));
    const int indent = columnsOf(label.match(line).captured());
    QString text;
    int used = 0;
    for (const QString &piece : piecesOf(line)) {
        const QString word = QString(piece).remove(QRegularExpression(QStringLiteral(" +$")));
        if (used > indent && used + columnsOf(word) > columns) {
            while (text.endsWith(' '))
                text.chop(1);
            text += '\n' + QString(indent, ' ');
            used = indent;
        }
        text += piece;
        used += columnsOf(piece);
    }
    return text;
}

} // namespace

int terminalWidth()
{
    constexpr int kUsualWidth = 80;
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : kUsualWidth;
}

QString fitted(const QString &text, int columns)
{
    QString kept;
    for (const uint code : text.toUcs4()) {
        columns -= columnsOf(code);
        if (columns < 0)
            break;
        kept += QString::fromUcs4(&code, 1);
    }
    return kept;
}

QString wrapped(const QString &text, int columns)
{
    QStringList lines = text.split('\n');
    for (QString &line : lines)
        line = wrappedLine(line, columns);
    return lines.join('\n');
}
