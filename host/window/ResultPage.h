#pragma once

#include <vector>

#include <QThreadPool>
#include <QWizardPage>

#include "BatchRunner.h"

class BeforeAfterView;
class QLabel;
class QListWidget;
class QPushButton;

/// The window's last page: what became of each photograph, before and after side by side, or the reason of a failure.
class ResultPage : public QWizardPage
{
    Q_OBJECT

public:
    explicit ResultPage(HostApplication &host, QWidget *parent = nullptr);
    /// Waits for the picture that is being read.
    ~ResultPage() override;

    void present(const std::vector<BatchItem> &items, const std::vector<BatchOutcome> &outcomes);

Q_SIGNALS:
    /// The user wants to keep the photographs and their strengths.
    void saveWanted();
    /// The user wants to begin again with other photographs.
    void startOverWanted();

private:
    void showCurrent();
    void openFolder();

    HostApplication &application;
    std::vector<BatchItem> batch;
    std::vector<BatchOutcome> results;
    QListWidget *list;
    BeforeAfterView *view;
    QLabel *text;
    QPushButton *folderButton;
    QThreadPool pool;
};
