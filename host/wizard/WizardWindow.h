#pragma once

#include <memory>

#include <QHash>
#include <QWizard>

#include "HostApplication.h"
#include "SettingsFile.h"
#include "VIPluginOne2One.h"

class PhotoPage;
class QComboBox;
class ResultPage;
class RunPage;

/// The window: photographs, the plug-in's page with its preview, the work, the results. The strength of each photograph is kept
/// in a session, and once the user names a file, in a settings file as the command line reads and writes it.
class WizardWindow : public QWizard
{
    Q_OBJECT

public:
    enum Page { Photographs, Strength, Work, Results };

    /// `settings` is loaded already, or null for a session without a file. `jobs` is that of BatchRunner::run.
    WizardWindow(HostApplication &host, VIPluginOne2One &process, std::unique_ptr<SettingsFile> settings, int jobs);

    void addPhotographs(const QStringList &paths);
    /// Shows the message in a dialog, unless one is open already.
    void complain(const QString &message);

    void done(int result) override;

protected:
    void initializePage(int id) override;
    void cleanupPage(int id) override;
    bool validateCurrentPage() override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitSubTitle();
    void fitButtons();
    void giveNames(QWizardPage &strengthPage);
    void openSession(const QString &file);
    void saveSessionAs();
    void startOver();
    [[nodiscard]] bool saveSession(SettingsFile &file);
    void preparePluginPage();
    void putListBack();
    /// The strength at which the page starts this photograph: the one in the session, or else the automatic one if that is the
    /// default. Nothing if it starts at the stored number.
    std::optional<int> startOf(const QString &photograph);
    void takeStrengths();
    void prepareWork();

    HostApplication &application;
    VIPluginOne2One &one2one;
    std::unique_ptr<SettingsFile> session;
    bool hasFile;
    int batchJobs;
    bool automaticDefault = false;
    QHash<QString, int> automatic;  ///< By photograph: the strength that was chosen for it.
    QStringList onPage;             ///< The photographs on the plug-in's page.
    QComboBox *imageList = nullptr; ///< The one on the plug-in's page; null if it has none.
    int shownImage = -1;            ///< The index in that list of the photograph shown below it.
    QWidget *panel = nullptr;       ///< The preview on the plug-in's page; null if it has none.
    bool showsMap = false;          ///< Alt is held over it.
    PhotoPage *photoPage;
    RunPage *runPage;
    ResultPage *resultPage;
};
