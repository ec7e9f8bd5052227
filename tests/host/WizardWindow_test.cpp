#include <cstdio>
#include <functional>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QSettings>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>
#include <QTextCodec>
#include <QTimer>
#include <QUrl>
#include <gtest/gtest.h>

#include "HostApplication.h"
#include "SettingsFile.h"
#include "TestFolder.h"
#include "WantedStrength.h"
#include "WizardCommand.h"
#include "WizardWindow.h"
#include "drawScene.h"

namespace {

/// The same hazy scene at any size; drawing it takes seconds.
QImage drawn(int width, int height)
{
    static const QImage scene = drawScene(300, 200, /*haze=*/true);
    return scene.scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

constexpr int kLimitMs = 300000; ///< Enough for a few runs of the engine under a sanitizer on a busy machine.
const char kProcessGuid[] = "51D2A7E4-93C6-4F08-B1E5-6A0C7D3E9F21";

HostApplication *host = nullptr;

/// Processes events until the condition holds; false after kLimitMs.
bool eventually(const std::function<bool()> &holds)
{
    bool late = false;
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, [&] { late = true; });
    limit.start(kLimitMs);
    while (!late && !holds())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return !late;
}

QString strengthIn(const QString &settingsFile, const QString &photograph)
{
    SettingsFile file(settingsFile, QStringLiteral("Veilaway"));
    file.load();
    return file.element(photograph).attribute(QStringLiteral("hazeRemove"));
}

/// A person before the window, with the program's command behind it.
class Wizard : public testing::Test
{
protected:
    void photograph(const QString &name, int width, int height)
    {
        ASSERT_TRUE(drawn(width, height).save(folder.path(name), nullptr, 90));
    }

    /// Starts the command, lets the person act, closes the window if it is open, and returns the exit status.
    int use(const QStringList &arguments, const std::function<void()> &person)
    {
        const CommandLine line = CommandLine::parse(QStringList{"veilaway", "wizard"} + arguments);
        EXPECT_EQ(line.error, "");
        QTimer::singleShot(0, [&] {
            for (QWidget *widget : QApplication::topLevelWidgets())
                if (auto *found = qobject_cast<WizardWindow *>(widget))
                    window = found;
            person();
            window->close();
        });
        return WizardCommand(line, *host).run();
    }

    template<typename W>
    W *find(const char *name)
    {
        auto *widget = window->findChild<W *>(QLatin1String(name));
        if (!widget)
            throw std::runtime_error(std::string("nothing is named ") + name);
        return widget;
    }
    void click(const char *name) { click(find<QAbstractButton>(name)); }
    void click(QAbstractButton *button)
    {
        ASSERT_TRUE(eventually([&] { return button->isVisible() && button->isEnabled(); }));
        QTest::mouseClick(button, Qt::LeftButton);
    }
    void go(QWizard::WizardButton button) { click(window->button(button)); }
    bool reached(int page)
    {
        return eventually([&] { return window->currentId() == page && window->currentPage()->isComplete(); });
    }
    bool goesTo(QWizard::WizardButton button, int page)
    {
        go(button);
        return reached(page);
    }

