#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "MattingSystem.h"
#include "mkl.h"

namespace {

using Dense = std::vector<std::vector<float>>;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

TestRows fromDense(bool symmetric, const Dense &dense)
{
    TestRows result;
    result.order = std::int32_t(dense.size());
    result.symmetric = symmetric;
    for (std::size_t row = 0; row < dense.size(); ++row) {
        for (std::size_t column = symmetric ? row : 0; column < dense.size(); ++column)
            if (dense[row][column] != 0.0f)
                result.add(std::int32_t(column), dense[row][column]);
        result.endRow();
    }
    return result;
}

/// The calls of one solve; tests change the public fields.
struct Calls
{
    explicit Calls(const TestRows &rows) : matrix(rows), x(std::size_t(rows.order), -7.0f)
    {
        iparm[PardisoRefinementSteps] = 2;
        iparm[PardisoPivotPerturbation] = rows.symmetric ? 8 : 13;
        iparm[PardisoSinglePrecision] = 1;
    }
    ~Calls() { phase(-1); }
    Calls(const Calls &) = delete;
    Calls &operator=(const Calls &) = delete;

    std::int32_t phase(std::int32_t number)
    {
        const std::int32_t one = 1, zero = 0, type = matrix.symmetric ? -2 : 11;
        std::int32_t perm = 0, error = 99;
        pardiso(pt.data(), &one, &one, &type, &number, &matrix.order, matrix.values.data(), matrix.rowStarts.data(),
                matrix.columns.data(), &perm, &one, iparm.data(), &zero, b.data(), x.data(), &error);
        return error;
    }
    /// The first error of the three phases.
    std::int32_t solve(const std::vector<float> &rightHandSide)
    {
        b = rightHandSide;
        for (const std::int32_t number : {11, 22, 33})
            if (const std::int32_t code = phase(number))
                return code;
        return 0;
    }
    bool released() const
    {
        return std::all_of(pt.begin(), pt.end(), [](const void *word) { return word == nullptr; });
    }

    TestRows matrix;
    std::array<void *, 64> pt = {};
    std::array<std::int32_t, 64> iparm = {};
    std::vector<float> b;
    std::vector<float> x;
};

double largestDifference(const std::vector<float> &left, const std::vector<double> &right)
{
    double result = 0.0;
    for (std::size_t i = 0; i < left.size(); ++i)
        result = std::max(result, std::fabs(double(left[i]) - right[i]));
    return result;
}

std::vector<float> waves(std::size_t count)
{
    std::vector<float> result(count);
    for (std::size_t i = 0; i < count; ++i)
        result[i] = 0.001f * float(0.5 + 0.4 * std::sin(0.05 * double(i)));
    return result;
}

TEST(Allocator, GivesAlignedBlocksOrNull)
{
    EXPECT_EQ(mklMalloc(0, 128), nullptr);
    EXPECT_EQ(mklMalloc(std::size_t(-1) / 2, 128), nullptr);
    mklFree(nullptr);
    for (const int alignment : {1, 4, 16, 128, 4096}) {
        void *block = mklMalloc(13, alignment);
        ASSERT_NE(block, nullptr);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % std::uintptr_t(alignment), 0U);
        mklFree(block);
    }
}

TEST(Pardiso, SolvesSmallSystems)
{
    const struct
    {
        const char *name;
        bool symmetric;
        Dense a;
        std::vector<float> b, x;
    } systems[] = {
        {"one_by_one", true, {{0.001f}}, {0.002f}, {2}},
        {"one_by_one_unsymmetric", false, {{-4}}, {2}, {-0.5f}},
        {"diagonal", true, {{2, 0, 0}, {0, 0.5f, 0}, {0, 0, 8}}, {2, 1, 4}, {1, 2, 0.5f}},
        {"definite", true, {{4, 1, 0}, {1, 3, 1}, {0, 1, 2}}, {6, 10, 8}, {1, 2, 3}},
        {"negative_definite", true, {{-4, 1}, {1, -2}}, {-2, -3}, {1, 2}},
        {"indefinite_with_zero_diagonal", true, {{0, 1}, {1, 0}}, {2, 3}, {3, 2}},
        {"indefinite", true, {{1, 2, 0}, {2, 1, 3}, {0, 3, 1}}, {5, 13, 9}, {1, 2, 3}},
        {"unsymmetric", false, {{1, 2}, {3, 4}}, {5, 11}, {1, 2}},
        {"unsymmetric_with_zero_diagonal", false, {{0, 2, 0}, {0, 0, 3}, {4, 0, 0}}, {4, 9, 4}, {1, 2, 3}},
    };
    for (const auto &system : systems) {
        SCOPED_TRACE(system.name);
        Calls calls(fromDense(system.symmetric, system.a));
        ASSERT_EQ(calls.solve(system.b), 0);
        for (std::size_t i = 0; i < system.x.size(); ++i)
            EXPECT_FLOAT_EQ(calls.x[i], system.x[i]);
        EXPECT_EQ(calls.phase(-1), 0);
        EXPECT_TRUE(calls.released());
    }
}

