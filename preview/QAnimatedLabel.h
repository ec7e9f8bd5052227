#pragma once

#include <QLabel>
#include <QList>
#include <QPixmap>
#include <QTimer>

/// A label that shows a list of pictures in turn, at a fixed period, for as long as it exists, even while hidden.
class QAnimatedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit QAnimatedLabel(QWidget *parent = nullptr);

    /// Starts over with these picture files; the first one appears after one period, and its size becomes the label's minimum
    /// size. A file that can't be read counts as an empty picture. An empty list stops the animation at the current picture.
    void startAnimation(const QStringList &files, int periodMs);

public Q_SLOTS:
    /// Shows the next picture; the first one follows the last.
    void changeImage();

private:
    QList<QPixmap> frames;
    int frameIndex = 0; ///< Of the next picture.
    QTimer timer;
};
