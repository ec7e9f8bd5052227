#pragma once

#include <QStringList>

#include "VIPluginProcess.h"

/// A process that takes one image and makes one image. Abstract, without data.
///
/// A whole use: processes(1), cast; for an edit wizardPage, put it into a QWizard, setImages, and when the wizard is accepted
/// saveDefaults and settingsFor each path; then for each image createSettings(element), run, destroySettings.
class VIPluginOne2One : public VIPluginProcess
{
public:
    /// Does the whole job for one image and writes the result beside the source. `*outputPath` is set before any pixel is
    /// touched. Failures leave as VException. Touches no member of the process: any thread, and several runs at once as far as
    /// the host's ImageDef objects allow.
    virtual void run(QString inputPath, VISettingsHandle settings, QString *outputPath) = 0;
    /// The images that the page edits, each from the host's stored default. Interface thread only, after wizardPage.
    virtual void setImages(QStringList paths) = 0;
    /// Persistent form of the settings that the page holds for this image, or of the stored default when it holds none.
    virtual QDomElement settingsFor(QString path) = 0;
};

Q_DECLARE_INTERFACE(VIPluginOne2One, "VIPluginOne2One")
