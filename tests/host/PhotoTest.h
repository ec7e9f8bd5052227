#pragma once

#include <gtest/gtest.h>

#include "TestFolder.h"
#include "gfl.h"

/// A folder of photographs, and the codecs that read and write them.
class PhotoTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { gflLibraryInitEx(nullptr, nullptr, nullptr, nullptr); }
    static void TearDownTestSuite() { gflLibraryExit(); }

    TestFolder folder;
};
