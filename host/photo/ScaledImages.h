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

/// Reduced copies of photographs, kept for as long as they fit into a fixed amount of memory: the one that was not asked for
/// longest goes first. Any thread; a copy that another thread is just making is waited for and not made twice.
class ScaledImages
{
public:
    using Image = std::shared_ptr<VImage>;
    using Key = std::tuple<QString, int, int>; ///< Absolute path, width, height.
    /// IfRoom is for what may never be asked for again: it pushes nothing out.
    enum class Keep { Always, IfRoom };

    /// `mostBytes` bounds what is kept; a copy in use lives on besides.
    explicit ScaledImages(std::size_t mostBytes) : limit(mostBytes) {}

    /// The copy under `key`, made by `make` if there is none. What `make` throws leaves; nothing is kept then.
    Image obtain(const Key &key, const std::function<Image()> &make, Keep wish = Keep::Always);

    /// Bytes that are kept just now.
    std::size_t bytes() const;

private:
    struct Entry
    {
        Key key;
        Image image;
        std::size_t bytes;
    };
    void keep(const Key &key, const Image &image, Keep wish);

    const std::size_t limit;
    mutable std::mutex mutex; ///< Over all that follows.
    std::condition_variable made;
    std::set<Key> inHand;
    std::list<Entry> recent; ///< The latest first.
    std::map<Key, std::list<Entry>::iterator> places;
    std::size_t held = 0;
};
