#include "startLibraries.h"

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
VImageCacheRegistry *cacheRegistry = nullptr;

} // namespace

void startImageLibrary(VImageContext *context)
{
    if (started)
        return;
    registerImageResources();
    QDir::addSearchPath(QStringLiteral("Data"), QStringLiteral(":/Data"));
    ippInit();
    if (context) {
        startTools(context->tools);
        imageSettings = context->settings;
        cacheRegistry = context->cacheRegistry ? context->cacheRegistry : new VImageCacheRegistry;
    } else {
        startTools(nullptr);
        imageSettings = new VImageSettings;
        gflLibraryInitEx(gflAllocCallback, gflReallocCallback, gflFreeCallback, nullptr);
        gflEnableLZW(1);
        cacheRegistry = new VImageCacheRegistry;
        started = true;
    }
    imageContext = {&toolsContext, cacheRegistry, imageSettings};
}

void stopImageLibrary()
{
    stopTools();
    if (!started)
        return;
    delete imageSettings;
    imageSettings = nullptr;
    delete cacheRegistry;
    cacheRegistry = nullptr;
    gflLibraryExit();
    started = false;
}
