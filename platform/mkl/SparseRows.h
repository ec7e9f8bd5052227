#pragma once

#include <cstdint>

/// A matrix in the form that callers pass to the layer: compressed rows, one-based, columns strictly ascending. Owns nothing.
struct SparseRows
{
    bool symmetric; ///< Only the upper triangle with the diagonal is given.
    std::int32_t order;
    const float *values;
    const std::int32_t *rowStarts;
    const std::int32_t *columns;

    std::int32_t count() const { return rowStarts[order] - 1; }
};
