#include "QAnimatedLabel.h"

QAnimatedLabel::QAnimatedLabel(QWidget *parent) : QLabel(parent)
{
    connect(&timer, &QTimer::timeout, this, &QAnimatedLabel::changeImage);
}

void QAnimatedLabel::startAnimation(const QStringList &files, int periodMs)
{
    timer.stop();
    frames.clear();
    if (files.isEmpty())
        return;
    for (const QString &file : files)
        frames.append(QPixmap(file));
    frameIndex = 0;
    timer.start(periodMs);
    setMinimumSize(frames.first().size());
}

void QAnimatedLabel::changeImage()
{
    if (frames.isEmpty())
        return;
    if (frameIndex >= frames.size())
        frameIndex = 0;
    setPixmap(frames.at(frameIndex));
    ++frameIndex;
}
