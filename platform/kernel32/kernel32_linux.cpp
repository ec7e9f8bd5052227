#include "kernel32.h"

#include <algorithm>
#include <bitset>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <fstream>
#include <string>
#include <vector>

#include <sched.h>
#include <sys/mman.h>
#include <sys/statvfs.h>
#include <time.h>
#include <unistd.h>

#if defined(__x86_64__) || defined(__i386__)
#    define KERNEL32_HAS_CPUID
#    include <cpuid.h>
#endif

namespace {

thread_local std::uint32_t lastError = 0;

bool fail(int error)
{
    lastError = std::uint32_t(error);
    return false;
}

// A mask of the lowest `count` processors; 0 is special, since a shift can't be as wide as the mask.
std::uint32_t maskOfProcessors(std::uint32_t count)
{
    return count == 0 ? 0 : 0xFFFFFFFFu >> (kProcessorsPerGroup - count);
}

/// A set of the kernel's processor numbers; today's machines have fewer than this.
using ProcessorSet = std::bitset<8192>;

/// Reads a list such as 0-3,8; an empty set if there is no such file.
ProcessorSet processorList(const char *path)
{
    ProcessorSet set;
    std::ifstream file(path);
    for (std::string range; std::getline(file, range, ',');) {
        unsigned first = 0;
        unsigned last = 0;
        const int numbers = std::sscanf(range.c_str(), "%u-%u", &first, &last);
        if (numbers < 1)
            continue;
        if (numbers == 1)
            last = first;
        for (unsigned i = first; i <= last && i < set.size(); ++i)
            set.set(i);
    }
    return set;
}

/// The kernel's numbers of the processors that are online, in ascending order: the index in this list is our number.
std::vector<std::size_t> onlineProcessors()
{
    ProcessorSet set = processorList("/sys/devices/system/cpu/online");
    if (set.none()) // no /sys: assume that the kernel numbers them from 0
        for (long i = 0; i < sysconf(_SC_NPROCESSORS_ONLN); ++i)
            set.set(std::size_t(i));
    std::vector<std::size_t> numbers;
    for (std::size_t i = 0; i < set.size(); ++i)
        if (set[i])
            numbers.push_back(i);
    return numbers;
}

/// A processor mask as wide as the kernel needs it.
using KernelMask = std::vector<unsigned long>;
constexpr std::size_t kMaskWords = ProcessorSet().size() / (8 * sizeof(unsigned long));

bool allowedProcessors(pid_t thread, ProcessorSet &set)
{
    KernelMask mask(kMaskWords);
    if (sched_getaffinity(thread, mask.size() * sizeof(unsigned long), reinterpret_cast<cpu_set_t *>(mask.data())) != 0)
        return fail(errno);
    for (std::size_t i = 0; i < set.size(); ++i)
        set[i] = CPU_ISSET_S(i, mask.size() * sizeof(unsigned long), reinterpret_cast<cpu_set_t *>(mask.data()));
    return true;
}

bool groupAffinity(pid_t thread, GroupAffinity *affinity)
{
    if (affinity->group >= GetActiveProcessorGroupCount())
        return fail(EINVAL);
    ProcessorSet allowed;
    if (!allowedProcessors(thread, allowed))
        return false;
    const std::vector<std::size_t> online = onlineProcessors();
    affinity->mask = 0;
    for (std::size_t bit = 0, i = affinity->group * kProcessorsPerGroup; bit < kProcessorsPerGroup && i < online.size();
         ++bit, ++i)
        if (allowed[online[i]])
            affinity->mask |= 1u << bit;
    return true;
}

template<typename Number>
bool readNumber(const std::string &path, Number &number)
{
    std::ifstream file(path);
    return bool(file >> number);
}

/// The folders of the control groups that may limit this controller for the process, from its own group up to the root. In a
/// container the process's own path is often that of the outside system, and only the root exists.
std::vector<std::string> controlGroups(const std::string &root, const std::string &controller)
{
    const std::string mountPoint = root + "/sys/fs/cgroup";
    std::vector<std::string> folders;
    std::ifstream groups(root + "/proc/self/cgroup");
    for (std::string line; std::getline(groups, line);) { // number:controllers:path
        const std::size_t names = line.find(':');
        const std::size_t path = line.find(':', names + 1);
        if (names == std::string::npos || path == std::string::npos)
            continue;
        const std::string controllers = line.substr(names + 1, path - names - 1);
        std::vector<std::string> hierarchies;
        if (controllers.empty()) // the unified hierarchy
            hierarchies = {"", "/unified"};
        else if (("," + controllers + ",").find("," + controller + ",") != std::string::npos)
            hierarchies = {"/" + controller, "/" + controllers};
        for (const std::string &hierarchy : hierarchies) {
            const std::size_t shortest = mountPoint.size() + hierarchy.size();
            for (std::string folder = mountPoint + hierarchy + line.substr(path + 1); folder.size() >= shortest;
                 folder.resize(folder.find_last_of('/')))
                folders.push_back(folder);
        }
    }
    return folders;
}

/// How many processors' worth of time one control group grants, or -1 for no limit.
double quotaOf(const std::string &folder)
{
    std::string quota;
    double period = 0;
    if (std::ifstream unified(folder + "/cpu.max"); unified >> quota >> period)
        return quota == "max" || period <= 0 ? -1 : std::strtod(quota.c_str(), nullptr) / period;
    double share = 0;
    if (std::ifstream(folder + "/cpu.cfs_quota_us") >> share && std::ifstream(folder + "/cpu.cfs_period_us") >> period)
        return share <= 0 || period <= 0 ? -1 : share / period;
    return -1;
}

/// Lowers `bytes` to what one control group still grants, if it sets a limit. File pages count as used there but can be
/// reclaimed.
void applyMemoryLimit(const std::string &folder, std::int64_t &bytes)
{
    constexpr const char *kLimits[][3] = {
        {"/memory.max", "/memory.current", ""},
        {"/memory.high", "/memory.current", ""}, // above it the system slows the process down
        {"/memory.limit_in_bytes", "/memory.usage_in_bytes", "total_"},
    };
    for (const auto &[limitName, usedName, prefix] : kLimits) {
        std::int64_t limit = 0;
        std::int64_t used = 0;
        if (!readNumber(folder + limitName, limit) || !readNumber(folder + usedName, used))
            continue;
        std::ifstream details(folder + "/memory.stat");
        std::string name;
        for (std::int64_t count = 0; details >> name >> count;)
            if (name == std::string(prefix) + "inactive_file" || name == std::string(prefix) + "active_file")
                used -= count;
        bytes = std::min(bytes, std::max<std::int64_t>(limit - std::max<std::int64_t>(used, 0), 0));
    }
}

constexpr std::size_t kHugePage = std::size_t(2) << 20;

std::size_t gapToHugePage(const void *block)
{
    return -reinterpret_cast<std::uintptr_t>(block) & (kHugePage - 1);
}

} // namespace

