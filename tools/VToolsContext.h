#pragma once

#include <cstdint>

class VLog;
class VPoolMem;
class VTempManager;
struct VCpuTopology;

/// The shared objects of the tools layer, lent by whoever made them. They stay the lender's, and must live until the borrower has
/// stopped.
struct VToolsContext
{
    VLog *log = nullptr;
    VCpuTopology **topology = nullptr;
    VPoolMem *pool = nullptr;
    VTempManager *tempManager = nullptr;
    std::int32_t *sharedValue = nullptr; ///< Kept and handed on, not read.
    std::int32_t *threadCount = nullptr; ///< Read once, at start.
    std::int32_t *coreCount = nullptr;   ///< Read once, at start.
};
