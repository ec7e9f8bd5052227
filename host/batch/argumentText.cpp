#include "argumentText.h"

namespace {

constexpr int kLongestLetter = 4; ///< Bytes of UTF-8.
constexpr ushort kFirst = 0xDC80, kLast = 0xDCFF;

bool isUtf8(const QByteArray &bytes)
{
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

} // namespace

QString argumentText(const QByteArray &argument)
{
    if (isUtf8(argument))
        return QString::fromUtf8(argument);
    QString text;
    for (int at = 0, length = 1; at < argument.size(); at += length) {
        length = 1;
        while (length <= kLongestLetter && !isUtf8(argument.mid(at, length)))
            ++length;
        if (length <= kLongestLetter) {
            text += QString::fromUtf8(argument.mid(at, length));
        } else {
            length = 1;
            text += QChar(ushort(0xDC00 + uchar(argument[at])));
        }
    }
    return text;
}

QByteArray argumentBytes(const QString &text)
{
    QByteArray bytes;
    int from = 0;
    for (int at = 0; at < text.size(); ++at) {
        const ushort unit = text[at].unicode();
        if (unit < kFirst || unit > kLast || (at > from && text[at - 1].isHighSurrogate()))
            continue;
        bytes += text.mid(from, at - from).toUtf8() + char(unit - 0xDC00);
        from = at + 1;
    }
    return bytes + text.mid(from).toUtf8();
}
