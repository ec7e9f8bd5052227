#pragma once

#include <QStyledItemDelegate>

#include "Series.h"

/// Draws one photograph of the series: its thumbnail with strength and state on it, and its name below.
///
/// Each state has a shape besides its colour, on a dark ground, so that it can be recognised on any photograph, in any theme, and
/// without seeing colours: a dot for edited, three dots for waiting, an arc that turns for in work, a tick for saved, a tick on a
/// line for kept, a round arrow for changed since, a triangle with a mark for failed. Untouched has none.
class FilmstripDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit FilmstripDelegate(QObject *parent = nullptr);

    /// All items have the same size.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// One turn of the arc has 360 degrees.
    void setTurn(int degrees) { turn = degrees; }

private:
    void paintState(QPainter &painter, const QRectF &place, Series::State state) const;

    int turn = 0;
};
