#pragma once

#include <vector>

#include <QThreadPool>
#include <QWizardPage>

#include "BatchRunner.h"

class BeforeAfterView;
class QLabel;
class QListWidget;
class QPushButton;

/// The window's last page: the outcome of each photograph, with before and after side by side or the reason of a failure.
class ResultPage : public QWizardPage
{
    Q_OBJECT

public:
    explicit ResultPage(HostApplication &host, QWidget *parent = nullptr);
    /// Waits for the picture that is being read.
    ~ResultPage() override;

    void present(const std::vector<BatchItem> &items, const std::vector<BatchOutcome> &outcomes);

Q_SIGNALS:
    /// The user asks to save the photographs and their strengths.
    void saveWanted();
    /// The user asks to start over with other photographs.
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
