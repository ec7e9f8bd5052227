#pragma once

#include <cstdint>
#include <vector>

#include "kernel32.h"

/// What a machine answers about its processors, as it stands: the input of countTopology.
struct TopologyRecords
{
    struct Group
    {
        std::uint32_t activeProcessorCount = 0;
        std::uint32_t processMask = 0; ///< Of this group, those that the process may use,
        std::uint32_t threadMask = 0;  ///< and those that the walking thread may.
        bool failed = false;           ///< One of the calls failed.
    };
    /// A logical processor that the walk reached.
    struct Processor
    {
        std::uint32_t index = 0;
        std::uint32_t bindError = 0; ///< Not 0: the thread could not be bound, and the walk ended here.
        std::uint32_t apicId = 0;
    };

    std::uint32_t processorCount = 0;

    bool hasGroups = true;   ///< The system has the group calls.
    bool groupsTold = false; ///< The system told its groups.
    std::vector<Group> groups;

    bool masksTold = false; ///< Without groups: the system told the two masks.
    std::uint32_t processMask = 0;
    std::uint32_t systemMask = 0;

    bool hasCpuid = false;
    std::uint32_t highestLeaf = 0;
    CpuidRegisters leaf1{};
    std::vector<CpuidRegisters> leaf4; ///< By subleaf, up to the first that names no cache.
    std::vector<CpuidRegisters> leafB; ///< By subleaf, up to the first with no processors.

    std::vector<Processor> processors;

    /// Place of every logical processor as the system tells it: for a processor without CPUID, or where threads can't be bound.
    std::vector<ProcessorPlace> places;
};

/// Asks this machine, and leaves the calling thread bound to the last processor that it visited. `withGroups` false asks as on a
/// system without the group calls. May throw std::bad_alloc.
TopologyRecords readTopology(bool withGroups = HasProcessorGroups());
