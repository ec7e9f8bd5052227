#include "LensIDProperties.h"

#include <QtNumeric>

#include "propertyRows.h"

namespace {

/// The numbers of an identifier; none if it holds anything else.
QVector<double> numbersOf(const QString &identifier)
{
    QVector<double> numbers;
    for (const QString &word : identifier.simplified().split(QLatin1Char(' '))) {
        bool isNumber = false;
        numbers.append(word.toDouble(&isNumber));
        if (!isNumber || !qIsFinite(numbers.last())) // "nan" would never be found again
            return {};
    }
    return numbers;
}

} // namespace

QVector<LensIDProperties::Row> LensIDProperties::read(const QByteArray &text)
{
    QVector<Row> rows;
    for (const QStringList &cells : propertyRows(text, /*cellCount=*/4)) {
        bool isNumber = false;
        const int kind = cells[3].toInt(&isNumber);
        if (isNumber && kind >= Standard && kind <= TiltShift && !numbersOf(cells[0]).isEmpty())
            rows.append({cells[0].simplified(), cells[1], cells[2], static_cast<Kind>(kind)});
    }
    return rows;
}

const LensIDProperties::Row *LensIDProperties::find(const QVector<Row> &rows, const QString &brand, const QString &identifier)
{
    const QVector<double> wanted = numbersOf(identifier);
    for (const Row &row : rows)
        if (row.brand.compare(brand, Qt::CaseInsensitive) == 0 && !wanted.isEmpty() && numbersOf(row.identifier) == wanted)
            return &row;
    return nullptr;
}
