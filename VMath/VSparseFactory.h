#pragma once

#include <cstdint>

#include <tbb/concurrent_hash_map.h>
#include <tbb/concurrent_vector.h>

#include "SparseArena.h"
#include "VSparseMatrix.h"

/// Collects the cells of a large sparse matrix, from several threads at once and in any order, and turns them into compressed
/// rows.
///
/// Two phases that don't overlap: filling (OpenCell), then reading (ToCsr, called from one thread). Opening a cell locks only
/// that cell. The table of rows grows without a lock, so a single thread must have opened every row once before a parallel phase
/// begins.
///
/// The matting Laplacian arrives row by row with its sums already formed: apart from the diagonal, its cells are set by SetRow,
/// each row by one thread. The concurrent containers free OpenCell from depending on that order: any caller may add to any cell
/// from any thread, for instance window by window, where neighbouring windows share cells.
class VSparseFactory
{
    SparseArena arena; // before the rows, which live in it

public:
    /// A row's second cell would bring a table of 256 buckets: 4 KB to write for a dozen cells. Columns are therefore hashed to
    /// the two buckets inside the row itself while those suffice; in longer rows they spread.
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

    /// `symmetricMatrix`: only the upper triangle with the diagonal will be stored; passed on, not checked.
    explicit VSparseFactory(bool symmetricMatrix);
    ~VSparseFactory();
    VSparseFactory(const VSparseFactory &) = delete;
    VSparseFactory &operator=(const VSparseFactory &) = delete;

    /// Opens the cell for writing; a missing cell is created with the value 0.0. First releases what `cell` still holds. Callers
    /// reach it through the pointer `cellAccess` (fixed: part of the record's layout).
    void OpenCell(int row, int column, CellAccessor &cell);

    /// A column and its value.
    using Cell = std::pair<std::int32_t, float>;
    /// Gives a row, which has been opened before, the cells from `first` up to `last`, in ascending order of their columns, in
    /// place of those it has. Much quicker than opening each of them, since it takes no lock: meanwhile nothing else may use the
    /// row; other rows may be used. Throws std::bad_alloc; then the factory can only be destroyed.
    void SetRow(int row, const Cell *first, const Cell *last);

    /// From now on, the destructor gives the memory of the factory to the next system that its thread solves, which must follow.
    void GiveMemoryToSolver() { arena.giveToSolver(); }

    /// Writes the compressed rows of all cells ever opened, including those of value 0.0, to `target`, after releasing what it
    /// held. Throws VException "Not enough memory"; what has been allocated by then belongs to `target`.
    void ToCsr(VSparseMatrix &target) const;

    bool symmetric;
    std::int32_t rowCount = 0;    ///< Highest row opened so far, plus one.
    std::int32_t columnCount = 0; ///< Passed on unchanged.
    std::int32_t rowCapacity = 8; ///< Rows that `rows` holds; grows by doubling only.
    tbb::concurrent_vector<Row, SparseAllocator<Row>> rows;
    void (VSparseFactory::*cellAccess)(int row, int column, CellAccessor &cell) = &VSparseFactory::OpenCell;

private:
    void growRows(std::size_t count);
};
