#include "mkl.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include <sys/mman.h>

#include "GivenMemory.h"
#include "MultifrontalFactors.h"
#include "MumpsFactors.h"
#include "SparseRows.h"

namespace {

constexpr std::size_t kHugePage = std::size_t(2) << 20;
constexpr std::size_t kLargeBlock = 16 * kHugePage;

} // namespace

void *mklMalloc(std::size_t bytes, int alignment)
{
    if (bytes == 0 || alignment <= 0)
        return nullptr;
    void *block = nullptr;
    const std::size_t least = std::max(std::size_t(alignment), sizeof(void *));
    const bool large = bytes >= kLargeBlock;
    if (posix_memalign(&block, large ? std::max(least, kHugePage) : least, bytes) != 0)
        return nullptr;
    if (large)
        madvise(block, bytes, MADV_HUGEPAGE); // a hint: without huge pages it is only slower
    return block;
}

void mklFree(void *block)
{
    std::free(block);
}

namespace {

enum Phase : std::int32_t { Analysis = 11, Factorisation = 22, Solution = 33, Release = -1 };
enum MatrixType : std::int32_t { SymmetricIndefinite = -2, Unsymmetric = 11 };

thread_local int teamSize = 1;
/// For this thread's next analysis. A pointer, since an object with a destructor would keep the plug-in loaded until the thread
/// ends.
thread_local GivenMemory *givenMemory = nullptr;

// Each refinement step shrinks the error by about the same factor, which the first correction relative to the solution shows. If
// that is below 2^-13, the remaining error is at most 2^-26 of the solution, and the next step would be lost in rounding to
// float.
constexpr double kConverged = 1.0 / 8192;
// The largest residual, relative to the right-hand side, that is accepted once the steps are used up. In a system that single
// precision can factorise at all it is far smaller by then; in a perturbed singular one hardly any of it has gone.
constexpr double kSolved = 1e-3;

/// What `pt` points to between the phases: the quick factors while they work, otherwise the library's.
struct Handle
{
    std::unique_ptr<MultifrontalFactors> quick;
    MumpsFactors library;
    bool factorised = false;

    [[nodiscard]] std::int32_t analyse(const SparseRows &matrix, GivenMemory given)
    {
        if (matrix.symmetric) {
            quick = std::make_unique<MultifrontalFactors>(teamSize, std::move(given));
            if (quick->analyse(matrix))
                return 0;
            quick.reset();
        }
        return library.analyse(matrix);
    }

    [[nodiscard]] std::int32_t factorise(const SparseRows &matrix, float pivotFloor)
    {
        if (quick) {
            if (quick->factorise(matrix))
                return 0;
            quick.reset();
            if (const std::int32_t code = library.analyse(matrix))
                return code;
        }
        return library.factorise(matrix, pivotFloor);
    }

    [[nodiscard]] std::int32_t solve(float *rightHandSide)
    {
        if (!quick)
            return library.solve(rightHandSide);
        quick->solve(rightHandSide);
        return 0;
    }

