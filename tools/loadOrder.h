#pragma once

// What runs when the library is loaded, before any call from outside, in this order; the end runs it backwards:
// the plug-in's own resource set, then the globals of loadOrder.cpp (camera and lens tables, resources of the image library,
// timers with their calibration, resources of the tools, flag and resources of the interface library). Static initialisers of
// several files have no order of their own, so these two steps have priorities; what has none comes after both.

/// Priority of the static initialiser that registers the plug-in's own resource set.
#define NIMBRA_LOAD_OWN_RESOURCES [[gnu::init_priority(1000)]]
/// Priority of the libraries' static objects.
#define NIMBRA_LOAD_LIBRARIES [[gnu::init_priority(1001)]]

/// Registers a library's resource set again; the load has done it before. Doing so twice does no harm, and one clean-up at exit
/// undoes it.
void registerImageResources();
void registerToolsResources();
void registerInterfaceResources();

/// The interface library's shared flag, made here with the value 1; released at exit.
unsigned char *makeInterfaceFlag();
