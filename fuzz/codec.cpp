#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

#include "FuzzTarget.h"
#include "carryXmp.h"
#include "gfl.h"

// Photographs of one format, with their metadata: reading ends with a result code and nothing worse, and whatever was read can be
// written. The codecs take files, which are kept in memory here.
namespace {

constexpr std::string_view kSuffix = FUZZ_SUFFIX;

constexpr std::size_t kMemory = 64 << 20; // limit for one picture
int fresh = 0;                            // the byte that fills new memory

void *takeMemory(std::size_t bytes, void *)
{
    void *const block = bytes > kMemory ? nullptr : std::malloc(bytes);
    return block ? std::memset(block, fresh, bytes) : nullptr;
}
void *changeMemory(void *block, std::size_t bytes, void *)
{
    return bytes > kMemory ? nullptr : std::realloc(block, bytes);
}
void giveMemory(void *block, void *)
{
    std::free(block);
}

struct FreeBitmap
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
using Picture = std::unique_ptr<GflBitmap, FreeBitmap>;

std::pair<int, Picture> load(const std::string &name, std::uint32_t flags, GflFileInformation *information = nullptr)
{
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    params.flags = flags;
    GflBitmap *bitmap = nullptr;
    const int code = gflLoadBitmapUTF8(name.c_str(), &bitmap, &params, information);
    require((code == GFL_NO_ERROR) == (bitmap != nullptr), "a picture, or a code that says why not");
    return {code, Picture(bitmap)};
}

/// A single pixel with all the metadata of the picture.
Picture pixelWith(const GflBitmap &source)
{
    Picture pixel(static_cast<GflBitmap *>(std::calloc(1, sizeof(GflBitmap))));
    pixel->type = 0x0010;
    pixel->width = pixel->height = 1;
    pixel->bytesPerLine = pixel->lineAlignment = 4;
    pixel->bitsPerComponent = 8;
    pixel->componentsPerPixel = pixel->bytesPerPixel = 3;
    pixel->transparentIndex = -1;
    pixel->data = std::calloc(1, 4);
    gflBitmapCopyICCProfile(&source, pixel.get());
    gflBitmapSetIPTC(pixel.get(), gflBitmapGetIPTC(&source));
    GflExif *const exif = gflBitmapGetEXIF2(&source);
    gflBitmapSetEXIF2(pixel.get(), exif);
    gflFreeEXIF2(exif);
    return pixel;
}

std::uint32_t digestOf(const GflBitmap &bitmap)
{
    std::uint32_t value = 0;
    for (int y = 0; y < bitmap.height; ++y)
        value = value * 31 +
                digest(static_cast<const std::uint8_t *>(bitmap.data) + std::size_t(bitmap.bytesPerLine) * std::size_t(y),
                       std::size_t(bitmap.width) * bitmap.bytesPerPixel);
    return value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count)
{
    static const ScratchFolder folder;
    static const int started = gflLibraryInitEx(takeMemory, changeMemory, giveMemory, nullptr);
    require(started == GFL_NO_ERROR, "the layer starts");
    const std::uint32_t choice = digest(bytes, count);

    const std::string source = folder.write("source." FUZZ_SUFFIX, bytes, count);
    GflFileInformation head{}, body{};
    const Picture described = load(source, GFL_LOAD_METADATA_ONLY, &head).second;
    const Picture picture = load(source, GFL_LOAD_METADATA, &body).second;
    if (picture) {
        // A file that lacks only its end mark can be read, but not described.
        require(!described ||
                    (head.width == body.width && head.height == body.height && head.bitsPerComponent == body.bitsPerComponent &&
                     head.componentsPerPixel == body.componentsPerPixel),
                "the description matches the picture");
        const std::uint32_t samples = digestOf(*picture);
        fresh ^= 0xFF;
        if (choice % 8 == 1)
            require(digestOf(*load(source, GFL_LOAD_METADATA).second) == samples, "every sample comes from the file");
    }
    // Smaller pictures are read by one thread anyway.
    if (described && std::int64_t(described->width) * described->height >= 65536) {
        gflSetTeamSize(2 + int(choice % 2));
        const Picture shared = load(source, GFL_LOAD_METADATA).second;
        gflSetTeamSize(1);
        require(bool(shared) == bool(picture) && (!shared || digestOf(*shared) == digestOf(*picture)),
                "the number of threads does not matter");
    }
    const std::string turned = folder.path("turned");
    if (kSuffix == "jpg" && choice % 8 == 2 && gflTransposeJpegUTF8(source.c_str(), turned.c_str()) == GFL_NO_ERROR && picture) {
        const Picture again = load(turned, GFL_LOAD_METADATA).second;
        require(again && again->width == picture->height && again->height == picture->width,
                "a picture that was turned can be read");
    }
    if (!described || choice / 16 % 4 != 0)
        return 0;

    const bool whole = picture && std::int64_t(picture->width) * picture->height <= 4096;
    const Picture carrier = whole ? Picture() : pixelWith(*described);
    GflSaveParams params;
    gflGetDefaultSaveParams(&params);
    params.flags = GFL_SAVE_ICC_PROFILE;
    params.formatIndex = std::int32_t(choice / 64 % 6);
    const std::string result = folder.path("result");
    require(gflSaveBitmapUTF8(result.c_str(), whole ? picture.get() : carrier.get(), &params) == GFL_NO_ERROR,
            "what was read can be written");
    require(load(result, GFL_LOAD_METADATA).first == GFL_NO_ERROR, "what was written can be read");
    if (choice / 384 % 4 == 0) {
        carryXmp(QString::fromStdString(source), QString::fromStdString(result));
        require(load(result, GFL_LOAD_METADATA).first == GFL_NO_ERROR, "and with its XMP too");
    }
    return 0;
}
