#pragma once

#include <cstdint>
#include <vector>

/// The ICC profile of the primary screen, as the desktop's colour management has left it with the X server (the property
/// _ICC_PROFILE of the root window). Empty if there is none, or no X server; a Wayland desktop gives none. Any thread.
std::vector<std::uint8_t> screenProfile();
