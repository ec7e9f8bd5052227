#pragma once

#include <cstdint>

/// Compressed sparse rows in the direct solver's form: one-based, columns strictly ascending within a row. Owns its three arrays,
/// which are aligned to 128 bytes and come from the solver layer's allocator. A new record is all zero.
class VSparseMatrix
{
public:
    VSparseMatrix() = default;
    ~VSparseMatrix();
    VSparseMatrix(const VSparseMatrix &) = delete;
    VSparseMatrix &operator=(const VSparseMatrix &) = delete;

    /// Releases the arrays and sets every field to zero.
    void Reset();

    /// Solves A x = b directly, in single precision with iterative refinement. `b` and `x` hold `rowCount` floats each and do not
    /// overlap; the matrix is not changed. Keeps no solver memory, not even after a failure. For the threads it runs on see
    /// mkl.h.
    ///
    /// Throws VException "PARDISO error during symbolic factorization: %1", "... numerical factorization: %1" or "... solution:
    /// %1" with the solver's own code, a negative number (mkl.h).
    void Solve(const float *b, float *x) const;

    bool busy = false;                     ///< Spare: cleared by every reset.
    std::int32_t symmetric = 0;            ///< 1: symmetric; only the upper triangle with the diagonal is stored.
    std::int32_t rowCount = 0;             ///< Order of the system.
    std::int32_t columnCount = 0;          ///< The factory's value; not used.
    std::int32_t nonZeroCount = 0;         ///< Stored cells.
    std::int32_t rowStartCount = 0;        ///< rowCount + 1.
    float *values = nullptr;               ///< nonZeroCount entries.
    std::int32_t *columnIndices = nullptr; ///< nonZeroCount entries, one-based.
    std::int32_t *rowStarts = nullptr;     ///< rowStartCount entries, one-based; the last is nonZeroCount + 1.
};
