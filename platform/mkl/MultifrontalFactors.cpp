#include "MultifrontalFactors.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <iterator>
#include <new>
#include <utility>

#include <omp.h>

#include "frontKernels.h"
#include "mkl.h"

namespace {

// Boxes of up to this many vertices are not cut further: the dense work is cheaper than handling more fronts.
constexpr std::int64_t kLeafVertices = 64;
// A box larger than this that can't be cut shows that the pattern is not that of a grid.
constexpr std::int64_t kMostLeafVertices = 512;
// A grid of any size that floats can solve takes a few hundred; more also shows another pattern.
constexpr std::size_t kMostFloatsPerVertex = 2000;
// Subtrees up to this size are visited by one thread.
constexpr std::int32_t kJobVertices = 1500;
// More threads gain less by filing cells than adding up their counts costs.
constexpr int kMostFilers = 4;
// The smallest share of a diagonal cell that may remain after elimination. Below it, a float retains three bits of the cell, and
// a solver with pivoting does better.
constexpr float kPivotFloor = 1.0f / (1 << 20);

} // namespace

int MultifrontalFactors::Node::pivotStrips() const
{
    return (pivots + kStrip - 1) / kStrip;
}

int MultifrontalFactors::Node::strips() const
{
    return pivotStrips() + (int(border.size()) + kStrip - 1) / kStrip;
}

std::size_t MultifrontalFactors::Node::panelFloats() const
{
    return std::size_t(panelStart(strips(), pivotStrips()));
}

void MultifrontalFactors::Free::operator()(void *block) const
{
    mklFree(block);
}

template<typename T>
MultifrontalFactors::Block<T> MultifrontalFactors::allocate(std::size_t count)
{
    constexpr int kAlignment = kStrip * sizeof(float);
    Block<T> result(static_cast<T *>(mklMalloc(std::max<std::size_t>(count, 1) * sizeof(T), kAlignment)));
    if (!result)
        throw std::bad_alloc();
    return result;
}

void MultifrontalFactors::findGrid(const SparseRows &matrix)
{
    // Vertices inside the image have the longest rows. Their columns form runs: the vertex's own grid row, then the next grid row
    // around the same x, and so on.
    std::int32_t longest = 0;
    const auto lengthOf = [&matrix](std::int32_t row) { return matrix.rowStarts[row + 1] - matrix.rowStarts[row]; };
    for (std::int32_t row = 1; row < order; ++row)
        if (lengthOf(row) > lengthOf(longest))
            longest = row;
    const std::int32_t *const last = matrix.columns + (matrix.rowStarts[longest + 1] - 1);
    const auto endOfRun = [last](const std::int32_t *column) {
        while (column + 1 < last && column[1] == column[0] + 1)
            ++column;
        return column + 1;
    };
    const std::int32_t *const first = matrix.columns + (matrix.rowStarts[longest] - 1);
    gridWidth = 1; // a single run means a band: a grid of one column, with a longer reach
    if (first < last) {
        const std::int32_t *const second = endOfRun(first);
        if (second < last)
            gridWidth = std::max(1, (second[0] + endOfRun(second)[-1]) / 2 - (longest + 1));
    }

    std::int32_t reachX = 0;
    std::int32_t reachY = 0;
#pragma omp parallel for schedule(static) num_threads(teamForRows()) reduction(max : reachX, reachY)
    for (std::int32_t row = 0; row < order; ++row) {
        const std::int32_t x = row % gridWidth;
        std::int32_t start = row - x; // of the grid row that the column is in; both rise from cell to cell
        std::int32_t y = 0;
        for (std::int32_t cell = matrix.rowStarts[row] - 1; cell < matrix.rowStarts[row + 1] - 1; ++cell) {
            const std::int32_t column = matrix.columns[cell] - 1;
            if (column - start >= gridWidth) {
                const std::int32_t further = (column - start) / gridWidth;
                y += further;
                start += further * gridWidth;
            }
            reachX = std::max(reachX, std::abs(column - start - x));
            reachY = std::max(reachY, y);
        }
    }
    reach[0] = reachX;
    reach[1] = reachY;
}

