#pragma once

#include <cstddef>
#include <cstdint>

/// The solver layer: a sparse direct solver and aligned memory. Safe to call from several threads at once, each with its own
/// arguments.

/// A block of `bytes` bytes at an address that is a multiple of `alignment` (a power of 2); null for 0 bytes and when it can't be
/// had.
void *mklMalloc(std::size_t bytes, int alignment);
/// Releases a block of mklMalloc; null is allowed.
void mklFree(void *block);

/// The codes of `pardiso`, all negative.
enum PardisoError : std::int32_t {
    PardisoBadInput = -1,  ///< Parameters, compressed rows that are not as described, or a phase out of its order.
    PardisoNoMemory = -2,  ///< Not enough memory.
    PardisoSingular = -4,  ///< A pivot is zero, or the matrix is so near to singular that refinement finds no solution.
    PardisoInternal = -5,  ///< The solver underneath failed for another reason.
    PardisoNotFinite = -6, ///< The matrix, the right-hand side or the solution holds a not-a-number or an infinity.
};

/// How many threads, at least 1, `pardiso` may use for a system whose analysis begins on the calling thread after this; 1 on a
/// thread that has not said.
void mklSetTeamSize(int threads);

/// Places in `iparm`, counted from 0. Those of the second group have no effect here.
enum PardisoSetting : std::size_t {
    /// Most steps of iterative refinement, with residuals formed in double. Phase 33 stops earlier when the next correction would
    /// be lost in the rounding of x.
    PardisoRefinementSteps = 7,
    PardisoPivotPerturbation = 9, ///< Pivots are perturbed below 10 to the power of minus this, relative to the scaled matrix.
    /// If negative: set to the entries of the factors, in phase 22 (what exceeds an int reads as the highest one).
    PardisoFactorEntries = 17,
    PardisoSinglePrecision = 27, ///< Must be 1.
    PardisoZeroBased = 34,       ///< Must be 0: indices are one-based.

    PardisoOwnValues = 0,          ///< 1: no defaults.
    PardisoOrdering = 1,           ///< 3: nested dissection in parallel.
    PardisoScaling = 10,           ///< 1: with scaling vectors.
    PardisoMatching = 12,          ///< 1: weighted.
    PardisoFactorisationWork = 18, ///< -1: reported.
    PardisoPivoting = 20,          ///< 1: Bunch-Kaufman.
};

/// Sparse direct solution of A x = b, in phases; every argument by address. Positive definite neighbours on a grid, as an image
/// gives them, are factorised by the team of mklSetTeamSize, with results that don't depend on its size; all else runs on the
/// calling thread, one system of the process at a time.
///
/// `pt` holds 64 pointer-sized words, all zero before phase 11; the layer's own until phase -1. `mtype` is -2 (real symmetric
/// indefinite, upper triangle given) or 11 (real unsymmetric). `phase` is 11 (analysis), 22 (numerical factorisation), 33
/// (solution with refinement; one right-hand side) or -1 (release); the matrix is the same in the first three. `n` is the order,
/// at least 1; `a`, `ia`, `ja` are compressed rows with one-based indices and rising columns, single precision. `b` is read and
/// `x` written in phase 33, n floats each that don't overlap; x is untouched after an error. `maxfct`, `mnum`, `perm` and
/// `msglvl` are taken for their places alone.
///
/// `iparm` holds 64 settings; see PardisoSetting.
///
/// `*error` is 0, or a PardisoError; after an error everything that `pt` stood for is released and `pt` is zero again.
void pardiso(void *pt, const std::int32_t *maxfct, const std::int32_t *mnum, const std::int32_t *mtype, const std::int32_t *phase,
             const std::int32_t *n, const void *a, const std::int32_t *ia, const std::int32_t *ja, std::int32_t *perm,
             const std::int32_t *nrhs, std::int32_t *iparm, const std::int32_t *msglvl, const void *b, void *x,
             std::int32_t *error);
