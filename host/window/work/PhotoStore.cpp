#include "PhotoStore.h"

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "VException.h"
#include "kernel32.h"

namespace {

QString tooLittleMemory()
{
    return PhotoStore::tr("There is not enough memory for it. Close other programs, or scale the photograph down.");
}

} // namespace

/// Two threads, which take their work from the same list: one reads, the other estimates maps.
class PhotoStore::Worker
{
public:
    using Photo = std::shared_ptr<const OpenPhoto>;

    Worker(PhotoStore &store, FreeMemory freeMemory)
        : owner(store), freeBytes(std::move(freeMemory)), reader([this] { run(Step::Read); }), mapper([this] { run(Step::Map); })
    {
    }

    ~Worker()
    {
        {
            const std::lock_guard lock(mutex);
            ending = true;
        }
        wake.notify_all();
        reader.join();
        mapper.join();
    }

    void show(const QStringList &paths)
    {
        std::vector<Photo> dropped; // freed without the lock
        {
            const std::lock_guard lock(mutex);
            wanted = paths;
            for (auto entry = entries.begin(); entry != entries.end();) {
                entry->second.isRefused = false;
                if (wanted.contains(entry->first)) {
                    ++entry;
                    continue;
                }
                dropped.push_back(entry->second.photo);
                entry = entries.erase(entry);
            }
        }
        wake.notify_all();
    }

    void forget(const QString &path)
    {
        Photo dropped;
        {
            const std::lock_guard lock(mutex);
            if (const auto found = entries.find(path); found != entries.end()) {
                dropped = found->second.photo;
                entries.erase(found);
            }
            ++generations[path]; // what is being made of it is outdated
        }
        wake.notify_all();
    }

    Photo photo(const QString &path) const
    {
        const std::lock_guard lock(mutex);
        const auto found = entries.find(path);
        return found == entries.end() ? nullptr : found->second.photo;
    }

private:
    enum class Step { Read, Map };
    struct Entry
    {
        Photo photo;
        bool isRefused = false; ///< It failed, or there is no room for it; tried again at the next show().
    };
    struct Task
    {
        QString path;
        Photo photo; ///< Null for Step::Read.
        int generation;
        bool inView;
    };

    static bool isDone(const Entry &entry) { return entry.isRefused || (entry.photo && entry.photo->isComplete()); }

    /// What this thread should do now. The neighbours wait until the photograph in view is done.
    std::optional<Task> findTask(Step step)
    {
        for (const QString &path : qAsConst(wanted)) {
            const Entry &entry = entries[path];
            const bool inView = path == wanted.constFirst(); // first() would detach the list that is being walked through
            if (!isDone(entry) && (step == Step::Read) == !entry.photo)
                return Task{path, entry.photo, generations[path], inView};
            if (inView && !isDone(entry))
                return std::nullopt;
        }
        return std::nullopt;
    }

    void run(Step step)
    {
        std::unique_lock lock(mutex);
        while (!ending) {
            std::optional<Task> task = findTask(step);
            if (!task) {
                wake.wait(lock);
                continue;
            }
            lock.unlock();
            QString reason;
            Photo photo = attempt(*task, step, reason);
            lock.lock();
            finish(*task, step, photo, reason);
            task.reset();
            wake.notify_all(); // the other thread
            lock.unlock();
            photo.reset(); // it may be the last to hold it
            lock.lock();
        }
    }

    Photo attempt(const Task &task, Step step, QString &reason)
    {
        try {
            const PhotoHead head = PhotoLoader::describe(task.path);
            const OpenPhoto::Memory memory = OpenPhoto::memoryFor(head);
            const qint64 bytes = step == Step::Read ? memory.reading : memory.estimating;
            if (task.inView)
                makeRoom(task.path, bytes);
            // A photograph that is only prepared leaves as much again to others.
            const quint64 room = freeBytes() / (task.inView ? 1 : 2);
            if (quint64(bytes) <= room)
                return step == Step::Read ? OpenPhoto::read(task.path) : task.photo->withMap();
            if (task.inView)
                reason = tooLittleMemory();
        } catch (const VException &failure) {
            reason = failure.message;
        } catch (const std::bad_alloc &) {
            reason = tooLittleMemory();
        } catch (const std::exception &failure) {
            reason = QString::fromLocal8Bit(failure.what());
        }
        return nullptr;
    }

    /// Drops the neighbours of the photograph in view if their memory is needed for it.
    void makeRoom(const QString &path, qint64 bytes)
    {
        if (freeBytes() >= quint64(bytes))
            return;
        std::vector<Photo> dropped;
        const std::lock_guard lock(mutex);
        for (auto &[other, entry] : entries)
            if (other != path && entry.photo) {
                dropped.push_back(std::move(entry.photo));
                entry = {nullptr, /*isRefused=*/true};
            }
    }

    void finish(const Task &task, Step step, const Photo &photo, const QString &reason)
    {
        if (!wanted.contains(task.path) || generations[task.path] != task.generation)
            return;
        Entry &entry = entries[task.path];
        // Left and shown again meanwhile, it may be further than this already; or its memory was needed.
        if (isDone(entry))
            return;
        if (photo)
            entry.photo = photo;
        else
            entry.isRefused = true;
        if (!photo && reason.isEmpty())
            return;
        const auto tell = [this, step, path = task.path, generation = task.generation, reason] {
            {
                const std::lock_guard lock(mutex);
                if (!wanted.contains(path) || generations[path] != generation)
                    return;
            }
            if (!reason.isEmpty())
                Q_EMIT owner.failed(path, reason);
            else if (step == Step::Read)
                Q_EMIT owner.pixelsReady(path);
            else
                Q_EMIT owner.mapReady(path);
        };
        QMetaObject::invokeMethod(&owner, tell, Qt::QueuedConnection);
    }

    PhotoStore &owner;
    const FreeMemory freeBytes;
    mutable std::mutex mutex; ///< Guards the next five.
    std::condition_variable wake;
    QStringList wanted; ///< The one in view first.
    std::map<QString, Entry> entries;
    std::map<QString, int> generations; ///< How often each path was forgotten.
    bool ending = false;
    std::thread reader, mapper; ///< Last: they use all of the above.
};

PhotoStore::PhotoStore(QObject *parent) : PhotoStore([] { return GetAvailableMemory(); }, parent) {}

PhotoStore::PhotoStore(FreeMemory freeMemory, QObject *parent)
    : QObject(parent), worker(std::make_unique<Worker>(*this, std::move(freeMemory)))
{
}

PhotoStore::~PhotoStore() = default;

void PhotoStore::show(const QString &path, const QStringList &neighbours)
{
    QStringList paths = path.isEmpty() ? QStringList() : QStringList(path) + neighbours;
    paths.removeDuplicates();
    worker->show(paths);
}

void PhotoStore::forget(const QString &path)
{
    worker->forget(path);
}

std::shared_ptr<const OpenPhoto> PhotoStore::photo(const QString &path) const
{
    return worker->photo(path);
}
