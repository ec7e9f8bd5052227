#include "gflFile.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace gfl {
namespace {

constexpr std::size_t kBufferBytes = 64 * 1024;

struct FreeDelete
{
    void operator()(char *text) const { std::free(text); }
};

bool writeAll(int descriptor, const std::uint8_t *bytes, std::size_t count, std::uint64_t offset) noexcept
{
    while (count > 0) {
        const ssize_t written = ::pwrite(descriptor, bytes, count, static_cast<off_t>(offset));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        count -= std::size_t(written);
        offset += std::uint64_t(written);
    }
    return true;
}

std::string folderOf(const std::string &file)
{
    return file.substr(0, file.find_last_of('/') + 1);
}

/// The path of an open file that may have no name. Not on the heap, where it could fail.
struct OpenPath
{
    explicit OpenPath(int descriptor) { std::snprintf(text, sizeof text, "/proc/self/fd/%d", descriptor); }
    char text[32];
};

} // namespace

InputStream::InputStream(const InputFile &source, std::uint64_t start) : file(source), buffer(kBufferBytes), bufferStart(start) {}

bool InputStream::fill() noexcept
{
    bufferStart += filled;
    position = 0;
    filled = file.readAt(bufferStart, buffer.data(), buffer.size());
    return filled > 0;
}

bool InputStream::tryRead(void *target, std::size_t bytes) noexcept
{
    auto *to = static_cast<std::uint8_t *>(target);
    while (bytes > 0) {
        if (position == filled && bytes >= buffer.size()) {
            bufferStart += filled;
            position = filled = 0;
            const std::size_t got = file.readAt(bufferStart, to, bytes);
            bufferStart += got;
            return got == bytes;
        }
        if (position == filled && !fill())
            return false;
        const std::size_t part = std::min(bytes, filled - position);
        std::memcpy(to, buffer.data() + position, part);
        position += part;
        to += part;
        bytes -= part;
    }
    return true;
}

void InputStream::read(void *target, std::size_t bytes)
{
    if (!tryRead(target, bytes))
        throw Failure{GFL_ERROR_FILE_READ};
}

std::pair<const std::uint8_t *, std::size_t> InputStream::block()
{
    if (position == filled)
        fill();
    const std::size_t start = position;
    position = filled;
    return {buffer.data() + start, filled - start};
}

void InputStream::seek(std::uint64_t target)
{
    if (target >= bufferStart && target <= bufferStart + filled) {
        position = std::size_t(target - bufferStart);
    } else {
        bufferStart = target;
        position = filled = 0;
    }
}

OutputFile::OutputFile(const char *fileName) : buffer(kBufferBytes)
{
    if (!fileName || !*fileName)
        throw Failure{GFL_ERROR_FILE_CREATE};
    const std::unique_ptr<char, FreeDelete> resolved(::realpath(fileName, nullptr));
    target = resolved ? resolved.get() : fileName;

    struct stat old;
    const bool exists = ::stat(target.c_str(), &old) == 0;
    // A rename would bypass the write protection of the file that it replaces, and could replace a device by a file.
    if (exists && (!S_ISREG(old.st_mode) || ::access(target.c_str(), W_OK) != 0))
        throw Failure{GFL_ERROR_FILE_CREATE};

    // A file without a name, where the file system supports it, leaves nothing behind when the process is killed. It gets its
    // name through /proc.
    const std::string folder = folderOf(target);
    descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDWR | O_TMPFILE | O_CLOEXEC, 0666);
    if (descriptor >= 0 && ::access(OpenPath(descriptor).text, F_OK) != 0) {
        ::close(descriptor);
        descriptor = -1;
    }
    if (descriptor < 0)
        underFreshName([this](const char *name) {
            descriptor = ::open(name, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            return descriptor >= 0;
        });
    if (descriptor < 0)
        throw Failure{GFL_ERROR_FILE_CREATE};
    if (exists)
        ::fchmod(descriptor, old.st_mode & 07777); // a file system without modes refuses, which is harmless
}

OutputFile::~OutputFile()
{
    if (descriptor >= 0)
        ::close(descriptor);
    if (!temporary.empty())
        ::unlink(temporary.c_str());
}

template<typename Make>
bool OutputFile::underFreshName(Make make)
{
    // Independent of the target's name, so that the longest file name works too.
    static std::atomic<unsigned> serial{0};
    constexpr int kAttempts = 100;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        temporary = folderOf(target) + ".gfl-" + std::to_string(::getpid()) + "-" + std::to_string(serial++) + ".tmp";
        if (make(temporary.c_str()))
            return true;
        if (errno != EEXIST && errno != EINTR)
            break;
    }
    temporary.clear();
    return false;
}

bool OutputFile::flush() noexcept
{
    const bool done = writeAll(descriptor, buffer.data(), used, position);
    position += used;
    used = 0;
    return done;
}

bool OutputFile::tryWrite(const void *bytes, std::size_t count) noexcept
{
    if (count > buffer.size() - used && !flush())
        return false;
    if (count >= buffer.size()) {
        if (!writeAll(descriptor, static_cast<const std::uint8_t *>(bytes), count, position))
            return false;
        position += count;
    } else if (count > 0) {
        std::memcpy(buffer.data() + used, bytes, count);
        used += count;
    }
    return true;
}

void OutputFile::write(const void *bytes, std::size_t count)
{
    if (!tryWrite(bytes, count))
        throw Failure{GFL_ERROR_FILE_WRITE};
}

bool OutputFile::trySeek(std::uint64_t place) noexcept
{
    if (place == offset())
        return true;
    if (!flush())
        return false;
    position = place;
    return true;
}

std::uint64_t OutputFile::size() noexcept
{
    struct stat status;
    const std::uint64_t onDisk = ::fstat(descriptor, &status) == 0 ? std::uint64_t(status.st_size) : 0;
    return std::max(onDisk, offset());
}

std::size_t OutputFile::readBack(void *bytes, std::size_t count) noexcept
{
    if (!flush())
        return 0;
    const ssize_t got = ::pread(descriptor, bytes, count, static_cast<off_t>(position));
    if (got <= 0)
        return 0;
    position += std::uint64_t(got);
    return std::size_t(got);
}

void OutputFile::commit()
{
    if (!flush())
        throw Failure{GFL_ERROR_FILE_WRITE};
    if (temporary.empty()) {
        const auto link = [this](const char *name) {
            return ::linkat(AT_FDCWD, OpenPath(descriptor).text, AT_FDCWD, name, AT_SYMLINK_FOLLOW) == 0;
        };
        if (link(target.c_str()))
            return;
        // An existing file can only be replaced by a file that has a name.
        if (errno != EEXIST || !underFreshName(link))
            throw Failure{GFL_ERROR_FILE_WRITE};
    }
    const int closed = ::close(std::exchange(descriptor, -1)); // a network file system may report a full disk only here
    if (closed != 0 || ::rename(temporary.c_str(), target.c_str()) != 0)
        throw Failure{GFL_ERROR_FILE_WRITE};
    temporary.clear();
}

void putBig16(Bytes &bytes, unsigned value)
{
    bytes.push_back(std::uint8_t(value >> 8));
    bytes.push_back(std::uint8_t(value));
}

void putBig32(Bytes &bytes, std::uint32_t value)
{
    putBig16(bytes, value >> 16);
    putBig16(bytes, value & 0xFFFF);
}

} // namespace gfl
