#pragma once

#include <memory>

#include <QMap>
#include <QWizardPage>

class ImageDef;
struct HazeState;

namespace Ui {
class UIImageDefListWizardClass;
}

/// A wizard page with room for a preview and a row of controls for stepping through the host's images, each with its record.
/// Images are listed in the order of their pointers. Interface thread only.
class UIImageDefListWizard : public QWizardPage
{
    Q_OBJECT

public:
    explicit UIImageDefListWizard(QWidget *parent);
    ~UIImageDefListWizard() override;

    /// Sets the images to step through; the first one becomes current. The records are not owned and must outlive this list.
    void setImages(const QMap<ImageDef *, HazeState *> &images);
    /// Places the widget above the row. The page takes over its window title, and its dynamic property "isComplete" becomes the
    /// page's own state.
    void setPreviewWidget(QWidget *widget);
    /// The preview's "isComplete"; true if that has never been set.
    bool isComplete() const override;

    /// Called when the page has changed to this image.
    virtual void imageChanged(ImageDef *image, HazeState *settings) = 0;
    /// Applies the current image's settings to all images.
    virtual void applyToAll() = 0;

public Q_SLOTS:
    void on_pushButtonApplyAll_clicked();
    void on_toolButtonPrev_clicked(); ///< Wraps around from the first to the last.
    void on_toolButtonNext_clicked(); ///< Wraps around from the last to the first.
    void on_comboBoxImageDef_currentIndexChanged(int index);

protected:
    /// The image at this index of the list, or null.
    ImageDef *imageAt(int index) const;

    const std::unique_ptr<Ui::UIImageDefListWizardClass> ui;
    QMap<ImageDef *, HazeState *> imageSettings;
    QWidget *previewWidget = nullptr;

private:
    void step(int by);
};
