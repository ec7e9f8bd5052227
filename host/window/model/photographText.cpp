#include "photographText.h"

#include <QCoreApplication>

QString stateText(Series::State state)
{
    switch (state) {
    case Series::State::Untouched:
        break;
    case Series::State::Edited:
        return QCoreApplication::translate("Series", "edited");
    case Series::State::Waiting:
        return QCoreApplication::translate("Series", "waiting to be saved");
    case Series::State::InWork:
        return QCoreApplication::translate("Series", "being saved");
    case Series::State::Saved:
        return QCoreApplication::translate("Series", "saved");
    case Series::State::ChangedSince:
        return QCoreApplication::translate("Series", "changed since it was saved");
    case Series::State::Kept:
        return QCoreApplication::translate("Series", "existing result kept");
    case Series::State::Failed:
        return QCoreApplication::translate("Series", "failed");
    }
    return {};
}

QString photographText(const QModelIndex &index)
{
    QStringList lines{index.data(Series::NameRole).toString()};
    if (const QVariant strength = index.data(Series::StrengthRole); strength.isValid())
        lines << (index.data(Series::AutomaticRole).toBool() ? QCoreApplication::translate("Series", "Strength %1 %, automatic")
                                                             : QCoreApplication::translate("Series", "Strength %1 %"))
                     .arg(strength.toInt());
    const QString state = stateText(Series::State(index.data(Series::StateRole).toInt())),
                  reason = index.data(Series::ReasonRole).toString();
    if (!state.isEmpty())
        lines << state;
    if (!reason.isEmpty())
        lines << reason;
    return lines.join(QLatin1Char('\n'));
}
