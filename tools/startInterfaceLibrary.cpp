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
    // Qt keeps these texts after this file is unloaded: they must not be literals in its memory.
    QDir::setSearchPaths(QString::fromLatin1("UI"), QStringList(QString::fromLatin1(":/UI")));
    started = true;
}
