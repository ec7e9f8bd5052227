#pragma once

#include <QStringList>

#include "VIPluginProcess.h"

/// A process that makes one image from one image. Abstract, without data.
///
/// The usual sequence: call processes(1) and cast. To let a person edit, call wizardPage, add the page to a QWizard and call
/// setImages; when the wizard is accepted, call saveDefaults, and settingsFor for each path. Then, for each image, call
/// createSettings(element), run and destroySettings.
class VIPluginOne2One : public VIPluginProcess
{
public:
    /// Does the whole job for one image and writes the result beside the source. `*outputPath` is set before any pixel is
    /// touched. Failures are thrown as VException. Uses no member of the process: it may run on any thread, and several runs at
    /// once are fine as far as the host's ImageDef objects allow.
    virtual void run(QString inputPath, VISettingsHandle settings, QString *outputPath) = 0;
    /// Sets the images that the page edits; each starts from the host's stored default. Interface thread only, after wizardPage.
    virtual void setImages(QStringList paths) = 0;
    /// Persistent form of the settings that the page holds for this image, or of the stored default if it holds none.
    virtual QDomElement settingsFor(QString path) = 0;
};

Q_DECLARE_INTERFACE(VIPluginOne2One, "VIPluginOne2One")
