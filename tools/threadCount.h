#pragma once

#include <cstdint>

/// Team size of every parallel region of the engine, read at the start of each region; 1 until start-up sets it.
extern std::int32_t threadCount;
/// Physical cores of the machine; 1 until start-up sets it.
extern std::int32_t coreCount;