TEST(Pardiso, ErrorsReleaseEverythingAndLeaveTheSolution)
{
    const struct
    {
        const char *name;
        bool symmetric;
        Dense a;
        std::vector<float> b;
        std::int32_t code;
    } systems[] = {
        {"zero_row", true, {{1, 0, 0}, {0, 0, 0}, {0, 0, 1}}, {1, 1, 1}, PardisoSingular},
        {"zero_row_unsymmetric", false, {{1, 2}, {0, 0}}, {1, 1}, PardisoSingular},
        {"no_cells", true, {{0}}, {1}, PardisoSingular},
        {"dependent_rows", true, {{1, 1}, {1, 1}}, {1, 0}, PardisoSingular},
        {"dependent_rows_unsymmetric", false, {{1, 2}, {2, 4}}, {1, 0}, PardisoSingular},
        {"not_a_number", true, {{1, kNaN}, {kNaN, 1}}, {1, 1}, PardisoNotFinite},
        {"not_a_number_unsymmetric", false, {{1, kNaN}, {2, 1}}, {1, 1}, PardisoNotFinite},
        {"infinite", true, {{kInfinity}}, {1}, PardisoNotFinite},
        {"not_a_number_right", true, {{1, 0}, {0, 1}}, {1, kNaN}, PardisoNotFinite},
        {"infinite_right", true, {{1, 0}, {0, 1}}, {-kInfinity, 1}, PardisoNotFinite},
        {"solution_out_of_range", true, {{1e-30F}}, {1e30F}, PardisoNotFinite},
    };
    for (const auto &system : systems) {
        SCOPED_TRACE(system.name);
        Calls calls(fromDense(system.symmetric, system.a));
        EXPECT_EQ(calls.solve(system.b), system.code);
        EXPECT_TRUE(calls.released());
        EXPECT_THAT(calls.x, testing::Each(-7.0f));
    }
}

TEST(Pardiso, RejectsInvalidInput)
{
    const TestRows good = fromDense(true, {{2, 1}, {1, 2}});
    const struct
    {
        const char *name;
        std::int32_t order;
        std::vector<std::int32_t> rowStarts, columns;
        std::int32_t singlePrecision, zeroBased;
    } faults[] = {
        {"no_rows", 0, {1, 3, 4}, {1, 2, 2}, 1, 0},
        {"zero_based", 2, {0, 2, 3}, {1, 2, 2}, 1, 0},
        {"falling_row_starts", 2, {1, 4, 3}, {1, 2, 2}, 1, 0},
        {"falling_columns", 2, {1, 3, 4}, {2, 1, 2}, 1, 0},
        {"column_out_of_range", 2, {1, 3, 4}, {1, 3, 2}, 1, 0},
        {"lower_triangle", 2, {1, 3, 4}, {1, 2, 1}, 1, 0},
        {"double_precision", 2, {1, 3, 4}, {1, 2, 2}, 0, 0},
        {"zero_based_setting", 2, {1, 3, 4}, {1, 2, 2}, 1, 1},
    };
    for (const auto &fault : faults) {
        SCOPED_TRACE(fault.name);
        Calls calls(good);
        calls.matrix.order = fault.order;
        calls.matrix.rowStarts = fault.rowStarts;
        calls.matrix.columns = fault.columns;
        calls.iparm[PardisoSinglePrecision] = fault.singlePrecision;
        calls.iparm[PardisoZeroBased] = fault.zeroBased;
        EXPECT_EQ(calls.phase(11), PardisoBadInput);
        EXPECT_TRUE(calls.released());
    }
    for (const std::int32_t tooEarly : {22, 33, 12}) {
        Calls calls(good);
        EXPECT_EQ(calls.phase(tooEarly), PardisoBadInput) << tooEarly;
    }
    Calls calls(good);
    calls.b = {3, 3};
    EXPECT_EQ(calls.phase(11), 0);
    EXPECT_EQ(calls.phase(33), PardisoBadInput) << "a solution before the factors";
    EXPECT_TRUE(calls.released());
}

