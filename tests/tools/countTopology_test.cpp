#include "countTopology.h"

#include <string>

#include <gmock/gmock.h>

#include "VCpuTopology.h"

namespace {

using Records = TopologyRecords;

constexpr std::uint32_t kHyperThreading = 1u << 28;

/// A machine whose processors are all available to the process; `apicIds` are in the system's order.
Records machine(const std::vector<std::uint32_t> &apicIds)
{
    Records records;
    records.processorCount = std::uint32_t(apicIds.size());
    records.hasReportedGroups = true;
    for (std::uint32_t first = 0; first < records.processorCount; first += 32) {
        const std::uint32_t count = std::min(records.processorCount - first, 32u);
        const std::uint32_t mask = 0xFFFFFFFFu >> (32 - count);
        records.groups.push_back({count, mask, mask, false});
    }
    records.hasCpuid = true;
    records.highestLeaf = 0xB;
    records.leaf1 = {0, 0, 0, kHyperThreading};
    for (std::uint32_t i = 0; i < records.processorCount; ++i)
        records.processors.push_back({i, 0, apicIds[i]});
    return records;
}

/// Leaf 0xB with the width of the thread field, and that of thread and core fields together.
std::vector<CpuidRegisters> levels(std::uint32_t threadShift, std::uint32_t coreShift)
{
    return {{threadShift, 1, 1 << 8, 0}, {coreShift, 1, 2 << 8 | 1, 0}};
}

Records withLevels(const std::vector<std::uint32_t> &apicIds, std::uint32_t threadShift, std::uint32_t coreShift)
{
    Records records = machine(apicIds);
    records.leafB = levels(threadShift, coreShift);
    return records;
}

/// A processor older than leaf 0xB: leaf 1 reports the logical processors and leaf 4 the cores per package.
Records older(const std::vector<std::uint32_t> &apicIds, std::uint32_t perPackage, std::uint32_t coresPerPackage)
{
    Records records = machine(apicIds);
    records.highestLeaf = 0xA;
    records.leaf1.ebx = perPackage << 16;
    records.leaf4 = {{(coresPerPackage - 1) << 26 | 1 << 5 | 1, 0, 0, 0}};
    return records;
}

std::vector<std::uint32_t> upTo(std::uint32_t count)
{
    std::vector<std::uint32_t> numbers(count);
    for (std::uint32_t i = 0; i < count; ++i)
        numbers[i] = i;
    return numbers;
}

template<typename Change>
Records changed(Records records, Change change)
{
    change(records);
    return records;
}

Records plain(std::uint32_t count, std::uint32_t processMask, std::uint32_t systemMask)
{
    Records records = withLevels(upTo(count), 0, 5);
    records.hasGroups = false;
    records.groups.clear();
    records.hasReportedMasks = true;
    records.processMask = processMask;
    records.systemMask = systemMask;
    return records;
}

struct Case
{
    const char *name;
    Records records;
    std::uint32_t cores;
    std::uint32_t threads;
    std::uint32_t error;
};

using Topology = VCpuTopology;

const Case kCases[] = {
    {"1_core", changed(machine({0}), [](Records &r) { r.leaf1.edx = 0; }), 1, 1, 0},
    {"2_packages_of_1_without_multithreading", changed(machine({0, 1}), [](Records &r) { r.leaf1.edx = 0; }), 2, 2, 0},
    {"2_cores", withLevels({0, 2}, 1, 4), 2, 2, 0},
    {"4_cores_of_2_threads", withLevels(upTo(8), 1, 4), 4, 8, 0},
    {"2_packages_of_2_cores_of_2_threads", withLevels({0, 1, 2, 3, 16, 17, 18, 19}, 1, 4), 4, 8, 0},
    {"unequal_cores", withLevels({0, 1, 8, 9, 16, 18, 20, 22}, 1, 7), 6, 8, 0},
    {"limited_to_1_thread_of_2_cores",
     changed(withLevels({0, 2}, 1, 4),
             [](Records &r) {
                 r.processorCount = 4;
                 r.groups = {{4, 5, 5, false}};
             }),
     2, 2, 0},
    {"only_a_thread_level", changed(withLevels({0, 1, 2, 3}, 1, 1), [](Records &r) { r.leafB.pop_back(); }), 2, 4, 0},
    {"no_leaf_B_4_cores_of_2", older(upTo(8), 8, 4), 4, 8, 0},
    {"no_leaf_B_3_cores_in_fields_of_4", older({0, 1, 2, 8, 9, 10}, 3, 3), 6, 6, 0},
    {"no_leaf_4",
     changed(older(upTo(2), 2, 1),
             [](Records &r) {
                 r.highestLeaf = 2;
                 r.leaf4.clear();
             }),
     1, 2, 0},
    {"33_processors", withLevels(upTo(33), 1, 6), 17, 33, 0},
    {"128_processors", withLevels(upTo(128), 1, 7), 64, 128, 0},
    {"129_processors", withLevels(upTo(129), 1, 8), 0, 0, Topology::TooManyProcessors},
    {"33_processors_without_groups", plain(33, ~0u, ~0u), 0, 0, Topology::TooManyProcessors},
    {"32_processors_without_groups", plain(32, ~0u, ~0u), 32, 32, 0},
    {"plain_process_mask_too_small", plain(4, 7, 15), 0, 0, Topology::MasksDisagree + 3},
    {"plain_system_mask_too_large", plain(2, 3, 7), 0, 0, Topology::SystemCallFailed + 3},
    {"plain_mask_with_a_hole", plain(2, 5, 5), 0, 0, Topology::MasksDisagree | (Topology::MasksDisagree + 0)},
    {"plain_masks_not_reported", changed(plain(2, 3, 3), [](Records &r) { r.hasReportedMasks = false; }), 0, 0,
     Topology::SystemCallFailed},
    {"groups_not_reported", changed(withLevels(upTo(2), 1, 4), [](Records &r) { r.hasReportedGroups = false; }), 0, 0,
     Topology::SystemCallFailed},
    {"group_call_failed", changed(withLevels(upTo(2), 1, 4), [](Records &r) { r.groups[0].failed = true; }), 0, 0,
     Topology::SystemCallFailed},
    {"more_bits_than_processors", changed(withLevels(upTo(2), 1, 4), [](Records &r) { r.groups[0].processMask = 7; }), 0, 0,
     Topology::MasksDisagree},
    {"groups_hold_too_few",
     changed(withLevels(upTo(3), 1, 4),
             [](Records &r) {
                 r.groups[0] = {2, 3, 3, false};
             }),
     0, 0, Topology::MasksDisagree + 2},
    {"no_useful_level",
     changed(withLevels(upTo(2), 1, 4),
             [](Records &r) {
                 r.leafB = {{1, 1, 5 << 8, 0}};
             }),
     0, 0, Topology::Abandoned},
    {"a_thread_could_not_be_bound", changed(withLevels(upTo(2), 1, 4), [](Records &r) { r.processors[1].bindError = 1; }), 0, 0,
     Topology::SystemCallFailed},
    {"no_processor_count", Records(), 0, 0, Topology::SystemCallFailed},
    {"none_reached", changed(withLevels(upTo(2), 1, 4), [](Records &r) { r.processors.clear(); }), 0, 0, Topology::CountFailed},
    {"leaf_0_is_implausible", changed(withLevels(upTo(2), 1, 4), [](Records &r) { r.highestLeaf = 0x756E6547; }), 0, 0,
     Topology::Abandoned},
    {"too_many_caches",
     changed(withLevels(upTo(2), 1, 4),
             [](Records &r) {
                 r.leaf4.assign(9, {1, 0, 0, 0});
             }),
     0, 0, Topology::Abandoned},
    {"no_cpuid_2_cores_of_2",
     changed(machine({0, 0, 0, 0}),
             [](Records &r) {
                 r.hasCpuid = false;
                 r.highestLeaf = 0;
                 r.places = {{0, 0}, {0, 1}, {0, 0}, {0, 1}};
             }),
     2, 4, 0},
    {"binding_forbidden_but_places_reported",
     changed(withLevels(upTo(4), 1, 4),
             [](Records &r) {
                 r.processors = {{0, 1, 0}};
                 r.groups[0].processMask = 7;
                 r.places = {{0, 0}, {0, 0}, {1, 0}, {1, 0}};
             }),
     2, 3, 0},
};

TEST(CountTopology, ReportsTheCountsOrAnError)
{
    for (const Case &machine : kCases) {
        SCOPED_TRACE(machine.name);
        Topology topology;
        countTopology(machine.records, topology);
        EXPECT_EQ(topology.coreCount, machine.cores);
        EXPECT_EQ(topology.threadCount, machine.threads);
        EXPECT_EQ(topology.error, machine.error) << std::hex << topology.error;
        EXPECT_EQ(topology.osProcessorCount, machine.records.processorCount);
        EXPECT_TRUE(topology.enumerated);
    }
}

TEST(CountTopologyTables, HoldThreadsOfCoresAndCaches)
{
    Records records = withLevels({0, 1, 2, 3, 16, 17, 18}, 1, 4);
    // 32 KB: 8 ways, 64 bytes, 64 sets, for 2 threads; 8 MB: 16 ways, for up to 16 threads.
    records.leaf4 = {{1 << 14 | 1 << 5 | 1, 7u << 22 | 63, 63, 0}, {15 << 14 | 3 << 5 | 3, 15u << 22 | 63, 8191, 0}};
    Topology topology;
    countTopology(records, topology);
    ASSERT_EQ(topology.error, 0u);
    EXPECT_EQ(topology.pkgSelectMask, ~15u);
    EXPECT_EQ(topology.coreSelectMask, 14u);
    EXPECT_EQ(topology.smtSelectMask, 1u);
    EXPECT_EQ(topology.perPkg_detectedCoresCount.dim[0], 8u);
    EXPECT_EQ(topology.perPkg_detectedCoresCount.at(0, 1), 2u);
    EXPECT_EQ(topology.perPkg_detectedCoresCount.at(1, 1), 1u);
    ASSERT_EQ(topology.caches.size(), 2u);
    EXPECT_EQ(topology.caches[0].text, "Level 1 Data, size(KBytes)= 32");
    EXPECT_EQ(topology.caches[1].text, "Level 3 Unified, size(KBytes)= 8192");
    EXPECT_EQ(topology.perEachCache_detectedThreadCount.at(3, 0), 1u);
    EXPECT_EQ(topology.perEachCache_detectedThreadCount.at(0, 1), 4u);
    EXPECT_EQ(topology.perEachCache_detectedThreadCount.at(1, 1), 3u);

    records = changed(older(upTo(2), 2, 1), [](Records &r) {
        r.highestLeaf = 2;
        r.leaf4.clear();
    });
    Topology oldest;
    countTopology(records, oldest);
    ASSERT_EQ(oldest.caches.size(), 1u);
    EXPECT_EQ(oldest.caches[0].text, "described by cpuid leaf 2");
    EXPECT_EQ(oldest.perEachCache_detectedThreadCount.at(0, 0), 2u);
}

TEST(CountTopologyTables, ReportIndicesOutOfRange)
{
    const auto printed = [](auto call) {
        testing::internal::CaptureStdout();
        EXPECT_ANY_THROW(call());
        std::fflush(stdout);
        return testing::internal::GetCapturedStdout();
    };
    CountTable table;
    table.allocate(3);
    GenericAffinityMask mask;
    mask.allocate(8);
    const std::string position = R"( at cpuid2\\cpu_topo [0-9]+\. Bye)"
                                 "\n";
    const auto text = [&](const char *start) { return testing::MatchesRegex(start + position); };
    EXPECT_THAT(printed([&] { table.at(3, 0); }), text("got too large 1st dimension 3 which is bigger than 3"));
    EXPECT_THAT(printed([&] { table.at(0, 256); }), text("got too large 2nd dimension 256 which is bigger than 256"));
    EXPECT_THAT(printed([&] { mask.set(8); }), text("Error: Wanted cpu 8 but mask only supports up to 8 cpus"));
    EXPECT_THAT(printed([&] { mask.test(9); }), text("Error: Wanted cpu 9 but mask only supports up to 8 cpus"));
}

} // namespace
