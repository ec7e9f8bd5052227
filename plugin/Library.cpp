#include "Library.h"

#include "NimbraOne2One.h"
#include "hostApplication.h"
#include "pluginIdentity.h"
#include "startLibraries.h"

namespace {

Library *current = nullptr;

} // namespace

/// The end of this file's static objects is the last moment at which every library that it uses is still whole: the OpenMP
/// run-time ends before Qt's clean-up deletes the library object. So the previews end here, and the image library stops.
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
    static const EndAtExit endAtExit; // made after everything that is made at load, so it goes first
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
    return tr("Comment"); // the word itself is the whole description
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
