#include <cstring>
#include <utility>

#include "JpegDecoder.h"
#include "JpegEncoder.h"
#include "gflCodec.h"

namespace gfl {
namespace {

/// Copies the segments verbatim, except for the two that the library writes itself.
void copySegments(const JpegDecoder &decoder, JpegEncoder &encoder)
{
    const auto is = [](const jpeg_marker_struct &marker, int code, const char *name) {
        return marker.marker == code && marker.data_length >= 5 && std::memcmp(marker.data, name, 5) == 0;
    };
    for (const jpeg_marker_struct *marker = decoder.info.marker_list; marker; marker = marker->next)
        if (!(encoder.info.write_JFIF_header && is(*marker, JPEG_APP0, "JFIF")) &&
            !(encoder.info.write_Adobe_marker && is(*marker, JPEG_APP0 + 14, "Adobe")))
            encoder.guard([&] { jpeg_write_marker(&encoder.info, marker->marker, marker->data, marker->data_length); });
}

/// Block (x, y) of the target is block (y, x) of the source with its frequencies transposed as well. Blocks at the edges are
/// padded to full size in either file, and so stay at the edge. The target's rows must be requested in order.
void transposeBlocks(jpeg_decompress_struct &info, const jpeg_component_info &component, jvirt_barray_ptr source,
                     jvirt_barray_ptr target)
{
    auto *common = reinterpret_cast<j_common_ptr>(&info);
    for (JDIMENSION x = 0; x < component.width_in_blocks; ++x) {
        JBLOCKROW to = *info.mem->access_virt_barray(common, target, x, 1, TRUE);
        for (JDIMENSION y = 0; y < component.height_in_blocks; ++y, ++to) {
            const JCOEF *from = (*info.mem->access_virt_barray(common, source, y, 1, FALSE))[x];
            for (int i = 0; i < DCTSIZE; ++i)
                for (int j = 0; j < DCTSIZE; ++j)
                    (*to)[i * DCTSIZE + j] = from[j * DCTSIZE + i];
        }
    }
}

JDIMENSION roundedUp(JDIMENSION count, int step)
{
    const auto unit = static_cast<JDIMENSION>(step);
    return (count + unit - 1) / unit * unit;
}

void transposeParameters(jpeg_compress_struct &info)
{
    std::swap(info.image_width, info.image_height);
    std::swap(info.X_density, info.Y_density);
    for (int c = 0; c < info.num_components; ++c)
        std::swap(info.comp_info[c].h_samp_factor, info.comp_info[c].v_samp_factor);
    for (JQUANT_TBL *table : info.quant_tbl_ptrs)
        for (int i = 0; table && i < DCTSIZE; ++i)
            for (int j = 0; j < i; ++j)
                std::swap(table->quantval[i * DCTSIZE + j], table->quantval[j * DCTSIZE + i]);
}

} // namespace

void transposeJpeg(const InputFile &source, OutputFile &target)
{
    InputStream stream(source);
    JpegDecoder decoder([&] { return stream.block(); });
    JpegEncoder encoder([&](const JOCTET *bytes, std::size_t count) {
        return target.tryWrite(bytes, count) ? GFL_NO_ERROR : GFL_ERROR_FILE_WRITE;
    });
    jpeg_decompress_struct &in = decoder.info;
    jpeg_compress_struct &out = encoder.info;
    decoder.guard([&] {
        for (int application = 0; application < 16; ++application)
            jpeg_save_markers(&in, JPEG_APP0 + application, 0xFFFF);
        jpeg_save_markers(&in, JPEG_COM, 0xFFFF);
        jpeg_read_header(&in, TRUE);
    });
    checkCoefficients(in, source.size());
    // The library allocates these with its own arrays, in the call that reads all coefficients.
    jvirt_barray_ptr turned[MAX_COMPONENTS] = {};
    decoder.guard([&] {
        for (int c = 0; c < in.num_components; ++c) {
            const jpeg_component_info &component = in.comp_info[c];
            turned[c] = in.mem->request_virt_barray(reinterpret_cast<j_common_ptr>(&in), JPOOL_IMAGE, FALSE,
                                                    roundedUp(component.height_in_blocks, component.v_samp_factor),
                                                    roundedUp(component.width_in_blocks, component.h_samp_factor),
                                                    static_cast<JDIMENSION>(component.h_samp_factor));
        }
        jvirt_barray_ptr *stored = jpeg_read_coefficients(&in);
        for (int c = 0; c < in.num_components; ++c)
            transposeBlocks(in, in.comp_info[c], stored[c], turned[c]);
    });
    encoder.guard([&] {
        jpeg_copy_critical_parameters(&in, &out);
        out.write_JFIF_header = in.saw_JFIF_marker; // without Adobe's marker the inks would mean something else
        out.write_Adobe_marker = in.saw_Adobe_marker;
        // With tables built for this file every coefficient has a code, or is rejected; the standard tables lack some codes,
        // which would go unnoticed.
        out.optimize_coding = TRUE;
        transposeParameters(out);
        jpeg_write_coefficients(&out, turned);
    });
    copySegments(decoder, encoder);
    encoder.guard([&] { jpeg_finish_compress(&out); });
}

} // namespace gfl
