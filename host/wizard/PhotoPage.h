#pragma once

#include <QHash>
#include <QStringList>
#include <QWizardPage>

#include "PhotoReader.h"

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

/// The window's first page: the photographs, chosen in a dialog, dropped, or named on the command line. One that can't be read is
/// left out and named with the reason. Complete once the heads of all have been read and the thumbnail of one is shown.
class PhotoPage : public QWizardPage
{
    Q_OBJECT

public:
    explicit PhotoPage(HostApplication &host, QWidget *parent = nullptr);

    /// Adds photographs by path, and for a folder all photographs in it. What is in the list already stays as it is, but files
    /// that have the name of a result of another photograph in the list are left out, whichever of the two came first.
    void add(const QStringList &paths);
    void clear();
    /// Absolute paths in the order of the list.
    QStringList photographs() const;

    /// From now on the page is complete only once the thumbnails of all are shown.
    void waitForAll() { waitsForAll = true; }
    bool isComplete() const override;

Q_SIGNALS:
    /// The user asks for the photographs and strengths in a settings file.
    void settingsWanted(const QString &file);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// The absolute paths of these files, and of the photographs in these folders.
    QStringList filesOf(const QStringList &paths);
    void choose();
    void chooseSettings();
    void removeSelected();
    void onChecked(const QString &path);
    void onReady(const QString &path, const QImage &picture);
    void onFailed(const QString &path, const QString &reason);
    int countAtLeast(int stage) const;
    void remove(QListWidgetItem *item);
    void showState();

    HostApplication &application;
    QListWidget *list;
    QLabel *state;
    QLabel *leftOut;
    QPushButton *removeButton;
    QHash<QString, QListWidgetItem *> items; ///< By absolute path; the list owns them.
    QStringList complaints;                  ///< Since the user last chose photographs.
    bool waitsForAll = false;
    PhotoReader reader;
};
