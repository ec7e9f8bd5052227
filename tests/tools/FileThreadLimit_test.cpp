#include <thread>

#include <gtest/gtest.h>

#include "FileThreadLimit.h"
#include "threadCount.h"

namespace {

TEST(FileThreadLimit, HoldsForItsThreadAlone)
{
    const std::int32_t before = threadCount;
    threadCount = 2;
    const int most = fileThreadCount(); // 1 where OpenMP has a single processor
    EXPECT_LE(most, 2);
    {
        const FileThreadLimit limit(0);
        EXPECT_EQ(fileThreadCount(), 1);
        std::thread([&] { EXPECT_EQ(fileThreadCount(), most); }).join();
        {
            const FileThreadLimit wider(8);
            EXPECT_EQ(fileThreadCount(), 1);
        }
        EXPECT_EQ(fileThreadCount(), 1);
    }
    EXPECT_EQ(fileThreadCount(), most);
    threadCount = 1;
    EXPECT_EQ(fileThreadCount(), 1);
    threadCount = before;
}

} // namespace
