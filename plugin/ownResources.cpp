#include "loadOrder.h"

// Made by the resource compiler.
int qInitResources_nimbra();
int qCleanupResources_nimbra();

namespace {

struct OwnResources
{
    OwnResources() { qInitResources_nimbra(); }
    ~OwnResources() { qCleanupResources_nimbra(); }
};

NIMBRA_LOAD_OWN_RESOURCES const OwnResources ownResources;

} // namespace
