#include <algorithm>
#include <cstring>
#include <exception>
#include <limits>
#include <utility>

#include "gflBands.h"
#include "gflCodec.h"
#include "gflMetadata.h"
#include "gflTiffHandle.h"

namespace gfl {
namespace {

tmsize_t onWrite(thandle_t handle, void *source, tmsize_t bytes)
{
    return static_cast<OutputFile *>(handle)->tryWrite(source, std::size_t(bytes)) ? bytes : -1;
}

tmsize_t onReadBack(thandle_t handle, void *target, tmsize_t bytes)
{
    return static_cast<tmsize_t>(static_cast<OutputFile *>(handle)->readBack(target, std::size_t(bytes)));
}

toff_t onWriteSeek(thandle_t handle, toff_t offset, int whence)
{
    auto *file = static_cast<OutputFile *>(handle);
    const std::uint64_t target = offset + (whence == SEEK_CUR ? file->offset() : whence == SEEK_END ? file->size() : 0);
    return file->trySeek(target) ? target : ~toff_t(0);
}

toff_t onWriteSize(thandle_t handle)
{
    return static_cast<OutputFile *>(handle)->size();
}

void checked(bool done)
{
    if (!done)
        throw Failure{GFL_ERROR_FILE_WRITE};
}

/// The fields that say how the pixels of `rows` rows are stored.
void setForm(TIFF *tiff, const GflBitmap &bitmap, int rows, std::uint16_t compression)
{
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, std::uint32_t(bitmap.width));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, std::uint32_t(rows));
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, bitmap.bitsPerComponent);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, bitmap.componentsPerPixel);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, bitmap.componentsPerPixel == 1 ? PHOTOMETRIC_MINISBLACK : PHOTOMETRIC_RGB);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_SAMPLEFORMAT, bitmap.bitsPerComponent == 32 ? SAMPLEFORMAT_IEEEFP : SAMPLEFORMAT_UINT);
    if (bitmap.componentsPerPixel == 4) {
        const std::uint16_t kind = EXTRASAMPLE_UNASSALPHA;
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &kind);
    }
    checked(TIFFSetField(tiff, TIFFTAG_COMPRESSION, compression) == 1);
    if (compression != COMPRESSION_NONE)
        TIFFSetField(tiff, TIFFTAG_PREDICTOR, bitmap.bitsPerComponent == 32 ? PREDICTOR_FLOATINGPOINT : PREDICTOR_HORIZONTAL);
}

void setFields(TIFF *tiff, const WriteRequest &request, std::uint16_t compression)
{
    const GflBitmap &bitmap = request.bitmap;
    setForm(tiff, bitmap, bitmap.height, compression);
    if (bitmap.xDpi && bitmap.yDpi) {
        TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
        TIFFSetField(tiff, TIFFTAG_XRESOLUTION, double(bitmap.xDpi));
        TIFFSetField(tiff, TIFFTAG_YRESOLUTION, double(bitmap.yDpi));
    }
    if (!request.icc.empty())
        TIFFSetField(tiff, TIFFTAG_ICCPROFILE, std::uint32_t(request.icc.size()), request.icc.data());
    if (!request.iptc.empty()) // this library counts it in bytes
        TIFFSetField(tiff, TIFFTAG_RICHTIFFIPTC, std::uint32_t(request.iptc.size()), request.iptc.data());
}

void setTexts(TIFF *tiff, const Bytes &exif)
{
    ByteReader stream(exif);
    for (const IfdEntry &entry : firstDirectory(stream)) {
        stream.seek(entry.valueOffset);
        if (entry.tag == TIFFTAG_ORIENTATION && entry.type == TIFF_SHORT) {
            TIFFSetField(tiff, TIFFTAG_ORIENTATION, stream.u16() & 0xFF); // one of 1..8, else refused
        } else if (entry.type == TIFF_ASCII && std::count(std::begin(kTiffTexts), std::end(kTiffTexts), entry.tag)) {
            const Bytes value = stream.bytes(entry.valueBytes);
            TIFFSetField(tiff, entry.tag, std::string(value.begin(), value.end()).c_str());
        }
    }
}

// A file in memory to which the library only appends.

tmsize_t onAppend(thandle_t handle, void *source, tmsize_t bytes)
{
    auto *target = static_cast<Bytes *>(handle);
    const auto *from = static_cast<const std::uint8_t *>(source);
    try {
        target->insert(target->end(), from, from + bytes);
        return bytes;
    } catch (const std::exception &) { // must not reach the library
        return -1;
    }
}

