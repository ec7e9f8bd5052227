#include "MessageBar.h"

#include <utility>

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTimer>

namespace {

constexpr int kNoticeMs = 12000;

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent), sign(new QLabel(this)), label(new QLabel(this)), remedyButton(new QPushButton(this)),
      timer(new QTimer(this))
{
    setObjectName(QStringLiteral("messageBar"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    setForegroundRole(QPalette::Text);
    setAccessibleName(tr("Message"));

    label->setObjectName(QStringLiteral("message"));
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setForegroundRole(QPalette::Text);
    remedyButton->setObjectName(QStringLiteral("remedy"));
    remedyButton->setAutoDefault(false);
    auto *dismiss = new QPushButton(QStringLiteral("\u00D7"), this);
    dismiss->setObjectName(QStringLiteral("dismiss"));
    dismiss->setAutoDefault(false);
    dismiss->setFlat(true);
    dismiss->setFixedWidth(dismiss->sizeHint().height());
    dismiss->setAccessibleName(tr("Dismiss the message"));
    dismiss->setToolTip(dismiss->accessibleName());

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(10, 4, 4, 4);
    row->addWidget(sign);
    row->addWidget(label, 1);
    row->addWidget(remedyButton);
    row->addWidget(dismiss);

    timer->setSingleShot(true);
    timer->setInterval(kNoticeMs);
    connect(timer, &QTimer::timeout, this, &QWidget::hide);
    connect(dismiss, &QPushButton::clicked, this, &QWidget::hide);
    connect(remedyButton, &QPushButton::clicked, this, [this] {
        hide();
        if (const auto help = std::exchange(helpWith, {}))
            help();
    });
    hide();
}

void MessageBar::say(Kind kind, const QString &text, const QString &remedy, std::function<void()> help)
{
    helpWith = std::move(help);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const auto icon = kind == Kind::Notice ? QStyle::SP_MessageBoxInformation : QStyle::SP_MessageBoxWarning;
    sign->setPixmap(style()->standardIcon(icon, nullptr, this).pixmap(side, side));
    label->setText(text);
    remedyButton->setText(remedy);
    remedyButton->setVisible(!remedy.isEmpty());
    kind == Kind::Notice ? timer->start() : timer->stop();
    show();
    setAccessibleDescription(text);
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

QString MessageBar::text() const
{
    return isVisible() ? label->text() : QString();
}
