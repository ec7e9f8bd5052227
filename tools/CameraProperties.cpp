#include "CameraProperties.h"

#include <QtNumeric>

#include "propertyRows.h"

namespace {

bool wordBeginsWith(const QString &model, const QString &name)
{
    for (int at = model.indexOf(name, 0, Qt::CaseInsensitive); at >= 0; at = model.indexOf(name, at + 1, Qt::CaseInsensitive)) {
        const int end = at + name.size();
        const bool wordStart = at == 0 || !model[at - 1].isLetterOrNumber();
        const bool cutsNumber = end < model.size() && model[end - 1].isDigit() && model[end].isDigit();
        if (wordStart && !cutsNumber)
            return true;
    }
    return false;
}

} // namespace

QVector<CameraProperties::Row> CameraProperties::read(const QByteArray &text)
{
    QVector<Row> rows;
    for (const QStringList &cells : propertyRows(text, /*cellCount=*/3)) {
        const int comment = cells[2].indexOf(QLatin1Char('#'));
        bool isNumber = false;
        const double scale = cells[2].left(comment).trimmed().toDouble(&isNumber);
        if (isNumber && qIsFinite(scale) && scale > 0 && !cells[1].isEmpty())
            rows.append({cells[0], cells[1], scale});
    }
    return rows;
}

double CameraProperties::sensorScale(const QVector<Row> &rows, const QString &brand, const QString &model)
{
    for (const Row &row : rows)
        if (brand.startsWith(row.brand, Qt::CaseInsensitive) && wordBeginsWith(model, row.name))
            return row.sensorScale;
    return 0;
}
