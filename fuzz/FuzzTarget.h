#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

/// One run of a fuzz target; each target defines it. Called by libFuzzer, or by replay.cpp with files.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count);

/// Aborts if the input has broken this promise.
inline void require(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}

/// A number that depends on every byte (FNV-1a), for choices that a mutation can't aim at.
inline std::uint32_t digest(const std::uint8_t *bytes, std::size_t count)
{
    std::uint32_t value = 2166136261u;
    for (std::size_t i = 0; i < count; ++i)
        value = (value ^ bytes[i]) * 16777619u;
    return value ^ value >> 15;
}

/// A folder for this process alone: in memory if the system has such a place and TMPDIR is not set.
class ScratchFolder
{
public:
    ScratchFolder()
        : folder((!std::getenv("TMPDIR") && std::filesystem::is_directory("/dev/shm") ? std::filesystem::path("/dev/shm")
                                                                                      : std::filesystem::temp_directory_path()) /
                 ("nimbra-fuzz-" + std::to_string(::getpid())))
    {
        std::filesystem::create_directories(folder);
    }
    ~ScratchFolder() { std::filesystem::remove_all(folder); }
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;

    std::string path(const char *name) const { return (folder / name).string(); }
    std::string write(const char *name, const std::uint8_t *bytes, std::size_t count) const
    {
        std::ofstream(path(name), std::ios::binary).write(reinterpret_cast<const char *>(bytes), std::streamsize(count));
        return path(name);
    }

private:
    std::filesystem::path folder;
};
