#include "VImage.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

#include "VException.h"
#include "gflCallbacks.h"

namespace {

constexpr std::size_t kPaletteBytes = 1024;
constexpr unsigned short kPaletteType = 0x0004;

/// `site` names the place of the allocation, for heaps that record it. A size of 0 also gets a block, since null means that there
/// is no memory.
void *allocate(std::size_t bytes, const char *site)
{
    return gflAllocCallback(std::max<std::size_t>(bytes, 1), const_cast<char *>(site));
}
#define V_SITE (__FILE__ ":" V_TEXT_OF(__LINE__))

int componentsOf(unsigned short type)
{
    return (type & 0x0007) ? 1 : (type & 0x1050) ? 3 : (type & 0x27A0) ? 4 : 0;
}

/// Bytes per row of an owned image, or -1 if the number is negative or does not fit in 31 bits.
int alignedStride(int width, int bytesPerPixel)
{
    const std::int64_t stride = (std::int64_t(width) * bytesPerPixel + 3) / 4 * 4;
    return width < 0 || bytesPerPixel < 0 || stride > std::numeric_limits<int>::max() ? -1 : int(stride);
}

std::size_t pixelBytes(const GflBitmap &bitmap)
{
    return std::size_t(std::max(bitmap.height, 0)) * bitmap.bytesPerLine;
}

} // namespace

VImage::VImage(int width, int height, unsigned short type, int bitsPerComponent, bool clear, void *data, int bytesPerLine)
    : VImage()
{
    Create(width, height, type, bitsPerComponent, clear, data, bytesPerLine);
}

VImage::~VImage()
{
    Free();
}

void VImage::Create(int width, int height, unsigned short type, int bitsPerComponent, bool clear, void *data, int bytesPerLine)
{
    // A record without pixels is left over from a failed allocation.
    if (bitmap && bitmap->data && !data && bitmap->width == width && bitmap->height == height && bitmap->type == type &&
        bitmap->bitsPerComponent == bitsPerComponent) {
        if (clear)
            std::memset(bitmap->data, 0, pixelBytes(*bitmap));
        return;
    }
    Free();
    const int components = componentsOf(type);
    if (components == 0)
        throw VException("Invalid Parameter", V_LOCATION);
    const int bytesPerPixel = (bitsPerComponent >> 3) * components;

    bitmap = static_cast<GflBitmap *>(allocate(sizeof(GflBitmap), V_SITE));
    if (!bitmap)
        throw VException("Not enough memory", V_LOCATION);
    *bitmap = {};
    if (!data) {
        const int stride = alignedStride(width, bytesPerPixel);
        if (stride >= 0 && height >= 0)
            bitmap->data = allocate(std::size_t(height) * std::size_t(stride), V_SITE);
        if (!bitmap->data)
            throw VException("Not enough memory", V_LOCATION);
        bitmap->bytesPerLine = std::uint32_t(stride);
        bitmap->lineAlignment = 4;
    } else {
        bitmap->data = data;
        bitmap->bytesPerLine = std::uint32_t(bytesPerLine);
        bitmap->lineAlignment = bytesPerLine % 4 == 0 ? 4 : 2;
        ownsData = false;
    }
    bitmap->type = type;
    bitmap->width = width;
    bitmap->height = height;
    bitmap->bitsPerComponent = std::uint16_t(bitsPerComponent);
    bitmap->componentsPerPixel = std::uint16_t(components);
    bitmap->bytesPerPixel = std::uint16_t(bytesPerPixel);
    bitmap->transparentIndex = -1;
    bitmap->colorUsed = type == Grey || type == kPaletteType ? 256 : 0;
    if (type == kPaletteType) {
        bitmap->colorMap = allocate(kPaletteBytes, V_SITE);
        if (bitmap->colorMap)
            std::memset(bitmap->colorMap, 0, kPaletteBytes);
    }
    if (clear)
        std::memset(bitmap->data, 0, pixelBytes(*bitmap));
}

void VImage::Free()
{
    if (!bitmap)
        return;
    if (!ownsData) {
        bitmap->data = nullptr;
        ownsData = true;
    }
    gflFreeBitmap(bitmap);
    bitmap = nullptr;
}

void VImage::Assign(const VImage &source)
{
    Free();
    if (!source.bitmap)
        return;
    userFlag = source.userFlag;
    bitmap = static_cast<GflBitmap *>(allocate(sizeof(GflBitmap), V_SITE));
    if (!bitmap)
        throw VException("Not enough memory", V_LOCATION);
    // Until each block has been copied, the record must not point to the source's blocks: Free would release them.
    *bitmap = *source.bitmap;
    bitmap->data = bitmap->colorMap = bitmap->comment = bitmap->metaData = nullptr;
    bitmap->name = nullptr;

    const std::size_t bytes = pixelBytes(*bitmap);
    bitmap->data = allocate(bytes, V_SITE);
    if (!bitmap->data)
        throw VException("Not enough memory", V_LOCATION);
    if (source.bitmap->data)
        std::memcpy(bitmap->data, source.bitmap->data, bytes);
    if (source.bitmap->colorMap) {
        bitmap->colorMap = allocate(kPaletteBytes, V_SITE);
        if (!bitmap->colorMap)
            throw VException("Not enough memory", V_LOCATION);
        std::memcpy(bitmap->colorMap, source.bitmap->colorMap, kPaletteBytes);
    }
    if (source.bitmap->name) {
        const std::size_t nameBytes = std::strlen(source.bitmap->name) + 1;
        bitmap->name = static_cast<char *>(allocate(nameBytes, V_SITE));
        if (bitmap->name)
            std::memcpy(bitmap->name, source.bitmap->name, nameBytes);
    }
}
