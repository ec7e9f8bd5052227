#include "JpegDecoder.h"

#include <jerror.h>

#include "gflClaims.h"

namespace gfl {
namespace {

void noSourceCall(j_decompress_ptr) {}

boolean fillSource(j_decompress_ptr info)
{
    auto *source = reinterpret_cast<JpegDecoder::Source *>(info->src);
    const auto [bytes, count] = source->blocks();
    if (count == 0)
        ERREXIT(info, JERR_INPUT_EOF);
    source->manager.next_input_byte = bytes;
    source->manager.bytes_in_buffer = count;
    return TRUE;
}

void skipSource(j_decompress_ptr info, long count)
{
    while (count > 0 && static_cast<unsigned long>(count) > info->src->bytes_in_buffer) {
        count -= long(info->src->bytes_in_buffer);
        fillSource(info);
    }
    if (count > 0) {
        info->src->next_input_byte += count;
        info->src->bytes_in_buffer -= std::size_t(count);
    }
}

// A file with many empty scans would keep the library busy for hours.
void onProgress(j_common_ptr info)
{
    constexpr int kMostScans = 500;
    if (info->is_decompressor && reinterpret_cast<j_decompress_ptr>(info)->input_scan_number > kMostScans)
        ERREXIT(info, JERR_CANT_SUSPEND);
}

} // namespace

JpegDecoder::JpegDecoder(Blocks blocks)
{
    info.err = errors.prepare();
    source.blocks = std::move(blocks);
    source.manager.init_source = noSourceCall;
    source.manager.fill_input_buffer = fillSource;
    source.manager.skip_input_data = skipSource;
    source.manager.resync_to_restart = jpeg_resync_to_restart;
    source.manager.term_source = noSourceCall;
    progress.progress_monitor = onProgress;
    try {
        guard([&] { jpeg_create_decompress(&info); });
    } catch (...) {
        jpeg_destroy_decompress(&info);
        throw;
    }
    info.src = &source.manager;
    info.progress = &progress;
}

void chooseColours(jpeg_decompress_struct &info)
{
    switch (info.num_components) {
    case 1:
        info.out_color_space = JCS_GRAYSCALE;
        break;
    case 3:
        info.out_color_space = JCS_RGB;
        break;
    case 4:
        info.out_color_space = JCS_CMYK;
        break;
    default:
        throw Failure{GFL_ERROR_FILE_READ};
    }
}

void checkCoefficients(const jpeg_decompress_struct &info, std::uint64_t fileBytes)
{
    const std::uint64_t blocks = std::uint64_t(info.image_width) * info.image_height / 64;
    if (blocks > mostJpegBlocks(fileBytes, info.arith_code))
        throw Failure{GFL_ERROR_FILE_READ};
}

} // namespace gfl
