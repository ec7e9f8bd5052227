#pragma once

#include <cstdint>

#include "gflBitmapParts.h"
#include "gflFile.h"
#include "gflRows.h"

/// The codecs, one source for each format.
namespace gfl {

/// What a codec is asked to read.
struct ReadRequest
{
    const InputFile &file;
    bool metadata; ///< Colour profile, IPTC and EXIF are wanted.
    bool pixels;   ///< If false, the bitmap needs no pixel block.
    int threads;   ///< May be used, the calling thread included; at least 1.
};

BitmapPointer readJpeg(const ReadRequest &request);
BitmapPointer readPng(const ReadRequest &request);
BitmapPointer readTiff(const ReadRequest &request);
BitmapPointer readHdr(const ReadRequest &request);
BitmapPointer readExr(const ReadRequest &request);
BitmapPointer readPsd(const ReadRequest &request);
/// Reads only metadata; the bitmap has a single pixel.
BitmapPointer readRaw(const ReadRequest &request);

/// What a codec is asked to write. A metadata block is empty if there is nothing to write.
struct WriteRequest
{
    OutputFile &file;
    const GflBitmap &bitmap;
    int quality;     ///< -1: the format's default.
    int compression; ///< -1: the format's default.
    bool lzw;        ///< LZW may be used.
    const Bytes &icc;
    const Bytes &iptc;
    const Bytes &exif;
    const Packing &packing; ///< What the defaults of quality and compression are taken from.
    int threads;            ///< May be used, the calling thread included; at least 1.
};

void writeJpeg(const WriteRequest &request);
void transposeJpeg(const InputFile &source, OutputFile &target);
void writePng(const WriteRequest &request);
void writeTiff(const WriteRequest &request);
void writeHdr(const WriteRequest &request);
void writeExr(const WriteRequest &request);
void writePsd(const WriteRequest &request);

/// A resolution in the record's form; 0 if it is out of range.
constexpr std::uint16_t dpiFrom(double dotsPerInch)
{
    return dotsPerInch >= 1.0 && dotsPerInch <= 65535.0 ? std::uint16_t(dotsPerInch + 0.5) : std::uint16_t(0);
}

} // namespace gfl
