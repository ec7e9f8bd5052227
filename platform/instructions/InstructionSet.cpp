#include "InstructionSet.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

InstructionSet largestSet()
{
#ifdef __x86_64__
    __builtin_cpu_init(); // libraries may ask before the compiler's own start-up code ran
    if (__builtin_cpu_supports("avx512f"))
        return InstructionSet::Avx512;
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma"))
        return InstructionSet::Avx2;
#endif
    return InstructionSet::Plain;
}

InstructionSet chooseSet()
{
    const InstructionSet largest = largestSet();
    const char *const wanted = std::getenv("NIMBRA_INSTRUCTION_SET");
    if (!wanted || !*wanted)
        return largest;
    constexpr std::string_view kNames[] = {"plain", "avx2", "avx512f"};
    for (int set = 0; set <= int(largest); ++set) {
        if (wanted == kNames[set])
            return InstructionSet(set);
    }
    std::fprintf(stderr, "NIMBRA_INSTRUCTION_SET: this processor has no \"%s\"\n", wanted);
    return largest;
}

} // namespace

InstructionSet instructionSet()
{
    static const InstructionSet set = chooseSet();
    return set;
}
