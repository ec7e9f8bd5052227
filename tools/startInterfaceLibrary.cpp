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
    QDir::setSearchPaths(QStringLiteral("UI"), QStringList(QStringLiteral(":/UI")));
    started = true;
}
