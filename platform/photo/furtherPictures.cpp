#include "furtherPictures.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include <exiv2/exiv2.hpp>

#include "RegularFile.h"

using namespace std::string_view_literals;

namespace {

/// Namespaces of which every property is about further pictures. Some writers end a name without its slash.
constexpr std::string_view kImage = "http://ns.google.com/photos/1.0/image", kDepth = "http://ns.google.com/photos/1.0/depthmap";
constexpr std::string_view kNamespaces[] = {"http://ns.adobe.com/hdr-gain-map/1.0", "http://ns.apple.com/HDRGainMap/1.0",
                                            "http://ns.google.com/photos/1.0/container", kImage, kDepth};
/// The same for names in a namespace that has others, too.
constexpr std::string_view kCamera = "http://ns.google.com/photos/1.0/camera";
constexpr std::string_view kFilms[] = {"MotionPhoto", "MicroVideo"};

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

bool mentionsFurtherPictures(std::string_view packet)
{
    const auto mentioned = [&](std::string_view name) { return packet.find(name) != std::string_view::npos; };
    return std::any_of(std::begin(kNamespaces), std::end(kNamespaces), mentioned) ||
           (mentioned(kCamera) && std::any_of(std::begin(kFilms), std::end(kFilms), mentioned));
}

bool isAboutFurtherPictures(const Exiv2::Xmpdatum &datum)
{
    const std::string space = Exiv2::XmpProperties::ns(datum.groupName()), name = datum.tagName();
    const auto begins = [](std::string_view text) { return [text](std::string_view start) { return startsWith(text, start); }; };
    return std::any_of(std::begin(kNamespaces), std::end(kNamespaces), begins(space)) ||
           (startsWith(space, kCamera) && std::any_of(std::begin(kFilms), std::end(kFilms), begins(name)));
}

/// Whether an index of pictures in one file has more than the photograph and its reduced copies.
/// Source: CIPA DC-007-2021, section 5.2.
bool listsFurtherPictures(ByteReader index)
{
    constexpr int kEntries = 0xB002;
    constexpr std::uint64_t kEntryBytes = 16;
    index.setOrder(index.startsWith("II") ? ByteOrder::Little : ByteOrder::Big);
    index.skip(4);
    index.seek(index.u32());
    for (int fields = index.u16(); fields > 0; --fields) {
        const int tag = index.u16();
        index.skip(2);
        const std::uint32_t bytes = index.u32(), place = index.u32();
        if (tag != kEntries)
            continue;
        index.seek(place);
        for (std::uint64_t entry = 0; entry < bytes / kEntryBytes; ++entry) {
            constexpr std::uint32_t kKind = 0xFFFFFF, kPrimary = 0x030000, kReduced = 0x010000;
            const std::uint32_t kind = index.u32() & kKind;
            index.skip(kEntryBytes - 4);
            if (entry > 0 && kind != kPrimary && (kind & 0xFF0000) != kReduced)
                return true;
        }
        return false;
    }
    return false;
}

} // namespace

bool holdsFurtherPictures(const RegularFile &file)
{
    try {
        ByteReader reader(file);
        if (!reader.startsWith("\xFF\xD8"))
            return false;
        reader.skip(2);
        while (reader.u8() == 0xFF) {
            const int marker = reader.u8(), size = reader.u16(); // with its own two bytes
            if (marker == 0xDA || size < 2)
                return false;
            ByteReader segment = reader.stretch(std::uint64_t(size) - 2);
            if (marker == 0xE2 && segment.startsWith("urn:iso:std:iso:ts:21496:-1\0"sv))
                return true;
            if (marker == 0xE2 && segment.startsWith("MPF\0"sv)) {
                segment.skip(4);
                try {
                    if (listsFurtherPictures(segment.stretch(segment.remaining())))
                        return true;
                } catch (const EndOfBytes &) { // a damaged index
                }
            } else if (marker == 0xE1 && segment.startsWith("http://ns.adobe.com/xap/1.0/\0"sv)) {
                const std::vector<std::uint8_t> packet = segment.bytes(segment.remaining());
                if (mentionsFurtherPictures({reinterpret_cast<const char *>(packet.data()), packet.size()}))
                    return true;
            }
        }
    } catch (const EndOfBytes &) {
    }
    return false;
}

std::string withoutFurtherPictures(const std::string &packet)
{
    if (!mentionsFurtherPictures(packet))
        return packet;
    try {
        Exiv2::XmpData data;
        if (Exiv2::XmpParser::decode(data, packet) != 0)
            return {};
        // The pictures themselves are in the packet's extension.
        const bool extension = packet.find(kImage) != std::string::npos || packet.find(kDepth) != std::string::npos;
        for (auto at = data.begin(); at != data.end();)
            at = isAboutFurtherPictures(*at) || (extension && at->tagName() == "HasExtendedXMP") ? data.erase(at) : std::next(at);
        std::string rest;
        if (!data.empty() && Exiv2::XmpParser::encode(rest, data, Exiv2::XmpParser::useCompactFormat) != 0)
            return {};
        return rest;
    } catch (const Exiv2::Error &) {
        return {};
    }
}
