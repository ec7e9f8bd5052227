#include "FileThreadLimit.h"

#include <algorithm>

#include <omp.h>

#include "threadCount.h"

int fileThreadCount()
{
    return std::max(1, std::min(int(threadCount), omp_get_max_threads()));
}

FileThreadLimit::FileThreadLimit(int threads) : before(omp_get_max_threads())
{
    omp_set_num_threads(std::clamp(threads, 1, before));
}

FileThreadLimit::~FileThreadLimit()
{
    omp_set_num_threads(before);
}
