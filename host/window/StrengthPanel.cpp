#include "StrengthPanel.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include "ActionButton.h"
#include "WindowActions.h"

namespace {

using Id = WindowActions::Id;

constexpr int kWidth = 260, kPage = 10;
constexpr QChar kEllipsis(0x2026);

} // namespace

StrengthPanel::StrengthPanel(QWidget *histogram, const WindowActions &actions, QWidget *parent)
    : QWidget(parent), slider(new QSlider(Qt::Horizontal, this)), box(new QSpinBox(this)), origin(new QLabel(this)),
      nameLabel(new QLabel(this)), factsLabel(new QLabel(this)), noteLabel(new QLabel(this))
{
    setMinimumWidth(kWidth);

    auto *title = new QLabel(tr("&Strength"), this);
    title->setBuddy(box);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    nameLabel->setFont(bold);
    origin->setObjectName(QStringLiteral("origin"));
    slider->setObjectName(QStringLiteral("strengthSlider"));
    slider->setRange(0, 100);
    slider->setPageStep(kPage);
    slider->setFocusPolicy(Qt::TabFocus); // a drag leaves the keys to the pictures
    slider->setAccessibleName(tr("Strength"));
    slider->setToolTip(tr("How much of the haze is removed"));
    box->setObjectName(QStringLiteral("strength"));
    box->setRange(0, 100);
    //: The unit of the strength, after the number.
    box->setSuffix(tr(" %"));
    box->setAccessibleName(tr("Strength in per cent"));
    box->installEventFilter(this);
    nameLabel->setObjectName(QStringLiteral("name"));
    nameLabel->setTextFormat(Qt::PlainText);
    factsLabel->setObjectName(QStringLiteral("facts"));
    factsLabel->setTextFormat(Qt::PlainText);
    for (QLabel *label : {nameLabel, factsLabel})
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    noteLabel->setObjectName(QStringLiteral("note"));
    noteLabel->setTextFormat(Qt::PlainText);
    noteLabel->setWordWrap(true);
    noteLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    noteLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored); // the room that is left, however long it is
    noteLabel->installEventFilter(this);

    const auto button = [&](Id id, const char *name) {
        auto *made = new ActionButton(actions[id], this);
        made->setObjectName(QLatin1String(name));
        return made;
    };
    auto *head = new QHBoxLayout;
    head->addWidget(title);
    head->addWidget(origin, 1);
    head->addWidget(box);
    auto *grid = new QGridLayout;
    grid->addWidget(button(Id::Auto, "auto"), 0, 0);
    grid->addWidget(button(Id::Reset, "reset"), 0, 1);
    grid->addWidget(button(Id::Undo, "undo"), 1, 0);
    grid->addWidget(button(Id::Redo, "redo"), 1, 1);
    grid->setSpacing(6);
    auto *rows = new QVBoxLayout(this);
    rows->setSpacing(6);
    rows->addWidget(histogram);
    rows->addSpacing(6);
    rows->addLayout(head);
    rows->addWidget(slider);
    rows->addLayout(grid);
    rows->addWidget(button(Id::ApplyToSelected, "applyToSelected"));
    rows->addWidget(button(Id::ApplyToAll, "applyToAll"));
    rows->addWidget(button(Id::UseAsDefault, "useAsDefault"));
    rows->addSpacing(6);
    rows->addWidget(nameLabel);
    rows->addWidget(factsLabel);
    rows->addWidget(noteLabel, 1);
    rows->addWidget(button(Id::Options, "options"));
    rows->addWidget(button(Id::SaveThis, "saveThis"));
    ActionButton *const saveAll = button(Id::SaveAll, "saveAll");
    saveAll->setFont(bold);
    rows->addWidget(saveAll);

    connect(slider, &QSlider::sliderPressed, this, &StrengthPanel::begins);
    connect(slider, &QSlider::sliderReleased, this, &StrengthPanel::ends);
    connect(slider, &QSlider::valueChanged, this, [this](int percent) {
        const QSignalBlocker blocker(box);
        box->setValue(percent);
        Q_EMIT strengthChosen(percent);
    });
    connect(box, qOverload<int>(&QSpinBox::valueChanged), slider, &QSlider::setValue);
}

void StrengthPanel::showStrength(int percent, bool automatic)
{
    const QSignalBlocker sliderBlocker(slider), boxBlocker(box);
    slider->setValue(percent);
    if (box->value() != percent)
        box->setValue(percent);
    //: Beside the strength: it was chosen for the photograph.
    origin->setText(automatic ? tr("automatic") : QString());
}

int StrengthPanel::strength() const
{
    return slider->value();
}

void StrengthPanel::setStrengthEnabled(bool enabled)
{
    slider->setEnabled(enabled);
    box->setEnabled(enabled);
}

void StrengthPanel::showFacts(const QString &name, const QStringList &lines, const QString &note)
{
    fullName = name;
    fullLines = lines;
    fullNote = note;
    fitFacts();
}

void StrengthPanel::fitFacts()
{
    const int room = width() - layout()->contentsMargins().left() - layout()->contentsMargins().right();
    const auto fitted = [room](const QLabel *label, const QString &text) {
        return label->fontMetrics().elidedText(text, Qt::ElideMiddle, room);
    };
    nameLabel->setText(fitted(nameLabel, fullName));
    QStringList lines;
    for (const QString &line : qAsConst(fullLines))
        lines << fitted(factsLabel, line);
    factsLabel->setText(lines.join('\n'));
    factsLabel->setToolTip(fullLines.join('\n'));
    nameLabel->setToolTip(fullName);
    factsLabel->setAccessibleName(fullName + '\n' + fullLines.join('\n'));
    noteLabel->setToolTip(fullNote);
    noteLabel->setAccessibleName(fullNote);
    fitNote();
}

void StrengthPanel::fitNote()
{
    const QFontMetrics metrics = noteLabel->fontMetrics();
    const auto fits = [&](const QString &text) {
        return metrics.boundingRect(noteLabel->rect(), Qt::TextWordWrap, text).height() <= noteLabel->height();
    };
    QString note = fullNote;
    for (int length = fullNote.size(); length > 0 && !fits(note);)
        note = fullNote.left(--length) + kEllipsis;
    noteLabel->setText(note);
}

void StrengthPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitFacts();
}

void StrengthPanel::editStrength()
{
    box->setFocus(Qt::ShortcutFocusReason);
    box->selectAll();
}

bool StrengthPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == noteLabel) {
        if (event->type() == QEvent::Resize)
            fitNote();
        return false;
    }
    switch (event->type()) {
    case QEvent::FocusIn:
        Q_EMIT begins();
        break;
    case QEvent::FocusOut:
        Q_EMIT ends();
        break;
    case QEvent::ShortcutOverride:
        // The box would undo its letters; here Undo takes back the strength, as everywhere in the window.
        if (auto *key = static_cast<QKeyEvent *>(event); key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (const int key = static_cast<QKeyEvent *>(event)->key();
            static_cast<QKeyEvent *>(event)->modifiers() == Qt::NoModifier && (key == Qt::Key_Return || key == Qt::Key_Escape)) {
            box->interpretText();
            Q_EMIT done();
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}
