#include "ipp.h"

#include <cmath>

IppStatus ippmInvert3x3(const float source[9], float target[9])
{
    const auto m = [source](int row, int column) { return double(source[row * 3 + column]); };
    // Row r, column c of the adjugate is the cofactor of element (c, r); counting rows and columns modulo 3 also gives its sign.
    const auto adjugate = [&m](int row, int column) {
        const int c1 = (row + 1) % 3, c2 = (row + 2) % 3, r1 = (column + 1) % 3, r2 = (column + 2) % 3;
        return m(r1, c1) * m(r2, c2) - m(r1, c2) * m(r2, c1);
    };
    const double determinant = m(0, 0) * adjugate(0, 0) + m(0, 1) * adjugate(1, 0) + m(0, 2) * adjugate(2, 0);
    if (determinant == 0.0 || !std::isfinite(determinant))
        return ippStsSingularErr;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            target[row * 3 + column] = float(adjugate(row, column) / determinant);
    }
    return ippStsNoErr;
}

IppStatus ippmMul3x3(const float matrix[9], const float vector[3], float target[3])
{
    for (int row = 0; row < 3; ++row)
        target[row] = matrix[row * 3] * vector[0] + matrix[row * 3 + 1] * vector[1] + matrix[row * 3 + 2] * vector[2];
    return ippStsNoErr;
}
