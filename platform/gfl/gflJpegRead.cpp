#include <algorithm>
#include <cstring>
#include <new>

#include "JpegDecoder.h"
#include "JpegPart.h"
#include "gflBands.h"
#include "gflCodec.h"
#include "gflJpegSegments.h"
#include "gflMetadata.h"

namespace gfl {
namespace {

constexpr int kIccMarker = JPEG_APP0 + 2;
constexpr int kRowsPerCall = 16;

/// Pictures below this size, which take less than half a millisecond, are read by one thread.
constexpr std::int64_t kPixelsForTeam = 65536;

void readSegments(JpegDecoder &decoder, Metadata &metadata)
{
    Bytes resources;
    for (const jpeg_marker_struct *marker = decoder.info.marker_list; marker; marker = marker->next) {
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
    decoder.guard([&] { jpeg_read_icc_profile(&decoder.info, &profile, &count); });
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

/// Reads the next `count` rows of a started decompressor into those from `first` on.
void readRows(JpegDecoder &decoder, NewBitmap &bitmap, int first, int count)
{
    jpeg_decompress_struct &info = decoder.info;
    const bool inks = info.out_color_space == JCS_CMYK;
    Bytes inkRow(inks ? std::size_t(bitmap.width()) * 4 : 0);
    for (int y = first; y < first + count;) {
        JSAMPROW rows[kRowsPerCall];
        const int part = inks ? 1 : std::min({kRowsPerCall, bitmap.rowsFrom(y), first + count - y});
        for (int i = 0; i < part; ++i)
            rows[i] = inks ? inkRow.data() : bitmap.row(y + i);
        decoder.guard([&] {
            for (int done = 0; done < part;)
                done += int(jpeg_read_scanlines(&info, rows + done, static_cast<JDIMENSION>(part - done)));
        });
        if (inks)
            inksToRgb(inkRow.data(), bitmap.row(y), bitmap.width(), info.saw_Adobe_marker);
        y += part;
    }
}

/// Reads rows [first, first + count) of a bitmap that has its memory, from a stream that has `skipped` rows before them. Throws
/// for anything that is not as it should be.
void readPart(JpegDecoder::Blocks blocks, int skipped, NewBitmap &bitmap, int first, int count)
{
    JpegDecoder decoder(std::move(blocks));
    decoder.errors.strict = true;
    jpeg_decompress_struct &info = decoder.info;
    decoder.guard([&] { jpeg_read_header(&info, TRUE); });
    chooseColours(info);
    decoder.guard([&] {
        jpeg_start_decompress(&info);
        if (skipped > 0)
            jpeg_skip_scanlines(&info, static_cast<JDIMENSION>(skipped));
    });
    readRows(decoder, bitmap, first, count);
}

/// Whether upsampling looks at rows of units above and below.
bool needsNeighbours(const jpeg_decompress_struct &info)
{
    return std::any_of(info.comp_info, info.comp_info + info.num_components,
                       [&](const jpeg_component_info &component) { return component.v_samp_factor != info.max_v_samp_factor; });
}

/// Each thread decodes parts of the file, with the rows of units around it that upsampling needs.
bool readIntervals(const ReadRequest &request, const jpeg_decompress_struct &info, NewBitmap &bitmap)
{
    const std::optional<JpegIntervals> intervals = JpegIntervals::find(request.file, info);
    if (!intervals)
        return false;
    constexpr int kPartsPerThread = 2; // more parts share the work more evenly, but each has rows to decode in addition
    const int unitRows = intervals->unitRows(), step = intervals->step(), unitHeight = intervals->unitHeight();
    const int steps = (unitRows + step - 1) / step;
    const int parts = std::min(steps, request.threads * kPartsPerThread);
    if (parts < 2)
        return false;
    const int around = needsNeighbours(info) ? 1 : 0;
    shareBands(parts, request.threads, [&](int part) {
        const int first = steps * part / parts * step;
        const int last = std::min(steps * (part + 1) / parts * step, unitRows);
        const int begin = std::max(0, first - around) / step * step;
        const int end = std::min((last + around + step - 1) / step * step, unitRows);
        JpegPart stream(*intervals, begin, end);
        readPart([&] { return stream.block(); }, (first - begin) * unitHeight, bitmap, first * unitHeight,
                 std::min(last * unitHeight, bitmap.height()) - first * unitHeight);
    });
    return true;
}

/// Decodes a file without restart intervals on two threads. The second one has to decode the codes of all rows before its own,
/// but does nothing else with them. More threads would save little time, and cost each as much.
bool readHalves(const ReadRequest &request, const jpeg_decompress_struct &info, NewBitmap &bitmap)
{
    // Measured: nanoseconds for the codes of a byte, and for everything else of a pixel. If these others make up a share s of the
    // time, and the halves are such that both threads end together, one thread's time is divided by 1 + s.
    constexpr double kCodes = 9.5, kOthers = 2.0;
    constexpr double kLeastShare = 0.3; // below, it costs half as much processor time again and saves less than a quarter
    const double others = kOthers * double(bitmap.width()) * bitmap.height(), codes = kCodes * double(request.file.size());
    const double share = others / (others + codes);
    if (info.progressive_mode || info.arith_code || share < kLeastShare)
        return false;
    const int middle = int(bitmap.height() / (1 + share));
    shareBands(2, 2, [&](int half) {
        InputStream stream(request.file);
        readPart([&] { return stream.block(); }, half * middle, bitmap, half * middle,
                 half == 0 ? middle : bitmap.height() - middle);
    });
    return true;
}

/// Reads the pixels on several threads. False, with any pixels, if that is not possible or if the file has a fault, even a
/// harmless one: what becomes of such a file must not depend on the number of threads.
bool readByTeam(const ReadRequest &request, jpeg_decompress_struct &info, NewBitmap &bitmap)
{
    if (request.threads < 2 || std::int64_t(bitmap.width()) * bitmap.height() < kPixelsForTeam ||
        jpeg_has_multiple_scans(&info) || bitmap.rowsFrom(0) < bitmap.height())
        return false;
    try {
        return readIntervals(request, info, bitmap) || readHalves(request, info, bitmap);
    } catch (const Failure &) {
    } catch (const std::bad_alloc &) {
    }
    return false;
}

void readPixels(JpegDecoder &decoder, const ReadRequest &request, NewBitmap &bitmap)
{
    jpeg_decompress_struct &info = decoder.info;
    if (jpeg_has_multiple_scans(&info))
        checkCoefficients(info, request.file.size());
    if (readByTeam(request, info, bitmap))
        return;
    decoder.guard([&] { jpeg_start_decompress(&info); });
    readRows(decoder, bitmap, 0, bitmap.height());
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
    InputStream stream(request.file);
    JpegDecoder decoder([&] { return stream.block(); });
    jpeg_decompress_struct &info = decoder.info;
    decoder.guard([&] {
        if (request.metadata) {
            jpeg_save_markers(&info, JPEG_APP0 + 1, 0xFFFF);
            jpeg_save_markers(&info, kIccMarker, 0xFFFF);
            jpeg_save_markers(&info, JPEG_APP0 + 13, 0xFFFF);
        }
        jpeg_read_header(&info, TRUE);
    });
    chooseColours(info);

    NewBitmap bitmap(request.file, info.image_width, info.image_height, {info.num_components == 1 ? 1 : 3, 8});
    const double unit = info.density_unit == 1 ? 1.0 : info.density_unit == 2 ? 2.54 : 0.0;
    bitmap.record().xDpi = dpiFrom(info.X_density * unit);
    bitmap.record().yDpi = dpiFrom(info.Y_density * unit);
    if (request.metadata) {
        readSegments(decoder, attachMetadata(bitmap.record()));
        attachMetadata(bitmap.record()).packing.jpeg = packingOf(info);
    }
    if (!request.pixels && !hasEndMarker(request.file))
        throw Failure{GFL_ERROR_FILE_READ};
    if (request.pixels)
        readPixels(decoder, request, bitmap);
    return bitmap.take();
}

} // namespace gfl
