#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include <unistd.h>

#include <gtest/gtest.h>

#include "gfl.h"

struct FreeBitmap
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
using Picture = std::unique_ptr<GflBitmap, FreeBitmap>;
using FileBytes = std::vector<std::uint8_t>;

constexpr const char *kNames[] = {"jpeg", "png", "tiff", "hdri", "exr", "psd"};
constexpr const char *kSuffixes[] = {"jpg", "png", "tif", "hdr", "exr", "psd"};

/// A picture whose rows have extra padding, so that an assumed stride shows.
inline Picture makePicture(int width, int height, int components, int bits)
{
    Picture picture(static_cast<GflBitmap *>(std::calloc(1, sizeof(GflBitmap))));
    picture->type = std::uint16_t(components == 1 ? 0x0002 : components == 3 ? 0x0010 : 0x0020);
    picture->width = width;
    picture->height = height;
    picture->bitsPerComponent = std::uint16_t(bits);
    picture->componentsPerPixel = std::uint16_t(components);
    picture->bytesPerPixel = std::uint16_t(components * bits / 8);
    picture->bytesPerLine = (std::uint32_t(width) * picture->bytesPerPixel + 3) / 4 * 4 + 8;
    picture->lineAlignment = 4;
    picture->transparentIndex = -1;
    picture->data = std::calloc(std::size_t(height), picture->bytesPerLine);
    return picture;
}

inline std::uint8_t *sampleAt(const GflBitmap &bitmap, int x, int y, int c)
{
    return static_cast<std::uint8_t *>(bitmap.data) + std::size_t(bitmap.bytesPerLine) * std::size_t(y) +
           std::size_t(x) * bitmap.bytesPerPixel + std::size_t(c) * (bitmap.bitsPerComponent / 8);
}

/// A sample as a fraction of its full scale.
inline double fractionAt(const GflBitmap &bitmap, int x, int y, int c)
{
    const std::uint8_t *at = sampleAt(bitmap, x, y, c);
    if (bitmap.bitsPerComponent == 8)
        return *at / 255.0;
    if (bitmap.bitsPerComponent == 16) {
        std::uint16_t value;
        std::memcpy(&value, at, sizeof value);
        return value / 65535.0;
    }
    float value;
    std::memcpy(&value, at, sizeof value);
    return double(value);
}

inline void setFraction(const GflBitmap &bitmap, int x, int y, int c, double fraction)
{
    std::uint8_t *at = sampleAt(bitmap, x, y, c);
    const auto wide = std::uint16_t(std::lround(fraction * 65535));
    const auto real = float(fraction);
    if (bitmap.bitsPerComponent == 8)
        *at = std::uint8_t(std::lround(fraction * 255));
    else if (bitmap.bitsPerComponent == 16)
        std::memcpy(at, &wide, sizeof wide);
    else
        std::memcpy(at, &real, sizeof real);
}

/// Smooth colours, with a different gradient per channel; alpha falls from 1.
inline void paint(const GflBitmap &bitmap)
{
    for (int y = 0; y < bitmap.height; ++y)
        for (int x = 0; x < bitmap.width; ++x)
            for (int c = 0; c < bitmap.componentsPerPixel; ++c) {
                const double along = (x + 0.5) / bitmap.width;
                const double down = (y + 0.5) / bitmap.height;
                const double values[] = {0.1 + 0.8 * along, 0.9 - 0.7 * down, 0.2 + 0.3 * along + 0.3 * down, 1.0 - 0.5 * along};
                setFraction(bitmap, x, y, c, values[c]);
            }
}

/// The samples of a bitmap without the padding of its rows.
inline FileBytes samplesOf(const GflBitmap &bitmap)
{
    FileBytes samples;
    for (int y = 0; y < bitmap.height; ++y) {
        const std::uint8_t *row = sampleAt(bitmap, 0, y, 0);
        samples.insert(samples.end(), row, row + std::size_t(bitmap.width) * bitmap.bytesPerPixel);
    }
    return samples;
}

inline FileBytes readFile(const std::string &name)
{
    std::ifstream file(name, std::ios::binary);
    return FileBytes(std::istreambuf_iterator<char>(file), {});
}

inline void writeFile(const std::string &name, const FileBytes &bytes)
{
    std::ofstream(name, std::ios::binary).write(reinterpret_cast<const char *>(bytes.data()), std::streamsize(bytes.size()));
}

inline int load(const std::string &name, Picture &picture, std::uint32_t flags = GFL_LOAD_METADATA)
{
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    params.flags |= flags;
    GflBitmap *bitmap = nullptr;
    const int code = gflLoadBitmapUTF8(name.c_str(), &bitmap, &params, nullptr);
    picture.reset(bitmap);
    return code;
}

inline int save(const std::string &name, const GflBitmap *bitmap, const char *format, int quality = -1, int compression = -1)
{
    GflSaveParams params;
    gflGetDefaultSaveParams(&params);
    params.flags |= GFL_SAVE_ICC_PROFILE;
    params.formatIndex = gflGetFormatIndexByName(format);
    params.quality = std::int16_t(quality);
    params.compression = std::int16_t(compression);
    return gflSaveBitmapUTF8(name.c_str(), bitmap, &params);
}

/// What the layer's three callbacks were asked for.
struct Heap
{
    int blocks = 0;
    std::size_t largest = 0;
    bool fails = false;
};

inline void *countedAlloc(std::size_t bytes, void *tag)
{
    auto *heap = static_cast<Heap *>(tag);
    heap->largest = std::max(heap->largest, bytes);
    if (heap->fails)
        return nullptr;
    ++heap->blocks;
    return std::malloc(bytes);
}

inline void *countedRealloc(void *block, std::size_t bytes, void *tag)
{
    auto *heap = static_cast<Heap *>(tag);
    heap->largest = std::max(heap->largest, bytes);
    return heap->fails ? nullptr : std::realloc(block, bytes);
}

inline void countedFree(void *block, void *tag)
{
    --static_cast<Heap *>(tag)->blocks;
    std::free(block);
}

/// Gives each test a separate folder.
class GflTest : public testing::Test
{
protected:
    // In memory if possible: on some file systems, replacing a file waits for the disk.
    GflTest()
        : folder((std::filesystem::is_directory("/dev/shm") ? std::filesystem::path("/dev/shm")
                                                            : std::filesystem::temp_directory_path()) /
                 ("gfl_test_" + std::to_string(::getpid())))
    {
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
    }
    ~GflTest() override { std::filesystem::remove_all(folder); }
    std::string path(const std::string &name) const { return (folder / name).string(); }
    std::size_t filesInFolder() const
    {
        return std::size_t(std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator()));
    }

    std::filesystem::path folder;
};

/// A JPEG file with handwritten metadata: EXIF with a maker note, a GPS position and an orientation; IPTC; a profile.
FileBytes photograph();

/// The EXIF block, IPTC block and profile in photograph().
FileBytes exifBlock(bool bigEndian);
FileBytes iptcBlock();
FileBytes profileBlock();
