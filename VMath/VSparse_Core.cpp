#include <array>
#include <cstdint>

#include "VException.h"
#include "VSparseMatrix.h"
#include "mkl.h"
#include "threadCount.h"

VSparseMatrix::~VSparseMatrix()
{
    Reset();
}

void VSparseMatrix::Reset()
{
    mklFree(values);
    mklFree(columnIndices);
    mklFree(rowStarts);
    busy = false;
    symmetric = 0;
    rowCount = 0;
    columnCount = 0;
    nonZeroCount = 0;
    rowStartCount = 0;
    values = nullptr;
    columnIndices = nullptr;
    rowStarts = nullptr;
}

void VSparseMatrix::Solve(const float *b, float *x) const
{
    std::array<void *, 64> pt = {};
    const std::int32_t maxfct = 1;
    const std::int32_t mnum = 1;
    const std::int32_t mtype = symmetric != 0 ? -2 : 11;
    std::int32_t perm = 0;
    const std::int32_t nrhs = 1;
    const std::int32_t msglvl = 0;
    std::int32_t error = 0;
    float dummy = 0.0f;

    // Fixed: the whole set is requested, so that a solver that heeds all of it can replace ours, which ignores half (see mkl.h).
    std::array<std::int32_t, 64> iparm = {};
    iparm[PardisoOwnValues] = 1;
    iparm[PardisoOrdering] = 3;
    iparm[PardisoRefinementSteps] = 2;
    iparm[PardisoPivotPerturbation] = symmetric != 0 ? 8 : 13;
    iparm[PardisoScaling] = symmetric != 0 ? 1 : 0;
    iparm[PardisoMatching] = symmetric != 0 ? 1 : 0;
    iparm[PardisoFactorEntries] = -1;
    iparm[PardisoFactorisationWork] = -1;
    iparm[PardisoPivoting] = symmetric != 0 ? 1 : 0;
    iparm[PardisoSinglePrecision] = 1;

    const auto call = [&](std::int32_t phase, const void *matrix, const float *rightHandSide, float *solution) {
        pardiso(pt.data(), &maxfct, &mnum, &mtype, &phase, &rowCount, matrix, rowStarts, columnIndices, &perm, &nrhs,
                iparm.data(), &msglvl, rightHandSide, solution, &error);
    };

    mklSetTeamSize(threadCount);
    call(/*phase=*/11, values, &dummy, &dummy);
    if (error != 0)
        throw VException(QStringLiteral("PARDISO error during symbolic factorization: %1").arg(error), V_LOCATION);

    call(/*phase=*/22, values, &dummy, &dummy);
    if (error != 0)
        throw VException(QStringLiteral("PARDISO error during numerical factorization: %1").arg(error), V_LOCATION);

    iparm[PardisoRefinementSteps] = 2;
    call(/*phase=*/33, values, b, x);
    if (error != 0)
        throw VException(QStringLiteral("PARDISO error during solution: %1").arg(error), V_LOCATION);

    // Fixed: only a success gets this far, and the error of the release is ignored. Our solver releases everything with an error.
    call(/*phase=*/-1, &dummy, &dummy, &dummy);
}
