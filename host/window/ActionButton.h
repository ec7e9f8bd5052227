#pragma once

#include <QPushButton>

class QAction;

/// A button that follows an action: text, tool tip, whether it is enabled and visible. Return never presses it, only Space.
class ActionButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ActionButton(QAction *action, QWidget *parent = nullptr);

private:
    void follow();

    QAction *const source;
};
