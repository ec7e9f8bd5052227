#pragma once

#include "VImageContext.h"
#include "VToolsContext.h"
#include "VUIContext.h"

/// The start and stop of the three libraries. A null context means that there is no host to share with: the library makes what it
/// needs and stops it again. With a context it takes what is lent, and never releases it. Everything runs on the thread that
/// loads and unloads the plug-in. A second start alone does nothing; a start with a context takes the objects lent anew. Stopping
/// twice is harmless, and a library may be started again. What is made here, for want of a host or of its loan, is released by
/// the stop alone: a stop may come after the end of all static objects.

/// Starts the image library, the tools under it first. Alone, it starts the codec layer too; with a context, the host has.
void startImageLibrary(VImageContext *context);
/// Stops the tools and the image library, as far as they were started alone; what was made beside a host's loan goes too.
void stopImageLibrary();

/// Starts the interface library. Alone, this sets the search path "UI".
void startInterfaceLibrary(VUIContext *context);

/// Starts the tools: log, topology, threadCount and coreCount, pool and temporary manager. Alone, this also sets the OpenMP
/// run-time: its workers sleep as soon as a region ends, and the schedule is guided by chunks of 10; and threadCount is no more
/// than the processor time that the system grants the process.
void startTools(VToolsContext *context);
void stopTools();

/// What the libraries ended up with at their start, for lending it on. The objects live until the stop.
extern VToolsContext toolsContext;
extern VImageContext imageContext;
extern VUIContext interfaceContext;
