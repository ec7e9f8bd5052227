#include "WizardWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QSignalBlocker>

#include "BatchPlan.h"
#include "DefaultStrength.h"
#include "PhotoPage.h"
#include "ResultPage.h"
#include "RunPage.h"
#include "VException.h"
#include "pluginIdentity.h"

namespace {

bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

WizardWindow::WizardWindow(HostApplication &host, VIPluginOne2One &process, std::unique_ptr<SettingsFile> settings, int jobs)
    : application(host), one2one(process), session(std::move(settings)), hasFile(session != nullptr), batchJobs(jobs),
      photoPage(new PhotoPage(host)), runPage(new RunPage(host, process)), resultPage(new ResultPage)
{
    if (!session)
        session = std::make_unique<SettingsFile>(QDir::current().filePath(QStringLiteral("veilaway.xml")), process.name());
    const auto usual = DefaultStrength(application, process.guid()).stored();
    automaticDefault = usual && usual->automatic;
    if (automaticDefault)
        photoPage->waitForAll();
    setWindowTitle(tr("veilaway"));
    setWizardStyle(QWizard::ClassicStyle);
    setOptions(QWizard::NoBackButtonOnStartPage | QWizard::NoCancelButtonOnLastPage);
    // These two buttons of the plug-in's page have neither text nor icon.
    setStyleSheet(QStringLiteral("QToolButton#QToolButton_Prev { qproperty-arrowType: LeftArrow; }"
                                 "QToolButton#QToolButton_Next { qproperty-arrowType: RightArrow; }"));
    setPage(Photographs, photoPage);
    QWizardPage *const strengthPage = process.wizardPage();
    strengthPage->setButtonText(QWizard::NextButton, tr("&Remove haze"));
    strengthPage->setSubTitle(tr("Set how much haze to remove from each photograph. Hold Alt to see where the haze is."));
    setPage(Strength, strengthPage);
    panel = strengthPage->findChild<QWidget *>(QStringLiteral("UIHazePreviewClass"));
    if (panel)
        panel->installEventFilter(this);
    button(FinishButton)->installEventFilter(this);
    giveNames(*strengthPage);
    imageList = strengthPage->findChild<QComboBox *>(QStringLiteral("comboBoxImageDef"));
    if (imageList) // after the page's own slot: if that throws, this one is not reached
        connect(imageList, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int index) { shownImage = index; });
    setPage(Work, runPage);
    setPage(Results, resultPage);
    resize(960, 700);

    connect(this, &QWizard::currentIdChanged, this, &WizardWindow::fitSubTitle);
    // After the wizard's own slots, which would allow to go back during the work.
    connect(this, &QWizard::currentIdChanged, this, &WizardWindow::fitButtons);
    connect(runPage, &QWizardPage::completeChanged, this, &WizardWindow::fitButtons);
    connect(photoPage, &PhotoPage::settingsWanted, this, &WizardWindow::openSession);
    connect(resultPage, &ResultPage::saveWanted, this, &WizardWindow::saveSessionAs);
    connect(resultPage, &ResultPage::startOverWanted, this, &WizardWindow::startOver);
}

void WizardWindow::fitSubTitle()
{
    // The wizard has room for two lines above its pages and cuts off the rest.
    if (!currentPage())
        return;
    const QString text = currentPage()->subTitle();
    for (QLabel *label : findChildren<QLabel *>())
        if (!text.isEmpty() && label->text() == text)
            label->setMinimumHeight(label->heightForWidth(label->width()));
}

void WizardWindow::fitButtons()
{
    if (currentId() != Work)
        return;
    button(BackButton)->setEnabled(!runPage->isRunning());
    if (runPage->isComplete())
        button(NextButton)->setFocus();
}

void WizardWindow::giveNames(QWizardPage &strengthPage)
{
    const auto name = [&](const char *object, const QString &text) {
        if (auto *widget = strengthPage.findChild<QWidget *>(QLatin1String(object)))
            widget->setAccessibleName(text);
    };
    name("comboBoxImageDef", tr("Photograph"));
    name("spinBoxPourcent", tr("Strength in per cent"));
    name("horizontalSlider", tr("Strength in per cent"));
    name("frame", tr("Preview"));
    name("QToolButton_Prev", tr("Previous photograph"));
    name("QToolButton_Next", tr("Next photograph"));
}

bool WizardWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == panel && (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Alt && !key->isAutoRepeat())
            showsMap = event->type() == QEvent::KeyPress;
    }
    if (watched == button(FinishButton) && event->type() == QEvent::KeyPress && isReturn(*static_cast<QKeyEvent *>(event)))
        return true;
    return QWizard::eventFilter(watched, event);
}

void WizardWindow::changeEvent(QEvent *event)
{
    QWizard::changeEvent(event);
    // The key is let go where this window doesn't see it, as after Alt+Tab.
    if (event->type() == QEvent::ActivationChange && !isActiveWindow() && showsMap) {
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Alt, Qt::NoModifier);
        QApplication::sendEvent(panel, &release);
    }
}

void WizardWindow::resizeEvent(QResizeEvent *event)
{
    QWizard::resizeEvent(event);
    fitSubTitle();
}

void WizardWindow::putListBack()
{
    if (!imageList)
        return;
    const QSignalBlocker blocker(imageList);
    imageList->setCurrentIndex(shownImage);
}

void WizardWindow::complain(const QString &message)
{
    putListBack(); // the photograph chosen may be one that could not be read
    if (!QApplication::activeModalWidget())
        QMessageBox::warning(this, windowTitle(), message);
}

void WizardWindow::addPhotographs(const QStringList &paths)
{
    photoPage->add(paths);
}

