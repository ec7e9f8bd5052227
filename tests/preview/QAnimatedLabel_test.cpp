#include <QTemporaryDir>

#include "PreviewTest.h"
#include "QAnimatedLabel.h"

namespace {

class AnimatedLabel : public PreviewTest
{
protected:
    QString picture(int side)
    {
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QString file = folder.filePath(QStringLiteral("%1.png").arg(side));
        image.save(file);
        return file;
    }
    int shown() const { return label.pixmap(Qt::ReturnByValue).width(); } ///< Side of the picture in pixels; 0 if there is none.

    QTemporaryDir folder;
    QAnimatedLabel label{nullptr};
};

TEST_F(AnimatedLabel, ShowsThePicturesInTurn)
{
    label.changeImage();
    EXPECT_EQ(shown(), 0) << "nothing before the start";
    label.startAnimation({picture(3), picture(4), picture(5)}, kLimitMs);
    EXPECT_EQ(shown(), 0) << "the first shows after one period";
    EXPECT_EQ(label.minimumSize(), QSize(3, 3));
    for (int side : {3, 4, 5, 3}) {
        label.changeImage();
        EXPECT_EQ(shown(), side);
    }
    label.startAnimation({}, kLimitMs);
    EXPECT_EQ(shown(), 3) << "an empty list stops at the picture shown";
    label.changeImage();
    EXPECT_EQ(shown(), 3);
}

TEST_F(AnimatedLabel, ItsTimerAdvancesIt)
{
    label.startAnimation({folder.filePath("missing.png"), picture(6)}, 1);
    QEventLoop loop;
    QTimer watch; // fires after the label's timer in each pass of the event loop
    QObject::connect(&watch, &QTimer::timeout, &loop, [&] {
        if (shown() == 6)
            loop.quit();
    });
    watch.start(0);
    loop.exec();
    EXPECT_EQ(shown(), 6);
}

} // namespace
