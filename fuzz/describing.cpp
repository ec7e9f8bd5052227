#include <filesystem>

#include "FuzzTarget.h"
#include "gfl.h"
#include "metadataLibrary.h"
#include "readPhoto.h"

// Heads of files under names that may be wrong: whatever is not a photograph is refused, and everything else has a size that the
// file could hold.
namespace {

/// Names for one file: the first says nothing about its content, the others claim a kind.
constexpr const char *kNames[] = {"source.mp4", "source.nef", "source.jpg", "source.tif", "source.cr2", "source.psd"};

void describe(const std::string &name, PhotoKind kind, std::size_t count)
{
    PhotoHead head;
    const bool described = !readHead(name, head);
    require(head.width >= 0 && head.height >= 0 && head.orientation >= 1 && head.orientation <= 8, "figures are in range");
    require(std::int64_t(head.width) * head.height < std::int64_t(count + 1) << 20, "a file of its length could hold it");
    require(!described || (kind != PhotoKind::Video && kind != PhotoKind::Other), "what is not a photograph is refused");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count)
{
    static const ScratchFolder folder;
    static const bool started = [] {
        startMetadataLibrary();
        folder.write("source", nullptr, 0);
        for (const char *name : kNames)
            std::filesystem::create_hard_link(folder.path("source"), folder.path(name));
        return gflLibraryInitEx(nullptr, nullptr, nullptr, nullptr) == GFL_NO_ERROR;
    }();
    require(started, "the layer starts");

    folder.write("source", bytes, count);
    const PhotoKind kind = photoKind({reinterpret_cast<const char *>(bytes), count});
    describe(folder.path(kNames[0]), kind, count);
    describe(folder.path(kNames[1 + digest(bytes, count) % (std::size(kNames) - 1)]), kind, count);
    return 0;
}
