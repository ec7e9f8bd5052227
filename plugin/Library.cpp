#include "Library.h"

#include "NimbraOne2One.h"
#include "hostApplication.h"
#include "pluginIdentity.h"
#include "startLibraries.h"

namespace {

Library *current = nullptr;

} // namespace

/// When this file's static objects are destroyed, every library that it uses is still intact for the last time: the OpenMP
/// run-time ends before Qt's clean-up deletes the library object. So previews are ended and the image library is stopped here.
struct Library::EndAtExit
{
    ~EndAtExit()
    {
        if (!current)
            return;
        for (const QPointer<QObject> &process : qAsConst(current->madeProcesses))
            if (auto *const made = qobject_cast<NimbraOne2One *>(process.data()))
                made->releaseRecords();
        stopImageLibrary();
    }
};

Library::Library(QObject *parent) : QObject(parent)
{
    static const EndAtExit endAtExit; // constructed after everything that is constructed at load, so destroyed first
    current = this;
    setObjectName(QString::fromLatin1("Nimbra"));
    VIApplication *const app = hostApplication();
    if (!app)
        return;
    app->loadTranslator(QString::fromLatin1("%1_%2.qm").arg(QString::fromLatin1("Nimbra")).arg(app->locale().name()));
    startImageLibrary(app->imageLibraryContext());
    startInterfaceLibrary(app->interfaceLibraryContext());
}

Library::~Library()
{
    const auto made = madeProcesses;
    for (const QPointer<QObject> &process : made)
        delete process.data();
    stopImageLibrary();
    current = nullptr;
}

QList<QPointer<QObject>> Library::processes(int create)
{
    if (create != 0)
        madeProcesses.append(new NimbraOne2One(this));
    return madeProcesses;
}

QString Library::name()
{
    return QString::fromLatin1("Nimbra");
}

QString Library::author()
{
    return pluginIdentity::author();
}

QString Library::company()
{
    return pluginIdentity::company();
}

QString Library::description()
{
    return tr("Comment"); // the word itself is the whole description. Fixed: hosts rely on it.
}

QString Library::version()
{
    return pluginIdentity::version();
}

QIcon Library::icon()
{
    return QIcon(pluginIdentity::iconPath());
}

QString Library::guid()
{
    return QString::fromLatin1("8E04C3B7-2AF1-4D96-A37C-F1B86C05D24E");
}
