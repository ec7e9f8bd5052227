#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A set of logical processors of fixed capacity. A processor beyond it abandons the enumeration; see countTopology.h.
class GenericAffinityMask
{
public:
    /// Makes room for at least `processors`, none of them set.
    void allocate(std::uint32_t processors);
    void set(std::uint32_t processor);
    bool test(std::uint32_t processor) const;
    /// The capacity.
    std::uint32_t size() const { return std::uint32_t(bytes.size()) * 8; }

private:
    std::vector<std::uint8_t> bytes;
};

/// A table of counts with two indices. An index out of range abandons the enumeration.
struct CountTable
{
    static constexpr std::uint32_t kSecondDimension = 256;

    void allocate(std::uint32_t firstDimension);
    std::uint32_t &at(std::uint32_t first, std::uint32_t second);

    std::uint32_t dim[2] = {0, 0};
    std::vector<std::uint32_t> counts;
};

/// What is known about the processors that this process may use. Empty at first; the first query fills it.
struct VCpuTopology
{
    /// Reasons for a failed enumeration, in `error`. Fixed: hosts rely on the values; the low bits may hold a count.
    enum Error : std::uint32_t {
        Abandoned = 0x80000000u,        ///< Given up, or the processor reports no useful level.
        CountFailed = 0xC0800000u,      ///< No core was counted.
        MasksDisagree = 0xC1000000u,    ///< The masks contradict the processor count.
        SystemCallFailed = 0xC2000000u, ///< A system query failed, or a thread could not be bound.
        TooManyProcessors = 0xC4000000u ///< More than the available system calls address.
    };
    /// One logical processor.
    struct Processor
    {
        std::uint32_t apicId = 0;
        std::uint32_t index = 0; ///< The system's number.
        std::uint32_t package = 0;
        std::uint32_t core = 0;
        std::uint32_t thread = 0;
        std::vector<std::uint32_t> caches; ///< Identifiers of the caches it uses, one per entry of VCpuTopology::caches.
    };
    struct Cache
    {
        std::string text; ///< Level, kind and size.
        std::uint32_t sizeKBytes = 0;
        std::uint32_t selectMask = 0; ///< The bits of an APIC identifier that its users share.
    };

    std::uint32_t error = 0;
    std::uint32_t osProcessorCount = 0; ///< Logical processors of the machine; 0 until the enumeration has run.
    std::uint32_t hasLeafB = 0;
    std::uint32_t coreCount = 0;   ///< Distinct cores found; 0 before the enumeration and after a failure.
    std::uint32_t threadCount = 0; ///< Logical processors enumerated; likewise.
    std::uint32_t enumerated = 0;
    GenericAffinityMask processMask; ///< Processors that the process may use.
    GenericAffinityMask systemMask;
    std::vector<Processor> processors; ///< osProcessorCount + 1 records, of which the first threadCount are filled.
    std::uint32_t pkgSelectMask = 0;
    std::uint32_t pkgSelectShift = 0;
    std::uint32_t coreSelectMask = 0;
    std::uint32_t coreSelectShift = 0;
    std::uint32_t smtSelectMask = 0;
    std::uint32_t smtSelectWidth = 0;
    CountTable perPkg_detectedCoresCount;        ///< Threads of each (package, core), in the order in which they were found.
    CountTable perEachCache_detectedThreadCount; ///< Threads of each (found cache, entry of `caches`).
    std::vector<Cache> caches;
};

/// The record in use, or null: the one made here, or the host's.
extern VCpuTopology *cpuTopology;

/// Uses the host's record, or creates an empty one if `shared` is null. The machine is not examined before the first query.
void initTopology(VCpuTopology **shared);
/// Deletes a record created here; a lent one is only forgotten. Harmless if there is none.
void releaseTopology();

// The queries fill the record in use if it is still empty. That takes one walk over the processors, on a separate thread: later
// threads inherit the binding of the thread that starts them, and a bound caller would pull the OpenMP workers onto one
// processor. Call the queries from one thread at a time.

/// The cores and the logical processors that the process may use; 0 if they can't be counted.
int coreCountOfMachine();
int logicalCountOfMachine();

/// The number of cores; the OpenMP run-time's thread count if they can't be counted; at least 1.
int physicalCores();
/// Logical processors per core, truncated; at least 1.
int threadsPerCore();
