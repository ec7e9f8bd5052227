#pragma once

#include <string>

#include "ByteReader.h"

/// A regular file that is open for reading, at any place and from any thread.
class RegularFile final : public ByteSource
{
public:
    /// Never waits, not even for the writer of a pipe. Afterwards isOpen() says whether `path` is a regular file that may be
    /// read.
    explicit RegularFile(const std::string &path);
    ~RegularFile();
    RegularFile(const RegularFile &) = delete;
    RegularFile &operator=(const RegularFile &) = delete;

    bool isOpen() const noexcept { return file >= 0; }
    const std::string &name() const noexcept { return path; }
    /// For libraries that read from a descriptor; it remains this object's. Its file offset is not used here.
    int descriptor() const noexcept { return file; }
    std::uint64_t size() const noexcept override { return bytes; }
    std::size_t readAt(std::uint64_t offset, void *target, std::size_t count) const noexcept override;

private:
    const std::string path;
    int file;
    std::uint64_t bytes = 0;
};
