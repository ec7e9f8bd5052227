#include "WindowCommand.h"

#include <memory>

#include <QApplication>

#include "PluginFile.h"
#include "ProgressView.h"
#include "VException.h"
#include "WorkspaceWindow.h"
#include "argumentText.h"
#include "pluginIdentity.h"

int WindowCommand::run()
{
    application.setUsual(pluginIdentity::strengthKey(), WantedStrength::kUsual);
    std::unique_ptr<PluginFile> plugin;
    std::unique_ptr<WorkspaceWindow> window;
    try {
        plugin = std::make_unique<PluginFile>(line.pluginFile);
        for (const char *set : {"qtbase", "VImage", "VTools"})
            application.loadTranslator(QStringLiteral("%1_%2.qm").arg(QLatin1String(set), application.locale().name()));
        window = std::make_unique<WorkspaceWindow>(application, plugin->process(), line.jobs);
        if (!line.settingsFile.isEmpty())
            window->openSession(line.settingsFile);
    } catch (const VException &failure) {
        ProgressView::complain(failure.message);
        return plugin ? ExitUsage : ExitSomeFailed;
    }
    QStringList photographs = line.photographs;
    for (QString &photograph : photographs)
        photograph = QString::fromUtf8(argumentBytes(photograph));
    if (!photographs.isEmpty())
        window->addPhotographs(photographs);
    else if (line.settingsFile.isEmpty())
        window->restoreSession();
    application.reportTo([&](const QString &message) { window->complain(message); });
    window->show();
    QApplication::exec();
    application.reportTo({});
    return ExitAllDone;
}
