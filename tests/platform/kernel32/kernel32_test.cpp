#include "kernel32.h"

#include <cwchar>
#include <filesystem>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

TEST(Kernel32, ReportsTheSpaceOfAVolume)
{
    std::uint64_t forCaller = 0, total = 0, free = 0;
    ASSERT_TRUE(GetDiskFreeSpaceExW(L"/", &forCaller, &total, &free));
    EXPECT_LE(forCaller, free);
    EXPECT_LE(free, total);
    EXPECT_GT(total, 0u);
    EXPECT_TRUE(GetDiskFreeSpaceExW(L"/", nullptr, nullptr, nullptr));
    for (const wchar_t *path : {L"", L"/no/such/folder", L"/\xD800"}) {
        EXPECT_FALSE(GetDiskFreeSpaceExW(path, &forCaller, &total, &free));
        EXPECT_NE(GetLastError(), 0u);
    }
}

TEST(Kernel32, GroupsAddUpToTheMachine)
{
    const std::uint32_t all = GetMaximumProcessorCount(kAllProcessorGroups);
    ASSERT_GE(all, 1u);
    LogicalProcessorInformation cores{};
    if (GetLogicalProcessorInformationEx(RelationProcessorCore, &cores)) { // some systems don't report it
        EXPECT_EQ(cores.count, all);
    }

    LogicalProcessorInformation groups{};
    ASSERT_TRUE(GetLogicalProcessorInformationEx(RelationGroup, &groups));
    EXPECT_EQ(groups.relation, RelationGroup);
    EXPECT_EQ(groups.count, GetActiveProcessorGroupCount());
    std::uint32_t sum = 0;
    for (std::uint16_t i = 0; i < groups.count; ++i) {
        EXPECT_EQ(groups.groups[i].activeProcessorCount, GetMaximumProcessorCount(i));
        sum += groups.groups[i].activeProcessorCount;
    }
    EXPECT_EQ(sum, all);
    EXPECT_EQ(GetMaximumProcessorCount(std::uint16_t(groups.count)), 0u);
    GroupAffinity beyond{0, std::uint16_t(groups.count)};
    EXPECT_FALSE(GetThreadGroupAffinity(&beyond));
    EXPECT_FALSE(GetLogicalProcessorInformationEx(99, &groups));
    EXPECT_EQ(groups.relation, RelationGroup); // unchanged
}

TEST(Kernel32, BindsOnlyTheCallingThread)
{
    GroupAffinity before{0, 0};
    ASSERT_TRUE(GetProcessGroupAffinity(&before));
    std::uint32_t processMask = 0;
    std::uint32_t systemMask = 0;
    ASSERT_TRUE(GetProcessAffinityMask(&processMask, &systemMask));
    EXPECT_EQ(processMask, before.mask);
    EXPECT_EQ(processMask & systemMask, processMask);
    const std::uint32_t one = before.mask & ~(before.mask - 1); // the lowest bit
    std::thread([&] {
        GroupAffinity own{0, 0};
        EXPECT_TRUE(SetThreadGroupAffinity({one, 0}));
        EXPECT_TRUE(GetThreadGroupAffinity(&own));
        EXPECT_EQ(own.mask, one);
        EXPECT_TRUE(SetThreadAffinityMask(before.mask));
        EXPECT_TRUE(GetThreadGroupAffinity(&own));
        EXPECT_EQ(own.mask, before.mask);
        EXPECT_FALSE(SetThreadAffinityMask(0));
        EXPECT_FALSE(SetThreadGroupAffinity({1, 255}));
        EXPECT_NE(GetLastError(), 0u);
    }).join();
    GroupAffinity after{0, 0};
    ASSERT_TRUE(GetThreadGroupAffinity(&after));
    EXPECT_EQ(after.mask, before.mask);
}

