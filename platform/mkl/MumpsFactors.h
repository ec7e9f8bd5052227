#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "SparseRows.h"

/// Factors of any sparse matrix, computed by MUMPS: LDL' with numerical pivoting if it is symmetric, LU if not.
///
/// Every call into the library holds a process-wide lock: neither MUMPS nor the serial OpenBLAS under it may run on two threads
/// at once. Calls return 0 or a PardisoError.
class MumpsFactors
{
public:
    MumpsFactors();
    ~MumpsFactors();
    MumpsFactors(const MumpsFactors &) = delete;
    MumpsFactors &operator=(const MumpsFactors &) = delete;

    /// Ordering and symbolic factorisation.
    [[nodiscard]] std::int32_t analyse(const SparseRows &matrix);
    /// Numerical factorisation of the analysed matrix; pivots of the scaled matrix below `pivotFloor` are set to it.
    [[nodiscard]] std::int32_t factorise(const SparseRows &matrix, float pivotFloor);
    /// Solves in place, without refinement.
    [[nodiscard]] std::int32_t solve(float *rightHandSide);
    /// Number of entries in the factors; valid after factorise.
    std::int64_t entryCount() const;

private:
    struct Library;

    std::unique_ptr<Library> library;
    std::vector<std::int32_t> rows; ///< The row of each cell: the library expects coordinates.
};
