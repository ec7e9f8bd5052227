#include <algorithm>
#include <cstring>
#include <limits>

#include "gflCodec.h"
#include "gflMetadata.h"

// The merged picture of a Photoshop file: header, palette, image resources, layers (skipped), then the channels one after the
// other, plain or run-length packed. Source: Adobe Photoshop File Formats description.
namespace gfl {
namespace {

constexpr unsigned kResourceResolution = 0x03ED;
constexpr unsigned kResourceAlphaNames = 0x03EE;
constexpr char kAlphaName[] = "Transparency";
constexpr int kLargestSide = 30000; // of the small form; the large form (PSB) has wider lengths

enum Mode { Bitmap = 0, Grey = 1, Indexed = 2, Rgb = 3, Cmyk = 4, Duotone = 8 };
enum Packing { Plain = 0, Runs = 1 };

struct Header
{
    bool large = false;
    int channels = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    int depth = 0;
    int mode = 0;
    Bytes palette;
    Bytes resources;
    bool transparent = false; // the first channel after the colours is the transparency, not a saved selection
    std::uint64_t pixels = 0; // offset of the packing
};

Header readHeader(const InputFile &file)
{
    ByteReader reader(file);
    Header header;
    reader.skip(4); // the signature
    const unsigned version = reader.u16();
    reader.skip(6);
    header.channels = reader.u16();
    header.height = reader.u32();
    header.width = reader.u32();
    header.depth = reader.u16();
    header.mode = reader.u16();
    if (version != 1 && version != 2)
        throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
    header.large = version == 2;

    header.palette = reader.bytes(reader.u32());
    header.resources = reader.bytes(reader.u32());
    ByteReader layers = reader.stretch(header.large ? reader.u64() : reader.u32());
    if (layers.remaining() >= (header.large ? 10 : 6)) { // a negative layer count says so
        layers.skip(header.large ? 8 : 4);
        header.transparent = (layers.u8() & 0x80) != 0;
    }
    header.pixels = reader.position();

    const Bytes names = photoshopResource(header.resources, kResourceAlphaNames); // each preceded by its length
    if (ByteReader list(names); list.remaining() > 0 && list.u8() == sizeof kAlphaName - 1 && list.startsWith(kAlphaName))
        header.transparent = true;
    return header;
}

/// The rows of one channel, in order.
class Channel
{
public:
    /// Reads rows of `bytes` bytes, starting at `start`. `lengths` holds the lengths of the packed rows (32 bits each if
    /// `wideLengths`, otherwise 16); it is empty if the rows are not packed.
    Channel(const InputFile &file, std::uint64_t start, std::size_t bytes, ByteReader lengths, bool wideLengths)
        : stream(file, start), row(bytes), packedRows(lengths.remaining() > 0), packedBytes(std::move(lengths)), wide(wideLengths)
    {
    }

    const std::uint8_t *next()
    {
        if (!packedRows) {
            stream.read(row.data(), row.size());
            return row.data();
        }
        const std::uint32_t count = wide ? packedBytes.u32() : packedBytes.u16();
        if (count > row.size() * 2 + 128) // even the worst packer stays below this
            throw Failure{GFL_ERROR_FILE_READ};
        packed.resize(count);
        stream.read(packed.data(), count);
        unpack();
        return row.data();
    }

private:
    void unpack()
    {
        ByteReader reader(packed);
        for (std::size_t out = 0; out < row.size();) {
            const int byte = reader.u8();
            const int code = byte < 128 ? byte : byte - 256;
            if (code == -128)
                continue;
            const std::size_t count = std::size_t(code < 0 ? 1 - code : code + 1);
            if (count > row.size() - out)
                throw Failure{GFL_ERROR_FILE_READ};
            if (code < 0)
                std::memset(&row[out], reader.u8(), count);
            else
                reader.read(&row[out], count);
            out += count;
        }
    }

