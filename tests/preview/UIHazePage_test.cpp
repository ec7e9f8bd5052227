#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include "PreviewTest.h"
#include "RemoveHaze.h"
#include "workingForm.h"

namespace {

class Page : public PreviewTest
{
protected:
    ~Page() override
    {
        delete page;
        process.reset();
    }

    void open()
    {
        page = static_cast<UIHazePage *>(process->wizardPage());
        panel = page->findChild<UIHazePreview *>();
        watch = std::make_unique<PanelWatch>(*panel);
        images = page->findChild<QComboBox *>("comboBoxImageDef");
        strength = page->findChild<QSpinBox *>("spinBoxPourcent");
    }
    void click(const char *button) { QTest::mouseClick(page->findChild<QAbstractButton *>(button), Qt::LeftButton); }
    int storedFor(const QString &path) { return process->settingsFor(path).attribute("hazeRemove").toInt(); }
    /// The picture that the panel should show of this image at this strength, computed separately.
    QImage expected(const QString &path, int percent)
    {
        TestImage &image = host.image(path);
        VImage working;
        toWorkingForm(*image.acquireScaled(image.fullWidth, image.fullHeight, 1), working);
        HazeState state = {percent, {}, nullptr};
        RemoveHaze(working, state);
        delete[] state.transmission;
        return screenImage(working);
    }
    void choose(const QString &path) { images->setCurrentIndex(images->findText(QFileInfo(path).fileName())); }

