#include "startLibraries.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <omp.h>

#include "VCpuTopology.h"
#include "VImageCacheRegistry.h"
#include "VImageSettings.h"
#include "VLog.h"
#include "VPoolMem.h"
#include "VTempManager.h"
#include "gfl.h"
#include "gflCallbacks.h"
#include "threadCount.h"

namespace {

using Calls = std::vector<std::string>;
using testing::ElementsAre;
using testing::IsEmpty;

Calls &calls = *new Calls; // noted until the process ends

Calls takeCalls()
{
    return std::exchange(calls, {});
}

} // namespace

// The linker leads the calls of the start routines through here (--wrap); each is noted and then done.
#define LOGGED(result, name, symbol, parameters, arguments)                                                                      \
    result __real_##symbol parameters;                                                                                           \
    result __wrap_##symbol parameters;                                                                                           \
    result __wrap_##symbol parameters                                                                                            \
    {                                                                                                                            \
        calls.push_back(name);                                                                                                   \
        return __real_##symbol arguments;                                                                                        \
    }

extern "C" {
LOGGED(void, std::string("log ") + (log ? "lent" : "own"), _Z7initLogP4VLog, (VLog * log), (log))
LOGGED(void, std::string("topology ") + (lent ? "lent" : "own"), _Z12initTopologyPP12VCpuTopology, (VCpuTopology * *lent), (lent))
LOGGED(void, std::string("pool ") + (pool ? "lent" : "own"), _Z8initPoolP8VPoolMem, (VPoolMem * pool), (pool))
LOGGED(void, std::string("folders ") + (lent ? "lent" : "own"), _Z15initTempManagerP12VTempManager, (VTempManager * lent), (lent))
LOGGED(void, "release pool", _Z11releasePoolv, (), ())
LOGGED(void, "release folders", _Z18releaseTempManagerv, (), ())
LOGGED(void, "release topology", _Z15releaseTopologyv, (), ())
LOGGED(void, "release log", _Z10releaseLogv, (), ())
LOGGED(int, "cores", _Z13physicalCoresv, (), ())
LOGGED(int, "threads", _Z14threadsPerCorev, (), ())
LOGGED(void, "image resources", _Z22registerImageResourcesv, (), ())
LOGGED(void, "tools resources", _Z22registerToolsResourcesv, (), ())
LOGGED(void, "interface resources", _Z26registerInterfaceResourcesv, (), ())
LOGGED(int, "ipp", _Z7ippInitv, (), ())
LOGGED(void, "lzw " + std::to_string(enable), _Z12gflEnableLZWi, (int enable), (enable))
LOGGED(void, "gfl exit", _Z14gflLibraryExitv, (), ())
LOGGED(void, "blocktime " + std::to_string(time), kmp_set_blocktime, (int time), (time))
LOGGED(void, "schedule " + std::to_string(kind) + " " + std::to_string(chunk), omp_set_schedule, (omp_sched_t kind, int chunk),
       (kind, chunk))
LOGGED(int, "omp", omp_get_max_threads, (), ())

int __real__Z16gflLibraryInitExPFPvmS_EPFS_S_mS_EPFvS_S_ES_(GflAllocCallback, GflReallocCallback, GflFreeCallback, void *);
int __wrap__Z16gflLibraryInitExPFPvmS_EPFS_S_mS_EPFvS_S_ES_(GflAllocCallback, GflReallocCallback, GflFreeCallback, void *);
int __wrap__Z16gflLibraryInitExPFPvmS_EPFS_S_mS_EPFvS_S_ES_(GflAllocCallback alloc, GflReallocCallback realloc,
                                                            GflFreeCallback free, void *user)
{
    const bool oneHeap = alloc == gflAllocCallback && realloc == gflReallocCallback && free == gflFreeCallback && !user;
    calls.push_back(oneHeap ? "gfl" : "gfl on another heap");
    return __real__Z16gflLibraryInitExPFPvmS_EPFS_S_mS_EPFvS_S_ES_(alloc, realloc, free, user);
}
}

