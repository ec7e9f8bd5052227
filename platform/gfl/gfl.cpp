#include "gfl.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <exception>
#include <iterator>
#include <new>
#include <string_view>

#include "gflCodec.h"
#include "gflMetadata.h"
#include "photoKind.h"

namespace gfl {
namespace {

std::atomic<bool> lzwEnabled{true};
thread_local int teamSize = 1;

struct Format
{
    std::string_view name;
    BitmapPointer (*read)(const ReadRequest &);
    void (*write)(const WriteRequest &);
};

// In the order of the format indices, which is the order of PhotoKind.
constexpr Format kFormats[] = {
    {"jpeg", readJpeg, writeJpeg}, {"png", readPng, writePng}, {"tiff", readTiff, writeTiff},
    {"hdri", readHdr, writeHdr},   {"exr", readExr, writeExr}, {"psd", readPsd, writePsd},
};
static_assert(std::size_t(PhotoKind::Photoshop) + 1 == std::size(kFormats));

constexpr int kRawFormat = -1; // has no name and no index

int formatOf(const InputFile &file)
{
    if (!file.isOpen())
        throw Failure{GFL_ERROR_FILE_OPEN};
    const std::optional<PhotoKind> kind = photoKindOf(file);
    if (!kind || file.size() == 0)
        throw Failure{GFL_ERROR_FILE_READ};
    const std::string suffix = suffixOf(file.name());
    if (!suffixFits(*kind, suffix))
        throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
    if (isRawSuffix(suffix) || isRawOnly(*kind))
        return kRawFormat;
    if (std::size_t(*kind) >= std::size(kFormats))
        throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
    return int(*kind);
}

/// Runs `work` and returns the result code of what it throws.
template<typename Work>
int resultOf(Work work)
{
    try {
        work();
        return GFL_NO_ERROR;
    } catch (const Failure &failure) {
        return failure.code;
    } catch (const std::bad_alloc &) {
        return GFL_ERROR_NO_MEMORY;
    } catch (const std::length_error &) {
        return GFL_ERROR_NO_MEMORY;
    } catch (...) {
        return GFL_ERROR_FILE_READ;
    }
}

void load(const InputFile &file, GflBitmap *&bitmap, const GflLoadParams *params, GflFileInformation *information)
{
    const int index = formatOf(file);
    const std::uint32_t flags = params ? params->flags : 0;
    const bool only = (flags & GFL_LOAD_METADATA_ONLY) != 0;
    const ReadRequest request{file, only || (flags & GFL_LOAD_METADATA) != 0, !only, teamSize};
    BitmapPointer read = index == kRawFormat ? readRaw(request) : kFormats[index].read(request);
    if (Metadata *metadata = metadataOf(read.get()))
        if (!profileFits(metadata->icc, read->componentsPerPixel))
            metadata->icc.clear();
    if (information)
        *information = {index, read->width, read->height, read->bitsPerComponent, read->componentsPerPixel};
    bitmap = read.release();
}

bool isWritable(const GflBitmap &bitmap)
{
    const int bits = bitmap.bitsPerComponent;
    const int components = bitmap.componentsPerPixel;
    const unsigned type = components == 1 ? 0x0002u : components == 3 ? 0x0010u : 0x0020u;
    return bitmap.data && bitmap.width > 0 && bitmap.height > 0 && (bits == 8 || bits == 16 || bits == 32) &&
           (components == 1 || components == 3 || components == 4) && bitmap.type == type && bitmap.origin == 0 &&
           bitmap.bytesPerLine >= std::uint64_t(bitmap.width) * unsigned(components) * unsigned(bits / 8);
}

} // namespace
} // namespace gfl

int gflLibraryInitEx(GflAllocCallback alloc, GflReallocCallback realloc, GflFreeCallback free, void *user)
{
    // Memory from two heaps must not be mixed.
    const bool all = alloc && realloc && free;
    if (!all && (alloc || realloc || free))
        return GFL_ERROR_BAD_PARAMETERS;
    gfl::setAllocator(alloc, realloc, free, user);
    return GFL_NO_ERROR;
}

