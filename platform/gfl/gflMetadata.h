#pragma once

#include "ByteReader.h"
#include "gflBitmapParts.h"

class RegularFile;

/// Blocks of metadata, taken apart and put together. Everything here takes damaged blocks: what can't be understood is left out.
namespace gfl {

/// True if the profile describes samples of such a form: RGB for colour, grey or RGB for grey. The profile of a CMYK file that
/// was turned into RGB is no longer one of its pixels.
bool profileFits(const Bytes &icc, int components);

constexpr unsigned kResourceIptc = 0x0404;
constexpr unsigned kResourceIcc = 0x040F;
constexpr unsigned kResourceExif = 0x0422;

/// One block of a Photoshop image resource section ("8BIM", id, name, length, data), or empty.
Bytes photoshopResource(const Bytes &section, unsigned id);
void appendPhotoshopResource(Bytes &section, unsigned id, const Bytes &data);

/// One entry of a TIFF directory, as it stands.
struct IfdEntry
{
    std::uint16_t tag;
    std::uint16_t type;
    std::uint32_t count;
    std::uint8_t raw[12];      ///< The entry's own bytes.
    std::uint64_t valueOffset; ///< Where its values stand in the stream.
    std::uint64_t valueBytes;
};

/// The entries of a TIFF stream's first directory whose values lie inside of it, up to the stream's end where that cuts the
/// directory short; empty if it is no classic TIFF. The reader's byte order is set from the stream's header.
std::vector<IfdEntry> firstDirectory(ByteReader &stream);

/// True for tags that describe how the pixels of one file are stored, or that the layer carries by other means (XMP, IPTC, colour
/// profile, image resources): none of them may go from one file to another.
bool isStructuralTag(unsigned tag);

/// A TIFF stream (byte order mark and all) that begins with an EXIF block is worth carrying.
bool isExifBlock(const std::uint8_t *bytes, std::size_t count);

/// The EXIF of a TIFF or camera raw file as a block of its own, without structural tags; and IPTC for raw files. The file is not
/// read beyond its directories. Throws FILE_READ for a file that isn't one.
struct FileMetadata
{
    Bytes exif;
    Bytes iptc;
    int width = 0;
    int height = 0;
};
FileMetadata metadataFromFile(const RegularFile &file, bool raw);

/// The block, made smaller where it exceeds `limit` bytes by leaving out the thumbnail and then the largest unknown tags; empty
/// if that does not suffice.
Bytes shrinkExif(const Bytes &exif, std::size_t limit);

/// The few EXIF values that OpenEXR has standard attributes for.
struct ExposureFacts
{
    double exposureSeconds = 0; ///< 0: not known, as for the two below.
    double aperture = 0;
    double isoSpeed = 0;
    /// Red, green, blue and white, each as x, y; all 0: not known. EXIF has them as PrimaryChromaticities and WhitePoint.
    double chromaticities[8] = {};
    std::string captureDate; ///< "YYYY:MM:DD hh:mm:ss"; empty: not known, as for the rest.
    std::string owner;
    std::string comments;
    std::string make;
    std::string model;
};
/// An EXIF block of the plain texts of a TIFF's first directory (tag and value) and its orientation (0: none).
Bytes exifFromTexts(const std::vector<std::pair<std::uint16_t, std::string>> &texts, int orientation);

ExposureFacts exposureFacts(const Bytes &exif);
Bytes exifFromFacts(const ExposureFacts &facts);

} // namespace gfl
