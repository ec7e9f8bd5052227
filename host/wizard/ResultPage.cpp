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

namespace {

/// A result is there, whether this run wrote it or an earlier one.
bool hasFile(const BatchOutcome &outcome)
{
    return outcome.hasResult() || outcome.reason == BatchOutcome::Reason::ResultExists;
}

} // namespace

ResultPage::ResultPage(QWidget *parent)
    : QWizardPage(parent), list(new QListWidget(this)), text(new QLabel(this)),
      openButton(new QPushButton(tr("Open &result"), this)), folderButton(new QPushButton(tr("Open &folder"), this))
{
    setFinalPage(true);
    list->setObjectName(QStringLiteral("results"));
    list->setAccessibleName(tr("Results"));
    list->setTextElideMode(Qt::ElideMiddle);
    text->setObjectName(QStringLiteral("outcome"));
    text->setWordWrap(true);
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    openButton->setObjectName(QStringLiteral("openResult"));
    openButton->setToolTip(tr("Show the result in the program that opens such pictures"));
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
    buttons->addWidget(openButton);
    auto *rows = new QVBoxLayout(this);
    rows->addWidget(list, 1);
    rows->addWidget(text);
    rows->addLayout(buttons);

    for (QPushButton *button : {againButton, saveButton, folderButton, openButton})
        button->setAutoDefault(false); // Return belongs to the window's own buttons

    connect(list, &QListWidget::currentRowChanged, this, &ResultPage::showCurrent);
    connect(list, &QListWidget::itemDoubleClicked, this, &ResultPage::openResult);
    connect(openButton, &QPushButton::clicked, this, &ResultPage::openResult);
    connect(folderButton, &QPushButton::clicked, this, &ResultPage::openFolder);
    connect(saveButton, &QPushButton::clicked, this, &ResultPage::saveWanted);
    connect(againButton, &QPushButton::clicked, this, &ResultPage::startOverWanted);
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
                                            : hasFile(results[index])                           ? QStyle::SP_MessageBoxInformation
                                                                                                : QStyle::SP_MessageBoxWarning;
        list->addItem(new QListWidgetItem(style()->standardIcon(sign), QFileInfo(batch[index].path).fileName()));
    }
    list->setCurrentRow(0);
}

void ResultPage::showCurrent()
{
    const int row = list->currentRow();
    folderButton->setEnabled(row >= 0);
    openButton->setEnabled(row >= 0 && hasFile(results[std::size_t(row)]));
    text->clear();
    if (row < 0)
        return;
    const BatchOutcome &outcome = results[std::size_t(row)];
    text->setText(outcome.status == BatchOutcome::Status::Unchanged ? outcome.unchanged
                  : outcome.message.isEmpty()                       ? QDir::toNativeSeparators(batch[std::size_t(row)].result)
                                                                    : outcome.message);
}

void ResultPage::openResult()
{
    if (openButton->isEnabled())
        QDesktopServices::openUrl(QUrl::fromLocalFile(batch[std::size_t(list->currentRow())].result));
}

void ResultPage::openFolder()
{
    const int row = list->currentRow();
    if (row >= 0)
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(batch[std::size_t(row)].path).absolutePath()));
}
