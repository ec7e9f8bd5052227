#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "photoKind.h"

/// Reading a photograph's file: pictures through the codec layer, which must have been started, camera raw by developing it. Each
/// call opens the file once. A file whose content shows that it is not a photograph, or another kind than its suffix says, is
/// refused before any library sees it. Nothing throws but std::bad_alloc; any thread.

/// Why a file can't be read.
struct PhotoProblem
{
    enum class Cause {
        None,
        NotOpened,     ///< Missing, not a regular file, or not readable.
        Video,         ///< Recognised as a video.
        Animation,     ///< A picture that moves.
        NoDecoder,     ///< A picture in a format that this build, or the library behind it, has no decoder for.
        UnknownFormat, ///< Not a photograph, or another kind than its suffix says.
        Damaged,       ///< Cut short, or the head claims what a file of this length can't hold.
        NoMemory,      ///< Not enough, or the picture would need more than it may take.
        PixelForm,     ///< Its kind of pixels can't be read.
        RawNoMemory,   ///< Not enough memory to open or develop camera raw.
        RawNotRead,    ///< Camera raw that can't be opened or developed; see `detail`.
    };
    Cause cause = Cause::None;
    std::string detail; ///< The raw library's own text, in English; empty for the other causes.

    explicit operator bool() const { return cause != Cause::None; }
};

/// What the head of a file says. Figures that it doesn't give are 0. The size is such that a file of its length could hold it:
/// width x height, times the bytes of any pixel, fits into 63 bits.
struct PhotoHead
{
    PhotoKind kind = PhotoKind::Other;
    bool raw = false; ///< It is developed.
    int width = 0;    ///< Pixels as stored, before any orientation.
    int height = 0;
    int orientation = 1;   ///< EXIF's 1 to 8.
    int bytesPerPixel = 6; ///< Of what readPixels returns: 6, as for 16-bit RGB, where the head doesn't say.
    int bits = 0;          ///< Per channel, of what readPixels returns.
    bool pixels = false;   ///< There is a size, so that pixels may be had; whether they are whole, readPixels finds out.
    bool metadata = false; ///< The codec layer can read what a result takes over. Always true for camera raw.
    /// The codec layer does not read the file: a process takes the metadata from makeStandIn's file.
    bool needsStandIn = false;
    /// The file holds a gain map or pictures besides the photograph itself, which a result leaves out.
    bool furtherPictures = false;
};

/// Reads the head into `head`, and no pixels. Also a problem: camera raw whose metadata the codec layer would refuse at the save.
[[nodiscard]] PhotoProblem readHead(const std::string &path, PhotoHead &head);

/// The pixels of a photograph at full size, as stored, from top to bottom. Copies share them.
struct PhotoPixels
{
    int width = 0;
    int height = 0;
    int components = 0; ///< 1, 3 or 4: grey, RGB, RGBA.
    int bits = 0;       ///< 8 or 16 (unsigned integers) or 32 (float).
    int strideBytes = 0;
    void *data = nullptr;         ///< The first byte of the top row.
    std::shared_ptr<void> memory; ///< Holds `data`.
};

/// Reads the whole photograph. Pictures keep the depth and channels of their file; camera raw becomes 16-bit RGB or grey in sRGB,
/// with the camera's white balance. `pixels` is unchanged where there is a problem. A decoder that takes the memory for a picture
/// all at once refuses one that needs more than `mostBytes`, with NoMemory.
[[nodiscard]] PhotoProblem readPixels(const std::string &path, PhotoPixels &pixels, std::uint64_t mostBytes = UINT64_MAX);

/// Makes a PNG file of one pixel with colour profile, EXIF and XMP of a photograph that needsStandIn: what the codec layer and
/// carryXmp take from it is what they would take from the photograph. Its EXIF says how the pixels of readPixels are to be
/// turned.
[[nodiscard]] PhotoProblem makeStandIn(const std::string &path, std::vector<std::uint8_t> &file);

/// A format that is read by a library of its own.
struct FurtherFormat
{
    std::string name;
    std::string library; ///< With its version; empty if there is no decoder for the format.
    std::vector<std::string_view> suffixes;
};
std::vector<FurtherFormat> furtherFormats();
