#include "gflBands.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <limits>
#include <mutex>

namespace gfl {

void shareBands(int bands, int threads, const std::function<void(int band)> &work)
{
    std::atomic<int> next{0};
    std::mutex mutex; // guards the two below
    int failedBand = std::numeric_limits<int>::max();
    std::exception_ptr failure;
#pragma omp parallel num_threads(std::max(1, std::min(bands, threads)))
    for (int band; (band = next++) < bands;) {
        try {
            work(band);
        } catch (...) {
            next = bands;
            const std::lock_guard lock(mutex);
            if (band < failedBand) {
                failedBand = band;
                failure = std::current_exception();
            }
        }
    }
    if (failure)
        std::rethrow_exception(failure);
}

void shareBandsInOrder(int bands, int threads, const std::function<Bytes(int band)> &make,
                       const std::function<void(const Bytes &made)> &take)
{
    struct Slot
    {
        Bytes made;
        bool filled = false;
    };
    std::mutex mutex; // guards all below, and `take`
    std::condition_variable moved;
    std::vector<Slot> slots(std::size_t(std::max(1, std::min(bands, 2 * threads))));
    int taken = 0;
    bool failed = false;
    const auto slotOf = [&](int band) -> Slot & { return slots[std::size_t(band) % slots.size()]; };

    // The first band that is not taken never waits: whoever began it makes it and takes it.
    shareBands(bands, threads, [&](int band) {
        try {
            {
                std::unique_lock lock(mutex);
                moved.wait(lock, [&] { return failed || band - taken < int(slots.size()); });
                if (failed)
                    return;
            }
            Bytes made = make(band);
            const std::lock_guard lock(mutex);
            slotOf(band) = {std::move(made), true};
            for (; !failed && taken < bands && slotOf(taken).filled; ++taken) {
                take(slotOf(taken).made);
                slotOf(taken) = {};
            }
        } catch (...) {
            const std::lock_guard lock(mutex);
            failed = true;
            moved.notify_all();
            throw;
        }
        moved.notify_all();
    });
}

} // namespace gfl
