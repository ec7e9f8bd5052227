#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

/// One run of a fuzz target; defined once in each. Called by libFuzzer, or by replay.cpp over files.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count);

/// A promise that the input has broken.
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

/// A folder of this process, in memory where there is such a place and TMPDIR names no other one.
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
