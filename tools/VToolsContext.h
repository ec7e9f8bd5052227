#pragma once

#include <cstdint>

class VLog;
class VPoolMem;
class VTempManager;
struct VCpuTopology;

/// The shared objects of the tools layer, lent by whoever made them. The lender keeps them and must not destroy them before the
/// borrower has stopped.
struct VToolsContext
{
    VLog *log = nullptr;
    VCpuTopology **topology = nullptr;
    VPoolMem *pool = nullptr;
    VTempManager *tempManager = nullptr;
    std::int32_t *sharedValue = nullptr; ///< Kept and passed on; never read here.
    std::int32_t *threadCount = nullptr; ///< Read once, at start.
    std::int32_t *coreCount = nullptr;   ///< Read once, at start.
};
