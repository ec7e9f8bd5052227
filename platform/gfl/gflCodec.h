#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "PixelForm.h"
#include "gfl.h"

struct GflIptc
{
    std::vector<std::uint8_t> block; ///< Datasets as they stand in the file, from the first 0x1C.
};

struct GflExif
{
    std::vector<std::uint8_t> block; ///< A TIFF stream, from its "II" or "MM".
};

/// What the codecs of this layer share. Inside the layer a failure is thrown as gfl::Failure; gfl.cpp turns it, and whatever the
/// libraries throw, into a code.
namespace gfl {

using Bytes = std::vector<std::uint8_t>;

struct Failure
{
    GflCode code;
};

/// What GflBitmap::metaData points at.
struct Metadata
{
    Bytes icc;
    GflIptc iptc;
    GflExif exif;
};

/// The attached metadata, or null.
Metadata *metadataOf(const GflBitmap *bitmap);
/// The attached metadata, made if there is none. Throws std::bad_alloc.
Metadata &attachMetadata(GflBitmap &bitmap);

// The allocator that bitmaps are made with; null stands for no memory.
void setAllocator(GflAllocCallback alloc, GflReallocCallback realloc, GflFreeCallback release, void *user);
void *allocate(std::size_t bytes);
void *reallocate(void *block, std::size_t bytes);
void release(void *block);

using Form = PixelForm;

Form formOf(const GflBitmap &bitmap);

/// Converts `width` pixels, depths as convertSample.h says. A grey sample becomes each of the first three components and a
/// missing alpha is opaque; an alpha that the target has no place for is dropped. A colour source never goes to a grey target.
using RowConverter = void (*)(const void *source, int sourceComponents, void *target, int targetComponents, int width);
RowConverter rowConverter(int sourceBits, int targetBits);

/// Swaps the bytes of `count` samples of 16 or 32 bits, in place or from one place to another.
void swapSamples(const void *source, void *target, std::size_t count, int bits);

inline const std::uint8_t *rowOf(const GflBitmap &bitmap, int y)
{
    return static_cast<const std::uint8_t *>(bitmap.data) + std::size_t(bitmap.bytesPerLine) * std::size_t(y);
}

/// The rows of a bitmap in the form that a file takes: row() is the bitmap's own memory where the form is the same, else one
/// converted row that the next call overwrites.
class SourceRows
{
public:
    SourceRows(const GflBitmap &bitmap, Form form);
    const std::uint8_t *row(int y);

private:
    const GflBitmap &bitmap;
    Form form;
    RowConverter convert;
    Bytes buffer;
};

class InputFile;

struct BitmapDelete
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
using BitmapPointer = std::unique_ptr<GflBitmap, BitmapDelete>;

/// A bitmap in the making. The pixel block grows as rows are asked for, so that a header alone never makes the layer allocate
/// what it claims: the first block is in proportion to the file's size.
class NewBitmap
{
public:
    /// Throws FILE_READ for an empty size and NO_MEMORY for rows of 2 GiB and more.
    NewBitmap(const InputFile &file, std::int64_t width, std::int64_t height, Form form);

    GflBitmap &record() { return *bitmap; }
    int width() const { return bitmap->width; }
    int height() const { return bitmap->height; }
    /// The address of row `y`; any row address from before may be stale after it. Throws NO_MEMORY.
    std::uint8_t *row(int y);
    /// How many rows, `y` among them, may be written from row(y) on without another call.
    int rowsFrom(int y);
    BitmapPointer take() { return std::move(bitmap); }

private:
    BitmapPointer bitmap;
    std::size_t firstBytes;
    std::size_t capacity = 0;
};

/// A file that is read at any place. Only regular files.
class InputFile
{
public:
    /// Throws FILE_OPEN.
    explicit InputFile(const char *fileName);
    ~InputFile();
    InputFile(const InputFile &) = delete;
    InputFile &operator=(const InputFile &) = delete;

