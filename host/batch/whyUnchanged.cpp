#include "whyUnchanged.h"

#include <algorithm>
#include <iterator>

#include <QCoreApplication>

#include "HazeState.h"
#include "pluginIdentity.h"

QString whyUnchanged(VIPluginOne2One &process, VISettingsHandle settings)
{
    if (process.guid() != pluginIdentity::processGuid() || process.version() != pluginIdentity::version())
        return QString();
    return whyUnchanged(*settings);
}

QString whyUnchanged(const HazeState &state)
{
    if (state.strength == 0 || state.transmission)
        return QString();
    const auto isZero = [](float value) { return value == 0.0f; };
    if (std::all_of(std::begin(state.airlight), std::end(state.airlight), isZero))
        return QCoreApplication::translate(
            "whyUnchanged",
            "It came back unchanged because no haze could be measured: one side is more than 100,000 times as long as the other, "
            "or no pixel has a usable colour. Crop it, or repair its colours in an image editor.");
    return QCoreApplication::translate(
        "whyUnchanged",
        "It came back unchanged because the haze could not be worked out: some pixels hold infinite or undefined values, or "
        "memory ran short. Repair those pixels in an image editor, or close other programs and try again.");
}
