#include <functional>
#include <set>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSlider>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>
#include <QTextCodec>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <gtest/gtest.h>

#include "FilmstripView.h"
#include "HostApplication.h"
#include "KeySheet.h"
#include "PictureView.h"
#include "PluginFile.h"
#include "SaveOptionsDialog.h"
#include "Series.h"
#include "SettingsFile.h"
#include "TestFolder.h"
#include "WantedStrength.h"
#include "WindowCommand.h"
#include "WorkspaceWindow.h"
#include "drawScene.h"

namespace {

constexpr int kLimitMs = 120000;         ///< Enough for a few runs of the engine under a sanitizer on a busy machine.
constexpr QSize kSmallScreen(1366, 728); ///< A common small screen without its desktop's panel.

HostApplication *host = nullptr;

/// Processes events until the condition holds; false after kLimitMs.
bool eventually(const std::function<bool()> &holds)
{
    bool late = false;
    QTimer limit, pace;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, [&] { late = true; });
    limit.start(kLimitMs);
    pace.start(20); // for what changes without an event
    while (!late && !holds())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return !late;
}

enum class Look { Light, Dark, HighContrast };

void use(Look look)
{
    QPalette palette = QApplication::style()->standardPalette();
    if (look == Look::HighContrast) {
        palette = QPalette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white, Qt::black, Qt::black);
        palette.setColor(QPalette::Highlight, Qt::yellow);
        palette.setColor(QPalette::HighlightedText, Qt::black);
    } else if (look == Look::Dark) {
        palette = QPalette(QColor(53, 53, 53), QColor(38, 38, 38));
        palette.setColor(QPalette::Base, QColor(28, 28, 28));
        palette.setColor(QPalette::AlternateBase, QColor(48, 48, 48));
        palette.setColor(QPalette::Highlight, QColor(61, 125, 202));
    }
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
}

void keepPictureOf(QWidget *widget, const QString &name)
{
    EXPECT_TRUE(QDir().mkpath(QStringLiteral(WINDOW_PICTURES)));
    EXPECT_TRUE(widget->grab().save(QStringLiteral(WINDOW_PICTURES "/%1.png").arg(name)));
}

/// A person before the window, with the program's command behind it.
class Workspace : public testing::Test
{
protected:
    void photograph(const QString &name, int width = 300, int height = 200)
    {
        QDir().mkpath(QFileInfo(folder.path(name)).path());
        // Drawing takes seconds. Only the documents' pictures need the largest size.
        static const int columns = qEnvironmentVariableIsSet("NIMBRA_FINE_PICTURES") ? 750 : 300;
        static const QImage scene = drawScene(columns, columns * 2 / 3, /*haze=*/true);
        const QImage scaled = scene.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        ASSERT_TRUE(scaled.save(folder.path(name), nullptr, 90));
    }

    /// Starts the command, lets the person act, closes the window if it is open, and returns the exit status.
    int use(const QStringList &arguments, const std::function<void()> &person)
    {
        const CommandLine line = CommandLine::parse(QStringList{"veilaway", "window"} + arguments);
        EXPECT_EQ(line.error, "");
        QTimer::singleShot(0, [&] {
            for (QWidget *widget : QApplication::topLevelWidgets())
                if (auto *found = qobject_cast<WorkspaceWindow *>(widget))
                    window = found;
            ASSERT_NE(window, nullptr);
            ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
            window->activateWindow();
            person();
            if (window)
                window->close();
        });
        const int code = WindowCommand(line, *host).run();
        window = nullptr;
        return code;
    }

