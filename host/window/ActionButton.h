#pragma once

#include <QPushButton>

class QAction;

/// A button that follows an action: text, tool tip, whether it is enabled and visible. Return never presses
/// it, only Space; and a click leaves the focus where it is, so that the keys of the pictures go on working.
class ActionButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ActionButton(QAction *action, QWidget *parent = nullptr);

private:
    void follow();

    QAction *const source;
};
