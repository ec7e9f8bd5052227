#include <algorithm>
#include <cstring>
#include <new>
#include <numeric>

#include "JpegEncoder.h"
#include "gflBands.h"
#include "gflCodec.h"
#include "gflJpegSegments.h"
#include "gflMetadata.h"

namespace gfl {
namespace {

// A picture of this many pixels and more is written in bands, whatever the number of threads, so that the file does not depend on
// it: below, a file takes no more than a few milliseconds.
constexpr std::int64_t kBandedPixels = std::int64_t(1) << 20;

/// Restart markers are numbered from 0 to 7: a band of eight intervals ends with number 7, and the next one begins with 0.
constexpr int kIntervalsPerBand = 8;

/// The shortest restart interval. Its marker and what follows from it take about 5 bytes; at best, a unit takes as much.
constexpr JDIMENSION kShortestInterval = 100;

void writeSegments(JpegEncoder &encoder, const WriteRequest &request)
{
    Bytes exif(kExifMark, kExifMark + sizeof kExifMark);
    const Bytes block = shrinkExif(request.exif, kSegmentLimit - exif.size());
    exif.insert(exif.end(), block.begin(), block.end());

    Bytes resources;
    if (!request.iptc.empty())
        appendPhotoshopResource(resources, kResourceIptc, request.iptc);
    Bytes segment;

    const auto put = [&](int marker, const Bytes &data) {
        encoder.guard([&] { jpeg_write_marker(&encoder.info, marker, data.data(), unsigned(data.size())); });
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
        encoder.guard([&] { jpeg_write_icc_profile(&encoder.info, request.icc.data(), unsigned(request.icc.size())); });
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

/// Writes one bitmap: as a whole, or the parts of a file that several threads make.
class BitmapCoder
{
public:
    explicit BitmapCoder(const WriteRequest &write)
        : request(write), bitmap(write.bitmap),
          // Alpha is dropped, not composited: the colours are the photograph, whatever the transparency.
          skipsAlpha(bitmap.componentsPerPixel == 4 && bitmap.bitsPerComponent == 8),
          components(bitmap.componentsPerPixel == 1 ? 1 : 3)
    {
        const auto &source = request.packing.jpeg;
        packing = source && (components == 1 || source->colour) ? &*source : nullptr;
    }

    bool inBands() const { return std::int64_t(bitmap.width) * bitmap.height >= kBandedPixels; }

    /// Sets up a compressor for `height` rows and starts it.
    void start(JpegEncoder &encoder, int height) const
    {
        jpeg_compress_struct &info = encoder.info;
        encoder.guard([&] {
            info.image_width = static_cast<JDIMENSION>(bitmap.width);
            info.image_height = static_cast<JDIMENSION>(height);
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
            if (inBands())
                info.restart_in_rows = intervalUnitRows(info);
            jpeg_start_compress(&info, TRUE);
        });
    }

    void writeRows(JpegEncoder &encoder, int first, int count) const
    {
        SourceRows rows(bitmap, {skipsAlpha ? 4 : components, 8});
        for (int y = first; y < first + count; ++y) {
            JSAMPROW row = const_cast<JSAMPROW>(rows.row(y)); // the library does not write to it
            encoder.guard([&] { jpeg_write_scanlines(&encoder.info, &row, 1); });
        }
    }

    /// Rows of pixels in a band.
    static int bandRows(const jpeg_compress_struct &info) { return kIntervalsPerBand * info.restart_in_rows * unitHeight(info); }

    /// The coded data of the rows from `first`, with the marker that separates it from the next band's.
    Bytes makeBand(int first, int count) const
    {
        Bytes coded;
        JpegEncoder encoder([&](const JOCTET *bytes, std::size_t size) {
            try {
                coded.insert(coded.end(), bytes, bytes + size);
            } catch (const std::bad_alloc &) {
                return GFL_ERROR_NO_MEMORY;
            }
            return GFL_NO_ERROR;
        });
        start(encoder, count);
        encoder.writeHeaders();
        encoder.drop();
        writeRows(encoder, first, count);
        encoder.guard([&] { jpeg_finish_compress(&encoder.info); });
        // The end marker becomes the last restart marker, or the file's own end.
        if (first + count < bitmap.height)
            coded.back() = JPEG_RST0 + kIntervalsPerBand - 1;
        return coded;
    }

private:
    static int unitHeight(const jpeg_compress_struct &info) { return info.comp_info[0].v_samp_factor * DCTSIZE; }

    static int intervalUnitRows(const jpeg_compress_struct &info)
    {
        const JDIMENSION unitWidth = static_cast<JDIMENSION>(info.comp_info[0].h_samp_factor) * DCTSIZE;
        const JDIMENSION perRow = (info.image_width + unitWidth - 1) / unitWidth;
        return int((kShortestInterval + perRow - 1) / perRow);
    }

    const WriteRequest &request;
    const GflBitmap &bitmap;
    const bool skipsAlpha;
    const int components;
    const Packing::Jpeg *packing;
};

} // namespace

void writeJpeg(const WriteRequest &request)
{
    const GflBitmap &bitmap = request.bitmap;
    if (bitmap.width > JPEG_MAX_DIMENSION || bitmap.height > JPEG_MAX_DIMENSION)
        throw Failure{GFL_ERROR_BAD_BITMAP};
    const BitmapCoder coder(request);
    JpegEncoder encoder([&](const JOCTET *bytes, std::size_t count) {
        return request.file.tryWrite(bytes, count) ? GFL_NO_ERROR : GFL_ERROR_FILE_WRITE;
    });
    coder.start(encoder, bitmap.height);
    writeSegments(encoder, request);
    if (!coder.inBands()) {
        coder.writeRows(encoder, 0, bitmap.height);
        encoder.guard([&] { jpeg_finish_compress(&encoder.info); });
        return;
    }
    encoder.writeHeaders();
    encoder.flush();
    const int rows = BitmapCoder::bandRows(encoder.info);
    shareBandsInOrder((bitmap.height + rows - 1) / rows, request.threads,
                      [&](int band) { return coder.makeBand(band * rows, std::min(rows, bitmap.height - band * rows)); },
                      [&](const Bytes &coded) { request.file.write(coded); });
}

} // namespace gfl
