#include <memory>

#include <webp/decode.h>
#include <webp/demux.h>

#include "RegularFile.h"
#include "pictureDecoder.h"

namespace {

using Cause = PhotoProblem::Cause;

Bytes chunk(const WebPDemuxer *file, const char *name)
{
    WebPChunkIterator found;
    Bytes bytes;
    if (WebPDemuxGetChunk(file, name, 1, &found))
        bytes.assign(found.chunk.bytes, found.chunk.bytes + found.chunk.size);
    WebPDemuxReleaseChunkIterator(&found);
    return bytes;
}

} // namespace

PhotoProblem decodeWebp(const RegularFile &file, Wanted wanted, std::uint64_t mostBytes, DecodedPicture &picture)
{
    Bytes bytes;
    if (PhotoProblem problem = readWhole(file, mostBytes, bytes))
        return problem;
    const WebPData data{bytes.data(), bytes.size()};
    const std::unique_ptr<WebPDemuxer, decltype(&WebPDemuxDelete)> container(WebPDemux(&data), WebPDemuxDelete);
    WebPDecoderConfig config;
    if (!container || !WebPInitDecoderConfig(&config) ||
        WebPGetFeatures(bytes.data(), bytes.size(), &config.input) != VP8_STATUS_OK)
        return {Cause::Damaged, {}};
    if (config.input.has_animation)
        return {Cause::Animation, {}};
    const bool alpha = config.input.has_alpha;
    picture.width = config.input.width;
    picture.height = config.input.height;
    picture.components = alpha ? 4 : 3;
    picture.bits = 8;
    picture.upright = false;
    constexpr std::uint64_t kWorkingBytes = 4; // a plane of alpha, or the indices of a palette
    if (PhotoProblem problem = checkSize(picture, file, kWorkingBytes, mostBytes))
        return problem;
    const Bytes exif = chunk(container.get(), "EXIF");
    picture.exif = exifIn(exif.data(), exif.size());
    picture.icc = chunk(container.get(), "ICCP");
    picture.xmp = chunk(container.get(), "XMP ");
    if (wanted != Wanted::Pixels)
        return {};

    const int stride = (picture.width * picture.components + 3) / 4 * 4;
    const std::size_t size = std::size_t(stride) * std::size_t(picture.height);
    const std::shared_ptr<std::uint8_t[]> samples(new std::uint8_t[size]);
    config.options.use_threads = 1;
    config.output.colorspace = alpha ? MODE_RGBA : MODE_RGB;
    config.output.is_external_memory = 1;
    config.output.u.RGBA = {samples.get(), stride, size};
    switch (WebPDecode(bytes.data(), bytes.size(), &config)) {
    case VP8_STATUS_OK:
        break;
    case VP8_STATUS_OUT_OF_MEMORY:
        return {Cause::NoMemory, {}};
    default:
        return {Cause::Damaged, {}};
    }
    picture.pixels = {picture.width, picture.height, picture.components, picture.bits, stride, samples.get(), samples};
    return {};
}

std::string webpLibrary()
{
    const int version = WebPGetDecoderVersion();
    return "libwebp " + std::to_string(version >> 16) + '.' + std::to_string(version >> 8 & 0xFF) + '.' +
           std::to_string(version & 0xFF);
}
