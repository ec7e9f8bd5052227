#include "FuzzTarget.h"
#include "gfl.h"
#include "metadataLibrary.h"
#include "readPhoto.h"

// Photographs in a format that only the program reads: reading ends with a problem or with the picture that the head describes,
// within its memory, and the codec layer can read every stand-in.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count)
{
    static const ScratchFolder folder;
    static const bool started = [] {
        startMetadataLibrary();
        return gflLibraryInitEx(nullptr, nullptr, nullptr, nullptr) == GFL_NO_ERROR;
    }();
    require(started, "the layer starts");
    if (photoKind({reinterpret_cast<const char *>(bytes), count}) != FUZZ_KIND)
        return 0;

    constexpr std::uint64_t kMemory = 16 << 20;
    const std::string source = folder.write("source", bytes, count);
    PhotoHead head;
    const bool described = !readHead(source, head);
    require(std::int64_t(head.width) * head.height < std::int64_t(count + 1) << 20, "a file of its length could hold it");
    PhotoPixels pixels;
    if (!readPixels(source, pixels, kMemory)) {
        require(described && pixels.width == head.width && pixels.height == head.height &&
                    pixels.components * pixels.bits / 8 == head.bytesPerPixel,
                "the head describes the picture");
        volatile std::uint32_t samples = 0; // every sample is read
        for (int y = 0; y < pixels.height; ++y)
            samples = samples ^
                      digest(static_cast<const std::uint8_t *>(pixels.data) + std::size_t(y) * std::size_t(pixels.strideBytes),
                             std::size_t(pixels.width) * std::size_t(head.bytesPerPixel));
    }
    std::vector<std::uint8_t> standIn;
    if (!makeStandIn(source, standIn)) {
        GflLoadParams params;
        gflGetDefaultLoadParams(&params);
        params.flags = GFL_LOAD_METADATA;
        GflBitmap *bitmap = nullptr;
        require(gflLoadBitmapUTF8(folder.write("standin", standIn.data(), standIn.size()).c_str(), &bitmap, &params, nullptr) ==
                    GFL_NO_ERROR,
                "the stand-in can be read");
        gflFreeBitmap(bitmap);
    }
    return 0;
}
