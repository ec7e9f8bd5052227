#include "readTopology.h"

#include "VCpuTopology.h"
#include "countTopology.h"

namespace {

CpuidRegisters cpuid(std::uint32_t leaf, std::uint32_t subleaf = 0)
{
    CpuidRegisters registers{};
    (void)ReadCpuid(leaf, subleaf, &registers); // readLeaves has made sure that there is CPUID
    return registers;
}

void readGroups(TopologyRecords &records)
{
    LogicalProcessorInformation information{};
    records.hasReportedGroups =
        GetLogicalProcessorInformationEx(RelationGroup, &information) && information.relation == RelationGroup;
    if (!records.hasReportedGroups)
        return;
    for (std::uint32_t i = 0; i < GetActiveProcessorGroupCount() && i < information.count; ++i) {
        GroupAffinity process{0, std::uint16_t(i)};
        GroupAffinity thread = process;
        const bool failed = !GetProcessGroupAffinity(&process) || !GetThreadGroupAffinity(&thread);
        records.groups.push_back({information.groups[i].activeProcessorCount, process.mask, thread.mask, failed});
    }
}

void readLeaves(TopologyRecords &records)
{
    CpuidRegisters first{};
    records.hasCpuid = ReadCpuid(0, 0, &first);
    if (!records.hasCpuid)
        return;
    records.highestLeaf = first.eax;
    records.leaf1 = cpuid(1);
    if (records.highestLeaf >= 4)
        for (std::uint32_t subleaf = 0; subleaf <= kMaximumCacheSubleafs; ++subleaf) {
            const CpuidRegisters answer = cpuid(4, subleaf);
            if ((answer.eax & 0x1F) == 0)
                break;
            records.leaf4.push_back(answer);
        }
    if (records.highestLeaf >= 0xB)
        for (std::uint32_t subleaf = 0; subleaf < kMaximumLevelSubleafs; ++subleaf) {
            const CpuidRegisters answer = cpuid(0xB, subleaf);
            if (answer.ebx == 0)
                break;
            records.leafB.push_back(answer);
        }
}

std::uint32_t bindTo(std::uint32_t processor, bool withGroups)
{
    if (processor >= kMaximumProcessors)
        return ~0u;
    bool bound = false;
    if (withGroups) {
        GroupAffinity affinity{1u << (processor % kProcessorsPerGroup), std::uint16_t(processor / kProcessorsPerGroup)};
        bound = SetThreadGroupAffinity(affinity);
    } else {
        bound = processor < kProcessorsPerGroup && SetThreadAffinityMask(1u << processor);
    }
    return bound ? 0 : GetLastError();
}

/// Visits each processor that the process may use; false if a visit fails.
bool walk(TopologyRecords &records)
{
    VCpuTopology masks;
    buildMasks(records, masks);
    if (masks.error != 0)
        return true; // there is nothing to walk; countTopology reports why
    for (std::uint32_t i = 0; i < records.processorCount; ++i) {
        if (!masks.processMask.test(i))
            continue;
        TopologyRecords::Processor processor{i, bindTo(i, records.hasGroups), 0};
        if (processor.bindError == 0)
            processor.apicId = records.leafB.empty() ? cpuid(1).ebx >> 24 : cpuid(0xB).edx;
        records.processors.push_back(processor);
        if (processor.bindError != 0)
            return false;
    }
    return true;
}

} // namespace

TopologyRecords readTopology(bool withGroups)
{
    TopologyRecords records;
    records.hasGroups = withGroups;
    records.processorCount = GetMaximumProcessorCount(kAllProcessorGroups);
    if (withGroups)
        readGroups(records);
    else
        records.hasReportedMasks = GetProcessAffinityMask(&records.processMask, &records.systemMask);
    readLeaves(records);
    if (!records.hasCpuid || !walk(records)) {
        LogicalProcessorInformation information{};
        if (GetLogicalProcessorInformationEx(RelationProcessorCore, &information))
            records.places.assign(information.places, information.places + information.count);
    }
    return records;
}