    /// Clicks what opens a file dialog, pastes into it and presses Return.
    void clickAndPaste(const char *button, const QString &text)
    {
        QTimer::singleShot(0, [&] {
            auto *name = QApplication::activeModalWidget()->findChild<QLineEdit *>("fileNameEdit");
            name->selectAll();
            name->insert(text); // pasted, which opens no list of completions
            QTest::keyClick(name, Qt::Key_Return);
        });
        click(button);
    }
    void drop(const QStringList &paths)
    {
        QMimeData dragged;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls << QUrl::fromLocalFile(path);
        dragged.setUrls(urls);
        QWidget *const page = window->currentPage();
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(page, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPoint(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(page, &event);
    }

    void showOnPage(const QString &name)
    {
        auto *photos = find<QComboBox>("comboBoxImageDef");
        for (int i = 0; i < photos->count() && photos->currentText() != name; ++i) {
            click("QToolButton_Next");
            ASSERT_TRUE(reached(WizardWindow::Strength));
        }
        EXPECT_EQ(photos->currentText(), name);
    }
    int strengthOf(const QString &name)
    {
        showOnPage(name);
        return find<QSpinBox>("spinBoxPourcent")->value();
    }
    void typeStrength(const QString &name, const QString &percent)
    {
        showOnPage(name);
        auto *strength = find<QSpinBox>("spinBoxPourcent");
        QTest::mouseClick(strength, Qt::LeftButton);
        QTest::keyClick(strength, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(strength, percent);
        EXPECT_TRUE(reached(WizardWindow::Strength));
    }
    /// The picture on the plug-in's page, with its frame.
    QImage preview() { return find<QWidget>("UIHazePreviewClass")->grab(find<QWidget>("frame")->geometry()).toImage(); }

    QStringList states()
    {
        auto *table = find<QTableWidget>("work");
        QStringList texts;
        for (int row = 0; row < table->rowCount(); ++row)
            texts << table->item(row, table->columnCount() - 1)->text();
        return texts;
    }
    /// Does something at the first sign of work.
    void whenWorkShows(const std::function<void()> &then)
    {
        for (QProgressBar *bar : find<QTableWidget>("work")->findChildren<QProgressBar *>())
            QObject::connect(bar, &QProgressBar::valueChanged, window, [this, then] {
                if (!std::exchange(workShown, true))
                    then();
            });
    }

    void keepPicture(const char *page)
    {
        const QString name = QStringLiteral("%1/%2_%3x_%4.png")
                                 .arg(QStringLiteral(WIZARD_PICTURES), host->locale().name().left(2))
                                 .arg(window->devicePixelRatioF())
                                 .arg(page);
        EXPECT_TRUE(QDir().mkpath(QStringLiteral(WIZARD_PICTURES)));
        EXPECT_TRUE(window->grab().save(name));
    }

    TestFolder folder;
    WizardWindow *window = nullptr;
    bool workShown = false;
};

/// The first column from which two pictures are the same.
int sameFrom(const QImage &one, const QImage &other)
{
    for (int x = one.width(); x-- > 0;)
        for (int y = 0; y < one.height(); ++y)
            if (one.pixel(x, y) != other.pixel(x, y))
                return x + 1;
    return 0;
}

} // namespace

TEST_F(Wizard, FromChoosingTwoPhotographsToTwoResults)
{
    photograph("valley.jpg", 750, 500);
    photograph("tower.png", 375, 500);
    folder.write("broken.jpg", "no photograph");
    const double before[] = {folder.contrast("valley.jpg"), folder.contrast("tower.png")};
    const QString tag = QCoreApplication::translate("NimbraOne2One", "_dehazed");
    const int code = use({}, [&] {
        EXPECT_FALSE(window->button(QWizard::NextButton)->isEnabled());
        keepPicture("1_empty");
        clickAndPaste(
            "add", '"' +
                       QStringList{folder.path("valley.jpg"), folder.path("broken.jpg"), folder.path("tower.png")}.join("\" \"") +
                       '"');
        ASSERT_TRUE(eventually([&] { return find<QLabel>("leftOut")->text().contains("broken.jpg: "); }));
        auto *photos = find<QListWidget>("photographs");
        ASSERT_EQ(photos->count(), 2);
        const QString whole = QCoreApplication::translate("PhotoPage", "%n photograph(s)", nullptr, 2);
        ASSERT_TRUE(eventually([&] { return find<QLabel>("state")->text() == whole; }));
        keepPicture("1_photographs");

        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Strength));
        EXPECT_EQ(find<QComboBox>("comboBoxImageDef")->count(), 2);
        EXPECT_EQ(strengthOf("tower.png"), WantedStrength::kUsual);
        typeStrength("tower.png", "30");
        typeStrength("valley.jpg", "85");
        keepPicture("2_strength");

        const QImage split = preview();
        click("checkBoxSplit");
        const QImage whole85 = preview();
        const QSize frame = find<QWidget>("frame")->size();
        const int across = QSize(750, 500).scaled(frame, Qt::KeepAspectRatio).width();
        const int middle = (frame.width() - across) / 2 + across / 2;
        EXPECT_EQ(sameFrom(split, whole85), int(middle * window->devicePixelRatioF()));
        click("checkBoxSplit");
        QWidget *const panel = find<QWidget>("UIHazePreviewClass");
        QTest::mouseClick(panel, Qt::LeftButton);
        QTest::keyPress(panel, Qt::Key_Alt);
        EXPECT_FALSE(preview() == split);
        keepPicture("2_map");
        QTest::keyRelease(panel, Qt::Key_Alt);
        EXPECT_TRUE(preview() == split);
        QApplication::setActiveWindow(window);
        QTest::keyPress(panel, Qt::Key_Alt);
        QApplication::setActiveWindow(nullptr); // as after Alt+Tab
        EXPECT_TRUE(preview() == split);
        QApplication::setActiveWindow(window);

        ASSERT_TRUE(goesTo(QWizard::BackButton, WizardWindow::Photographs));
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Strength));
        EXPECT_EQ(strengthOf("tower.png"), 30);
        EXPECT_EQ(strengthOf("valley.jpg"), 85);

