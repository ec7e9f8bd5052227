#pragma once

#include <functional>

#include "gflBitmapParts.h"

/// Work that a team of threads shares in bands, each of which can be done without the others.
namespace gfl {

/// Calls `work` for each of `bands` bands (0, 1, ...) on up to `threads` threads, the calling one included. Bands begin in order.
/// What a call throws is thrown here once all threads have stopped; after it no further band begins. If several calls throw, the
/// one of the first band counts.
void shareBands(int bands, int threads, const std::function<void(int band)> &work);

/// Calls `make` for each of `bands` bands as above, and `take` with each result, in order and one at a time. At most two results
/// per thread wait for those before them. What `take` throws counts as thrown by its band's `make`.
void shareBandsInOrder(int bands, int threads, const std::function<Bytes(int band)> &make,
                       const std::function<void(const Bytes &made)> &take);

} // namespace gfl