tmsize_t onNoReadBack(thandle_t, void *, tmsize_t)
{
    return -1;
}

toff_t onAppendSize(thandle_t handle)
{
    constexpr toff_t kHeader = 8; // has been taken out; a strip at 0 would be taken for a missing one
    return kHeader + static_cast<Bytes *>(handle)->size();
}

toff_t onAppendSeek(thandle_t handle, toff_t, int)
{
    return onAppendSize(handle);
}

/// Packs rows as the library packs a strip, into memory, so that files are as if it had packed them itself.
Bytes packedStrip(const GflBitmap &bitmap, std::uint16_t compression, bool bigEndian, int firstRow, int rows)
{
    Bytes packed;
    const TiffPointer tiff =
        openTiff(bigEndian ? "wbm" : "wlm", &packed, onNoReadBack, onAppend, onAppendSeek, onAppendSize, quietTiffOptions());
    checked(tiff != nullptr);
    setForm(tiff.get(), bitmap, rows, compression);
    TIFFSetField(tiff.get(), TIFFTAG_ROWSPERSTRIP, std::uint32_t(rows));
    packed.clear(); // the header

    // The library modifies what it packs, so it gets a copy of the strip.
    const std::size_t rowBytes = std::size_t(bitmap.width) * bitmap.bytesPerPixel;
    Bytes strip(rowBytes * std::size_t(rows));
    for (int i = 0; i < rows; ++i)
        std::memcpy(strip.data() + rowBytes * std::size_t(i), rowOf(bitmap, firstRow + i), rowBytes);
    const auto bytes = static_cast<tmsize_t>(strip.size());
    checked(TIFFWriteEncodedStrip(tiff.get(), 0, strip.data(), bytes) == bytes);
    return std::exchange(packed, {}); // the library appends a directory when it closes the file
}

void writeStrip(TIFF *tiff, std::uint32_t index, const void *source, std::size_t count)
{
    const auto bytes = static_cast<tmsize_t>(count);
    checked(TIFFWriteRawStrip(tiff, index, const_cast<void *>(source), bytes) == bytes);
}

void writeStrips(TIFF *tiff, const WriteRequest &request, std::uint16_t compression, bool bigEndian)
{
    const GflBitmap &bitmap = request.bitmap;
    const std::size_t rowBytes = std::size_t(bitmap.width) * bitmap.bytesPerPixel;
    constexpr std::size_t kStripBytes = 256 * 1024;
    const int rowsPerStrip = int(std::clamp<std::size_t>(kStripBytes / rowBytes, 1, std::size_t(bitmap.height)));
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, std::uint32_t(rowsPerStrip));

    std::uint32_t index = 0;
    if (compression != COMPRESSION_NONE) {
        shareBandsInOrder((bitmap.height - 1) / rowsPerStrip + 1, request.threads,
                          [&](int strip) {
                              const int y = strip * rowsPerStrip;
                              return packedStrip(bitmap, compression, bigEndian, y, std::min(rowsPerStrip, bitmap.height - y));
                          },
                          [&](const Bytes &packed) { writeStrip(tiff, index++, packed.data(), packed.size()); });
        return;
    }

    const bool swap = bigEndian && bitmap.bitsPerComponent > 8;
    const bool direct = !swap && bitmap.bytesPerLine == rowBytes;
    Bytes strip(direct ? 0 : rowBytes * std::size_t(rowsPerStrip));
    for (int y = 0; y < bitmap.height; y += rowsPerStrip, ++index) {
        const int rows = std::min(rowsPerStrip, bitmap.height - y);
        for (int i = 0; i < (direct ? 0 : rows); ++i) {
            std::uint8_t *target = strip.data() + rowBytes * std::size_t(i);
            if (swap)
                swapSamples(rowOf(bitmap, y + i), target, rowBytes / (bitmap.bitsPerComponent / 8), bitmap.bitsPerComponent);
            else
                std::memcpy(target, rowOf(bitmap, y + i), rowBytes);
        }
        writeStrip(tiff, index, direct ? rowOf(bitmap, y) : strip.data(), rowBytes * std::size_t(rows));
    }
}

/// The bytes written so far.
class WrittenBytes final : public ByteSource
{
public:
    explicit WrittenBytes(OutputFile &output) : file(output), bytesWritten(output.size()) {}
    std::uint64_t size() const noexcept override { return bytesWritten; }
    std::size_t readAt(std::uint64_t offset, void *target, std::size_t bytes) const noexcept override
    {
        return file.trySeek(offset) ? file.readBack(target, bytes) : 0;
    }

private:
    OutputFile &file;
    std::uint64_t bytesWritten;
};

