#pragma once

#include "UIImageDefListWizard.h"

class NimbraOne2One;
class UIHazePreview;

/// The plug-in's page in the host's wizard: shows the chosen image in the preview panel, at no more than 1024 pixels on its
/// longest side, and spreads one image's strength over all of them.
class UIHazePage : public UIImageDefListWizard
{
    Q_OBJECT

public:
    UIHazePage(NimbraOne2One *process, QWidget *parent);

    /// Waits for a preview that still computes and forgets the records; their owner may destroy them then, and the process too: a
    /// page without records does not call it. Touches no widget, for the application may be gone: the list still names the
    /// images, but nothing happens when one of them is chosen.
    void releaseRecords();

    /// Loads the image into the preview and asks for a result. What the conversion throws passes through; the panel then stays on
    /// the image before.
    void imageChanged(ImageDef *image, HazeState *settings) override;
    /// Copies the strength of the current record to all records and to the process's default. Nothing on an empty list.
    void applyToAll() override;

private:
    NimbraOne2One *process; ///< Not owned.
    UIHazePreview *preview; ///< Child.
};
