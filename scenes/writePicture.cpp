#include "writePicture.h"

#include <algorithm>
#include <cstring>
#include <fstream>
#include <memory>
#include <stdexcept>

#ifdef NIMBRA_HEIF
#    include <libheif/heif.h>
#endif
#ifdef NIMBRA_WEBP
#    include <webp/encode.h>
#    include <webp/mux.h>
#endif
#ifdef NIMBRA_JPEG_XL
#    include <jxl/encode.h>
#endif

namespace {

using Bytes = std::vector<std::uint8_t>;

void require(bool holds, const char *what)
{
    if (!holds)
        throw std::runtime_error(what);
}

void writeFile(const std::string &path, const void *bytes, std::size_t count)
{
    std::ofstream(path, std::ios::binary).write(static_cast<const char *>(bytes), std::streamsize(count));
}

bool isOnItsSide(const PictureForm &form)
{
    return form.orientation >= 5;
}
int storedWidth(const PictureForm &form)
{
    return isOnItsSide(form) ? form.height : form.width;
}
int storedHeight(const PictureForm &form)
{
    return isOnItsSide(form) ? form.width : form.height;
}

/// The sample that is stored at a place, before the container's orientation.
double storedSample(const PictureForm &form, int x, int y, int component)
{
    const int right = storedWidth(form) - 1 - x, bottom = storedHeight(form) - 1 - y;
    const int places[8][2] = {{x, y}, {right, y}, {right, bottom}, {x, bottom}, {y, x}, {bottom, x}, {bottom, right}, {y, right}};
    const int *const shown = places[form.orientation - 1];
    const double sample = drawnSample(form, shown[0], shown[1], component);
    return form.premultiplied && component < 3 ? sample * drawnSample(form, shown[0], shown[1], 3) : sample;
}

/// The stored samples, row by row.
template<typename Sample>
std::vector<Sample> storedSamples(const PictureForm &form, double full)
{
    std::vector<Sample> samples;
    for (int y = 0; y < storedHeight(form); ++y)
        for (int x = 0; x < storedWidth(form); ++x)
            for (int c = 0; c < form.components; ++c)
                samples.push_back(Sample(storedSample(form, x, y, c) * full + (full > 1 ? 0.5 : 0)));
    return samples;
}

#ifdef NIMBRA_HEIF
void check(const heif_error &error)
{
    require(error.code == heif_error_Ok, error.message);
}

void writeHeif(const std::string &path, const PictureForm &form, heif_compression_format compression)
{
    const std::unique_ptr<heif_context, void (*)(heif_context *)> context(heif_context_alloc(), heif_context_free);
    heif_encoder *encoder = nullptr;
    check(heif_context_get_encoder_for_format(context.get(), compression, &encoder));
    const std::unique_ptr<heif_encoder, void (*)(heif_encoder *)> encoderOwner(encoder, heif_encoder_release);
    check(heif_encoder_set_lossy_quality(encoder, 98));
    if (form.components != 1) // some versions know only this form of deep AV1
        check(heif_encoder_set_parameter_string(encoder, "chroma",
                                                compression == heif_compression_AV1 && form.bits > 8 ? "422" : "444"));

    const int width = storedWidth(form), height = storedHeight(form);
    const bool grey = form.components == 1, alpha = form.components == 4, deep = form.bits > 8;
    const heif_chroma chroma = grey   ? heif_chroma_monochrome
                               : deep ? alpha ? heif_chroma_interleaved_RRGGBBAA_LE : heif_chroma_interleaved_RRGGBB_LE
                                      : (alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB);
    const heif_channel channel = grey ? heif_channel_Y : heif_channel_interleaved;
    heif_image *image = nullptr;
    check(heif_image_create(width, height, grey ? heif_colorspace_monochrome : heif_colorspace_RGB, chroma, &image));
    const std::unique_ptr<const heif_image, void (*)(const heif_image *)> imageOwner(image, heif_image_release);
    check(heif_image_add_plane(image, channel, width, height, form.bits));
    int stride = 0;
    std::uint8_t *const plane = heif_image_get_plane(image, channel, &stride);
    const std::size_t row = std::size_t(width * form.components) * (deep ? 2 : 1);
    const double full = (1 << form.bits) - 1;
    const auto narrow = storedSamples<std::uint8_t>(form, deep ? 255 : full);
    const auto wide = storedSamples<std::uint16_t>(form, full);
    for (int y = 0; y < height; ++y)
        std::memcpy(plane + std::size_t(y) * std::size_t(stride),
                    (deep ? reinterpret_cast<const std::uint8_t *>(wide.data()) : narrow.data()) + std::size_t(y) * row, row);
    heif_image_set_premultiplied_alpha(image, form.premultiplied);
    if (!form.icc.empty())
        check(heif_image_set_raw_color_profile(image, "prof", form.icc.data(), form.icc.size()));

    const std::unique_ptr<heif_encoding_options, void (*)(heif_encoding_options *)> options(heif_encoding_options_alloc(),
                                                                                            heif_encoding_options_free);
    options->macOS_compatibility_workaround_no_nclx_profile = 0;
    options->image_orientation = heif_orientation(form.orientation);
    heif_color_profile_nclx *nclx = nullptr;
    if (form.primaries != 0) {
        nclx = heif_nclx_color_profile_alloc();
        check(heif_nclx_color_profile_set_color_primaries(nclx, std::uint16_t(form.primaries)));
        check(heif_nclx_color_profile_set_transfer_characteristics(nclx, std::uint16_t(form.transfer)));
        check(heif_image_set_nclx_color_profile(image, nclx));
    }
    heif_image_handle *handle = nullptr;
    check(heif_context_encode_image(context.get(), image, encoder, options.get(), &handle));
    const std::unique_ptr<const heif_image_handle, void (*)(const heif_image_handle *)> handleOwner(handle,
                                                                                                    heif_image_handle_release);
    if (nclx)
        heif_nclx_color_profile_free(nclx);
    if (!form.exif.empty())
        check(heif_context_add_exif_metadata(context.get(), handle, form.exif.data(), int(form.exif.size())));
    if (!form.xmp.empty())
        check(heif_context_add_XMP_metadata(context.get(), handle, form.xmp.data(), int(form.xmp.size())));
    if (form.secondPicture)
        check(heif_context_encode_image(context.get(), image, encoder, options.get(), nullptr));
    check(heif_context_write_to_file(context.get(), path.c_str()));
}
#endif

#ifdef NIMBRA_WEBP
void writeWebp(const std::string &path, const PictureForm &form)
{
    const auto samples = storedSamples<std::uint8_t>(form, 255);
    std::uint8_t *packed = nullptr;
    const int stride = form.width * form.components;
    const std::size_t count = form.components == 4
                                  ? WebPEncodeLosslessRGBA(samples.data(), form.width, form.height, stride, &packed)
                                  : WebPEncodeLosslessRGB(samples.data(), form.width, form.height, stride, &packed);
    const std::unique_ptr<std::uint8_t, void (*)(void *)> owner(packed, WebPFree);
    require(count > 0, "WebP");
    const std::unique_ptr<WebPMux, void (*)(WebPMux *)> file(WebPMuxNew(), WebPMuxDelete);
    const WebPData picture{packed, count};
    if (form.animated) {
        WebPMuxFrameInfo frame{};
        frame.bitstream = picture;
        frame.duration = 100;
        frame.id = WEBP_CHUNK_ANMF;
        const WebPMuxAnimParams parameters{0, 0};
        require(WebPMuxSetAnimationParams(file.get(), &parameters) == WEBP_MUX_OK, "WebP animation");
        for (int i = 0; i < 2; ++i)
            require(WebPMuxPushFrame(file.get(), &frame, 1) == WEBP_MUX_OK, "WebP frame");
    } else {
        require(WebPMuxSetImage(file.get(), &picture, 1) == WEBP_MUX_OK, "WebP image");
    }
    const auto put = [&](const char *name, const void *bytes, std::size_t size) {
        const WebPData data{static_cast<const std::uint8_t *>(bytes), size};
        require(size == 0 || WebPMuxSetChunk(file.get(), name, &data, 1) == WEBP_MUX_OK, name);
    };
    put("ICCP", form.icc.data(), form.icc.size());
    put("EXIF", form.exif.data(), form.exif.size());
    put("XMP ", form.xmp.data(), form.xmp.size());
    WebPData whole{};
    require(WebPMuxAssemble(file.get(), &whole) == WEBP_MUX_OK, "WebP file");
    writeFile(path, whole.bytes, whole.size);
    WebPDataClear(&whole);
}
#endif

#ifdef NIMBRA_JPEG_XL
void check(JxlEncoderStatus status)
{
    require(status == JXL_ENC_SUCCESS, "JPEG XL");
}

void writeJpegXl(const std::string &path, const PictureForm &form)
{
    const std::unique_ptr<JxlEncoder, void (*)(JxlEncoder *)> encoder(JxlEncoderCreate(nullptr), JxlEncoderDestroy);
    JxlEncoder *const jxl = encoder.get();
    check(JxlEncoderUseContainer(jxl, JXL_TRUE));
    check(JxlEncoderUseBoxes(jxl));
    const bool grey = form.components == 1, alpha = form.components == 4, real = form.bits == 32;
    JxlBasicInfo info;
    JxlEncoderInitBasicInfo(&info);
    info.xsize = std::uint32_t(storedWidth(form));
    info.ysize = std::uint32_t(storedHeight(form));
    info.bits_per_sample = std::uint32_t(form.bits);
    info.exponent_bits_per_sample = real ? 8 : 0;
    info.num_color_channels = grey ? 1 : 3;
    info.alpha_bits = alpha ? info.bits_per_sample : 0;
    info.alpha_exponent_bits = alpha ? info.exponent_bits_per_sample : 0;
    info.num_extra_channels = (alpha ? 1 : 0) + (form.inks ? 1 : 0);
    info.orientation = JxlOrientation(form.orientation);
    info.uses_original_profile = JXL_TRUE;
    info.have_animation = form.animated;
    info.animation.tps_numerator = 10;
    info.animation.tps_denominator = 1;
    check(JxlEncoderSetCodestreamLevel(jxl, 10));
    check(JxlEncoderSetBasicInfo(jxl, &info));
    if (form.inks) {
        JxlExtraChannelInfo black;
        JxlEncoderInitExtraChannelInfo(JXL_CHANNEL_BLACK, &black);
        check(JxlEncoderSetExtraChannelInfo(jxl, 0, &black));
    }
    if (!form.icc.empty()) {
        check(JxlEncoderSetICCProfile(jxl, form.icc.data(), form.icc.size()));
    } else {
        JxlColorEncoding colours;
        JxlColorEncodingSetToSRGB(&colours, grey);
        check(JxlEncoderSetColorEncoding(jxl, &colours));
    }
    JxlEncoderFrameSettings *const settings = JxlEncoderFrameSettingsCreate(jxl, nullptr);
    check(JxlEncoderSetFrameLossless(settings, JXL_TRUE));
    if (!form.exif.empty()) {
        Bytes box(4);
        box.insert(box.end(), form.exif.begin(), form.exif.end());
        check(JxlEncoderAddBox(jxl, "Exif", box.data(), box.size(), /*compress_box=*/JXL_TRUE));
    }
    if (!form.xmp.empty())
        check(JxlEncoderAddBox(jxl, "xml ", reinterpret_cast<const std::uint8_t *>(form.xmp.data()), form.xmp.size(), JXL_FALSE));
    const Bytes none;
    if (form.secondPicture)
        check(JxlEncoderAddBox(jxl, "jhgm", reinterpret_cast<const std::uint8_t *>("map"), 3, JXL_FALSE));
    JxlEncoderCloseBoxes(jxl);
    const JxlPixelFormat format{std::uint32_t(form.components),
                                real            ? JXL_TYPE_FLOAT
                                : form.bits > 8 ? JXL_TYPE_UINT16
                                                : JXL_TYPE_UINT8,
                                JXL_NATIVE_ENDIAN, 0};
    const auto narrow = storedSamples<std::uint8_t>(form, 255);
    const auto wide = storedSamples<std::uint16_t>(form, 65535);
    const auto floats = storedSamples<float>(form, 1);
    const void *const samples = real            ? static_cast<const void *>(floats.data())
                                : form.bits > 8 ? wide.data()
                                                : static_cast<const void *>(narrow.data());
    const std::size_t bytes = narrow.size() * (real ? 4 : form.bits > 8 ? 2 : 1);
    for (int frame = 0; frame < (form.animated ? 2 : 1); ++frame) {
        JxlFrameHeader header;
        JxlEncoderInitFrameHeader(&header);
        header.duration = 1;
        if (form.animated)
            check(JxlEncoderSetFrameHeader(settings, &header));
        check(JxlEncoderAddImageFrame(settings, &format, samples, bytes));
        if (form.inks) {
            const JxlPixelFormat plane{1, JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0};
            check(JxlEncoderSetExtraChannelBuffer(settings, &plane, narrow.data(), narrow.size() / 3, 0));
        }
    }
    JxlEncoderCloseInput(jxl);
    Bytes file(1 << 20);
    std::uint8_t *next = file.data();
    std::size_t left = file.size();
    check(JxlEncoderProcessOutput(jxl, &next, &left));
    writeFile(path, file.data(), file.size() - left);
}
#endif

} // namespace

