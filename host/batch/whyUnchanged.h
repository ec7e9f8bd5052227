#pragma once

#include <QString>

#include "VIPluginOne2One.h"

struct HazeState;

/// Why a run with these settings left its photograph unchanged although haze was to be removed, as a message to the user. Empty
/// if the engine did its work, at strength 0, and for a process of another kind or version than these sources', whose settings
/// are opaque. Call it between run and destroySettings, on the thread of the run. Only this function looks behind a handle.
[[nodiscard]] QString whyUnchanged(VIPluginOne2One &process, VISettingsHandle settings);
/// The same for the engine's own record of a photograph.
[[nodiscard]] QString whyUnchanged(const HazeState &state);
