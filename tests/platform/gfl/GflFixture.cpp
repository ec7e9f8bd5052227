#include <unistd.h>

#include "GflFixture.h"

namespace {

void append(FileBytes &to, const FileBytes &from)
{
    to.insert(to.end(), from.begin(), from.end());
}

/// Writes numbers in the byte order of a TIFF stream.
struct Stream
{
    FileBytes bytes;
    bool bigEndian;

    void put(unsigned value, int count)
    {
        for (int i = 0; i < count; ++i)
            bytes.push_back(std::uint8_t(value >> 8 * (bigEndian ? count - 1 - i : i)));
    }
    void entry(unsigned tag, unsigned type, unsigned count, unsigned value, int valueBytes = 4)
    {
        put(tag, 2);
        put(type, 2);
        put(count, 4);
        put(value, valueBytes);
        put(0, 4 - valueBytes);
    }
};

FileBytes segment(unsigned marker, const FileBytes &data)
{
    const unsigned length = unsigned(data.size()) + 2;
    FileBytes bytes{0xFF, std::uint8_t(marker), std::uint8_t(length >> 8), std::uint8_t(length)};
    append(bytes, data);
    return bytes;
}

} // namespace

FileBytes exifBlock(bool bigEndian)
{
    enum { kByte = 1, kText = 2, kShort = 3, kLong = 4, kRational = 5, kUndefined = 7 };
    constexpr unsigned kFirst = 8;
    constexpr unsigned kPhoto = kFirst + 2 + 5 * 12 + 4;
    constexpr unsigned kGps = kPhoto + 2 + 3 * 12 + 4;
    constexpr unsigned kValues = kGps + 2 + 2 * 12 + 4;
    constexpr unsigned kExposure = kValues;
    constexpr unsigned kLatitude = kExposure + 8;
    constexpr unsigned kMake = kLatitude + 24;
    constexpr unsigned kNote = kMake + 8;

    Stream s{bigEndian ? FileBytes{'M', 'M'} : FileBytes{'I', 'I'}, bigEndian};
    s.put(42, 2);
    s.put(kFirst, 4);
    s.put(5, 2);
    s.entry(0x010F, kText, 8, kMake);
    s.entry(0x0112, kShort, 1, 6, 2); // orientation: a quarter turn
    s.entry(0x0213, kShort, 1, 1, 2); // YCbCr positioning, which must not be carried over
    s.entry(0x8769, kLong, 1, kPhoto);
    s.entry(0x8825, kLong, 1, kGps);
    s.put(0, 4);
    s.put(3, 2);
    s.entry(0x829A, kRational, 1, kExposure);
    s.entry(0x8827, kShort, 1, 200, 2);
    s.entry(0x927C, kUndefined, 12, kNote);
    s.put(0, 4);
    s.put(2, 2);
    s.put(0x0001, 2);
    s.put(kText, 2);
    s.put(2, 4);
    append(s.bytes, {'N', 0, 0, 0});
    s.entry(0x0002, kRational, 3, kLatitude);
    s.put(0, 4);
    for (const unsigned value : {1u, 250u, 47u, 1u, 30u, 1u, 0u, 1u})
        s.put(value, 4);
    append(s.bytes, {'T', 'e', 's', 't', 'C', 'a', 'm', 0});
    append(s.bytes, {'n', 'o', 't', 'e', 1, 2, 3, 4, 5, 6, 7, 8});
    return s.bytes;
}

FileBytes iptcBlock()
{
    return {0x1C, 2, 80, 0, 3, 'A', 'n', 'n', 0x1C, 2, 25, 0, 4, 'h', 'a', 'z', 'e'};
}

FileBytes profileBlock()
{
    FileBytes profile(300, 0);
    profile[2] = 1; // size 300, big-endian
    profile[3] = 44;
    std::memcpy(&profile[12], "mntrRGB XYZ ", 12);
    std::memcpy(&profile[36], "acsp", 4);
    for (std::size_t i = 132; i < profile.size(); ++i)
        profile[i] = std::uint8_t(i * 7);
    return profile;
}

FileBytes photograph()
{
    const Picture picture = makePicture(24, 16, 3, 8);
    paint(*picture);
    const std::string name =
        (std::filesystem::temp_directory_path() / ("gfl_photograph_" + std::to_string(::getpid()) + ".jpg")).string();
    EXPECT_EQ(save(name, picture.get(), "jpeg"), GFL_NO_ERROR);
    FileBytes bytes = readFile(name);
    std::filesystem::remove(name);

    FileBytes exif{'E', 'x', 'i', 'f', 0, 0};
    append(exif, exifBlock(true));
    FileBytes resources{'P', 'h', 'o', 't', 'o', 's', 'h', 'o', 'p', ' ', '3', '.', '0', 0};
    append(resources, {'8', 'B', 'I', 'M', 0x04, 0x25, 0, 0, 0, 0, 0, 1, 9, 0}); // a block of odd length, to be skipped
    append(resources, {'8', 'B', 'I', 'M', 0x04, 0x04, 0, 0, 0, 0, 0, std::uint8_t(iptcBlock().size())});
    append(resources, iptcBlock());
    resources.push_back(0);
    FileBytes profile{'I', 'C', 'C', '_', 'P', 'R', 'O', 'F', 'I', 'L', 'E', 0, 1, 1};
    append(profile, profileBlock());
    FileBytes segments = segment(0xE1, exif);
    append(segments, segment(0xED, resources));
    append(segments, segment(0xE2, profile));
    bytes.insert(bytes.begin() + 2, segments.begin(), segments.end());
    return bytes;
}
