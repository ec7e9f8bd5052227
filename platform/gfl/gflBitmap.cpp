#include "gflBitmapParts.h"

#include <cstdlib>
#include <new>

namespace gfl {
namespace {

// Set by gflLibraryInitEx before any bitmap exists, and only read after that.
GflAllocCallback allocCallback = nullptr;
GflReallocCallback reallocCallback = nullptr;
GflFreeCallback freeCallback = nullptr;
void *allocUser = nullptr;

// The setters can't report a failed allocation; the bitmap then simply lacks the block.
template<typename Change>
void changeMetadata(GflBitmap *bitmap, Change change)
{
    if (!bitmap)
        return;
    try {
        change(attachMetadata(*bitmap));
    } catch (const std::bad_alloc &) {
    }
}

} // namespace

void setAllocator(GflAllocCallback alloc, GflReallocCallback realloc, GflFreeCallback free, void *user)
{
    allocCallback = alloc;
    reallocCallback = realloc;
    freeCallback = free;
    allocUser = user;
}

void *allocate(std::size_t bytes)
{
    return allocCallback ? allocCallback(bytes, allocUser) : std::malloc(bytes);
}

void *reallocate(void *block, std::size_t bytes)
{
    return reallocCallback ? reallocCallback(block, bytes, allocUser) : std::realloc(block, bytes);
}

void release(void *block)
{
    if (!block)
        return;
    if (freeCallback)
        freeCallback(block, allocUser);
    else
        std::free(block);
}

Metadata *metadataOf(const GflBitmap *bitmap)
{
    return bitmap ? static_cast<Metadata *>(bitmap->metaData) : nullptr;
}

Metadata &attachMetadata(GflBitmap &bitmap)
{
    if (!bitmap.metaData)
        bitmap.metaData = new Metadata;
    return *static_cast<Metadata *>(bitmap.metaData);
}

} // namespace gfl

void gflFreeBitmap(GflBitmap *bitmap)
{
    if (!bitmap)
        return;
    gfl::release(bitmap->data);
    gfl::release(bitmap->colorMap);
    gfl::release(bitmap->comment);
    gfl::release(bitmap->name);
    delete gfl::metadataOf(bitmap);
    gfl::release(bitmap);
}

bool gflBitmapHasICCProfile(const GflBitmap *bitmap)
{
    const gfl::Metadata *metadata = gfl::metadataOf(bitmap);
    return metadata && !metadata->icc.empty();
}

void gflBitmapCopyICCProfile(const GflBitmap *source, GflBitmap *target)
{
    if (gflBitmapHasICCProfile(source) && source != target)
        gfl::changeMetadata(target, [&](gfl::Metadata &metadata) { metadata.icc = gfl::metadataOf(source)->icc; });
}

const std::uint8_t *gflBitmapGetICCProfile(const GflBitmap *bitmap, std::size_t *bytes)
{
    if (!gflBitmapHasICCProfile(bitmap))
        return nullptr;
    const gfl::Bytes &icc = gfl::metadataOf(bitmap)->icc;
    *bytes = icc.size();
    return icc.data();
}

bool gflBitmapHasIPTC(const GflBitmap *bitmap)
{
    const gfl::Metadata *metadata = gfl::metadataOf(bitmap);
    return metadata && !metadata->iptc.block.empty();
}

GflIptc *gflBitmapGetIPTC(const GflBitmap *bitmap)
{
    return gflBitmapHasIPTC(bitmap) ? &gfl::metadataOf(bitmap)->iptc : nullptr;
}

void gflBitmapSetIPTC(GflBitmap *bitmap, const GflIptc *iptc)
{
    if (iptc)
        gfl::changeMetadata(bitmap, [&](gfl::Metadata &metadata) { metadata.iptc = *iptc; });
}

bool gflBitmapHasEXIF(const GflBitmap *bitmap)
{
    const gfl::Metadata *metadata = gfl::metadataOf(bitmap);
    return metadata && !metadata->exif.block.empty();
}

GflExif *gflBitmapGetEXIF2(const GflBitmap *bitmap)
{
    if (!gflBitmapHasEXIF(bitmap))
        return nullptr;
    try {
        return new GflExif(gfl::metadataOf(bitmap)->exif);
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}

void gflBitmapSetEXIF2(GflBitmap *bitmap, const GflExif *exif)
{
    if (exif)
        gfl::changeMetadata(bitmap, [&](gfl::Metadata &metadata) { metadata.exif = *exif; });
}

void gflFreeEXIF2(GflExif *exif)
{
    delete exif;
}

void gflBitmapCopyPacking(const GflBitmap *source, GflBitmap *target)
{
    if (const gfl::Metadata *metadata = gfl::metadataOf(source); metadata && source != target)
        gfl::changeMetadata(target, [&](gfl::Metadata &changed) { changed.packing = metadata->packing; });
}
