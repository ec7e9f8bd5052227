#include <algorithm>
#include <cstring>
#include <limits>
#include <set>

#include <OpenEXR/Iex.h>
#include <OpenEXR/ImfChannelList.h>
#include <OpenEXR/ImfFrameBuffer.h>
#include <OpenEXR/ImfHeader.h>
#include <OpenEXR/ImfIO.h>
#include <OpenEXR/ImfInputFile.h>
#include <OpenEXR/ImfOutputFile.h>
#include <OpenEXR/ImfRgbaFile.h>
#include <OpenEXR/ImfStandardAttributes.h>
#include <OpenEXR/ImfStringAttribute.h>
#include <libdeflate.h>

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
        if (!stream.tryRead(target, static_cast<std::size_t>(bytes)))
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

    void write(const char bytes[], int count) override { check(file.tryWrite(bytes, static_cast<std::size_t>(count))); }
    std::uint64_t tellp() override { return file.offset(); }
    void seekp(std::uint64_t offset) override { check(file.trySeek(offset)); }
    /// The library's destructor writes too, and swallows what goes wrong.
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

std::uint32_t little32(const std::uint8_t *bytes)
{
    return bytes[0] | std::uint32_t(bytes[1]) << 8 | std::uint32_t(bytes[2]) << 16 | std::uint32_t(bytes[3]) << 24;
}

/// The size of an attribute's value as the library reads it, whatever the file says; -1 where it goes by the file.
std::int64_t fixedSize(const std::string &type)
{
    struct Type
    {
        const char *name;
        int bytes;
    };
    static constexpr Type kTypes[] = {{"box2f", 16},
                                      {"box2i", 16},
                                      {"chromaticities", 32},
                                      {"compression", 1},
                                      {"deepImageState", 1},
                                      {"double", 8},
                                      {"envmap", 1},
                                      {"float", 4},
                                      {"int", 4},
                                      {"keycode", 28},
                                      {"lineOrder", 1},
                                      {"m33d", 72},
                                      {"m33f", 36},
                                      {"m44d", 128},
                                      {"m44f", 64},
                                      {"rational", 8},
                                      {"tiledesc", 9},
                                      {"timecode", 8},
                                      {"v2d", 16},
                                      {"v2f", 8},
                                      {"v2i", 8},
                                      {"v3d", 24},
                                      {"v3f", 12},
                                      {"v3i", 12}};
    for (const Type &known : kTypes)
        if (type == known.name)
            return known.bytes;
    return -1;
}