    InputStream stream;
    Bytes row;
    Bytes packed;
    bool packedRows;
    ByteReader packedBytes;
    bool wide;
};

/// The offset of each channel; `counts` receives the table of packed row lengths, if there is one.
std::vector<std::uint64_t> channelStarts(const InputFile &file, const Header &header, std::size_t rowBytes, Bytes &counts)
{
    ByteReader reader(file);
    reader.seek(header.pixels);
    const unsigned packing = reader.u16();
    const unsigned channels = unsigned(header.channels);
    std::vector<std::uint64_t> starts;
    if (packing == Plain) {
        for (unsigned c = 0; c < channels; ++c)
            starts.push_back(reader.position() + std::uint64_t(rowBytes) * header.height * c);
        return starts;
    }
    if (packing != Runs)
        throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
    counts = reader.bytes(std::uint64_t(header.large ? 4 : 2) * channels * header.height);
    std::uint64_t at = reader.position();
    ByteReader table(counts);
    for (unsigned c = 0; c < channels; ++c) {
        starts.push_back(at);
        for (std::uint32_t y = 0; y < header.height; ++y)
            at += header.large ? table.u32() : table.u16();
    }
    return starts;
}

template<typename Sample>
void spread(const std::uint8_t *plane, std::uint8_t *pixels, int width, int components)
{
    auto *target = reinterpret_cast<Sample *>(pixels);
    for (int x = 0; x < width; ++x, plane += sizeof(Sample), target += components) {
        Sample value = 0;
        std::memcpy(&value, plane, sizeof value);
        *target = value;
    }
}

// The inks are stored inverted: full scale is no ink.
template<typename Sample>
void inksToRgb(const Sample *inks, Sample *rgb, int width)
{
    constexpr unsigned full = std::numeric_limits<Sample>::max();
    for (int x = 0; x < width; ++x, inks += 4, rgb += 3)
        for (int c = 0; c < 3; ++c)
            rgb[c] = static_cast<Sample>((std::uint64_t(inks[c]) * inks[3] + full / 2) / full);
}

void readPixels(const InputFile &file, const Header &header, int taken, NewBitmap &bitmap)
{
    const int width = bitmap.width();
    const std::size_t rowBytes = (std::size_t(header.width) * unsigned(header.depth) + 7) / 8;
    Bytes counts;
    const std::vector<std::uint64_t> starts = channelStarts(file, header, rowBytes, counts);
    ByteReader lengths(counts);
    const std::uint64_t lengthBytes = counts.size() / unsigned(header.channels);
    std::vector<Channel> channels;
    for (int c = 0; c < taken; ++c)
        channels.emplace_back(file, starts[std::size_t(c)], rowBytes, lengths.stretch(lengthBytes), header.large);

    const Form form = formOf(bitmap.record());
    const std::size_t sampleBytes = std::size_t(form.bits) / 8;
    Bytes inks(header.mode == Cmyk ? std::size_t(width) * 4 * sampleBytes : 0);
    Bytes plane(rowBytes);
    for (int y = 0; y < bitmap.height(); ++y) {
        std::uint8_t *target = bitmap.row(y);
        if (header.mode == Bitmap || header.mode == Indexed) {
            const std::uint8_t *source = channels[0].next();
            for (int x = 0; x < width; ++x) {
                if (header.mode == Bitmap)
                    target[x] = source[x / 8] >> (7 - x % 8) & 1 ? 0 : 255;
                else
                    for (int c = 0; c < 3; ++c)
                        target[x * 3 + c] = header.palette[std::size_t(c) * 256 + source[x]];
            }
            continue;
        }
        std::uint8_t *pixels = header.mode == Cmyk ? inks.data() : target;
        const int components = header.mode == Cmyk ? 4 : form.components;
        for (int i = 0; i < components; ++i) {
            const int c = taken == 2 ? (i < 3 ? 0 : 1) : i; // grey with alpha becomes colour with alpha
            if (taken != 2 || i == 0 || i == 3)
                swapSamples(channels[std::size_t(c)].next(), plane.data(), rowBytes / sampleBytes, form.bits);
            std::uint8_t *first = pixels + sampleBytes * unsigned(i);
            if (form.bits == 8)
                spread<std::uint8_t>(plane.data(), first, width, components);
            else if (form.bits == 16)
                spread<std::uint16_t>(plane.data(), first, width, components);
            else
                spread<std::uint32_t>(plane.data(), first, width, components);
        }
        if (header.mode == Cmyk && form.bits == 8)
            inksToRgb(inks.data(), target, width);
        else if (header.mode == Cmyk)
            inksToRgb(reinterpret_cast<const std::uint16_t *>(inks.data()), reinterpret_cast<std::uint16_t *>(target), width);
    }
}

// ---- writing

void appendPacked(Bytes &out, const std::uint8_t *row, std::size_t bytes)
{
    constexpr std::size_t kLongest = 128;
    constexpr std::size_t kWorthwhile = 3;
    const auto runAt = [&](std::size_t at) {
        std::size_t length = 1;
        while (length < kLongest && at + length < bytes && row[at + length] == row[at])
            ++length;
        return length;
    };
    for (std::size_t at = 0; at < bytes;) {
        std::size_t run = runAt(at);
        if (run >= kWorthwhile) {
            out.push_back(std::uint8_t(257 - run));
            out.push_back(row[at]);
            at += run;
            continue;
        }
        const std::size_t start = at;
        while (at < bytes && at - start < kLongest && (run = runAt(at)) < kWorthwhile)
            at = std::min(at + run, start + kLongest);
        out.push_back(std::uint8_t(at - start - 1));
        out.insert(out.end(), row + start, row + at);
    }
}

template<typename Sample>
void gather(const std::uint8_t *pixels, int component, int components, int width, Bytes &plane)
{
    const auto *source = reinterpret_cast<const Sample *>(pixels) + component;
    auto *target = reinterpret_cast<Sample *>(plane.data());
    for (int x = 0; x < width; ++x)
        target[x] = source[std::size_t(x) * unsigned(components)];
    swapSamples(target, target, std::size_t(width), sizeof(Sample) * 8);
}

Bytes resourcesOf(const WriteRequest &request)
{
    const GflBitmap &bitmap = request.bitmap;
    Bytes section;
    if (bitmap.xDpi && bitmap.yDpi) {
        Bytes resolution; // 16.16 pixels per inch, displayed in inches; for both axes
        for (const unsigned dpi : {bitmap.xDpi, bitmap.yDpi}) {
            putBig32(resolution, dpi << 16);
            putBig16(resolution, 1);
            putBig16(resolution, 1);
        }
        appendPhotoshopResource(section, kResourceResolution, resolution);
    }
    if (bitmap.componentsPerPixel == 4) {
        Bytes names(sizeof kAlphaName, std::uint8_t(sizeof kAlphaName - 1)); // the length of the name, and the name
        std::copy_n(kAlphaName, sizeof kAlphaName - 1, names.begin() + 1);
        appendPhotoshopResource(section, kResourceAlphaNames, names);
    }
    if (!request.iptc.empty())
        appendPhotoshopResource(section, kResourceIptc, request.iptc);
    if (!request.icc.empty())
        appendPhotoshopResource(section, kResourceIcc, request.icc);
    if (!request.exif.empty())
        appendPhotoshopResource(section, kResourceExif, request.exif);
    return section;
}

} // namespace

BitmapPointer readPsd(const ReadRequest &request)
{
    const Header header = readHeader(request.file);
    Form form{};
    int taken = 1;
    const bool deep = header.depth == 8 || header.depth == 16 || header.depth == 32;
    switch (deep || (header.mode == Bitmap && header.depth == 1) ? header.mode : -1) {
    case Bitmap:
        form = {1, 8};
        break;
    case Indexed:
        if (header.depth != 8 || header.palette.size() < 768)
            throw Failure{GFL_ERROR_FILE_READ};
        form = {3, 8};
        break;
    case Grey:
    case Duotone:
        taken = header.transparent && header.channels >= 2 ? 2 : 1;
        form = {taken == 2 ? 4 : 1, header.depth};
        break;
    case Rgb:
        taken = header.transparent && header.channels >= 4 ? 4 : 3;
        form = {taken, header.depth};
        break;
    case Cmyk:
        if (header.depth == 32)
            throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
        taken = 4;
        form = {3, header.depth};
        break;
    default:
        throw Failure{GFL_ERROR_UNKNOWN_FORMAT}; // Lab, several inks
    }
    constexpr int kMostChannels = 56;
    if (header.channels < taken || header.channels > kMostChannels)
        throw Failure{GFL_ERROR_FILE_READ};

    NewBitmap bitmap(request.file, header.width, header.height, form);
    const Bytes resolution = photoshopResource(header.resources, kResourceResolution);
    if (ByteReader perInch(resolution); perInch.holds(0, 16)) { // 16.16 fixed-point numbers, the vertical one at byte 8
        bitmap.record().xDpi = dpiFrom(perInch.u32() / 65536.0);
        perInch.seek(8);
        bitmap.record().yDpi = dpiFrom(perInch.u32() / 65536.0);
    }
    if (request.metadata) {
        Metadata &metadata = attachMetadata(bitmap.record());
        metadata.icc = photoshopResource(header.resources, kResourceIcc);
        metadata.iptc.block = photoshopResource(header.resources, kResourceIptc);
        const Bytes exif = photoshopResource(header.resources, kResourceExif);
        if (isExifBlock(exif.data(), exif.size()))
            metadata.exif.block = exif;
    }
    if (request.pixels)
        readPixels(request.file, header, taken, bitmap);
    return bitmap.take();
}

void writePsd(const WriteRequest &request)
{
    const GflBitmap &bitmap = request.bitmap;
    OutputFile &file = request.file;
    const bool large = std::max(bitmap.width, bitmap.height) > kLargestSide;
    if (std::max(bitmap.width, bitmap.height) > kLargestSide * 10)
        throw Failure{GFL_ERROR_BAD_BITMAP};
    const int components = bitmap.componentsPerPixel;
    // Run lengths do not shrink floats.
    const bool runs = request.compression != 0 && bitmap.bitsPerComponent < 32;

    Bytes head{'8', 'B', 'P', 'S', 0, std::uint8_t(large ? 2 : 1), 0, 0, 0, 0, 0, 0};
    putBig16(head, unsigned(components));
    putBig32(head, std::uint32_t(bitmap.height));
    putBig32(head, std::uint32_t(bitmap.width));
    putBig16(head, bitmap.bitsPerComponent);
    putBig16(head, components == 1 ? Grey : Rgb);
    putBig32(head, 0); // no palette
    const Bytes resources = resourcesOf(request);
    putBig32(head, std::uint32_t(resources.size()));
    head.insert(head.end(), resources.begin(), resources.end());
    for (int i = 0; i < (large ? 2 : 1); ++i)
        putBig32(head, 0); // no layers
    putBig16(head, runs ? Runs : Plain);
    file.write(head);

    const std::uint64_t table = file.offset();
    Bytes counts;
    const auto addCount = [&](std::size_t count) {
        if (large)
            putBig32(counts, std::uint32_t(count));
        else
            putBig16(counts, unsigned(count));
    };
    if (runs) { // filled in at the end
        for (int i = 0; i < bitmap.height * components; ++i)
            addCount(0);
        file.write(counts);
        counts.clear();
    }
    Bytes plane(std::size_t(bitmap.width) * (bitmap.bitsPerComponent / 8));
    Bytes packed;
    for (int c = 0; c < components; ++c)
        for (int y = 0; y < bitmap.height; ++y) {
            const std::uint8_t *row = rowOf(bitmap, y);
            if (bitmap.bitsPerComponent == 8)
                gather<std::uint8_t>(row, c, components, bitmap.width, plane);
            else if (bitmap.bitsPerComponent == 16)
                gather<std::uint16_t>(row, c, components, bitmap.width, plane);
            else
                gather<std::uint32_t>(row, c, components, bitmap.width, plane);
            if (!runs) {
                file.write(plane);
                continue;
            }
            packed.clear();
            appendPacked(packed, plane.data(), plane.size());
            addCount(packed.size());
            file.write(packed);
        }
    if (runs) {
        if (!file.trySeek(table))
            throw Failure{GFL_ERROR_FILE_WRITE};
        file.write(counts);
    }
}

} // namespace gfl