        go(QWizard::NextButton);
        whenWorkShows([&] { keepPicture("3_work"); });
        ASSERT_TRUE(reached(WizardWindow::Work));
        EXPECT_TRUE(workShown);
        EXPECT_EQ(find<QProgressBar>("overall")->value(), 2);
        const QString done = QCoreApplication::translate("RunPage", "Done");
        EXPECT_EQ(states(), (QStringList{done, done}));

        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Results));
        EXPECT_EQ(find<QListWidget>("results")->count(), 2);
        EXPECT_EQ(find<QLabel>("outcome")->text(), folder.path("valley" + tag + ".jpg"));
        keepPicture("4_results");
        clickAndPaste("saveSession", folder.path("evening")); // the suffix is added
        window->button(QWizard::FinishButton)->setFocus();
        for (QWidget *widget : {static_cast<QWidget *>(window), static_cast<QWidget *>(window->button(QWizard::FinishButton))})
            QTest::keyClick(widget, Qt::Key_Return);
        EXPECT_TRUE(window->isVisible());
        go(QWizard::BackButton);
        ASSERT_TRUE(reached(WizardWindow::Strength));
        EXPECT_EQ(strengthOf("tower.png"), 30);
        go(QWizard::NextButton);
        click("keep");
        ASSERT_TRUE(reached(WizardWindow::Work));
        EXPECT_EQ(QApplication::focusWidget(), window->button(QWizard::NextButton));
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Results));
        go(QWizard::FinishButton);
        EXPECT_FALSE(window->isVisible());
    });
    EXPECT_EQ(code, 0);
    EXPECT_GT(folder.contrast("valley" + tag + ".jpg"), before[0]);
    EXPECT_GT(folder.contrast("tower" + tag + ".png"), before[1]);
    EXPECT_EQ(strengthIn(folder.path("evening.xml"), folder.path("valley.jpg")), "85");
    EXPECT_EQ(strengthIn(folder.path("evening.xml"), folder.path("tower.png")), "30");
}

TEST_F(Wizard, ASessionGoesOnWithAFurtherPhotograph)
{
    photograph("valley.jpg", 300, 200);
    QDir().mkdir(folder.path("more"));
    photograph("more/tower.png", 200, 300);
    folder.write("notes.txt", "no photograph");
    photograph("more/tower_sinbruma.png", 200, 300);
    const QString tag = QCoreApplication::translate("NimbraOne2One", "_dehazed"), result = "valley" + tag + ".jpg";
    folder.write(result, "a result of before");
    folder.write("session.xml", "<veilaway><photo path='valley.jpg'><Veilaway hazeRemove='20'/></photo><photo path='" +
                                    result.toUtf8() + "'><Veilaway hazeRemove='9'/></photo></veilaway>");
    const int code = use({"--settings", folder.path("session.xml")}, [&] {
        ASSERT_TRUE(reached(WizardWindow::Photographs));
        EXPECT_EQ(find<QListWidget>("photographs")->count(), 1);
        EXPECT_TRUE(find<QLabel>("leftOut")->text().contains(result));
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Strength));
        EXPECT_EQ(strengthOf("valley.jpg"), 20);
        typeStrength("valley.jpg", "25");
        go(QWizard::BackButton);
        drop({folder.path("more/tower_sinbruma.png")}); // a photograph, until the one comes that it is the result of
        EXPECT_EQ(find<QListWidget>("photographs")->count(), 2);
        drop({folder.path("more"), folder.path("notes.txt")});
        EXPECT_EQ(find<QListWidget>("photographs")->count(), 3);
        ASSERT_TRUE(eventually([&] { return find<QLabel>("leftOut")->text().contains("notes.txt"); }));
        EXPECT_EQ(find<QLabel>("leftOut")->text().count("tower_sinbruma.png"), 1);
        EXPECT_EQ(find<QLabel>("leftOut")->text().count('\n'), 2) << find<QLabel>("leftOut")->text();
        ASSERT_TRUE(reached(WizardWindow::Photographs));
        keepPicture("1_left_out");
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Strength));
        EXPECT_EQ(strengthOf("valley.jpg"), 25);
        EXPECT_EQ(strengthOf("tower.png"), WantedStrength::kUsual);
        typeStrength("tower.png", "55");
        click("pushButtonApplyAll");
        EXPECT_EQ(strengthOf("valley.jpg"), 55);

        // The user is asked about the earlier result, which stays.
        go(QWizard::NextButton);
        keepPicture("3_question");
        click("keep");
        ASSERT_TRUE(reached(WizardWindow::Work));
        EXPECT_EQ(states(),
                  (QStringList{QCoreApplication::translate("RunPage", "Kept"), QCoreApplication::translate("RunPage", "Done")}));
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Results));

        click("startOver");
        EXPECT_EQ(window->currentId(), WizardWindow::Photographs);
        EXPECT_EQ(find<QListWidget>("photographs")->count(), 0);
        EXPECT_FALSE(window->button(QWizard::NextButton)->isEnabled());
    });
    EXPECT_EQ(code, 0);
    EXPECT_EQ(folder.content(result), "a result of before");
    EXPECT_EQ(strengthIn(folder.path("session.xml"), folder.path("valley.jpg")), "55");
    EXPECT_EQ(strengthIn(folder.path("session.xml"), folder.path(result)), "");
    EXPECT_EQ(strengthIn(folder.path("session.xml"), folder.path("more/tower.png")), "55");

    // The strength applied to all is now the stored default.
    use({folder.path("valley.jpg")}, [&] {
        ASSERT_TRUE(reached(WizardWindow::Photographs));
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Strength));
        EXPECT_EQ(strengthOf("valley.jpg"), 55);
        QTest::keyClick(window, Qt::Key_Escape);
        EXPECT_TRUE(window->isVisible());
    });
    host->setValue(kProcessGuid, "hazeRemove", WantedStrength::kUsual);
}