// Diagonals above the sum of their rows make the systems well conditioned, so that only one rounding to float remains.
TEST(Pardiso, SolvesRandomPatterns)
{
    std::mt19937 random(5);
    for (const bool symmetric : {true, false}) {
        for (const std::size_t order :
             {std::size_t(1), std::size_t(2), std::size_t(17), std::size_t(96), std::size_t(301), std::size_t(701)}) {
            for (const bool indefinite : {false, true}) {
                SCOPED_TRACE(std::to_string(order) + (symmetric ? " symmetric" : " unsymmetric") +
                             (indefinite ? " indefinite" : ""));
                Dense dense(order, std::vector<float>(order, 0.0f));
                for (std::size_t i = 0; i < order; ++i) {
                    // Nothing connects the two halves of the graph.
                    for (int k = 0; k < 4; ++k) {
                        const std::size_t half = order / 2;
                        const std::size_t j = i < half ? random() % half : half + random() % (order - half);
                        const float value = float(random() % 2000) / 1000.0f - 1.0f;
                        dense[i][j] = value;
                        if (symmetric)
                            dense[j][i] = value;
                    }
                }
                for (std::size_t i = 0; i < order; ++i) {
                    float sum = 1.0f;
                    for (std::size_t j = 0; j < order; ++j)
                        sum += std::fabs(dense[i][j]);
                    dense[i][i] = indefinite && i % 3 == 0 ? -sum : sum;
                }
                std::vector<double> expected(order);
                for (std::size_t i = 0; i < order; ++i)
                    expected[i] = double(i % 7) - 3.0;
                // The right-hand side is rounded to float; as the inverse is small, the solution is off by no more than that.
                std::vector<float> b(order);
                for (std::size_t i = 0; i < order; ++i) {
                    double sum = 0.0;
                    for (std::size_t j = 0; j < order; ++j)
                        sum += double(dense[i][j]) * expected[j];
                    b[i] = float(sum);
                }
                Calls calls(fromDense(symmetric, dense));
                ASSERT_EQ(calls.solve(b), 0);
                EXPECT_LT(largestDifference(calls.x, expected), 1e-5);
            }
        }
    }
}

TEST(Pardiso, SolvesMattingSystemsToFloatPrecision)
{
    const struct
    {
        int width, height;
    } sizes[] = {{1, 1}, {2, 50}, {3, 3}, {3, 400}, {5, 211}, {211, 5}, {33, 31}, {97, 64}};
    for (const auto &size : sizes) {
        SCOPED_TRACE(std::to_string(size.width) + " x " + std::to_string(size.height));
        const TestRows matrix = mattingSystem(size.width, size.height, 3);
        const std::vector<float> b = waves(std::size_t(matrix.order));
        Calls calls(matrix);
        ASSERT_EQ(calls.solve(b), 0);
        // The solution is about 0.5, where this is about two roundings of a float.
        EXPECT_LT(largestDifference(calls.x, conjugateGradients(matrix, b)), 2e-7);
    }
}

// Grids numbered row by row, but unlike an image: other stencils, an incomplete last row, unconnected parts.
TEST(Pardiso, SolvesGridsOfManyKinds)
{
    struct Offset
    {
        int dx, dy;
    };
    const struct
    {
        const char *name;
        int width, order;
        std::vector<Offset> stencil;
    } grids[] = {
        {"diagonal", 1, 3000, {}},
        {"chain", 1, 3000, {{0, 1}}},
        {"band", 1, 3000, {{0, 1}, {0, 30}}},
        {"wide_band", 1, 3000, {{0, 1}, {0, 290}}},
        {"rows_apart", 50, 3000, {{1, 0}, {2, 0}}},
        {"columns_apart", 50, 3001, {{0, 1}}},
        {"five_points", 64, 4095, {{1, 0}, {0, 1}}},
        {"nine_points", 37, 2990, {{1, 0}, {-1, 1}, {0, 1}, {1, 1}}},
        {"narrow", 7, 3003, {{1, 0}, {0, 1}}},
        {"flat", 1000, 3500, {{1, 0}, {0, 1}}},
        {"leaning", 61, 3033, {{1, 1}, {2, 1}}},
        {"third_neighbours", 61, 3033, {{1, 0}, {3, 0}, {0, 1}, {-3, 2}, {0, 3}}},
        {"round_the_corner", 61, 3033, {{60, 0}, {1, 0}, {0, 1}}}, // rows connected at their ends: not a grid
    };
    std::mt19937 random(11);
    for (const auto &grid : grids) {
        SCOPED_TRACE(grid.name);
        std::vector<float> diagonal(std::size_t(grid.order), 1.0f);
        std::vector<std::vector<std::pair<int, float>>> upper(std::size_t(grid.order));
        for (int vertex = 0; vertex < grid.order; ++vertex) {
            for (const Offset &offset : grid.stencil) {
                const int x = vertex % grid.width + offset.dx;
                const int other = vertex + offset.dy * grid.width + offset.dx;
                if (x < 0 || x >= grid.width || other >= grid.order)
                    continue;
                const float value = float(random() % 2000) / 1000.0f - 1.0f;
                upper[std::size_t(vertex)].push_back({other, value});
                diagonal[std::size_t(vertex)] += std::fabs(value);
                diagonal[std::size_t(other)] += std::fabs(value);
            }
        }
        TestRows matrix;
        matrix.order = grid.order;
        for (int vertex = 0; vertex < grid.order; ++vertex) {
            auto &row = upper[std::size_t(vertex)];
            row.push_back({vertex, diagonal[std::size_t(vertex)]});
            std::sort(row.begin(), row.end());
            for (const auto &[column, value] : row)
                matrix.add(column, value);
            matrix.endRow();
        }
        const std::vector<float> b = waves(std::size_t(grid.order));
        Calls calls(matrix);
        ASSERT_EQ(calls.solve(b), 0);
        // The solution stays below 0.001, where rounding to float is about 6e-11.
        EXPECT_LT(largestDifference(calls.x, conjugateGradients(matrix, b)), 1.5e-10);
    }
}