/// Adds the entries of the EXIF block's first directory (camera, author, pointers to its other directories) to the file's
/// directory. The file begins with the unchanged block, so that every offset in it stays valid, including those in a maker note.
void mergeDirectories(OutputFile &file, const Bytes &exif)
{
    const WrittenBytes written(file);
    const std::uint64_t fileBytes = written.size();
    ByteReader own(written), carried(exif);
    std::vector<IfdEntry> entries = firstDirectory(own);
    checked(!entries.empty());
    const auto has = [&](unsigned tag) {
        return std::any_of(entries.begin(), entries.end(), [&](const IfdEntry &entry) { return entry.tag == tag; });
    };
    const bool ownResolution = has(TIFFTAG_XRESOLUTION);
    for (const IfdEntry &entry : firstDirectory(carried)) {
        const bool resolution = entry.tag == TIFFTAG_RESOLUTIONUNIT && ownResolution;
        if (!isStructuralTag(entry.tag) && !resolution && !has(entry.tag))
            entries.push_back(entry);
    }
    std::stable_sort(entries.begin(), entries.end(), [](const IfdEntry &a, const IfdEntry &b) { return a.tag < b.tag; });

    const std::uint64_t start = (fileBytes + 1) / 2 * 2;
    if (start + 2 + 12 * entries.size() + 4 > std::numeric_limits<std::uint32_t>::max())
        throw Failure{GFL_ERROR_FILE_WRITE};
    const bool bigEndian = carried.order() == ByteOrder::Big;
    const auto put = [&](Bytes &bytes, std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i)
            bytes.push_back(std::uint8_t(value >> 8 * (bigEndian ? count - 1 - i : i)));
    };
    Bytes directory(std::size_t(start - fileBytes), 0);
    put(directory, std::uint32_t(entries.size()), 2);
    for (const IfdEntry &entry : entries)
        directory.insert(directory.end(), entry.raw, entry.raw + sizeof entry.raw);
    put(directory, 0, 4); // no further directory
    Bytes pointer;
    put(pointer, std::uint32_t(start), 4);
    checked(file.trySeek(fileBytes));
    file.write(directory);
    checked(file.trySeek(4));
    file.write(pointer);
    checked(file.trySeek(start + 2));
}

} // namespace

void writeTiff(const WriteRequest &request)
{
    const GflBitmap &bitmap = request.bitmap;
    std::uint16_t compression = COMPRESSION_NONE;
    switch (request.compression == GFL_DEFAULT ? request.packing.tiff : request.compression) {
    case GFL_DEFAULT:
    case 0:
        break;
    case 2:
        if (request.lzw)
            compression = COMPRESSION_LZW;
        break;
    case 4:
        compression = COMPRESSION_ADOBE_DEFLATE;
        break;
    default:
        throw Failure{GFL_ERROR_BAD_PARAMETERS};
    }

    // Below the range of 32-bit offsets, to leave room for directories and metadata. The large form can't hold an EXIF block.
    constexpr std::uint64_t kLargestClassic = std::uint64_t(4000) << 20;
    const bool large = std::uint64_t(bitmap.width) * bitmap.bytesPerPixel * unsigned(bitmap.height) > kLargestClassic;
    const bool exif = !request.exif.empty() && !large && isExifBlock(request.exif.data(), request.exif.size());
    const bool bigEndian = exif && request.exif[0] == 'M';

    {
        const char *mode = large ? "wl8m" : bigEndian ? "wbm" : "wlm";
        const TiffPointer tiff = openTiff(mode, &request.file, onReadBack, onWrite, onWriteSeek, onWriteSize, quietTiffOptions());
        checked(tiff != nullptr);
        if (exif) {
            constexpr std::size_t kHeader = 8;
            checked(request.file.trySeek(kHeader));
            request.file.write(request.exif.data() + kHeader, request.exif.size() - kHeader);
            if (request.exif.size() % 2)
                request.file.write("", 1);
        }
        setFields(tiff.get(), request, compression);
        if (large)
            setTexts(tiff.get(), request.exif);
        writeStrips(tiff.get(), request, compression, bigEndian);
        checked(TIFFWriteDirectory(tiff.get()) == 1 && TIFFFlush(tiff.get()) == 1);
    }
    if (exif)
        mergeDirectories(request.file, request.exif);
}

} // namespace gfl
