#include "photoKind.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "ByteReader.h"

using namespace std::string_view_literals;

namespace {

/// Bytes at a fixed place in the file.
struct Mark
{
    std::string_view bytes;
    std::size_t at = 0;
};

struct Picture
{
    PhotoKind kind;
    std::string_view kept[3];   ///< Suffixes under which results are written.
    std::string_view others[3]; ///< Further suffixes under which the format is read.
};
constexpr Picture kPictures[] = {
    {PhotoKind::Jpeg, {"jpg", "jpeg"}, {"jpe", "jfif"}},
    {PhotoKind::Png, {"png"}, {}},
    {PhotoKind::Tiff, {"tif", "tiff"}, {}},
    {PhotoKind::Radiance, {"hdr", "hdri"}, {"pic", "rgbe"}},
    {PhotoKind::OpenExr, {"exr"}, {}},
    {PhotoKind::Photoshop, {"psd"}, {"psb"}},
};

constexpr std::string_view kRawSuffixes[] = {"3fr", "arw", "cr2", "crw", "dcr", "dng", "erf", "fff", "iiq",
                                             "k25", "kdc", "mef", "mos", "mrw", "nef", "nrw", "orf", "pef",
                                             "ptx", "raf", "raw", "rw2", "rwl", "sr2", "srf", "srw"};

struct Signature
{
    PhotoKind kind;
    std::string_view start;
};
constexpr Signature kSignatures[] = {
    {PhotoKind::Jpeg, "\xFF\xD8\xFF"sv}, {PhotoKind::Png, "\x89PNG\r\n\x1A\n"sv},
    {PhotoKind::Tiff, "II*\0"sv},        {PhotoKind::Tiff, "MM\0*"sv},
    {PhotoKind::Tiff, "II+\0"sv}, // with 64-bit offsets
    {PhotoKind::Tiff, "MM\0+"sv},        {PhotoKind::Radiance, "#?RADIANCE"sv},
    {PhotoKind::Radiance, "#?RGBE"sv},   {PhotoKind::OpenExr, "\x76\x2F\x31\x01"sv},
    {PhotoKind::Photoshop, "8BPS"sv},    {PhotoKind::Crw, "II\x1A\0\0\0HEAPCCDR"sv},
    {PhotoKind::Mrw, "\0MRM"sv},         {PhotoKind::Orf, "IIRO"sv},
    {PhotoKind::Orf, "IIRS"sv},          {PhotoKind::Orf, "MMOR"sv},
    {PhotoKind::Raf, "FUJIFILM"sv},      {PhotoKind::Rw2, "IIU\0"sv},
};

/// A file is a video if it has all the marks of a row.
constexpr std::array<Mark, 3> kVideos[] = {
    {{{"RIFF"sv}, {"AVI "sv, 8}}},
    {{{"\x1A\x45\xDF\xA3"sv}}},                                  // Matroska, WebM
    {{{"\x30\x26\xB2\x75\x8E\x66\xCF\x11"sv}}},                  // ASF, WMV
    {{{"\x47"sv}, {"\x47"sv, 188}, {"\x47"sv, 376}}},            // MPEG transport stream
    {{{"\x47"sv, 4}, {"\x47"sv, 4 + 192}, {"\x47"sv, 4 + 384}}}, // with time codes
    {{{"\0\0\1\xBA"sv}}},                                        // MPEG programme stream
    {{{"\0\0\1\xB3"sv}}},                                        // MPEG video without one
    {{{"FLV\1"sv}}},
    {{{".RMF"sv}}},
    {{{"\x06\x0E\x2B\x34\x02\x05\x01\x01"sv}}}, // MXF
    {{{"OggS"sv}, {"\x80theora"sv, 28}}},
    {{{"moov"sv, 4}}}, // QuickTime from before files stated their type
    {{{"mdat"sv, 4}}},
    {{{"wide"sv, 4}}},
    {{{"pnot"sv, 4}}},
};

/// Types of the ISO media format that are not videos: pictures in the library's container; other pictures, camera raw, sound.
constexpr std::string_view kHeifBrands[] = {"heic", "heix", "heim", "heis", "mif1", "mif2", "avif"};
constexpr std::string_view kOtherBrands[] = {"crx ", "jpx ", "jp2 ", "M4A ", "M4B "};

/// A file is of the kind of a row if it has all its marks.
struct FurtherPicture
{
    PhotoKind kind;
    Mark marks[2];
};
constexpr FurtherPicture kFurtherPictures[] = {
    {PhotoKind::Webp, {{"RIFF"sv}, {"WEBP"sv, 8}}},
    {PhotoKind::JpegXl, {{"\xFF\x0A"sv}, {}}},
    {PhotoKind::JpegXl, {{"\0\0\0\x0CJXL \r\n\x87\n"sv}, {}}},
};

bool isThere(std::string_view start, const Mark &mark)
{
    return start.size() >= mark.at && start.substr(mark.at, mark.bytes.size()) == mark.bytes;
}

template<typename Marks>
bool areThere(std::string_view start, const Marks &marks)
{
    return std::all_of(std::begin(marks), std::end(marks), [&](const Mark &mark) { return isThere(start, mark); });
}

PhotoKind isoMediaKind(std::string_view start)
{
    const auto isAmong = [&](const auto &brands) {
        return std::find(std::begin(brands), std::end(brands), start.substr(8, 4)) != std::end(brands);
    };
    return isAmong(kHeifBrands) ? PhotoKind::Heif : isAmong(kOtherBrands) ? PhotoKind::Other : PhotoKind::Video;
}

bool isAmong(std::string_view suffix, const std::string_view (&list)[3])
{
    return !suffix.empty() && std::find(std::begin(list), std::end(list), suffix) != std::end(list);
}

} // namespace

