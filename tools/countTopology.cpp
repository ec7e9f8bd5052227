#include "countTopology.h"

#include <algorithm>
#include <bitset>
#include <cstdarg>
#include <cstdio>
#include <new>

#include "VCpuTopology.h"

// The source position in a fatal message: the last two fields of its format. Fixed: hosts rely on this name, and on the messages'
// spelling.
#define TOPOLOGY_POSITION "cpuid2\\cpu_topo", __LINE__

namespace {

/// Thrown to leave the enumeration from any depth.
struct EnumerationAbandoned
{
};

[[noreturn, gnu::format(printf, 1, 2)]] void abandon(const char *format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::vprintf(format, arguments);
    va_end(arguments);
    throw EnumerationAbandoned();
}

std::uint32_t bitCount(std::uint32_t word)
{
    return std::uint32_t(std::bitset<32>(word).count());
}

std::uint32_t lowBits(std::uint32_t width)
{
    return width >= 32 ? ~0u : (1u << width) - 1;
}

/// Bits that an identifier needs to distinguish `count` things.
std::uint32_t widthFor(std::uint32_t count)
{
    std::uint32_t width = 0;
    while (width < 32 && (std::uint64_t(1) << width) < count)
        ++width;
    return width;
}

std::uint32_t field(std::uint32_t word, unsigned first, unsigned last)
{
    return word >> first & lowBits(last - first + 1);
}

bool hasSeveralPerPackage(const TopologyRecords &records)
{
    return field(records.leaf1.edx, 28, 28) != 0;
}

/// Index of `value` in a list of distinct values, to which it is appended if missing.
std::uint32_t placeOf(std::uint32_t value, std::vector<std::uint32_t> &values)
{
    const auto found = std::find(values.begin(), values.end(), value);
    const auto place = std::uint32_t(found - values.begin());
    if (found == values.end())
        values.push_back(value);
    return place;
}

void masksOfGroups(const TopologyRecords &records, VCpuTopology &topology)
{
    if (!records.hasReportedGroups)
        topology.error |= VCpuTopology::SystemCallFailed;
    else if (records.processorCount > kMaximumProcessors)
        topology.error |= VCpuTopology::TooManyProcessors;
    if (topology.error != 0)
        return;
    std::uint32_t total = 0;
    for (const TopologyRecords::Group &group : records.groups) {
        const std::uint32_t count = group.activeProcessorCount;
        const std::uint32_t seen = group.processMask | group.threadMask;
        if (group.failed) {
            topology.error |= VCpuTopology::SystemCallFailed;
        } else if (bitCount(group.processMask) > count || bitCount(group.threadMask) > count || (seen & ~lowBits(count)) != 0 ||
                   total + count > topology.processMask.size()) {
            topology.error |= VCpuTopology::MasksDisagree;
        } else {
            for (std::uint32_t bit = 0; bit < count; ++bit) {
                topology.systemMask.set(total + bit);
                if (field(group.processMask, bit, bit))
                    topology.processMask.set(total + bit);
            }
        }
        total += count;
    }
    if (total != records.processorCount)
        topology.error |= VCpuTopology::MasksDisagree + total;
}

void plainMasks(const TopologyRecords &records, VCpuTopology &topology)
{
    const std::uint32_t count = records.processorCount;
    if (!records.hasReportedMasks)
        topology.error |= VCpuTopology::SystemCallFailed;
    else if (count > kProcessorsPerGroup)
        topology.error |= VCpuTopology::TooManyProcessors;
    if (topology.error != 0)
        return;
    if (bitCount(records.processMask) != count)
        topology.error |= VCpuTopology::MasksDisagree + bitCount(records.processMask);
    if (bitCount(records.systemMask) != count)
        topology.error |= VCpuTopology::SystemCallFailed + bitCount(records.systemMask);
    if ((records.processMask & lowBits(count)) != lowBits(count))
        topology.error |= VCpuTopology::MasksDisagree;
    for (std::uint32_t i = 0; i < count && topology.error == 0; ++i) {
        topology.processMask.set(i);
        topology.systemMask.set(i);
    }
}

/// How an APIC identifier is split into package, core and thread.
void selectMasks(const TopologyRecords &records, VCpuTopology &topology)
{
    topology.hasLeafB = records.highestLeaf >= 0xB && !records.leafB.empty();
    topology.pkgSelectMask = ~0u;
    if (!hasSeveralPerPackage(records))
        return;
    std::uint32_t packageShift = 0;
    if (topology.hasLeafB) {
        bool threadLevel = false;
        bool coreLevel = false;
        for (const CpuidRegisters &level : records.leafB) {
            const std::uint32_t shift = field(level.eax, 0, 4);
            switch (field(level.ecx, 8, 15)) {
            case 1:
                topology.smtSelectWidth = shift;
                threadLevel = true;
                break;
            case 2:
                packageShift = shift;
                coreLevel = true;
                break;
            default:
                break;
            }
        }
        if (!threadLevel && !coreLevel)
            topology.error |= VCpuTopology::Abandoned;
        if (!coreLevel)
            packageShift = topology.smtSelectWidth;
    } else {
        const std::uint32_t perPackage = field(records.leaf1.ebx, 16, 23);
        const bool hasLeaf4 = records.highestLeaf >= 4 && !records.leaf4.empty();
        const std::uint32_t coresPerPackage = hasLeaf4 ? field(records.leaf4[0].eax, 26, 31) + 1 : 1;
        topology.smtSelectWidth = widthFor(perPackage / coresPerPackage);
        packageShift = topology.smtSelectWidth + widthFor(coresPerPackage);
    }
    topology.smtSelectMask = lowBits(topology.smtSelectWidth);
    topology.coreSelectShift = topology.smtSelectWidth;
    topology.coreSelectMask = lowBits(packageShift) ^ topology.smtSelectMask;
    topology.pkgSelectShift = packageShift;
    topology.pkgSelectMask = ~lowBits(packageShift);
}

void describeCaches(const TopologyRecords &records, VCpuTopology &topology)
{
    if (records.highestLeaf > kMaximumLeaf)
        abandon("got maxCPUID= 0x%x but the array only handles up to 0x%x. Bye at %s %d\n", records.highestLeaf, kMaximumLeaf,
                TOPOLOGY_POSITION);
    if (records.highestLeaf < 2)
        return;
    if (records.highestLeaf < 4) {
        const std::uint32_t sharing = hasSeveralPerPackage(records) ? field(records.leaf1.ebx, 16, 23) : 1;
        topology.caches.push_back({"described by cpuid leaf 2", 0, ~lowBits(widthFor(sharing))});
        return;
    }
    if (records.leaf4.size() > kMaximumCacheSubleafs)
        abandon("Need bigger MAX_CACHE_SUBLEAFS(%d) at %s %d\n", int(kMaximumCacheSubleafs), TOPOLOGY_POSITION);
    for (const CpuidRegisters &leaf : records.leaf4) {
        static const char *const kinds[] = {"none", "Data", "Instruction", "Unified"};
        const char *kind = kinds[std::min(field(leaf.eax, 0, 4), 3u)];
        const std::uint64_t bytes = std::uint64_t(field(leaf.ebx, 22, 31) + 1) * (field(leaf.ebx, 12, 21) + 1) *
                                    (field(leaf.ebx, 0, 11) + 1) * (std::uint64_t(leaf.ecx) + 1);
        const auto kiloBytes = std::uint32_t(bytes / 1024);
        char text[80];
        std::snprintf(text, sizeof text, "Level %d %s, size(KBytes)= %d", int(field(leaf.eax, 5, 7)), kind, int(kiloBytes));
        topology.caches.push_back({text, kiloBytes, ~lowBits(widthFor(field(leaf.eax, 14, 25) + 1))});
    }
}

void splitIdentifiers(const TopologyRecords &records, VCpuTopology &topology)
{
    std::uint32_t count = 0;
    for (const TopologyRecords::Processor &read : records.processors) {
        if (read.bindError != 0) {
            topology.error |= VCpuTopology::SystemCallFailed;
            return;
        }
        if (count == topology.osProcessorCount)
            break;
        VCpuTopology::Processor &processor = topology.processors[count++];
        processor.index = read.index;
        processor.apicId = read.apicId;
        // A shift of 32 means an empty field.
        processor.package = std::uint32_t(std::uint64_t(read.apicId & topology.pkgSelectMask) >> topology.pkgSelectShift);
        processor.core = std::uint32_t(std::uint64_t(read.apicId & topology.coreSelectMask) >> topology.coreSelectShift);
        processor.thread = read.apicId & topology.smtSelectMask;
        for (const VCpuTopology::Cache &cache : topology.caches)
            processor.caches.push_back(read.apicId & cache.selectMask);
    }
    topology.threadCount = count;
}

/// Uses the places reported by the system instead of splitting identifiers.
void usePlaces(const TopologyRecords &records, VCpuTopology &topology)
{
    std::uint32_t count = 0;
    for (std::uint32_t i = 0; i < records.places.size() && i < topology.osProcessorCount; ++i) {
        if (!topology.processMask.test(i))
            continue;
        VCpuTopology::Processor &processor = topology.processors[count++];
        processor.index = i;
        processor.package = std::uint32_t(records.places[i].package);
        processor.core = std::uint32_t(records.places[i].core);
    }
    topology.threadCount = count;
}

void countCores(VCpuTopology &topology)
{
    const std::uint32_t numMappings = topology.threadCount;
    const std::uint32_t ckDim = numMappings * numMappings;
    CountTable &table = topology.perPkg_detectedCoresCount;
    std::vector<std::uint32_t> packages;
    std::vector<std::vector<std::uint32_t>> cores; // of each package
    for (std::uint32_t i = 0; i < numMappings; ++i) {
        const VCpuTopology::Processor &processor = topology.processors[i];
        const std::uint32_t h = placeOf(processor.package, packages);
        const auto found = std::uint32_t(packages.size());
        if (h * numMappings >= ckDim)
            abandon("got error. maxPackageDetetcted= %d numMappings= %d maxPackageDetetcted* numMappings + 0 = %d and ckDim= %d "
                    "at %s %d\n",
                    int(found), int(numMappings), int(h * numMappings), int(ckDim), TOPOLOGY_POSITION);
        if (found >= table.dim[0])
            abandon("got error. maxPackageDetetcted(%d) >= glbl_ptr->perPkg_detectedCoresCount.dim[0](%d) at %s %d. Bye\n",
                    int(found), int(table.dim[0]), TOPOLOGY_POSITION);
        cores.resize(packages.size());
        const std::uint32_t core = placeOf(processor.core, cores[h]);
        if (h * numMappings + core >= ckDim)
            abandon("got error. h* numMappings + core = %d and ckDim= %d at %s %d\n", int(h * numMappings + core), int(ckDim),
                    TOPOLOGY_POSITION);
        if (table.at(h, core)++ == 0)
            ++topology.coreCount;
    }
}

void countCaches(VCpuTopology &topology)
{
    CountTable &table = topology.perEachCache_detectedThreadCount;
    for (std::uint32_t subleaf = 0; subleaf < topology.caches.size(); ++subleaf) {
        if (subleaf >= table.dim[1])
            abandon("Error: Got subleaf(%d) >= glbl_ptr->perEachCache_detectedThreadCount.dim[1](%d) at %s %d. Bye\n",
                    int(subleaf), int(table.dim[1]), TOPOLOGY_POSITION);
        std::vector<std::uint32_t> identifiers;
        for (std::uint32_t i = 0; i < topology.threadCount; ++i) {
            if (subleaf >= topology.processors[i].caches.size())
                return; // places reported by the system come without caches
            const std::uint32_t found = placeOf(topology.processors[i].caches[subleaf], identifiers);
            if (found >= table.dim[0])
                abandon(
                    "Error: Got maxCacheDetected(%d) >= glbl_ptr->perEachCache_detectedThreadCount.dim[0](%d) at %s %d. Bye\n",
                    int(found), int(table.dim[0]), TOPOLOGY_POSITION);
            ++table.at(found, subleaf);
        }
    }
}

void enumerate(const TopologyRecords &records, VCpuTopology &topology)
{
    topology.processors.resize(records.processorCount + 1);
    topology.perPkg_detectedCoresCount.allocate(records.processorCount + 1);
    topology.perEachCache_detectedThreadCount.allocate(records.processorCount + 1);
    const bool placesReported = !records.places.empty();
    if (!placesReported) {
        selectMasks(records, topology);
        describeCaches(records, topology);
    }
    if (topology.error == 0)
        buildMasks(records, topology);
    if (topology.error == 0)
        placesReported ? usePlaces(records, topology) : splitIdentifiers(records, topology);
    if (topology.error != 0)
        return;
    countCores(topology);
    countCaches(topology);
    if (topology.coreCount == 0)
        topology.error |= VCpuTopology::CountFailed;
}

} // namespace

