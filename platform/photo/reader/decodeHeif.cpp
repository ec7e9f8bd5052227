#include <algorithm>
#include <cstring>
#include <memory>
#include <vector>

#include <libheif/heif.h>

#include "RegularFile.h"
#include "cicpProfile.h"
#include "pictureDecoder.h"

namespace {

using Cause = PhotoProblem::Cause;
template<typename Type, void (*release)(Type *)>
struct Release
{
    void operator()(Type *object) const { release(object); }
};
using Context = std::unique_ptr<heif_context, Release<heif_context, heif_context_free>>;
using Handle = std::unique_ptr<const heif_image_handle, Release<const heif_image_handle, heif_image_handle_release>>;
using Options = std::unique_ptr<heif_decoding_options, Release<heif_decoding_options, heif_decoding_options_free>>;

PhotoProblem problemOf(const heif_error &error)
{
    switch (error.code) {
    case heif_error_Ok:
        return {};
    case heif_error_Memory_allocation_error:
        return {Cause::NoMemory, {}};
    case heif_error_Unsupported_filetype:
        return {Cause::NoDecoder, {}};
    case heif_error_Unsupported_feature:
        return {error.subcode == heif_suberror_Unsupported_codec ? Cause::NoDecoder : Cause::PixelForm, {}};
    default:
        return {Cause::Damaged, {}};
    }
}

/// The library's view of an open file.
struct Source
{
    explicit Source(const RegularFile &source) : file(source) {}

    static int64_t tell(void *self) { return static_cast<Source *>(self)->position; }
    static int read(void *target, size_t count, void *self)
    {
        auto &source = *static_cast<Source *>(self);
        const std::size_t got = source.file.readAt(std::uint64_t(source.position), target, count);
        source.position += std::int64_t(got);
        return got == count ? 0 : 1;
    }
    static int seek(int64_t position, void *self)
    {
        static_cast<Source *>(self)->position = position;
        return position >= 0 ? 0 : 1;
    }
    static heif_reader_grow_status wait(int64_t size, void *self)
    {
        const auto &source = *static_cast<Source *>(self);
        return size >= 0 && std::uint64_t(size) <= source.file.size() ? heif_reader_grow_status_size_reached
                                                                      : heif_reader_grow_status_size_beyond_eof;
    }
    /// Of the first version; later ones have more.
    static heif_reader calls()
    {
        heif_reader reader{};
        reader.reader_api_version = 1;
        reader.get_position = tell;
        reader.read = read;
        reader.seek = seek;
        reader.wait_for_file_size = wait;
        return reader;
    }

    const RegularFile &file;
    std::int64_t position = 0;
};

/// The next box and what it holds; throws EndOfBytes after the last one.
struct Box
{
    explicit Box(ByteReader &reader) : Box{reader, reader.u32(), reader.bytes(4)} {} // braces: read from left to right

    bool is(const char *wanted) const { return std::memcmp(type.data(), wanted, 4) == 0; }

