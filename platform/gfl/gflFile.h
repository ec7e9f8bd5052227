#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include "RegularFile.h"
#include "gflBitmapParts.h"

/// The files that the codecs read and write. What goes wrong is thrown as gfl::Failure.
namespace gfl {

using InputFile = RegularFile;

/// Reads an InputFile from front to back through a buffer.
class InputStream
{
public:
    explicit InputStream(const InputFile &file, std::uint64_t start = 0);
    /// False if the file ends before.
    bool tryRead(void *target, std::size_t bytes) noexcept;
    /// Throws FILE_READ.
    void read(void *target, std::size_t bytes);
    /// The next byte, or -1 at the end.
    int next() { return position < filled || fill() ? buffer[position++] : -1; }
    /// The next buffer's worth, not empty but at the end; for libraries that want the bytes where they are.
    std::pair<const std::uint8_t *, std::size_t> block();
    std::uint64_t offset() const { return bufferStart + position; }
    void seek(std::uint64_t target);

private:
    bool fill() noexcept;

    const InputFile &file;
    Bytes buffer;
    std::size_t position = 0;
    std::size_t filled = 0;
    std::uint64_t bufferStart;
};

/// A file that is written beside its target and takes its place with commit(); without one it is gone. Until then it has no name,
/// or, where the file system knows only files with names, a hidden one. A symbolic link stays, and what it points at is replaced.
/// The new file has the mode of the old one, or that of any newly created file.
class OutputFile
{
public:
    /// Throws FILE_CREATE.
    explicit OutputFile(const char *fileName);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    bool tryWrite(const void *bytes, std::size_t count) noexcept;
    /// Throws FILE_WRITE, as do the calls below.
    void write(const void *bytes, std::size_t count);
    void write(const Bytes &bytes) { write(bytes.data(), bytes.size()); }
    bool trySeek(std::uint64_t target) noexcept;
    std::uint64_t offset() const { return position + used; }
    std::uint64_t size() noexcept;
    /// Reads back what has been written, from offset() on, and moves behind it.
    std::size_t readBack(void *target, std::size_t bytes) noexcept;
    void commit();

private:
    bool flush() noexcept;
    /// Calls `make` with hidden names beside the target, until it makes one of them or fails for good.
    template<typename Make>
    bool underFreshName(Make make);

    std::string target;
    std::string temporary; ///< Empty: the file has no name.
    int descriptor = -1;
    Bytes buffer;
    std::size_t used = 0;
    std::uint64_t position = 0; ///< File offset at which the buffer begins.
};

/// Append a number to bytes that are going to be written.
void putBig16(Bytes &bytes, unsigned value);
void putBig32(Bytes &bytes, std::uint32_t value);

} // namespace gfl
