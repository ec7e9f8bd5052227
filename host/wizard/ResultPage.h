#pragma once

#include <vector>

#include <QWizardPage>

#include "BatchItem.h"

class QLabel;
class QListWidget;
class QPushButton;

/// The wizard's last page: the outcome of each photograph, with the name of its result or the reason of a failure.
class ResultPage : public QWizardPage
{
    Q_OBJECT

public:
    explicit ResultPage(QWidget *parent = nullptr);

    void present(const std::vector<BatchItem> &items, const std::vector<BatchOutcome> &outcomes);

Q_SIGNALS:
    /// The user asks to save the photographs and their strengths.
    void saveWanted();
    /// The user asks to start over with other photographs.
    void startOverWanted();

private:
    void showCurrent();
    void openResult();
    void openFolder();

    std::vector<BatchItem> batch;
    std::vector<BatchOutcome> results;
    QListWidget *list;
    QLabel *text;
    QPushButton *openButton;
    QPushButton *folderButton;
};
