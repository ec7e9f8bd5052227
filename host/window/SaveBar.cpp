#include "SaveBar.h"

#include <algorithm>
#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QStringList>

#include "ActionButton.h"
#include "WindowActions.h"

namespace {

constexpr int kParts = 1000;
constexpr int kMinute = 60, kHour = 60 * kMinute;

QString timeLeft(int seconds)
{
    if (seconds < kMinute)
        return SaveBar::tr("less than a minute left");
    if (seconds < kHour)
        return SaveBar::tr("about %n minute(s) left", nullptr, (seconds + kMinute / 2) / kMinute);
    return SaveBar::tr("about %n hour(s) left", nullptr, (seconds + kHour / 2) / kHour);
}

} // namespace

SaveBar::SaveBar(const WindowActions &actions, QWidget *parent)
    : QWidget(parent), label(new QLabel(this)), bar(new QProgressBar(this))
{
    using Id = WindowActions::Id;
    setObjectName(QStringLiteral("saveBar"));
    label->setObjectName(QStringLiteral("saveText"));
    bar->setObjectName(QStringLiteral("saveTotal"));
    bar->setRange(0, kParts);
    bar->setTextVisible(false);
    bar->setFixedWidth(160);
    bar->setAccessibleName(tr("Saving"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(bar);
    const std::pair<Id, const char *> kButtons[] = {{Id::Pause, "pause"}, {Id::Stop, "stop"}, {Id::Retry, "retry"}};
    for (const auto &[id, name] : kButtons) {
        auto *button = new ActionButton(actions[id], this);
        button->setObjectName(QLatin1String(name));
        row->addWidget(button);
        tallest = std::max(tallest, button->sizeHint().height());
    }
    hide();
}

void SaveBar::showProgress(const SaveQueue::Progress &progress, bool paused)
{
    QString text = tr("%1 of %2 saved").arg(progress.done).arg(progress.total);
    if (paused)
        text = tr("Paused: %1").arg(text);
    else if (progress.secondsLeft)
        text += ", " + timeLeft(*progress.secondsLeft);
    label->setText(text);
    bar->setValue(qRound(progress.fraction * kParts));
    bar->show();
    show();
}

void SaveBar::showSummary(const SaveQueue::Summary &summary)
{
    label->setText(textOf(summary));
    bar->hide();
    show();
}

QString SaveBar::textOf(const SaveQueue::Summary &summary)
{
    QStringList parts;
    if (summary.saved > 0)
        parts << tr("%n photograph(s) saved", nullptr, summary.saved);
    if (summary.kept > 0)
        parts << tr("%n kept as it is", nullptr, summary.kept);
    if (summary.failed > 0)
        parts << tr("%n failed", nullptr, summary.failed);
    if (summary.stopped > 0)
        parts << tr("%n stopped", nullptr, summary.stopped);
    return parts.join(", ");
}
