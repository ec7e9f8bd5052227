#include "VCpuTopology.h"

#include <system_error>
#include <thread>

#include <omp.h>

#include "countTopology.h"

VCpuTopology *cpuTopology = nullptr;

static VCpuTopology *ownTopology = nullptr;

namespace {

/// The machine's answers, read on a thread whose bindings end with it; empty if that fails.
TopologyRecords readOnOwnThread()
{
    TopologyRecords records;
    try {
        std::thread walker([&records] {
            try {
                records = readTopology();
            } catch (...) { // out of memory: an incomplete answer is useless
            }
        });
        walker.join();
    } catch (const std::system_error &) { // no thread is available
    }
    return records;
}

bool ensureEnumeration()
{
    if (!cpuTopology)
        return false;
    if (!cpuTopology->enumerated)
        countTopology(readOnOwnThread(), *cpuTopology);
    return cpuTopology->error == 0;
}

/// `counted`, or the OpenMP run-time's thread count if it is 0; at least 1.
int orOpenMpThreads(int counted)
{
    if (counted > 0)
        return counted;
    const int threads = omp_get_max_threads();
    return threads > 0 ? threads : 1;
}

} // namespace

void initTopology(VCpuTopology **shared)
{
    if (shared) {
        cpuTopology = *shared;
    } else {
        releaseTopology();
        cpuTopology = ownTopology = new VCpuTopology;
    }
}

void releaseTopology()
{
    delete ownTopology;
    ownTopology = cpuTopology = nullptr;
}

int coreCountOfMachine()
{
    return ensureEnumeration() ? int(cpuTopology->coreCount) : 0;
}

int logicalCountOfMachine()
{
    return ensureEnumeration() ? int(cpuTopology->threadCount) : 0;
}

int physicalCores()
{
    return orOpenMpThreads(coreCountOfMachine());
}

int threadsPerCore()
{
    // Fixed: hosts rely on the truncated quotient, also with unequal cores.
    return orOpenMpThreads(logicalCountOfMachine()) / orOpenMpThreads(coreCountOfMachine());
}
