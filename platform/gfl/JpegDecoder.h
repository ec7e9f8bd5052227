#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

#include "JpegErrors.h"

namespace gfl {

/// One decompressor of the JPEG library with what it reads.
struct JpegDecoder
{
    /// The next bytes of the file, in memory that stays until the next call; empty at the end. Must not throw.
    using Blocks = std::function<std::pair<const std::uint8_t *, std::size_t>()>;

    struct Source
    {
        jpeg_source_mgr manager;
        Blocks blocks;
    };

    jpeg_decompress_struct info{};
    JpegErrors errors;
    Source source{};
    jpeg_progress_mgr progress{};

    /// The decompressor exists, and nothing has been read.
    explicit JpegDecoder(Blocks blocks);
    ~JpegDecoder() { jpeg_destroy_decompress(&info); }
    JpegDecoder(const JpegDecoder &) = delete;
    JpegDecoder &operator=(const JpegDecoder &) = delete;

    template<typename Call>
    void guard(Call call)
    {
        guarded(errors, call);
    }
};

/// Chooses the colours to decode into, after the header has been read. Throws FILE_READ for a number of components that no
/// picture has.
void chooseColours(jpeg_decompress_struct &info);

/// Called before the library holds all coefficients of a file. Throws FILE_READ if the file is too small for them.
void checkCoefficients(const jpeg_decompress_struct &info, std::uint64_t fileBytes);

} // namespace gfl
