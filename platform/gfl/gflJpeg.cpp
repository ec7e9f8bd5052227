#include <algorithm>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <numeric>

#include <jpeglib.h>

#include <jerror.h>

#include "gflClaims.h"
#include "gflCodec.h"
#include "gflMetadata.h"

namespace gfl {
namespace {

constexpr char kExifMark[] = "Exif\0"; // with the terminator, "Exif\0\0"
constexpr char kPhotoshopMark[] = "Photoshop 3.0";
constexpr std::size_t kSegmentLimit = 65533;
constexpr int kIccMarker = JPEG_APP0 + 2;
constexpr int kBand = 16; // rows per call of the library

struct ErrorState
{
    jpeg_error_mgr manager;
    std::jmp_buf jump;
    GflCode code = GFL_ERROR_FILE_READ;
};

[[noreturn]] void onError(j_common_ptr info)
{
    auto *state = reinterpret_cast<ErrorState *>(info->err);
    if (info->err->msg_code == JERR_OUT_OF_MEMORY)
        state->code = GFL_ERROR_NO_MEMORY;
    std::longjmp(state->jump, 1);
}

// After a warning the library continues decoding and fills what is missing with grey. Here such a file counts as damaged.
void onMessage(j_common_ptr info, int level)
{
    switch (level < 0 ? info->err->msg_code : 0) {
    case JWRN_JPEG_EOF:
    case JWRN_HIT_MARKER:
    case JWRN_HUFF_BAD_CODE:
    case JWRN_ARITH_BAD_CODE:
    case JWRN_MUST_RESYNC:
        onError(info);
    default:
        break;
    }
}

void onOutput(j_common_ptr) {}

jpeg_error_mgr *prepare(ErrorState &state)
{
    jpeg_error_mgr *manager = jpeg_std_error(&state.manager);
    manager->error_exit = onError;
    manager->emit_message = onMessage;
    manager->output_message = onOutput;
    return manager;
}

// Runs calls of the library, which may jump out of here: `call` must not create objects with destructors.
template<typename Call>
void guarded(ErrorState &state, Call call)
{
    if (setjmp(state.jump))
        throw Failure{state.code};
    call();
}

struct Source
{
    jpeg_source_mgr manager;
    InputStream *stream;
};

void noSourceCall(j_decompress_ptr) {}

boolean fillSource(j_decompress_ptr info)
{
    auto *source = reinterpret_cast<Source *>(info->src);
    const auto [bytes, count] = source->stream->block();
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

struct Reader
{
    jpeg_decompress_struct info{};
    ErrorState error;
    Source source{};
    jpeg_progress_mgr progress{};
    InputStream stream;

    explicit Reader(const InputFile &file) : stream(file)
    {
        info.err = prepare(error);
        source.stream = &stream;
        source.manager.init_source = noSourceCall;
        source.manager.fill_input_buffer = fillSource;
        source.manager.skip_input_data = skipSource;
        source.manager.resync_to_restart = jpeg_resync_to_restart;
        source.manager.term_source = noSourceCall;
        progress.progress_monitor = onProgress;
    }
    ~Reader() { jpeg_destroy_decompress(&info); }
};

void readSegments(Reader &reader, Metadata &metadata)
{
    Bytes resources;
    for (const jpeg_marker_struct *marker = reader.info.marker_list; marker; marker = marker->next) {
        const std::uint8_t *data = marker->data;
        const std::size_t count = marker->data_length;
        if (marker->marker == JPEG_APP0 + 1 && metadata.exif.block.empty() && count > sizeof kExifMark &&
            !std::memcmp(data, kExifMark, sizeof kExifMark) && isExifBlock(data + sizeof kExifMark, count - sizeof kExifMark))
            metadata.exif.block.assign(data + sizeof kExifMark, data + count);
        else if (marker->marker == JPEG_APP0 + 13 && count > sizeof kPhotoshopMark &&
                 !std::memcmp(data, kPhotoshopMark, sizeof kPhotoshopMark))
            resources.insert(resources.end(), data + sizeof kPhotoshopMark, data + count); // one of several segments
    }
    metadata.iptc.block = photoshopResource(resources, kResourceIptc);

    JOCTET *profile = nullptr;
    unsigned count = 0;
    guarded(reader.error, [&] { jpeg_read_icc_profile(&reader.info, &profile, &count); });
    const std::unique_ptr<JOCTET, void (*)(void *)> owner(profile, std::free);
    if (profile)
        metadata.icc.assign(profile, profile + count);
}

// Adobe's programs store the inks inverted, which their marker indicates.
void inksToRgb(const std::uint8_t *inks, std::uint8_t *rgb, int width, bool inverted)
{
    const unsigned flip = inverted ? 0 : 255;
    for (int x = 0; x < width; ++x, inks += 4, rgb += 3) {
        const unsigned key = inks[3] ^ flip;
        for (int c = 0; c < 3; ++c)
            rgb[c] = std::uint8_t(((inks[c] ^ flip) * key + 127) / 255);
    }
}

// Called before the library holds all coefficients of a file. Throws FILE_READ if the file is too small for them.
void checkClaim(const jpeg_decompress_struct &info, std::uint64_t fileBytes)
{
    const std::uint64_t blocks = std::uint64_t(info.image_width) * info.image_height / 64;
    if (blocks > mostJpegBlocks(fileBytes, info.arith_code))
        throw Failure{GFL_ERROR_FILE_READ};
}

void readPixels(Reader &reader, NewBitmap &bitmap, std::uint64_t fileBytes)
{
    jpeg_decompress_struct &info = reader.info;
    const bool inks = info.out_color_space == JCS_CMYK;
    if (jpeg_has_multiple_scans(&info))
        checkClaim(info, fileBytes);
    info.progress = &reader.progress;
    guarded(reader.error, [&] { jpeg_start_decompress(&info); });

    Bytes inkRow(inks ? std::size_t(bitmap.width()) * 4 : 0);
    for (int y = 0; y < bitmap.height();) {
        JSAMPROW rows[kBand];
        int count = inks ? 1 : std::min({kBand, bitmap.rowsFrom(y), bitmap.height() - y});
        for (int i = 0; i < count; ++i)
            rows[i] = inks ? inkRow.data() : bitmap.row(y + i);
        guarded(reader.error, [&] {
            for (int done = 0; done < count;)
                done += int(jpeg_read_scanlines(&info, rows + done, static_cast<JDIMENSION>(count - done)));
        });
        if (inks)
            inksToRgb(inkRow.data(), bitmap.row(y), bitmap.width(), info.saw_Adobe_marker);
        y += count;
    }
}

/// The packing of a file whose header has been read; nothing where its tables are not those of brightness and colour.
std::optional<Packing::Jpeg> packingOf(const jpeg_decompress_struct &info)
{
    const auto read = [&](const jpeg_component_info &component, std::array<std::uint16_t, 64> &steps) {
        const JQUANT_TBL *table = component.quant_table ? component.quant_table : info.quant_tbl_ptrs[component.quant_tbl_no & 3];
        if (table)
            std::copy(std::begin(table->quantval), std::end(table->quantval), steps.begin());
        return table && std::find(steps.begin(), steps.end(), 0) == steps.end();
    };
    Packing::Jpeg packing;
    if ((info.jpeg_color_space != JCS_GRAYSCALE && info.jpeg_color_space != JCS_YCbCr) ||
        !read(info.comp_info[0], packing.brightness))
        return std::nullopt;
    if (info.jpeg_color_space == JCS_GRAYSCALE)
        return packing;
    const jpeg_component_info &bright = info.comp_info[0], &colour = info.comp_info[1];
    if (!read(colour, packing.colour.emplace()))
        return std::nullopt;
    const int across = bright.h_samp_factor / colour.h_samp_factor, down = bright.v_samp_factor / colour.v_samp_factor;
    const bool whole =
        across * colour.h_samp_factor == bright.h_samp_factor && down * colour.v_samp_factor == bright.v_samp_factor;
    if (whole && across != 3 && down != 3 && across * down <= 8) { // what the library can write
        packing.across = across;
        packing.down = down;
    }
    return packing;
}

struct Target
{
    jpeg_destination_mgr manager;
    OutputFile *file;
    JOCTET buffer[64 * 1024];
};

void startTarget(j_compress_ptr info)
{
    auto *target = reinterpret_cast<Target *>(info->dest);
    target->manager.next_output_byte = target->buffer;
    target->manager.free_in_buffer = sizeof target->buffer;
}

boolean emptyTarget(j_compress_ptr info)
{
    auto *target = reinterpret_cast<Target *>(info->dest);
    if (!target->file->tryWrite(target->buffer, sizeof target->buffer))
        ERREXIT(info, JERR_FILE_WRITE);
    startTarget(info);
    return TRUE;
}

void endTarget(j_compress_ptr info)
{
    auto *target = reinterpret_cast<Target *>(info->dest);
    if (!target->file->tryWrite(target->buffer, sizeof target->buffer - target->manager.free_in_buffer))
        ERREXIT(info, JERR_FILE_WRITE);
}

struct Writer
{
    jpeg_compress_struct info{};
    ErrorState error;
    std::unique_ptr<Target> target = std::make_unique<Target>();

    explicit Writer(OutputFile &file)
    {
        info.err = prepare(error);
        error.code = GFL_ERROR_FILE_WRITE;
        target->file = &file;
        target->manager.init_destination = startTarget;
        target->manager.empty_output_buffer = emptyTarget;
        target->manager.term_destination = endTarget;
    }
    ~Writer() { jpeg_destroy_compress(&info); }
};

void writeSegments(Writer &writer, const WriteRequest &request)
{
    Bytes exif(kExifMark, kExifMark + sizeof kExifMark);
    const Bytes block = shrinkExif(request.exif, kSegmentLimit - exif.size());
    exif.insert(exif.end(), block.begin(), block.end());

    Bytes resources;
    if (!request.iptc.empty())
        appendPhotoshopResource(resources, kResourceIptc, request.iptc);
    Bytes segment;

    const auto put = [&](int marker, const Bytes &data) {
        guarded(writer.error, [&] { jpeg_write_marker(&writer.info, marker, data.data(), unsigned(data.size())); });
    };
    if (!block.empty())
        put(JPEG_APP0 + 1, exif);
    for (std::size_t start = 0; start < resources.size();) {
        const std::size_t part = std::min(resources.size() - start, kSegmentLimit - sizeof kPhotoshopMark);
        segment.assign(kPhotoshopMark, kPhotoshopMark + sizeof kPhotoshopMark);
        segment.insert(segment.end(), resources.data() + start, resources.data() + start + part);
        put(JPEG_APP0 + 13, segment);
        start += part;
    }
    // A profile is split into at most 255 segments.
    if (!request.icc.empty() && request.icc.size() <= 255 * std::size_t(65519))
        guarded(writer.error, [&] { jpeg_write_icc_profile(&writer.info, request.icc.data(), unsigned(request.icc.size())); });
}

/// Replaces the tables of the default quality, which are set: each by its source's, scaled down if that is coarser as a whole.
void setTables(jpeg_compress_struct &info, const Packing::Jpeg &packing)
{
    const auto set = [&](int index, const std::array<std::uint16_t, 64> &steps) {
        const auto sum = [](const auto &values) { return std::accumulate(std::begin(values), std::end(values), 0u); };
        const unsigned coarsest = sum(info.quant_tbl_ptrs[index]->quantval), total = sum(steps);
        unsigned values[64];
        std::transform(steps.begin(), steps.end(), values, [&](unsigned step) {
            return total <= coarsest ? step : (step * coarsest + total / 2) / total; // 0 becomes 1 in the library
        });
        jpeg_add_quant_table(&info, index, values, /*scale_factor=*/100, /*force_baseline=*/TRUE);
    };
    set(0, packing.brightness);
    if (packing.colour)
        set(1, *packing.colour);
}

/// Copies the segments verbatim, except for the two that the library writes itself.
void copySegments(const Reader &reader, Writer &writer)
{
    const auto is = [](const jpeg_marker_struct &marker, int code, const char *name) {
        return marker.marker == code && marker.data_length >= 5 && std::memcmp(marker.data, name, 5) == 0;
    };
    for (const jpeg_marker_struct *marker = reader.info.marker_list; marker; marker = marker->next)
        if (!(writer.info.write_JFIF_header && is(*marker, JPEG_APP0, "JFIF")) &&
            !(writer.info.write_Adobe_marker && is(*marker, JPEG_APP0 + 14, "Adobe")))
            guarded(writer.error, [&] { jpeg_write_marker(&writer.info, marker->marker, marker->data, marker->data_length); });
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

/// Whether the end marker follows the start of the pixels: a truncated file has lost it.
bool hasEndMarker(const InputFile &file)
{
    std::uint64_t scan = 2;
    std::uint8_t head[4];
    while (file.readAt(scan, head, sizeof head) == sizeof head && head[0] == 0xFF) {
        const bool fill = head[1] == 0xFF;
        const bool startOfScan = head[1] == 0xDA;
        scan += fill ? 1u : 2u + unsigned(head[2]) * 256u + head[3];
        if (startOfScan)
            break;
    }
    // Backwards from the end, in pieces that overlap by a byte: the marker is rarely followed by more than padding.
    constexpr std::uint64_t kPiece = 65536;
    Bytes piece(kPiece + 1);
    for (std::uint64_t end = file.size(); end > scan;) {
        const std::uint64_t start = end - std::min(kPiece, end - scan);
        const std::size_t count = file.readAt(start, piece.data(), std::size_t(std::min(end + 1, file.size()) - start));
        for (std::size_t i = count; i-- > 1;)
            if (piece[i] == 0xD9 && piece[i - 1] == 0xFF)
                return true;
        end = start;
    }
    return false;
}

} // namespace

BitmapPointer readJpeg(const ReadRequest &request)
{
    Reader reader(request.file);
    jpeg_decompress_struct &info = reader.info;
    guarded(reader.error, [&] {
        jpeg_create_decompress(&info);
        info.src = &reader.source.manager;
        if (request.metadata) {
            jpeg_save_markers(&info, JPEG_APP0 + 1, 0xFFFF);
            jpeg_save_markers(&info, kIccMarker, 0xFFFF);
            jpeg_save_markers(&info, JPEG_APP0 + 13, 0xFFFF);
        }
        jpeg_read_header(&info, TRUE);
    });
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

    NewBitmap bitmap(request.file, info.image_width, info.image_height, {info.num_components == 1 ? 1 : 3, 8});
    const double unit = info.density_unit == 1 ? 1.0 : info.density_unit == 2 ? 2.54 : 0.0;
    bitmap.record().xDpi = dpiFrom(info.X_density * unit);
    bitmap.record().yDpi = dpiFrom(info.Y_density * unit);
    if (request.metadata) {
        readSegments(reader, attachMetadata(bitmap.record()));
        attachMetadata(bitmap.record()).packing.jpeg = packingOf(info);
    }
    if (!request.pixels && !hasEndMarker(request.file))
        throw Failure{GFL_ERROR_FILE_READ};
    if (request.pixels)
        readPixels(reader, bitmap, request.file.size());
    return bitmap.take();
}

void writeJpeg(const WriteRequest &request)
{
    const GflBitmap &bitmap = request.bitmap;
    if (bitmap.width > JPEG_MAX_DIMENSION || bitmap.height > JPEG_MAX_DIMENSION)
        throw Failure{GFL_ERROR_BAD_BITMAP};
    // Alpha is dropped, not composited: the colours are the photograph, whatever the transparency.
    const bool skipsAlpha = bitmap.componentsPerPixel == 4 && bitmap.bitsPerComponent == 8;
    const int components = bitmap.componentsPerPixel == 1 ? 1 : 3;
    const auto &source = request.packing.jpeg;
    const Packing::Jpeg *const packing = source && (components == 1 || source->colour) ? &*source : nullptr;
    SourceRows rows(bitmap, {skipsAlpha ? 4 : components, 8});

    Writer writer(request.file);
    jpeg_compress_struct &info = writer.info;
    guarded(writer.error, [&] {
        jpeg_create_compress(&info);
        info.dest = &writer.target->manager;
        info.image_width = static_cast<JDIMENSION>(bitmap.width);
        info.image_height = static_cast<JDIMENSION>(bitmap.height);
        info.input_components = skipsAlpha ? 4 : components;
        info.in_color_space = components == 1 ? JCS_GRAYSCALE : skipsAlpha ? JCS_EXT_RGBX : JCS_RGB;
        jpeg_set_defaults(&info);
        constexpr int kDefaultQuality = 92;
        jpeg_set_quality(&info, request.quality < 0 ? kDefaultQuality : std::clamp(request.quality, 1, 100), TRUE);
        for (int c = 0; c < info.num_components; ++c) // 4:4:4
            info.comp_info[c].h_samp_factor = info.comp_info[c].v_samp_factor = 1;
        if (packing && request.quality < 0)
            setTables(info, *packing);
        if (packing && components == 3) {
            info.comp_info[0].h_samp_factor = packing->across;
            info.comp_info[0].v_samp_factor = packing->down;
        }
        if (bitmap.xDpi && bitmap.yDpi) {
            info.density_unit = 1;
            info.X_density = bitmap.xDpi;
            info.Y_density = bitmap.yDpi;
        }
        jpeg_start_compress(&info, TRUE);
    });
    writeSegments(writer, request);
    for (int y = 0; y < bitmap.height; ++y) {
        JSAMPROW row = const_cast<JSAMPROW>(rows.row(y)); // the library does not write to it
        guarded(writer.error, [&] { jpeg_write_scanlines(&info, &row, 1); });
    }
    guarded(writer.error, [&] { jpeg_finish_compress(&info); });
}

void transposeJpeg(const InputFile &source, OutputFile &target)
{
    Reader reader(source);
    Writer writer(target);
    jpeg_decompress_struct &in = reader.info;
    jpeg_compress_struct &out = writer.info;
    guarded(reader.error, [&] {
        jpeg_create_decompress(&in);
        in.src = &reader.source.manager;
        in.progress = &reader.progress;
        for (int application = 0; application < 16; ++application)
            jpeg_save_markers(&in, JPEG_APP0 + application, 0xFFFF);
        jpeg_save_markers(&in, JPEG_COM, 0xFFFF);
        jpeg_read_header(&in, TRUE);
    });
    checkClaim(in, source.size());
    // The library allocates these with its own arrays, in the call that reads all coefficients.
    jvirt_barray_ptr turned[MAX_COMPONENTS] = {};
    guarded(reader.error, [&] {
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
    guarded(writer.error, [&] {
        jpeg_create_compress(&out);
        out.dest = &writer.target->manager;
        jpeg_copy_critical_parameters(&in, &out);
        out.write_JFIF_header = in.saw_JFIF_marker; // without Adobe's marker the inks would mean something else
        out.write_Adobe_marker = in.saw_Adobe_marker;
        // With tables built for this file every coefficient has a code, or is rejected; the standard tables lack some codes,
        // which would go unnoticed.
        out.optimize_coding = TRUE;
        transposeParameters(out);
        jpeg_write_coefficients(&out, turned);
    });
    copySegments(reader, writer);
    guarded(writer.error, [&] { jpeg_finish_compress(&out); });
}

} // namespace gfl