    template<typename W>
    W *find(const char *name = "")
    {
        auto *widget = *name ? window->findChild<W *>(QLatin1String(name)) : window->findChild<W *>();
        if (!widget)
            throw std::runtime_error(std::string("nothing is named ") + name);
        return widget;
    }
    void click(const char *name)
    {
        auto *button = find<QAbstractButton>(name);
        ASSERT_TRUE(eventually([&] { return button->isVisible() && button->isEnabled(); })) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QCoreApplication::processEvents();
        QWidget *const focus = QApplication::focusWidget() ? QApplication::focusWidget() : window;
        QTest::keyClick(focus, Qt::Key(key), modifiers);
        QCoreApplication::processEvents();
    }
    /// With the left button, along a line.
    void drag(QWidget *widget, QPoint from, QPoint to)
    {
        QTest::mousePress(widget, Qt::LeftButton, {}, from);
        constexpr int kSteps = 8;
        for (int step = 1; step <= kSteps; ++step) {
            const QPoint at = from + (to - from) * step / kSteps;
            QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(widget, &move);
            QCoreApplication::processEvents();
        }
        QTest::mouseRelease(widget, Qt::LeftButton, {}, to);
    }
    void drop(const QStringList &paths)
    {
        QMimeData dragged;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls << QUrl::fromLocalFile(path);
        dragged.setUrls(urls);
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPoint(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window, &event);
    }
    /// Waits for a dialog that opens, and acts on it.
    void inDialog(const std::function<void(QWidget *)> &person)
    {
        auto *watch = new QTimer(window);
        QObject::connect(watch, &QTimer::timeout, [=] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                watch->deleteLater();
                watch->stop();
                person(dialog);
            }
        });
        watch->start(20);
    }

    Series *series() { return qobject_cast<Series *>(strip()->model()); }
    FilmstripView *strip() { return find<FilmstripView>(); }
    PictureView *picture() { return find<PictureView>(); }
    int strength() { return find<QSpinBox>("strength")->value(); }
    /// The photographs are listed and read, and the one in view can be judged.
    bool listed(int count)
    {
        return eventually(
            [&] { return series()->rowCount() == count && series()->unreadCount() == 0 && picture()->isVisible(); });
    }
    QList<Series::State> states()
    {
        QList<Series::State> all;
        for (int row = 0; row < series()->rowCount(); ++row)
            all << series()->state(row);
        return all;
    }
    bool allAre(Series::State wanted)
    {
        for (const Series::State state : states())
            if (state != wanted)
                return false;
        return true;
    }
    void typeStrength(const QString &percent)
    {
        auto *box = find<QSpinBox>("strength");
        QTest::mouseClick(box, Qt::LeftButton);
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(box, percent);
        QTest::keyClick(box, Qt::Key_Return);
    }

    /// The view shows the photograph, and nothing more comes.
    bool settled()
    {
        constexpr int kRestMs = 400; // longer than the view waits before it says what it waits for
        QImage last;
        QElapsedTimer rest;
        return eventually([&] {
            const QImage now = picture()->grab().toImage();
            if (now != last || now.pixel(now.width() * 2 / 5, now.height() / 2) == now.pixel(4, 4))
                rest.start();
            last = now;
            return rest.elapsed() > kRestMs;
        });
    }
    void keepPicture(const char *state)
    {
        const std::pair<Look, const char *> kLooks[] = {
            {Look::Dark, "dark"}, {Look::HighContrast, "contrast"}, {Look::Light, "light"}};
        for (const auto &[look, name] : kLooks) {
            ::use(look);
            keepPictureOf(window, QStringLiteral("%1_%2x_%3_%4")
                                      .arg(host->locale().name().left(2))
                                      .arg(window->devicePixelRatioF())
                                      .arg(state, name));
        }
    }

    TestFolder folder;
    QPointer<WorkspaceWindow> window;
};

} // namespace

