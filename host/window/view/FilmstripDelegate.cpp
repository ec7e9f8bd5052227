#include "FilmstripDelegate.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPixmapCache>

#include "pictureColours.h"

namespace {

constexpr int kThumbWidth = 120, kThumbHeight = 80; ///< Room for a thumbnail.
constexpr int kPadding = 6;
constexpr int kChipInset = 4; ///< From the thumbnail's edge.

const QColor kNoPicture(110, 110, 110); ///< Around the room of a thumbnail that is not there.
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

void FilmstripDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    // The photograph in view is filled, others that are selected have a frame and their name filled.
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    const bool current = view && view->currentIndex() == index, selected = option.state & QStyle::State_Selected;
    const QPalette &palette = option.palette;
    const QPalette::ColorGroup group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    const QColor highlight = palette.color(group, QPalette::Highlight);
    const QRect room(option.rect.left() + kPadding, option.rect.top() + kPadding, kThumbWidth, kThumbHeight);
    const QRect line(room.left(), room.bottom() + 1 + kPadding / 2, room.width(), option.fontMetrics.height());
    if (current || selected) {
        painter->setPen(QPen(highlight, 2));
        painter->setBrush(current ? QBrush(highlight) : QBrush(Qt::NoBrush));
        painter->drawRoundedRect(QRectF(option.rect).adjusted(2, 2, -2, -2), 3, 3);
        if (selected)
            painter->fillRect(line, highlight);
    }

    QRect place = room;
    const auto thumbnail = index.data(Series::ThumbnailRole).value<QImage>();
    if (thumbnail.isNull()) {
        painter->setPen(kNoPicture); // to be seen on a dark window
        painter->setBrush(kSurround);
        painter->drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
    } else {
        const QPixmap pixmap = fitted(thumbnail, painter->device()->devicePixelRatioF());
        place.setSize((QSizeF(pixmap.size()) / pixmap.devicePixelRatioF()).toSize());
        place.moveCenter(room.center());
        painter->drawPixmap(place.topLeft(), pixmap);
    }

    // Strength and state are in the corners of the thumbnail's room, so that a narrow thumbnail has room for both.
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
    painter->setPen(palette.color(group, current || selected ? QPalette::HighlightedText : QPalette::WindowText));
    painter->drawText(line, Qt::AlignCenter,
                      option.fontMetrics.elidedText(index.data(Series::NameRole).toString(), Qt::ElideMiddle, line.width()));
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
        stroke(kSaved);
        painter.drawPolyline(QPolygonF(QVector<QPointF>{at(0.12, 0.52), at(0.4, 0.8), at(0.88, 0.22)}));
        break;
    case Series::State::Kept:
        stroke(kOnChip);
        painter.drawPolyline(QPolygonF(QVector<QPointF>{at(0.2, 0.36), at(0.42, 0.58), at(0.8, 0.1)}));
        painter.drawLine(at(0.12, 0.86), at(0.88, 0.86));
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
