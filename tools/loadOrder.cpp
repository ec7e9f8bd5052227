#include "loadOrder.h"

#include <memory>

#include <QString>

#include "CameraProperties.h"
#include "LensIDProperties.h"
#include "VTimers.h"
#include "VUIContext.h"

// Made by the resource compiler. To name them also keeps the sets from being dropped at the link.
int qInitResources_vimage();
int qCleanupResources_vimage();
int qInitResources_vtools();
int qCleanupResources_vtools();
int qInitResources_vui();
int qCleanupResources_vui();

namespace {

template<int (*init)(), int (*cleanup)()>
struct ResourceSet
{
    ResourceSet() { init(); }
    ~ResourceSet() { cleanup(); }
    ResourceSet(const ResourceSet &) = delete;
    ResourceSet &operator=(const ResourceSet &) = delete;
};

} // namespace

NIMBRA_LOAD_LIBRARIES CameraProperties cameraProperties;
NIMBRA_LOAD_LIBRARIES LensIDProperties lensIDProperties;
NIMBRA_LOAD_LIBRARIES static QString emptyText;
NIMBRA_LOAD_LIBRARIES static ResourceSet<qInitResources_vimage, qCleanupResources_vimage> imageResources;
NIMBRA_LOAD_LIBRARIES VTimers vTimers;
NIMBRA_LOAD_LIBRARIES static ResourceSet<qInitResources_vtools, qCleanupResources_vtools> toolsResources;
NIMBRA_LOAD_LIBRARIES static std::unique_ptr<unsigned char> interfaceFlag;
VUIContext interfaceContext;
NIMBRA_LOAD_LIBRARIES static ResourceSet<qInitResources_vui, qCleanupResources_vui> interfaceResources;

void registerImageResources()
{
    qInitResources_vimage();
}

void registerToolsResources()
{
    qInitResources_vtools();
}

void registerInterfaceResources()
{
    qInitResources_vui();
}

unsigned char *makeInterfaceFlag()
{
    interfaceFlag = std::make_unique<unsigned char>(static_cast<unsigned char>(1));
    return interfaceFlag.get();
}
