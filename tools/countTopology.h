#pragma once

#include <cstdint>

#include "readTopology.h"

struct VCpuTopology;

// Interprets the records of readTopology; nothing here queries the machine. Source for the fields of CPUID: Intel 64 and IA-32
// Architectures Software Developer's Manual, volume 2A, CPUID; for splitting an APIC identifier: volume 3A, chapter 8.9.

constexpr std::uint32_t kMaximumLeaf = 0xFF; ///< A higher one is not plausible.
constexpr std::uint32_t kMaximumCacheSubleafs = 8;
constexpr std::uint32_t kMaximumLevelSubleafs = 8;

/// Sets osProcessorCount and the two masks, or a flag in `error`. Of the records it needs only the groups or the masks.
void buildMasks(const TopologyRecords &records, VCpuTopology &topology);

/// Fills an empty record completely. On a failure `error` is not 0 and the two counts are 0. A violated invariant is printed on
/// standard output and abandons the enumeration. Does not throw.
void countTopology(const TopologyRecords &records, VCpuTopology &topology);
