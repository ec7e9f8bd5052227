#pragma once

#include <functional>

#include <QFrame>

class QLabel;
class QPushButton;
class QTimer;

/// One bar for what the user should know: what happened and what helps, without a dialog in the way. A newer message takes the
/// place of an older one. Hidden while there is none.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind {
        Notice,  ///< Goes away by itself after a while.
        Problem, ///< Stays until it is dismissed or replaced.
    };

    explicit MessageBar(QWidget *parent = nullptr);

    /// `remedy`, if not empty, is the text of a button, which hides the bar and calls `help`.
    void say(Kind kind, const QString &text, const QString &remedy = QString(), std::function<void()> help = {});
    /// The message on show, or empty.
    QString text() const;

private:
    std::function<void()> helpWith;
    QLabel *sign; ///< Tells a problem from a notice.
    QLabel *label;
    QPushButton *remedyButton;
    QTimer *timer;
};