TEST(Kernel32, FindsTheTightestLimitOfAllItsControlGroups)
{
    namespace fs = std::filesystem;
    const struct
    {
        const char *name;
        const char *groups;                                       ///< The process's groups as listed by the system.
        std::vector<std::pair<const char *, const char *>> files; ///< The system's files.
        std::uint32_t processors;
        std::uint64_t bytes; ///< Out of 9000 KB.
    } cases[] = {
        {"none", "0::/\n", {}, 0, 9216000},
        {"unified without a limit",
         "0::/a\n",
         {{"a/cpu.max", "max 100000"}, {"a/memory.max", "max"}, {"a/memory.current", "99"}},
         0,
         9216000},
        {"unified", "0::/a\n", {{"a/cpu.max", "200000 100000"}, {"a/memory.max", "8000"}, {"a/memory.current", "1000"}}, 2, 7000},
        {"rounded up", "0::/a\n", {{"a/cpu.max", "150000 100000"}}, 2, 9216000},
        {"less than one", "0::/\n", {{"cpu.max", "1000 100000"}}, 1, 9216000},
        {"the parent's is tighter",
         "0::/a/b\n",
         {{"a/b/cpu.max", "400000 100000"},
          {"a/cpu.max", "300000 100000"},
          {"a/b/memory.max", "8000"},
          {"a/b/memory.current", "1000"},
          {"a/memory.max", "9000"},
          {"a/memory.current", "5000"}},
         3,
         4000},
        {"its own is tighter",
         "0::/a/b\n",
         {{"a/b/memory.max", "800"}, {"a/b/memory.current", "500"}, {"a/memory.max", "9000"}, {"a/memory.current", "500"}},
         0,
         300},
        {"slowed down sooner",
         "0::/a\n",
         {{"a/memory.max", "9000"}, {"a/memory.high", "6000"}, {"a/memory.current", "5000"}},
         0,
         1000},
        {"over the limit", "0::/a\n", {{"a/memory.high", "6000"}, {"a/memory.current", "7000"}}, 0, 0},
        {"file pages can be reclaimed",
         "0::/a\n",
         {{"a/memory.max", "8000"},
          {"a/memory.current", "7000"},
          {"a/memory.stat", "anon 1\ninactive_file 2000\nactive_file 300\ntotal_active_file 9\n"}},
         0,
         3300},
        {"the path is that of the outside system",
         "0::/outside/x\n",
         {{"cpu.max", "300000 100000"}, {"memory.max", "8000"}, {"memory.current", "0"}},
         3,
         8000},
        {"hybrid", "0::/a\n", {{"unified/a/cpu.max", "300000 100000"}}, 3, 9216000},
        {"older",
         "4:memory:/m/n\n1:cpu,cpuacct:/a\n",
         {{"cpu,cpuacct/a/cpu.cfs_quota_us", "250000"},
          {"cpu,cpuacct/a/cpu.cfs_period_us", "100000"},
          {"memory/m/n/memory.limit_in_bytes", "9223372036854771712"},
          {"memory/m/n/memory.usage_in_bytes", "10"},
          {"memory/m/n/memory.stat", "total_active_file 99999"},
          {"memory/m/memory.limit_in_bytes", "8000"},
          {"memory/m/memory.usage_in_bytes", "7000"},
          {"memory/m/memory.stat", "inactive_file 9\ntotal_inactive_file 500\ntotal_active_file 40\n"}},
         3,
         1540},
        {"older without a limit", "1:cpu:/\n", {{"cpu/cpu.cfs_quota_us", "-1"}, {"cpu/cpu.cfs_period_us", "100000"}}, 0, 9216000},
        {"another controller", "1:cpuset:/a\n", {{"a/cpu.max", "100000 100000"}, {"a/memory.max", "1"}}, 0, 9216000},
        {"broken", "x\n::\n0::/a\n", {{"a/cpu.max", "? 0"}, {"a/memory.max", "?"}, {"a/memory.current", "1"}}, 0, 9216000},
    };
    const fs::path root = fs::path(testing::TempDir()) / ("quota" + std::to_string(getpid()));
    for (const auto &[name, groups, files, processors, bytes] : cases) {
        fs::create_directories(root / "proc/self");
        std::ofstream(root / "proc/self/cgroup") << groups;
        std::ofstream(root / "proc/meminfo") << "MemFree: 5 kB\nMemAvailable:    9000 kB\n";
        for (const auto &[path, content] : files) {
            const fs::path file = root / "sys/fs/cgroup" / path;
            fs::create_directories(file.parent_path());
            std::ofstream(file) << content;
        }
        EXPECT_EQ(GetProcessorQuota(root.c_str()), processors) << name;
        EXPECT_EQ(GetAvailableMemory(root.c_str()), bytes) << name;
        fs::remove_all(root);
    }
    EXPECT_EQ(GetAvailableMemory(root.c_str()), std::uint64_t(2) << 30);
    EXPECT_GT(GetAvailableMemory(), 0u);
}

TEST(Kernel32, ReservedMemoryIsZeroAndCostsNothingUntilTouched)
{
    constexpr std::size_t kBytes = (std::size_t(1) << 36) + 4096; // more than most machines have
    auto *const memory = static_cast<char *>(ReserveMemory(kBytes));
    ASSERT_TRUE(memory);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % (2u << 20), 0u);
    for (const std::size_t place : {std::size_t(0), kBytes / 2, kBytes - 1}) {
        EXPECT_EQ(memory[place], 0);
        memory[place] = 1;
    }
    ReleaseMemory(memory, kBytes);
    EXPECT_FALSE(ReserveMemory(SIZE_MAX - 4095));
    ReleaseMemory(nullptr, 4096);
}

} // namespace
