#pragma once

#include "VImageContext.h"
#include "VToolsContext.h"
#include "VUIContext.h"

/// Starts and stops the three libraries. A null context means that there is no host to share with (a start alone): the library
/// makes what it needs and releases it at the stop. With a context it uses what is lent and never releases that. Everything runs
/// on the thread that loads and unloads the plug-in. A second start alone does nothing; each start with a context uses the
/// objects lent by that context. Stopping twice is harmless, and a library may be started again. Whatever is made here is
/// released only by the stop, never by a static destructor: a stop may come after all static objects have been destroyed.

/// Starts the tools, then the image library. Alone, this also starts the codec layer; with a context, the host has started it.
void startImageLibrary(VImageContext *context);
/// Stops the tools and the image library if they were started alone; otherwise releases only what was made here because the host
/// did not lend it.
void stopImageLibrary();

/// Starts the interface library. Alone, this sets the search path "UI".
void startInterfaceLibrary(VUIContext *context);

/// Starts the tools: log, topology, threadCount and coreCount, pool and temporary manager. Alone, this also configures the OpenMP
/// run-time (workers sleep as soon as a region ends; the run-time schedule is guided, with chunks of 10) and limits threadCount
/// to the processor quota of the process.
void startTools(VToolsContext *context);
void stopTools();

/// The objects in use since the start, for lending them on. They live until the stop.
extern VToolsContext toolsContext;
extern VImageContext imageContext;
extern VUIContext interfaceContext;
