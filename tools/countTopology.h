#pragma once

#include <cstdint>

#include "readTopology.h"

struct VCpuTopology;

// The understanding of what readTopology has read; nothing here asks the machine. Source of the fields of CPUID: Intel 64 and
// IA-32 Architectures Software Developer's Manual, volume 2A, CPUID; of the way to cut an APIC identifier: volume 3A,
// chapter 8.9.

constexpr std::uint32_t kMaximumLeaf = 0xFF; ///< A higher one is no answer that makes sense.
constexpr std::uint32_t kMaximumCacheSubleafs = 8;
constexpr std::uint32_t kMaximumLevelSubleafs = 8;

/// Sets osProcessorCount and the two masks, or a flag in `error`. Needs the groups or the masks of the records only.
void buildMasks(const TopologyRecords &records, VCpuTopology &topology);

/// Fills the whole of a record made without a result. On a failure `error` is not 0 and the two counts are 0. An invariant that
/// does not hold is printed on standard output, and the enumeration abandoned. Does not throw.
void countTopology(const TopologyRecords &records, VCpuTopology &topology);
