#include "startLibraries.h"

#include <utility>

#include <QDir>

#include "VImageCacheRegistry.h"
#include "VImageSettings.h"
#include "gfl.h"
#include "gflCallbacks.h"
#include "ipp.h"
#include "loadOrder.h"

VImageContext imageContext;

namespace {

bool started = false;
VImageCacheRegistry *ownRegistry = nullptr;

VImageCacheRegistry *makeRegistry()
{
    delete std::exchange(ownRegistry, nullptr);
    return ownRegistry = new VImageCacheRegistry;
}

} // namespace

void startImageLibrary(VImageContext *context)
{
    if (started)
        return;
    registerImageResources();
    // Qt keeps these texts after this library is unloaded: they must not be literals. Fixed: "Data" is added to the search paths.
    QDir::addSearchPath(QString::fromLatin1("Data"), QString::fromLatin1(":/Data"));
    (void)ippInit(); // fixed: hosts rely on a start that goes on whatever it returns
    if (context) {
        startTools(context->tools);
        imageSettings = context->settings;
        imageContext.cacheRegistry = context->cacheRegistry ? context->cacheRegistry : makeRegistry();
    } else {
        startTools(nullptr);
        imageSettings = new VImageSettings;
        gflLibraryInitEx(gflAllocCallback, gflReallocCallback, gflFreeCallback, nullptr);
        gflEnableLZW(1);
        imageContext.cacheRegistry = makeRegistry();
        started = true;
    }
    imageContext.tools = &toolsContext;
    imageContext.settings = imageSettings;
}

void stopImageLibrary()
{
    stopTools();
    if (started)
        delete imageSettings;
    imageSettings = nullptr; // lent settings are only forgotten
    delete std::exchange(ownRegistry, nullptr);
    imageContext = {};
    if (started)
        gflLibraryExit();
    started = false;
}