TEST_F(Workspace, FromADroppedFolderToResults)
{
    photograph("trip/1_valley.jpg", 750, 500);
    photograph("trip/2_tower.png", 200, 300);
    photograph("trip/3_lake.jpg", 300, 200);
    const QString tag = QCoreApplication::translate("NimbraOne2One", "_dehazed");
    photograph("trip/1_valley" + tag + ".jpg", 750, 500);
    const int code = use({}, [&] {
        window->resize(kSmallScreen);
        keepPicture("1_empty");
        drop({folder.path("trip")});
        ASSERT_TRUE(listed(3));
        EXPECT_TRUE(find<QLabel>("message")->text().contains('1')); // result left out
        EXPECT_EQ(picture()->path(), folder.path("trip/1_valley.jpg"));
        ASSERT_TRUE(eventually([&] { return find<QLabel>("facts")->text().contains("750"); }));
        EXPECT_TRUE(settled());
        keepPicture("2_opened");

        typeStrength("85");
        EXPECT_EQ(series()->strength(0).percent, 85);
        EXPECT_EQ(picture()->strength(), 85);
        press(Qt::Key_Up);
        press(Qt::Key_Down, Qt::ShiftModifier);
        EXPECT_EQ(strength(), 76);
        press(Qt::Key_Right);
        EXPECT_EQ(picture()->path(), folder.path("trip/2_tower.png"));
        EXPECT_EQ(strength(), WantedStrength::kUsual);
        press(Qt::Key_A);
        EXPECT_TRUE(series()->strength(1).automatic);
        EXPECT_EQ(strength(), series()->percent(1));
        press(Qt::Key_R);
        EXPECT_FALSE(series()->strength(1).automatic);
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_TRUE(series()->strength(1).automatic);
        press(Qt::Key_Left);
        press(Qt::Key_D);
        EXPECT_EQ(picture()->mode(), PictureView::SideBySide);
        press(Qt::Key_Z);
        EXPECT_DOUBLE_EQ(picture()->scale(), 1);
        press(Qt::Key_C);
        EXPECT_TRUE(picture()->clipping());
        EXPECT_TRUE(settled());
        keepPicture("3_side_by_side");
        press(Qt::Key_C);
        press(Qt::Key_F);
        press(Qt::Key_S);

        press(Qt::Key_A, Qt::ControlModifier);
        click("applyToSelected");
        for (int row = 0; row < 3; ++row)
            EXPECT_EQ(series()->percent(row), 76) << row;
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_TRUE(series()->strength(1).automatic);
        EXPECT_TRUE(settled());
        keepPicture("4_edited");

        press(Qt::Key_Return, Qt::ControlModifier | Qt::ShiftModifier);
        ASSERT_TRUE(eventually([&] { return allAre(Series::State::Saved); }));
        ASSERT_TRUE(eventually([&] { return find<QLabel>("saveText")->text().contains('3'); }));
        press(Qt::Key_Up);
        EXPECT_EQ(series()->state(0), Series::State::ChangedSince);
        keepPicture("5_saved");
    });
    EXPECT_EQ(code, 0);
    const double hazy = folder.contrast("trip/1_valley.jpg");
    for (const char *name : {"trip/1_valley%1.jpg", "trip/2_tower%1.png", "trip/3_lake%1.jpg"})
        EXPECT_GT(folder.contrast(QString(name).arg(tag)), hazy) << name;
}

