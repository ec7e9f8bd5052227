#include "photoMetadata.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <utility>
#include <vector>

#include <sys/mman.h>

#include "RegularFile.h"
#include "photoKind.h"

namespace {

using Io = Exiv2::BasicIo;

/// Hands a file over in the pointer that this version of the library takes.
struct Owned
{
    std::unique_ptr<Io> io;
    template<typename Pointer, typename = typename Pointer::element_type>
    operator Pointer()
    {
        return Pointer(io.release());
    }
};

/// A file that is open already, as the library reads one. Writing fails. The library's versions count in different types.
class OpenFileIo final : public Io
{
public:
    using Count = decltype(std::declval<const Io &>().tell());
    using Path = decltype(std::declval<const Io &>().path());

    explicit OpenFileIo(const RegularFile &source) : file(source), name(std::filesystem::absolute(source.name()).string()) {}
    ~OpenFileIo() override { unmap(); }

    int open() override
    {
        opened = true;
        atEnd = false;
        position = 0;
        return 0;
    }
    int close() override
    {
        opened = false;
        return unmap();
    }
    bool isopen() const override { return opened; }
    int error() const override { return 0; }
    bool eof() const override { return atEnd; }
    Path path() const noexcept override { return name; }
    std::size_t size() const override { return std::size_t(file.size()); }
    Count tell() const override { return Count(position); }

    int seek(std::int64_t offset, Position from) override
    {
        const std::int64_t start = from == beg ? 0 : from == cur ? position : std::int64_t(file.size());
        std::int64_t target;
        if (__builtin_add_overflow(start, offset, &target) || target < 0)
            return -1;
        position = target;
        atEnd = false;
        return 0;
    }
    Count read(Exiv2::byte *target, Count count) override
    {
        const std::size_t got = file.readAt(std::uint64_t(position), target, std::size_t(count));
        atEnd = atEnd || got < std::size_t(count);
        position += std::int64_t(got);
        return Count(got);
    }
    Exiv2::DataBuf read(Count count) override
    {
        if (std::size_t(count) > size()) // else a damaged file could ask for any amount of memory
            throw Exiv2::Error(Exiv2::ErrorCode::kerInvalidMalloc);
        std::vector<Exiv2::byte> bytes;
        bytes.resize(std::size_t(count));
        return Exiv2::DataBuf(bytes.data(), read(bytes.data(), count));
    }
    int getb() override
    {
        Exiv2::byte next;
        return read(&next, 1) == 1 ? int(next) : EOF;
    }
    Exiv2::byte *mmap(bool) override
    {
        if (!mapped && copy.empty() && file.size() > 0) {
            void *const address = ::mmap(nullptr, size(), PROT_READ, MAP_SHARED, file.descriptor(), 0);
            if (address != MAP_FAILED) {
                mapped = static_cast<Exiv2::byte *>(address);
            } else { // not every file system maps files; an error of the library's would pass for a file without metadata
                copy.resize(size());
                if (file.readAt(0, copy.data(), copy.size()) < copy.size())
                    throw Exiv2::Error(Exiv2::ErrorCode::kerInputDataReadFailed);
            }
        }
        return mapped ? mapped : copy.data();
    }
    int munmap() override { return unmap(); }

    Count write(const Exiv2::byte *, Count) override { return 0; }
    Count write(Io &) override { return 0; }
    int putb(Exiv2::byte) override { return EOF; }
    void transfer(Io &) override { throw Exiv2::Error(Exiv2::ErrorCode::kerFileOpenFailed, name, "w+b", std::strerror(EACCES)); }
    void populateFakeData() override {}

private:
    int unmap() noexcept
    {
        copy.clear();
        Exiv2::byte *const address = std::exchange(mapped, nullptr);
        return address ? ::munmap(address, size()) : 0;
    }

    const RegularFile &file;
    const std::string name;
    std::int64_t position = 0;
    bool opened = false;
    bool atEnd = false;
    Exiv2::byte *mapped = nullptr;
    std::vector<Exiv2::byte> copy; ///< Of the whole file, where it can't be mapped.
};

std::unique_ptr<Exiv2::Image> imageOf(PhotoKind kind, std::unique_ptr<Io> io)
{
    const auto as = [&](auto *made) { return std::unique_ptr<Exiv2::Image>(made); };
    constexpr bool kNew = false;
    switch (kind) {
    case PhotoKind::Jpeg:
        return as(new Exiv2::JpegImage(Owned{std::move(io)}, kNew));
    case PhotoKind::Png:
        return as(new Exiv2::PngImage(Owned{std::move(io)}, kNew));
    case PhotoKind::Tiff: {
        const bool cr2 = io->open() == 0 && Exiv2::isCr2Type(*io, /*advance=*/false);
        io->close();
        if (cr2)
            return as(new Exiv2::Cr2Image(Owned{std::move(io)}, kNew));
        return as(new Exiv2::TiffImage(Owned{std::move(io)}, kNew));
    }
    case PhotoKind::Photoshop:
        return as(new Exiv2::PsdImage(Owned{std::move(io)}));
    case PhotoKind::Crw:
        return as(new Exiv2::CrwImage(Owned{std::move(io)}, kNew));
    case PhotoKind::Mrw:
        return as(new Exiv2::MrwImage(Owned{std::move(io)}, kNew));
    case PhotoKind::Orf:
        return as(new Exiv2::OrfImage(Owned{std::move(io)}, kNew));
    case PhotoKind::Raf:
        return as(new Exiv2::RafImage(Owned{std::move(io)}, kNew));
    case PhotoKind::Rw2:
        return as(new Exiv2::Rw2Image(Owned{std::move(io)}));
    case PhotoKind::Radiance:
    case PhotoKind::OpenExr:
    case PhotoKind::Heif:
    case PhotoKind::Webp:
    case PhotoKind::JpegXl:
    case PhotoKind::Video:
    case PhotoKind::Other:
        break;
    }
    return nullptr;
}

PhotoKind kindOf(const RegularFile &file)
{
    return file.isOpen() ? photoKindOf(file).value_or(PhotoKind::Other) : PhotoKind::Other;
}

} // namespace

std::unique_ptr<Exiv2::Image> openMetadata(const RegularFile &file)
{
    return imageOf(kindOf(file), std::make_unique<OpenFileIo>(file));
}

std::unique_ptr<Exiv2::Image> openMetadata(const std::string &path)
{
    // A relative path could be mistaken for an address.
    auto io = Exiv2::ImageFactory::createIo(std::filesystem::absolute(path).string(), /*useCurl=*/false);
    return imageOf(kindOf(RegularFile(path)), std::unique_ptr<Io>(io.release()));
}