    Bytes type;
    ByteReader content;

private:
    Box(ByteReader &reader, std::uint32_t size, Bytes name)
        : type(std::move(name)), content(reader.stretch(size == 0   ? reader.remaining()
                                                        : size == 1 ? longSize(reader.u64())
                                                                    : rest(size, 8)))
    {
    }
    static std::uint64_t rest(std::uint64_t size, std::uint64_t head) { return size >= head ? size - head : throw EndOfBytes{}; }
    static std::uint64_t longSize(std::uint64_t size) { return rest(size, 16); }
};

/// Whether every coded picture in the file is without colour: the library tells it only of what it has decoded.
bool isMonochrome(const RegularFile &file)
{
    bool grey = false;
    const auto look = [&](auto &self, ByteReader &boxes) -> void {
        try {
            for (;;) {
                Box box(boxes);
                if (box.is("meta"))
                    box.content.skip(4);
                if (box.is("meta") || box.is("iprp") || box.is("ipco")) {
                    self(self, box.content);
                } else if (const bool av1 = box.is("av1C"); av1 || box.is("hvcC")) {
                    box.content.skip(av1 ? 2 : 16);
                    const int form = box.content.u8();
                    grey = av1 ? (form & 0x10) != 0 : (form & 3) == 0;
                    if (!grey)
                        return;
                }
                if (box.is("meta"))
                    return;
            }
        } catch (const EndOfBytes &) {
        }
    };
    ByteReader whole(file);
    look(look, whole);
    return grey;
}

Bytes metadataBlock(const heif_image_handle *image, heif_item_id id)
{
    Bytes block(heif_image_handle_get_metadata_size(image, id));
    if (block.empty() || heif_image_handle_get_metadata(image, id, block.data()).code != heif_error_Ok)
        block.clear();
    return block;
}

void readMetadata(const heif_image_handle *image, DecodedPicture &picture)
{
    std::vector<heif_item_id> ids(std::size_t(std::max(0, heif_image_handle_get_number_of_metadata_blocks(image, nullptr))));
    ids.resize(std::size_t(heif_image_handle_get_list_of_metadata_block_IDs(image, nullptr, ids.data(), int(ids.size()))));
    for (const heif_item_id id : ids) {
        const std::string type = heif_image_handle_get_metadata_type(image, id);
        if (type == "Exif" && picture.exif.empty()) {
            const Bytes block = metadataBlock(image, id);
            picture.exif = exifIn(block.data(), block.size());
        } else if (type == "mime" && picture.xmp.empty() &&
                   std::string(heif_image_handle_get_metadata_content_type(image, id)) == "application/rdf+xml") {
            picture.xmp = metadataBlock(image, id);
        }
    }

    const heif_color_profile_type form = heif_image_handle_get_color_profile_type(image);
    if (form == heif_color_profile_type_rICC || form == heif_color_profile_type_prof) {
        picture.icc.resize(heif_image_handle_get_raw_color_profile_size(image));
        if (heif_image_handle_get_raw_color_profile(image, picture.icc.data()).code != heif_error_Ok)
            picture.icc.clear();
    } else if (heif_color_profile_nclx * nclx; heif_image_handle_get_nclx_color_profile(image, &nclx).code == heif_error_Ok) {
        picture.icc = cicpProfile({nclx->color_primaries,
                                   nclx->transfer_characteristics,
                                   {nclx->color_primary_red_x, nclx->color_primary_red_y},
                                   {nclx->color_primary_green_x, nclx->color_primary_green_y},
                                   {nclx->color_primary_blue_x, nclx->color_primary_blue_y},
                                   {nclx->color_primary_white_x, nclx->color_primary_white_y}});
        heif_nclx_color_profile_free(nclx);
    }
}

/// Samples of `bits` become samples of 16 bits.
void widen(std::uint8_t *plane, int stride, int width, int height, int bits)
{
    const unsigned full = (1u << bits) - 1;
    for (int y = 0; y < height; ++y) {
        auto *const row = reinterpret_cast<std::uint16_t *>(plane + std::size_t(y) * std::size_t(stride));
        for (int x = 0; x < width; ++x)
            row[x] = std::uint16_t((std::min<unsigned>(row[x], full) * 65535u + full / 2) / full);
    }
}

/// Colours that were multiplied by alpha are divided by it.
template<typename Sample>
void divideByAlpha(std::uint8_t *plane, int stride, int width, int height)
{
    constexpr unsigned kFull = Sample(-1);
    for (int y = 0; y < height; ++y) {
        auto *pixel = reinterpret_cast<Sample *>(plane + std::size_t(y) * std::size_t(stride));
        for (int x = 0; x < width; ++x, pixel += 4)
            for (int c = 0; c < 3 && pixel[3] != 0; ++c)
                pixel[c] = Sample(std::min(kFull, (pixel[c] * kFull + pixel[3] / 2u) / pixel[3]));
    }
}

/// Pixels of three equal samples become pixels of one.
template<typename Sample>
void keepFirstOfThree(std::uint8_t *plane, int stride, int width, int height)
{
    for (int y = 0; y < height; ++y) {
        auto *const row = reinterpret_cast<Sample *>(plane + std::size_t(y) * std::size_t(stride));
        for (int x = 0; x < width; ++x)
            row[x] = row[3 * x];
    }
}

heif_chroma rgbChroma(bool deep, bool alpha)
{
    constexpr bool kLittle = __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__;
    if (!deep)
        return alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
    if (alpha)
        return kLittle ? heif_chroma_interleaved_RRGGBBAA_LE : heif_chroma_interleaved_RRGGBBAA_BE;
    return kLittle ? heif_chroma_interleaved_RRGGBB_LE : heif_chroma_interleaved_RRGGBB_BE;
}

PhotoProblem decode(const heif_image_handle *image, heif_colorspace space, heif_chroma chroma, heif_image *&decoded)
{
    const Options options(heif_decoding_options_alloc());
    options->strict_decoding = 1; // else a damaged file is filled up
    return problemOf(heif_decode_image(image, &decoded, space, chroma, options.get()));
}

} // namespace

