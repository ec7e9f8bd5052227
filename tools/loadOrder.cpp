#include "loadOrder.h"

#include "VTimers.h"
#include "VUIContext.h"

VTimers vTimers;
VUIContext interfaceContext;

void registerImageResources() {}
void registerToolsResources() {}
void registerInterfaceResources() {}
