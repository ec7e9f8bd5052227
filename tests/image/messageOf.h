#pragma once

#include <gtest/gtest.h>

#include "VException.h"

/// The message that `work` throws, or "no exception". Expects its location to name `source` of the image room.
template<typename Work>
QString messageOf(const Work &work, const char *source = "VImage.cpp")
{
    try {
        work();
    } catch (const VException &failure) {
        EXPECT_TRUE(failure.location.startsWith(QStringLiteral("File: \"../image/%1\" Line: ").arg(source)))
            << qPrintable(failure.location);
        return failure.message;
    }
    return "no exception";
}