TEST(Pardiso, OneThreadEqualsSeveral)
{
    const TestRows matrix = mattingSystem(120, 90, 9);
    const std::vector<float> b = waves(std::size_t(matrix.order));
    std::vector<std::vector<float>> solutions;
    for (const int team : {1, 2, 5}) {
        mklSetTeamSize(team);
        Calls calls(matrix);
        calls.iparm[PardisoRefinementSteps] = 0; // which would hide a difference between the factors
        ASSERT_EQ(calls.solve(b), 0);
        solutions.push_back(calls.x);
    }
    mklSetTeamSize(1);
    EXPECT_EQ(solutions[0], solutions[1]);
    EXPECT_EQ(solutions[0], solutions[2]);
}

std::size_t releasedBytes = 0;

TEST(Pardiso, UsesAndReleasesGivenMemory)
{
    constexpr std::size_t kPage = 4096, kFirst = 700 * kPage, kSecond = 520 * kPage;
    const std::unique_ptr<void, decltype(&std::free)> memory(std::aligned_alloc(kPage, kFirst + kSecond), &std::free);
    const auto give = [&memory] {
        releasedBytes = 0;
        const auto release = [](void *part, std::size_t bytes) {
            std::memset(part, 0xFF, bytes); // not-a-number, in case it is used again
            releasedBytes += bytes;
        };
        mklGiveMemory(memory.get(), kFirst, release);
        mklGiveMemory(static_cast<char *>(memory.get()) + kFirst, kSecond, release);
    };
    for (const int size : {10, 50, 90}) { // less than what is given, somewhat more, much more
        SCOPED_TRACE(size);
        const TestRows matrix = mattingSystem(size, size, 9);
        const std::vector<float> b = waves(std::size_t(matrix.order));
        Calls expected(matrix);
        ASSERT_EQ(expected.solve(b), 0);
        give();
        Calls calls(matrix);
        ASSERT_EQ(calls.solve(b), 0);
        EXPECT_EQ(calls.x, expected.x);
        EXPECT_LT(releasedBytes, kFirst + kSecond);
        calls.phase(-1);
        EXPECT_EQ(releasedBytes, kFirst + kSecond);
    }
    // A system that can't use it.
    give();
    Calls calls(fromDense(false, {{2.0f, 1.0f}, {0.5f, 3.0f}}));
    ASSERT_EQ(calls.solve({3.0f, 3.5f}), 0);
    EXPECT_EQ(releasedBytes, kFirst + kSecond);
}

TEST(Pardiso, SeveralCallersAtOnce)
{
    // One system that any solver can handle, one that needs pivoting.
    const TestRows matting = mattingSystem(60, 50, 2);
    TestRows pivoting = matting;
    for (std::int32_t row = 0; row < pivoting.order; row += 2)
        pivoting.values[std::size_t(pivoting.rowStarts[std::size_t(row)] - 1)] *= -1.0f;
    const std::vector<float> b = waves(std::size_t(matting.order));

    const auto solution = [&b](const TestRows &matrix) {
        Calls calls(matrix);
        return calls.solve(b) == 0 ? calls.x : std::vector<float>();
    };
    const std::vector<float> expected[] = {solution(matting), solution(pivoting)};
    ASSERT_FALSE(expected[0].empty());
    ASSERT_FALSE(expected[1].empty());

    std::vector<std::thread> callers;
    std::array<int, 4> wrong = {};
    for (std::size_t caller = 0; caller < wrong.size(); ++caller) {
        callers.emplace_back([&, caller] {
            for (int round = 0; round < 5; ++round)
                wrong[caller] += solution(caller % 2 == 0 ? matting : pivoting) == expected[caller % 2] ? 0 : 1;
        });
    }
    for (std::thread &caller : callers)
        caller.join();
    EXPECT_THAT(wrong, testing::Each(0));
}

} // namespace
