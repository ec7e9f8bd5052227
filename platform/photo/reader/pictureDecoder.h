#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "readPhoto.h"

class RegularFile;

/// Decoders for pictures that the codec layer doesn't read: one function per library, in a source of its own that is only built
/// where the library is. What a library throws or reports becomes a PhotoProblem; nothing throws but std::bad_alloc. Any thread.

using Bytes = std::vector<std::uint8_t>;

/// What is to be read.
enum class Wanted { Head, Metadata, Pixels };

/// What was read. The figures are there in each case.
struct DecodedPicture
{
    int width = 0; ///< Pixels, as all that follows: with the container's orientation applied, but not EXIF's.
    int height = 0;
    int components = 0; ///< As in PhotoPixels.
    int bits = 0;
    bool upright = true;          ///< The EXIF's orientation does not count: the container's, which is applied, replaces it.
    bool furtherPictures = false; ///< As in PhotoHead.
    Bytes icc;                    ///< Metadata: a profile that describes the pixels, or empty; likewise the two below.
    Bytes exif;                   ///< From its TIFF header.
    Bytes xmp;
    PhotoPixels pixels;
};

/// Reads a file of the kind that the decoder is for. No more than about `mostBytes` of memory may be taken; a picture that needs
/// more is refused before it is.
using DecodePicture = PhotoProblem (*)(const RegularFile &file, Wanted wanted, std::uint64_t mostBytes, DecodedPicture &picture);

PhotoProblem decodeHeif(const RegularFile &file, Wanted wanted, std::uint64_t mostBytes, DecodedPicture &picture);
PhotoProblem decodeWebp(const RegularFile &file, Wanted wanted, std::uint64_t mostBytes, DecodedPicture &picture);
PhotoProblem decodeJpegXl(const RegularFile &file, Wanted wanted, std::uint64_t mostBytes, DecodedPicture &picture);

/// The name of the library with its version. For pictures in HEVC and in AV1 separately: empty if it has no decoder for these.
std::string heifLibrary(bool av1);
std::string webpLibrary();
std::string jpegXlLibrary();

/// The decoder for this kind; null if there is none in this build.
DecodePicture decoderFor(PhotoKind kind);

/// The most tightly packed row is a fax row that repeats the one above: it takes one bit, and is never longer than this. The
/// codecs of films, which predict whole blocks, stay below it too.
constexpr std::int64_t kMostPixelsPerByte = 1 << 20;

/// A problem if the picture's size is more than the file or the memory can hold, of which a decoder takes `workingBytes` per
/// pixel.
PhotoProblem checkSize(const DecodedPicture &picture, const RegularFile &file, std::uint64_t workingBytes,
                       std::uint64_t mostBytes);

/// The whole file, or nothing if it can't be read or is longer than `mostBytes` or than any photograph.
PhotoProblem readWhole(const RegularFile &file, std::uint64_t mostBytes, Bytes &bytes);

/// The EXIF in a container's block, which may have other things before its TIFF header; empty if there is none.
Bytes exifIn(const std::uint8_t *block, std::size_t count);
/// EXIF's orientation, 1 to 8; 1 if the block has none.
int orientationOf(const Bytes &exif);
/// Sets the orientation in the block to 1, if it has one.
void makeUpright(Bytes &exif);
