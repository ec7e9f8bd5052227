#pragma once

#include <QWidget>

#include "SaveQueue.h"

class QLabel;
class QProgressBar;
class WindowActions;

/// The saving as one total: how far it is, how long it will take, and buttons to pause, stop and try again. Hidden until
/// something is saved; afterwards it shows the outcome.
class SaveBar : public QWidget
{
    Q_OBJECT

public:
    SaveBar(const WindowActions &actions, QWidget *parent = nullptr);

    /// Of its buttons, so that the bar around it need not grow when they appear.
    int usualHeight() const { return tallest; }
    void showProgress(const SaveQueue::Progress &progress, bool paused);
    void showSummary(const SaveQueue::Summary &summary);
    /// In one sentence, for the bar and the desktop's notification.
    static QString textOf(const SaveQueue::Summary &summary);

private:
    QLabel *label;
    QProgressBar *bar;
    int tallest = 0;
};