TEST_F(Workspace, KeysMeanWhatTheFocusSays)
{
    photograph("a.jpg");
    photograph("b.jpg");
    use({folder.path("a.jpg"), folder.path("b.jpg")}, [&] {
        ASSERT_TRUE(listed(2));
        auto *box = find<QSpinBox>("strength");
        const auto atA = [&] { return picture()->path() == folder.path("a.jpg"); };

        // In the box, keys write; letters and Space do nothing else.
        QTest::mouseClick(box, Qt::LeftButton);
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(box, "4");
        for (const int key : {Qt::Key_A, Qt::Key_R, Qt::Key_D, Qt::Key_Z, Qt::Key_Space, Qt::Key_M, Qt::Key_Left, Qt::Key_Right})
            QTest::keyClick(box, Qt::Key(key));
        EXPECT_EQ(strength(), 4);
        EXPECT_TRUE(atA());
        EXPECT_EQ(picture()->mode(), PictureView::Split);
        EXPECT_EQ(picture()->peek(), PictureView::NoPeek);
        QTest::keyClick(box, Qt::Key_Up);
        EXPECT_EQ(strength(), 5);
        press(Qt::Key_Z, Qt::ControlModifier); // all that was typed
        EXPECT_EQ(strength(), WantedStrength::kUsual);

        // Return leaves the box, and does nothing more there or elsewhere.
        QTest::keyClick(box, Qt::Key_Return);
        for (QWidget *focus :
             QList<QWidget *>{picture(), strip(), find<QSlider>("strengthSlider"), find<QAbstractButton>("saveAll"),
                              find<QAbstractButton>("saveThis"), find<QAbstractButton>("fullScreen")}) {
            focus->setFocus(Qt::TabFocusReason);
            ASSERT_TRUE(focus->hasFocus()) << focus->objectName();
            press(Qt::Key_Return);
            press(Qt::Key_Enter);
        }
        EXPECT_TRUE(allAre(Series::State::Untouched));
        EXPECT_FALSE(window->isFullScreen());

        for (QWidget *focus : QList<QWidget *>{picture(), strip()}) {
            focus->setFocus();
            press(Qt::Key_Right);
            EXPECT_FALSE(atA());
            press(Qt::Key_Right); // there is none
            press(Qt::Key_Left);
            EXPECT_TRUE(atA());
            press(Qt::Key_Up);
            press(Qt::Key_Down);
            EXPECT_EQ(strength(), WantedStrength::kUsual);
        }

        // What is held is let go, whatever happens meanwhile.
        for (const auto &[key, peek] :
             {std::pair(Qt::Key_Space, PictureView::PeekBefore), std::pair(Qt::Key_M, PictureView::PeekMap)}) {
            QTest::keyPress(strip(), key);
            EXPECT_EQ(picture()->peek(), peek);
            QTest::keyRelease(strip(), key);
            EXPECT_EQ(picture()->peek(), PictureView::NoPeek);
            QTest::keyPress(strip(), key);
            find<QSlider>("strengthSlider")->setFocus();
            EXPECT_EQ(picture()->peek(), PictureView::NoPeek);
            QTest::keyRelease(strip(), key);
            strip()->setFocus();
        }
        auto *map = find<QToolButton>("hazeMap");
        QTest::mousePress(map, Qt::LeftButton);
        EXPECT_EQ(picture()->peek(), PictureView::PeekMap);
        QTest::mouseRelease(map, Qt::LeftButton);
        EXPECT_EQ(picture()->peek(), PictureView::NoPeek);

        press(Qt::Key_F11);
        EXPECT_TRUE(eventually([&] { return window->isFullScreen(); }));
        press(Qt::Key_Escape);
        EXPECT_TRUE(eventually([&] { return !window->isFullScreen(); }));
        EXPECT_TRUE(window->isVisible());
        inDialog([](QWidget *sheet) {
            EXPECT_NE(qobject_cast<KeySheet *>(sheet), nullptr);
            keepPictureOf(sheet, host->locale().name().left(2) + "_keys");
            QTest::keyClick(sheet, Qt::Key_Escape);
        });
        press(Qt::Key_F1);

        window->activateWindow(); // there may be no window manager to do it
        strip()->setFocus();
        ASSERT_TRUE(eventually([&] { return strip()->hasFocus(); }));
        press(Qt::Key_Delete);
        EXPECT_EQ(series()->paths(), QStringList{folder.path("b.jpg")});
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(series()->rowCount(), 2);
        EXPECT_EQ(QDir(folder.path("")).entryList({"*.jpg"}).size(), 2);
    });
}

TEST_F(Workspace, OneDragOfTheSliderIsOneStep)
{
    photograph("a.jpg");
    use({folder.path("a.jpg")}, [&] {
        ASSERT_TRUE(listed(1));
        auto *slider = find<QSlider>("strengthSlider");
        const int y = slider->height() / 2, from = slider->width() * WantedStrength::kUsual / 100;
        drag(slider, {from, y}, {slider->width() / 4, y});
        EXPECT_LT(series()->percent(0), 40);
        EXPECT_EQ(series()->undoStack().count(), 1);
        click("undo");
        EXPECT_EQ(strength(), WantedStrength::kUsual);
        click("redo");
        EXPECT_LT(strength(), 40);
    });
}