TEST_F(Wizard, WithAutoAsTheDefaultEachPhotographStartsAtItsOwnStrength)
{
    photograph("bright.jpg", 300, 200);
    ASSERT_TRUE(drawn(200, 300).convertToFormat(QImage::Format_Grayscale8).save(folder.path("grey.png")));
    QImage dark = drawn(300, 200);
    for (int y = 0; y < dark.height(); ++y)
        for (int x = 0; x < dark.width(); ++x)
            dark.setPixel(x, y, QColor(dark.pixel(x, y)).darker(250).rgb());
    ASSERT_TRUE(dark.save(folder.path("dark.png")));
    folder.write("session.xml", "<veilaway><photo path='grey.png'><Veilaway hazeRemove='20'/></photo></veilaway>");
    host->setValue(kProcessGuid, "strength", "auto");
    const auto sayAuto = [&] {
        QString all;
        SettingsFile file(folder.path("session.xml"), QStringLiteral("Veilaway"));
        file.load();
        for (const char *name : {"bright.jpg", "grey.png", "dark.png"})
            all += QString::number(SettingsFile::isAutomatic(file.element(folder.path(name))));
        return all;
    };
    const QStringList arguments{folder.path("bright.jpg"), folder.path("grey.png"), folder.path("dark.png"), "--settings",
                                folder.path("session.xml")};
    for (const bool again : {false, true})
        use(arguments, [&] {
            ASSERT_TRUE(reached(WizardWindow::Photographs));
            EXPECT_EQ(find<QLabel>("state")->text(),
                      QCoreApplication::translate("PhotoPage", "%n photograph(s)", nullptr, 3)); // all are read
            ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Strength));
            EXPECT_EQ(strengthOf("bright.jpg"), 80);
            EXPECT_EQ(strengthOf("dark.png"), 50);
            EXPECT_EQ(strengthOf("grey.png"), 20);
            if (again)
                typeStrength("bright.jpg", "66");
            go(QWizard::NextButton);
            ASSERT_TRUE(eventually([&] { return window->currentId() == WizardWindow::Work; }));
            EXPECT_EQ(sayAuto(), again ? "001" : "101");
        });
    host->setValue(kProcessGuid, "strength", {});
}

TEST_F(Wizard, AMissingAndAnUnchangedPhotographAreShownWithTheReason)
{
    photograph("valley.jpg", 300, 200);
    folder.photograph("nan.tif", 300, 200, VImage::Rgb, 32);
    folder.spoil("nan.tif");
    photograph("gone.png", 200, 300);
    use({folder.path("gone.png"), folder.path("nan.tif"), folder.path("valley.jpg")}, [&] {
        ASSERT_TRUE(reached(WizardWindow::Photographs));
        QFile::remove(folder.path("gone.png"));
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Strength));
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Work));
        EXPECT_EQ(states(), (QStringList{QCoreApplication::translate("RunPage", "Failed"),
                                         QCoreApplication::translate("RunPage", "Unchanged"),
                                         QCoreApplication::translate("RunPage", "Done")}));
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Results));
        EXPECT_EQ(window->currentPage()->subTitle(),
                  QCoreApplication::translate("ResultPage", "%1 of %2 photographs are done.").arg(1).arg(3));
        EXPECT_NE(find<QLabel>("outcome")->text(), "");
        EXPECT_FALSE(find<QLabel>("outcome")->text().contains("gone_"));
        find<QListWidget>("results")->setCurrentRow(1);
        const QString why = find<QLabel>("outcome")->text();
        EXPECT_FALSE(why.isEmpty() || why.contains(folder.path("nan"))) << why;
    });
}