// Cuts the box in the direction that needs fewer separator vertices. The separator is as thick as the reach, so that no cell
// joins the two sides. Returns the node, or -1 if the box is too large for a leaf but can't be cut.
std::int32_t MultifrontalFactors::dissect(const Box &box)
{
    const std::int32_t width = box.right - box.left;
    const std::int32_t height = box.bottom - box.top;
    const auto subtreeFirst = std::int32_t(vertexAt.size());
    Node node{};
    node.children[0] = node.children[1] = -1;
    node.subtreeFirst = subtreeFirst;
    Box own = box;

    const std::int64_t vertices = std::int64_t(width) * height;
    const bool canCutX = width >= reach[0] + 2;
    const bool canCutY = height >= reach[1] + 2;
    if (vertices > kLeafVertices && (canCutX || canCutY)) {
        const bool cutX = canCutX && (!canCutY || std::int64_t(reach[0]) * height < std::int64_t(reach[1]) * width);
        Box low = box;
        Box high = box;
        if (cutX) {
            low.right = own.left = box.left + (width - reach[0]) / 2;
            high.left = own.right = own.left + reach[0];
        } else {
            low.bottom = own.top = box.top + (height - reach[1]) / 2;
            high.top = own.bottom = own.top + reach[1];
        }
        node.children[0] = dissect(low);
        node.children[1] = node.children[0] < 0 ? -1 : dissect(high);
        if (node.children[1] < 0)
            return -1;
    } else if (vertices > kMostLeafVertices) {
        return -1;
    }

    node.first = std::int32_t(vertexAt.size());
    for (std::int32_t y = own.top; y < own.bottom; ++y) {
        for (std::int32_t x = own.left; x < own.right; ++x) {
            const std::int64_t vertex = std::int64_t(y) * gridWidth + x;
            if (vertex < order) // the last grid row may be incomplete
                vertexAt.push_back(std::int32_t(vertex));
        }
    }
    node.pivots = std::int32_t(vertexAt.size()) - node.first;
    nodes.push_back(std::move(node));
    return std::int32_t(nodes.size()) - 1;
}

void MultifrontalFactors::fileCells(const SparseRows &matrix)
{
    // Each thread counts the cells of its rows by position, and puts them behind those of the threads before it.
    const auto positions = std::size_t(order);
    const int parts = std::min(teamForRows(), kMostFilers);
    std::vector<std::int32_t> places(positions * std::size_t(parts));
    const auto cellCount = std::size_t(matrix.count());
    cells = static_cast<Cell *>(memory.take(cellCount * sizeof(Cell)));
    if (cells == nullptr) {
        ownCells = allocate<Cell>(cellCount);
        cells = ownCells.get();
    }
    const auto everyCell = [&](int part, const auto &visit) {
        const auto last = std::int32_t(std::int64_t(order) * (part + 1) / parts);
        for (auto row = std::int32_t(std::int64_t(order) * part / parts); row < last; ++row) {
            const std::int32_t rowPosition = positionOf[std::size_t(row)];
            for (std::int32_t cell = matrix.rowStarts[row] - 1; cell < matrix.rowStarts[row + 1] - 1; ++cell) {
                const std::int32_t position = positionOf[std::size_t(matrix.columns[cell] - 1)];
                visit(std::size_t(std::min(rowPosition, position)), Cell{std::max(rowPosition, position), cell});
            }
        }
    };
#pragma omp parallel for schedule(static) num_threads(parts)
    for (int part = 0; part < parts; ++part) {
        std::int32_t *const count = places.data() + positions * std::size_t(part);
        everyCell(part, [count](std::size_t sooner, const Cell &) { ++count[sooner]; });
    }
    cellStarts.resize(positions + 1);
    std::int32_t filed = 0;
    for (std::size_t position = 0; position < positions; ++position) {
        cellStarts[position] = filed;
        for (int part = 0; part < parts; ++part)
            filed += std::exchange(places[positions * std::size_t(part) + position], filed);
    }
    cellStarts[positions] = filed;
#pragma omp parallel for schedule(static) num_threads(parts)
    for (int part = 0; part < parts; ++part) {
        std::int32_t *const next = places.data() + positions * std::size_t(part);
        everyCell(part, [&](std::size_t sooner, const Cell &cell) { cells[std::size_t(next[sooner]++)] = cell; });
    }
}

