#pragma once

#include "ByteReader.h"
#include "gflBitmapParts.h"

class RegularFile;

/// Parses and composes metadata blocks. Everything here accepts damaged blocks: what can't be understood is left out.
namespace gfl {

/// Whether the profile describes pixels of that many components: RGB for colour, grey or RGB for grey. The profile of a CMYK file
/// that was converted to RGB no longer describes its pixels.
bool profileFits(const Bytes &icc, int components);

constexpr unsigned kResourceIptc = 0x0404;
constexpr unsigned kResourceIcc = 0x040F;
constexpr unsigned kResourceExif = 0x0422;

/// One block of a Photoshop image resource section ("8BIM", id, name, length, data), or empty.
Bytes photoshopResource(const Bytes &section, unsigned id);
void appendPhotoshopResource(Bytes &section, unsigned id, const Bytes &data);

/// One entry of a TIFF directory, verbatim.
struct IfdEntry
{
    std::uint16_t tag;
    std::uint16_t type;
    std::uint32_t count;
    std::uint8_t raw[12];      ///< The entry's bytes, unchanged.
    std::uint64_t valueOffset; ///< Offset of its values in the stream.
    std::uint64_t valueBytes;
};

/// The entries of a TIFF stream's first directory whose values lie inside the stream. A truncated directory gives the entries
/// before its end; a stream that is not a classic TIFF gives none. Sets the reader's byte order from the stream's header.
std::vector<IfdEntry> firstDirectory(ByteReader &stream);

/// Whether a tag describes how the pixels of one file are stored, or is carried over by other means (XMP, IPTC, colour profile,
/// image resources): no such tag may be copied from one file to another.
bool isStructuralTag(unsigned tag);

/// Whether these bytes begin like an EXIF block: a TIFF stream with its byte order mark.
bool isExifBlock(const std::uint8_t *bytes, std::size_t count);

/// The EXIF of a TIFF or camera raw file as a separate block, without structural tags, and the IPTC of a raw file. Only the
/// file's directories are read. For a raw file that can't be read throws FILE_READ; for another kind of file UNKNOWN_FORMAT.
struct FileMetadata
{
    Bytes exif;
    Bytes iptc;
    int width = 0;
    int height = 0;
};
FileMetadata metadataFromFile(const RegularFile &file, bool raw);

/// The block; if it exceeds `limit` bytes, without its thumbnail and its largest unknown tags, or empty if that is not enough.
Bytes shrinkExif(const Bytes &exif, std::size_t limit);

/// The few EXIF values that OpenEXR has standard attributes for.
struct ExposureFacts
{
    double exposureSeconds = 0; ///< 0: not known; likewise the two below.
    double aperture = 0;
    double isoSpeed = 0;
    /// Red, green, blue and white, each as x, y; all 0: not known. EXIF has them as PrimaryChromaticities and WhitePoint.
    double chromaticities[8] = {};
    std::string captureDate; ///< "YYYY:MM:DD hh:mm:ss"; empty: not known; likewise the rest.
    std::string owner;
    std::string comments;
    std::string make;
    std::string model;
};
/// An EXIF block made from the plain texts of a TIFF's first directory (tag and value) and its orientation (0: none).
Bytes exifFromTexts(const std::vector<std::pair<std::uint16_t, std::string>> &texts, int orientation);

ExposureFacts exposureFacts(const Bytes &exif);
Bytes exifFromFacts(const ExposureFacts &facts);

} // namespace gfl
