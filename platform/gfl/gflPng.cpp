#include <algorithm>
#include <csetjmp>
#include <cstdlib>
#include <cstring>

#include <libdeflate.h>
#include <png.h>
#include <zlib.h>

#include "PngRowFilter.h"
#include "gflBands.h"
#include "gflClaims.h"
#include "gflCodec.h"
#include "gflMetadata.h"

namespace gfl {
namespace {

constexpr std::uint8_t kSignature[8] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr double kMetresPerInch = 0.0254;

// ---- reading

struct Reader
{
    png_structp png = nullptr;
    png_infop info = nullptr;
    InputStream stream;

    explicit Reader(const InputFile &file) : stream(file) {}
    ~Reader() { png_destroy_read_struct(&png, &info, nullptr); }
};

// Runs calls of the library, which may jump out of here: `call` must not create objects with destructors.
template<typename Call>
void guarded(png_structp png, Call call)
{
    if (setjmp(png_jmpbuf(png)))
        throw Failure{GFL_ERROR_FILE_READ};
    call();
}

[[noreturn]] void onError(png_structp png, png_const_charp)
{
    png_longjmp(png, 1);
}
void onWarning(png_structp, png_const_charp) {}

void onRead(png_structp png, png_bytep target, std::size_t bytes)
{
    if (!static_cast<InputStream *>(png_get_io_ptr(png))->tryRead(target, bytes))
        png_error(png, "");
}

void openReader(Reader &reader)
{
    reader.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, onError, onWarning);
    if (!reader.png)
        throw Failure{GFL_ERROR_NO_MEMORY};
    reader.info = png_create_info_struct(reader.png);
    if (!reader.info)
        throw Failure{GFL_ERROR_NO_MEMORY};
    png_set_read_fn(reader.png, &reader.stream, onRead);
    guarded(reader.png, [&] {
        png_set_keep_unknown_chunks(reader.png, PNG_HANDLE_CHUNK_NEVER, nullptr, 0);
        // collectMetadata() gathers the metadata verbatim.
        static constexpr png_byte kIgnored[] = "iCCP\0tEXt\0zTXt\0iTXt\0eXIf";
        png_set_keep_unknown_chunks(reader.png, PNG_HANDLE_CHUNK_NEVER, kIgnored, 5);
        png_read_info(reader.png, reader.info);
    });
}

void readPixels(Reader &reader, NewBitmap &bitmap)
{
    const png_structp png = reader.png;
    int passes = 1;
    std::size_t rowBytes = 0;
    guarded(png, [&] {
        passes = png_set_interlace_handling(png);
        png_read_update_info(png, reader.info);
        rowBytes = png_get_rowbytes(png, reader.info);
    });
    if (rowBytes != std::size_t(bitmap.width()) * bitmap.record().bytesPerPixel)
        throw Failure{GFL_ERROR_FILE_READ};
    if (passes > 1) {
        // Seven passes, each over the rows of the whole image.
        bitmap.row(bitmap.height() - 1);
        const std::size_t stride = bitmap.record().bytesPerLine;
        std::uint8_t *first = bitmap.row(0);
        std::memset(first, 0, stride * std::size_t(bitmap.height()));
        const int height = bitmap.height();
        guarded(png, [&] {
            for (int pass = 0; pass < passes; ++pass)
                for (int y = 0; y < height; ++y)
                    png_read_row(png, first + stride * std::size_t(y), nullptr);
        });
        return;
    }
    for (int y = 0; y < bitmap.height();) {
        const int count = std::min(bitmap.rowsFrom(y), bitmap.height() - y);
        const std::size_t stride = bitmap.record().bytesPerLine;
        std::uint8_t *first = bitmap.row(y);
        guarded(png, [&] {
            for (int i = 0; i < count; ++i)
                png_read_row(png, first + stride * std::size_t(i), nullptr);
        });
        y += count;
    }
}

Bytes inflated(const Bytes &packed)
{
    const std::unique_ptr<libdeflate_decompressor, void (*)(libdeflate_decompressor *)> inflater(libdeflate_alloc_decompressor(),
                                                                                                 libdeflate_free_decompressor);
    if (!inflater)
        throw Failure{GFL_ERROR_NO_MEMORY};
    Bytes result;
    for (std::size_t room = packed.size() * 4 + 1024; room <= kLargestText; room *= 4) {
        result.resize(room);
        std::size_t size = 0;
        const libdeflate_result state =
            libdeflate_zlib_decompress(inflater.get(), packed.data(), packed.size(), result.data(), room, &size);
        if (state == LIBDEFLATE_SUCCESS) {
            result.resize(size);
            return result;
        }
        if (state != LIBDEFLATE_INSUFFICIENT_SPACE)
            break;
    }
    return {};
}

int hexDigit(std::uint8_t c)
{
    return c >= '0' && c <= '9' ? c - '0' : c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

// A "raw profile": a line feed, a name, the size in decimal, then hexadecimal digits in lines.
Bytes rawProfile(const Bytes &text)
{
    Bytes result;
    const auto isSpace = [](std::uint8_t c) { return c == ' ' || c == '\n'; };
    auto at = std::find_if_not(text.begin(), text.end(), isSpace);
    at = std::find(at, text.end(), '\n');
    at = std::find_if_not(at, text.end(), isSpace);
    at = std::find(at, text.end(), '\n');
    int high = -1;
    for (; at != text.end(); ++at) {
        const int digit = hexDigit(*at);
        if (digit < 0)
            continue;
        if (high < 0) {
            high = digit;
        } else {
            result.push_back(std::uint8_t(high * 16 + digit));
            high = -1;
        }
    }
    return result;
}

void readText(ByteReader &chunk, bool packed, Metadata &metadata)
{
    constexpr std::string_view kProfile = "Raw profile type ";
    if (!chunk.startsWith(kProfile))
        return;
    chunk.skip(kProfile.size());
    const std::string kind = chunk.text(kLargestText);
    chunk.skip(packed ? 1 : 0); // the method
    Bytes text = chunk.bytes(chunk.remaining());
    if (packed)
        text = inflated(text);
    if (kind == "iptc" && metadata.iptc.block.empty()) {
        const Bytes block = rawProfile(text); // image resources, or the bare datasets
        metadata.iptc.block = !block.empty() && block[0] == 0x1C ? block : photoshopResource(block, kResourceIptc);
    } else if ((kind == "exif" || kind == "APP1") && metadata.exif.block.empty()) {
        Bytes block = rawProfile(text);
        constexpr std::size_t kMark = 6; // "Exif\0\0"
        if (block.size() > kMark && ByteReader(block).startsWith("Exif"))
            block.erase(block.begin(), block.begin() + kMark);
        if (isExifBlock(block.data(), block.size()))
            metadata.exif.block = block;
    }
}

void readChunk(ByteReader &chunk, const std::string &type, Metadata &metadata)
{
    if (chunk.remaining() > kLargestText)
        return;
    if (type == "iCCP") {
        chunk.text(kLargestText); // the profile's name
        chunk.skip(1);            // the method
        if (chunk.remaining() > 0)
            metadata.icc = inflated(chunk.bytes(chunk.remaining()));
    } else if (type == "eXIf") {
        const Bytes block = chunk.bytes(chunk.remaining());
        if (isExifBlock(block.data(), block.size()))
            metadata.exif.block = block;
    } else if (type == "zTXt" || type == "tEXt") {
        readText(chunk, type == "zTXt", metadata);
    }
}

/// Walks over the chunks of the file, so that the pixels are skipped, not unpacked. Throws EndOfBytes if the last chunk is
/// missing.
void collectMetadata(const InputFile &file, Metadata &metadata)
{
    constexpr std::uint64_t kCheckSum = 4;
    ByteReader reader(file);
    reader.skip(sizeof kSignature);
    for (;;) {
        const std::uint32_t length = reader.u32();
        const Bytes type = reader.bytes(4);
        const std::string name(type.begin(), type.end());
        if (name == "IEND")
            return;
        ByteReader chunk = reader.stretch(length);
        try {
            readChunk(chunk, name, metadata);
        } catch (const EndOfBytes &) { // a damaged chunk is left out
        }
        reader.skip(kCheckSum);
    }
}

// ---- writing

void writeChunk(OutputFile &file, const char *type, const std::uint8_t *data, std::size_t count)
{
    Bytes head;
    putBig32(head, std::uint32_t(count));
    head.insert(head.end(), type, type + 4);
    std::uint32_t check = libdeflate_crc32(0, head.data() + 4, 4);
    if (count > 0) // without a buffer the library would start over
        check = libdeflate_crc32(check, data, count);
    Bytes tail;
    putBig32(tail, check);
    file.write(head);
    file.write(data, count);
    file.write(tail);
}

void writeChunk(OutputFile &file, const char *type, const Bytes &data)
{
    writeChunk(file, type, data.data(), data.size());
}

struct Deflater
{
    libdeflate_compressor *handle;

    explicit Deflater(int level) : handle(libdeflate_alloc_compressor(level))
    {
        if (!handle)
            throw Failure{GFL_ERROR_NO_MEMORY};
    }
    ~Deflater() { libdeflate_free_compressor(handle); }
    Deflater(const Deflater &) = delete;
    Deflater &operator=(const Deflater &) = delete;
};

void appendDeflated(Bytes &chunk, const Bytes &data)
{
    const Deflater deflater(6);
    const std::size_t start = chunk.size();
    chunk.resize(start + libdeflate_zlib_compress_bound(deflater.handle, data.size()));
    chunk.resize(start +
                 libdeflate_zlib_compress(deflater.handle, data.data(), data.size(), chunk.data() + start, chunk.size() - start));
}

void writeMetadata(const WriteRequest &request)
{
    constexpr std::size_t kColourSpace = 16;
    // This format requires a grey profile for grey pixels.
    if (!request.icc.empty() &&
        (request.bitmap.componentsPerPixel == 1) == (std::memcmp(&request.icc[kColourSpace], "GRAY", 4) == 0)) {
        static constexpr char kName[] = "ICC Profile";
        Bytes chunk(kName, kName + sizeof kName);
        chunk.push_back(0); // packed by deflate
        appendDeflated(chunk, request.icc);
        writeChunk(request.file, "iCCP", chunk);
    }
    if (!request.exif.empty())
        writeChunk(request.file, "eXIf", request.exif);
    if (!request.iptc.empty()) {
        Bytes block;
        appendPhotoshopResource(block, kResourceIptc, request.iptc);
        const std::string size = std::to_string(block.size());
        std::string text = "\niptc\n" + std::string(8 - std::min<std::size_t>(size.size(), 8), ' ') + size;
        constexpr std::size_t kBytesPerLine = 36;
        for (std::size_t i = 0; i < block.size(); ++i) {
            if (i % kBytesPerLine == 0)
                text += '\n';
            text += "0123456789abcdef"[block[i] >> 4];
            text += "0123456789abcdef"[block[i] & 15];
        }
        text += '\n';
        static constexpr char kName[] = "Raw profile type iptc";
        Bytes chunk(kName, kName + sizeof kName);
        chunk.push_back(0);
        appendDeflated(chunk, Bytes(text.begin(), text.end()));
        writeChunk(request.file, "zTXt", chunk);
    }
}

// The zlib stream of the pixels is made of bands of rows, which several threads pack. How the rows are divided does not depend on
// the number of threads, and neither do the bytes of the file.

/// The filtered rows of a band; see PNG (ISO/IEC 15948), clause 9.
Bytes filteredRows(const GflBitmap &bitmap, Form form, int firstRow, int rows)
{
    const std::size_t rowBytes = std::size_t(bitmap.width) * form.pixelBytes();
    Bytes filtered((rowBytes + 1) * std::size_t(rows));
    SourceRows source(bitmap, form);
    PngRowFilter filter(rowBytes, form.pixelBytes());
    const auto put = [&](int y) {
        swapSamples(source.row(y), filter.next(), form.bits == 16 ? rowBytes / 2 : rowBytes, form.bits);
    };
    if (firstRow > 0) {
        put(firstRow - 1);
        filter.skip();
    }
    for (int i = 0; i < rows; ++i) {
        put(firstRow + i);
        filter.filter(filtered.data() + (rowBytes + 1) * std::size_t(i));
    }
    return filtered;
}

/// Turns a complete deflate stream into one that another can follow: its last block is no longer marked as the last, and an empty
/// stored block fills up the last byte. libdeflate can't do this, so zlib finds the block, unpacking into `scratch`, which must
/// hold the unpacked data.
void openEnd(Bytes &stream, Bytes &scratch)
{
    struct Inflater : z_stream
    {
        Inflater() : z_stream{} {}
        ~Inflater() { inflateEnd(this); }
    } inflater;
    constexpr int kRaw = -15; // the largest window, no header
    if (inflateInit2(&inflater, kRaw) != Z_OK)
        throw Failure{GFL_ERROR_NO_MEMORY};
    inflater.next_in = stream.data();
    inflater.avail_in = unsigned(stream.size());
    inflater.next_out = scratch.data();
    inflater.avail_out = unsigned(scratch.size());
    constexpr int kUnusedBits = 7;
    constexpr int kInLastBlock = 64;
    constexpr int kBetweenBlocks = 128;
    std::size_t lastBlock = 0; // in bits
    std::size_t position = 0;
    do {
        if (inflate(&inflater, Z_BLOCK) != Z_OK || !(inflater.data_type & kBetweenBlocks))
            throw Failure{GFL_ERROR_NO_MEMORY}; // there is no other reason
        lastBlock = position;
        position = inflater.total_in * 8 - unsigned(inflater.data_type & kUnusedBits);
    } while (!(inflater.data_type & kInLastBlock));

    stream[lastBlock / 8] &= std::uint8_t(~(1u << lastBlock % 8));
    constexpr std::size_t kStoredHead = 3; // zeros, as are the unused bits of the last byte
    stream.resize((position + kStoredHead + 7) / 8);
    stream.insert(stream.end(), {0, 0, 0xFF, 0xFF}); // the length, and its complement
}

/// Packs a band as a part of the deflate stream. Afterwards `data` may hold anything.
Bytes deflated(Bytes &data, int level, bool last)
{
    const Deflater deflater(level);
    Bytes packed(libdeflate_deflate_compress_bound(deflater.handle, data.size()));
    packed.resize(libdeflate_deflate_compress(deflater.handle, data.data(), data.size(), packed.data(), packed.size()));
    if (!last)
        openEnd(packed, data);
    return packed;
}

void writePixels(const WriteRequest &request, Form form, int level)
{
    const GflBitmap &bitmap = request.bitmap;
    constexpr std::size_t kBandBytes = std::size_t(1) << 20;
    const std::size_t rowBytes = std::size_t(bitmap.width) * form.pixelBytes() + 1;
    const int bandRows = int(std::clamp<std::size_t>(kBandBytes / rowBytes, 1, std::size_t(bitmap.height)));
    const int bands = (bitmap.height - 1) / bandRows + 1;
    const auto rowsOf = [&](int band) { return std::min(bandRows, bitmap.height - band * bandRows); };

    std::vector<std::uint32_t> checks(std::size_t(bands), 0); // each of its band
    std::uint32_t check = 1;
    int written = 0;
    shareBandsInOrder(
        bands, request.threads,
        [&](int band) {
            Bytes data = filteredRows(bitmap, form, band * bandRows, rowsOf(band));
            checks[std::size_t(band)] = libdeflate_adler32(1, data.data(), data.size());
            return deflated(data, level, band + 1 == bands);
        },
        [&](const Bytes &packed) {
            check = std::uint32_t(adler32_combine(check, checks[std::size_t(written)],
                                                  static_cast<z_off_t>(rowBytes * std::size_t(rowsOf(written)))));
            constexpr unsigned char kHead[] = {0x78, 0x5E}; // deflate with the largest window, fast
            const std::size_t head = written == 0 ? sizeof kHead : 0;
            Bytes chunk(head + packed.size());
            std::copy_n(kHead, head, chunk.begin());
            std::copy(packed.begin(), packed.end(), chunk.begin() + std::ptrdiff_t(head));
            if (++written == bands)
                putBig32(chunk, check);
            constexpr std::size_t kLargestChunk = std::size_t(1) << 30;
            for (std::size_t at = 0; at < chunk.size(); at += kLargestChunk)
                writeChunk(request.file, "IDAT", chunk.data() + at, std::min(kLargestChunk, chunk.size() - at));
        });
}

} // namespace

BitmapPointer readPng(const ReadRequest &request)
{
    Reader reader(request.file);
    openReader(reader);
    const png_structp png = reader.png;
    png_uint_32 width = 0;
    png_uint_32 height = 0;
    int depth = 0;
    int colour = 0;
    std::size_t packedRow = 0;
    Form form{};
    guarded(png, [&] {
        png_get_IHDR(png, reader.info, &width, &height, &depth, &colour, nullptr, nullptr, nullptr);
        packedRow = png_get_rowbytes(png, reader.info);
        png_set_expand(png); // palette to RGB, 1, 2 and 4 bits to 8, transparent colour to alpha
        if (depth == 16)
            png_set_swap(png);
        const bool alpha = (colour & PNG_COLOR_MASK_ALPHA) || png_get_valid(png, reader.info, PNG_INFO_tRNS);
        if (alpha)
            png_set_gray_to_rgb(png);
        form = {alpha ? 4 : (colour & PNG_COLOR_MASK_COLOR) ? 3 : 1, depth == 16 ? 16 : 8};
    });
    if ((std::uint64_t(packedRow) + 1) * height / kDeflateRatio > request.file.size())
        throw Failure{GFL_ERROR_FILE_READ};

    NewBitmap bitmap(request.file, width, height, form);
    png_uint_32 xPerUnit = 0;
    png_uint_32 yPerUnit = 0;
    int unit = 0;
    if (png_get_pHYs(png, reader.info, &xPerUnit, &yPerUnit, &unit) && unit == PNG_RESOLUTION_METER) {
        bitmap.record().xDpi = dpiFrom(xPerUnit * kMetresPerInch);
        bitmap.record().yDpi = dpiFrom(yPerUnit * kMetresPerInch);
    }
    if (request.metadata)
        collectMetadata(request.file, attachMetadata(bitmap.record()));
    if (request.pixels)
        readPixels(reader, bitmap);
    return bitmap.take();
}

void writePng(const WriteRequest &request)
{
    const GflBitmap &bitmap = request.bitmap;
    const Form form{bitmap.componentsPerPixel, bitmap.bitsPerComponent == 8 ? 8 : 16};

    request.file.write(kSignature, sizeof kSignature);
    Bytes header;
    putBig32(header, std::uint32_t(bitmap.width));
    putBig32(header, std::uint32_t(bitmap.height));
    header.push_back(std::uint8_t(form.bits));
    header.push_back(form.components == 1   ? PNG_COLOR_TYPE_GRAY
                     : form.components == 3 ? PNG_COLOR_TYPE_RGB
                                            : PNG_COLOR_TYPE_RGB_ALPHA);
    header.insert(header.end(), {0, 0, 0}); // deflate, adaptive filters, no interlace
    writeChunk(request.file, "IHDR", header);
    if (bitmap.xDpi && bitmap.yDpi) {
        Bytes resolution;
        putBig32(resolution, std::uint32_t(bitmap.xDpi / kMetresPerInch + 0.5));
        putBig32(resolution, std::uint32_t(bitmap.yDpi / kMetresPerInch + 0.5));
        resolution.push_back(PNG_RESOLUTION_METER);
        writeChunk(request.file, "pHYs", resolution);
    }
    writeMetadata(request);

    constexpr int kDefaultLevel = 3;
    const int level = request.compression < 0 ? kDefaultLevel : std::min(request.compression, 9);
    writePixels(request, form, level);
    writeChunk(request.file, "IEND", {});
}

} // namespace gfl
