#include "VCpuTopology.h"

#include <thread>
#include <tuple>

#include <gtest/gtest.h>
#include <omp.h>
#include <sched.h>

#include "countTopology.h"
#include "readTopology.h"
#include "startLibraries.h"
#include "threadCount.h"

namespace {

cpu_set_t ownAffinity()
{
    cpu_set_t set;
    EXPECT_EQ(sched_getaffinity(0, sizeof set, &set), 0);
    return set;
}

/// All processors that the threads of a parallel region may run on.
cpu_set_t regionAffinity(int team)
{
    cpu_set_t all;
    CPU_ZERO(&all);
#pragma omp parallel num_threads(team)
    {
        const cpu_set_t own = ownAffinity();
#pragma omp critical
        CPU_OR(&all, &all, &own);
    }
    return all;
}

class StartedTools : public testing::Test
{
protected:
    ~StartedTools() override { stopTools(); }
};

TEST_F(StartedTools, KeepTheAffinityOfCallerAndWorkers)
{
    const cpu_set_t before = ownAffinity();
    startTools(nullptr);
    const cpu_set_t after = ownAffinity();
    EXPECT_TRUE(CPU_EQUAL(&before, &after));
    EXPECT_EQ(cpuTopology->error, 0u);
    EXPECT_GE(threadCount, 1);
    EXPECT_LE(threadCount, CPU_COUNT(&before));
    EXPECT_EQ(coreCount, physicalCores());
    const cpu_set_t reached = regionAffinity(CPU_COUNT(&before));
    EXPECT_TRUE(CPU_EQUAL(&before, &reached));
}

TEST_F(StartedTools, RespectAProcessLimitedToOneProcessor)
{
    const cpu_set_t before = ownAffinity();
    cpu_set_t one;
    CPU_ZERO(&one);
    for (int i = 0; i < CPU_SETSIZE && CPU_COUNT(&one) == 0; ++i)
        if (CPU_ISSET(i, &before))
            CPU_SET(i, &one);
    ASSERT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
    startTools(nullptr);
    EXPECT_EQ(threadCount, 1);
    EXPECT_EQ(coreCount, 1);
    EXPECT_EQ(sched_setaffinity(0, sizeof before, &before), 0);
}

TEST(VCpuTopology, IsTheSameWithoutProcessorGroupsIfThePlainMasksSuffice)
{
    TopologyRecords groups, plain;
    std::thread([&] { groups = readTopology(); }).join(); // the binding ends with the walk's thread
    std::thread([&] { plain = readTopology(/*withGroups=*/false); }).join();
    ASSERT_FALSE(plain.hasGroups);
    EXPECT_TRUE(plain.hasReportedMasks && plain.groups.empty());
    VCpuTopology first, second;
    countTopology(groups, first);
    countTopology(plain, second);
    if (plain.processorCount > 32) {
        EXPECT_EQ(second.error, VCpuTopology::TooManyProcessors);
    } else if (plain.processMask != plain.systemMask)
        EXPECT_NE(second.error, 0u);
    else
        EXPECT_EQ(std::tie(second.error, second.coreCount, second.threadCount),
                  std::tie(first.error, first.coreCount, first.threadCount));
}

TEST(VCpuTopology, FallsBackOnOpenMp)
{
    VCpuTopology failed;
    failed.enumerated = 1;
    failed.error = VCpuTopology::TooManyProcessors;
    VCpuTopology *record = &failed;
    initTopology(&record);
    EXPECT_EQ(coreCountOfMachine(), 0);
    EXPECT_EQ(logicalCountOfMachine(), 0);
    EXPECT_EQ(physicalCores(), omp_get_max_threads());
    EXPECT_EQ(threadsPerCore(), 1);

    failed.error = 0; // unequal cores: the quotient is truncated
    failed.coreCount = 6;
    failed.threadCount = 8;
    EXPECT_EQ(physicalCores(), 6);
    EXPECT_EQ(threadsPerCore(), 1);
    releaseTopology();
    EXPECT_EQ(physicalCores(), omp_get_max_threads());
}

} // namespace
