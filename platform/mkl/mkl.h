#pragma once

#include <cstddef>
#include <cstdint>

/// The solver layer: a sparse direct solver and aligned memory.

/// A block of `bytes` bytes at an address that is a multiple of `alignment` (a power of 2); null for 0 bytes and when it can't be had.
void *mklMalloc(std::size_t bytes, int alignment);
/// Releases a block of mklMalloc; null is allowed.
void mklFree(void *block);

/// Sparse direct solution of A x = b, in phases; every argument by address.
///
/// `pt` holds 64 pointer-sized words, all zero before phase 11; the layer's own until phase -1. `mtype` is -2 (real symmetric
/// indefinite, upper triangle given) or 11 (real unsymmetric). `phase` is 11 (analysis), 22 (numerical factorisation), 33 (solution
/// with refinement; one right-hand side) or -1 (release). `n` is the order; `a`, `ia`, `ja` are compressed rows with one-based
/// indices and rising columns, single precision; `iparm` holds 64 settings (see mkl.cpp for those that count). `b` is read and `x`
/// written in phase 33, n floats each. `maxfct`, `mnum`, `perm` and `msglvl` are taken for their places alone.
///
/// `*error` is 0, or negative; after an error everything that `pt` stood for is released and `pt` is zero again.
void pardiso(void *pt, const std::int32_t *maxfct, const std::int32_t *mnum, const std::int32_t *mtype, const std::int32_t *phase,
             const std::int32_t *n, const void *a, const std::int32_t *ia, const std::int32_t *ja, std::int32_t *perm,
             const std::int32_t *nrhs, std::int32_t *iparm, const std::int32_t *msglvl, const void *b, void *x, std::int32_t *error);