    std::unique_ptr<NimbraOne2One> process = std::make_unique<NimbraOne2One>();
    QPointer<UIHazePage> page;
    UIHazePreview *panel = nullptr;
    std::unique_ptr<PanelWatch> watch;
    QComboBox *images = nullptr;
    QSpinBox *strength = nullptr;
};

TEST_F(Page, WithoutImagesNothingHappens)
{
    open();
    EXPECT_TRUE(page->isComplete());
    for (const char *button : {"QToolButton_Prev", "QToolButton_Next", "pushButtonApplyAll"})
        click(button);
    page->on_comboBoxImageDef_currentIndexChanged(5);
    EXPECT_FALSE(panel->thread.isRunning());
}

TEST_F(Page, SizeOfThePreview)
{
    const struct
    {
        int width, height, previewWidth, previewHeight;
    } rows[] = {{2000, 1000, 1024, 512},
                {1000, 2000, 512, 1024},
                {3000, 3000, 1024, 1024},
                {800, 600, 800, 600},
                {4000, 3000, 1024, 768},
                {1025, 1, 1024, 0},
                {1, 1, 1, 1}};
    open();
    for (const auto &row : rows) {
        const QString path = QStringLiteral("/p/%1x%2.png").arg(row.width).arg(row.height);
        host.image(path).fullWidth = row.width;
        host.image(path).fullHeight = row.height;
        host.calls.clear();
        process->setImages({path});
        const QString size = QStringLiteral("Scaled %1 %2 1").arg(row.previewWidth).arg(row.previewHeight);
        EXPECT_EQ(host.calls, QStringList({"acquire" + size, "release" + size}));
        ASSERT_TRUE(watch->finish());
    }
    process->setImages({});
}

TEST_F(Page, PrevAndNextWrapAround)
{
    open();
    process->setImages({"/p/only.png"});
    ASSERT_TRUE(watch->finish());
    host.calls.clear();
    click("QToolButton_Prev");
    click("QToolButton_Next");
    EXPECT_EQ(host.calls, QStringList()) << "one image: no change";

    process->setImages({"/p/a.png", "/p/b.png", "/p/c.png"});
    EXPECT_EQ(images->count(), 3);
    EXPECT_EQ(images->currentIndex(), 0);
    click("QToolButton_Prev");
    EXPECT_EQ(images->currentIndex(), 2);
    click("QToolButton_Next");
    EXPECT_EQ(images->currentIndex(), 0);
    click("QToolButton_Next");
    EXPECT_EQ(images->currentIndex(), 1);
    ASSERT_TRUE(watch->finish());
}

TEST_F(Page, LeavingAnImageDuringARun)
{
    const QString wide = "/p/wide.png", tall = "/p/tall.png";
    host.image(wide).fullWidth = 90;
    host.image(tall).fullHeight = 100;
    host.image(tall).type = VImage::Grey;
    host.image(tall).bits = 16;
    open();
    process->setImages({wide, tall});
    choose(wide);
    ASSERT_TRUE(watch->finish());
    strength->setValue(70);
    choose(tall); // the run may or may not have begun
    EXPECT_EQ(strength->value(), 0);
    strength->setValue(40);
    EXPECT_FALSE(page->isComplete());
    ASSERT_TRUE(watch->finish());
    EXPECT_EQ(panel->afterImage, expected(tall, 40));
    EXPECT_NE(panel->afterImage, panel->beforeImage);
    EXPECT_EQ(qAlpha(panel->beforeImage.pixel(5, 5)), 255);
    choose(wide);
    EXPECT_EQ(strength->value(), 70);
    ASSERT_TRUE(watch->finish());
    EXPECT_EQ(panel->afterImage, expected(wide, 70));
    EXPECT_EQ(storedFor(wide), 70);
    EXPECT_EQ(storedFor(tall), 40);
}

TEST_F(Page, ApplyToAll)
{
    open();
    process->setImages({"/p/a.png", "/p/b.png", "/p/c.png"});
    strength->setValue(40);
    ASSERT_TRUE(watch->finish());
    const float *const map = panel->settings->transmission;
    EXPECT_NE(map, nullptr);
    click("pushButtonApplyAll");
    for (const char *path : {"/p/a.png", "/p/b.png", "/p/c.png"})
        EXPECT_EQ(storedFor(path), 40) << path;
    EXPECT_EQ(panel->settings->transmission, map);
    EXPECT_TRUE(page->isComplete()) << "no run starts";
    process->saveDefaults();
    EXPECT_EQ(host.stored.last(), QVariant(40));
}

TEST_F(Page, AStoredStrengthBeyondTheControlsRangeIsClamped)
{
    host.stored[process->guid() + "/hazeRemove"] = 150;
    open();
    process->setImages({"/p/a.png"});
    EXPECT_EQ(strength->value(), 100);
    EXPECT_EQ(storedFor("/p/a.png"), 100);
}

TEST_F(Page, ANewListOrTheEndOfTheProcessWaitsForTheRun)
{
    open();
    process->setImages({"/p/a.png", "/p/b.png"});
    strength->setValue(60);
    process->setImages({"/p/c.png", "/p/d.png"}); // the record of the run is destroyed
    choose("/p/c.png");
    strength->setValue(30);
    ASSERT_TRUE(watch->finish());
    EXPECT_EQ(panel->afterImage, expected("/p/c.png", 30));

    strength->setValue(50);
    process.reset();
    host.calls.clear();
    QTest::keyClick(panel, Qt::Key_Alt);
    QCoreApplication::processEvents();
    strength->setValue(90);
    choose("/p/d.png");
    for (const char *button : {"QToolButton_Prev", "QToolButton_Next", "pushButtonApplyAll"})
        click(button);
    EXPECT_FALSE(panel->thread.isRunning());
    EXPECT_EQ(images->count(), 2) << "no widget is touched";
    EXPECT_EQ(host.calls, QStringList()) << "no image is loaded";
}

TEST_F(Page, ThePageMayHaveBeenDeleted)
{
    host.stored[process->guid() + "/hazeRemove"] = 45;
    open();
    process->setImages({"/p/a.png"}); // starts a run
    delete page;
    EXPECT_EQ(storedFor("/p/a.png"), 45);
    process->setImages({"/p/b.png"});
    EXPECT_EQ(storedFor("/p/b.png"), 45);

    open();
    ASSERT_FALSE(page.isNull());
    EXPECT_EQ(images->count(), 0);
    process->setImages({"/p/b.png"});
    EXPECT_EQ(images->count(), 1);
    delete page;
    process.reset();
}

} // namespace
