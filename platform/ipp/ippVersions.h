#pragma once

/// Compiles a function once per instruction set; the version to use is chosen when the program is loaded. Templates that it calls
/// must be IPP_INLINE, to become part of each version. Contraction is off, so all versions give the same bits.
#if defined(__has_feature)
#    if __has_feature(thread_sanitizer)
#        define IPP_ONE_VERSION // its run-time is not ready yet when the choice is made
#    endif
#endif
#if defined(__x86_64__) && !defined(IPP_ONE_VERSION)
#    define IPP_VERSIONS __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#    define IPP_VERSIONS
#endif
#define IPP_INLINE __attribute__((always_inline)) inline
