#pragma once

// What runs when the library is loaded, before any call from outside, in this order (at exit in reverse): the plug-in's own
// resource set, then the globals of loadOrder.cpp (camera and lens tables, image library resources, timers with their
// calibration, tools resources, interface library flag and resources). The order of static initialisers in different files is
// undefined, so these two steps have priorities; initialisers without one follow.

/// Priority of the static initialiser that registers the plug-in's own resource set.
#define NIMBRA_LOAD_OWN_RESOURCES [[gnu::init_priority(1000)]]
/// Priority of the libraries' static objects.
#define NIMBRA_LOAD_LIBRARIES [[gnu::init_priority(1001)]]

/// Registers a library's resource set, which the load has already done once. Fixed: hosts rely on it, as they may stop and start
/// the libraries again. Registering twice is harmless, and one clean-up at exit undoes it.
void registerImageResources();
void registerToolsResources();
void registerInterfaceResources();

/// Makes the interface library's shared flag, with the value 1; it is released at exit.
unsigned char *makeInterfaceFlag();
