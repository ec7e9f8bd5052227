#include "DefaultStrength.h"

#include "VException.h"
#include "pluginIdentity.h"

namespace {

const QString kNumber = pluginIdentity::strengthKey();
const QString kWord = QStringLiteral("strength");

} // namespace

std::optional<WantedStrength> DefaultStrength::stored() const
{
    if (application.storedText(group, kWord) == QLatin1String(WantedStrength::kAutomatic))
        return WantedStrength{0, /*automatic=*/true};
    const auto number = WantedStrength::parse(application.storedText(group, kNumber));
    return number && !number->automatic ? number : std::nullopt;
}

void DefaultStrength::store(const std::optional<WantedStrength> &strength)
{
    const bool automatic = strength && strength->automatic;
    application.setValue(group, kWord, automatic ? QVariant(QLatin1String(WantedStrength::kAutomatic)) : QVariant());
    if (!automatic)
        application.setValue(group, kNumber, strength ? QVariant(strength->percent) : QVariant());
    if (const QString file = application.unwrittenSettings(); !file.isEmpty())
        throw VException(
            tr("The default can't be stored in \"%1\". Make room, or give yourself permission to write there.").arg(file),
            V_LOCATION);
}
