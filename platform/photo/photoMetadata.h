#pragma once

#include <memory>
#include <string>

#include <exiv2/exiv2.hpp>

class RegularFile;

/// The metadata library's view of a file, for the sources of platform that read and write metadata through it. The file goes to
/// the parser for its own kind and to no other; null for kinds whose metadata the library doesn't read (Radiance, OpenEXR) and
/// for what is not a photograph. Nothing has been read yet. Throws what the library throws.

/// For reading; the file is not opened again and must outlive the view.
std::unique_ptr<Exiv2::Image> openMetadata(const RegularFile &file);
/// For reading and writing.
std::unique_ptr<Exiv2::Image> openMetadata(const std::string &path);