PhotoProblem decodeHeif(const RegularFile &file, Wanted wanted, std::uint64_t mostBytes, DecodedPicture &picture)
{
    Source source(file);
    const heif_reader calls = Source::calls();
    const Context context(heif_context_alloc());
    if (PhotoProblem problem = problemOf(heif_context_read_from_reader(context.get(), &calls, &source, /*options=*/nullptr)))
        return problem;
    heif_image_handle *primary = nullptr;
    if (PhotoProblem problem = problemOf(heif_context_get_primary_image_handle(context.get(), &primary)))
        return problem;
    const Handle image(primary);
    const bool alpha = heif_image_handle_has_alpha_channel(primary), grey = !alpha && isMonochrome(file);
    const bool deep = heif_image_handle_get_luma_bits_per_pixel(primary) > 8;
    picture.width = heif_image_handle_get_width(primary);
    picture.height = heif_image_handle_get_height(primary);
    picture.components = grey ? 1 : alpha ? 4 : 3;
    picture.bits = deep ? 16 : 8;
    picture.furtherPictures = heif_context_get_number_of_top_level_images(context.get()) > 1 ||
                              heif_image_handle_get_number_of_auxiliary_images(primary, LIBHEIF_AUX_IMAGE_FILTER_OMIT_ALPHA) > 0;
    const std::uint64_t workingBytes = deep ? 8 : 4; // planes of brightness and colour
    if (PhotoProblem problem = checkSize(picture, file, workingBytes, mostBytes))
        return problem;
    if (wanted == Wanted::Metadata)
        readMetadata(primary, picture);
    if (wanted != Wanted::Pixels)
        return {};

    heif_image *decoded = nullptr;
    PhotoProblem problem = grey ? decode(primary, heif_colorspace_monochrome, heif_chroma_monochrome, decoded)
                                : decode(primary, heif_colorspace_RGB, rgbChroma(deep, alpha), decoded);
    // Some versions of the library put tiles together in colour only.
    const bool tiles = grey && problem.cause == Cause::PixelForm;
    if (tiles)
        problem = decode(primary, heif_colorspace_RGB, rgbChroma(deep, alpha), decoded);
    if (problem)
        return problem;
    const std::shared_ptr<const heif_image> memory(decoded, heif_image_release);
    const heif_channel channel = grey && !tiles ? heif_channel_Y : heif_channel_interleaved;
    int stride = 0;
    std::uint8_t *const plane = heif_image_get_plane(decoded, channel, &stride);
    const int bits = heif_image_get_bits_per_pixel_range(decoded, channel);
    if (!plane || bits < 8 || bits > 16 || (bits > 8) != deep || heif_image_get_width(decoded, channel) != picture.width ||
        heif_image_get_height(decoded, channel) != picture.height)
        return {Cause::PixelForm, {}};
    if (tiles)
        (deep ? keepFirstOfThree<std::uint16_t> : keepFirstOfThree<std::uint8_t>)(plane, stride, picture.width, picture.height);
    if (deep && bits < 16)
        widen(plane, stride, picture.width * picture.components, picture.height, bits);
    if (alpha && heif_image_handle_is_premultiplied_alpha(primary))
        (deep ? divideByAlpha<std::uint16_t> : divideByAlpha<std::uint8_t>)(plane, stride, picture.width, picture.height);
    picture.pixels = {
        picture.width, picture.height, picture.components, picture.bits, stride, plane, std::shared_ptr<void>(memory, plane)};
    return {};
}

std::string heifLibrary(bool av1)
{
    const bool decodes = heif_have_decoder_for_format(av1 ? heif_compression_AV1 : heif_compression_HEVC);
    return decodes ? std::string("libheif ") + heif_get_version() : std::string();
}