std::uint32_t GetLastError()
{
    return lastError;
}

bool GetDiskFreeSpaceExW(const wchar_t *path, std::uint64_t *freeForCaller, std::uint64_t *total, std::uint64_t *totalFree)
{
    std::mbstate_t state{};
    const wchar_t *rest = path;
    const std::size_t length = std::wcsrtombs(nullptr, &rest, 0, &state);
    if (length == std::size_t(-1))
        return fail(errno);
    std::string bytes(length, '\0');
    state = {};
    rest = path;
    std::wcsrtombs(bytes.data(), &rest, length, &state);

    struct statvfs volume;
    if (statvfs(bytes.c_str(), &volume) != 0)
        return fail(errno);
    const std::uint64_t block = volume.f_frsize;
    if (freeForCaller)
        *freeForCaller = volume.f_bavail * block;
    if (total)
        *total = volume.f_blocks * block;
    if (totalFree)
        *totalFree = volume.f_bfree * block;
    return true;
}

bool QueryPerformanceCounter(std::int64_t *ticks)
{
    timespec now;
    if (clock_gettime(CLOCK_MONOTONIC, &now) != 0)
        return fail(errno);
    *ticks = std::int64_t(now.tv_sec) * 1000000000 + now.tv_nsec;
    return true;
}

bool QueryPerformanceFrequency(std::int64_t *ticksPerSecond)
{
    *ticksPerSecond = 1000000000;
    return true;
}

std::uint32_t GetMaximumProcessorCount(std::uint16_t group)
{
    const auto all = std::uint32_t(onlineProcessors().size());
    if (group == kAllProcessorGroups)
        return all;
    const std::uint32_t first = group * kProcessorsPerGroup;
    return first < all ? std::min(all - first, kProcessorsPerGroup) : 0;
}

bool HasProcessorGroups()
{
    return true;
}

std::uint16_t GetActiveProcessorGroupCount()
{
    const std::uint32_t all = GetMaximumProcessorCount(kAllProcessorGroups);
    return std::uint16_t((all + kProcessorsPerGroup - 1) / kProcessorsPerGroup);
}

