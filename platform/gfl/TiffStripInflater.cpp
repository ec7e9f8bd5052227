#include "TiffStripInflater.h"

#include "RegularFile.h"
#include "gflClaims.h"
#include "gflTiffHandle.h"

namespace gfl {
namespace {

/// Undoes the differences, which wrap around.
template<typename Sample>
void sumUp(std::uint8_t *bytes, std::size_t rowBytes, std::size_t pixelSamples)
{
    auto *sample = reinterpret_cast<Sample *>(bytes);
    for (std::size_t i = pixelSamples; i < rowBytes / sizeof(Sample); ++i)
        sample[i] = Sample(sample[i] + sample[i - pixelSamples]);
}

} // namespace

std::unique_ptr<TiffStripInflater> TiffStripInflater::make(TIFF *tiff, const InputFile &file, std::uint64_t rowBytes,
                                                           std::uint32_t rowsPerStrip)
{
    const auto compression = tiffField<std::uint16_t>(tiff, TIFFTAG_COMPRESSION, COMPRESSION_NONE);
    const auto bits = tiffField<std::uint16_t>(tiff, TIFFTAG_BITSPERSAMPLE, 1);
    if ((compression != COMPRESSION_ADOBE_DEFLATE && compression != COMPRESSION_DEFLATE) ||
        (bits != 8 && bits != 16 && bits != 32) || rowBytes > kSmallClaim / rowsPerStrip ||
        tiffField<std::uint16_t>(tiff, TIFFTAG_PREDICTOR, PREDICTOR_NONE) > PREDICTOR_HORIZONTAL ||
        tiffField<std::uint16_t>(tiff, TIFFTAG_FILLORDER, FILLORDER_MSB2LSB) != FILLORDER_MSB2LSB)
        return nullptr;
    return std::unique_ptr<TiffStripInflater>(
        new TiffStripInflater(tiff, file, std::size_t(rowBytes), std::size_t(rowBytes * rowsPerStrip)));
}

TiffStripInflater::TiffStripInflater(TIFF *openTiff, const InputFile &input, std::size_t bytesPerRow, std::size_t stripBytes)
    : tiff(openTiff), file(input), rowBytes(bytesPerRow), bits(tiffField<std::uint16_t>(tiff, TIFFTAG_BITSPERSAMPLE, 1)),
      pixelSamples(tiffField<std::uint16_t>(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == PLANARCONFIG_CONTIG
                       ? tiffField<std::uint16_t>(tiff, TIFFTAG_SAMPLESPERPIXEL, 1)
                       : 1),
      differences(tiffField<std::uint16_t>(tiff, TIFFTAG_PREDICTOR, PREDICTOR_NONE) == PREDICTOR_HORIZONTAL),
      handle(libdeflate_alloc_decompressor()), unpacked(stripBytes)
{
    if (!handle)
        throw Failure{GFL_ERROR_NO_MEMORY};
}

bool TiffStripInflater::unpack(std::uint32_t strip, std::uint32_t rows)
{
    const std::uint64_t offset = TIFFGetStrileOffset(tiff, strip);
    const std::uint64_t count = TIFFGetStrileByteCount(tiff, strip);
    if (offset > file.size() || count > file.size() - offset)
        return false;
    packed.resize(std::size_t(count));
    if (file.readAt(offset, packed.data(), packed.size()) != packed.size())
        return false;
    // Without a place for the number of bytes, the library insists on exactly this many.
    if (libdeflate_zlib_decompress(handle.get(), packed.data(), packed.size(), unpacked.data(), rowBytes * rows, nullptr) !=
        LIBDEFLATE_SUCCESS)
        return false;
    if (TIFFIsByteSwapped(tiff))
        swapSamples(unpacked.data(), unpacked.data(), rowBytes * rows / unsigned(bits / 8), bits);
    if (differences) {
        const auto sum = bits == 8 ? sumUp<std::uint8_t> : bits == 16 ? sumUp<std::uint16_t> : sumUp<std::uint32_t>;
        for (std::uint32_t i = 0; i < rows; ++i)
            sum(unpacked.data() + rowBytes * i, rowBytes, pixelSamples);
    }
    return true;
}

} // namespace gfl
