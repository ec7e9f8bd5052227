// The sparse phases of one estimate, on the pattern of a 365 x 273 picture: 99645 unknowns, 1.3 million cells.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include <benchmark/benchmark.h>
#include <omp.h>

#include "MattingSystem.h"
#include "VSparseFactory.h"
#include "threadCount.h"

namespace {

constexpr int kWidth = 365;
constexpr int kHeight = 273;
constexpr int kPixels = kWidth * kHeight;

void openDiagonal(VSparseFactory &factory)
{
    VSparseFactory::CellAccessor cell;
    for (int pixel = 0; pixel < kPixels; ++pixel) {
        (factory.*factory.cellAccess)(pixel, pixel, cell);
        cell->second = 0.001f;
    }
}

/// As the matting Laplacian comes: row by row, each as a whole.
void fillRows(VSparseFactory &factory, int team)
{
#pragma omp parallel for num_threads(team) schedule(static)
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            VSparseFactory::Cell cells[13];
            VSparseFactory::Cell *last = cells;
            for (int row = y; row < std::min(y + 3, kHeight); ++row) {
                for (int column = row == y ? x : std::max(0, x - 2); column < std::min(x + 3, kWidth); ++column)
                    *last++ = {row * kWidth + column, row == y && column == x ? 8.0f : -0.5f};
            }
            factory.SetRow(y * kWidth + x, cells, last);
        }
    }
}

/// Window by window, as any order of cells may come: 4.4 million updates.
void fillWindows(VSparseFactory &factory, int team)
{
#pragma omp parallel for num_threads(team) schedule(static)
    for (int y = 0; y <= kHeight - 3; ++y) {
        VSparseFactory::CellAccessor cell;
        for (int x = 0; x <= kWidth - 3; ++x) {
            for (int i = 0; i < 9; ++i) {
                const int p = (y + i / 3) * kWidth + x + i % 3;
                for (int j = i; j < 9; ++j) {
                    const int q = (y + j / 3) * kWidth + x + j % 3;
                    (factory.*factory.cellAccess)(p, q, cell);
                    cell->second += i == j ? 8.0f / 9.0f : -1.0f / 9.0f;
                    cell.release();
                }
            }
        }
    }
}

/// Everything from the first cell to the last release, in milliseconds per stage; each iteration starts with fresh memory.
void assembly(benchmark::State &state, void (*fill)(VSparseFactory &, int))
{
    threadCount = std::int32_t(state.range(0));
    double diagonal = 0.0, filling = 0.0, rows = 0.0, release = 0.0;
    for (auto _ : state) {
        double time = omp_get_wtime();
        const auto lap = [&time](double &sum) {
            const double now = omp_get_wtime();
            sum += (now - time) * 1000.0;
            time = now;
        };
        auto factory = std::make_unique<VSparseFactory>(/*symmetricMatrix=*/true);
        openDiagonal(*factory);
        lap(diagonal);
        fill(*factory, threadCount);
        lap(filling);
        {
            VSparseMatrix matrix;
            factory->ToCsr(matrix);
            benchmark::DoNotOptimize(matrix.values[matrix.nonZeroCount - 1]);
        }
        lap(rows);
        factory.reset();
        lap(release);
    }
    const auto mean = [](double sum) { return benchmark::Counter(sum, benchmark::Counter::kAvgIterations); };
    state.counters["diagonal_ms"] = mean(diagonal);
    state.counters["filling_ms"] = mean(filling);
    state.counters["rows_ms"] = mean(rows);
    state.counters["release_ms"] = mean(release);
    state.SetItemsProcessed(state.iterations() * kPixels);
    threadCount = 1;
}
BENCHMARK_CAPTURE(assembly, rows, fillRows)
    ->Arg(1)
    ->Arg(2)
    ->UseRealTime()
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(assembly, windows, fillWindows)
    ->Arg(1)
    ->Arg(2)
    ->UseRealTime()
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

/// One whole VSparseMatrix::Solve of a matting system. An extra cell of value 0 that joins the first pixel to the last does not
/// change the solution, but the pattern is no longer a grid, so the library solves the same system instead.
void solve(benchmark::State &state, bool joined)
{
    VSparseMatrix matrix;
    {
        const TestRows system = mattingSystem(kWidth, kHeight, 1);
        VSparseFactory factory(/*symmetricMatrix=*/true);
        VSparseFactory::CellAccessor cell;
        for (int row = 0; row < kPixels; ++row) {
            for (int k = system.rowStarts[std::size_t(row)] - 1; k < system.rowStarts[std::size_t(row) + 1] - 1; ++k) {
                factory.OpenCell(row, system.columns[std::size_t(k)] - 1, cell);
                cell->second = system.values[std::size_t(k)];
            }
        }
        if (joined)
            factory.OpenCell(0, kPixels - 1, cell);
        cell.release();
        factory.ToCsr(matrix);
    }
    std::vector<float> b(std::size_t(kPixels), 0.0f);
    for (std::size_t i = 0; i < b.size(); ++i)
        b[i] = 0.001f * float(0.5 + 0.4 * std::sin(0.01 * double(i)));
    std::vector<float> x(b.size());

    threadCount = int(state.range(0));
    for (auto _ : state)
        matrix.Solve(b.data(), x.data());
    state.SetItemsProcessed(state.iterations() * kPixels);
}
BENCHMARK_CAPTURE(solve, grid, false)->Arg(1)->Arg(2)->UseRealTime()->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(solve, joined, true)->Arg(1)->UseRealTime()->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

} // namespace
