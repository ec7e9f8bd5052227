#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "GivenMemory.h"
#include "SparseRows.h"

/// Cholesky factors LL' of a positive definite matrix that couples neighbours on a grid numbered row by row, as an image does.
/// Several times faster there than a general solver, since nested dissection can be read off the grid.
///
/// The grid is recognised from the pattern, and the pattern alone decides which unknowns are eliminated together. Any other
/// pattern, or a pivot that is not clearly positive, returns `false`, and the caller turns to another solver. Runs a team of the
/// size given to the constructor; the results do not depend on it. Safe on several threads, each with its own object. Source: A.
/// George, Nested Dissection of a Regular Finite Element Mesh, SIAM J. Numer. Anal. 10 (1973); I. Duff, J. Reid, The Multifrontal
/// Solution of Indefinite Sparse Symmetric Linear Equations, ACM TOMS 9 (1983).
class MultifrontalFactors
{
public:
    /// `teamSize` is at least 1. `given` is used before new memory.
    MultifrontalFactors(int teamSize, GivenMemory given) : team(teamSize), memory(std::move(given)) {}
    /// Ordering and symbolic factorisation. False for any other pattern. Throws std::bad_alloc.
    [[nodiscard]] bool analyse(const SparseRows &matrix);
    /// Numerical factorisation of the analysed matrix. False if a pivot would have to be perturbed. Throws std::bad_alloc.
    [[nodiscard]] bool factorise(const SparseRows &matrix);
    /// Solves in place.
    void solve(float *rightHandSide);
    /// Number of floats in the factors.
    std::int64_t entryCount() const { return std::int64_t(panelFloats); }

private:
    struct Free
    {
        void operator()(void *block) const;
    };
    template<typename T>
    using Block = std::unique_ptr<T[], Free>;

    /// Vertices that are eliminated together, in one dense front: a leaf of the dissection, or a separator with two children.
    struct Node
    {
        std::int32_t subtreeFirst; ///< Positions subtreeFirst to first + pivots are this node's subtree.
        std::int32_t first;        ///< First position of the node's own vertices in the elimination order.
        std::int32_t pivots;
        std::int32_t children[2] = {-1, -1};
        std::vector<std::int32_t> border;     ///< Later positions that the node's subtree touches, ascending.
        std::vector<std::int32_t> parentRows; ///< The row of each border position in the parent's front.
        float *panel = nullptr;
        std::size_t localStart = 0;
        Block<float> contribution; ///< Exists from this node's elimination to its parent's, with padding before and after it.

        int pivotStrips() const;
        int strips() const;
        std::size_t panelFloats() const;
    };
    struct Box
    {
        std::int32_t left, top, right, bottom; // right and bottom are exclusive
    };
    struct Job
    {
        std::int32_t node;
        std::int32_t parent; ///< -1 for the root.
    };
    /// A cell of the matrix, stored with whichever of its two vertices is eliminated first.
    struct Cell
    {
        std::int32_t later;  ///< The other vertex: its position; once the borders are known, its row in the front.
        std::int32_t source; ///< Index into the values.
    };

    /// Uninitialised memory. Throws std::bad_alloc.
    template<typename T>
    static Block<T> allocate(std::size_t count);
    void findGrid(const SparseRows &matrix);
    std::int32_t dissect(const Box &box);
    void fileCells(const SparseRows &matrix);
    void findBorder(std::int32_t node, std::int32_t *rowAt);
    bool eliminate(std::int32_t node, const float *values);
    template<typename Visit>
    bool childrenFirst(const Visit &visit);
    template<typename Visit>
    void climb(std::int32_t node, const Visit &visit);
    int teamForRows() const;
    int teamFor(const std::vector<Job> &jobs) const;
    void planWaves(std::int32_t node, std::int32_t parent, std::size_t depth);
    void substitute(std::int32_t node, std::int32_t parent, float *solution);
    void descend(std::int32_t node, std::int32_t parent, float *solution);

    int team;
    std::int32_t order = 0;
    std::int32_t gridWidth = 1;
    std::int32_t reach[2] = {0, 0};      ///< Greatest distance in x and y of two vertices that share a cell.
    std::vector<Node> nodes;             ///< Children before parents; the last is the root.
    std::vector<Job> subtrees;           ///< Small subtrees, each visited by one thread.
    std::vector<std::vector<Job>> waves; ///< The nodes above them, by depth, root first; those of one wave are independent.
    std::vector<std::int32_t> positionOf;
    std::vector<std::int32_t> vertexAt;
    std::vector<std::int32_t> cellStarts; ///< By position.
    GivenMemory memory;
    Cell *cells = nullptr; ///< Given, or in ownCells.
    Block<Cell> ownCells;
    std::size_t panelFloats = 0;
    Block<float> ownPanels; ///< Those that the given memory has no room for.
    Block<float> locals;    ///< One float per row of each front, for the solution.
};
