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
    for (int at = 1; at < text.size(); ++at) {
        const QChar before = text[at - 1];
        const bool isComma = before == QChar(0x3001) || before == QChar(0xFF0C);
        const bool isWide = columnsOf(before.unicode()) > 1 || columnsOf(text[at].unicode()) > 1;
        finder.setPosition(at);
        // Not behind hyphens and slashes, which would cut options and paths.
        if (isComma || (finder.isAtBoundary() && (before.isSpace() || isWide))) {
            pieces << text.mid(begin, at - begin);
            begin = at;
        }
    }
    return pieces << text.mid(begin);
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
