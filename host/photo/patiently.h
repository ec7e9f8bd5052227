#pragma once

#include <functional>

/// Runs `work` to its end. On the interface thread it runs on a thread of its own meanwhile, and the window goes on painting, but
/// takes no clicks and keys; on any other thread, or without a window, it runs here. What it throws leaves here.
void patiently(const std::function<void()> &work);
