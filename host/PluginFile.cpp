#include "PluginFile.h"

#include <QFileInfo>
#include <QStringList>

#include "VException.h"

PluginFile::PluginFile(const QString &path)
{
    QStringList candidates{path};
    if (path.isEmpty()) {
        const QString folder = QCoreApplication::applicationDirPath();
        candidates = QStringList{folder + "/Nimbra.so", folder + "/" NIMBRA_PLUGIN_FROM_PROGRAM "/Nimbra.so"};
    }
    for (const QString &candidate : candidates)
        if (QFileInfo(candidate).isFile()) {
            loader.setFileName(QFileInfo(candidate).canonicalFilePath());
            break;
        }
    if (loader.fileName().isEmpty())
        throw VException(tr("The plug-in \"%1\" was not found. Build or install it, or give its location with --plugin FILE.")
                             .arg(candidates.join(tr("\" or \""))),
                         V_LOCATION);
    QObject *object = loader.instance();
    auto *library = qobject_cast<VIPluginLibrary *>(object);
    if (library) {
        const QList<QPointer<QObject>> processes = library->processes(1);
        one2one = processes.isEmpty() ? nullptr : qobject_cast<VIPluginOne2One *>(processes.last());
    }
    if (!one2one) {
        QString reason = object ? tr("it is a plug-in of another kind") : loader.errorString();
        if (reason.endsWith('.')) // some of Qt's are sentences
            reason.chop(1);
        delete object;
        throw VException(tr("The plug-in \"%1\" can't be used: %2. Install it again, or name another one with --plugin FILE.")
                             .arg(loader.fileName(), reason),
                         V_LOCATION);
    }
}

PluginFile::~PluginFile()
{
    delete loader.instance();
}

QString PluginFile::identity()
{
    auto *about = qobject_cast<VIAbout *>(loader.instance());
    return QStringLiteral("%1 %2, %3 (%4)")
        .arg(about ? about->name() : one2one->name(), about ? about->version() : one2one->version(),
             about ? about->company() : one2one->company(), loader.fileName());
}