bool GetLogicalProcessorInformationEx(std::int32_t relation, LogicalProcessorInformation *information)
{
    const std::vector<std::size_t> online = onlineProcessors();
    const std::size_t room = relation == RelationGroup ? kMaximumGroups * kProcessorsPerGroup : kMaximumProcessors;
    if (online.empty() || online.size() > room)
        return fail(EOVERFLOW);
    if (relation != RelationGroup && relation != RelationProcessorCore)
        return fail(EINVAL);
    *information = {};
    information->relation = relation;
    if (relation == RelationGroup) {
        const std::uint16_t groups = GetActiveProcessorGroupCount();
        information->count = groups;
        for (std::uint16_t group = 0; group < groups; ++group)
            information->groups[group] = {GetMaximumProcessorCount(group)};
        return true;
    }
    information->count = std::uint32_t(online.size());
    for (std::size_t i = 0; i < online.size(); ++i) {
        const std::string folder = "/sys/devices/system/cpu/cpu" + std::to_string(online[i]) + "/topology/";
        ProcessorPlace &place = information->places[i];
        if (!readNumber(folder + "physical_package_id", place.package) || !readNumber(folder + "core_id", place.core))
            return fail(ENOENT);
    }
    return true;
}

bool GetProcessGroupAffinity(GroupAffinity *affinity)
{
    return groupAffinity(getpid(), affinity);
}

bool GetThreadGroupAffinity(GroupAffinity *affinity)
{
    return groupAffinity(0, affinity);
}

bool SetThreadGroupAffinity(const GroupAffinity &affinity)
{
    const std::vector<std::size_t> online = onlineProcessors();
    KernelMask mask(kMaskWords);
    const std::size_t bytes = mask.size() * sizeof(unsigned long);
    for (std::size_t bit = 0, i = affinity.group * kProcessorsPerGroup; bit < kProcessorsPerGroup; ++bit, ++i) {
        if (!(affinity.mask >> bit & 1u))
            continue;
        if (i >= online.size())
            return fail(EINVAL);
        CPU_SET_S(online[i], bytes, reinterpret_cast<cpu_set_t *>(mask.data()));
    }
    return sched_setaffinity(0, bytes, reinterpret_cast<cpu_set_t *>(mask.data())) == 0 || fail(errno);
}

bool GetProcessAffinityMask(std::uint32_t *processMask, std::uint32_t *systemMask)
{
    GroupAffinity first{0, 0};
    if (!GetProcessGroupAffinity(&first))
        return false;
    *processMask = first.mask;
    *systemMask = maskOfProcessors(GetMaximumProcessorCount(0));
    return true;
}

bool SetThreadAffinityMask(std::uint32_t mask)
{
    return SetThreadGroupAffinity({mask, 0});
}

bool ReadCpuid(std::uint32_t leaf, std::uint32_t subleaf, CpuidRegisters *registers)
{
#ifdef KERNEL32_HAS_CPUID
    __cpuid_count(leaf, subleaf, registers->eax, registers->ebx, registers->ecx, registers->edx);
    return true;
#else
    (void)leaf;
    (void)subleaf;
    (void)registers;
    return fail(ENOTSUP);
#endif
}

std::uint32_t GetProcessorQuota(const char *root)
{
    double tightest = -1;
    for (const std::string &folder : controlGroups(root, "cpu")) {
        const double quota = quotaOf(folder);
        if (quota > 0 && (tightest < 0 || quota < tightest))
            tightest = quota;
    }
    return tightest < 0 ? 0 : std::uint32_t(std::min(std::ceil(tightest), 1e6));
}

std::uint64_t GetAvailableMemory(const char *root)
{
    std::int64_t bytes = std::int64_t(2) << 30;
    std::ifstream system(std::string(root) + "/proc/meminfo");
    for (std::string line; std::getline(system, line);)
        if (long long kilobytes = 0; std::sscanf(line.c_str(), "MemAvailable: %lld", &kilobytes) == 1)
            bytes = kilobytes * 1024;
    for (const std::string &folder : controlGroups(root, "memory"))
        applyMemoryLimit(folder, bytes);
    return std::uint64_t(bytes);
}

void AdviseHugePages(void *block, std::size_t bytes)
{
    // The C library maps blocks of this size separately, so that the advice ends with the block.
    constexpr std::size_t kOwnMapping = std::size_t(32) << 20;
    if (!block || bytes < kOwnMapping)
        return;
    const std::size_t gap = gapToHugePage(block);
    madvise(static_cast<char *>(block) + gap, (bytes - gap) & ~(kHugePage - 1), MADV_HUGEPAGE);
}

void *ReserveMemory(std::size_t bytes)
{
    // Maps one huge page more than needed, and unmaps at once what lies before the boundary and after the end.
    if (bytes > SIZE_MAX - kHugePage)
        return nullptr;
    const std::size_t mapped = bytes + kHugePage;
    void *const memory = mmap(nullptr, mapped, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED)
        return nullptr;
    const std::size_t gap = gapToHugePage(memory);
    char *const start = static_cast<char *>(memory) + gap;
    if (gap > 0)
        munmap(memory, gap);
    if (gap < kHugePage)
        munmap(start + bytes, kHugePage - gap);
    madvise(start, bytes, MADV_HUGEPAGE); // a hint: without huge pages it is only slower
    return start;
}

void ReleaseMemory(void *memory, std::size_t bytes)
{
    if (memory)
        munmap(memory, bytes);
}
