#include <thread>

#include <QPointer>
#include <QThread>

#include <gtest/gtest.h>

#include "VLog.h"
#include "VPoolMem.h"
#include "VTimers.h"

namespace {

TEST(VLog, IsDeletedOnlyByItsMaker)
{
    initLog(nullptr);
    const QPointer<VLog> own = logInstance;
    releaseLog();
    EXPECT_TRUE(own.isNull());
    VLog lent;
    initLog(&lent);
    releaseLog();
    EXPECT_EQ(logInstance, nullptr);
}

TEST(VPoolMem, FreesItsBlocksAndDropsTheFreeList)
{
    releasePool();
    initPool(nullptr);
    VPoolMem *const pool = memoryPool;
    pool->blockCount = 64;
    pool->blocks = new VPoolMemBloc[64]; // the sanitizer finds a leak or a double release
    for (int i = 0; i < pool->blockCount; ++i)
        pool->blocks[i].memory = new unsigned char[16];
    const auto fill = [pool](int first) {
        for (int i = first; i < 64; i += 2)
            pool->freeBlocks.push(&pool->blocks[i]);
    };
    std::thread other(fill, 1);
    fill(0);
    VPoolMemBloc *taken = nullptr;
    EXPECT_TRUE(pool->freeBlocks.try_pop(taken));
    other.join();
    releasePool();
    EXPECT_EQ(memoryPool, nullptr);

    VPoolMem lent;
    initPool(&lent);
    releasePool();
    EXPECT_EQ(lent.blockCount, 0);
}

TEST(VTimers, AreCalibratedAtLoad)
{
    // The counter counts nanoseconds, which the fixed correction reduces slightly. The tolerance allows for a busy machine;
    // interrupted samples are left out of the mean.
    EXPECT_NEAR(double(vTimers.ticksPerSecond), 1e9 / 1.002284, 2e7);
    EXPECT_GE(vTimers.overheadTicks, 124524475 - 1);
    EXPECT_LT(vTimers.overheadTicks, 124524475 + 1000000);
    EXPECT_EQ(VTimers().ticksPerSecond, 0);
}

TEST(VTimers, KeepOneStopwatchPerNameAndThread)
{
    VTimers timers;
    EXPECT_EQ(timers.stop("never"), 0);
    EXPECT_TRUE(timers.timers.empty());
    timers.start("a");
    std::thread([&] {
        EXPECT_EQ(timers.stop("a"), 0);
        timers.start("a");
    }).join();
    EXPECT_EQ(timers.timers.size(), 2u);
    timers.start("a");
    const QString key = QStringLiteral("a@%1").arg(reinterpret_cast<quintptr>(QThread::currentThread()));
    decltype(timers.timers)::const_accessor record;
    ASSERT_TRUE(timers.timers.find(record, key));
    const qint64 secondStart = record->second.startTick;
    record.release();
    const qint64 elapsed = timers.stop("a");
    ASSERT_TRUE(timers.timers.find(record, key));
    EXPECT_EQ(record->second.stopTick - secondStart, elapsed);
    EXPECT_EQ(record->second.count, 1);
    EXPECT_EQ(record->second.total, elapsed);
}

TEST(VTimers, ServeManyThreadsAtOnce)
{
    VTimers timers;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 200; ++round) {
                timers.start(QString::number(round % 8));
                timers.stop(QString::number(round % 8));
            }
            decltype(timers.timers)::const_accessor record;
            EXPECT_TRUE(
                timers.timers.find(record, QStringLiteral("7@%1").arg(reinterpret_cast<quintptr>(QThread::currentThread()))));
            EXPECT_EQ(record->second.count % 25, 0); // a later thread may reuse the address of one that has ended
        });
    for (std::thread &thread : threads)
        thread.join();
}

} // namespace