// `rowAt` holds, by position, the row of the front; -1 for positions outside the border, before and after.
void MultifrontalFactors::findBorder(std::int32_t number, std::int32_t *rowAt)
{
    Node &node = nodes[std::size_t(number)];
    const std::int32_t end = node.first + node.pivots;
    Cell *const firstCell = cells + cellStarts[std::size_t(node.first)];
    Cell *const lastCell = cells + cellStarts[std::size_t(end)];
    std::vector<std::int32_t> border;
    for (const Cell *cell = firstCell; cell != lastCell; ++cell) {
        if (cell->later >= end && rowAt[cell->later] < 0) {
            rowAt[cell->later] = 0;
            border.push_back(cell->later);
        }
    }
    std::sort(border.begin(), border.end());
    for (const std::int32_t child : node.children) {
        if (child < 0)
            continue;
        const std::vector<std::int32_t> &below = nodes[std::size_t(child)].border;
        std::vector<std::int32_t> both;
        both.reserve(border.size() + below.size());
        std::set_union(border.begin(), border.end(), std::lower_bound(below.begin(), below.end(), end), below.end(),
                       std::back_inserter(both));
        border.swap(both);
    }

    std::int32_t row = node.pivotStrips() * kStrip;
    for (const std::int32_t position : border)
        rowAt[position] = row++;
    const auto rowOf = [&](std::int32_t position) { return position < end ? position - node.first : rowAt[position]; };
    for (Cell *cell = firstCell; cell != lastCell; ++cell)
        cell->later = rowOf(cell->later);
    for (const std::int32_t child : node.children) {
        if (child < 0)
            continue;
        Node &below = nodes[std::size_t(child)];
        below.parentRows.resize(below.border.size());
        std::transform(below.border.begin(), below.border.end(), below.parentRows.begin(), rowOf);
    }
    for (const std::int32_t position : border)
        rowAt[position] = -1;
    node.border = std::move(border);
}

template<typename Visit>
void MultifrontalFactors::climb(std::int32_t number, const Visit &visit)
{
    const Node &node = nodes[std::size_t(number)];
    if (node.children[0] >= 0) {
        climb(node.children[0], visit);
        climb(node.children[1], visit);
    }
    visit(number);
}

// Loops instead of tasks: LLVM's OpenMP run-time (14) corrupts its memory when a thread that has created tasks ends and another
// thread creates some, and the preview starts a thread per run.
void MultifrontalFactors::planWaves(std::int32_t number, std::int32_t parent, std::size_t depth)
{
    const Node &node = nodes[std::size_t(number)];
    if (node.first - node.subtreeFirst <= kJobVertices) {
        subtrees.push_back({number, parent});
        return;
    }
    if (waves.size() <= depth)
        waves.resize(depth + 1);
    waves[depth].push_back({number, parent});
    for (const std::int32_t child : node.children)
        planWaves(child, number, depth + 1);
}

int MultifrontalFactors::teamForRows() const
{
    constexpr std::int32_t kRowsPerThread = 4096; // fewer take less time than waking a thread
    return std::clamp(order / kRowsPerThread, 1, team);
}

// A thread that finds no job would be woken for nothing.
int MultifrontalFactors::teamFor(const std::vector<Job> &jobs) const
{
    return int(std::min(std::size_t(team), std::max<std::size_t>(jobs.size(), 1)));
}

