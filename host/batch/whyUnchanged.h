#pragma once

#include <QString>

#include "VIPluginOne2One.h"

/// Why a run with these settings left its photograph as it was although haze was to be taken away, in words for its owner. Empty
/// if the engine did its work, at strength 0, and for a process of another kind or version than these sources', whose settings
/// stay closed. Between `run` and destroySettings, on the thread of the run. Only here does the program look behind a handle.
[[nodiscard]] QString whyUnchanged(VIPluginOne2One &process, VISettingsHandle settings);
