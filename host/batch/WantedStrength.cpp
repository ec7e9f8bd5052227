#include "WantedStrength.h"

std::optional<WantedStrength> WantedStrength::parse(const QString &text)
{
    if (text == QLatin1String(kAutomatic))
        return WantedStrength{0, /*automatic=*/true};
    bool whole = false;
    const int percent = text.toInt(&whole);
    return whole && percent >= 0 && percent <= 100 ? std::optional(WantedStrength{percent, false}) : std::nullopt;
}
