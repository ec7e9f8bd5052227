#pragma once

#include <cstddef>
#include <functional>

#include "JpegErrors.h"

namespace gfl {

/// One compressor of the JPEG library with what it writes to.
struct JpegEncoder
{
    /// Takes bytes of the file. Anything but GFL_NO_ERROR is thrown where the call of the library was made. Must not throw
    /// itself.
    using Sink = std::function<GflCode(const JOCTET *bytes, std::size_t count)>;

    struct Target
    {
        jpeg_destination_mgr manager;
        Sink sink;
        JOCTET buffer[64 * 1024];
    };

    jpeg_compress_struct info{};
    JpegErrors errors;
    std::unique_ptr<Target> target = std::make_unique<Target>();

    /// The compressor exists, and nothing has been written.
    explicit JpegEncoder(Sink sink);
    ~JpegEncoder() { jpeg_destroy_compress(&info); }
    JpegEncoder(const JpegEncoder &) = delete;
    JpegEncoder &operator=(const JpegEncoder &) = delete;

    template<typename Call>
    void guard(Call call)
    {
        guarded(errors, call);
    }
    /// Writes everything that stands before the scan's data: the frame's and the scan's header, after what has been written
    /// since jpeg_start_compress.
    void writeHeaders();
    /// Hands the bytes that wait in the buffer to the sink.
    void flush();
    /// Drops the bytes that wait in the buffer.
    void drop();
};

} // namespace gfl
