#pragma once

#include <cstdint>

#include <tbb/concurrent_hash_map.h>
#include <tbb/concurrent_vector.h>

#include "SparseArena.h"
#include "VSparseMatrix.h"

/// Collects the cells of a large sparse matrix, from several threads at once and in any order, and turns them into compressed
/// rows.
///
/// Two phases that don't overlap: filling (OpenCell), then reading (ToCsr, on one thread). Opening a cell locks that cell alone.
/// The table of rows grows without a lock, so one thread must have opened every row once before a parallel phase begins.
///
/// The matting Laplacian comes with its sums already formed, row by row: behind the diagonal, each cell is opened once,
/// and each row by one thread. The concurrent containers are what keeps OpenCell free of such an agreement: any caller may add to
/// any cell from any thread, window by window for instance, where neighbouring windows meet in the same cells.
class VSparseFactory
{
    SparseArena arena; // before the rows, which live in it

public:
    /// A row's second cell brings a table of 256 buckets, which is 4 KB to write for a dozen of cells. Columns are therefore
    /// hashed to the two buckets that lie in the row itself, as long as that table is enough; in longer rows they spread.
    struct ColumnHash
    {
        static std::size_t hash(std::int32_t column)
        {
            const std::size_t spread = std::size_t(std::uint32_t(column)) * 0x9E3779B97F4A7C15u;
            return spread >> 32 << 8 | (std::uint32_t(column) & 1u);
        }
        static bool equal(std::int32_t left, std::int32_t right) { return left == right; }
    };
    /// One row: column to value.
    using Row = tbb::concurrent_hash_map<std::int32_t, float, ColumnHash, SparseAllocator<std::pair<const std::int32_t, float>>>;
    /// Write access to one cell, locked while this holds it; `->second` is the value. Declared empty, filled by OpenCell.
    using CellAccessor = Row::accessor;

    /// `symmetricMatrix`: only the upper triangle with the diagonal is going to be stored; handed on, not checked.
    explicit VSparseFactory(bool symmetricMatrix);
    ~VSparseFactory();
    VSparseFactory(const VSparseFactory &) = delete;
    VSparseFactory &operator=(const VSparseFactory &) = delete;

    /// Opens the cell for writing, and makes it with the value 0.0 if it is missing. Releases first what `cell` still holds. All
    /// access goes through the pointer `cellAccess`.
    void OpenCell(int row, int column, CellAccessor &cell);

    /// Compressed rows of all cells that were ever opened, those of value 0.0 too. Releases what `target` held. Throws VException
    /// "Not enough memory", with what was allocated so far left to `target`.
    void ToCsr(VSparseMatrix &target) const;

    bool symmetric;
    std::int32_t rowCount = 0;    ///< Highest row opened so far, plus one.
    std::int32_t columnCount = 0; ///< Handed on as it stands.
    std::int32_t rowCapacity = 8; ///< Rows that `rows` holds; only doubles.
    tbb::concurrent_vector<Row, SparseAllocator<Row>> rows;
    void (VSparseFactory::*cellAccess)(int row, int column, CellAccessor &cell) = &VSparseFactory::OpenCell;

private:
    void growRows(std::size_t count);
};
