#pragma once

#include <memory>
#include <string>

#include <exiv2/exiv2.hpp>

/// The metadata library's view of a file, for the sources that read and write metadata through it. The file goes to the parser of
/// its own kind, by name, and to no other one; null for kinds whose metadata the library doesn't read (Radiance, OpenEXR) or that
/// are no photographs. Nothing has been read yet. Throws what the library throws.
std::unique_ptr<Exiv2::Image> openMetadata(const std::string &path);