TEST_F(Workspace, FailuresAreShownWithARemedyAndNoDialog)
{
    constexpr int kMissing = 120; // more than are listed at once
    photograph("a.jpg");
    folder.write("broken.jpg", "no photograph");
    QStringList names{folder.path("broken.jpg"), folder.path("a.jpg")};
    for (int i = 0; i < kMissing; ++i)
        names << folder.path(QStringLiteral("missing%1.jpg").arg(i));
    use(names, [&] {
        ASSERT_TRUE(listed(names.size()));
        EXPECT_EQ(picture()->path(), names[0]); // the first of all
        EXPECT_EQ(series()->state(0), Series::State::Failed);
        auto *box = find<QSpinBox>("strength");
        auto *saveAll = find<QAbstractButton>("saveAll"), *saveThis = find<QAbstractButton>("saveThis");
        ASSERT_TRUE(eventually([&] { return !box->isEnabled(); }));
        EXPECT_FALSE(saveThis->isEnabled());
        const auto toSave = [&] { return saveAll->text().remove(QRegularExpression("\\D")).toInt(); };
        EXPECT_EQ(toSave(), 1);
        ASSERT_TRUE(eventually([&] { return find<QAbstractButton>("retryReading")->isVisible(); }));
        keepPicture("6_unreadable");

        press(Qt::Key_Right);
        QFile::remove(names[1]);
        press(Qt::Key_Return, Qt::ControlModifier);
        ASSERT_TRUE(eventually([&] { return series()->state(1) == Series::State::Failed; }));
        auto *message = find<QLabel>("message"), *note = find<QLabel>("note");
        ASSERT_TRUE(eventually([&] { return message->isVisible() && message->text().contains("a.jpg"); }));
        ASSERT_TRUE(eventually([&] { return !note->text().isEmpty(); }));
        EXPECT_TRUE(message->text().endsWith(note->toolTip())) << "the reason of this photograph";
        keepPicture("6_failed");
        photograph("a.jpg");
        click("remedy");
        ASSERT_TRUE(eventually([&] { return series()->state(1) == Series::State::Saved; }));
        EXPECT_FALSE(message->isVisible());

        press(Qt::Key_Left);
        ASSERT_TRUE(eventually([&] { return find<QAbstractButton>("retryReading")->isVisible(); }));
        photograph("broken.jpg");
        click("retryReading");
        ASSERT_TRUE(eventually([&] { return box->isEnabled() && saveThis->isEnabled(); }));
        EXPECT_EQ(series()->state(0), Series::State::Untouched);
        ASSERT_TRUE(eventually([&] { return toSave() == 2; }));
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

        // What is undone is seen.
        press(Qt::Key_Up);
        press(Qt::Key_Right);
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(picture()->path(), names[0]);
    });
}

