#pragma once

/// Registers a library's resource set again; the load has done it before. Doing so twice does no harm, and one clean-up at exit
/// undoes it.
void registerImageResources();
void registerToolsResources();
void registerInterfaceResources();