// Visits every node after its children, independent nodes at the same time. Stops early and returns false if a visit returns
// false.
template<typename Visit>
bool MultifrontalFactors::childrenFirst(const Visit &visit)
{
    enum State { Good, GaveUp, NoMemory };
    std::atomic<int> state{Good};
    // No exception may propagate out of a parallel loop.
    const auto guarded = [&](std::int32_t number) {
        if (state.load(std::memory_order_relaxed) != Good)
            return;
        try {
            if (!visit(number))
                state = GaveUp;
        } catch (const std::bad_alloc &) {
            state = NoMemory;
        }
    };
#pragma omp parallel for schedule(dynamic) num_threads(teamFor(subtrees))
    for (std::size_t i = 0; i < subtrees.size(); ++i)
        climb(subtrees[i].node, guarded);
    for (auto wave = waves.rbegin(); wave != waves.rend(); ++wave) {
        const std::vector<Job> &jobs = *wave;
#pragma omp parallel for schedule(dynamic) num_threads(teamFor(jobs))
        for (std::size_t i = 0; i < jobs.size(); ++i)
            guarded(jobs[i].node);
    }
    if (state == NoMemory)
        throw std::bad_alloc();
    return state == Good;
}

bool MultifrontalFactors::analyse(const SparseRows &matrix)
{
    order = matrix.order;
    findGrid(matrix);
    vertexAt.reserve(std::size_t(order));
    const std::int32_t gridHeight = std::int32_t((std::int64_t(order) + gridWidth - 1) / gridWidth);
    if (dissect({0, 0, gridWidth, gridHeight}) < 0)
        return false;

    positionOf.resize(std::size_t(order));
    for (std::int32_t position = 0; position < order; ++position)
        positionOf[std::size_t(vertexAt[std::size_t(position)])] = position;
    fileCells(matrix);
    planWaves(std::int32_t(nodes.size()) - 1, -1, 0);
    const auto positions = std::size_t(order);
    std::vector<std::int32_t> rowAt(positions * std::size_t(team), -1);
    childrenFirst([&](std::int32_t number) {
        findBorder(number, rowAt.data() + positions * std::size_t(omp_get_thread_num()));
        return true;
    });

    std::size_t localFloats = 0;
    for (Node &node : nodes) {
        node.localStart = localFloats;
        panelFloats += node.panelFloats();
        localFloats += std::size_t(node.strips()) * kStrip;
    }
    if (panelFloats > kMostFloatsPerVertex * std::size_t(order))
        return false;
    locals = allocate<float>(localFloats);
    return true;
}

bool MultifrontalFactors::factorise(const SparseRows &matrix)
{
    std::size_t left = 0;
    for (Node &node : nodes) {
        node.panel = static_cast<float *>(memory.take(node.panelFloats() * sizeof(float)));
        left += node.panel == nullptr ? node.panelFloats() : 0;
    }
    memory.releaseUnused();
    ownPanels = allocate<float>(left);
    float *next = ownPanels.get();
    for (Node &node : nodes) {
        if (node.panel == nullptr) {
            node.panel = next;
            next += node.panelFloats();
        }
    }
    const bool done = childrenFirst([&](std::int32_t number) { return eliminate(number, matrix.values); });
    for (Node &node : nodes)
        node.contribution.reset();
    return done;
}