namespace {

const Calls kStartAlone = {"image resources", "ipp",      "tools resources", "log own", "topology own",
                           "blocktime 0",     "omp",      "schedule 3 10",   "cores",   "threads",
                           "cores",           "pool own", "folders own",     "gfl",     "lzw 1"};
const Calls kStopAlone = {"release pool", "release folders", "release topology", "release log", "gfl exit"};
const Calls kStartLent = {"image resources", "ipp", "tools resources", "log lent", "topology lent", "pool lent", "folders lent"};

bool stopsLast = false;

/// Its destructor stands for whoever deletes the plug-in's library object after the end of all static objects: it is made before
/// them.
struct MadeFirst
{
    ~MadeFirst()
    {
        if (!stopsLast)
            return;
        stopImageLibrary();
        for (const std::string &call : calls)
            std::fprintf(stderr, "%s\n", call.c_str());
    }
};
[[gnu::init_priority(101)]] const MadeFirst madeFirst;

/// What a host lends; its own numbers are none that this machine would give.
struct Host
{
    VLog log;
    VCpuTopology machine;
    VCpuTopology *topology = &machine;
    VPoolMem pool;
    VTempManager folders;
    std::int32_t value = 7;
    std::int32_t threads = 77;
    std::int32_t cores = 33;
    VImageCacheRegistry registry;
    VImageSettings settings;
    std::uint8_t flag = 1;
    VToolsContext tools{&log, &topology, &pool, &folders, &value, &threads, &cores};
    VImageContext image{&tools, &registry, &settings};
    VUIContext interface {
        &flag
    };
};

class StartLibraries : public testing::Test
{
protected:
    void SetUp() override { takeCalls(); }
    void TearDown() override { stopImageLibrary(); }
};

TEST_F(StartLibraries, AloneMakesEverythingOnceAndTakesItDownInOrder)
{
    for (int round = 0; round < 2; ++round) { // the second round: a start after a stop
        startImageLibrary(nullptr);
        EXPECT_EQ(takeCalls(), kStartAlone);
        startImageLibrary(nullptr);
        startTools(nullptr);
        EXPECT_THAT(takeCalls(), IsEmpty());

        EXPECT_EQ(imageContext.tools, &toolsContext);
        ASSERT_TRUE(imageContext.settings);
        EXPECT_EQ(imageContext.settings, imageSettings);
        EXPECT_EQ(imageContext.settings->sidecarExtensions, QStringList(".THM"));
        ASSERT_TRUE(imageContext.cacheRegistry);
        EXPECT_EQ(imageContext.cacheRegistry->intB, 256);
        EXPECT_EQ(toolsContext.log, logInstance);
        EXPECT_EQ(*toolsContext.topology, cpuTopology);
        EXPECT_EQ(toolsContext.pool, memoryPool);
        EXPECT_EQ(toolsContext.tempManager, tempManager);
        ASSERT_TRUE(toolsContext.sharedValue);
        EXPECT_EQ(*toolsContext.sharedValue, 0);
        EXPECT_EQ(toolsContext.threadCount, &threadCount);
        EXPECT_EQ(toolsContext.coreCount, &coreCount);
        omp_sched_t kind{};
        int chunk = 0;
        omp_get_schedule(&kind, &chunk);
        EXPECT_EQ(chunk, 10);

        stopImageLibrary();
        EXPECT_EQ(takeCalls(), kStopAlone);
        stopImageLibrary();
        EXPECT_THAT(takeCalls(), IsEmpty());
        EXPECT_FALSE(logInstance || cpuTopology || memoryPool || tempManager || imageSettings);
    }
}

TEST_F(StartLibraries, WithAHostTakesWhatIsLentAndReleasesNothing)
{
    Host host;
    for (int round = 0; round < 2; ++round) {
        startImageLibrary(&host.image);
        EXPECT_EQ(takeCalls(), kStartLent);
        EXPECT_EQ(toolsContext.log, &host.log);
        EXPECT_EQ(*toolsContext.topology, &host.machine);
        EXPECT_EQ(toolsContext.pool, &host.pool);
        EXPECT_EQ(toolsContext.tempManager, &host.folders);
        EXPECT_EQ(toolsContext.sharedValue, &host.value);
        EXPECT_EQ(threadCount, 77);
        EXPECT_EQ(coreCount, 33);
        EXPECT_EQ(imageSettings, &host.settings);
        EXPECT_EQ(imageContext.cacheRegistry, &host.registry);
    }
    host.threads = 5; // the flag stays clear: a start again takes what is lent then, and only then
    EXPECT_EQ(threadCount, 77);
    startImageLibrary(&host.image);
    EXPECT_EQ(threadCount, 5);
    takeCalls();
    stopImageLibrary();
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_FALSE(host.machine.enumerated);
    EXPECT_FALSE(imageSettings || memoryPool);
}

TEST_F(StartLibraries, AloneAfterAHostMakesItsOwn)
{
    {
        Host host;
        startImageLibrary(&host.image);
        stopImageLibrary();
    }
    takeCalls();
    startImageLibrary(nullptr);
    EXPECT_EQ(takeCalls(), kStartAlone);
    EXPECT_TRUE(toolsContext.pool && toolsContext.tempManager);
}

TEST_F(StartLibraries, MakesWhatAHostDoesNotLend)
{
    Host host;
    host.tools.pool = nullptr;
    host.tools.tempManager = nullptr;
    host.image.cacheRegistry = nullptr;
    for (int round = 0; round < 2; ++round) {
        startImageLibrary(&host.image);
        EXPECT_TRUE(toolsContext.pool && toolsContext.tempManager && imageContext.cacheRegistry);
        stopImageLibrary();
    }
    host.image.tools = nullptr; // no tools at all: they are started and stopped as alone, and the codecs stay the host's
    takeCalls();
    startImageLibrary(&host.image);
    EXPECT_THAT(takeCalls(), testing::AllOf(testing::Contains("schedule 3 10"), testing::Not(testing::Contains("gfl"))));
    stopImageLibrary();
    EXPECT_THAT(takeCalls(), ElementsAre("release pool", "release folders", "release topology", "release log"));
}

TEST(StartLibrariesDeathTest, StopAfterTheEndOfEveryStaticObject)
{
    const QTemporaryDir root;
    ASSERT_TRUE(QDir(root.path()).mkdir("empty"));
    const auto end = [&] {
        startImageLibrary(nullptr);
        tempManager->folders.push_back(new VTempFolder{root.filePath("empty")});
        takeCalls();
        stopsLast = true;
        std::exit(0);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "^release pool\nrelease folders\nrelease topology\nrelease log\ngfl exit\n");
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList()) << "the folders are swept";
}

TEST(StartInterfaceLibrary, SetsTheSearchPathOnlyAlone)
{
    Host host;
    takeCalls();
    startInterfaceLibrary(&host.interface);
    EXPECT_EQ(interfaceContext.flag, &host.flag);
    EXPECT_THAT(takeCalls(), IsEmpty());
    EXPECT_THAT(QDir::searchPaths("UI"), IsEmpty());
    for (int round = 0; round < 2; ++round) {
        startInterfaceLibrary(nullptr);
        EXPECT_EQ(takeCalls(), round == 0 ? Calls{"interface resources"} : Calls{});
        EXPECT_EQ(*interfaceContext.flag, 1);
        EXPECT_EQ(QDir::searchPaths("UI"), QStringList(":/UI"));
    }
}

TEST_F(StartLibraries, TheTablesAreReachedBySearchPath)
{
    startImageLibrary(nullptr);
    EXPECT_TRUE(QFile::exists("Data:cameras.txt"));
    EXPECT_TRUE(QFile::exists("Data:lensid.txt"));
}

} // namespace