void GenericAffinityMask::allocate(std::uint32_t processors)
{
    try {
        bytes.assign((processors + 7) / 8, 0);
    } catch (const std::bad_alloc &) {
        abandon("Error: AllocateGenericAffinityMask 2nd malloc failed at %s %d. Bye\n", TOPOLOGY_POSITION);
    }
}

void GenericAffinityMask::set(std::uint32_t processor)
{
    if (processor >= size())
        abandon("Error: Wanted cpu %u but mask only supports up to %u cpus at %s %d. Bye\n", processor, size(),
                TOPOLOGY_POSITION);
    bytes[processor / 8] = std::uint8_t(bytes[processor / 8] | 1u << processor % 8);
}

bool GenericAffinityMask::test(std::uint32_t processor) const
{
    if (processor >= size())
        abandon("Error: Wanted cpu %d but mask only supports up to %d cpus at %s %d. Bye\n", int(processor), int(size()),
                TOPOLOGY_POSITION);
    return (bytes[processor / 8] >> processor % 8 & 1) != 0;
}

void CountTable::allocate(std::uint32_t firstDimension)
{
    dim[0] = firstDimension;
    dim[1] = kSecondDimension;
    counts.assign(std::size_t(dim[0]) * dim[1], 0);
}

std::uint32_t &CountTable::at(std::uint32_t first, std::uint32_t second)
{
    if (first >= dim[0])
        abandon("got too large 1st dimension %d which is bigger than %d at %s %d. Bye\n", int(first), int(dim[0]),
                TOPOLOGY_POSITION);
    if (second >= dim[1])
        abandon("got too large 2nd dimension %d which is bigger than %d at %s %d. Bye\n", int(second), int(dim[1]),
                TOPOLOGY_POSITION);
    return counts[std::size_t(first) * dim[1] + second];
}

void buildMasks(const TopologyRecords &records, VCpuTopology &topology)
{
    topology.osProcessorCount = records.processorCount;
    topology.processMask.allocate(records.processorCount);
    topology.systemMask.allocate(records.processorCount);
    if (records.hasGroups)
        masksOfGroups(records, topology);
    else
        plainMasks(records, topology);
}

void countTopology(const TopologyRecords &records, VCpuTopology &topology)
{
    topology.osProcessorCount = records.processorCount;
    topology.enumerated = 1;
    try {
        enumerate(records, topology);
    } catch (const EnumerationAbandoned &) {
        topology.error = VCpuTopology::Abandoned;
    } catch (const std::bad_alloc &) {
        topology.error = VCpuTopology::Abandoned;
    }
    if (topology.error != 0) {
        topology.coreCount = 0;
        topology.threadCount = 0;
    }
}
