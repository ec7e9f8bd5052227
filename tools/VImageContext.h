#pragma once

struct VToolsContext;
struct VImageCacheRegistry;
struct VImageSettings;

/// The shared objects of the image library; who lends them has started the codec layer too.
struct VImageContext
{
    VToolsContext *tools = nullptr;
    VImageCacheRegistry *cacheRegistry = nullptr;
    VImageSettings *settings = nullptr;
};
