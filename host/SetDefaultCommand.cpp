#include "SetDefaultCommand.h"

#include "DefaultStrength.h"
#include "PluginFile.h"
#include "ProgressView.h"
#include "VException.h"

int SetDefaultCommand::run()
{
    const std::optional<WantedStrength> &strength = line.newDefault;
    try {
        DefaultStrength(application, PluginFile(line.pluginFile).process().guid()).store(strength);
    } catch (const VException &failure) {
        ProgressView::complain(failure.message);
        return ExitSomeFailed;
    }
    if (!line.quiet)
        ProgressView::say(
            (!strength
                 ? tr("The stored default was removed. Without --strength, %1 per cent is used.").arg(WantedStrength::kUsual)
             : strength->automatic ? tr("From now on, each photograph gets its automatic strength.")
                                   : tr("From now on, the default strength is %1 per cent.").arg(strength->percent)) +
            '\n');
    return ExitAllDone;
}