    std::int64_t entryCount() const { return quick ? quick->entryCount() : library.entryCount(); }
};

bool allFinite(const float *values, std::int32_t count)
{
    return std::all_of(values, values + count, [](float value) { return std::isfinite(value); });
}

bool validRows(const SparseRows &matrix)
{
    const std::int32_t order = matrix.order;
    if (matrix.rowStarts[0] != 1)
        return false;
    for (std::int32_t row = 0; row < order; ++row) {
        const std::int32_t first = matrix.rowStarts[row] - 1;
        const std::int32_t last = matrix.rowStarts[row + 1] - 1;
        if (last < first)
            return false;
        std::int32_t lowest = matrix.symmetric ? row + 1 : 1;
        for (std::int32_t cell = first; cell < last; ++cell) {
            if (matrix.columns[cell] < lowest || matrix.columns[cell] > order)
                return false;
            lowest = matrix.columns[cell] + 1;
        }
    }
    return true;
}

double largest(const std::vector<double> &values)
{
    double result = 0.0;
    for (const double value : values)
        result = std::max(result, std::fabs(value));
    return result;
}

/// residual = b - A x
void formResidual(const SparseRows &matrix, const float *b, const std::vector<double> &x, std::vector<double> &residual)
{
    std::copy(b, b + matrix.order, residual.begin());
    for (std::int32_t row = 0; row < matrix.order; ++row) {
        double sum = 0.0;
        const std::int32_t last = matrix.rowStarts[row + 1] - 1;
        for (std::int32_t cell = matrix.rowStarts[row] - 1; cell < last; ++cell) {
            const std::int32_t column = matrix.columns[cell] - 1;
            const double value = matrix.values[cell];
            sum += value * x[std::size_t(column)];
            if (matrix.symmetric && column != row)
                residual[std::size_t(column)] -= value * x[std::size_t(row)];
        }
        residual[std::size_t(row)] -= sum;
    }
}

std::int32_t solveRefined(Handle &handle, const SparseRows &matrix, std::int32_t mostSteps, const float *b, float *x)
{
    const auto order = std::size_t(matrix.order);
    if (!allFinite(b, matrix.order))
        return PardisoNotFinite;

    std::vector<float> part(b, b + order);
    std::vector<double> solution(order, 0.0);
    std::vector<double> residual(order);
    const auto addPart = [&]() -> std::int32_t {
        if (const std::int32_t code = handle.solve(part.data()))
            return code;
        if (!allFinite(part.data(), matrix.order))
            return PardisoNotFinite;
        for (std::size_t i = 0; i < order; ++i)
            solution[i] += double(part[i]);
        return 0;
    };

    if (const std::int32_t code = addPart())
        return code;
    bool converged = mostSteps <= 0;
    for (std::int32_t step = 0; step < mostSteps && !converged; ++step) {
        formResidual(matrix, b, solution, residual);
        std::transform(residual.begin(), residual.end(), part.begin(), [](double value) { return float(value); });
        if (const std::int32_t code = addPart())
            return code;
        const double correction = std::fabs(*std::max_element(
            part.begin(), part.end(), [](float left, float right) { return std::fabs(left) < std::fabs(right); }));
        converged = correction <= kConverged * largest(solution);
    }
    if (!converged) {
        formResidual(matrix, b, solution, residual);
        const double given = std::fabs(
            *std::max_element(b, b + order, [](float left, float right) { return std::fabs(left) < std::fabs(right); }));
        if (!(largest(residual) <= kSolved * given))
            return PardisoSingular;
    }

    if (!(largest(solution) <= double(std::numeric_limits<float>::max())))
        return PardisoNotFinite;
    std::transform(solution.begin(), solution.end(), x, [](double value) { return float(value); });
    return 0;
}

} // namespace

void mklSetTeamSize(int threads)
{
    teamSize = std::max(1, threads);
}

void mklGiveMemory(void *memory, std::size_t bytes, void (*release)(void *memory, std::size_t bytes))
{
    try {
        if (givenMemory == nullptr)
            givenMemory = new GivenMemory;
        givenMemory->add(memory, bytes, release);
    } catch (const std::bad_alloc &) {
        release(memory, bytes);
    }
}

void pardiso(void *pt, const std::int32_t *, const std::int32_t *, const std::int32_t *mtype, const std::int32_t *phase,
             const std::int32_t *n, const void *a, const std::int32_t *ia, const std::int32_t *ja, std::int32_t *,
             const std::int32_t *nrhs, std::int32_t *iparm, const std::int32_t *, const void *b, void *x, std::int32_t *error)
{
    // The first word of `pt` owns the handle; the others stay zero.
    auto *&word = *static_cast<Handle **>(pt);
    std::unique_ptr<Handle> handle(word);
    word = nullptr;
    *error = 0;
    if (*phase == Release)
        return;

    const std::unique_ptr<GivenMemory> given(*phase == Analysis ? std::exchange(givenMemory, nullptr) : nullptr);
    const SparseRows matrix{*mtype == SymmetricIndefinite, *n, static_cast<const float *>(a), ia, ja};
    const auto run = [&]() -> std::int32_t {
        if ((*mtype != SymmetricIndefinite && *mtype != Unsymmetric) || *n < 1 || *nrhs != 1 ||
            iparm[PardisoSinglePrecision] != 1 || iparm[PardisoZeroBased] != 0)
            return PardisoBadInput;
        switch (*phase) {
        case Analysis:
            if (handle || !validRows(matrix))
                return PardisoBadInput;
            handle = std::make_unique<Handle>();
            return handle->analyse(matrix, given ? std::move(*given) : GivenMemory());
        case Factorisation: {
            if (!handle)
                return PardisoBadInput;
            if (!allFinite(matrix.values, matrix.count()))
                return PardisoNotFinite;
            const std::int32_t code = handle->factorise(matrix, std::pow(10.0f, float(-iparm[PardisoPivotPerturbation])));
            handle->factorised = code == 0;
            if (code == 0 && iparm[PardisoFactorEntries] < 0) {
                constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
                iparm[PardisoFactorEntries] = std::int32_t(std::min(handle->entryCount(), highest));
            }
            return code;
        }
        case Solution:
            if (!handle || !handle->factorised)
                return PardisoBadInput;
            return solveRefined(*handle, matrix, iparm[PardisoRefinementSteps], static_cast<const float *>(b),
                                static_cast<float *>(x));
        default:
            return PardisoBadInput;
        }
    };
    try {
        *error = run();
    } catch (const std::bad_alloc &) {
        *error = PardisoNoMemory;
    }
    if (*error == 0)
        word = handle.release();
}
