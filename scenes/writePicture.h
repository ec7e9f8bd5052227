#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Pictures in the formats that only the program reads, as other programs write them: drawn in code, and packed by the encoders
/// of the libraries that decode them.

/// What is written.
struct PictureForm
{
    int width = 64; ///< As a viewer shows it.
    int height = 48;
    int components = 3;              ///< 1, 3 or 4.
    int bits = 8;                    ///< 8, 10, 12 or 16; 32 for float.
    int orientation = 1;             ///< Of the container, in EXIF's numbers.
    int primaries = 0, transfer = 0; ///< Of ITU-T H.273; 0: not said. AVIF and HEIC.
    bool premultiplied = false;      ///< Colours times alpha.
    bool animated = false;           ///< Two frames.
    bool inks = false;               ///< With a black channel.
    bool secondPicture = false;
    std::vector<std::uint8_t> icc, exif; ///< EXIF from its TIFF header.
    std::string xmp;
};

/// The sample at a place, as a viewer shows the picture: a smooth slope that differs at every corner, from 0 to 1.
double drawnSample(const PictureForm &form, int x, int y, int component);

/// The formats that can be written here, by suffix; HEIC and AVIF only with an encoder for them.
std::vector<std::string> writableSuffixes();
/// Writes the picture in the format of the suffix, with little loss or none.
void writePicture(const std::string &path, const PictureForm &form);

/// A small EXIF block with this orientation and this description.
std::vector<std::uint8_t> exifBlock(int orientation, const std::string &description);