/// Walks over the header's attributes before the library sees them: it allocates what they claim. Throws FILE_READ if the file is
/// too short for its attributes, its table of chunks or one chunk's pixels. Returns where that table begins.
std::uint64_t checkClaims(const InputFile &file)
{
    InputStream stream(file, 4);
    std::uint8_t bytes[16];
    stream.read(bytes, 4);
    constexpr std::uint32_t kTiled = 0x200, kSeveralOrDeep = 0x800 | 0x1000;
    const std::uint32_t version = little32(bytes);
    if (version & kSeveralOrDeep)
        throw Failure{GFL_ERROR_UNKNOWN_FORMAT};

    const auto text = [&] {
        constexpr std::size_t kLongest = 255;
        std::string result;
        for (int c = stream.next(); c != 0; c = stream.next()) {
            if (c < 0 || result.size() > kLongest)
                throw Failure{GFL_ERROR_FILE_READ};
            result += static_cast<char>(c);
        }
        return result;
    };
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::uint64_t tileWidth = 0;
    std::uint64_t tileHeight = 0;
    std::uint64_t mostChannels = 1;
    double pixelBytes = 0;
    int packing = Imf::DWAB_COMPRESSION;
    for (std::string name = text(); !name.empty(); name = text()) {
        const std::string type = text();
        stream.read(bytes, 4);
        const std::uint64_t next = stream.offset() + little32(bytes);
        if (next > file.size())
            throw Failure{GFL_ERROR_FILE_READ};
        const std::uint64_t size = little32(bytes);
        // From here on the library must find what is found here.
        if (fixedSize(type) >= 0 && fixedSize(type) != std::int64_t(size))
            throw Failure{GFL_ERROR_FILE_READ};
        if (type == "preview") {
            stream.read(bytes, 8);
            if (8 + std::uint64_t(little32(bytes)) * little32(bytes + 4) * 4 != size)
                throw Failure{GFL_ERROR_FILE_READ};
        } else if (type == "floatvector" && size % 4 != 0) {
            throw Failure{GFL_ERROR_FILE_READ};
        } else if (type == "stringvector") {
            while (stream.offset() < next) {
                stream.read(bytes, 4);
                stream.seek(stream.offset() + little32(bytes));
            }
            if (stream.offset() != next)
                throw Failure{GFL_ERROR_FILE_READ};
        } else if (name == "dataWindow" && size == 16) {
            stream.read(bytes, 16);
            width = std::int64_t(std::int32_t(little32(bytes + 8))) - std::int32_t(little32(bytes)) + 1;
            height = std::int64_t(std::int32_t(little32(bytes + 12))) - std::int32_t(little32(bytes + 4)) + 1;
        } else if (name == "tiles" && size == 9) {
            stream.read(bytes, 9);
            tileWidth = little32(bytes);
            tileHeight = little32(bytes + 4);
        } else if (name == "compression" && size == 1) {
            packing = stream.next();
        } else if (type == "chlist") {
            constexpr std::uint64_t kPerChannel = 18; // at least, for a name of one letter
            mostChannels = size / kPerChannel + 1;
            bool ended = false; // by an empty name, which the library reads even behind the attribute's end
            while (stream.offset() < next && !(ended = text().empty())) {
                stream.read(bytes, 16); // type, flags, x and y sampling
                const double samples = std::max(1.0, double(little32(bytes + 8))) * std::max(1.0, double(little32(bytes + 12)));
                pixelBytes += (little32(bytes) == Imf::HALF ? 2 : 4) / samples;
            }
            if (!ended || stream.offset() != next)
                throw Failure{GFL_ERROR_FILE_READ};
        }
        stream.seek(next);
    }
    constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
    if (width <= 0 || height <= 0 || width > kLargest || height > kLargest)
        throw Failure{GFL_ERROR_FILE_READ};
    // What can be in one piece: 256 lines at most, or a tile. A chunk takes 8 bytes in the table and 8 before its pixels.
    constexpr std::uint64_t kSmall = std::uint64_t(64) << 20;
    constexpr std::uint64_t kMostPacked = 4096;
    constexpr std::uint64_t kLinesPerChunk = 256;
    constexpr std::uint64_t kBytesPerChunk = 16;
    const std::uint64_t w = static_cast<std::uint64_t>(width);
    const std::uint64_t h = static_cast<std::uint64_t>(height);
    const bool tiled = tileWidth > 0 && tileHeight > 0;
    const std::uint64_t chunks = tiled ? ((w + tileWidth - 1) / tileWidth) * ((h + tileHeight - 1) / tileHeight)
                                       : (h + kLinesPerChunk - 1) / kLinesPerChunk;
    const std::uint64_t pieceHeight = tiled ? std::min<std::uint64_t>(tileHeight, kLargest) : 1;
    const std::uint64_t pieceWidth = tiled ? std::max(w, std::min<std::uint64_t>(tileWidth, kLargest)) : w;
    const std::uint64_t room = kSmall + kMostPacked * file.size();
    if (chunks > file.size() / kBytesPerChunk || pieceWidth > room / (pieceHeight * 4 * mostChannels))
        throw Failure{GFL_ERROR_FILE_READ};
    // The library does not notice what a chunk lacks. At best, each packing makes so much of a byte.
    const auto mostPerByte = [&]() -> double {
        constexpr double kDeflate = 1032;
        switch (packing) {
        case Imf::NO_COMPRESSION:
            return 1;
        case Imf::RLE_COMPRESSION:
            return 64;
        case Imf::ZIPS_COMPRESSION:
        case Imf::ZIP_COMPRESSION:
            return kDeflate;
        case Imf::PXR24_COMPRESSION:
            return kDeflate * 4 / 3;
        case Imf::DWAA_COMPRESSION:
        case Imf::DWAB_COMPRESSION:
            return kDeflate * 64; // deflates one number for a flat block of 64
        default:
            return double(kMostPacked);
        }
    };
    if (double(width) * double(height) * pixelBytes > mostPerByte() * double(file.size()))
        throw Failure{GFL_ERROR_FILE_READ};
    if (((version & kTiled) != 0) != tiled)
        throw Failure{GFL_ERROR_FILE_READ};
    return stream.offset();
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

/// Bytes that run lengths make, or 0 if they go beyond the packed ones.
std::uint64_t unpackedRuns(const Bytes &packed)
{
    std::uint64_t total = 0;
    for (std::size_t i = 0; i < packed.size();) {
        const int run = packed[i] < 128 ? packed[i] : packed[i] - 256;
        total += static_cast<std::uint64_t>(run < 0 ? -run : run + 1);
        i += static_cast<std::size_t>(run < 0 ? 1 - run : 2);
        if (i > packed.size())
            return 0;
    }
    return total;
}

/// Throws FILE_READ if a chunk of the full size's pixels is not all in the file, or makes fewer bytes than its pixels take: the
/// library fills up with memory that nobody has written. `table` is where the offsets of the chunks stand. Of the packings that
/// are left out the library sees it itself.
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
    Bytes unpacked;
    for (std::int64_t y = window.min.y; y <= window.max.y; y += stepY)
        for (std::int64_t x = window.min.x; x <= window.max.x; x += stepX, table += 8) {
            std::uint64_t whole = 0;
            for (auto channel = header.channels().begin(); channel != header.channels().end(); ++channel)
                whole += (channel.channel().type == Imf::HALF ? 2u : 4u) *
                         static_cast<std::uint64_t>(
                             multiples(channel.channel().xSampling, x, std::min<std::int64_t>(x + stepX - 1, window.max.x)) *
                             multiples(channel.channel().ySampling, y, std::min<std::int64_t>(y + stepY - 1, window.max.y)));
            const Bytes offset = file.bytesAt(table, 8);
            const std::uint64_t start = little32(&offset[0]) | std::uint64_t(little32(&offset[4])) << 32;
            const std::uint64_t place = tiled ? 16 : 4; // the tile and level, or the first line, stand before the size
            if (start == 0 || start > file.size())
                throw Failure{GFL_ERROR_FILE_READ};
            const std::uint64_t size = little32(file.bytesAt(start + place, 4).data());
            if (size > whole || size > file.size() - start)
                throw Failure{GFL_ERROR_FILE_READ};
            if (size == whole)
                continue; // as it is
            std::size_t made = static_cast<std::size_t>(whole);
            if (packing == Imf::NO_COMPRESSION || size == 0) {
                made = 0;
            } else if (packing == Imf::RLE_COMPRESSION) {
                made = static_cast<std::size_t>(unpackedRuns(file.bytesAt(start + place + 4, size)));
            } else if (packing == Imf::ZIP_COMPRESSION || packing == Imf::ZIPS_COMPRESSION) {
                const Bytes packed = file.bytesAt(start + place + 4, size);
                unpacked.resize(static_cast<std::size_t>(whole));
                if (libdeflate_zlib_decompress(inflater.get(), packed.data(), packed.size(), unpacked.data(), unpacked.size(),
                                               &made) != LIBDEFLATE_SUCCESS)
                    made = 0;
            }
            if (made != whole)
                throw Failure{GFL_ERROR_FILE_READ};
        }
}

