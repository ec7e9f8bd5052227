#include "ResultPage.h"

#include <algorithm>

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>

#include "BeforeAfterView.h"
#include "PhotoReader.h"
#include "VException.h"

namespace {

constexpr int kPictureSide = 1024;

} // namespace

ResultPage::ResultPage(HostApplication &host, QWidget *parent)
    : QWizardPage(parent), application(host), list(new QListWidget(this)), view(new BeforeAfterView(this)),
      text(new QLabel(this)), folderButton(new QPushButton(tr("Open &folder"), this))
{
    setFinalPage(true);
    list->setObjectName(QStringLiteral("results"));
    list->setMaximumWidth(260);
    list->setTextElideMode(Qt::ElideMiddle);
    view->setObjectName(QStringLiteral("beforeAfter"));
    text->setObjectName(QStringLiteral("outcome"));
    text->setWordWrap(true);
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    folderButton->setObjectName(QStringLiteral("openFolder"));
    auto *saveButton = new QPushButton(tr("&Save session..."), this);
    saveButton->setObjectName(QStringLiteral("saveSession"));
    saveButton->setToolTip(tr("Save the photographs and the strength of each in a settings file"));
    auto *againButton = new QPushButton(tr("Start &over"), this);
    againButton->setObjectName(QStringLiteral("startOver"));
    againButton->setToolTip(tr("Choose other photographs"));

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(againButton);
    buttons->addStretch();
    buttons->addWidget(saveButton);
    buttons->addWidget(folderButton);
    auto *right = new QVBoxLayout;
    right->addWidget(view, 1);
    right->addWidget(text);
    right->addLayout(buttons);
    auto *columns = new QHBoxLayout(this);
    columns->addWidget(list);
    columns->addLayout(right, 1);

    for (QPushButton *button : {againButton, saveButton, folderButton})
        button->setAutoDefault(false); // Return belongs to the window's own buttons

    pool.setMaxThreadCount(1);
    connect(list, &QListWidget::currentRowChanged, this, &ResultPage::showCurrent);
    connect(folderButton, &QPushButton::clicked, this, &ResultPage::openFolder);
    connect(saveButton, &QPushButton::clicked, this, &ResultPage::saveWanted);
    connect(againButton, &QPushButton::clicked, this, &ResultPage::startOverWanted);
}

ResultPage::~ResultPage()
{
    pool.clear();
    pool.waitForDone();
}

void ResultPage::present(const std::vector<BatchItem> &items, const std::vector<BatchOutcome> &outcomes)
{
    list->clear();
    batch = items;
    results = outcomes;
    const auto done = std::count_if(results.begin(), results.end(),
                                    [](const BatchOutcome &outcome) { return outcome.status == BatchOutcome::Status::Done; });
    setTitle(tr("Results"));
    setSubTitle(int(done) == int(batch.size()) ? tr("All photographs are done.")
                                               : tr("%1 of %2 photographs are done.").arg(done).arg(batch.size()));
    for (std::size_t index = 0; index < batch.size(); ++index) {
        const QStyle::StandardPixmap sign = results[index].status == BatchOutcome::Status::Done ? QStyle::SP_DialogApplyButton
                                            : results[index].status == BatchOutcome::Status::Unchanged
                                                ? QStyle::SP_MessageBoxInformation
                                                : QStyle::SP_MessageBoxWarning;
        list->addItem(new QListWidgetItem(style()->standardIcon(sign), QFileInfo(batch[index].path).fileName()));
    }
    list->setCurrentRow(0);
}

void ResultPage::showCurrent()
{
    const int row = list->currentRow();
    folderButton->setEnabled(row >= 0);
    view->compare(QImage(), QImage());
    text->clear();
    if (row < 0)
        return;
    const BatchItem &item = batch[std::size_t(row)];
    const BatchOutcome &outcome = results[std::size_t(row)];
    const bool unchanged = outcome.status == BatchOutcome::Status::Unchanged;
    const bool there = outcome.hasResult() || outcome.reason == BatchOutcome::Reason::ResultExists;
    text->setText(unchanged                   ? outcome.unchanged
                  : outcome.message.isEmpty() ? QDir::toNativeSeparators(item.result)
                                              : outcome.message);
    pool.clear();
    pool.start([this, row, path = item.path, resultPath = there ? item.result : QString()] {
        QImage before, after;
        try {
            before = PhotoReader::picture(*application.photograph(path), kPictureSide);
            if (!resultPath.isEmpty()) {
                Photograph result(resultPath); // not the application's, which may hold what the file was before
                after = PhotoReader::picture(result, kPictureSide);
            }
        } catch (const VException &) {
            // The text below the view has the outcome.
        } catch (const std::exception &) {
        }
        QMetaObject::invokeMethod(
            this,
            [this, row, before, after] {
                if (list->currentRow() == row)
                    view->compare(before, after);
            },
            Qt::QueuedConnection);
    });
}

void ResultPage::openFolder()
{
    const int row = list->currentRow();
    if (row >= 0)
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(batch[std::size_t(row)].path).absolutePath()));
}
