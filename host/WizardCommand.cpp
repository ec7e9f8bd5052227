#include "WizardCommand.h"

#include <memory>

#include <QApplication>

#include "PluginFile.h"
#include "ProgressView.h"
#include "SettingsFile.h"
#include "VException.h"
#include "WizardWindow.h"
#include "argumentText.h"
#include "pluginIdentity.h"

int WizardCommand::run()
{
    application.setUsual(pluginIdentity::strengthKey(), WantedStrength::kUsual);
    std::unique_ptr<PluginFile> plugin;
    std::unique_ptr<SettingsFile> settings;
    try {
        plugin = std::make_unique<PluginFile>(line.pluginFile);
        // The last one has better words for the plug-in's page in languages where its own mean something else.
        for (const char *set : {"qtbase", "VImage", "VTools", "VUI", "page"})
            application.loadTranslator(QStringLiteral("%1_%2.qm").arg(QLatin1String(set), application.locale().name()));
        if (!line.settingsFile.isEmpty()) {
            settings = std::make_unique<SettingsFile>(line.settingsFile, plugin->process().name());
            settings->load();
        }
    } catch (const VException &failure) {
        ProgressView::complain(failure.message);
        return plugin ? ExitUsage : ExitSomeFailed;
    }
    QStringList photographs = line.photographs;
    if (photographs.isEmpty() && settings)
        photographs = settings->photographs();
    for (QString &photograph : photographs)
        photograph = QString::fromUtf8(argumentBytes(photograph));

    WizardWindow window(application, plugin->process(), std::move(settings), line.jobs);
    application.reportTo([&](const QString &message) { window.complain(message); });
    window.addPhotographs(photographs);
    window.show();
    QApplication::exec();
    application.reportTo({});
    return ExitAllDone;
}
