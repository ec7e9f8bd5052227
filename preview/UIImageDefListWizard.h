#pragma once

#include <memory>

#include <QMap>
#include <QWizardPage>

class ImageDef;
struct HazeState;

namespace Ui {
class UIImageDefListWizardClass;
}

/// A wizard page with a place for a preview and a row for walking through the host's images, with one record each. Images stand
/// in the order of their pointers. Interface thread only.
class UIImageDefListWizard : public QWizardPage
{
    Q_OBJECT

public:
    explicit UIImageDefListWizard(QWidget *parent);
    ~UIImageDefListWizard() override;

    /// The images to walk through; the first one becomes current. The records stay their owner's, and must outlive this list.
    void setImages(const QMap<ImageDef *, HazeState *> &images);
    /// Puts the widget over the row; the page takes its window title, and its dynamic property "isComplete" as its own state.
    void setPreviewWidget(QWidget *widget);
    /// The preview's "isComplete"; true while that was never set.
    bool isComplete() const override;

    /// The page is now on this image.
    virtual void imageChanged(ImageDef *image, HazeState *settings) = 0;
    /// The current image's settings go to all.
    virtual void applyToAll() = 0;

public Q_SLOTS:
    void on_pushButtonApplyAll_clicked();
    void on_toolButtonPrev_clicked(); ///< From the first to the last.
    void on_toolButtonNext_clicked(); ///< From the last to the first.
    void on_comboBoxImageDef_currentIndexChanged(int index);

protected:
    /// The image at this place of the list; null for none.
    ImageDef *imageAt(int index) const;

    const std::unique_ptr<Ui::UIImageDefListWizardClass> ui;
    QMap<ImageDef *, HazeState *> imageSettings;
    QWidget *previewWidget = nullptr;

private:
    void step(int by);
};
