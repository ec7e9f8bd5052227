#include "VCpuTopology.h"

#include <system_error>
#include <thread>

#include <omp.h>

#include "countTopology.h"

VCpuTopology *cpuTopology = nullptr;

static VCpuTopology *ownTopology = nullptr;

namespace {

/// The machine's answers, read on a thread that ends with its bindings; none if that could not be done.
TopologyRecords readOnOwnThread()
{
    TopologyRecords records;
    try {
        std::thread walker([&records] {
            try {
                records = readTopology();
            } catch (...) { // out of memory: what was read so far is no answer
            }
        });
        walker.join();
    } catch (const std::system_error &) { // no thread to be had
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

/// The run-time's own count where there is none of ours; at least 1.
int orThreads(int counted)
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
    return orThreads(coreCountOfMachine());
}

int threadsPerCore()
{
    return orThreads(logicalCountOfMachine()) / orThreads(coreCountOfMachine());
}
