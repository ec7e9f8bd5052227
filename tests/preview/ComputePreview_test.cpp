#include "HandOverLocker.h"
#include "PreviewTest.h"
#include "RemoveHaze.h"

namespace {

const auto *const kEnvironment = testing::AddGlobalTestEnvironment(new TestHostEnvironment);

class Worker : public PreviewTest
{
protected:
    ~Worker() override { delete[] record.transmission; }

    void stage(VImage &image)
    {
        const HandOverLocker locker(worker.mutex);
        worker.source = &image;
        worker.pendingSettings = record;
        worker.target = &record;
    }
    void run(VImage &image)
    {
        stage(image);
        worker.start();
        ASSERT_TRUE(worker.wait(kLimitMs));
    }

    NimbraOne2One process;
    ComputePreview worker{&process, nullptr};
    HazeState record = {};
};

TEST_F(Worker, TheMapOfTheFirstRunServesTheSecond)
{
    const auto image = landscape(40, 30);
    record.strength = 50;
    run(*image);
    float *const map = record.transmission;
    ASSERT_NE(map, nullptr);
    EXPECT_GT(record.airlight[0], 0.0f);

    record.strength = 90;
    run(*image);
    EXPECT_EQ(record.transmission, map);
    VImage expected;
    expected.Assign(*image);
    HazeState again = {90, {}, nullptr};
    RemoveHaze(expected, again);
    delete[] again.transmission;
    EXPECT_EQ(screenImage(worker.work), screenImage(expected)) << "a fresh copy each time";
}

TEST_F(Worker, AStrengthThatChangesDuringTheRunIsKept)
{
    const auto image = landscape(40, 30);
    record = recordWithMap(40, 30);
    record.strength = 50;
    omp_set_lock(&worker.busy);
    stage(*image);
    worker.start();
    record.strength = 70;
    omp_unset_lock(&worker.busy);
    ASSERT_TRUE(worker.wait(kLimitMs));
    EXPECT_EQ(worker.workSettings.strength, 50);
    EXPECT_EQ(record.strength, 70);
}

TEST_F(Worker, AnExceptionEndsTheRunQuietly)
{
    VImage refused(40, 30, VImage::Grey, 8, /*clear=*/true); // the engine throws "Invalid Bitmap"
    record.strength = 50;
    bool finished = false;
    QObject::connect(&worker, &QThread::finished, &process, [&finished] { finished = true; });
    run(refused);
    QCoreApplication::processEvents();
    EXPECT_TRUE(finished);
    EXPECT_EQ(record.transmission, nullptr);
    EXPECT_EQ(screenImage(worker.work), screenImage(refused));
    EXPECT_TRUE(omp_test_lock(&worker.busy));
    omp_unset_lock(&worker.busy);
}

TEST_F(Worker, InputWithdrawnBeforeTheRunBegins)
{
    const auto image = landscape(40, 30);
    record.strength = 50;
    stage(*image);
    worker.source = nullptr;
    worker.start();
    ASSERT_TRUE(worker.wait(kLimitMs));
    EXPECT_EQ(worker.work.Bitmap(), nullptr);
    EXPECT_EQ(record.transmission, nullptr);
}

} // namespace
