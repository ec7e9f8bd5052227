#pragma once

#include <string>

class RegularFile;

/// What a file holds besides its photograph: a gain map that makes it brighter on some displays, a view for the other eye, a
/// depth map, a short film. None of it fits a changed photograph, and a result has none of it. Nothing throws but std::bad_alloc.

/// Whether a JPEG file holds such a thing. A mere reduced copy for small displays does not count. False for other files.
bool holdsFurtherPictures(const RegularFile &file);

/// The XMP packet without the properties that describe such things; the same bytes if it has none. Without HasExtendedXMP, the
/// packet's extension is to be left out, too. Empty for a packet that describes such things but can't be parsed.
std::string withoutFurtherPictures(const std::string &packet);
