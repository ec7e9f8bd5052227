#pragma once

#include <cstdint>

/// Team size of every parallel region of the engine; 1 until start-up has set it. Read anew at each region.
extern std::int32_t threadCount;
/// Physical cores of the machine; 1 until start-up has set it.
extern std::int32_t coreCount;
