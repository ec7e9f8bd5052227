#include "startLibraries.h"

#include <memory>

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
std::unique_ptr<VImageCacheRegistry> ownRegistry;

VImageCacheRegistry *makeRegistry()
{
    ownRegistry = std::make_unique<VImageCacheRegistry>();
    return ownRegistry.get();
}

} // namespace

void startImageLibrary(VImageContext *context)
{
    if (started)
        return;
    registerImageResources();
    // Qt keeps these texts after this file is unloaded: they must not be literals in its memory.
    QDir::addSearchPath(QString::fromLatin1("Data"), QString::fromLatin1(":/Data"));
    ippInit();
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
    if (!started) {
        imageSettings = nullptr; // lent, and forgotten
        imageContext = {};
        return;
    }
    delete imageSettings;
    imageSettings = nullptr;
    ownRegistry.reset();
    imageContext = {};
    gflLibraryExit();
    started = false;
}
