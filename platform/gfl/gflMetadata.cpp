#include "gflMetadata.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <mutex>

#include <exiv2/exiv2.hpp>

#include "gflCodec.h"
#include "photoMetadata.h"

namespace gfl {
namespace {

// The XMP toolkit beneath exiv2 serves one thread at a time. Only the application may give it a lock function, once per process;
// one from this layer would be left dangling when the plug-in is unloaded. So this layer serialises its own reads.
std::mutex xmpMutex;

/// Mutes exiv2's messages while this library is loaded: they do not belong on a host's console.
void startExiv2()
{
    struct Muted
    {
        Muted() { Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute); }
        ~Muted() { Exiv2::LogMsg::setLevel(before); }
        const Exiv2::LogMsg::Level before = Exiv2::LogMsg::level();
    };
    static const Muted muted;
}

unsigned typeBytes(unsigned type)
{
    static constexpr unsigned kBytes[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
    return type < std::size(kBytes) ? kBytes[type] : 0;
}

Bytes encoded(Exiv2::ExifData &data, Exiv2::ByteOrder order)
{
    Exiv2::Blob blob;
    if (!data.empty())
        Exiv2::ExifParser::encode(blob, order == Exiv2::invalidByteOrder ? Exiv2::littleEndian : order, data);
    return blob;
}

// Whether a new file may take over this entry from another file's EXIF.
bool isCarried(const Exiv2::Exifdatum &datum)
{
    const std::string group = datum.groupName();
    if (group == "Image")
        return !isStructuralTag(datum.tag());
    static const char *const kFileGroups[] = {"Thumbnail", "SubImage", "SubThumb", "Image2", "Image3", "PanasonicRaw"};
    return std::none_of(std::begin(kFileGroups), std::end(kFileGroups),
                        [&](const char *name) { return group.compare(0, std::strlen(name), name) == 0; });
}

template<typename Drop>
void dropFrom(Exiv2::ExifData &data, Drop drop)
{
    for (auto at = data.begin(); at != data.end();)
        at = drop(*at) ? data.erase(at) : std::next(at);
}

double realValue(const Exiv2::ExifData &data, const char *key, int index = 0)
{
    const auto at = data.findKey(Exiv2::ExifKey(key));
    if (at == data.end() || int(at->count()) <= index)
        return 0;
    const Exiv2::Rational value = at->toRational(decltype(at->count())(index));
    const double real = value.second != 0 ? double(value.first) / double(value.second) : 0.0;
    return real > 0 ? real : 0.0;
}

std::string textValue(const Exiv2::ExifData &data, const char *key)
{
    const auto at = data.findKey(Exiv2::ExifKey(key));
    if (at == data.end())
        return {};
    std::string text = at->toString();
    text.erase(std::find(text.begin(), text.end(), '\0'), text.end());
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

constexpr char kPrimaries[] = "Exif.Image.PrimaryChromaticities";
constexpr char kWhitePoint[] = "Exif.Image.WhitePoint";

void addRationals(Exiv2::ExifData &data, const char *key, const double *values, int count)
{
    constexpr std::uint32_t kDenominator = 1000000;
    Exiv2::URationalValue rationals;
    for (int i = 0; i < count; ++i)
        rationals.value_.emplace_back(std::uint32_t(std::lround(std::clamp(values[i], 0.0, 1.0) * kDenominator)), kDenominator);
    data.add(Exiv2::ExifKey(key), &rationals);
}

// The nearest fraction with a customary denominator: 1/n below 1, tenths above.
Exiv2::URational fraction(double value)
{
    if (value < 1)
        return {1, std::uint32_t(std::lround(std::min(1 / value, 4e9)))};
    return {std::uint32_t(std::lround(std::min(value, 4e8) * 10)), 10};
}

} // namespace

bool profileFits(const Bytes &icc, int components)
{
    constexpr std::uint64_t kHeader = 128;
    constexpr std::uint64_t kColourSpace = 16;
    ByteReader profile(icc);
    if (!profile.holds(0, kHeader))
        return false;
    profile.seek(kColourSpace);
    return profile.startsWith("RGB ") || (components == 1 && profile.startsWith("GRAY"));
}

Bytes photoshopResource(const Bytes &section, unsigned id)
{
    ByteReader reader(section);
    try {
        // "8BIM", id, Pascal string padded to even, length, data padded to even.
        while (reader.startsWith("8BIM")) {
            reader.skip(4);
            const unsigned found = reader.u16();
            const unsigned nameBytes = reader.u8();
            reader.skip(nameBytes | 1u);
            const std::uint64_t length = reader.u32();
            if (found == id)
                return reader.bytes(length);
            reader.skip((length + 1) / 2 * 2);
        }
    } catch (const EndOfBytes &) {
    }
    return {};
}

void appendPhotoshopResource(Bytes &section, unsigned id, const Bytes &data)
{
    section.insert(section.end(), {'8', 'B', 'I', 'M'});
    putBig16(section, id);
    putBig16(section, 0); // no name
    putBig32(section, std::uint32_t(data.size()));
    section.insert(section.end(), data.begin(), data.end());
    if (data.size() % 2)
        section.push_back(0);
}

std::vector<IfdEntry> firstDirectory(ByteReader &stream)
{
    constexpr unsigned kClassic = 42;
    std::vector<IfdEntry> entries;
    try {
        stream.seek(0);
        const bool little = stream.startsWith("II");
        if (!little && !stream.startsWith("MM"))
            return entries;
        stream.setOrder(little ? ByteOrder::Little : ByteOrder::Big);
        stream.skip(2);
        const unsigned kind = stream.u16();
        stream.seek(stream.u32());
        const unsigned count = stream.u16();
        for (unsigned i = 0; kind == kClassic && i < count; ++i) {
            IfdEntry entry;
            const std::uint64_t at = stream.position();
            stream.read(entry.raw, sizeof entry.raw);
            stream.seek(at);
            entry.tag = stream.u16();
            entry.type = stream.u16();
            entry.count = stream.u32();
            entry.valueBytes = std::uint64_t(entry.count) * typeBytes(entry.type);
            const std::uint64_t value = stream.position();
            const std::uint64_t distant = stream.u32();
            entry.valueOffset = entry.valueBytes <= 4 ? value : distant;
            if (entry.valueBytes > 0 && stream.holds(entry.valueOffset, entry.valueBytes))
                entries.push_back(entry);
        }
    } catch (const EndOfBytes &) {
    }
    return entries;
}

bool isStructuralTag(unsigned tag)
{
    struct Range
    {
        unsigned first;
        unsigned last;
    };
    static constexpr Range kRanges[] = {
        {254, 259},     // kind of image, size, bits, compression
        {262, 266},     // photometric, thresholding, cells, fill order
        {273, 273},     // strips
        {277, 281},     // samples, rows per strip, strip counts, smallest and largest sample
        {284, 284},     // planes
        {288, 293},     // free space, grey response, fax options
        {301, 301},     // transfer function
        {317, 317},     // predictor
        {320, 332},     // palette, halftones, tiles, SubIFDs, inks
        {334, 334},     // number of inks
        {336, 341},     // dot range, extra samples, sample format and limits
        {347, 347},     // JPEG tables
        {512, 532},     // the old JPEG; YCbCr and its reference levels
        {700, 700},     // XMP
        {33421, 33422}, // colour filter array
        {33723, 33723}, // IPTC
        {34377, 34377}, // image resources
        {34675, 34675}, // colour profile
        {37724, 37724}, // layers
        {50706, 52600}, // DNG: its version number would turn any file into a raw file
    };
    return std::any_of(std::begin(kRanges), std::end(kRanges), [&](Range r) { return tag >= r.first && tag <= r.last; });
}

bool isExifBlock(const std::uint8_t *bytes, std::size_t count)
{
    using namespace std::string_view_literals;
    constexpr std::uint64_t kSmallest = 8 + 2; // header and a count
    ByteReader block(bytes, count);
    return block.holds(0, kSmallest) && (block.startsWith("II*\0"sv) || block.startsWith("MM\0*"sv));
}

FileMetadata metadataFromFile(const RegularFile &file, bool raw)
{
    startExiv2();
    FileMetadata result;
    try {
        const auto image = openMetadata(file);
        if (!image)
            throw Failure{GFL_ERROR_UNKNOWN_FORMAT};
        {
            const std::lock_guard lock(xmpMutex);
            image->readMetadata();
        }
        result.width = int(image->pixelWidth());
        result.height = int(image->pixelHeight());
        Exiv2::ExifData &data = image->exifData();
        dropFrom(data, [](const Exiv2::Exifdatum &datum) { return !isCarried(datum); });
        result.exif = encoded(data, image->byteOrder());
        if (raw && !image->iptcData().empty()) {
            const Exiv2::DataBuf iptc = Exiv2::IptcParser::encode(image->iptcData());
#if EXIV2_TEST_VERSION(0, 28, 0)
            result.iptc.assign(iptc.cbegin(), iptc.cend());
#else
            result.iptc.assign(iptc.pData_, iptc.pData_ + iptc.size_);
#endif
        }
    } catch (const Exiv2::Error &) {
        if (raw)
            throw Failure{GFL_ERROR_FILE_READ};
    }
    return result;
}

Bytes shrinkExif(const Bytes &exif, std::size_t limit)
{
    if (exif.size() <= limit)
        return exif;
    startExiv2();
    try {
        Exiv2::ExifData data;
        const Exiv2::ByteOrder order = Exiv2::ExifParser::decode(data, exif.data(), std::uint32_t(exif.size()));
        dropFrom(data, [](const Exiv2::Exifdatum &datum) { return datum.groupName() == "Thumbnail"; });
        const Bytes smaller = encoded(data, order); // leaves out large unknown tags by itself
        if (smaller.size() <= limit)
            return smaller;
    } catch (const Exiv2::Error &) {
    }
    return {};
}

ExposureFacts exposureFacts(const Bytes &exif)
{
    startExiv2();
    ExposureFacts facts;
    if (exif.empty())
        return facts;
    try {
        Exiv2::ExifData data;
        Exiv2::ExifParser::decode(data, exif.data(), std::uint32_t(exif.size()));
        facts.exposureSeconds = realValue(data, "Exif.Photo.ExposureTime");
        facts.aperture = realValue(data, "Exif.Photo.FNumber");
        facts.isoSpeed = realValue(data, "Exif.Photo.ISOSpeedRatings");
        for (int i = 0; i < 8; ++i)
            facts.chromaticities[i] = i < 6 ? realValue(data, kPrimaries, i) : realValue(data, kWhitePoint, i - 6);
        facts.captureDate = textValue(data, "Exif.Photo.DateTimeOriginal");
        facts.owner = textValue(data, "Exif.Image.Copyright");
        if (facts.owner.empty())
            facts.owner = textValue(data, "Exif.Image.Artist");
        facts.comments = textValue(data, "Exif.Image.ImageDescription");
        facts.make = textValue(data, "Exif.Image.Make");
        facts.model = textValue(data, "Exif.Image.Model");
    } catch (const Exiv2::Error &) {
    }
    return facts;
}

Bytes exifFromFacts(const ExposureFacts &facts)
{
    startExiv2();
    try {
        Exiv2::ExifData data;
        if (facts.exposureSeconds > 0)
            data["Exif.Photo.ExposureTime"] = fraction(facts.exposureSeconds);
        if (facts.aperture > 0)
            data["Exif.Photo.FNumber"] = fraction(facts.aperture);
        if (facts.isoSpeed >= 1 && facts.isoSpeed <= 65535)
            data["Exif.Photo.ISOSpeedRatings"] = std::uint16_t(facts.isoSpeed);
        if (facts.chromaticities[0] > 0) {
            addRationals(data, kPrimaries, facts.chromaticities, 6);
            addRationals(data, kWhitePoint, facts.chromaticities + 6, 2);
        }
        if (!facts.captureDate.empty())
            data["Exif.Photo.DateTimeOriginal"] = facts.captureDate;
        if (!facts.owner.empty())
            data["Exif.Image.Copyright"] = facts.owner;
        if (!facts.comments.empty())
            data["Exif.Image.ImageDescription"] = facts.comments;
        if (!facts.make.empty())
            data["Exif.Image.Make"] = facts.make;
        if (!facts.model.empty())
            data["Exif.Image.Model"] = facts.model;
        return encoded(data, Exiv2::littleEndian);
    } catch (const Exiv2::Error &) {
        return {};
    }
}

Bytes exifFromTexts(const std::vector<std::pair<std::uint16_t, std::string>> &texts, int orientation)
{
    startExiv2();
    try {
        Exiv2::ExifData data;
        for (const auto &[tag, text] : texts)
            data[Exiv2::ExifKey(tag, "Image").key()] = text;
        if (orientation > 0)
            data["Exif.Image.Orientation"] = std::uint16_t(orientation);
        return encoded(data, Exiv2::littleEndian);
    } catch (const Exiv2::Error &) {
        return {};
    }
}

BitmapPointer readRaw(const ReadRequest &request)
{
    const FileMetadata found = metadataFromFile(request.file, /*raw=*/true);
    NewBitmap bitmap(request.file, 1, 1, {3, 8});
    if (request.pixels)
        std::memset(bitmap.row(0), 0, bitmap.record().bytesPerLine);
    if (request.metadata) {
        Metadata &metadata = attachMetadata(bitmap.record());
        metadata.exif.block = found.exif;
        metadata.iptc.block = found.iptc;
    }
    return bitmap.take();
}

} // namespace gfl
