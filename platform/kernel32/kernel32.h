#pragma once

#include <cstddef>
#include <cstdint>

/// The system layer: disk space, the performance counter, memory, logical processors and thread binding, under the names that the
/// rooms above use. One source file per system. Nothing here throws; a call that returns bool returns true on success unless
/// noted otherwise, and after a failure GetLastError gives the system's error number. Every call is safe on any thread.

/// Error number of the calling thread's last failed call of this layer.
std::uint32_t GetLastError();

/// Bytes on the volume that holds `path`: free for the calling user, the volume's size, and free altogether. `path` must exist.
/// Any of the three result pointers may be null.
[[nodiscard]] bool GetDiskFreeSpaceExW(const wchar_t *path, std::uint64_t *freeForCaller, std::uint64_t *total,
                                       std::uint64_t *totalFree);

/// Ticks of a steady clock.
[[nodiscard]] bool QueryPerformanceCounter(std::int64_t *ticks);
/// Ticks per second of that clock; fixed while the process runs.
[[nodiscard]] bool QueryPerformanceFrequency(std::int64_t *ticksPerSecond);

/// Asks the system to put a newly allocated heap block on huge pages, so that touching it first costs one page fault per 2 MB
/// instead of per 4 KB. No effect on null, on blocks below 32 MB, or on systems without huge pages.
void AdviseHugePages(void *block, std::size_t bytes);

/// Reserves `bytes` bytes (a multiple of 4096) of zeroed address space that takes memory only where it is touched, on huge pages
/// where the system has them. Starts on a huge-page boundary. Null on failure. The caller releases all of it with ReleaseMemory,
/// at once or in parts that begin on page boundaries.
void *ReserveMemory(std::size_t bytes);
void ReleaseMemory(void *memory, std::size_t bytes);

// Logical processors are numbered from 0 without gaps, in the system's order, leaving out those that are offline. Each group
// holds the next 32 of them, so that a mask of 32 bits addresses every processor of a group.
constexpr std::uint32_t kProcessorsPerGroup = 32;
constexpr std::uint32_t kMaximumProcessors = 128; ///< The most that the group calls address.
constexpr std::uint32_t kMaximumGroups = 256;     ///< The most that the system may have.
constexpr std::uint16_t kAllProcessorGroups = 0xFFFF;

struct ProcessorGroup
{
    std::uint32_t activeProcessorCount;
};
/// Location of a logical processor as reported by the system. Two processors with the same package and core are threads of one
/// core.
struct ProcessorPlace
{
    std::int32_t package;
    std::int32_t core;
};

enum ProcessorRelation : std::int32_t { RelationProcessorCore = 0, RelationGroup = 4 };
struct LogicalProcessorInformation
{
    std::int32_t relation; ///< Which of the two arrays below is filled.
    std::uint32_t count;   ///< Number of groups, or of logical processors.
    ProcessorGroup groups[kMaximumGroups];
    ProcessorPlace places[kMaximumProcessors];
};
struct GroupAffinity
{
    std::uint32_t mask;
    std::uint16_t group;
};

/// Whether the system has the group calls; if not, the plain masks are used.
[[nodiscard]] bool HasProcessorGroups();
/// Logical processors of a group, or of all with kAllProcessorGroups; 0 if there is no such group or they can't be counted.
std::uint32_t GetMaximumProcessorCount(std::uint16_t group);
/// 0 if the processors can't be counted.
std::uint16_t GetActiveProcessorGroupCount();
/// Fails if the system does not report this relation, or has more processors or groups than fit.
[[nodiscard]] bool GetLogicalProcessorInformationEx(std::int32_t relation, LogicalProcessorInformation *information);

/// The processors of the group given in `affinity` that the process (that is, its first thread) may use.
[[nodiscard]] bool GetProcessGroupAffinity(GroupAffinity *affinity);
/// The same for the calling thread.
[[nodiscard]] bool GetThreadGroupAffinity(GroupAffinity *affinity);
/// Binds the calling thread to the processors of one group. Threads that it starts later inherit the binding.
[[nodiscard]] bool SetThreadGroupAffinity(const GroupAffinity &affinity);

/// Of the first 32 processors: those that the process may use, and those that exist.
[[nodiscard]] bool GetProcessAffinityMask(std::uint32_t *processMask, std::uint32_t *systemMask);
/// Binds the calling thread to some of the first 32 processors.
[[nodiscard]] bool SetThreadAffinityMask(std::uint32_t mask);

struct CpuidRegisters
{
    std::uint32_t eax;
    std::uint32_t ebx;
    std::uint32_t ecx;
    std::uint32_t edx;
};
/// The answer of the CPUID instruction on the calling thread's current processor. False, with nothing changed, on processors
/// without that instruction.
[[nodiscard]] bool ReadCpuid(std::uint32_t leaf, std::uint32_t subleaf, CpuidRegisters *registers);

// Limits that a container or service manager sets for the process. Each of its control groups, from its own up to the root, may
// set one; the tightest applies. `root` is prepended to the system's paths.

/// How many processors' worth of time the process may use, rounded up; 0 for no limit.
std::uint32_t GetProcessorQuota(const char *root = "");
/// Bytes that the process may allocate without displacing anything: the system's estimate (2 GiB if it gives none), or less if a
/// control group is closer to its limit.
std::uint64_t GetAvailableMemory(const char *root = "");
