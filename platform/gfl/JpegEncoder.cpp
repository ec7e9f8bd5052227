#include "JpegEncoder.h"

#include <jerror.h>

namespace gfl {
namespace {

JpegEncoder::Target &targetOf(j_compress_ptr info)
{
    return *reinterpret_cast<JpegEncoder::Target *>(info->dest);
}

void startTarget(j_compress_ptr info)
{
    JpegEncoder::Target &target = targetOf(info);
    target.manager.next_output_byte = target.buffer;
    target.manager.free_in_buffer = sizeof target.buffer;
}

void emptyBuffer(j_compress_ptr info, std::size_t count)
{
    JpegEncoder::Target &target = targetOf(info);
    const GflCode code = target.sink(target.buffer, count);
    if (code != GFL_NO_ERROR) {
        reinterpret_cast<JpegErrors *>(info->err)->code = code;
        ERREXIT(info, JERR_FILE_WRITE);
    }
    startTarget(info);
}

boolean emptyTarget(j_compress_ptr info)
{
    emptyBuffer(info, sizeof targetOf(info).buffer);
    return TRUE;
}

void endTarget(j_compress_ptr info)
{
    emptyBuffer(info, sizeof targetOf(info).buffer - targetOf(info).manager.free_in_buffer);
}

} // namespace

JpegEncoder::JpegEncoder(Sink sink)
{
    info.err = errors.prepare();
    errors.code = GFL_ERROR_FILE_WRITE;
    target->sink = std::move(sink);
    target->manager.init_destination = startTarget;
    target->manager.empty_output_buffer = emptyTarget;
    target->manager.term_destination = endTarget;
    try {
        guard([&] { jpeg_create_compress(&info); });
    } catch (...) {
        jpeg_destroy_compress(&info);
        throw;
    }
    info.dest = &target->manager;
}

void JpegEncoder::writeHeaders()
{
    guard([&] { jpeg_write_scanlines(&info, nullptr, 0); });
}

void JpegEncoder::flush()
{
    guard([&] { endTarget(&info); });
}

void JpegEncoder::drop()
{
    startTarget(&info);
}

} // namespace gfl
