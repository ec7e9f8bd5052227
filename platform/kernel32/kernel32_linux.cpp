#include "kernel32.h"

#include <cerrno>
#include <cwchar>
#include <string>

#include <sys/statvfs.h>

namespace {

thread_local std::uint32_t lastError = 0;

bool fail(int error)
{
    lastError = static_cast<std::uint32_t>(error);
    return false;
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
    if (length == static_cast<std::size_t>(-1))
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
