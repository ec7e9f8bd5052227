#include "ScaledImages.h"

ScaledImages::Image ScaledImages::obtain(const Key &key, const std::function<Image()> &make, Keep when)
{
    {
        std::unique_lock lock(mutex);
        made.wait(lock, [&] { return inProgress.count(key) == 0; });
        if (const auto place = places.find(key); place != places.end()) {
            recent.splice(recent.begin(), recent, place->second);
            return recent.front().image;
        }
        inProgress.insert(key);
    }
    const auto finish = [&](void *) {
        {
            const std::lock_guard lock(mutex);
            inProgress.erase(key);
        }
        made.notify_all();
    };
    const std::unique_ptr<void, decltype(finish)> end(this, finish);
    Image image = make();
    keep(key, image, when);
    return image;
}

void ScaledImages::keep(const Key &key, const Image &image, Keep when)
{
    const std::size_t size = std::size_t(image->BytesPerLine()) * std::size_t(image->Height());
    const std::lock_guard lock(mutex);
    if (when == Keep::IfRoom && held + size > limit)
        return;
    recent.push_front({key, image, size});
    places[key] = recent.begin();
    held += size;
    while (held > limit && recent.size() > 1) {
        held -= recent.back().bytes;
        places.erase(recent.back().key);
        recent.pop_back();
    }
}

std::size_t ScaledImages::bytes() const
{
    const std::lock_guard lock(mutex);
    return held;
}
