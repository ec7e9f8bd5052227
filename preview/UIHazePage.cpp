#include "UIHazePage.h"

#include <algorithm>
#include <memory>

#include "ImageDef.h"
#include "NimbraOne2One.h"
#include "UIHazePreview.h"
#include "ui_UIHazePreview.h"
#include "ui_UIImageDefListWizard.h"
#include "workingForm.h"

namespace {

constexpr int kLongestSide = 1024;

/// The shorter side of the preview, truncated; the product wraps around in 32 bits. Fixed: hosts rely on it.
int shorterSide(int shorter, int longestSide, int longer)
{
    if (longer == 0)
        return 0;
    const auto product = int(unsigned(shorter) * unsigned(longestSide));
    return int(double(product) / double(longer));
}

QSize previewSize(ImageDef &image)
{
    if (image.width() > image.height()) {
        const int width = std::min(image.width(), kLongestSide);
        return {width, shorterSide(image.height(), width, image.width())};
    }
    const int height = std::min(image.height(), kLongestSide);
    return {shorterSide(image.width(), height, image.height()), height};
}

} // namespace

UIHazePage::UIHazePage(NimbraOne2One *processOfPage, QWidget *parent)
    : UIImageDefListWizard(parent), process(processOfPage), preview(new UIHazePreview(processOfPage, this))
{
    setPreviewWidget(preview);
    setTitle(process->name());
    setSubTitle(process->description());
}

void UIHazePage::releaseRecords()
{
    preview->releaseRecord();
    imageSettings.clear();
}

void UIHazePage::imageChanged(ImageDef *image, HazeState *settings)
{
    const QSize size = previewSize(*image);
    VImage *const scaled = image->acquireScaled(size.width(), size.height(), 1);
    auto previewImage = std::make_unique<VImage>();
    toWorkingForm(*scaled, *previewImage);
    image->releaseScaled(size.width(), size.height(), 1);

    preview->setImage(std::move(previewImage));
    preview->settings = settings;
    preview->ui->spinBoxPourcent->setValue(settings->strength); // clamps it, in the record too. Fixed: hosts rely on it.
    preview->previewImage->ToQImage(preview->beforeImage);
    preview->beforePixmap = preview->fitFrame(preview->beforeImage);
    preview->computePreview();
}

void UIHazePage::applyToAll()
{
    HazeState *const current = imageSettings.value(imageAt(ui->comboBoxImageDef->currentIndex()));
    if (!current)
        return;
    for (HazeState *settings : qAsConst(imageSettings))
        process->copySettings(settings, current);
    process->setDefaultSettings(current);
}
