#pragma once

#include <memory>
#include <thread>
#include <vector>

#include <QWizardPage>

#include "BatchRunner.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QTableWidget;

/// The window's page for the work itself, with a bar for each photograph and one for all. When work is stopped, photographs in
/// progress end without a result, except where the result is being saved already. Complete when all have had their outcome.
class RunPage : public QWizardPage, private BatchRunner::Observer
{
    Q_OBJECT

public:
    RunPage(HostApplication &host, VIPluginOne2One &process, QWidget *parent = nullptr);
    /// Stops and waits.
    ~RunPage() override;

    /// Takes two plans of one batch: `keeping` refuses photographs whose result exists, `replacing` replaces the result. If there
    /// are such results, the user is asked which plan to use; otherwise work begins at once. `jobs` is that of BatchRunner::run.
    void begin(std::vector<BatchItem> keeping, std::vector<BatchItem> replacing, int jobs);
    bool isRunning() const { return worker.joinable(); }
    /// Returns at once; the page is complete when the photographs in progress have ended.
    void stop();

    const std::vector<BatchItem> &items() const { return batch; }
    /// One for each item, valid once the page is complete.
    const std::vector<BatchOutcome> &outcomes() const { return results; }

    bool isComplete() const override;

Q_SIGNALS:
    /// All items have had their outcome.
    void ended();

private:
    void stageBegins(int item, BatchRunner::Stage stage) override;
    void finished(int item, const BatchOutcome &outcome) override;
    void start(std::vector<BatchItem> items);
    void showProgress(int item, int percent);
    void showStage(int item, BatchRunner::Stage stage);
    void showOutcome(int item, const BatchOutcome &outcome);
    void end();
    void fillTable();

    BatchRunner runner;
    std::thread worker;
    std::vector<BatchItem> batch;
    std::vector<BatchItem> other; ///< The plan that replaces, while the user is asked.
    std::vector<BatchOutcome> results;
    int batchJobs = 0;
    int endedCount = 0;
    bool complete = false;

    QWidget *question;
    QLabel *questionText;
    QTableWidget *table;
    QProgressBar *overall;
    QPushButton *stopButton;
};