TEST_F(Wizard, TheListNamesThePhotographShownWhenAnotherCannotBeRead)
{
    for (const bool firstGoes : {false, true}) {
        SCOPED_TRACE(firstGoes);
        QStringList names{firstGoes ? "c.jpg" : "a.jpg", firstGoes ? "d.jpg" : "b.jpg"};
        photograph(names[0], 300, 200);
        photograph(names[1], 200, 300);
        const QString goes = names[firstGoes ? 0 : 1], stays = names[firstGoes ? 1 : 0];
        // A copy of this size leaves no room for what is read ahead, so that the plug-in's page has to read for itself.
        host->photograph(folder.path(stays))->scaledCopy(9459, 9459, ScaledImages::Keep::Always);
        use({folder.path(names[0]), folder.path(names[1])}, [&] {
            const QString whole = QCoreApplication::translate("PhotoPage", "%n photograph(s)", nullptr, 2);
            ASSERT_TRUE(eventually([&] { return find<QLabel>("state")->text() == whole; }));
            QFile::remove(folder.path(goes));
            QString shown;
            QTimer reader;
            QObject::connect(&reader, &QTimer::timeout, [&] {
                if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                    shown = box->text();
                    box->accept();
                }
            });
            reader.start(20);
            ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Strength));
            EXPECT_EQ(find<QComboBox>("comboBoxImageDef")->currentText(), stays);
            typeStrength(stays, "40");
            if (!firstGoes)
                click("QToolButton_Next");
            ASSERT_TRUE(eventually([&] { return !shown.isEmpty(); }));
            EXPECT_TRUE(shown.startsWith(goes + ": ")) << shown;
            EXPECT_EQ(find<QComboBox>("comboBoxImageDef")->currentText(), stays);
            click("pushButtonApplyAll");
            ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Work));
            const QString used = find<QTableWidget>("work")->item(names.indexOf(stays), 1)->text();
            EXPECT_TRUE(used.startsWith("40")) << used;
        });
        host->setValue(kProcessGuid, "hazeRemove", WantedStrength::kUsual);
    }
}

TEST_F(Wizard, ClosingStopsTheWorkBetweenPhotographs)
{
    QStringList arguments{"--jobs", "1"};
    const QStringList names{"b.png", "d.png", "a.png", "c.png"};
    for (const char *name : {"a.png", "b.png", "c.png", "d.png"}) {
        photograph(name, 300, 200);
        host->photograph(folder.path(name)); // its address is not the one by which the page orders it
    }
    for (const QString &name : names)
        arguments << folder.path(name);
    use(arguments, [&] {}); // while they are being read
    use(arguments, [&] {
        ASSERT_TRUE(reached(WizardWindow::Photographs));
        ASSERT_TRUE(goesTo(QWizard::NextButton, WizardWindow::Strength));
        QStringList listed;
        for (int i = 0; i < find<QComboBox>("comboBoxImageDef")->count(); ++i)
            listed << find<QComboBox>("comboBoxImageDef")->itemText(i);
        EXPECT_EQ(listed, names);
        go(QWizard::NextButton);
        bool stillThere = false;
        whenWorkShows([&] {
            window->close();
            stillThere = window->isVisible();
        });
        EXPECT_TRUE(eventually([&] { return !window->isVisible(); }));
        EXPECT_TRUE(stillThere);
        EXPECT_EQ(states().last(), QCoreApplication::translate("RunPage", "Stopped"));
    });
    EXPECT_EQ(folder.files().size(), names.size());
}

/// Starts as the program does, except that the first argument is the language of the window.
int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(settings.path()));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QLocale locale = HostApplication::localeFor(QString::fromLatin1(argc > 1 ? argv[1] : "en")).value();
    HostedApplication<QApplication> application(argc, argv, locale, /*lendServices=*/true);
    application.loadTranslator(QStringLiteral("veilaway_%1.qm").arg(locale.name()));
    host = &application;
    return RUN_ALL_TESTS();
}
