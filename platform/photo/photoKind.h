#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class ByteSource;

/// What a file is, decided by its first bytes. No library is given a file before this layer has found that it reads such files:
/// libraries that guess contain parsers for many formats, which a stranger's file must not reach. Throws nothing but
/// std::bad_alloc; any thread.
enum class PhotoKind {
    // Pictures, in the order of the codec layer's formats. A TIFF may be camera raw as well.
    Jpeg,
    Png,
    Tiff,
    Radiance,
    OpenExr,
    Photoshop,
    // Camera raw that is not TIFF.
    Crw,
    Mrw,
    Orf,
    Raf,
    Rw2,
    // Pictures that the codec layer doesn't read.
    Heif, ///< HEIC, AVIF.
    Webp,
    JpegXl,
    // Refused. A video gets a message of its own.
    Video,
    Other,
};

/// How many bytes from the start of a file decide.
constexpr std::size_t kPhotoKindBytes = 512;

/// The kind of a file that begins with these bytes. A file that ends within the signature of a picture counts as such a picture,
/// cut short. Other if there are none.
PhotoKind photoKind(std::string_view start);
/// The same for an open file; nothing if its bytes can't be read.
std::optional<PhotoKind> photoKindOf(const ByteSource &file);

/// The suffix of a path in lower case (A to Z), without the dot; empty if there is none. The calls below take it like this.
std::string suffixOf(std::string_view path);
/// The kind of picture that this suffix names, or Other.
PhotoKind pictureKindOfSuffix(std::string_view suffix);
/// True for a suffix of camera raw.
bool isRawSuffix(std::string_view suffix);
/// True if a file of this kind may have this suffix: a suffix that names a format of the codec layer must be true, and under any
/// other the content decides. False under every suffix for what is not a photograph.
bool suffixFits(PhotoKind kind, std::string_view suffix);
/// True for kinds that are always camera raw.
bool isRawOnly(PhotoKind kind);

/// The suffixes under which results keep their photograph's format, and all those of camera raw, for texts and file dialogs.
std::vector<std::string_view> keptSuffixes();
std::vector<std::string_view> rawSuffixes();
