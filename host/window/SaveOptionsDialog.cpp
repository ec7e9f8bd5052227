#include "SaveOptionsDialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "BatchPlan.h"

namespace {

using Policy = SaveQueue::Policy;

constexpr int kUsualQuality = 95;
constexpr int kLongestTag = 100; ///< Leaves room for the photograph's own name.

} // namespace

SaveOptionsDialog::SaveOptionsDialog(const SaveQueue::Options &options, const QString &example, QWidget *parent)
    : QDialog(parent), exampleName(example), existing(new QButtonGroup(this)),
      inFolder(new QCheckBox(tr("In this &folder:"), this)), folder(new QLineEdit(this)),
      browse(new QPushButton(tr("&Choose..."), this)), tag(new QLineEdit(this)),
      ownQuality(new QCheckBox(tr("JPEG &quality:"), this)), quality(new QSpinBox(this)), outlook(new QLabel(this))
{
    setWindowTitle(tr("Save options"));

    auto *place = new QGroupBox(tr("Results"), this);
    auto *grid = new QGridLayout(place);
    inFolder->setObjectName(QStringLiteral("inFolder"));
    inFolder->setChecked(!options.folder.isEmpty());
    inFolder->setToolTip(tr("Otherwise each result is saved beside its photograph"));
    folder->setObjectName(QStringLiteral("folder"));
    folder->setText(QDir::toNativeSeparators(options.folder));
    folder->setAccessibleName(tr("Folder of the results"));
    browse->setAutoDefault(false);
    tag->setObjectName(QStringLiteral("tag"));
    tag->setText(options.tag.value_or(QString()));
    tag->setMaxLength(kLongestTag);
    tag->setPlaceholderText(
        QFileInfo(BatchPlan::resultName(QStringLiteral("/x.jpg"), /*needsTiff=*/false)).completeBaseName().mid(1));
    auto *tagLabel = new QLabel(tr("&Tag behind the name:"), this);
    tagLabel->setBuddy(tag);
    grid->addWidget(inFolder, 0, 0);
    grid->addWidget(folder, 0, 1);
    grid->addWidget(browse, 0, 2);
    grid->addWidget(tagLabel, 1, 0);
    grid->addWidget(tag, 1, 1);
    ownQuality->setObjectName(QStringLiteral("ownQuality"));
    ownQuality->setChecked(options.quality.has_value());
    ownQuality->setToolTip(tr("Otherwise each JPEG keeps the quality of its photograph"));
    quality->setObjectName(QStringLiteral("quality"));
    quality->setRange(1, 100);
    quality->setValue(options.quality.value_or(kUsualQuality));
    quality->setEnabled(ownQuality->isChecked());
    quality->setAccessibleName(tr("JPEG quality"));
    grid->addWidget(ownQuality, 2, 0);
    grid->addWidget(quality, 2, 1, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);

    auto *others = new QGroupBox(tr("If a result exists already"), this);
    auto *choices = new QVBoxLayout(others);
    const struct
    {
        Policy value;
        QString text;
    } kChoices[] = {
        {Policy::ReplaceChanged, tr("&Replace it if its strength has changed")},
        {Policy::ReplaceAll, tr("Replace it in &any case")},
        {Policy::KeepBoth, tr("Keep &both: the new one gets a number")},
        {Policy::Skip, tr("&Keep it and save nothing")},
    };
    for (const auto &[value, text] : kChoices) {
        auto *choice = new QRadioButton(text, this);
        choice->setChecked(value == options.existing);
        existing->addButton(choice, int(value));
        choices->addWidget(choice);
    }

    outlook->setObjectName(QStringLiteral("outlook"));
    outlook->setWordWrap(true);
    outlook->setTextFormat(Qt::PlainText);
    outlook->setMinimumHeight(3 * outlook->fontMetrics().lineSpacing());
    outlook->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto *box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    accepting = box->button(QDialogButtonBox::Ok);

    auto *rows = new QVBoxLayout(this);
    rows->addWidget(place);
    rows->addWidget(others);
    rows->addWidget(outlook);
    rows->addStretch(1);
    rows->addWidget(box);
    setMinimumWidth(480);

    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(browse, &QPushButton::clicked, this, &SaveOptionsDialog::chooseFolder);
    connect(inFolder, &QCheckBox::toggled, this, &SaveOptionsDialog::check);
    connect(folder, &QLineEdit::textChanged, this, &SaveOptionsDialog::check);
    connect(ownQuality, &QCheckBox::toggled, quality, &QWidget::setEnabled);
    connect(tag, &QLineEdit::textChanged, this, &SaveOptionsDialog::check);
    check();
}

SaveQueue::Options SaveOptionsDialog::options() const
{
    SaveQueue::Options chosen;
    chosen.existing = Policy(existing->checkedId());
    if (inFolder->isChecked())
        chosen.folder = QDir::cleanPath(QDir::fromNativeSeparators(folder->text()));
    if (!tag->text().isEmpty())
        chosen.tag = tag->text();
    if (ownQuality->isChecked())
        chosen.quality = quality->value();
    return chosen;
}

void SaveOptionsDialog::chooseFolder()
{
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Folder of the results"), folder->text());
    if (chosen.isEmpty())
        return;
    folder->setText(QDir::toNativeSeparators(chosen));
    inFolder->setChecked(true);
}

void SaveOptionsDialog::check()
{
    folder->setEnabled(inFolder->isChecked());
    const QFileInfo place(folder->text());
    QString wrong;
    if (tag->text().contains('/'))
        wrong = tr("A tag can't contain \"/\".");
    else if (inFolder->isChecked() && !(place.isAbsolute() && place.isDir()))
        wrong = tr("There is no folder \"%1\". Choose one that exists.").arg(folder->text());
    else if (inFolder->isChecked() && !place.isWritable())
        wrong = tr("The folder \"%1\" is read-only. Choose another one.").arg(folder->text());
    accepting->setEnabled(wrong.isEmpty());
    const QFileInfo photograph(exampleName);
    const QString used = tag->text().isEmpty() ? tag->placeholderText() : tag->text();
    outlook->setText(wrong.isEmpty() ? tr("%1 becomes %2.")
                                           .arg(photograph.fileName(),
                                                photograph.completeBaseName() + used + '.' + photograph.suffix().toLower())
                                     : wrong);
}
