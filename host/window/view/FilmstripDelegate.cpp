#include "FilmstripDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QPixmapCache>
#include <QToolTip>

#include "pictureColours.h"

namespace {

constexpr int kThumbWidth = 120, kThumbHeight = 80; ///< Room for a thumbnail.
constexpr int kPadding = 6;
constexpr int kChipInset = 4; ///< From the thumbnail's edge.

const QColor kEdited(120, 180, 255), kSaved(110, 220, 120), kChanged(255, 200, 80), kFailed(255, 120, 110);

/// The thumbnail at the size in which it is shown, kept for the next time.
QPixmap fitted(const QImage &thumbnail, double ratio)
{
    const QString key = QStringLiteral("filmstrip %1 %2").arg(thumbnail.cacheKey()).arg(ratio);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        const QSize room = QSize(kThumbWidth, kThumbHeight) * ratio;
        pixmap = QPixmap::fromImage(thumbnail.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        pixmap.setDevicePixelRatio(ratio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

} // namespace

FilmstripDelegate::FilmstripDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

QSize FilmstripDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {kThumbWidth + 2 * kPadding, kThumbHeight + 3 * kPadding + option.fontMetrics.height()};
}

QString FilmstripDelegate::textOf(Series::State state)
{
    switch (state) {
    case Series::State::Untouched:
        break;
    case Series::State::Edited:
        return tr("edited");
    case Series::State::Waiting:
        return tr("waiting to be saved");
    case Series::State::InWork:
        return tr("being saved");
    case Series::State::Saved:
        return tr("saved");
    case Series::State::ChangedSince:
        return tr("changed since it was saved");
    case Series::State::Kept:
        return tr("existing result kept");
    case Series::State::Failed:
        return tr("failed");
    }
    return {};
}

QString FilmstripDelegate::describe(const QModelIndex &index)
{
    QStringList lines{index.data(Series::NameRole).toString()};
    if (const QVariant strength = index.data(Series::StrengthRole); strength.isValid())
        lines << (index.data(Series::AutomaticRole).toBool() ? tr("Strength %1 %, automatic") : tr("Strength %1 %"))
                     .arg(strength.toInt());
    const QString state = textOf(Series::State(index.data(Series::StateRole).toInt())),
                  reason = index.data(Series::ReasonRole).toString();
    if (!state.isEmpty())
        lines << state;
    if (!reason.isEmpty())
        lines << reason;
    return lines.join(QLatin1Char('\n'));
}

bool FilmstripDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                                  const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), describe(index), view, option.rect);
    return true;
}

void FilmstripDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool selected = option.state & QStyle::State_Selected;
    const QPalette::ColorGroup group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    const QPalette &palette = option.palette;
    if (selected)
        painter->fillRect(option.rect, palette.brush(group, QPalette::Highlight));
    const QRect room(option.rect.left() + kPadding, option.rect.top() + kPadding, kThumbWidth, kThumbHeight);

    QRect place = room;
    const auto thumbnail = index.data(Series::ThumbnailRole).value<QImage>();
    if (thumbnail.isNull()) {
        painter->fillRect(place, kSurround);
    } else {
        const QPixmap pixmap = fitted(thumbnail, painter->device()->devicePixelRatioF());
        place.setSize((QSizeF(pixmap.size()) / pixmap.devicePixelRatioF()).toSize());
        place.moveCenter(room.center());
        painter->drawPixmap(place.topLeft(), pixmap);
    }

    // Strength and state share one ground at the bottom right of the thumbnail's room, so that narrow ones have it too.
    const auto state = Series::State(index.data(Series::StateRole).toInt());
    const QVariant strength = index.data(Series::StrengthRole);
    QFont bold = option.font;
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int icon = metrics.ascent() + 2, chipHeight = metrics.height() + 2;
    const QString percent = strength.isValid() ? tr("%1 %").arg(strength.toInt()) : QString();
    const auto paintGround = [&](const QRect &chip) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(kChip);
        painter->drawRoundedRect(chip, 4, 4);
    };
    if (!percent.isEmpty()) {
        QRect chip(0, 0, metrics.horizontalAdvance(percent) + chipHeight / 2, chipHeight);
        chip.moveBottomRight({room.right() - kChipInset, room.bottom() - kChipInset});
        paintGround(chip);
        painter->setFont(bold);
        painter->setPen(kOnChip);
        painter->drawText(chip, Qt::AlignCenter, percent);
    }
    if (state != Series::State::Untouched) {
        QRect chip(0, 0, icon + 6, chipHeight);
        chip.moveBottomLeft({room.left() + kChipInset, room.bottom() - kChipInset});
        paintGround(chip);
        QRectF inside(0, 0, icon, icon);
        inside.moveCenter(QRectF(chip).center());
        paintState(*painter, inside, state);
    }

    painter->setFont(option.font);
    painter->setPen(palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    const QRect line(room.left(), room.bottom() + 1 + kPadding / 2, room.width(), option.fontMetrics.height());
    painter->drawText(line, Qt::AlignCenter,
                      option.fontMetrics.elidedText(index.data(Series::NameRole).toString(), Qt::ElideMiddle, line.width()));

    if (option.state & QStyle::State_HasFocus) {
        painter->setRenderHint(QPainter::Antialiasing, false);
        painter->setPen(QPen(palette.color(group, selected ? QPalette::HighlightedText : QPalette::Highlight), 2));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
    painter->restore();
}

void FilmstripDelegate::paintState(QPainter &painter, const QRectF &place, Series::State state) const
{
    const double side = place.width();
    const auto at = [&](double x, double y) { return place.topLeft() + QPointF(x, y) * side; };
    const auto stroke = [&](const QColor &colour) {
        painter.setPen(QPen(colour, side / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
    };
    const auto fill = [&](const QColor &colour) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
    };
    switch (state) {
    case Series::State::Untouched:
        break;
    case Series::State::Edited:
        fill(kEdited);
        painter.drawEllipse(place.center(), side * 0.24, side * 0.24);
        break;
    case Series::State::Waiting:
        fill(kOnChip);
        for (const double x : {0.18, 0.5, 0.82})
            painter.drawEllipse(at(x, 0.5), side * 0.1, side * 0.1);
        break;
    case Series::State::InWork:
        stroke(kOnChip);
        painter.drawArc(QRectF(at(0.14, 0.14), at(0.86, 0.86)), -turn * 16, 270 * 16);
        break;
    case Series::State::Saved:
    case Series::State::Kept:
        stroke(state == Series::State::Saved ? kSaved : kOnChip);
        painter.drawPolyline(QPolygonF(QVector<QPointF>{at(0.12, 0.52), at(0.4, 0.8), at(0.88, 0.22)}));
        break;
    case Series::State::ChangedSince:
        stroke(kChanged);
        painter.drawArc(QRectF(at(0.14, 0.14), at(0.86, 0.86)), 60 * 16, 270 * 16);
        fill(kChanged);
        painter.drawPolygon(QPolygonF(QVector<QPointF>{at(0.98, 0.12), at(0.92, 0.52), at(0.58, 0.3)}));
        break;
    case Series::State::Failed:
        fill(kFailed);
        painter.drawPolygon(QPolygonF(QVector<QPointF>{at(0.5, 0.02), at(1, 0.95), at(0, 0.95)}));
        fill(Qt::black);
        painter.drawRect(QRectF(at(0.45, 0.35), at(0.55, 0.67)));
        painter.drawRect(QRectF(at(0.45, 0.75), at(0.55, 0.86)));
        break;
    }
}
