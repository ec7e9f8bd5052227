#pragma once

#include <cstdint>

#include <QHash>
#include <QMutex>
#include <QString>

/// An image in a host's table.
struct VImageCacheEntry
{
    virtual ~VImageCacheEntry() = default;
};

/// A host's table of images, which owns its entries. Fixed: hosts rely on this layout, although the plug-in adds nothing to it.
struct VImageCacheRegistry
{
    VImageCacheRegistry() = default;
    ~VImageCacheRegistry() { qDeleteAll(entries); }
    VImageCacheRegistry(const VImageCacheRegistry &) = delete;
    VImageCacheRegistry &operator=(const VImageCacheRegistry &) = delete;

    QHash<QString, VImageCacheEntry *> entries;
    QMutex mutex;
    std::int32_t intA = 0; ///< Spare, like the next one.
    std::int32_t intB = 256;
};