double drawnSample(const PictureForm &form, int x, int y, int component)
{
    const double right = double(x) / std::max(form.width - 1, 1), down = double(y) / std::max(form.height - 1, 1);
    switch (form.components == 1 ? 4 : component) {
    case 0:
        return 0.2 + 0.6 * right;
    case 1:
        return 0.2 + 0.6 * down;
    case 2:
        return 0.7 - 0.3 * right - 0.2 * down;
    case 3:
        return 0.9 - 0.5 * right * down;
    default:
        return 0.1 + 0.5 * right + 0.3 * down;
    }
}

std::vector<std::string> writableSuffixes()
{
    std::vector<std::string> suffixes;
#ifdef NIMBRA_HEIF
    if (heif_have_encoder_for_format(heif_compression_HEVC))
        suffixes.push_back("heic");
    if (heif_have_encoder_for_format(heif_compression_AV1))
        suffixes.push_back("avif");
#endif
#ifdef NIMBRA_WEBP
    suffixes.push_back("webp");
#endif
#ifdef NIMBRA_JPEG_XL
    suffixes.push_back("jxl");
#endif
    return suffixes;
}

void writePicture(const std::string &path, const PictureForm &form)
{
    const std::string suffix = path.substr(path.rfind('.') + 1);
#ifdef NIMBRA_HEIF
    if (suffix == "heic" || suffix == "avif")
        return writeHeif(path, form, suffix == "heic" ? heif_compression_HEVC : heif_compression_AV1);
#endif
#ifdef NIMBRA_WEBP
    if (suffix == "webp")
        return writeWebp(path, form);
#endif
#ifdef NIMBRA_JPEG_XL
    if (suffix == "jxl")
        return writeJpegXl(path, form);
#endif
    throw std::runtime_error("no encoder for " + path);
}

std::vector<std::uint8_t> exifBlock(int orientation, const std::string &description)
{
    Bytes block{'M', 'M', 0, 42, 0, 0, 0, 8, 0, 2};
    const auto put = [&](unsigned value, int bytes) {
        while (bytes-- > 0)
            block.push_back(std::uint8_t(value >> 8 * bytes));
    };
    constexpr int kAfterDirectory = 10 + 2 * 12 + 4;
    put(0x010E, 2); // description
    put(2, 2);
    put(unsigned(description.size()) + 1, 4);
    put(kAfterDirectory, 4);
    put(0x0112, 2); // orientation
    put(3, 2);
    put(1, 4);
    put(unsigned(orientation), 2);
    put(0, 2);
    put(0, 4);
    block.insert(block.end(), description.begin(), description.end());
    block.push_back(0);
    return block;
}
