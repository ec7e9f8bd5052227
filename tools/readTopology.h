#pragma once

#include <cstdint>
#include <vector>

#include "kernel32.h"

/// What a machine reports about its processors, verbatim: the input of countTopology.
struct TopologyRecords
{
    struct Group
    {
        std::uint32_t activeProcessorCount = 0;
        std::uint32_t processMask = 0; ///< The processors of this group that the process may use.
        std::uint32_t threadMask = 0;  ///< Those that the walking thread may use.
        bool failed = false;           ///< One of the calls failed.
    };
    /// A logical processor reached by the walk.
    struct Processor
    {
        std::uint32_t index = 0;
        std::uint32_t bindError = 0; ///< If not 0, the thread could not be bound, and the walk ended here.
        std::uint32_t apicId = 0;
    };

    std::uint32_t processorCount = 0;

    bool hasGroups = true;          ///< The system has the group calls.
    bool hasReportedGroups = false; ///< The system has reported its groups.
    std::vector<Group> groups;

    bool hasReportedMasks = false; ///< Without groups: the system has reported the two masks.
    std::uint32_t processMask = 0;
    std::uint32_t systemMask = 0;

    bool hasCpuid = false;
    std::uint32_t highestLeaf = 0;
    CpuidRegisters leaf1{};
    std::vector<CpuidRegisters> leaf4; ///< By subleaf, up to the first that names no cache.
    std::vector<CpuidRegisters> leafB; ///< By subleaf, up to the first with no processors.

    std::vector<Processor> processors;

    /// Location of every logical processor as reported by the system: for processors without CPUID, or if threads can't be bound.
    std::vector<ProcessorPlace> places;
};

/// Queries this machine, and leaves the calling thread bound to the last processor that it visited. `withGroups` false does
/// without the group calls. May throw std::bad_alloc.
TopologyRecords readTopology(bool withGroups = HasProcessorGroups());
