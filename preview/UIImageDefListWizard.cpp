#include "UIImageDefListWizard.h"

#include <QSignalBlocker>

#include "ImageDef.h"
#include "ui_UIImageDefListWizard.h"

UIImageDefListWizard::UIImageDefListWizard(QWidget *parent)
    : QWizardPage(parent), ui(std::make_unique<Ui::UIImageDefListWizardClass>())
{
    ui->setupUi(this);
    // The host's style sheet dresses the buttons under these names, and the slots are already connected under those of the form.
    // Fixed: hosts rely on it.
    ui->toolButtonPrev->setObjectName(QStringLiteral("QToolButton_Prev"));
    ui->toolButtonPrev->setToolTip(tr("Prev"));
    ui->toolButtonNext->setObjectName(QStringLiteral("QToolButton_Next"));
    ui->toolButtonNext->setToolTip(tr("Next"));
}

UIImageDefListWizard::~UIImageDefListWizard() = default;

void UIImageDefListWizard::setImages(const QMap<ImageDef *, HazeState *> &images)
{
    imageSettings = images;
    {
        const QSignalBlocker blocker(ui->comboBoxImageDef);
        ui->comboBoxImageDef->clear();
        // The map's order, that of the pointers. Fixed: hosts rely on it.
        for (auto image = imageSettings.constKeyValueBegin(); image != imageSettings.constKeyValueEnd(); ++image)
            ui->comboBoxImageDef->addItem((*image).first->displayName(),
                                          QVariant::fromValue(static_cast<void *>((*image).first)));
    }
    on_comboBoxImageDef_currentIndexChanged(ui->comboBoxImageDef->currentIndex());
}

void UIImageDefListWizard::setPreviewWidget(QWidget *widget)
{
    previewWidget = widget;
    ui->gridLayout->addWidget(widget, 0, 0, 1, -1);
    setWindowTitle(widget->windowTitle());
}

bool UIImageDefListWizard::isComplete() const
{
    const QVariant complete = previewWidget ? previewWidget->property("isComplete") : QVariant();
    return complete.isValid() ? complete.toBool() : true;
}

ImageDef *UIImageDefListWizard::imageAt(int index) const
{
    return static_cast<ImageDef *>(ui->comboBoxImageDef->itemData(index).value<void *>());
}

void UIImageDefListWizard::step(int by)
{
    const int index = ui->comboBoxImageDef->currentIndex();
    if (index == -1 || imageSettings.isEmpty())
        return;
    const int count = imageSettings.size();
    ui->comboBoxImageDef->setCurrentIndex((count + index + by) % count);
}

void UIImageDefListWizard::on_pushButtonApplyAll_clicked()
{
    applyToAll();
}

void UIImageDefListWizard::on_toolButtonPrev_clicked()
{
    step(-1);
}

void UIImageDefListWizard::on_toolButtonNext_clicked()
{
    step(+1);
}

void UIImageDefListWizard::on_comboBoxImageDef_currentIndexChanged(int index)
{
    if (index == -1)
        return;
    ImageDef *const image = imageAt(index);
    if (HazeState *const settings = imageSettings.value(image))
        imageChanged(image, settings);
}
