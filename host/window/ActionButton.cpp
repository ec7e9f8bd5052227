#include "ActionButton.h"

#include <QAction>

ActionButton::ActionButton(QAction *action, QWidget *parent) : QPushButton(parent), source(action)
{
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QPushButton::clicked, action, [action] { action->trigger(); });
    connect(action, &QAction::changed, this, &ActionButton::follow);
    follow();
}

void ActionButton::follow()
{
    setText(source->text());
    setToolTip(source->toolTip());
    setEnabled(source->isEnabled());
    setVisible(source->isVisible());
}
