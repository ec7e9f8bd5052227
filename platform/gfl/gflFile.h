#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include "RegularFile.h"
#include "gflBitmapParts.h"

/// The files that the codecs read and write. Errors are thrown as gfl::Failure.
namespace gfl {

using InputFile = RegularFile;

/// Reads an InputFile from front to back through a buffer.
class InputStream
{
public:
    explicit InputStream(const InputFile &file, std::uint64_t start = 0);
    /// False if the file ends first.
    [[nodiscard]] bool tryRead(void *target, std::size_t bytes) noexcept;
    /// Throws FILE_READ.
    void read(void *target, std::size_t bytes);
    /// The next byte, or -1 at the end.
    int next() { return position < filled || fill() ? buffer[position++] : -1; }
    /// The rest of the buffer, refilled if it is used up; empty only at the end. For libraries that read the bytes in place.
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

/// A file that is written beside its target and replaces it at commit(); without a commit it disappears. Until then it has no
/// name, or a hidden one where the file system can't keep a file without a name. A symbolic link is kept, and the file it points
/// to is replaced. The new file gets the mode of the old one, or the usual mode of a new file.
class OutputFile
{
public:
    /// Throws FILE_CREATE.
    explicit OutputFile(const char *fileName);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    [[nodiscard]] bool tryWrite(const void *bytes, std::size_t count) noexcept;
    /// Throws FILE_WRITE, as do the calls below.
    void write(const void *bytes, std::size_t count);
    void write(const Bytes &bytes) { write(bytes.data(), bytes.size()); }
    [[nodiscard]] bool trySeek(std::uint64_t target) noexcept;
    std::uint64_t offset() const { return position + used; }
    std::uint64_t size() noexcept;
    /// Reads back what has been written, starting at offset(), and moves past it. Returns the bytes read: fewer at the end, 0 on
    /// an error.
    std::size_t readBack(void *target, std::size_t bytes) noexcept;
    void commit();

private:
    [[nodiscard]] bool flush() noexcept;
    /// Calls `make` with one hidden name after another beside the target until it succeeds or fails for another reason than a
    /// taken name.
    template<typename Make>
    bool underFreshName(Make make);

    std::string target;
    std::string temporary; ///< Empty while the file has no name.
    int descriptor = -1;
    Bytes buffer;
    std::size_t used = 0;
    std::uint64_t position = 0; ///< File offset at which the buffer begins.
};

/// Append a big-endian number.
void putBig16(Bytes &bytes, unsigned value);
void putBig32(Bytes &bytes, std::uint32_t value);

} // namespace gfl
