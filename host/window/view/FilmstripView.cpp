#include "FilmstripView.h"

#include <algorithm>

#include <QPainter>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>

#include "FilmstripDelegate.h"

namespace {

constexpr int kTurnMs = 80, kTurnDegrees = 30; ///< The arc of photographs in work turns once per second.

} // namespace

FilmstripView::FilmstripView(QWidget *parent) : QListView(parent), painterOfItems(new FilmstripDelegate(this))
{
    setAccessibleName(tr("Photographs"));
    setItemDelegate(painterOfItems);
    setFlow(LeftToRight);
    setWrapping(false);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // the height is the same for one photograph and a thousand
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFrameShape(NoFrame);
    viewport()->setBackgroundRole(QPalette::Window); // white beside a photograph would dazzle
}

QSize FilmstripView::sizeHint() const
{
    const int item = painterOfItems->sizeHint(viewOptions(), {}).height();
    return {960, item + horizontalScrollBar()->sizeHint().height() + 2 * frameWidth()};
}

QSize FilmstripView::minimumSizeHint() const
{
    return {200, sizeHint().height()};
}

void FilmstripView::showWithNeighbours(int row)
{
    for (const int beside : {row - 1, row + 1, row})
        if (const QModelIndex index = model()->index(beside, 0); index.isValid())
            scrollTo(index);
}

QList<int> FilmstripView::rowsInView() const
{
    QList<int> rows;
    if (!model())
        return rows;
    const QModelIndex first = indexAt({0, viewport()->height() / 2}),
                      last = indexAt({viewport()->width() - 1, viewport()->height() / 2});
    const int end = last.isValid() ? last.row() : model()->rowCount() - 1;
    for (int row = std::max(0, first.row()); row <= end; ++row)
        rows << row;
    return rows;
}

bool FilmstripView::anyInWork() const
{
    const QList<int> rows = rowsInView();
    return std::any_of(rows.begin(), rows.end(), [this](int row) {
        return Series::State(model()->index(row, 0).data(Series::StateRole).toInt()) == Series::State::InWork;
    });
}

void FilmstripView::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    const QList<int> rows = rowsInView();
    const int count = model() ? model()->rowCount() : 0;
    if (rows != shownRows || count != shownOf) {
        shownRows = rows;
        shownOf = count;
        Q_EMIT rowsShown(rows);
    }
    if (keyboardFocus) {
        QPainter painter(viewport());
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
    if (!animation.isActive() && style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0 && anyInWork())
        animation.start(kTurnMs, this);
}

void FilmstripView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != animation.timerId()) {
        QListView::timerEvent(event);
        return;
    }
    turn = (turn + kTurnDegrees) % 360;
    painterOfItems->setTurn(turn);
    if (anyInWork())
        viewport()->update();
    else
        animation.stop();
}

void FilmstripView::focusInEvent(QFocusEvent *event)
{
    keyboardFocus = event->reason() != Qt::MouseFocusReason && event->reason() != Qt::ActiveWindowFocusReason;
    QListView::focusInEvent(event);
    viewport()->update();
}

void FilmstripView::focusOutEvent(QFocusEvent *event)
{
    keyboardFocus = false;
    QListView::focusOutEvent(event);
    viewport()->update();
}

void FilmstripView::wheelEvent(QWheelEvent *event)
{
    // Along the strip, whichever way the wheel turns.
    const QPoint angle = event->angleDelta(), pixels = event->pixelDelta();
    const int turned = std::abs(angle.x()) > std::abs(angle.y()) ? angle.x() : angle.y();
    const int moved = std::abs(pixels.x()) > std::abs(pixels.y()) ? pixels.x() : pixels.y();
    QScrollBar *const bar = horizontalScrollBar();
    constexpr int kPixelsPerNotch = 120;
    bar->setValue(bar->value() - (moved != 0 ? moved : turned * kPixelsPerNotch / 120));
    event->accept();
}
