#pragma once

#include <cstdint>

#include <QHash>
#include <QMutex>
#include <QString>

/// An image that a host keeps in its table.
struct VImageCacheEntry
{
    virtual ~VImageCacheEntry() = default;
};

/// A host's table of images. The plug-in adds nothing to it. The table owns its entries.
struct VImageCacheRegistry
{
    VImageCacheRegistry() = default;
    ~VImageCacheRegistry() { qDeleteAll(entries); }
    VImageCacheRegistry(const VImageCacheRegistry &) = delete;
    VImageCacheRegistry &operator=(const VImageCacheRegistry &) = delete;

    QHash<QString, VImageCacheEntry *> entries;
    QMutex mutex;
    std::int32_t intA = 0; ///< Spare, like the next.
    std::int32_t intB = 256;
};
