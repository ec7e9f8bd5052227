#include "BeforeAfterView.h"

#include <QPainter>

namespace {

constexpr int kGap = 8; ///< Between the halves, and between picture and caption.

} // namespace

BeforeAfterView::BeforeAfterView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(320, 140);
}

QSize BeforeAfterView::sizeHint() const
{
    return {640, 260};
}

void BeforeAfterView::compare(const QImage &before, const QImage &after)
{
    pictures[0] = before;
    pictures[1] = after;
    update();
}

void BeforeAfterView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QString captions[2] = {tr("Before"), tr("After")};
    const int captionHeight = fontMetrics().height();
    const bool both = !pictures[0].isNull() && !pictures[1].isNull();
    const int half = (width() - kGap) / 2, across = both ? half : width();
    for (int side = 0; side < 2; ++side) {
        if (pictures[side].isNull())
            continue;
        const QRect room(both ? side * (half + kGap) : 0, 0, across, height() - captionHeight - kGap);
        QRect place(QPoint(), pictures[side].size().scaled(room.size(), Qt::KeepAspectRatio));
        place.moveCenter(room.center());
        painter.drawImage(place, pictures[side]);
        painter.drawText(QRect(room.left(), place.bottom() + kGap, across, captionHeight), Qt::AlignHCenter, captions[side]);
    }
}
