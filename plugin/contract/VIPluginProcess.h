#pragma once

#include <QDomElement>

#include "VIAbout.h"

class QWizardPage;

/// The settings of a process as the host sees them: a pointer that it keeps and passes back. The record behind it belongs to the
/// process; HazeState.h says what little a host may read there.
using VISettingsHandle = struct HazeState *;

/// A process of a plug-in: its identity, its page and its settings. Abstract, without data. The order of the operations is part
/// of the contract.
class VIPluginProcess : public VIAbout
{
public:
    /// The page for the host's wizard: made at the first call, the same afterwards. The host owns it once it is in a wizard.
    /// Interface thread only.
    virtual QWizardPage *wizardPage() = 0;
    /// Writes the default settings to the host (VIApplication::setValue).
    virtual void saveDefaults() = 0;
    /// New settings: the host's stored default, overridden by `element` unless that is null. The host releases them with
    /// destroySettings.
    [[nodiscard]] virtual VISettingsHandle createSettings(QDomElement element) = 0;
    /// Persistent form of the settings: one element without a parent, its tag the process's name, with one attribute per setting.
    virtual QDomElement settingsToElement(VISettingsHandle settings) = 0;
    /// Copies the user's choices; results cached in a record are not copied.
    virtual void copySettings(VISettingsHandle destination, VISettingsHandle source) = 0;
    /// Frees the settings; null is allowed.
    virtual void destroySettings(VISettingsHandle settings) = 0;
    /// A picture that shows the effect, for the host's list of plug-ins.
    virtual QIcon beforeAfterIcon() = 0;
};

Q_DECLARE_INTERFACE(VIPluginProcess, "VIPluginProcess")
