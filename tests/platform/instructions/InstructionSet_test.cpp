#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "InstructionSet.h"

namespace {

NIMBRA_INLINE int identity(int value)
{
    return value;
}

/// A process of its own, which has not chosen yet: ends with the set that the environment's name makes it choose.
void endWithTheSetFor(const char *name)
{
    if (name)
        setenv("NIMBRA_INSTRUCTION_SET", name, 1);
    else
        unsetenv("NIMBRA_INSTRUCTION_SET");
    std::exit(int(instructionSet()));
}

TEST(InstructionSetDeathTest, NamesThatAreNone)
{
    int largest = -1;
    EXPECT_EXIT(endWithTheSetFor(nullptr), ([&](int status) { return largest = WEXITSTATUS(status), WIFEXITED(status); }), "^$");
    EXPECT_EXIT(endWithTheSetFor(""), testing::ExitedWithCode(largest), "^$");
    EXPECT_EXIT(endWithTheSetFor("AVX2"), testing::ExitedWithCode(largest), "this processor has no \"AVX2\"");
    EXPECT_EXIT(endWithTheSetFor("plain"), testing::ExitedWithCode(0), "^$");
}

// Run once for each set, so that no other test compares a version with itself.
TEST(InstructionSet, IsTheOneThatTheEnvironmentNames)
{
    const char *const name = std::getenv("NIMBRA_INSTRUCTION_SET");
    const auto chosen = versionOf<identity>();
    EXPECT_EQ(chosen(7), 7);
#ifdef __x86_64__
    const struct
    {
        const char *name;
        int (*version)(int);
    } rows[] = {
        {"plain", VersionsOf<identity>::plain}, {"avx2", VersionsOf<identity>::avx2}, {"avx512f", VersionsOf<identity>::avx512}};
    for (const auto &row : rows)
        EXPECT_TRUE(!name || std::string(name) != row.name || chosen == row.version) << row.name;
#else
    EXPECT_FALSE(name);
#endif
}

} // namespace
