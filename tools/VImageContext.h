#pragma once

struct VToolsContext;
struct VImageCacheRegistry;
struct VImageSettings;

/// The shared objects of the image library, lent by a host. A lender has started the codec layer as well.
struct VImageContext
{
    VToolsContext *tools = nullptr;
    VImageCacheRegistry *cacheRegistry = nullptr;
    VImageSettings *settings = nullptr;
};
