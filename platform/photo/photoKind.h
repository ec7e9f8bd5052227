#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a file is, told by its first bytes. Nothing is handed to a library before this layer has said that the library reads it:
/// libraries that guess hold parsers of many formats that nobody wants a stranger's file to reach. Nothing here throws but
/// std::bad_alloc; any thread.
enum class PhotoKind {
    // Pictures, in the order of the codec layer's formats. A TIFF may be camera raw as well.
    Jpeg,
    Png,
    Tiff,
    Radiance,
    OpenExr,
    Photoshop,
    // Camera raw that is no TIFF.
    Crw,
    Mrw,
    Orf,
    Raf,
    Rw2,
    // What is refused. Video: what it is can be told.
    Video,
    Other,
};

/// Bytes from the start of a file that decide.
constexpr std::size_t kPhotoKindBytes = 512;

/// The kind of a file that begins like this. A file that ends within the signature of a picture counts as one of these, cut
/// short. Empty: Other.
PhotoKind photoKind(std::string_view start);
/// The same of a regular file; nothing if it can't be read.
std::optional<PhotoKind> photoKindOfFile(const std::string &path);

/// The picture kind that this suffix (lower case, without the dot) stands for, or Other.
PhotoKind pictureKindOfSuffix(std::string_view suffix);
/// True for a suffix of camera raw.
bool isRawSuffix(std::string_view suffix);
/// True if a file of this kind may have this suffix: a suffix that names a format must be true, under any other one the content
/// decides. False for what is no photograph, under any suffix.
bool suffixFits(PhotoKind kind, std::string_view suffix);
/// True for kinds that are camera raw and nothing else.
bool isRawOnly(PhotoKind kind);

/// The suffixes under which results keep their photograph's format, and all those of camera raw, for texts and file dialogs.
std::vector<std::string_view> keptSuffixes();
std::vector<std::string_view> rawSuffixes();
