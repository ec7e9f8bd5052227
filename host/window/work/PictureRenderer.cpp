#include "PictureRenderer.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

#include "PicturePainter.h"
#include "VException.h"

namespace {

/// How long the last request has to rest before its picture is made from all pixels.
constexpr std::chrono::milliseconds kRest(60);

} // namespace

class PictureRenderer::Worker
{
public:
    explicit Worker(PictureRenderer &renderer) : owner(renderer), thread([this] { run(); }) {}
    ~Worker()
    {
        {
            const std::lock_guard lock(mutex);
            ending = true;
        }
        wake.notify_one();
        thread.join();
    }

    void request(const PictureRequest &wanted)
    {
        {
            const std::lock_guard lock(mutex);
            next = wanted;
        }
        wake.notify_one();
    }

private:
    bool isInterrupted()
    {
        const std::lock_guard lock(mutex);
        return ending || next;
    }

    /// The next request; with `patience`, nothing if none comes within a moment. At the end also nothing.
    std::optional<PictureRequest> take(bool patience)
    {
        std::unique_lock lock(mutex);
        const auto isWoken = [this] { return ending || next; };
        if (patience)
            wake.wait_for(lock, kRest, isWoken);
        else
            wake.wait(lock, isWoken);
        return ending ? std::nullopt : std::exchange(next, std::nullopt);
    }

    void run()
    {
        std::optional<PictureRequest> unfinished; // delivered as a draft
        for (;;) {
            std::optional<PictureRequest> wanted = take(/*patience=*/unfinished.has_value());
            const bool refine = !wanted && unfinished;
            if (refine)
                wanted = unfinished;
            unfinished.reset();
            {
                const std::lock_guard lock(mutex);
                if (ending)
                    return;
            }
            if (!wanted || !PicturePainter::canPaint(*wanted))
                continue;
            paint(*wanted, refine, unfinished);
        }
    }

    void paint(const PictureRequest &wanted, bool refine, std::optional<PictureRequest> &unfinished)
    {
        QString reason;
        try {
            const QImage picture =
                refine ? PicturePainter::exact(wanted, [this] { return isInterrupted(); }) : painter.draft(wanted);
            if (picture.isNull())
                return;
            const bool exact = refine || PicturePainter::isDraftExact(wanted);
            if (!exact)
                unfinished = wanted;
            return deliver([this, picture, wanted, exact] { Q_EMIT owner.ready(picture, wanted, exact); });
        } catch (const VException &failure) {
            reason = failure.message;
        } catch (const std::bad_alloc &) {
            reason = PictureRenderer::tr("There is not enough memory for this picture. Close other programs.");
        } catch (const std::exception &failure) {
            reason = QString::fromLocal8Bit(failure.what());
        }
        deliver([this, wanted, reason] { Q_EMIT owner.failed(wanted, reason); });
    }

    template<typename Signal>
    void deliver(const Signal &signal)
    {
        QMetaObject::invokeMethod(&owner, signal, Qt::QueuedConnection);
    }

    PictureRenderer &owner;
    PicturePainter painter; ///< Of the thread.
    std::mutex mutex;       ///< Guards the next three.
    std::condition_variable wake;
    std::optional<PictureRequest> next;
    bool ending = false;
    std::thread thread; ///< Last: it uses all of the above.
};

PictureRenderer::PictureRenderer(QObject *parent) : QObject(parent), worker(std::make_unique<Worker>(*this)) {}

PictureRenderer::~PictureRenderer() = default;

void PictureRenderer::request(const PictureRequest &wanted)
{
    worker->request(wanted);
}

QImage PictureRenderer::picture(const PictureRequest &wanted)
{
    return PicturePainter::canPaint(wanted) ? PicturePainter::exact(wanted, [] { return false; }) : QImage();
}
