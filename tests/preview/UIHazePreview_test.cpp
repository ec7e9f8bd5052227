#include <utility>
#include <vector>

#include <QCheckBox>
#include <QFrame>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include "HandOverLocker.h"
#include "PreviewTest.h"
#include "QAnimatedLabel.h"
#include "RemoveHaze.h"

namespace {

constexpr int kWidth = 60;
constexpr int kHeight = 40;

/// A parent that records what the panel reports.
class Parent : public QWidget
{
    Q_OBJECT

public:
    QList<bool> reported;

public Q_SLOTS:
    void completeChanged() { reported += findChild<UIHazePreview *>()->property("isComplete").toBool(); }
};

class Panel : public PreviewTest
{
protected:
    Panel()
    {
        parent.resize(500, 400);
        panel->resize(500, 400);
        parent.show();
    }
    ~Panel() override { delete panel; }

    /// Loads the panel as the page does, at strength 0 and before the first request.
    void load()
    {
        panel->setImage(landscape(kWidth, kHeight));
        panel->settings = &record;
        panel->beforeImage = screenImage(*panel->previewImage);
        panel->beforePixmap = panel->fitFrame(panel->beforeImage);
    }
    QImage expectedAt(int percent)
    {
        VImage image;
        image.Assign(*panel->previewImage);
        HazeState state = record;
        state.strength = percent;
        RemoveHaze(image, state);
        return screenImage(image);
    }

    struct OwnedRecord : HazeState
    {
        OwnedRecord() : HazeState(recordWithMap(kWidth, kHeight)) {}
        ~OwnedRecord() { delete[] transmission; }
    } record; ///< Must outlive the panel.
    NimbraOne2One process;
    Parent parent;
    UIHazePreview *panel = new UIHazePreview(&process, &parent);
    PanelWatch watch{*panel};
    QSpinBox *strength = panel->findChild<QSpinBox *>("spinBoxPourcent");
    QSlider *slider = panel->findChild<QSlider *>("horizontalSlider");
    QCheckBox *split = panel->findChild<QCheckBox *>("checkBoxSplit");
    QFrame *frame = panel->findChild<QFrame *>("frame");
    QAnimatedLabel *wait = panel->findChild<QAnimatedLabel *>("labelState");
};

TEST_F(Panel, ControlsFollowOneAnotherAndDoNothingBeforeTheFirstImage)
{
    slider->setValue(30);
    EXPECT_EQ(strength->value(), 30);
    strength->setValue(200);
    EXPECT_EQ(slider->value(), 100);
    panel->computePreview();
    QTest::keyClick(panel, Qt::Key_Alt);
    EXPECT_FALSE(panel->thread.isRunning());
    EXPECT_TRUE(panel->afterPixmap.isNull());
}

TEST_F(Panel, AChangeOfStrengthEndsInItsPicture)
{
    load();
    strength->setValue(60);
    EXPECT_EQ(record.strength, 60);
    EXPECT_FALSE(watch.isComplete());
    EXPECT_TRUE(wait->isVisible());
    ASSERT_TRUE(watch.finish());
    EXPECT_EQ(watch.runs, 1);
    EXPECT_EQ(panel->afterImage, expectedAt(60));
    EXPECT_FALSE(wait->isVisible());
    EXPECT_EQ(parent.reported, QList<bool>({false, true}));
}

TEST_F(Panel, ThreeChangesDuringOneRunMakeOneMore)
{
    load();
    strength->setValue(20);
    for (int value : {30, 40, 50})
        strength->setValue(value);
    ASSERT_TRUE(watch.finish());
    EXPECT_EQ(watch.runs, 2);
    EXPECT_EQ(panel->afterImage, expectedAt(50));
    EXPECT_EQ(parent.reported, QList<bool>({false, false, false, false, false, true})) << "the fifth is from the restart";

    strength->setValue(10);
    watch.runs = 0;
    ASSERT_TRUE(watch.finish());
    EXPECT_EQ(watch.runs, 1) << "then the panel is back to normal";
}

TEST_F(Panel, ARequestBetweenTheEndOfTheRunAndItsFinishedIsNotLost)
{
    load();
    strength->setValue(20);
    ASSERT_TRUE(panel->thread.wait(kLimitMs)); // `finished` is still in the queue
    strength->setValue(80);
    ASSERT_TRUE(watch.finish());
    EXPECT_EQ(watch.runs, 2);
    EXPECT_EQ(panel->afterImage, expectedAt(80));
    EXPECT_EQ(parent.reported, QList<bool>({false, false, false, true}));
}

TEST_F(Panel, AnImageThatChangesBeforeTheRunBegins)
{
    load();
    omp_set_lock(&panel->thread.busy);
    strength->setValue(20); // the thread has started, but the run has not begun
    OwnedRecord none;
    delete[] std::exchange(none.transmission, nullptr);
    none.strength = 0;
    panel->setImage(landscape(2 * kWidth, 2 * kHeight));
    panel->settings = &none;
    omp_unset_lock(&panel->thread.busy);
    panel->computePreview();
    ASSERT_TRUE(watch.finish());
    EXPECT_EQ(panel->afterImage.size(), QSize(2 * kWidth, 2 * kHeight));
    EXPECT_EQ(none.transmission, nullptr);
    panel->releaseRecord();
}

TEST_F(Panel, AltShowsTheMap)
{
    EXPECT_EQ(panel->focusPolicy(), Qt::StrongFocus); // or no key reaches it
    load();
    strength->setValue(60);
    QTest::keyPress(panel, Qt::Key_Alt);
    EXPECT_TRUE(panel->afterImage.isNull()) << "not during a run";
    QTest::keyRelease(panel, Qt::Key_Alt);
    EXPECT_TRUE(watch.isComplete());
    EXPECT_TRUE(wait->isVisible()) << "the run continues";
    EXPECT_TRUE(panel->afterPixmap.isNull());
    ASSERT_TRUE(watch.until([&] { return watch.runs == 1; }));
    EXPECT_EQ(panel->afterImage, expectedAt(60));

    QTest::keyPress(panel, Qt::Key_Alt);
    const QRgb *const map = reinterpret_cast<const QRgb *>(panel->afterImage.constScanLine(0));
    for (int x : {0, kWidth - 1}) {
        const int grey = qRound(record.transmission[x] * 255.0f);
        EXPECT_NEAR(qRed(map[x]), grey, 1) << x;
        EXPECT_EQ(qRed(map[x]), qBlue(map[x]));
    }
    const QImage held = panel->afterImage;
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Alt, Qt::AltModifier, QString(), /*autorep=*/true);
    QApplication::sendEvent(panel, &repeat);
    EXPECT_EQ(panel->afterImage, held);
    QTest::keyRelease(panel, Qt::Key_Alt);
    EXPECT_EQ(panel->afterImage, expectedAt(60));
}