bool MultifrontalFactors::eliminate(std::int32_t number, const float *values)
{
    Node &node = nodes[std::size_t(number)];
    const int pivotStrips = node.pivotStrips();
    const int strips = node.strips();
    float *const panel = node.panel;
    // Start of a row in the panel: column c is 16 c floats further.
    const auto inPanel = [pivotStrips](int row) { return panelStart(row / kStrip, pivotStrips) + row % kStrip; };

    float *contribution = nullptr;
    if (strips > pivotStrips) {
        // With a strip's width to spare on both sides, which the kernel that adds it to the parent reads.
        const auto count = std::size_t(contributionStart(strips - pivotStrips)) + 2 * kStrip;
        node.contribution = allocate<float>(count);
        std::fill_n(node.contribution.get(), count, 0.0f);
        contribution = node.contribution.get() + kStrip;
    }
    std::fill_n(panel, panelStart(strips, pivotStrips), 0.0f);
    float *const floors = locals.get() + node.localStart;
    std::fill(floors, floors + pivotStrips * kStrip, 0.0f);
    for (int pivot = 0; pivot < node.pivots; ++pivot) {
        const auto position = std::size_t(node.first + pivot);
        float *const column = panel + std::size_t(pivot) * kStrip;
        for (std::int32_t i = cellStarts[position]; i < cellStarts[position + 1]; ++i) {
            const Cell &cell = cells[std::size_t(i)];
            const float value = values[cell.source];
            column[inPanel(cell.later)] = value;
            if (cell.later == pivot)
                floors[pivot] = kPivotFloor * value;
        }
    }
    for (int pad = node.pivots; pad < pivotStrips * kStrip; ++pad)
        panel[inPanel(pad) + std::ptrdiff_t(pad) * kStrip] = 1.0f;

    const FrontKernels &kernels = frontKernels();
    for (const std::int32_t child : node.children) {
        if (child < 0)
            continue;
        Node &below = nodes[std::size_t(child)];
        if (below.border.empty())
            continue;
        kernels.add(below.contribution.get() + kStrip, int(below.border.size()), below.parentRows.data(), panel, pivotStrips,
                    contribution);
        below.contribution.reset();
    }
    if (!kernels.factor(panel, pivotStrips, strips, floors))
        return false;
    if (strips > pivotStrips)
        kernels.update(panel, node.pivots, pivotStrips, strips, contribution);
    return true;
}

void MultifrontalFactors::solve(float *rightHandSide)
{
    childrenFirst([&](std::int32_t number) {
        const Node &node = nodes[std::size_t(number)];
        float *const local = locals.get() + node.localStart;
        std::fill(local, local + node.strips() * kStrip, 0.0f);
        for (int pivot = 0; pivot < node.pivots; ++pivot)
            local[pivot] = rightHandSide[vertexAt[std::size_t(node.first + pivot)]];
        for (const std::int32_t child : node.children) {
            if (child < 0)
                continue;
            const Node &below = nodes[std::size_t(child)];
            const float *const from = locals.get() + below.localStart + below.pivotStrips() * kStrip;
            for (std::size_t i = 0; i < below.parentRows.size(); ++i)
                local[below.parentRows[i]] += from[i];
        }
        frontKernels().forward(node.panel, node.pivotStrips(), node.strips(), local);
        return true;
    });
    for (const std::vector<Job> &jobs : waves) {
#pragma omp parallel for schedule(dynamic) num_threads(teamFor(jobs))
        for (std::size_t i = 0; i < jobs.size(); ++i)
            substitute(jobs[i].node, jobs[i].parent, rightHandSide);
    }
    // From the last to the first: each pass begins with the panels that the one before has used last, and finds some in the
    // cache.
    const std::size_t last = subtrees.size() - 1;
#pragma omp parallel for schedule(dynamic) num_threads(teamFor(subtrees))
    for (std::size_t i = 0; i < subtrees.size(); ++i)
        descend(subtrees[last - i].node, subtrees[last - i].parent, rightHandSide);
}

void MultifrontalFactors::substitute(std::int32_t number, std::int32_t parent, float *solution)
{
    const Node &node = nodes[std::size_t(number)];
    float *const local = locals.get() + node.localStart;
    if (parent >= 0) {
        const float *const above = locals.get() + nodes[std::size_t(parent)].localStart;
        float *const border = local + node.pivotStrips() * kStrip;
        for (std::size_t i = 0; i < node.parentRows.size(); ++i)
            border[i] = above[node.parentRows[i]];
    }
    frontKernels().backward(node.panel, node.pivotStrips(), node.strips(), local);
    for (int pivot = 0; pivot < node.pivots; ++pivot)
        solution[vertexAt[std::size_t(node.first + pivot)]] = local[pivot];
}

void MultifrontalFactors::descend(std::int32_t number, std::int32_t parent, float *solution)
{
    substitute(number, parent, solution);
    for (const std::int32_t child : nodes[std::size_t(number)].children)
        if (child >= 0)
            descend(child, number, solution);
}
