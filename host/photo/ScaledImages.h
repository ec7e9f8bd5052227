#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <tuple>

#include <QString>

#include "VImage.h"

/// Reduced copies of photographs, kept while they fit into a fixed amount of memory: the least recently used one is dropped
/// first. Any thread; a copy that another thread is making is waited for and not made twice.
class ScaledImages
{
public:
    using Image = std::shared_ptr<VImage>;
    using Key = std::tuple<QString, int, int>; ///< Absolute path, width, height.
    /// IfRoom is for what may never be used again: it displaces nothing.
    enum class Keep { Always, IfRoom };

    /// `mostBytes` limits what is kept; copies in use live on in addition.
    explicit ScaledImages(std::size_t mostBytes) : limit(mostBytes) {}

    /// The copy under `key`, made by `make` if there is none. What `make` throws propagates, and nothing is kept.
    Image obtain(const Key &key, const std::function<Image()> &make, Keep when = Keep::Always);

    /// Bytes that are kept at present.
    std::size_t bytes() const;

private:
    struct Entry
    {
        Key key;
        Image image;
        std::size_t bytes;
    };
    void keep(const Key &key, const Image &image, Keep when);

    const std::size_t limit;
    mutable std::mutex mutex; ///< Guards all that follows.
    std::condition_variable made;
    std::set<Key> inProgress;
    std::list<Entry> recent; ///< The most recent first.
    std::map<Key, std::list<Entry>::iterator> places;
    std::size_t held = 0;
};
