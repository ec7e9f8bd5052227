#include "RunPage.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

enum Column { Photo, Strength, Progress, State, Columns };

// In per cent; the engine takes most of the time of a photograph.
constexpr int kStageStart[] = {5, 20, 85};
constexpr int kBarHeight = 10;

} // namespace

RunPage::RunPage(HostApplication &host, VIPluginOne2One &process, QWidget *parent)
    : QWizardPage(parent), runner(host, process, *this), question(new QWidget(this)), questionText(new QLabel(question)),
      table(new QTableWidget(0, Columns, this)), overall(new QProgressBar(this)), stopButton(new QPushButton(tr("&Stop"), this))
{
    setTitle(tr("Removing haze"));

    questionText->setWordWrap(true);
    auto *replace = new QPushButton(tr("&Replace"), question);
    replace->setObjectName(QStringLiteral("replace"));
    auto *keep = new QPushButton(tr("&Keep"), question);
    keep->setObjectName(QStringLiteral("keep"));
    auto *asked = new QHBoxLayout(question);
    asked->setContentsMargins(0, 0, 0, 0);
    asked->addWidget(questionText, 1);
    asked->addWidget(replace);
    asked->addWidget(keep);
    question->hide();

    table->setObjectName(QStringLiteral("work"));
    table->setAccessibleName(tr("Photographs"));
    table->setHorizontalHeaderLabels({tr("Photograph"), tr("Strength"), tr("Progress"), tr("State")});
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setFocusPolicy(Qt::NoFocus);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->horizontalHeader()->setSectionResizeMode(Photo, QHeaderView::Stretch);
    table->horizontalHeader()->setSectionResizeMode(Strength, QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(State, QHeaderView::ResizeToContents);
    table->horizontalHeader()->resizeSection(Progress, 160);
    overall->setObjectName(QStringLiteral("overall"));
    overall->setAccessibleName(tr("Photographs that are done"));
    stopButton->setObjectName(QStringLiteral("stop"));

    auto *bottom = new QHBoxLayout;
    bottom->addWidget(overall, 1);
    bottom->addWidget(stopButton);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(question);
    rows->addWidget(table, 1);
    rows->addLayout(bottom);

    for (QPushButton *button : {replace, keep, stopButton})
        button->setAutoDefault(false); // Return belongs to the window's own buttons

    connect(replace, &QPushButton::clicked, this, [this] { start(std::move(other)); });
    connect(keep, &QPushButton::clicked, this, [this] { start(std::move(batch)); });
    connect(stopButton, &QPushButton::clicked, this, &RunPage::stop);
}

RunPage::~RunPage()
{
    runner.stop();
    if (worker.joinable())
        worker.join();
}

void RunPage::begin(std::vector<BatchItem> keeping, std::vector<BatchItem> replacing, int jobs)
{
    complete = false;
    endedCount = 0;
    batchJobs = jobs;
    setSubTitle(tr("Each result is saved beside its photograph."));
    int there = 0;
    for (const BatchItem &item : keeping)
        there += item.reason == BatchOutcome::Reason::ResultExists;
    stopButton->setEnabled(false);
    if (there == 0) {
        start(std::move(keeping));
        return;
    }
    batch = std::move(keeping);
    other = std::move(replacing);
    fillTable();
    questionText->setText(tr("%n result(s) of an earlier run already exist.", nullptr, there));
    question->show();
    Q_EMIT completeChanged();
}

void RunPage::fillTable()
{
    results.assign(batch.size(), BatchOutcome());
    table->setRowCount(int(batch.size()));
    for (int row = 0; row < table->rowCount(); ++row) {
        const BatchItem &item = batch[std::size_t(row)];
        auto *photo = new QTableWidgetItem(QFileInfo(item.path).fileName());
        photo->setToolTip(item.path);
        table->setItem(row, Photo, photo);
        auto *strength = new QTableWidgetItem(item.refusal.isEmpty() ? tr("%1 %").arg(item.strength) : QString());
        strength->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        table->setItem(row, Strength, strength);
        auto *cell = new QWidget;
        auto *bar = new QProgressBar(cell);
        bar->setTextVisible(false);
        bar->setAccessibleName(photo->text());
        bar->setFixedHeight(kBarHeight);
        auto *place = new QHBoxLayout(cell);
        place->setContentsMargins(4, 0, 4, 0);
        place->addWidget(bar);
        table->setCellWidget(row, Progress, cell);
        table->setItem(row, State, new QTableWidgetItem(tr("Waiting")));
    }
    overall->setRange(0, qMax(1, table->rowCount()));
    overall->setValue(0);
    overall->setFormat(tr("%v of %m"));
}

void RunPage::start(std::vector<BatchItem> items)
{
    question->hide();
    batch = std::move(items);
    fillTable();
    stopButton->setEnabled(true);
    runner.resume();
    worker = std::thread([this] {
        runner.run(batch, batchJobs);
        QMetaObject::invokeMethod(this, &RunPage::end, Qt::QueuedConnection);
    });
    Q_EMIT completeChanged();
}

void RunPage::stop()
{
    runner.stop();
    stopButton->setEnabled(false);
    setSubTitle(tr("Stopping. A result that is being saved is finished first."));
}

void RunPage::stageBegins(int item, BatchRunner::Stage stage)
{
    QMetaObject::invokeMethod(
        this, [this, item, stage] { showStage(item, stage); }, Qt::QueuedConnection);
}

void RunPage::finished(int item, const BatchOutcome &outcome)
{
    QMetaObject::invokeMethod(
        this, [this, item, outcome] { showOutcome(item, outcome); }, Qt::QueuedConnection);
}

void RunPage::showProgress(int item, int percent)
{
    table->cellWidget(item, Progress)->findChild<QProgressBar *>()->setValue(percent);
}

void RunPage::showStage(int item, BatchRunner::Stage stage)
{
    const QString texts[] = {tr("Reading"), tr("Removing haze"), tr("Saving")};
    table->scrollToItem(table->item(item, Photo));
    table->item(item, State)->setText(texts[int(stage)]);
    showProgress(item, kStageStart[int(stage)]);
}

void RunPage::showOutcome(int item, const BatchOutcome &outcome)
{
    BatchOutcome &shown = results[std::size_t(item)] = outcome;
    const bool kept = outcome.reason == BatchOutcome::Reason::ResultExists;
    if (kept) // the message is one for the command line
        shown.message = tr("Its result already existed and was kept.");
    const bool unchanged = outcome.status == BatchOutcome::Status::Unchanged;
    showProgress(item, outcome.hasResult() ? 100 : 0);
    QTableWidgetItem *state = table->item(item, State);
    state->setText(outcome.status == BatchOutcome::Status::Done      ? tr("Done")
                   : unchanged                                       ? tr("Unchanged")
                   : outcome.status == BatchOutcome::Status::Stopped ? tr("Stopped")
                   : kept                                            ? tr("Kept")
                                                                     : tr("Failed"));
    state->setToolTip(unchanged ? shown.unchanged : shown.message);
    overall->setValue(++endedCount);
}

void RunPage::end()
{
    worker.join();
    complete = true;
    stopButton->setEnabled(false);
    Q_EMIT completeChanged();
    Q_EMIT ended();
}

bool RunPage::isComplete() const
{
    return complete;
}
