#include "EmptyView.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr int kLargestText = 600; ///< Pixels, for a session.

/// A photograph of hills, drawn in the colour of the text.
class Sign : public QWidget
{
public:
    using QWidget::QWidget;
    QSize sizeHint() const override { return {96, 72}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor colour = palette().color(QPalette::WindowText);
        painter.setPen(QPen(colour, 2));
        painter.drawRoundedRect(QRectF(1, 1, 94, 70), 6, 6);
        painter.drawEllipse(QPointF(70, 22), 7, 7);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawPolygon(QPolygonF(QVector<QPointF>{{8, 62}, {32, 28}, {54, 54}, {64, 44}, {88, 62}}));
    }
};

} // namespace

EmptyView::EmptyView(QWidget *parent) : QWidget(parent), recentTitle(new QLabel(tr("Recent sessions"))), recent(new QVBoxLayout)
{
    auto *text = new QLabel(tr("Drop photographs or a folder here"));
    QFont large = text->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    text->setFont(large);
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);

    auto *add = new QPushButton(tr("&Add photographs..."));
    auto *addFolder = new QPushButton(tr("Add a &folder..."));
    add->setObjectName(QStringLiteral("addPhotographs"));
    addFolder->setObjectName(QStringLiteral("addFolder"));
    connect(add, &QPushButton::clicked, this, &EmptyView::addWanted);
    connect(addFolder, &QPushButton::clicked, this, &EmptyView::addFolderWanted);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(add);
    buttons->addWidget(addFolder);
    buttons->addStretch();

    QFont bold = recentTitle->font();
    bold.setBold(true);
    recentTitle->setFont(bold);
    recentTitle->setAlignment(Qt::AlignCenter);
    recentTitle->hide();

    const int space = style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing, nullptr, this) + fontMetrics().height() / 2;
    auto *layout = new QVBoxLayout(this);
    layout->addStretch(2);
    layout->addWidget(new Sign(this), 0, Qt::AlignCenter);
    layout->addSpacing(space);
    layout->addWidget(text);
    layout->addSpacing(space);
    layout->addLayout(buttons);
    layout->addSpacing(2 * space);
    layout->addWidget(recentTitle);
    layout->addLayout(recent);
    layout->addStretch(3);
}

void EmptyView::setRecentSessions(const QList<Recent> &sessions)
{
    while (QLayoutItem *item = recent->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    recentTitle->setVisible(!sessions.isEmpty());
    for (const Recent &session : sessions) {
        auto *button = new QPushButton;
        button->setFlat(true);
        button->setCursor(Qt::PointingHandCursor);
        // A name may have an ampersand, which must not make a mnemonic.
        QString text = button->fontMetrics().elidedText(session.text, Qt::ElideMiddle, kLargestText);
        button->setText(text.replace(QLatin1Char('&'), QLatin1String("&&")));
        button->setAccessibleName(session.text);
        button->setToolTip(session.tip);
        connect(button, &QPushButton::clicked, this, [this, id = session.id] { Q_EMIT sessionWanted(id); });
        recent->addWidget(button, 0, Qt::AlignCenter);
    }
}
