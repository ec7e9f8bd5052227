#include <algorithm>
#include <cstring>
#include <limits>
#include <set>

#include <OpenEXR/Iex.h>
#include <OpenEXR/ImfAttribute.h>
#include <OpenEXR/ImfChannelList.h>
#include <OpenEXR/ImfFrameBuffer.h>
#include <OpenEXR/ImfHeader.h>
#include <OpenEXR/ImfIO.h>
#include <OpenEXR/ImfInputFile.h>
#include <OpenEXR/ImfOutputFile.h>
#include <OpenEXR/ImfRgbaFile.h>
#include <OpenEXR/ImfStandardAttributes.h>
#include <OpenEXR/ImfStringAttribute.h>
#include <OpenEXR/ImfVersion.h>
#include <libdeflate.h>

#include "gflClaims.h"
#include "gflCodec.h"
#include "gflMetadata.h"

namespace gfl {
namespace {

constexpr int kNoThreads = 0;
constexpr char kMake[] = "cameraMake";
constexpr char kModel[] = "cameraModel";

class InputAdapter : public Imf::IStream
{
public:
    explicit InputAdapter(const InputFile &file) : IStream(""), stream(file), size(file.size()) {}

    bool read(char target[], int bytes) override
    {
        if (!stream.tryRead(target, std::size_t(bytes)))
            throw Iex::InputExc("Unexpected end of file.");
        return stream.offset() < size;
    }
    std::uint64_t tellg() override { return stream.offset(); }
    void seekg(std::uint64_t offset) override { stream.seek(offset); }

private:
    InputStream stream;
    std::uint64_t size;
};

class OutputAdapter : public Imf::OStream
{
public:
    explicit OutputAdapter(OutputFile &target) : OStream(""), file(target) {}

    void write(const char bytes[], int count) override { check(file.tryWrite(bytes, std::size_t(count))); }
    std::uint64_t tellp() override { return file.offset(); }
    void seekp(std::uint64_t offset) override { check(file.trySeek(offset)); }
    /// Whether any write failed: the library's destructor writes too, and swallows errors.
    bool failed() const { return broken; }

private:
    void check(bool done)
    {
        if (done)
            return;
        broken = true;
        throw Iex::IoExc("Can't write.");
    }

    OutputFile &file;
    bool broken = false;
};

/// The value of one attribute, for the library to read. To the library, the file seems to end with the value.
class ValueAdapter : public Imf::IStream
{
public:
    explicit ValueAdapter(ByteReader stretch) : IStream(""), value(std::move(stretch)) {}