PhotoKind photoKind(std::string_view start)
{
    if (start.empty())
        return PhotoKind::Other;
    for (const Signature &signature : kSignatures) {
        const std::size_t whole = signature.start.size(),
                          count = isRawOnly(signature.kind) ? whole : std::min(whole, start.size());
        if (signature.start.substr(0, count) == start.substr(0, count))
            return signature.kind;
    }
    if (isThere(start, {"ftyp"sv, 4}))
        return isoMediaKind(start);
    for (const FurtherPicture &picture : kFurtherPictures)
        if (areThere(start, picture.marks))
            return picture.kind;
    const bool video =
        std::any_of(std::begin(kVideos), std::end(kVideos), [&](const auto &marks) { return areThere(start, marks); });
    return video ? PhotoKind::Video : PhotoKind::Other;
}

std::optional<PhotoKind> photoKindOf(const ByteSource &file)
{
    char start[kPhotoKindBytes];
    const std::size_t count = file.readAt(0, start, sizeof start);
    if (count == 0 && file.size() > 0)
        return std::nullopt;
    return photoKind({start, count});
}

std::string suffixOf(std::string_view path)
{
    const std::size_t dot = path.find_last_of('.');
    const std::size_t slash = path.find_last_of('/');
    if (dot == std::string_view::npos || (slash != std::string_view::npos && slash > dot))
        return {};
    std::string suffix(path.substr(dot + 1));
    std::transform(suffix.begin(), suffix.end(), suffix.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
    return suffix;
}

PhotoKind pictureKindOfSuffix(std::string_view suffix)
{
    const auto found = std::find_if(std::begin(kPictures), std::end(kPictures), [&](const Picture &picture) {
        return isAmong(suffix, picture.kept) || isAmong(suffix, picture.others);
    });
    return found == std::end(kPictures) ? PhotoKind::Other : found->kind;
}

bool isRawSuffix(std::string_view suffix)
{
    return std::find(std::begin(kRawSuffixes), std::end(kRawSuffixes), suffix) != std::end(kRawSuffixes);
}

bool isRawOnly(PhotoKind kind)
{
    return kind >= PhotoKind::Crw && kind <= PhotoKind::Rw2;
}

bool suffixFits(PhotoKind kind, std::string_view suffix)
{
    if (kind == PhotoKind::Video || kind == PhotoKind::Other)
        return false;
    if (isRawSuffix(suffix))
        return kind == PhotoKind::Tiff || isRawOnly(kind);
    const PhotoKind named = pictureKindOfSuffix(suffix);
    return named == PhotoKind::Other || named == kind;
}

std::vector<std::string_view> keptSuffixes()
{
    std::vector<std::string_view> suffixes;
    for (const Picture &picture : kPictures)
        std::copy_if(std::begin(picture.kept), std::end(picture.kept), std::back_inserter(suffixes),
                     [](std::string_view suffix) { return !suffix.empty(); });
    return suffixes;
}

std::vector<std::string_view> rawSuffixes()
{
    return {std::begin(kRawSuffixes), std::end(kRawSuffixes)};
}