void gflLibraryExit() {}

void gflEnableLZW(int enable)
{
    gfl::lzwEnabled = enable != 0;
}

void gflSetTeamSize(int threads)
{
    constexpr int kMost = 1024; // more than any machine has, and few enough to multiply
    gfl::teamSize = std::clamp(threads, 1, kMost);
}

int gflGetFormatIndexByName(const char *name)
{
    const auto found = std::find_if(std::begin(gfl::kFormats), std::end(gfl::kFormats),
                                    [&](const gfl::Format &format) { return name && format.name == name; });
    return found == std::end(gfl::kFormats) ? -1 : int(found - std::begin(gfl::kFormats));
}

void gflGetDefaultSaveParams(GflSaveParams *params)
{
    if (params)
        *params = {0, 0, GFL_DEFAULT, GFL_DEFAULT};
}

void gflGetDefaultLoadParams(GflLoadParams *params)
{
    if (!params)
        return;
    *params = {};
    params->rawUseCameraBalance = 1;
    params->rawGamma = 2.2f;
    params->rawBrightness = 2.5f;
    params->rawRedScaling = 1.0f;
    params->rawBlueScaling = 1.0f;
}

int gflLoadBitmapUTF8(const char *fileName, GflBitmap **bitmap, const GflLoadParams *params, GflFileInformation *information)
{
    if (!fileName || !bitmap)
        return GFL_ERROR_BAD_PARAMETERS;
    *bitmap = nullptr;
    return gfl::resultOf([&] {
        const RegularFile file(fileName);
        gfl::load(file, *bitmap, params, information);
    });
}

int gflLoadBitmapFrom(const RegularFile &file, GflBitmap **bitmap, const GflLoadParams *params)
{
    if (!bitmap)
        return GFL_ERROR_BAD_PARAMETERS;
    *bitmap = nullptr;
    return gfl::resultOf([&] { gfl::load(file, *bitmap, params, /*information=*/nullptr); });
}

int gflSaveBitmapUTF8(const char *fileName, const GflBitmap *bitmap, const GflSaveParams *params)
{
    if (!fileName || !params)
        return GFL_ERROR_BAD_PARAMETERS;
    if (!bitmap || !gfl::isWritable(*bitmap))
        return GFL_ERROR_BAD_BITMAP;
    if (params->formatIndex < 0 || params->formatIndex >= int(std::size(gfl::kFormats)))
        return GFL_ERROR_BAD_FORMAT_INDEX;
    return gfl::resultOf([&] {
        static const gfl::Metadata kNone;
        const gfl::Metadata *attached = gfl::metadataOf(bitmap);
        const gfl::Metadata &metadata = attached ? *attached : kNone;
        const bool profile =
            (params->flags & GFL_SAVE_ICC_PROFILE) != 0 && gfl::profileFits(metadata.icc, bitmap->componentsPerPixel);
        gfl::OutputFile file(fileName);
        gfl::kFormats[params->formatIndex].write({file, *bitmap, params->quality, params->compression, gfl::lzwEnabled,
                                                  profile ? metadata.icc : kNone.icc, metadata.iptc.block, metadata.exif.block,
                                                  metadata.packing, gfl::teamSize});
        file.commit();
    });
}

int gflTransposeJpegUTF8(const char *sourceName, const char *targetName)
{
    if (!sourceName || !targetName)
        return GFL_ERROR_BAD_PARAMETERS;
    return gfl::resultOf([&] {
        const RegularFile source(sourceName);
        if (gfl::formatOf(source) != gflGetFormatIndexByName("jpeg"))
            throw gfl::Failure{GFL_ERROR_UNKNOWN_FORMAT};
        gfl::OutputFile target(targetName);
        gfl::transposeJpeg(source, target);
        target.commit();
    });
}

void gflFreeFileInformation(GflFileInformation *information)
{
    if (information)
        *information = {};
}