TEST_F(Workspace, ResultsGoWhereTheOptionsSay)
{
    photograph("a.jpg");
    QDir().mkdir(folder.path("out"));
    use({folder.path("a.jpg")}, [&] {
        ASSERT_TRUE(listed(1));
        const auto choose = [&](const std::function<void(SaveOptionsDialog *)> &person) {
            inDialog([=](QWidget *dialog) { person(qobject_cast<SaveOptionsDialog *>(dialog)); });
            click("options");
        };
        choose([&](SaveOptionsDialog *dialog) {
            auto *inFolder = dialog->findChild<QAbstractButton *>("inFolder");
            auto *ok = dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
            inFolder->click();
            dialog->findChild<QLineEdit *>("folder")->setText(folder.path("nowhere"));
            EXPECT_FALSE(ok->isEnabled());
            dialog->findChild<QLineEdit *>("folder")->setText(folder.path("out"));
            dialog->findChild<QLineEdit *>("tag")->setText("a/b");
            EXPECT_FALSE(ok->isEnabled());
            dialog->findChild<QLineEdit *>("tag")->setText("-clear");
            EXPECT_TRUE(ok->isEnabled());
            keepPictureOf(dialog, host->locale().name().left(2) + "_options");
            QTest::mouseClick(ok, Qt::LeftButton);
        });
        EXPECT_TRUE(find<QLabel>("facts")->text().contains("a-clear.jpg"));
        const auto saveAndList = [&] {
            click("saveThis");
            EXPECT_TRUE(eventually(
                [&] { return series()->state(0) == Series::State::Saved && find<QAbstractButton>("stop")->isHidden(); }));
            return QDir(folder.path("out")).entryList(QDir::Files);
        };
        EXPECT_EQ(saveAndList(), QStringList{"a-clear.jpg"});
        choose([&](SaveOptionsDialog *dialog) {
            EXPECT_EQ(dialog->options().tag, QStringLiteral("-clear")); // remembered
            dialog->findChildren<QRadioButton *>().at(int(SaveQueue::Policy::KeepBoth))->click();
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        EXPECT_EQ(saveAndList().size(), 2);
    });
    EXPECT_FALSE(folder.files().contains("a_dehazed.jpg"));
}

TEST_F(Workspace, ASessionIsSavedOpenedAndRunByTheCommandLine)
{
    photograph("a.jpg");
    folder.write("trip.xml", "<veilaway><photo path='a.jpg'><Veilaway hazeRemove='20'/></photo></veilaway>");
    const auto stored = [&] {
        SettingsFile file(folder.path("trip.xml"), QStringLiteral("Veilaway"));
        file.load();
        return SettingsFile::strengthOf(file.element(folder.path("a.jpg")));
    };
    use({folder.path("trip.xml")}, [&] {
        ASSERT_TRUE(listed(1));
        EXPECT_EQ(strength(), 20);
        strip()->setFocus();
        press(Qt::Key_Up);
        EXPECT_TRUE(window->isWindowModified());
        EXPECT_EQ(stored(), 20);
        press(Qt::Key_S, Qt::ControlModifier);
        EXPECT_FALSE(window->isWindowModified());
        EXPECT_EQ(stored(), 21);
    });
    // The window without arguments offers it again.
    use({}, [&] {
        auto *recent = window->findChild<QWidget *>("addPhotographs")->parentWidget();
        for (QAbstractButton *button : recent->findChildren<QAbstractButton *>())
            if (button->text().contains("trip.xml")) {
                QTest::mouseClick(button, Qt::LeftButton);
                break;
            }
        ASSERT_TRUE(listed(1));
        EXPECT_EQ(strength(), 21);
        press(Qt::Key_N, Qt::ControlModifier);
        EXPECT_EQ(series()->rowCount(), 0);
        keepPicture("7_recent");
    });
    const CommandLine missing = CommandLine::parse({"veilaway", "window", folder.path("missing.xml")});
    EXPECT_EQ(WindowCommand(missing, *host).run(), ExitUsage);
}

TEST_F(Workspace, QuittingInTheMiddleOfSavesLeavesWholeResultsAndASessionThatGoesOn)
{
    constexpr int kCount = 60, kSavedFirst = 3, kSlow = 12;
    const QString tag = QCoreApplication::translate("NimbraOne2One", "_dehazed");
    photograph("trip/00.jpg", 60, 40);
    for (int i = 1; i < kCount; ++i)
        QFile::copy(folder.path("trip/00.jpg"), folder.path(QStringLiteral("trip/%1.jpg").arg(i, 2, 10, QLatin1Char('0'))));
    const auto results = [&] { return QDir(folder.path("trip")).entryInfoList({"*" + tag + "*"}, QDir::Files | QDir::Hidden); };
    use({folder.path("trip")}, [&] {
        ASSERT_TRUE(listed(kCount));
        strip()->setFocus();
        press(Qt::Key_Up);
        QList<int> quick; // at this strength the engine has nothing to do
        for (int row = kSlow; row < kCount; ++row)
            quick << row;
        series()->setStrength(quick, {0, /*automatic=*/false});
        press(Qt::Key_Return, Qt::ControlModifier | Qt::ShiftModifier);
        ASSERT_TRUE(eventually([&] { return states().count(Series::State::Saved) >= kSavedFirst; }));
        keepPicture("8_saving");
        press(Qt::Key_Q, Qt::ControlModifier);
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr); // nothing is lost, so nothing is asked
    });
    const QFileInfoList left = results();
    EXPECT_GE(left.size(), kSavedFirst);
    EXPECT_LT(left.size(), kCount);
    for (const QFileInfo &file : left)
        EXPECT_FALSE(QImage(file.filePath()).isNull()) << file.fileName();
    use({}, [&] {
        ASSERT_TRUE(listed(kCount));
        EXPECT_EQ(strength(), WantedStrength::kUsual + 1);
        EXPECT_EQ(states().count(Series::State::Waiting), kCount - left.size());
        keepPicture("9_restored");
        click("remedy");
        while (!allAre(Series::State::Saved)) { // the limit is for each, however slow the machine is
            const auto saved = states().count(Series::State::Saved);
            ASSERT_TRUE(eventually([&] { return states().count(Series::State::Saved) > saved; }));
        }
    });
    EXPECT_EQ(results().size(), kCount);
}

/// Of every language that the program has, without a user: texts fit a small screen, mnemonics are unique where they could meet,
/// and whoever can't see the window or uses no pointer finds every control.
TEST_F(Workspace, EveryLanguageFitsAndEveryControlCanBeReached)
{
    PluginFile plugin{QString()};
    photograph("a.jpg", 60, 40);
    for (const QString &language : HostApplication::languages()) {
        SCOPED_TRACE(language.toStdString());
        QTranslator catalogue;
        ASSERT_TRUE(catalogue.load(QStringLiteral(":/Translation/veilaway_%1.qm").arg(language)));
        QCoreApplication::installTranslator(&catalogue);
        WorkspaceWindow shown(*host, plugin.process(), /*jobs=*/1);
        shown.addPhotographs({folder.path("a.jpg")});
        ASSERT_TRUE(eventually([&] { return shown.findChild<PictureView *>()->isVisibleTo(&shown); }));
        shown.resize(kSmallScreen);
        shown.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&shown));
        if (shown.devicePixelRatioF() == 1)
            keepPictureOf(&shown, "all_" + language);
        EXPECT_LE(shown.minimumSizeHint().width(), kSmallScreen.width());
        EXPECT_LE(shown.minimumSizeHint().height(), kSmallScreen.height());
        if (const auto *more = shown.findChild<QWidget *>("qt_toolbar_ext_button")) {
            EXPECT_FALSE(more->isVisible());
        }

        SaveOptionsDialog dialog({}, folder.path("a.jpg"), &shown);
        for (QWidget *scope : QList<QWidget *>{&shown, &dialog}) {
            std::set<QString> mnemonics;
            for (QWidget *widget : scope->findChildren<QWidget *>()) {
                if (widget->window() != scope || !widget->isVisibleTo(scope))
                    continue;
                QString text;
                if (const auto *button = qobject_cast<QAbstractButton *>(widget))
                    text = button->text();
                else if (const auto *label = qobject_cast<QLabel *>(widget); label && label->buddy())
                    text = label->text();
                if (const QKeySequence mnemonic = QKeySequence::mnemonic(text); !mnemonic.isEmpty()) {
                    EXPECT_TRUE(mnemonics.insert(mnemonic.toString()).second) << text;
                }
                const auto *button = qobject_cast<QAbstractButton *>(widget);
                if (widget->objectName().startsWith("qt_")) {
                    continue; // a part of another control
                }
                if (button) {
                    EXPECT_NE(button->focusPolicy() & Qt::TabFocus, 0) << button->objectName() << text;
                    EXPECT_FALSE(text.isEmpty() && button->accessibleName().isEmpty()) << button->objectName();
                } else if (widget->focusPolicy() & Qt::TabFocus) {
                    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(widget);
                    EXPECT_TRUE(seen && !seen->text(QAccessible::Name).isEmpty())
                        << widget->metaObject()->className() << widget->objectName();
                }
            }
        }
        QCoreApplication::removeTranslator(&catalogue);
    }
}

/// Starts as the program does, except that the first argument is the language of the window.
int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QTemporaryDir home;
    for (const char *place : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
        qputenv(place, QFile::encodeName(home.path()));
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent"); // no notification leaves the test
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QLocale locale = HostApplication::localeFor(QString::fromLatin1(argc > 1 ? argv[1] : "en")).value();
    HostedApplication<QApplication> application(argc, argv, locale, /*lendServices=*/true);
    QLocale::setDefault(locale);
    application.loadTranslator(QStringLiteral("veilaway_%1.qm").arg(locale.name()));
    host = &application;
    use(Look::Light);
    return RUN_ALL_TESTS();
}