TEST_F(Panel, AltWithoutAMapShowsTheWork)
{
    load();
    delete[] std::exchange(record.transmission, nullptr);
    panel->computePreview(); // at strength 0
    ASSERT_TRUE(watch.finish());
    QTest::keyPress(panel, Qt::Key_Alt);
    EXPECT_EQ(panel->afterImage, panel->beforeImage);
}

TEST_F(Panel, NoKeyIsPassedOn)
{
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(panel, &enter);
    EXPECT_TRUE(enter.isAccepted());
}

TEST_F(Panel, ThePictureIsSplitInItsMiddle)
{
    load();
    panel->beforePixmap.fill(Qt::red);
    panel->afterPixmap = panel->beforePixmap;
    panel->afterPixmap.fill(Qt::blue);
    const QSize size = panel->beforePixmap.size();
    EXPECT_EQ(size, QSize(kWidth, kHeight).scaled(frame->size(), Qt::KeepAspectRatio));
    wait->hide();
    const auto colours = [&] {
        const QImage shot = panel->grab().toImage();
        const int left = frame->x() + (frame->width() - size.width()) / 2 + 3; // inside the line of the frame
        const int seam = frame->x() + (frame->width() - size.width()) / 2 + size.width() / 2;
        const int right = frame->x() + (frame->width() - size.width()) / 2 + size.width() - 4;
        const int y = frame->geometry().center().y();
        return QList<QColor>{shot.pixelColor(left, y), shot.pixelColor(seam - 1, y), shot.pixelColor(seam, y),
                             shot.pixelColor(right, y)};
    };
    EXPECT_EQ(colours(), QList<QColor>({Qt::red, Qt::red, Qt::blue, Qt::blue}));
    split->setChecked(false);
    EXPECT_EQ(colours(), QList<QColor>({Qt::blue, Qt::blue, Qt::blue, Qt::blue}));
    panel->afterPixmap = QPixmap();
    EXPECT_EQ(colours(), QList<QColor>({Qt::red, Qt::red, Qt::red, Qt::red}));
}