    const std::string &name() const { return fileName; }
    std::uint64_t size() const { return fileSize; }
    /// Returns the bytes read: fewer than asked for at the file's end or on an error.
    std::size_t readAt(std::uint64_t offset, void *target, std::size_t bytes) const noexcept;
    /// The bytes of a stretch. Throws FILE_READ if the file doesn't hold all of them, before anything is allocated.
    Bytes bytesAt(std::uint64_t offset, std::uint64_t bytes) const;

private:
    std::string fileName;
    int descriptor;
    std::uint64_t fileSize = 0;
};

/// Reads an InputFile from front to back through a buffer.
class InputStream
{
public:
    explicit InputStream(const InputFile &file, std::uint64_t start = 0);
    /// False if the file ends before.
    bool tryRead(void *target, std::size_t bytes) noexcept;
    /// Throws FILE_READ.
    void read(void *target, std::size_t bytes);
    /// The next byte, or -1 at the end.
    int next() { return position < filled || fill() ? buffer[position++] : -1; }
    /// The next buffer's worth, not empty but at the end; for libraries that want the bytes where they are.
    std::pair<const std::uint8_t *, std::size_t> block();
    std::uint64_t offset() const { return bufferStart + position; }
    void seek(std::uint64_t target);

private:
    bool fill() noexcept;

    const InputFile &file;
    Bytes buffer;
    std::size_t position = 0;
    std::size_t filled = 0;
    std::uint64_t bufferStart;
};

/// A file that is written beside its target and takes its place with commit(); without one it is gone. Until then it has no name,
/// or, where the file system knows only files with names, a hidden one. A symbolic link stays, and what it points at is replaced.
/// The new file has the mode of the old one, or that of any newly created file.
class OutputFile
{
public:
    /// Throws FILE_CREATE.
    explicit OutputFile(const char *fileName);
    ~OutputFile();
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;

    bool tryWrite(const void *bytes, std::size_t count) noexcept;
    /// Throws FILE_WRITE, as do the calls below.
    void write(const void *bytes, std::size_t count);
    void write(const Bytes &bytes) { write(bytes.data(), bytes.size()); }
    bool trySeek(std::uint64_t target) noexcept;
    std::uint64_t offset() const { return position + used; }
    std::uint64_t size() noexcept;
    /// Reads back what has been written, from offset() on, and moves behind it.
    std::size_t readBack(void *target, std::size_t bytes) noexcept;
    void commit();

private:
    bool flush() noexcept;
    /// Calls `make` with hidden names beside the target, until it makes one of them or fails for good.
    template<class Make>
    bool underFreshName(Make make);

    std::string target;
    std::string temporary; ///< Empty: the file has no name.
    int descriptor = -1;
    Bytes buffer;
    std::size_t used = 0;
    std::uint64_t position = 0; ///< File offset at which the buffer begins.
};

/// What a codec is asked to read.
struct ReadRequest
{
    const InputFile &file;
    bool metadata; ///< Colour profile, IPTC and EXIF are wanted.
    bool pixels;   ///< False: the bitmap needs no pixel block.
};

BitmapPointer readJpeg(const ReadRequest &request);
BitmapPointer readPng(const ReadRequest &request);
BitmapPointer readTiff(const ReadRequest &request);
BitmapPointer readHdr(const ReadRequest &request);
BitmapPointer readExr(const ReadRequest &request);
BitmapPointer readPsd(const ReadRequest &request);
/// Metadata only, with a bitmap of one pixel.
BitmapPointer readRaw(const ReadRequest &request);

/// What a codec is asked to write. The three blocks are empty where there is nothing to write.
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
};

void writeJpeg(const WriteRequest &request);
void transposeJpeg(const InputFile &source, OutputFile &target);
void writePng(const WriteRequest &request);
void writeTiff(const WriteRequest &request);
void writeHdr(const WriteRequest &request);
void writeExr(const WriteRequest &request);
void writePsd(const WriteRequest &request);

std::uint16_t big16(const std::uint8_t *bytes);
std::uint32_t big32(const std::uint8_t *bytes);
void putBig16(Bytes &bytes, unsigned value);
void putBig32(Bytes &bytes, std::uint32_t value);

/// A resolution as the record holds it: 0 where it is none.
std::uint16_t dpiFrom(double dotsPerInch);

} // namespace gfl
