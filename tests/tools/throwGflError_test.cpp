#include "throwGflError.h"

#include <QDir>

#include <gtest/gtest.h>

#include "VException.h"

namespace {

QString messageOf(int code, const QString &fileName)
{
    try {
        throwGflError(code, fileName, "here");
    } catch (const VException &failure) {
        EXPECT_EQ(failure.location, "here");
        return failure.message;
    }
    return "returned";
}

TEST(ThrowGflError, NamesTheCodeAndTheFile)
{
    const std::pair<int, const char *> names[] = {
        {1, "GFL_ERROR_FILE_OPEN"},         {2, "GFL_ERROR_FILE_READ"}, {3, "GFL_ERROR_FILE_CREATE"},
        {4, "GFL_ERROR_FILE_WRITE"},        {5, "GFL_ERROR_NO_MEMORY"}, {6, "GFL_ERROR_UNKNOWN_FORMAT"},
        {7, "GFL_ERROR_BAD_BITMAP"},        {8, "GFL_UNKNOWN_ERROR"},   {9, "GFL_UNKNOWN_ERROR"},
        {10, "GFL_ERROR_BAD_FORMAT_INDEX"}, {11, "GFL_UNKNOWN_ERROR"},  {50, "GFL_ERROR_BAD_PARAMETERS"},
        {51, "GFL_UNKNOWN_ERROR"},          {255, "GFL_UNKNOWN_ERROR"}, {-1, "GFL_UNKNOWN_ERROR"},
    };
    for (const auto &[code, name] : names)
        EXPECT_EQ(messageOf(code, QString()), QString("Error GFL : \"%1\"").arg(name));
    EXPECT_EQ(messageOf(1, "no/such.tif"),
              QString("Error GFL : \"GFL_ERROR_FILE_OPEN\"\nFile : \"%1/no/such.tif\"").arg(QDir::currentPath()));
    EXPECT_EQ(messageOf(0, "any"), "returned");
}

} // namespace
