#pragma once

#include <cstddef>
#include <cstdint>

/// The solver layer: a sparse direct solver and aligned memory. Safe to call from several threads at once, each with its own
/// arguments.

/// A block of `bytes` bytes at an address that is a multiple of `alignment` (a power of 2); null for 0 bytes and if there is no
/// memory.
void *mklMalloc(std::size_t bytes, int alignment);
/// Releases a block of mklMalloc; null is allowed.
void mklFree(void *block);

/// The codes of `pardiso`, all negative.
enum PardisoError : std::int32_t {
    PardisoBadInput = -1,  ///< Invalid parameters or compressed rows, or a phase out of order.
    PardisoNoMemory = -2,  ///< Not enough memory.
    PardisoSingular = -4,  ///< A zero pivot, or a matrix so close to singular that refinement finds no solution.
    PardisoInternal = -5,  ///< The solver underneath failed for another reason.
    PardisoNotFinite = -6, ///< The matrix, the right-hand side or the solution holds a NaN or an infinity.
};

/// Sets how many threads (at least 1) `pardiso` may use for a system whose analysis the calling thread starts after this call. 1
/// on a thread that never called it.
void mklSetTeamSize(int threads);

/// Gives whole pages to the next analysis that the calling thread starts, which uses them for its factors in place of new ones:
/// the system need not clear those. Their contents don't matter. The layer calls `release`, on any thread, for each part that it
/// no longer needs, and for all that is left at the latest when that system is released.
void mklGiveMemory(void *memory, std::size_t bytes, void (*release)(void *memory, std::size_t bytes));

/// Indices into `iparm`, counted from 0. Those in the second group have no effect here.
enum PardisoSetting : std::size_t {
    /// Maximum number of iterative refinement steps; residuals are computed in double. Phase 33 stops earlier once the next
    /// correction would be lost in the rounding of x.
    PardisoRefinementSteps = 7,
    PardisoPivotPerturbation = 9, ///< Pivots below 10 to the power of minus this (scaled matrix) are perturbed.
    /// If negative, phase 22 sets it to the number of entries in the factors (limited to the largest int).
    PardisoFactorEntries = 17,
    PardisoSinglePrecision = 27, ///< Must be 1.
    PardisoZeroBased = 34,       ///< Must be 0: indices are one-based.

    // Fixed: callers set these, although this solver ignores them; one that heeds them can take its place.
    PardisoOwnValues = 0,          ///< 1: no defaults.
    PardisoOrdering = 1,           ///< 3: nested dissection in parallel.
    PardisoScaling = 10,           ///< 1: with scaling vectors.
    PardisoMatching = 12,          ///< 1: weighted.
    PardisoFactorisationWork = 18, ///< -1: reported.
    PardisoPivoting = 20,          ///< 1: Bunch-Kaufman.
};

/// Sparse direct solution of A x = b in phases; every argument is passed by address. Positive definite systems of neighbours on a
/// grid, as images produce them, are factorised by a team of the size set with mklSetTeamSize, which does not affect the results;
/// all others run on the calling thread, one system of the process at a time.
///
/// `pt` holds 64 pointer-sized words, all zero before phase 11 and owned by the layer until phase -1. `mtype` is -2 (real
/// symmetric indefinite, upper triangle given) or 11 (real unsymmetric). `phase` is 11 (analysis), 22 (numerical factorisation),
/// 33 (solution with refinement; one right-hand side) or -1 (release); the matrix must be the same in the first three. `n` is the
/// order, at least 1; `a`, `ia`, `ja` are compressed rows in single precision with one-based indices and ascending columns. Phase
/// 33 reads `b` and writes `x`, n floats each that don't overlap; x is unchanged after an error. `maxfct`, `mnum`, `perm` and
/// `msglvl` are ignored.
///
/// `iparm` holds 64 settings; see PardisoSetting.
///
/// `*error` is 0 or a PardisoError; after an error everything behind `pt` is released and `pt` is zero again.
void pardiso(void *pt, const std::int32_t *maxfct, const std::int32_t *mnum, const std::int32_t *mtype, const std::int32_t *phase,
             const std::int32_t *n, const void *a, const std::int32_t *ia, const std::int32_t *ja, std::int32_t *perm,
             const std::int32_t *nrhs, std::int32_t *iparm, const std::int32_t *msglvl, const void *b, void *x,
             std::int32_t *error);
