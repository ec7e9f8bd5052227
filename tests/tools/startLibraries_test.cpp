#include "startLibraries.h"

#include <atomic>
#include <cstdio>
#include <cstdlib>

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
#include "threadCount.h"

namespace {

bool stopsLast = false;

/// Its destructor acts like a host that deletes the plug-in's library object after all static objects are gone: it is constructed
/// before them.
struct MadeFirst
{
    ~MadeFirst()
    {
        if (!stopsLast)
            return;
        stopImageLibrary();
        std::fputs(logInstance || memoryPool || tempManager ? "something is left\n" : "stopped\n", stderr);
    }
};
[[gnu::init_priority(101)]] const MadeFirst madeFirst;

/// What a host lends, with numbers that this machine would not give.
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

/// Size in bytes of a uniform picture saved as TIFF with LZW.
qint64 savedBytes()
{
    const QTemporaryDir folder;
    const QByteArray file = QFile::encodeName(folder.filePath("a.tif"));
    unsigned char pixels[100 * 100] = {};
    GflBitmap bitmap = {};
    bitmap.type = 0x0002;
    bitmap.width = bitmap.height = 100;
    bitmap.bytesPerLine = 100;
    bitmap.bitsPerComponent = 8;
    bitmap.componentsPerPixel = bitmap.bytesPerPixel = 1;
    bitmap.data = pixels;
    GflSaveParams params;
    gflGetDefaultSaveParams(&params);
    params.formatIndex = gflGetFormatIndexByName("tiff");
    params.compression = 2;
    EXPECT_EQ(gflSaveBitmapUTF8(file.constData(), &bitmap, &params), GFL_NO_ERROR);
    GflLoadParams load;
    gflGetDefaultLoadParams(&load);
    GflBitmap *read = nullptr;
    EXPECT_EQ(gflLoadBitmapUTF8(file.constData(), &read, &load, nullptr), GFL_NO_ERROR);
    gflFreeBitmap(read);
    return QFile(QFile::decodeName(file)).size();
}

class StartLibraries : public testing::Test
{
protected:
    void SetUp() override
    {
        gflEnableLZW(0);
        kmp_set_blocktime(200);
        omp_set_schedule(omp_sched_static, 1);
    }
    void TearDown() override
    {
        stopImageLibrary();
        gflEnableLZW(1);
    }
    /// Expects the OpenMP run-time and the codec layer as a start alone sets them, or as SetUp left them.
    static void expectRunTime(bool set)
    {
        omp_sched_t kind{};
        int chunk = 0;
        omp_get_schedule(&kind, &chunk);
        EXPECT_EQ(kind & ~omp_sched_monotonic, set ? omp_sched_guided : omp_sched_static);
        EXPECT_EQ(chunk, set ? 10 : 1);
        EXPECT_EQ(kmp_get_blocktime(), set ? 0 : 200);
        EXPECT_EQ(savedBytes() < 100 * 100, set);
    }
    static bool nothingIsLeft()
    {
        return !logInstance && !cpuTopology && !memoryPool && !tempManager && !imageSettings && !imageContext.tools &&
               !imageContext.cacheRegistry && !toolsContext.log;
    }
};

TEST_F(StartLibraries, AloneMakesEverythingOnce)
{
    for (int round = 0; round < 2; ++round) { // the second round is a start after a stop
        threadCount = coreCount = 0;
        startImageLibrary(nullptr);
        const VToolsContext made = toolsContext;
        startImageLibrary(nullptr);
        startTools(nullptr);
        EXPECT_EQ(toolsContext.log, made.log);
        EXPECT_EQ(toolsContext.pool, made.pool);
        EXPECT_EQ(toolsContext.sharedValue, made.sharedValue);

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
        EXPECT_GE(threadCount, 1);
        EXPECT_EQ(coreCount, physicalCores());
        expectRunTime(/*set=*/true);
        EXPECT_TRUE(QFile::exists("Data:cameras.txt"));
        EXPECT_TRUE(QFile::exists("Data:lensid.txt"));

        stopImageLibrary();
        EXPECT_TRUE(nothingIsLeft());
        stopImageLibrary();
    }
}

TEST_F(StartLibraries, WithAHostTakesWhatIsLentAndReleasesNothing)
{
    static std::atomic<int> blocks; // of the codec layer, which the host has started with its own heap
    const auto take = [](std::size_t bytes, void *) { return ++blocks, std::malloc(bytes); };
    const auto again = [](void *block, std::size_t bytes, void *) { return std::realloc(block, bytes); };
    const auto giveBack = [](void *block, void *) { std::free(block); };
    ASSERT_EQ(gflLibraryInitEx(take, again, giveBack, nullptr), GFL_NO_ERROR);
    gflEnableLZW(0);
    Host host;
    for (int round = 0; round < 2; ++round) {
        startImageLibrary(&host.image);
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
    host.threads = 5; // another start uses what is lent then, and only then
    EXPECT_EQ(threadCount, 77);
    startImageLibrary(&host.image);
    EXPECT_EQ(threadCount, 5);
    expectRunTime(/*set=*/false);
    stopImageLibrary();
    EXPECT_TRUE(nothingIsLeft());
    EXPECT_FALSE(host.machine.enumerated);
    blocks = 0;
    expectRunTime(/*set=*/false); // the codec layer is still running
    EXPECT_GT(blocks, 0);
    gflLibraryExit();

    startImageLibrary(nullptr); // alone after a host: it makes its own objects
    EXPECT_TRUE(toolsContext.log && toolsContext.pool && toolsContext.tempManager && imageSettings);
    EXPECT_NE(toolsContext.pool, &host.pool);
    expectRunTime(/*set=*/true);
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
        EXPECT_EQ(toolsContext.log, &host.log);
        stopImageLibrary();
    }
    host.image.tools = nullptr; // no tools at all: these are started and stopped as if alone, and the codecs remain the host's
    startImageLibrary(&host.image);
    EXPECT_TRUE(toolsContext.log && toolsContext.log != &host.log);
    EXPECT_EQ(kmp_get_blocktime(), 0);
    EXPECT_GT(savedBytes(), 100 * 100);
    stopImageLibrary();
    EXPECT_TRUE(nothingIsLeft());
}

TEST(StartLibrariesDeathTest, StopAfterAllStaticObjectsAreGone)
{
    const QTemporaryDir root;
    ASSERT_TRUE(QDir(root.path()).mkdir("empty"));
    const auto end = [&] {
        startImageLibrary(nullptr);
        tempManager->folders.push_back(new VTempFolder{root.filePath("empty")});
        stopsLast = true;
        std::exit(0);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "^stopped\n");
    EXPECT_EQ(QDir(root.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList()) << "the folders are swept";
}

TEST(StartInterfaceLibrary, SetsTheSearchPathOnlyAlone)
{
    Host host;
    startInterfaceLibrary(&host.interface);
    EXPECT_EQ(interfaceContext.flag, &host.flag);
    EXPECT_THAT(QDir::searchPaths("UI"), testing::IsEmpty());
    for (int round = 0; round < 2; ++round) {
        startInterfaceLibrary(nullptr);
        EXPECT_EQ(*interfaceContext.flag, 1);
        EXPECT_EQ(QDir::searchPaths("UI"), QStringList(":/UI"));
    }
}

} // namespace
