#include "startLibraries.h"

#include <QDir>
#include <QStringList>

#include "loadOrder.h"

namespace {

bool started = false;

} // namespace

void startInterfaceLibrary(VUIContext *context)
{
    if (started)
        return;
    if (context) {
        interfaceContext.flag = context->flag;
        return;
    }
    registerInterfaceResources();
    interfaceContext.flag = makeInterfaceFlag();
    // Qt keeps these texts after this library is unloaded: they must not be literals. Fixed: "UI" replaces its search paths.
    QDir::setSearchPaths(QString::fromLatin1("UI"), QStringList(QString::fromLatin1(":/UI")));
    started = true;
}
