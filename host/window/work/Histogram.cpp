#include "Histogram.h"

Histogram histogramOf(const OpenPhoto &, int)
{
    return {};
}
