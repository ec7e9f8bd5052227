#include "propertyRows.h"

QList<QStringList> propertyRows(const QByteArray &text, int cellCount)
{
    QList<QStringList> rows;
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith('#'))
            continue;
        const QString row = QString::fromLocal8Bit(line);
        QStringList cells;
        for (int i = 0; i < cellCount; ++i) {
            const bool last = i + 1 == cellCount;
            cells.append(row.section(QLatin1Char(';'), i, last ? -1 : i).trimmed());
        }
        if (row.count(QLatin1Char(';')) + 1 >= cellCount)
            rows.append(cells);
    }
    return rows;
}
