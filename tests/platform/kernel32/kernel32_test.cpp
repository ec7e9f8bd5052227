#include "kernel32.h"

#include <cwchar>
#include <filesystem>
#include <fstream>
#include <thread>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

TEST(Kernel32, TellsTheSpaceOfAVolume)
{
    std::uint64_t forCaller = 0;
    std::uint64_t total = 0;
    std::uint64_t free = 0;
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

TEST(Kernel32, CountsTicksForward)
{
    std::int64_t first = 0;
    std::int64_t second = 0;
    std::int64_t frequency = 0;
    ASSERT_TRUE(QueryPerformanceCounter(&first) && QueryPerformanceCounter(&second) && QueryPerformanceFrequency(&frequency));
    EXPECT_LE(first, second);
    EXPECT_GT(frequency, 0);
}

TEST(Kernel32, GroupsAddUpToTheMachine)
{
    const std::uint32_t all = GetMaximumProcessorCount(kAllProcessorGroups);
    ASSERT_GE(all, 1u);
    SystemInfo information{};
    GetSystemInfo(&information);
    EXPECT_EQ(information.numberOfProcessors, all);

    LogicalProcessorInformation cores{};
    if (GetLogicalProcessorInformationEx(RelationProcessorCore, &cores)) { // some systems don't tell
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
    EXPECT_EQ(GetMaximumProcessorCount(static_cast<std::uint16_t>(groups.count)), 0u);
    GroupAffinity beyond{0, static_cast<std::uint16_t>(groups.count)};
    EXPECT_FALSE(GetThreadGroupAffinity(&beyond));
    EXPECT_FALSE(GetLogicalProcessorInformationEx(99, &groups));
    EXPECT_EQ(groups.relation, RelationGroup); // as it was
}

TEST(Kernel32, BindsTheCallingThreadAlone)
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

TEST(Kernel32, FindsTheTightestQuota)
{
    namespace fs = std::filesystem;
    const struct
    {
        const char *name;
        const char *groups;                                       ///< What the system lists for the process.
        std::vector<std::pair<const char *, const char *>> files; ///< What it keeps.
        std::uint32_t quota;
    } cases[] = {
        {"none", "0::/\n", {}, 0},
        {"unified without a limit", "0::/a\n", {{"a/cpu.max", "max 100000"}}, 0},
        {"unified", "0::/a\n", {{"a/cpu.max", "200000 100000"}}, 2},
        {"rounded up", "0::/a\n", {{"a/cpu.max", "150000 100000"}}, 2},
        {"less than one", "0::/\n", {{"cpu.max", "1000 100000"}}, 1},
        {"a parent's is tighter", "0::/a/b\n", {{"a/b/cpu.max", "400000 100000"}, {"a/cpu.max", "300000 100000"}}, 3},
        {"the path is one of the outside", "0::/outside/x\n", {{"cpu.max", "300000 100000"}}, 3},
        {"hybrid", "0::/a\n", {{"unified/a/cpu.max", "300000 100000"}}, 3},
        {"older",
         "4:memory:/\n1:cpu,cpuacct:/a\n",
         {{"cpu,cpuacct/a/cpu.cfs_quota_us", "250000"}, {"cpu,cpuacct/a/cpu.cfs_period_us", "100000"}},
         3},
        {"older without a limit", "1:cpu:/\n", {{"cpu/cpu.cfs_quota_us", "-1"}, {"cpu/cpu.cfs_period_us", "100000"}}, 0},
        {"another controller", "1:cpuset:/a\n", {{"a/cpu.max", "100000 100000"}}, 0},
        {"broken", "x\n::\n0::/a\n", {{"a/cpu.max", "? 0"}}, 0},
    };
    const fs::path root = fs::path(testing::TempDir()) / ("quota" + std::to_string(getpid()));
    for (const auto &[name, groups, files, quota] : cases) {
        fs::create_directories(root);
        std::ofstream(root / "groups") << groups;
        for (const auto &[path, content] : files) {
            fs::create_directories((root / "tree" / path).parent_path());
            std::ofstream(root / "tree" / path) << content;
        }
        EXPECT_EQ(GetProcessorQuota((root / "groups").c_str(), (root / "tree").c_str()), quota) << name;
        fs::remove_all(root);
    }
}

TEST(Kernel32, reserved_memory_is_zero_up_to_its_last_byte_and_costs_nothing_untouched)
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
