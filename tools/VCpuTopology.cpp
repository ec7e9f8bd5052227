#include "VCpuTopology.h"

#include <omp.h>
struct VCpuTopology
{
};
VCpuTopology *cpuTopology = nullptr;
void initTopology(VCpuTopology **shared)
{
    cpuTopology = shared ? *shared : new VCpuTopology{};
}
void releaseTopology()
{
    delete cpuTopology;
    cpuTopology = nullptr;
}
int coreCountOfMachine()
{
    return 0;
}
int logicalCountOfMachine()
{
    return 0;
}
int physicalCores()
{
    return omp_get_max_threads();
}
int threadsPerCore()
{
    return 1;
}
