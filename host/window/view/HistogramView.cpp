#include "HistogramView.h"

#include <algorithm>
#include <cmath>

#include <QLocale>
#include <QPainter>

#include "PictureRequest.h"
#include "pictureColours.h"

namespace {

constexpr int kPlotHeight = 96;
constexpr int kPadding = 6;
constexpr int kBins = 256;

// Added where they overlap, so that all three give white.
const QColor kChannels[3] = {QColor(210, 70, 70), QColor(70, 170, 70), QColor(70, 100, 230)};
const QColor kSource(230, 230, 230);

} // namespace

HistogramView::HistogramView(QWidget *parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAccessibleName(tr("Histogram"));
    setToolTip(tr("The result; dashed: the photograph as it was"));
}

void HistogramView::setHistogram(const Histogram &histogram)
{
    shown = histogram;
    //: Shares of the pixels of the result, for a screen reader.
    setAccessibleDescription(tr("Black %1 %, white %2 %").arg(percent(shown->black), percent(shown->white)));
    update();
}

void HistogramView::clear()
{
    shown.reset();
    setAccessibleDescription({});
    update();
}

QString HistogramView::percent(double share) const
{
    return locale().toString(share * 100, 'f', 1);
}

QStringList HistogramView::legend(double black, double white) const
{
    return {//: Share of the result's pixels that are black
            tr("black %1 %").arg(percent(black)),
            //: Share of the result's pixels that are white
            tr("white %1 %").arg(percent(white))};
}

/// Whether both entries of the legend go into one line, whatever the shares are.
bool HistogramView::isInOneLine(int across) const
{
    const QStringList longest = legend(1, 1);
    return fontMetrics().horizontalAdvance(longest[0] + longest[1]) + 2 * fontMetrics().ascent() + 4 * kPadding <= across;
}

int HistogramView::heightForWidth(int across) const
{
    return kPlotHeight + kPadding + (isInOneLine(across) ? 1 : 2) * fontMetrics().height();
}

QSize HistogramView::sizeHint() const
{
    return {240, heightForWidth(240)};
}

QSize HistogramView::minimumSizeHint() const
{
    return {160, heightForWidth(160)};
}

void HistogramView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect plot(0, 0, width(), kPlotHeight);
    painter.fillRect(plot, kPlotGround);
    if (!shown)
        return;
    painter.setRenderHint(QPainter::Antialiasing);

    // The ends often hold far more pixels than anything between them, so they don't count for the height.
    double highest = 1;
    for (const auto *channels : {&shown->before, &shown->after})
        for (const auto &bins : *channels)
            for (int bin = 1; bin < kBins - 1; ++bin)
                highest = std::max(highest, double(bins[std::size_t(bin)]));
    const QRectF room = QRectF(plot).adjusted(1, 3, -1, 0);
    const auto at = [&](int bin, double count) {
        return QPointF(room.left() + (bin + 0.5) * room.width() / kBins,
                       room.bottom() - std::min(1.0, count / highest) * room.height());
    };
    const auto outline = [&](const auto &countOf) {
        QPolygonF line;
        for (int bin = 0; bin < kBins; ++bin)
            line << at(bin, countOf(std::size_t(bin)));
        return line;
    };
    painter.setClipRect(plot);
    painter.setPen(Qt::NoPen);
    painter.setCompositionMode(QPainter::CompositionMode_Plus);
    for (std::size_t channel = 0; channel < 3; ++channel) {
        QPolygonF area = outline([&](std::size_t bin) { return double(shown->after[channel][bin]); });
        area << room.bottomRight() << room.bottomLeft();
        painter.setBrush(kChannels[channel]);
        painter.drawPolygon(area);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setBrush(Qt::NoBrush);
    const QPolygonF source = outline([&](std::size_t bin) {
        return (double(shown->before[0][bin]) + double(shown->before[1][bin]) + double(shown->before[2][bin])) / 3;
    });
    QPen dashed(kSource, 1.3);
    dashed.setDashPattern({3, 2.5});
    // On a dark line, to be seen where the result is white.
    for (const QPen &pen : {QPen(kPlotGround, 2.5), dashed}) {
        painter.setPen(pen);
        painter.drawPolyline(source);
    }
    painter.setClipping(false);

    // The legend has the colours of the marks on the picture.
    painter.setRenderHint(QPainter::Antialiasing, false);
    const int side = fontMetrics().ascent() - 1;
    int top = kPlotHeight + kPadding;
    const QStringList texts = legend(shown->black, shown->white);
    const bool oneLine = isInOneLine(width());
    int x = 0;
    for (int entry = 0; entry < 2; ++entry) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.setBrush(QColor(entry == 0 ? PictureRequest::kBlackMark : PictureRequest::kWhiteMark));
        painter.drawRect(x, top + (fontMetrics().height() - side) / 2, side, side);
        painter.drawText(x + side + kPadding, top, width() - x - side - kPadding, fontMetrics().height(),
                         Qt::AlignLeft | Qt::AlignVCenter, texts[entry]);
        if (oneLine)
            x += side + fontMetrics().horizontalAdvance(texts[entry]) + 3 * kPadding;
        else
            top += fontMetrics().height();
    }
}