/// The names of the channels that make up the picture: three, or one, or none for luminance with subsampled colour.
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
        Imf::addExpTime(header, static_cast<float>(facts.exposureSeconds));
    if (facts.aperture > 0)
        Imf::addAperture(header, static_cast<float>(facts.aperture));
    if (facts.isoSpeed > 0)
        Imf::addIsoSpeed(header, static_cast<float>(facts.isoSpeed));
    const double *c = facts.chromaticities;
    if (std::all_of(c, c + 8, [](double value) { return value > 0; })) {
        const auto point = [&](int i) { return Imath::V2f(static_cast<float>(c[i]), static_cast<float>(c[i + 1])); };
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
            frame.insert(channels.names[c], slice(row, static_cast<int>(c), y, rows, 0.0));
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
    // The library counts from x = 0, wherever the window begins.
    auto *const base =
        reinterpret_cast<Imf::Rgba *>(reinterpret_cast<std::uintptr_t>(row.data()) -
                                      sizeof(Imf::Rgba) * static_cast<std::uintptr_t>(std::intptr_t(window.min.x)));
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
        header.pixelAspectRatio() = static_cast<float>(bitmap.yDpi) / static_cast<float>(bitmap.xDpi);
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
    } catch (const Iex::BaseExc &) {
        throw Failure{GFL_ERROR_FILE_WRITE};
    }
    if (stream.failed())
        throw Failure{GFL_ERROR_FILE_WRITE};
}

} // namespace gfl
