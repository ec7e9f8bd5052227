#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A set of logical processors with room for a fixed number. Processors outside abandon the enumeration; see countTopology.h.
class GenericAffinityMask
{
public:
    /// Room for `processors` at least, none of them set.
    void allocate(std::uint32_t processors);
    void set(std::uint32_t processor);
    bool test(std::uint32_t processor) const;
    /// How many there is room for.
    std::uint32_t size() const { return std::uint32_t(bytes.size()) * 8; }

private:
    std::vector<std::uint8_t> bytes;
};

/// Counts over two indices. An index outside abandons the enumeration.
struct CountTable
{
    static constexpr std::uint32_t kSecondDimension = 256;

    void allocate(std::uint32_t firstDimension);
    std::uint32_t &at(std::uint32_t first, std::uint32_t second);

    std::uint32_t dim[2] = {0, 0};
    std::vector<std::uint32_t> counts;
};

/// What is known of the processors that this process may use. Made without a result; the first query fills it.
struct VCpuTopology
{
    /// Reasons for a failed enumeration, in `error`; the numbers that a reason may carry stand in its low bits.
    enum Error : std::uint32_t {
        Abandoned = 0x80000000u,        ///< Given up, or the processor tells no useful level.
        CountFailed = 0xC0800000u,      ///< Nothing came out of the count.
        MasksDisagree = 0xC1000000u,    ///< The masks don't agree with the processor count.
        SystemCallFailed = 0xC2000000u, ///< A system query failed, or a thread could not be bound.
        TooManyProcessors = 0xC4000000u ///< More than the system calls at hand address.
    };
    /// One logical processor.
    struct Processor
    {
        std::uint32_t apicId = 0;
        std::uint32_t index = 0; ///< The system's number.
        std::uint32_t package = 0;
        std::uint32_t core = 0;
        std::uint32_t thread = 0;
        std::vector<std::uint32_t> caches; ///< Identifier of the cache that it uses, one for each entry of VCpuTopology::caches.
    };
    struct Cache
    {
        std::string text; ///< Level, kind and size.
        std::uint32_t sizeKBytes = 0;
        std::uint32_t selectMask = 0; ///< The bits of an APIC identifier that its users have in common.
    };

    std::uint32_t error = 0;
    std::uint32_t osProcessorCount = 0; ///< Logical processors of the machine; 0 until the enumeration has run.
    std::uint32_t hasLeafB = 0;
    std::uint32_t coreCount = 0;   ///< Distinct cores found; 0 until then, and after a failure.
    std::uint32_t threadCount = 0; ///< Logical processors enumerated; the same.
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
    CountTable perPkg_detectedCoresCount;        ///< Threads of each (package, core), in the order of their finding.
    CountTable perEachCache_detectedThreadCount; ///< Threads of each (found cache, entry of `caches`).
    std::vector<Cache> caches;
};

/// The record in use, or null: the one made here, or the host's.
extern VCpuTopology *cpuTopology;

/// Takes the host's record, or makes one without a result if `shared` is null. The machine is asked at the first query.
void initTopology(VCpuTopology **shared);
/// Deletes the record that was made here; a lent one is only forgotten. Harmless without one.
void releaseTopology();

// The queries fill the record in use if nobody has, which takes one walk over the processors on a thread of its own: a binding is
// handed on to every thread that is started later, and the caller's would pull the OpenMP workers onto one processor. To be
// called by one thread at a time.

/// Cores, and logical processors, that the process may use; 0 if they could not be counted.
int coreCountOfMachine();
int logicalCountOfMachine();

/// The cores, or the OpenMP run-time's thread count if they can't be counted, or 1.
int physicalCores();
/// Logical processors for each core, truncated; at least 1.
int threadsPerCore();