void WizardWindow::openSession(const QString &file)
{
    try {
        auto opened = std::make_unique<SettingsFile>(file, one2one.name());
        opened->load();
        for (const QString &path : photoPage->photographs()) // photographs that it doesn't name keep their strength
            if (const QDomElement kept = session->element(path); !kept.isNull() && opened->element(path).isNull())
                opened->setElement(path, kept);
        session = std::move(opened);
        hasFile = true;
        onPage.clear();
        photoPage->add(session->photographs());
    } catch (const VException &failure) {
        complain(failure.message);
    }
}

bool WizardWindow::saveSession(SettingsFile &file)
{
    try {
        file.save();
        return true;
    } catch (const VException &failure) {
        complain(failure.message);
        return false;
    }
}

void WizardWindow::saveSessionAs()
{
    const QStringList paths = photoPage->photographs();
    const QDir folder = hasFile ? QFileInfo(session->path()).dir() : QFileInfo(paths.value(0)).dir();
    QFileDialog dialog(this, tr("Save session"), folder.path(), tr("Settings files (*.xml)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("xml"));
    dialog.selectFile(QFileInfo(session->path()).fileName());
    if (dialog.exec() != QDialog::Accepted)
        return;
    auto copy = std::make_unique<SettingsFile>(dialog.selectedFiles().value(0), one2one.name());
    for (const QString &path : paths)
        copy->setElement(path, session->element(path));
    if (saveSession(*copy)) {
        session = std::move(copy);
        hasFile = true;
    }
}

void WizardWindow::preparePluginPage()
{
    const QStringList paths = photoPage->photographs();
    if (paths == onPage)
        return;
    takeStrengths();
    // The process starts each photograph from the stored default, which it asks for in the order of the list.
    QList<QVariant> strengths;
    for (const QString &path : paths) {
        const auto strength = startOf(path);
        strengths << (strength ? QVariant(*strength) : QVariant());
    }
    application.setOrder(paths);
    const HostApplication::Presets presets(application, one2one.guid(), pluginIdentity::strengthKey(), strengths);
    onPage = paths;
    try {
        one2one.setImages(paths);
        shownImage = imageList ? imageList->currentIndex() : -1;
    } catch (const VException &failure) {
        // A photograph was removed meanwhile. The page has the others and moves to the first that can be shown; an exception
        // would leave the window between two pages.
        shownImage = -1;
        for (int index = 1; imageList && shownImage < 0 && index < imageList->count(); ++index)
            try {
                imageList->setCurrentIndex(index);
            } catch (const VException &) { // removed too
            }
        QMetaObject::invokeMethod(
            this, [this, failure] { complain(failure.message); }, Qt::QueuedConnection);
    }
}

std::optional<int> WizardWindow::startOf(const QString &photograph)
{
    const QDomElement stored = session->element(photograph);
    const auto strength = SettingsFile::strengthOf(stored);
    automatic.remove(photograph);
    if (strength ? !SettingsFile::isAutomatic(stored) : !automaticDefault)
        return strength;
    const auto chosen = strength ? strength : application.photograph(photograph)->automaticStrength();
    return automatic[photograph] = chosen.value_or(WantedStrength::kUsual);
}

void WizardWindow::takeStrengths()
{
    for (const QString &path : qAsConst(onPage)) {
        const QDomElement taken = one2one.settingsFor(path);
        const auto strength = SettingsFile::strengthOf(taken);
        if (strength && automatic.contains(path) && automatic[path] == *strength) // the user has not changed it
            session->setElement(path, SettingsFile::withStrength(one2one.name(), *strength, /*automatic=*/true));
        else
            session->setElement(path, taken);
    }
}

void WizardWindow::prepareWork()
{
    BatchPlan::Options options;
    options.processName = one2one.name();
    options.settings = session.get();
    auto keeping = BatchPlan::make(onPage, application, options);
    options.existing = Existing::Replace;
    runPage->begin(std::move(keeping), BatchPlan::make(onPage, application, options), batchJobs);
}

void WizardWindow::initializePage(int id)
{
    QWizard::initializePage(id);
    if (id == Strength)
        preparePluginPage();
    else if (id == Work)
        prepareWork();
    else if (id == Results)
        resultPage->present(runPage->items(), runPage->outcomes());
}

void WizardWindow::cleanupPage(int id)
{
    QWizard::cleanupPage(id);
    if (id == Strength)
        takeStrengths();
    else if (id == Results) // back to where something can be changed; the work itself is done
        QMetaObject::invokeMethod(this, &QWizard::back, Qt::QueuedConnection);
}

bool WizardWindow::validateCurrentPage()
{
    if (currentId() == Strength) {
        takeStrengths();
        one2one.saveDefaults();
        for (const QString &result : BatchPlan::resultsAmong(session->photographs(), onPage, application))
            session->remove(result); // as the command line does
        if (hasFile && !saveSession(*session))
            return false;
    }
    return QWizard::validateCurrentPage();
}

void WizardWindow::startOver()
{
    if (!hasFile)
        session = std::make_unique<SettingsFile>(session->path(), one2one.name());
    photoPage->clear();
    onPage.clear();
    restart();
}

void WizardWindow::keyPressEvent(QKeyEvent *event)
{
    // Both are too easily pressed to end the program.
    if (event->key() != Qt::Key_Escape && !(currentId() == Results && isReturn(*event)))
        QWizard::keyPressEvent(event);
}

void WizardWindow::done(int result)
{
    if (runPage->isRunning()) {
        // Photographs in progress have to end before the window closes.
        runPage->stop();
        connect(runPage, &RunPage::ended, this, [this, result] { QWizard::done(result); });
        return;
    }
    QWizard::done(result);
}
