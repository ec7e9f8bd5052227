#pragma once

#include "UIImageDefListWizard.h"

class NimbraOne2One;
class UIHazePreview;

/// The plug-in's page in the host's wizard: shows the chosen image in the preview panel, at no more than 1024 pixels on its
/// longest side, and can apply one image's strength to all of them.
class UIHazePage : public UIImageDefListWizard
{
    Q_OBJECT

public:
    UIHazePage(NimbraOne2One *process, QWidget *parent);

    /// Waits for a preview that is being computed and drops the records. Their owner may then destroy them, and the process too,
    /// which a page without records does not call. Touches no widget, because the application may be gone: the list still shows
    /// the images, but choosing one does nothing.
    void releaseRecords();

    /// Loads the image into the preview and requests a result. Exceptions of the conversion propagate; the panel then keeps the
    /// previous image.
    void imageChanged(ImageDef *image, HazeState *settings) override;
    /// Copies the strength of the current record to all records and to the process's default. Does nothing if the list is empty.
    void applyToAll() override;

private:
    NimbraOne2One *process; ///< Not owned.
    UIHazePreview *preview; ///< Child.
};
