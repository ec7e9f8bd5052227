#include "RegularFile.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

RegularFile::RegularFile(const std::string &name) : path(name)
{
    // Without O_NONBLOCK a pipe would wait for its writer.
    file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status;
    if (file < 0)
        return;
    if (::fstat(file, &status) == 0 && S_ISREG(status.st_mode)) {
        bytes = std::uint64_t(status.st_size);
    } else {
        ::close(file);
        file = -1;
    }
}

RegularFile::~RegularFile()
{
    if (file >= 0)
        ::close(file);
}

std::size_t RegularFile::readAt(std::uint64_t offset, void *target, std::size_t count) const noexcept
{
    auto *to = static_cast<std::uint8_t *>(target);
    std::size_t done = 0;
    while (done < count && offset + done < bytes) {
        const ssize_t got = ::pread(file, to + done, count - done, static_cast<off_t>(offset + done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        done += std::size_t(got);
    }
    return done;
}
