#pragma once

#include <cstddef>
#include <cstdint>

/// The system layer: disk space, the performance counter, logical processors and thread binding, under the names that the rooms
/// above call. One source file per system. Nothing here throws; unless said otherwise a call returns true on success, and after a
/// failure GetLastError gives the system's error number. Every call is safe on any thread.

/// Error number of the calling thread's last failed call of this layer.
std::uint32_t GetLastError();

/// Bytes on the volume that holds `path`: free for the calling user, in all, and free in all. `path` must exist. Any of the three
/// results may be null.
bool GetDiskFreeSpaceExW(const wchar_t *path, std::uint64_t *freeForCaller, std::uint64_t *total, std::uint64_t *totalFree);

/// Ticks of a steady clock.
bool QueryPerformanceCounter(std::int64_t *ticks);
/// Ticks per second of that clock; fixed while the process runs.
bool QueryPerformanceFrequency(std::int64_t *ticksPerSecond);

/// Wishes that a fresh block of the heap lies on huge pages, so that its first touch costs a fault for every 2 MB and not for
/// every 4 KB. Without effect on blocks below 32 MB, on a null, and where the system has none.
void AdviseHugePages(void *block, std::size_t bytes);

/// Address space of `bytes` bytes (a multiple of 4096), all 0, that takes memory only where it is touched, on huge pages where
/// the system has them. It starts on the border of one. Null if it can't be had. The caller gives it back with ReleaseMemory,
/// with the same size.
void *ReserveMemory(std::size_t bytes);
void ReleaseMemory(void *memory, std::size_t bytes);

// Logical processors are numbered densely from 0, in the system's order, without those that are switched off. A group holds the
// next 32 of them, so that a mask of 32 bits addresses each processor of a group.
constexpr std::uint32_t kProcessorsPerGroup = 32;
constexpr std::uint32_t kMaximumProcessors = 128; ///< As many as the group calls address.
constexpr std::uint32_t kMaximumGroups = 256;     ///< As many as the system may have.
constexpr std::uint16_t kAllProcessorGroups = 0xFFFF;

struct ProcessorGroup
{
    std::uint32_t activeProcessorCount;
    std::uint32_t activeProcessorMask;
};
/// Where a logical processor sits, as the system tells it. Two processors of the same package and core are threads of one core.
struct ProcessorPlace
{
    std::int32_t package;
    std::int32_t core;
};

enum ProcessorRelation : std::int32_t { RelationProcessorCore = 0, RelationGroup = 4 };
struct LogicalProcessorInformation
{
    std::int32_t relation; ///< Which of the two below is filled.
    std::uint32_t count;   ///< Entries filled, or the number of logical processors for the place of each.
    ProcessorGroup groups[kMaximumGroups];
    ProcessorPlace places[kMaximumProcessors];
};
struct GroupAffinity
{
    std::uint32_t mask;
    std::uint16_t group;
};

/// Whether the system has the group calls; without them the plain masks serve.
bool HasProcessorGroups();
/// Logical processors of a group, or of all with kAllProcessorGroups; 0 if there is no such group or they can't be counted.
std::uint32_t GetMaximumProcessorCount(std::uint16_t group);
/// 0 if the processors can't be counted.
std::uint16_t GetActiveProcessorGroupCount();
/// Fails if the system does not tell the relation, or has more processors or groups than there is room for.
bool GetLogicalProcessorInformationEx(std::int32_t relation, LogicalProcessorInformation *information);

/// The processors that the process may use, which is what its first thread may use, out of the group that is named in `affinity`.
bool GetProcessGroupAffinity(GroupAffinity *affinity);
/// The same for the calling thread.
bool GetThreadGroupAffinity(GroupAffinity *affinity);
/// Binds the calling thread to the processors of one group. Threads that it starts later inherit the binding.
bool SetThreadGroupAffinity(const GroupAffinity &affinity);

/// The first 32 processors: those that the process may use, and those that there are.
bool GetProcessAffinityMask(std::uint32_t *processMask, std::uint32_t *systemMask);
/// Binds the calling thread to some of the first 32 processors.
bool SetThreadAffinityMask(std::uint32_t mask);

struct CpuidRegisters
{
    std::uint32_t eax;
    std::uint32_t ebx;
    std::uint32_t ecx;
    std::uint32_t edx;
};
/// What the CPUID instruction answers on the processor that the calling thread runs on. False, with nothing changed, on another
/// family of processors.
bool ReadCpuid(std::uint32_t leaf, std::uint32_t subleaf, CpuidRegisters *registers);

// What a container or a service grants the process. Its control groups, from its own up to the root, may each set a limit; the
// tightest holds. `root` is put before the system's paths.

/// How many processors' worth of time the process may take, rounded up; 0 for no limit.
std::uint32_t GetProcessorQuota(const char *root = "");
/// Bytes that the process may take without pushing anything out: the system's own estimate, or less where a control group is
/// nearer to its limit. Two gigabytes, or less for a control group, if the system gives no estimate.
std::uint64_t GetAvailableMemory(const char *root = "");
