#pragma once

#include <functional>

#include <QMainWindow>

#include "HostApplication.h"
#include "MessageBar.h"
#include "PhotoStore.h"
#include "PictureRenderer.h"
#include "SaveQueue.h"
#include "Series.h"
#include "Session.h"
#include "VIPluginOne2One.h"
#include "WindowActions.h"

class EmptyView;
class FilmstripView;
class HistogramView;
class PictureView;
class QLabel;
class QMenu;
class QStackedWidget;
class QTimer;
class QToolBar;
class SaveBar;
class StrengthPanel;

/// The workspace: one window in which a series of photographs is judged, compared and saved. It keeps the session as one goes,
/// and shows failures in a bar; only what would lose something asks in a dialog.
class WorkspaceWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `jobs` is that of BatchRunner::run.
    WorkspaceWindow(HostApplication &host, VIPluginOne2One &process, int jobs);
    /// Waits for results that are being written.
    ~WorkspaceWindow() override;

    /// Adds photographs and the photographs of folders, and shows the first new one if the series was empty.
    void addPhotographs(const QStringList &paths);
    /// Opens a settings file. Throws VException and changes nothing if it can't be read.
    void openSession(const QString &settingsFile);
    /// Goes on with a session that was cut short, if there is one.
    void restoreSession();
    /// Shows a failure that nothing else has reported.
    void complain(const QString &message);

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    using Id = WindowActions::Id;

    void build();
    QToolBar *makeToolBar();
    void connectActions();
    void connectWork();
    void onAdded(const Series::Added &added);
    /// Shows a session that was opened, and offers to save what it had begun to.
    void greetBack();
    void restoreLayout();
    void keepLayout();

    /// The row of the photograph in view, or -1.
    int currentRow() const;
    /// The selected rows; the one in view if none is selected.
    QList<int> selectedRows() const;
    QList<int> allRows() const;
    void selectRow(int row);
    void showPhotograph(int row);
    void showThumbnail(int row);
    void showPixels(const QString &path);
    void showFacts();
    void showZoom();
    void showStrength();
    void showHistogram();
    /// Texts and states of the actions that depend on the series.
    void showState();
    void showSaving();
    void showTitle();
    void showRecent();

    void choosePhotographs();
    void chooseFolder();
    void chooseSession();
    bool saveSession(bool underAnotherName);
    void reopenSession(const QString &id);
    void fillRecentMenu(QMenu *menu);
    QString usualFolder() const;
    void useAsDefault();
    void chooseOptions();
    void retryFailed();
    void onSaved(const SaveQueue::Summary &summary);
    void showKeys();
    /// Does what may throw, and shows the reason.
    bool attempt(const std::function<void()> &work);

    HostApplication &application;
    VIPluginOne2One &one2one;
    SaveQueue queue;
    Series series;
    Session session;
    PhotoStore store;
    PictureRenderer beforeRenderer, afterRenderer;
    WindowActions actions;

    MessageBar *bar;
    QStackedWidget *stack;
    EmptyView *empty;
    PictureView *picture;
    FilmstripView *strip;
    HistogramView *histogram;
    StrengthPanel *panel;
    SaveBar *saveBar;
    QLabel *hint = nullptr;
    QLabel *zoomLabel = nullptr;
    QTimer *histogramTimer;
    QTimer *stateTimer;     ///< Many changes at once are shown as one.
    bool showsNext = false; ///< The next photograph that is listed.
    bool dragging = false;
};
