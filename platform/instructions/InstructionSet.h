#pragma once

/// The instruction sets that hot loops are compiled for, each one including those before it.
enum class InstructionSet {
    Plain, ///< What every processor of this kind has.
    Avx2,  ///< With fused multiply-add.
    Avx512 ///< Its foundation, F.
};

/// The set that all hot loops of the process run with: the largest one that the processor has. The environment's
/// NIMBRA_INSTRUCTION_SET (plain, avx2 or avx512f) chooses another; if the processor lacks it or there is no such set, a line on
/// standard error says so, and the largest one is used. Decided at the first call. Any thread.
InstructionSet instructionSet();

#ifdef __x86_64__
#    define NIMBRA_AVX2 __attribute__((target("avx2,fma")))
#    define NIMBRA_AVX512 __attribute__((target("avx512f")))
#endif
/// For what a hot loop's body calls, and for the body: it becomes part of the version for each set.
#define NIMBRA_INLINE __attribute__((always_inline)) inline
/// Before a loop that look-ups in tables bound: not a vector of them, but eight at a time.
#ifdef __clang__
#    define NIMBRA_SCALAR_LOOP _Pragma("clang loop vectorize(disable) unroll_count(8)")
#else
#    define NIMBRA_SCALAR_LOOP _Pragma("GCC unroll 8")
#endif

template<auto body>
struct VersionsOf;

/// A function compiled once for each set. Contraction is off where the versions must give the same bits.
template<typename Result, typename... Parameters, Result (*body)(Parameters...)>
struct VersionsOf<body>
{
    static Result plain(Parameters... parameters) { return body(parameters...); }
#ifdef __x86_64__
    NIMBRA_AVX2 static Result avx2(Parameters... parameters)
    {
        return body(parameters...);
    }
    NIMBRA_AVX512 static Result avx512(Parameters... parameters)
    {
        return body(parameters...);
    }
#endif
};

/// The version of `body`, which is NIMBRA_INLINE, for this process.
template<auto body>
auto versionOf()
{
#ifdef __x86_64__
    switch (instructionSet()) {
    case InstructionSet::Avx512:
        return &VersionsOf<body>::avx512;
    case InstructionSet::Avx2:
        return &VersionsOf<body>::avx2;
    case InstructionSet::Plain:
        break;
    }
#endif
    return &VersionsOf<body>::plain;
}
