#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "SparseRows.h"

/// Factors of any sparse matrix by MUMPS: LDL' with numerical pivoting if it is symmetric, LU if not.
///
/// Every call that reaches the library holds one lock of the process: neither MUMPS nor the serial OpenBLAS under it may run on
/// two threads at once. Calls return 0 or a PardisoError.
class MumpsFactors
{
public:
    MumpsFactors();
    ~MumpsFactors();
    MumpsFactors(const MumpsFactors &) = delete;
    MumpsFactors &operator=(const MumpsFactors &) = delete;

    /// Ordering and symbolic factorisation.
    std::int32_t analyse(const SparseRows &matrix);
    /// Numerical factorisation of the matrix that was analysed; pivots below `pivotFloor` are set to it (scaled matrix).
    std::int32_t factorise(const SparseRows &matrix, float pivotFloor);
    /// Solves in place, without refinement.
    std::int32_t solve(float *rightHandSide);
    /// Entries of the factors, after factorise.
    std::int64_t entryCount() const;

private:
    struct Library;

    std::unique_ptr<Library> library;
    std::vector<std::int32_t> rows; ///< The row of each cell: the library takes coordinates.
};
