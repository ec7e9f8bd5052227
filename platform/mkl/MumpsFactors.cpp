#include "MumpsFactors.h"

#include <algorithm>
#include <mutex>

#include <smumps_c.h>

#include "mkl.h"

namespace {

enum Job { Initialise = -1, Terminate = -2, Analyse = 1, Factorise = 2, SolveSystem = 3 };

/// The library's code for the sequential communicator.
constexpr MUMPS_INT kSequentialWorld = -987654;

// Memory beyond the estimate, in per cent: the library starts with the first value, which is doubled until it suffices.
constexpr MUMPS_INT kFirstSlack = 30;
constexpr MUMPS_INT kLastSlack = 2000;

std::mutex &libraryLock()
{
    static std::mutex lock;
    return lock;
}

} // namespace

struct MumpsFactors::Library
{
    SMUMPS_STRUC_C record = {};
    bool started = false;

    // The entries are numbered from 1 in the library's guide.
    MUMPS_INT &setting(int number) { return record.icntl[number - 1]; }

    MUMPS_INT run(Job job)
    {
        record.job = job;
        const std::lock_guard<std::mutex> guard(libraryLock());
        smumps_c(&record);
        return record.infog[0];
    }

    std::int32_t result() const
    {
        switch (record.infog[0]) {
        case 0:
            return 0;
        case -6:  // structurally singular
        case -10: // numerically singular
            return PardisoSingular;
        case -5:
        case -7:
        case -8:
        case -9:
        case -13:
        case -14:
        case -19:
            return PardisoNoMemory;
        default:
            return record.infog[0] > 0 ? 0 : PardisoInternal; // positive: warnings
        }
    }
};

MumpsFactors::MumpsFactors() : library(std::make_unique<Library>()) {}

MumpsFactors::~MumpsFactors()
{
    if (library->started)
        library->run(Terminate);
}

std::int32_t MumpsFactors::analyse(const SparseRows &matrix)
{
    if (matrix.count() == 0)
        return PardisoSingular; // the library would read the first cell all the same
    rows.resize(std::size_t(matrix.count()));
    for (std::int32_t row = 0; row < matrix.order; ++row)
        std::fill(rows.begin() + (matrix.rowStarts[row] - 1), rows.begin() + (matrix.rowStarts[row + 1] - 1), row + 1);

    SMUMPS_STRUC_C &record = library->record;
    record.comm_fortran = kSequentialWorld;
    record.par = 1;
    record.sym = matrix.symmetric ? 2 : 0;
    if (library->run(Initialise) < 0)
        return library->result();
    library->started = true;

    record.n = matrix.order;
    record.nnz = matrix.count();
    // The library only reads the matrix; its record predates const.
    record.irn = rows.data();
    record.jcn = const_cast<MUMPS_INT *>(matrix.columns);
    for (const int stream : {1, 2, 3})
        library->setting(stream) = -1;
    library->setting(4) = 0;  // prints nothing
    library->setting(5) = 0;  // assembled matrix
    library->setting(6) = 0;  // the analysis reads no values: its matching crashes on some that have no solution
    library->setting(7) = 2;  // approximate minimum fill: the least work on these patterns, and needs no further library
    library->setting(18) = 0; // given in one piece
    library->setting(14) = kFirstSlack;
    library->run(Analyse);
    return library->result();
}

std::int32_t MumpsFactors::factorise(const SparseRows &matrix, float pivotFloor)
{
    SMUMPS_STRUC_C &record = library->record;
    record.jcn = const_cast<MUMPS_INT *>(matrix.columns);
    record.a = const_cast<float *>(matrix.values);
    record.cntl[3] = pivotFloor;
    for (;;) {
        const MUMPS_INT code = library->run(Factorise);
        const bool tooSmall = code == -8 || code == -9 || code == -14;
        if (!tooSmall || library->setting(14) > kLastSlack)
            return library->result();
        library->setting(14) *= 2;
    }
}

std::int32_t MumpsFactors::solve(float *rightHandSide)
{
    library->record.rhs = rightHandSide;
    library->run(SolveSystem);
    return library->result();
}

std::int64_t MumpsFactors::entryCount() const
{
    // A count too large for an int is reported in millions, as a negative number.
    const std::int64_t count = library->record.infog[28];
    return count < 0 ? -count * 1000000 : count;
}
