#include <cstdint>
#include <limits>
#include <map>
#include <thread>
#include <vector>

#include <gmock/gmock.h>

#include "VException.h"
#include "VSparseFactory.h"
#include "VSparseMatrix.h"
#include "threadCount.h"

namespace {

using testing::ElementsAre;

void setCell(VSparseFactory &factory, int row, int column, float value)
{
    VSparseFactory::CellAccessor cell;
    (factory.*factory.cellAccess)(row, column, cell);
    cell->second = value;
}

std::vector<std::int32_t> starts(const VSparseMatrix &matrix)
{
    return {matrix.rowStarts, matrix.rowStarts + matrix.rowStartCount};
}
std::vector<std::int32_t> columns(const VSparseMatrix &matrix)
{
    return {matrix.columnIndices, matrix.columnIndices + matrix.nonZeroCount};
}
std::vector<float> values(const VSparseMatrix &matrix)
{
    return {matrix.values, matrix.values + matrix.nonZeroCount};
}

/// The message of what a call throws; empty if it returns.
template<typename Call>
QString messageOf(Call call)
{
    try {
        call();
    } catch (const VException &failure) {
        EXPECT_TRUE(failure.location.contains(QLatin1String("VMath/VSparse"))) << failure.location.toStdString();
        return failure.message;
    }
    return {};
}

TEST(VSparseFactory, GrowsByDoubling)
{
    VSparseFactory factory(true);
    EXPECT_EQ(factory.rowCapacity, 8);
    EXPECT_EQ(factory.rows.size(), 8U);
    const struct
    {
        int row, capacity, count;
    } steps[] = {{0, 8, 1}, {7, 8, 8}, {8, 16, 9}, {1000, 1024, 1001}, {3, 1024, 1001}};
    for (const auto &step : steps) {
        setCell(factory, step.row, step.row, 1.0f);
        EXPECT_EQ(factory.rowCapacity, step.capacity) << step.row;
        EXPECT_EQ(factory.rowCount, step.count) << step.row;
        EXPECT_EQ(factory.rows.size(), std::size_t(step.capacity)) << step.row;
    }
}

TEST(VSparseFactory, StoresEveryOpenedCellInOrder)
{
    VSparseFactory factory(true);
    VSparseFactory::CellAccessor cell;
    for (const int column : {900, 3, 256, 2, 512})
        setCell(factory, 2, column, float(column));
    factory.OpenCell(0, 4, cell); // opened only
    EXPECT_EQ(cell->second, 0.0f);
    factory.OpenCell(2, 3, cell); // first releases the other cell
    cell->second += 0.5f;
    cell.release();

    VSparseMatrix matrix;
    for (int round = 0; round < 2; ++round) { // the target can be reused
        factory.ToCsr(matrix);
        EXPECT_EQ(matrix.symmetric, 1);
        EXPECT_EQ(matrix.rowCount, 3);
        EXPECT_EQ(matrix.columnCount, 0);
        EXPECT_EQ(matrix.rowStartCount, 4);
        EXPECT_EQ(matrix.nonZeroCount, 6);
        EXPECT_THAT(starts(matrix), ElementsAre(1, 2, 2, 7));
        EXPECT_THAT(columns(matrix), ElementsAre(5, 3, 4, 257, 513, 901));
        EXPECT_THAT(values(matrix), ElementsAre(0.0f, 2.0f, 3.5f, 256.0f, 512.0f, 900.0f));
        for (const void *array : {static_cast<void *>(matrix.values), static_cast<void *>(matrix.columnIndices),
                                  static_cast<void *>(matrix.rowStarts)})
            EXPECT_EQ(reinterpret_cast<std::uintptr_t>(array) % 128, 0U);
    }
    matrix.Reset();
    EXPECT_EQ(matrix.rowStarts, nullptr);
    EXPECT_EQ(matrix.rowCount, 0);
}

TEST(VSparseFactory, HoldsRowsOfAnyLength)
{
    // A row's table grows at 256 cells and above; these counts lie just before or after a growth.
    const int lengths[] = {1, 2, 255, 256, 257, 511, 513, 5000};
    VSparseFactory factory(false);
    int row = 0;
    for (const int length : lengths) {
        for (int i = 0; i < length; ++i)
            setCell(factory, row, (i * 7919) % length * 3, float(i));
        for (int i = 0; i < length; ++i) { // they are found again
            VSparseFactory::CellAccessor cell;
            factory.OpenCell(row, (i * 7919) % length * 3, cell);
            cell->second += 1.0f;
        }
        ++row;
    }
    VSparseMatrix matrix;
    factory.ToCsr(matrix);
    row = 0;
    for (const int length : lengths) {
        const int start = matrix.rowStarts[row] - 1;
        ASSERT_EQ(matrix.rowStarts[++row] - 1 - start, length);
        for (int i = 0; i < length; ++i) {
            const int place = (i * 7919) % length;
            ASSERT_EQ(matrix.columnIndices[start + place], place * 3 + 1) << length;
            ASSERT_EQ(matrix.values[start + place], float(i) + 1.0f) << length;
        }
    }
}

TEST(VSparseFactory, RowsAreSetAsAWhole)
{
    constexpr int kThreads = 70; // more than the factory's memory has places for
    constexpr int kRows = 20 * kThreads;
    const auto cellsOf = [](int row) {
        const int lengths[] = {0, 1, 2, 13, 300};
        std::map<int, float> cells;
        for (int i = 0; i < lengths[row % 5]; ++i)
            cells[row + i * (i % 3 + 1)] = float(row);
        return cells;
    };
    VSparseFactory factory(true);
    for (int row = 0; row < kRows; ++row)
        setCell(factory, row, row, -1.0f); // replaced
    std::vector<std::thread> team;
    for (int thread = 0; thread < kThreads; ++thread) {
        team.emplace_back([&, thread] {
            for (int row = thread; row < kRows; row += kThreads) {
                const auto wanted = cellsOf(row);
                const std::vector<VSparseFactory::Cell> cells(wanted.begin(), wanted.end());
                factory.SetRow(row, cells.data(), cells.data() + cells.size());
            }
        });
    }
    for (std::thread &thread : team)
        thread.join();
    for (int row = 0; row < kRows; ++row) // cells are found, and others can follow
        setCell(factory, row, row + 1, 0.5f);

    VSparseMatrix matrix;
    factory.ToCsr(matrix);
    int position = 0;
    for (int row = 0; row < kRows; ++row) {
        auto expected = cellsOf(row);
        expected[row + 1] = 0.5f;
        ASSERT_EQ(matrix.rowStarts[row], position + 1);
        for (const auto &[column, value] : expected) {
            ASSERT_EQ(matrix.columnIndices[position], column + 1) << row;
            ASSERT_EQ(matrix.values[position++], value) << row;
        }
    }
    EXPECT_EQ(matrix.nonZeroCount, position);
}

TEST(VSparseFactory, WithoutCellsThereIsNotEnoughMemory)
{
    VSparseFactory factory(false);
    VSparseMatrix matrix;
    EXPECT_EQ(messageOf([&] { factory.ToCsr(matrix); }).toStdString(), "Not enough memory");
    EXPECT_EQ(matrix.rowCount, 0);
    EXPECT_EQ(matrix.nonZeroCount, 0);
    EXPECT_EQ(matrix.symmetric, 0);
    ASSERT_NE(matrix.rowStarts, nullptr) << "what was allocated belongs to the target";
    EXPECT_EQ(matrix.rowStarts[0], 1);
}

TEST(VSparseFactory, FillsAndConvertsOnSeveralThreadsAsOnOne)
{
    constexpr int kRows = 9000;
    constexpr int kThreads = 4;
    constexpr int kRounds = 3;
    VSparseFactory factory(true);
    for (int row = 0; row < kRows; ++row)
        setCell(factory, row, row, 1.0f);
    // Every thread visits all rows from a different start: they share cells, and create new ones at the same time.
    std::vector<std::thread> team;
    for (int thread = 0; thread < kThreads; ++thread) {
        team.emplace_back([&factory, thread] {
            VSparseFactory::CellAccessor cell;
            for (int step = 0; step < kRounds * kRows; ++step) {
                const int row = (step + thread * (kRows / kThreads)) % kRows;
                for (const int offset : {2, 0, 1}) {
                    (factory.*factory.cellAccess)(row, row + offset, cell);
                    cell->second += 1.0f;
                }
            }
        });
    }
    for (std::thread &thread : team)
        thread.join();

    VSparseMatrix one;
    VSparseMatrix several;
    threadCount = 1;
    factory.ToCsr(one);
    threadCount = kThreads;
    factory.ToCsr(several);
    threadCount = 1;
    EXPECT_EQ(values(one), values(several));
    EXPECT_EQ(columns(one), columns(several));
    EXPECT_EQ(starts(one), starts(several));
    ASSERT_EQ(one.nonZeroCount, 3 * kRows);
    for (int row = 0; row < kRows; ++row) {
        for (int offset = 0; offset < 3; ++offset) {
            const int position = 3 * row + offset;
            ASSERT_EQ(one.columnIndices[position], row + offset + 1);
            ASSERT_EQ(one.values[position], float(kThreads * kRounds + (offset == 0 ? 1 : 0)));
        }
    }
}

TEST(VSparseFactory, AlternatingFactoriesDoNotMix)
{
    // Each has its own memory pieces, which alternating use must not mix.
    VSparseFactory even(true);
    VSparseFactory odd(true);
    for (int row = 0; row < 2000; ++row) {
        setCell(even, row, row, float(2 * row));
        setCell(odd, row, row, float(2 * row + 1));
    }
    VSparseMatrix evenMatrix;
    VSparseMatrix oddMatrix;
    even.ToCsr(evenMatrix);
    odd.ToCsr(oddMatrix);
    for (int row = 0; row < 2000; ++row) {
        ASSERT_EQ(evenMatrix.values[row], float(2 * row));
        ASSERT_EQ(oddMatrix.values[row], float(2 * row + 1));
    }
}

TEST(VSparseMatrix, SolvesAFactorysMatrix)
{
    VSparseFactory factory(true);
    const float upper[3][3] = {{4, 1, 0}, {0, 3, 1}, {0, 0, 2}};
    for (int row = 2; row >= 0; --row)
        for (int column = row; column < 3; ++column)
            setCell(factory, row, column, upper[row][column]);
    VSparseMatrix matrix;
    factory.ToCsr(matrix);
    const float b[] = {6, 10, 8};
    std::vector<float> x(3);
    matrix.Solve(b, x.data());
    EXPECT_THAT(x, ElementsAre(testing::FloatEq(1), testing::FloatEq(2), testing::FloatEq(3)));

    VSparseFactory whole(/*symmetricMatrix=*/false);
    setCell(whole, 0, 1, 2.0f);
    setCell(whole, 1, 0, 4.0f);
    whole.ToCsr(matrix);
    const float c[] = {4, 4};
    x.resize(2);
    matrix.Solve(c, x.data());
    EXPECT_THAT(x, ElementsAre(1.0f, 2.0f));
}

TEST(VSparseMatrix, FailuresNameThePhaseAndTheCode)
{
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    const struct
    {
        const char *name;
        int rows, columns[2];
        float values[2], b;
        const char *message;
    } failures[] = {
        {"column_outside", 2, {0, 2}, {1, 1}, 1, "PARDISO error during symbolic factorization: -1"},
        {"zero_row", 2, {0, 1}, {1, 0}, 1, "PARDISO error during solution: -4"},
        {"not_a_number", 2, {0, 1}, {1, notANumber}, 1, "PARDISO error during numerical factorization: -6"},
        {"not_a_number_right", 2, {0, 1}, {1, 1}, notANumber, "PARDISO error during solution: -6"},
    };
    for (const auto &failure : failures) {
        SCOPED_TRACE(failure.name);
        VSparseFactory factory(true);
        for (int row = 0; row < failure.rows; ++row)
            setCell(factory, row, failure.columns[row], failure.values[row]);
        VSparseMatrix matrix;
        factory.ToCsr(matrix);
        const float b[] = {failure.b, failure.b};
        float x[2];
        EXPECT_EQ(messageOf([&] { matrix.Solve(b, x); }).toStdString(), failure.message);
    }
}

} // namespace