TEST_F(Panel, ResizingScalesThePicturesAndCentresTheWaitSign)
{
    load();
    strength->setValue(10);
    ASSERT_TRUE(watch.finish());
    panel->resize(700, 300);
    const QSize fitted = QSize(kWidth, kHeight).scaled(frame->size(), Qt::KeepAspectRatio);
    EXPECT_EQ(panel->beforePixmap.size(), fitted);
    EXPECT_EQ(panel->afterPixmap.size(), fitted);
    EXPECT_EQ(wait->pos(), frame->pos() + QPoint((frame->width() - wait->width()) / 2, (frame->height() - wait->height()) / 2));
}

TEST_F(Panel, AParentWithoutTheSlotIsFine)
{
    QWidget plain;
    for (QWidget *other : {&plain, static_cast<QWidget *>(nullptr)}) {
        auto *const lone = new UIHazePreview(&process, other);
        lone->setImage(landscape(kWidth, kHeight));
        lone->settings = &record;
        PanelWatch loneWatch(*lone);
        lone->computePreview();
        EXPECT_TRUE(loneWatch.finish());
        delete lone;
    }
}

TEST_F(Panel, ManyChangesWhileImagesComeAndGo)
{
    constexpr int kChanges = 1000;
    struct Slot
    {
        int width, height;
        HazeState state; ///< Owns its map.
    };
    std::vector<Slot> slots = {{kWidth, kHeight, {}}, {33, 71, {}}, {90, 20, {}}, {50, 50, {}}};
    for (Slot &slot : slots)
        slot.state = recordWithMap(slot.width, slot.height);
#ifndef NIMBRA_THREAD_SANITIZER // under which an estimate takes half a minute
    delete[] std::exchange(slots.back().state.transmission, nullptr);
#endif
    std::vector<float *> maps;
    for (const Slot &slot : slots)
        maps.push_back(slot.state.transmission);
    std::vector<int> wanted(slots.size(), 0);
    std::size_t current = slots.size();
    for (int change = 0; change < kChanges; ++change) {
        if (change % 17 == 0) { // as the page does
            current = std::size_t(change / 17) % slots.size();
            panel->setImage(landscape(slots[current].width, slots[current].height));
            panel->settings = &slots[current].state;
            strength->setValue(slots[current].state.strength);
            panel->beforeImage = screenImage(*panel->previewImage);
            panel->computePreview();
        }
        const int runsBefore = watch.runs;
        wanted[current] = 1 + (wanted[current] + 37) % 100;
        strength->setValue(wanted[current]);
        if (change % 5 == 0)
            QCoreApplication::processEvents();
        if (change % 50 == 0) {
            ASSERT_TRUE(watch.until([&] { return watch.runs > runsBefore; }));
        }
    }
    ASSERT_TRUE(watch.finish());
    EXPECT_GE(watch.runs, kChanges / 50);
    for (std::size_t i = 0; i < slots.size(); ++i) {
        EXPECT_EQ(slots[i].state.strength, wanted[i]);
        if (maps[i]) {
            EXPECT_EQ(slots[i].state.transmission, maps[i]);
        }
    }
    ASSERT_NE(slots[current].state.transmission, nullptr);
    RemoveHaze(*panel->previewImage, slots[current].state); // its pixels are no longer needed
    EXPECT_EQ(panel->afterImage, screenImage(*panel->previewImage));
    panel->releaseRecord();
    for (const Slot &slot : slots)
        delete[] slot.state.transmission;
}

TEST_F(Panel, ClosingDuringARun)
{
    load();
    strength->setValue(60);
    strength->setValue(70);
    delete std::exchange(panel, nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(record.strength, 70);
}

} // namespace

#include "UIHazePreview_test.moc"
