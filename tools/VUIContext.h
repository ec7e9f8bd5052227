#pragma once

#include <cstdint>

/// The shared object of the interface library.
struct VUIContext
{
    std::uint8_t *flag = nullptr;
};
