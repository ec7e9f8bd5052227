#pragma once

#include <functional>

/// Runs `work` and returns when it is done. If called on the interface thread, `work` runs on another thread, and the window
/// keeps painting but ignores clicks and keys; on any other thread, or without a window, it runs on the caller's. Rethrows what
/// it throws.
void patiently(const std::function<void()> &work);
