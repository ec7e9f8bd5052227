#include "VSparseFactory.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <new>
#include <vector>

#include <omp.h>

#include "VException.h"
#include "mkl.h"
#include "threadCount.h"

namespace {

constexpr int kAlignment = 128;
// Below this many rows a team costs more than it saves.
constexpr std::int32_t kRowsWorthATeam = 4096;
constexpr std::size_t kLineCells = 64 / sizeof(VSparseFactory::Cell);

std::int32_t *allocateIndices(std::int32_t count)
{
    return static_cast<std::int32_t *>(mklMalloc(std::size_t(count) * sizeof(std::int32_t), kAlignment));
}

} // namespace

VSparseFactory::VSparseFactory(bool symmetricMatrix) : symmetric(symmetricMatrix), rows(SparseAllocator<Row>(arena))
{
    growRows(std::size_t(rowCapacity));
}

VSparseFactory::~VSparseFactory()
{
    // The rows are released by their own destructor: unlike clear(), it expects that memory may have run out while they grew.
    symmetric = false;
    rowCount = 0;
    columnCount = 0;
    rowCapacity = 0;
}

void VSparseFactory::growRows(std::size_t count)
{
    // A table requested in advance consists of default buckets, which the arena need not write.
    constexpr std::size_t kBuckets = 256;
    while (rows.size() < count)
        rows.emplace_back(kBuckets, Row::allocator_type(arena));
}

void VSparseFactory::OpenCell(int row, int column, CellAccessor &cell)
{
    if (row >= rowCount) {
        if (row >= rowCapacity) {
            // In 64 bits: the largest power of two that an int holds may not exceed the row.
            std::int64_t capacity = rowCapacity;
            while (capacity <= row)
                capacity *= 2;
            growRows(std::size_t(capacity));
            rowCapacity = std::int32_t(std::min<std::int64_t>(capacity, std::numeric_limits<std::int32_t>::max()));
        }
        rowCount = row + 1;
    }
    cell.release();
    rows[std::size_t(row)].insert(cell, column);
}

void VSparseFactory::SetRow(int row, const Cell *first, const Cell *last)
{
    // The new row takes the place of the old one, which needs no destructor: all that it owns is in the arena. A bucket's newest
    // cell comes first, so the cells are added from the last to the first, and each bucket ends up in ascending order.
    Row &place = rows[std::size_t(row)];
    ::new (static_cast<void *>(&place))
        Row(std::make_reverse_iterator(last), std::make_reverse_iterator(first), Row::allocator_type(arena));
}

void VSparseFactory::ToCsr(VSparseMatrix &target) const
{
    target.Reset();
    target.rowCount = rowCount;
    target.columnCount = columnCount;
    target.symmetric = symmetric ? 1 : 0;
    target.rowStartCount = rowCount + 1;

    target.rowStarts = allocateIndices(target.rowStartCount);
    if (target.rowStarts == nullptr)
        throw VException(QStringLiteral("Not enough memory"), V_LOCATION);

    std::int64_t cells = 0;
    std::size_t longest = 0;
    for (std::int32_t row = 0; row < rowCount; ++row) {
        const std::size_t size = rows[std::size_t(row)].size();
        target.rowStarts[row] = std::int32_t(cells + 1);
        cells += std::int64_t(size);
        longest = std::max(longest, size);
        // One-based indices must fit into an int.
        if (cells >= std::numeric_limits<std::int32_t>::max())
            throw VException(QStringLiteral("Not enough memory"), V_LOCATION);
    }
    target.rowStarts[rowCount] = std::int32_t(cells + 1);
    target.nonZeroCount = std::int32_t(cells);

    target.columnIndices = allocateIndices(target.nonZeroCount);
    target.values = static_cast<float *>(mklMalloc(std::size_t(target.nonZeroCount) * sizeof(float), kAlignment));
    if (target.columnIndices == nullptr)
        throw VException(QStringLiteral("Not enough memory"), V_LOCATION);
    if (target.values == nullptr)
        throw VException(QStringLiteral("Not enough memory"), V_LOCATION);

    // All memory is allocated before the team starts: no exception may leave a parallel region.
    const int team = rowCount < kRowsWorthATeam ? 1 : std::max(1, threadCount);
    const std::size_t scratchCells = longest + kLineCells; // no two threads write to the same cache line
    std::vector<Cell> scratch(std::size_t(team) * scratchCells);
#pragma omp parallel for num_threads(team) schedule(static)
    for (std::int32_t row = 0; row < rowCount; ++row) {
        auto *const first = scratch.data() + std::size_t(omp_get_thread_num()) * scratchCells;
        auto *last = first;
        const Row &rowCells = rows[std::size_t(row)];
        // Counted, so that the walk stops at the last cell; the iterator would search all remaining buckets on its way to end().
        auto cell = rowCells.begin();
        for (std::size_t left = rowCells.size(); left > 0; --left) {
            *last++ = {cell->first, cell->second};
            if (left > 1)
                ++cell;
        }
        const auto byColumn = [](const Cell &left, const Cell &right) { return left.first < right.first; };
        Cell *middle = std::is_sorted_until(first, last, byColumn);
        if (!std::is_sorted(middle, last, byColumn)) {
            std::sort(first, last, byColumn);
            middle = last;
        }
        // Rows that came in order are in two sorted runs, one for each bucket.
        std::int32_t *column = target.columnIndices + (target.rowStarts[row] - 1);
        float *value = target.values + (target.rowStarts[row] - 1);
        for (const Cell *low = first, *high = middle; low != middle || high != last; ++column, ++value) {
            const bool takeLow = high == last || (low != middle && low->first < high->first);
            const Cell &next = takeLow ? *low++ : *high++;
            *column = next.first + 1;
            *value = next.second;
        }
    }
}