    bool read(char target[], int bytes) override
    {
        value.read(target, std::size_t(bytes));
        return value.remaining() > 0;
    }
    std::uint64_t tellg() override { return value.position(); }
    void seekg(std::uint64_t offset) override { value.seek(offset); }

private:
    ByteReader value;
};

// The functions up to checkChunks() verify what OpenEXR 3.1.5 takes for granted; a later version may need fewer checks.
//
// readAttributes(): for a text, a list of floats or a value of unknown type the library allocates what the attribute claims
// before it reads. It reads any other value by its type, whatever size the attribute claims, and a list of channels even beyond
// the attribute's end, and continues from there: the next attribute that it sees is then not the one that was checked.
// checkClaims(): it allocates buffers for as many lines, or for a tile as large, as the header claims, and its own check of a
// large chunk table overflows. A request without pixels reads no chunk, so only this check notices a truncated file.
// checkChunks(): if a chunk unpacks to fewer bytes than its pixels take, the library hands out uninitialised memory.

/// Reads the header value by value, checking each claimed size against the file before reading and against what was read
/// afterwards. Throws EndOfBytes or FILE_READ if the file is too short for its attributes. Returns what the library will find;
/// `version` receives the version and its flags, `table` the offset of the chunk table. If the file lacks them, the window is
/// empty and the packing is the one that may claim most.
Imf::Header readAttributes(const InputFile &file, int &version, std::uint64_t &table)
{
    constexpr std::size_t kLongestName = 255;
    ByteReader reader(file, ByteOrder::Little);
    reader.skip(4); // the signature
    version = int(reader.u32());
    if (Imf::isMultiPart(version) || Imf::isNonImage(version))
        throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
    Imf::Header header;
    header.dataWindow().makeEmpty();
    header.compression() = Imf::DWAB_COMPRESSION;
    for (std::string name = reader.text(kLongestName); !name.empty(); name = reader.text(kLongestName)) {
        const std::string type = reader.text(kLongestName);
        const std::uint32_t size = reader.u32();
        ValueAdapter value(reader.stretch(size));
        const bool present = header.find(name) != header.end();
        if (!present && !Imf::Attribute::knownType(type.c_str()))
            continue; // the library keeps it verbatim
        if (!present)
            header.insert(name, *std::unique_ptr<Imf::Attribute>(Imf::Attribute::newAttribute(type.c_str())));
        Imf::Attribute &attribute = header[name];
        if (attribute.typeName() != type || size > std::uint32_t(std::numeric_limits<int>::max()))
            throw Failure{GFL_ERROR_FILE_READ};
        attribute.readValueFrom(value, int(size), version);
        if (value.tellg() != size)
            throw Failure{GFL_ERROR_FILE_READ};
    }
    table = reader.position();
    return header;
}

/// Most bytes that one packed byte can expand to.
double mostPerByte(Imf::Compression packing)
{
    switch (packing) {
    case Imf::NO_COMPRESSION:
        return 1;
    case Imf::RLE_COMPRESSION:
        return 64; // a run of 128 takes two bytes
    case Imf::ZIPS_COMPRESSION:
    case Imf::ZIP_COMPRESSION:
        return double(kDeflateRatio);
    case Imf::PXR24_COMPRESSION:
        return double(kDeflateRatio) * 4 / 3; // deflates three of four bytes
    case Imf::DWAA_COMPRESSION:
    case Imf::DWAB_COMPRESSION:
        return double(kDeflateRatio) * 64; // deflates one number for a flat block of 64
    default:
        return double(kMostPacked);
    }
}

/// Throws FILE_READ if the file is too short for its attributes, its chunk table, one chunk's pixels or all pixels. Returns the
/// offset of the chunk table.
std::uint64_t checkClaims(const InputFile &file)
{
    int version = 0;
    std::uint64_t table = 0;
    const Imf::Header header = readAttributes(file, version, table);
    const Imath::Box2i &window = header.dataWindow();
    const std::int64_t width = std::int64_t(window.max.x) - window.min.x + 1;
    const std::int64_t height = std::int64_t(window.max.y) - window.min.y + 1;
    constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
    if (width <= 0 || height <= 0 || width > kLargest || height > kLargest)
        throw Failure{GFL_ERROR_FILE_READ};

    const Imf::TileDescription tile = header.hasTileDescription() ? header.tileDescription() : Imf::TileDescription(0, 0);
    const bool tiled = tile.xSize > 0 && tile.ySize > 0;
    if (Imf::isTiled(version) != tiled)
        throw Failure{GFL_ERROR_FILE_READ};
    // A chunk holds at most 256 lines, or a tile. It takes 8 bytes in the table and 8 before its pixels.
    constexpr std::uint64_t kLinesPerChunk = 256;
    constexpr std::uint64_t kBytesPerChunk = 16;
    const std::uint64_t w = std::uint64_t(width);
    const std::uint64_t h = std::uint64_t(height);
    const std::uint64_t chunks = tiled ? ((w + tile.xSize - 1) / tile.xSize) * ((h + tile.ySize - 1) / tile.ySize)
                                       : (h + kLinesPerChunk - 1) / kLinesPerChunk;
    std::uint64_t channels = 1; // one more than the file has
    double pixelBytes = 0;
    for (auto at = header.channels().begin(); at != header.channels().end(); ++at, ++channels)
        pixelBytes += (at.channel().type == Imf::HALF ? 2 : 4) /
                      (std::max(1.0, double(at.channel().xSampling)) * std::max(1.0, double(at.channel().ySampling)));
    const std::uint64_t pieceHeight = tiled ? std::min<std::uint64_t>(tile.ySize, kLargest) : 1;
    const std::uint64_t pieceWidth = tiled ? std::max(w, std::min<std::uint64_t>(tile.xSize, kLargest)) : w;
    if (chunks > file.size() / kBytesPerChunk || pieceWidth > largestLibraryBlock(file.size()) / (pieceHeight * 4 * channels) ||
        double(width) * double(height) * pixelBytes > mostPerByte(header.compression()) * double(file.size()))
        throw Failure{GFL_ERROR_FILE_READ};
    return table;
}

int linesPerChunk(Imf::Compression packing)
{
    switch (packing) {
    case Imf::NO_COMPRESSION:
    case Imf::RLE_COMPRESSION:
    case Imf::ZIPS_COMPRESSION:
        return 1;
    case Imf::ZIP_COMPRESSION:
    case Imf::PXR24_COMPRESSION:
        return 16;
    case Imf::DWAB_COMPRESSION:
        return 256;
    default:
        return 32;
    }
}

/// How many multiples of `step` lie in first .. last.
std::int64_t multiples(std::int64_t step, std::int64_t first, std::int64_t last)
{
    const auto below = [&](std::int64_t value) { return value >= 0 ? value / step : -((step - 1 - value) / step); };
    return below(last) - below(first - 1);
}

/// Bytes that run-length data unpacks to. Throws EndOfBytes if a run extends beyond the packed bytes.
std::uint64_t unpackedRuns(const Bytes &packed)
{
    std::uint64_t total = 0;
    for (ByteReader reader(packed); reader.remaining() > 0;) {
        const unsigned byte = reader.u8();
        const unsigned single = byte < 128 ? 0 : 256 - byte; // bytes that are not repeated
        total += byte < 128 ? byte + 1 : single;
        reader.skip(byte < 128 ? 1 : single);
    }
    return total;
}

/// Throws FILE_READ or EndOfBytes if a chunk of the full-size image is not completely in the file, or unpacks to fewer bytes than
/// its pixels take. `table` is the offset of the chunk table. The library itself checks the packings that are not unpacked here.
void checkChunks(const InputFile &file, const Imf::Header &header, std::uint64_t table)
{
    const Imath::Box2i &window = header.dataWindow();
    const Imf::Compression packing = header.compression();
    const bool tiled = header.hasTileDescription();
    const std::int64_t stepX = tiled ? header.tileDescription().xSize : std::int64_t(window.max.x) - window.min.x + 1;
    const std::int64_t stepY = tiled ? header.tileDescription().ySize : linesPerChunk(packing);
    const std::unique_ptr<libdeflate_decompressor, void (*)(libdeflate_decompressor *)> inflater(libdeflate_alloc_decompressor(),
                                                                                                 libdeflate_free_decompressor);
    if (!inflater)
        throw std::bad_alloc();
    ByteReader reader(file, ByteOrder::Little);
    ByteReader offsets(file, ByteOrder::Little);
    offsets.seek(table);
    Bytes unpacked;
    for (std::int64_t y = window.min.y; y <= window.max.y; y += stepY)
        for (std::int64_t x = window.min.x; x <= window.max.x; x += stepX) {
            std::uint64_t whole = 0;
            for (auto channel = header.channels().begin(); channel != header.channels().end(); ++channel)
                whole +=
                    (channel.channel().type == Imf::HALF ? 2u : 4u) *
                    std::uint64_t(multiples(channel.channel().xSampling, x, std::min<std::int64_t>(x + stepX - 1, window.max.x)) *
                                  multiples(channel.channel().ySampling, y, std::min<std::int64_t>(y + stepY - 1, window.max.y)));
            const std::uint64_t start = offsets.u64();
            if (start == 0)
                throw Failure{GFL_ERROR_FILE_READ};
            reader.seek(start);
            reader.skip(tiled ? 16 : 4); // the tile and level, or the first line
            const std::uint64_t size = reader.u32();
            if (size > whole)
                throw Failure{GFL_ERROR_FILE_READ};
            if (size == whole)
                continue; // stored unpacked
            std::size_t made = std::size_t(whole);
            if (packing == Imf::NO_COMPRESSION || size == 0) {
                made = 0;
            } else if (packing == Imf::RLE_COMPRESSION) {
                made = std::size_t(unpackedRuns(reader.bytes(size)));
            } else if (packing == Imf::ZIP_COMPRESSION || packing == Imf::ZIPS_COMPRESSION) {
                const Bytes packed = reader.bytes(size);
                unpacked.resize(std::size_t(whole));
                if (libdeflate_zlib_decompress(inflater.get(), packed.data(), packed.size(), unpacked.data(), unpacked.size(),
                                               &made) != LIBDEFLATE_SUCCESS)
                    made = 0;
            }
            if (made != whole)
                throw Failure{GFL_ERROR_FILE_READ};
        }
}

/// The names of the channels that make up the picture: three, one, or none for luminance with subsampled colour.
struct Channels
{
    std::vector<std::string> names;
    std::string alpha;
    bool chroma = false;
};

Channels chooseChannels(const Imf::ChannelList &list)
{
    const auto has = [&](const std::string &name) {
        const Imf::Channel *channel = list.findChannel(name);
        return channel && channel->xSampling == 1 && channel->ySampling == 1;
    };
    Channels channels;
    if (list.findChannel("Y") && (list.findChannel("RY") || list.findChannel("BY"))) {
        channels.chroma = true;
        channels.alpha = has("A") ? "A" : "";
        return channels;
    }
    std::vector<std::string> prefixes{""};
    std::set<std::string> layers;
    list.layers(layers);
    for (const std::string &layer : layers)
        prefixes.push_back(layer + ".");
    for (const std::string &prefix : prefixes) {
        if (has(prefix + "R") && has(prefix + "G") && has(prefix + "B"))
            channels.names = {prefix + "R", prefix + "G", prefix + "B"};
        else if (has(prefix + "Y"))
            channels.names = {prefix + "Y"};
        if (!channels.names.empty()) {
            channels.alpha = has(prefix + "A") ? prefix + "A" : "";
            return channels;
        }
    }
    for (auto at = list.begin(); at != list.end(); ++at)
        if (has(at.name())) {
            channels.names = {at.name()};
            return channels;
        }
    throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
}

ExposureFacts factsOf(const Imf::Header &header)
{
    ExposureFacts facts;
    if (Imf::hasExpTime(header))
        facts.exposureSeconds = double(Imf::expTime(header));
    if (Imf::hasAperture(header))
        facts.aperture = double(Imf::aperture(header));
    if (Imf::hasIsoSpeed(header))
        facts.isoSpeed = double(Imf::isoSpeed(header));
    if (Imf::hasChromaticities(header)) {
        const Imf::Chromaticities &c = Imf::chromaticities(header);
        const double values[8] = {c.red.x, c.red.y, c.green.x, c.green.y, c.blue.x, c.blue.y, c.white.x, c.white.y};
        std::copy(std::begin(values), std::end(values), facts.chromaticities);
    }
    if (Imf::hasCapDate(header))
        facts.captureDate = Imf::capDate(header);
    if (Imf::hasOwner(header))
        facts.owner = Imf::owner(header);
    if (Imf::hasComments(header))
        facts.comments = Imf::comments(header);
    if (const auto *make = header.findTypedAttribute<Imf::StringAttribute>(kMake))
        facts.make = make->value();
    if (const auto *model = header.findTypedAttribute<Imf::StringAttribute>(kModel))
        facts.model = model->value();
    return facts;
}

void addFacts(Imf::Header &header, const ExposureFacts &facts)
{
    if (facts.exposureSeconds > 0)
        Imf::addExpTime(header, float(facts.exposureSeconds));
    if (facts.aperture > 0)
        Imf::addAperture(header, float(facts.aperture));
    if (facts.isoSpeed > 0)
        Imf::addIsoSpeed(header, float(facts.isoSpeed));
    const double *c = facts.chromaticities;
    if (std::all_of(c, c + 8, [](double value) { return value > 0; })) {
        const auto point = [&](int i) { return Imath::V2f(float(c[i]), float(c[i + 1])); };
        Imf::addChromaticities(header, Imf::Chromaticities(point(0), point(2), point(4), point(6)));
    }
    if (!facts.captureDate.empty())
        Imf::addCapDate(header, facts.captureDate);
    if (!facts.owner.empty())
        Imf::addOwner(header, facts.owner);
    if (!facts.comments.empty())
        Imf::addComments(header, facts.comments);
    if (!facts.make.empty())
        header.insert(kMake, Imf::StringAttribute(facts.make));
    if (!facts.model.empty())
        header.insert(kModel, Imf::StringAttribute(facts.model));
}

void readSamples(Imf::InputFile &file, const Channels &channels, NewBitmap &bitmap)
{
    const Imath::Box2i window = file.header().dataWindow();
    const Form form = formOf(bitmap.record());
    const auto slice = [&](std::uint8_t *row, int component, int y, int rows, double fill) {
        return Imf::Slice::Make(Imf::FLOAT, row + sizeof(float) * unsigned(component), Imath::V2i(window.min.x, window.min.y + y),
                                bitmap.width(), rows, form.pixelBytes(), bitmap.record().bytesPerLine, 1, 1, fill);
    };
    for (int y = 0; y < bitmap.height();) {
        const int rows = std::min(bitmap.rowsFrom(y), bitmap.height() - y);
        std::uint8_t *row = bitmap.row(y);
        Imf::FrameBuffer frame;
        // Grey with alpha becomes colour with alpha.
        const std::size_t colours = std::size_t(std::min(form.components, 3));
        for (std::size_t c = 0; c < channels.names.size(); ++c)
            frame.insert(channels.names[c], slice(row, int(c), y, rows, 0.0));
        if (!channels.alpha.empty())
            frame.insert(channels.alpha, slice(row, 3, y, rows, 1.0));
        file.setFrameBuffer(frame);
        file.readPixels(window.min.y + y, window.min.y + y + rows - 1);
        for (int i = 0; channels.names.size() < colours && i < rows; ++i) {
            auto *pixel = reinterpret_cast<float *>(row + std::size_t(bitmap.record().bytesPerLine) * unsigned(i));
            for (int x = 0; x < bitmap.width(); ++x, pixel += form.components)
                pixel[1] = pixel[2] = pixel[0];
        }
        y += rows;
    }
}

// Luminance and subsampled chroma: the library's own conversion, in half precision.
void readChroma(const InputFile &source, bool alpha, NewBitmap &bitmap)
{
    InputAdapter stream(source);
    Imf::RgbaInputFile file(stream, kNoThreads);
    const Imath::Box2i window = file.dataWindow();
    std::vector<Imf::Rgba> row(std::size_t(bitmap.width()));
    // The library counts from x = 0, wherever the window starts.
    auto *const base = reinterpret_cast<Imf::Rgba *>(reinterpret_cast<std::uintptr_t>(row.data()) -
                                                     sizeof(Imf::Rgba) * std::uintptr_t(std::intptr_t(window.min.x)));
    for (int y = 0; y < bitmap.height(); ++y) {
        file.setFrameBuffer(base, 1, 0);
        file.readPixels(window.min.y + y);
        auto *target = reinterpret_cast<float *>(bitmap.row(y));
        for (const Imf::Rgba &pixel : row) {
            *target++ = pixel.r;
            *target++ = pixel.g;
            *target++ = pixel.b;
            if (alpha)
                *target++ = pixel.a;
        }
    }
}

} // namespace

BitmapPointer readExr(const ReadRequest &request)
{
    const std::uint64_t table = checkClaims(request.file);
    InputAdapter stream(request.file);
    Imf::InputFile file(stream, kNoThreads);
    const Imf::Header &header = file.header();
    const Channels channels = chooseChannels(header.channels());
    const Imath::Box2i window = header.dataWindow();
    const int components = !channels.alpha.empty() ? 4 : channels.names.size() == 1 ? 1 : 3;
    NewBitmap bitmap(request.file, std::int64_t(window.max.x) - window.min.x + 1, std::int64_t(window.max.y) - window.min.y + 1,
                     {components, 32});
    if (Imf::hasXDensity(header)) {
        bitmap.record().xDpi = dpiFrom(double(Imf::xDensity(header)));
        bitmap.record().yDpi = dpiFrom(double(Imf::xDensity(header) * header.pixelAspectRatio()));
    }
    if (request.metadata)
        attachMetadata(bitmap.record()).exif.block = exifFromFacts(factsOf(header));
    if (request.pixels) {
        checkChunks(request.file, header, table);
        if (channels.chroma)
            readChroma(request.file, components == 4, bitmap);
        else
            readSamples(file, channels, bitmap);
    }
    return bitmap.take();
}

void writeExr(const WriteRequest &request)
{
    const GflBitmap &bitmap = request.bitmap;
    const int packing = request.compression < 0 ? int(Imf::PIZ_COMPRESSION) : request.compression;
    if (packing > int(Imf::B44A_COMPRESSION))
        throw Failure{GFL_ERROR_BAD_PARAMETERS};
    const Form form{bitmap.componentsPerPixel, 32};
    SourceRows rows(bitmap, form);
    Imf::Header header(bitmap.width, bitmap.height, 1.0f, Imath::V2f(0, 0), 1.0f, Imf::INCREASING_Y,
                       static_cast<Imf::Compression>(packing));
    addFacts(header, exposureFacts(request.exif));
    if (bitmap.xDpi && bitmap.yDpi) {
        Imf::addXDensity(header, bitmap.xDpi);
        header.pixelAspectRatio() = float(bitmap.yDpi) / float(bitmap.xDpi);
    }
    static constexpr const char *kNames[] = {"R", "G", "B", "A"};
    const auto name = [&](int c) { return form.components == 1 ? "Y" : kNames[c]; };
    for (int c = 0; c < form.components; ++c)
        header.channels().insert(name(c), Imf::Channel(Imf::FLOAT));

    OutputAdapter stream(request.file);
    try {
        Imf::OutputFile file(stream, header, kNoThreads);
        const bool direct = formOf(bitmap) == form;
        const auto frameAt = [&](const std::uint8_t *row, int y, int count) {
            Imf::FrameBuffer frame;
            for (int c = 0; c < form.components; ++c)
                frame.insert(name(c), Imf::Slice::Make(Imf::FLOAT, row + sizeof(float) * unsigned(c), Imath::V2i(0, y),
                                                       bitmap.width, count, form.pixelBytes(), bitmap.bytesPerLine));
            file.setFrameBuffer(frame);
            file.writePixels(count);
        };
        if (direct)
            frameAt(rowOf(bitmap, 0), 0, bitmap.height);
        else
            for (int y = 0; y < bitmap.height; ++y)
                frameAt(rows.row(y), y, 1);
    } catch (const Iex::ErrnoExc &) { // also from the stream in memory that the library writes the header to first
        throw Failure{stream.failed() ? GFL_ERROR_FILE_WRITE : GFL_ERROR_NO_MEMORY};
    } catch (const Iex::BaseExc &) {
        throw Failure{GFL_ERROR_FILE_WRITE};
    }
    if (stream.failed())
        throw Failure{GFL_ERROR_FILE_WRITE};
}

} // namespace gfl
