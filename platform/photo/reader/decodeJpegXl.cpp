#include <algorithm>
#include <climits>
#include <cstring>
#include <memory>

#include <jxl/decode.h>
#include <jxl/resizable_parallel_runner.h>

#include "RegularFile.h"
#include "pictureDecoder.h"

namespace {

using Cause = PhotoProblem::Cause;

struct Release
{
    void operator()(JxlDecoder *decoder) const { JxlDecoderDestroy(decoder); }
    void operator()(void *runner) const { JxlResizableParallelRunnerDestroy(runner); }
};
using Decoder = std::unique_ptr<JxlDecoder, Release>;

// Later versions of the library have dropped an argument of these two.

template<typename... Rest>
JxlDecoderStatus call(JxlDecoderStatus (*get)(const JxlDecoder *, JxlColorProfileTarget, Rest...), const JxlPixelFormat &,
                      const JxlDecoder *decoder, JxlColorProfileTarget target, Rest... rest)
{
    return get(decoder, target, rest...);
}
template<typename... Rest>
JxlDecoderStatus call(JxlDecoderStatus (*get)(const JxlDecoder *, const JxlPixelFormat *, JxlColorProfileTarget, Rest...),
                      const JxlPixelFormat &format, const JxlDecoder *decoder, JxlColorProfileTarget target, Rest... rest)
{
    return get(decoder, &format, target, rest...);
}

/// One pass over a file.
class Pass
{
public:
    Pass(const RegularFile &source, Wanted what, std::uint64_t memory, DecodedPicture &target)
        : file(source), wanted(what), mostBytes(memory), picture(target), runner(JxlResizableParallelRunnerCreate(nullptr)),
          decoder(JxlDecoderCreate(nullptr))
    {
    }

    PhotoProblem run()
    {
        if (PhotoProblem problem = readWhole(file, mostBytes, bytes))
            return problem;
        const int events = JXL_DEC_BASIC_INFO | JXL_DEC_BOX | (wanted == Wanted::Head ? 0 : JXL_DEC_COLOR_ENCODING) |
                           (wanted == Wanted::Pixels ? JXL_DEC_FULL_IMAGE : 0);
        if (!runner || !decoder || JxlDecoderSubscribeEvents(decoder.get(), events) != JXL_DEC_SUCCESS ||
            JxlDecoderSetParallelRunner(decoder.get(), JxlResizableParallelRunner, runner.get()) != JXL_DEC_SUCCESS ||
            JxlDecoderSetUnpremultiplyAlpha(decoder.get(), JXL_TRUE) != JXL_DEC_SUCCESS ||
            JxlDecoderSetDecompressBoxes(decoder.get(), JXL_TRUE) != JXL_DEC_SUCCESS ||
            JxlDecoderSetInput(decoder.get(), bytes.data(), bytes.size()) != JXL_DEC_SUCCESS)
            return {Cause::NoMemory, {}};
        for (;;) {
            const JxlDecoderStatus status = JxlDecoderProcessInput(decoder.get());
            // The library is not informed that there is no more input: it would write to the standard error of the program.
            if (status == JXL_DEC_SUCCESS || status == JXL_DEC_NEED_MORE_INPUT)
                break;
            if (PhotoProblem problem = answer(status))
                return problem;
        }
        endBox();
        if (!known || (wanted == Wanted::Pixels && !whole))
            return {Cause::Damaged, {}};
        return {};
    }

private:
    PhotoProblem answer(JxlDecoderStatus status)
    {
        switch (status) {
        case JXL_DEC_BASIC_INFO:
            return beginPicture();
        case JXL_DEC_COLOR_ENCODING:
            readProfile();
            return {};
        case JXL_DEC_BOX:
            return beginBox();
        case JXL_DEC_BOX_NEED_MORE_OUTPUT:
            return growBox();
        case JXL_DEC_NEED_IMAGE_OUT_BUFFER:
            return JxlDecoderSetImageOutBuffer(decoder.get(), &format, picture.pixels.data, pixelBytes) == JXL_DEC_SUCCESS
                       ? PhotoProblem()
                       : PhotoProblem{Cause::PixelForm, {}};
        case JXL_DEC_FULL_IMAGE:
            whole = true;
            return {};
        default:
            return {Cause::Damaged, {}};
        }
    }

    PhotoProblem beginPicture()
    {
        JxlBasicInfo info;
        if (JxlDecoderGetBasicInfo(decoder.get(), &info) != JXL_DEC_SUCCESS || info.xsize > INT_MAX || info.ysize > INT_MAX)
            return {Cause::Damaged, {}};
        if (info.have_animation)
            return {Cause::Animation, {}};
        for (std::uint32_t i = 0; i < info.num_extra_channels; ++i) {
            JxlExtraChannelInfo channel;
            if (JxlDecoderGetExtraChannelInfo(decoder.get(), i, &channel) != JXL_DEC_SUCCESS)
                return {Cause::Damaged, {}};
            if (channel.type == JXL_CHANNEL_BLACK) // inks
                return {Cause::PixelForm, {}};
        }
        const bool real = info.exponent_bits_per_sample > 0 || info.bits_per_sample > 16, deep = info.bits_per_sample > 8;
        picture.width = int(info.xsize);
        picture.height = int(info.ysize);
        picture.components = info.alpha_bits > 0 ? 4 : info.num_color_channels == 1 ? 1 : 3;
        picture.bits = real ? 32 : deep ? 16 : 8;
        // The decoder works in floats: three colours, alpha, and a second copy where the picture is composed.
        constexpr std::uint64_t kWorkingBytes = 32;
        if (PhotoProblem problem = checkSize(picture, file, wanted == Wanted::Pixels ? kWorkingBytes : 0, mostBytes))
            return problem;
        known = true;
        format = {std::uint32_t(picture.components),
                  real   ? JXL_TYPE_FLOAT
                  : deep ? JXL_TYPE_UINT16
                         : JXL_TYPE_UINT8,
                  JXL_NATIVE_ENDIAN, /*align=*/4};
        if (wanted != Wanted::Pixels)
            return {};
        JxlResizableParallelRunnerSetThreads(runner.get(), JxlResizableParallelRunnerSuggestThreads(info.xsize, info.ysize));
        const std::size_t stride = (std::size_t(picture.width) * std::size_t(picture.components * picture.bits / 8) + 3) / 4 * 4;
        if (stride > INT_MAX)
            return {Cause::NoMemory, {}};
        pixelBytes = stride * std::size_t(picture.height);
        const std::shared_ptr<std::uint8_t[]> samples(new std::uint8_t[pixelBytes]);
        picture.pixels = {picture.width, picture.height, picture.components, picture.bits, int(stride), samples.get(), samples};
        return {};
    }

    void readProfile()
    {
        JxlBasicInfo info;
        JxlColorEncoding encoding;
        // Colours that the decoder can only give in another space than their profile's get a wide one with the usual curve, not
        // the linear one that it would choose, which needs more than 8 bits.
        if (JxlDecoderGetBasicInfo(decoder.get(), &info) == JXL_DEC_SUCCESS && !info.uses_original_profile &&
            call(&JxlDecoderGetColorAsEncodedProfile, format, decoder.get(), JXL_COLOR_PROFILE_TARGET_ORIGINAL, &encoding) !=
                JXL_DEC_SUCCESS) {
            encoding = {};
            encoding.color_space = info.num_color_channels == 1 ? JXL_COLOR_SPACE_GRAY : JXL_COLOR_SPACE_RGB;
            encoding.white_point = JXL_WHITE_POINT_D65;
            encoding.primaries = JXL_PRIMARIES_P3;
            encoding.transfer_function = JXL_TRANSFER_FUNCTION_SRGB;
            encoding.rendering_intent = JXL_RENDERING_INTENT_RELATIVE;
            JxlDecoderSetPreferredColorProfile(decoder.get(), &encoding);
        }
        std::size_t count = 0;
        if (call(&JxlDecoderGetICCProfileSize, format, decoder.get(), JXL_COLOR_PROFILE_TARGET_DATA, &count) != JXL_DEC_SUCCESS)
            return;
        picture.icc.resize(count);
        if (call(&JxlDecoderGetColorAsICCProfile, format, decoder.get(), JXL_COLOR_PROFILE_TARGET_DATA, picture.icc.data(),
                 count) != JXL_DEC_SUCCESS)
            picture.icc.clear();
    }

    PhotoProblem beginBox()
    {
        endBox();
        if (JxlDecoderGetBoxType(decoder.get(), boxType, /*decompressed=*/JXL_TRUE) != JXL_DEC_SUCCESS)
            return {Cause::Damaged, {}};
        picture.furtherPictures = picture.furtherPictures || isBox("jhgm"); // a gain map
        inBox = wanted == Wanted::Metadata && (isBox("Exif") || isBox("xml "));
        return inBox ? growBox() : PhotoProblem();
    }

    PhotoProblem growBox()
    {
        constexpr std::size_t kStep = 1 << 16, kMost = std::size_t(64) << 20; // it may be packed
        const std::size_t used = box.empty() ? 0 : box.size() - JxlDecoderReleaseBoxBuffer(decoder.get());
        if (used > kMost)
            return {Cause::Damaged, {}};
        box.resize(std::max(box.size() * 2, kStep));
        return JxlDecoderSetBoxBuffer(decoder.get(), box.data() + used, box.size() - used) == JXL_DEC_SUCCESS
                   ? PhotoProblem()
                   : PhotoProblem{Cause::Damaged, {}};
    }

    void endBox()
    {
        if (!inBox)
            return;
        box.resize(box.size() - JxlDecoderReleaseBoxBuffer(decoder.get()));
        if (isBox("Exif") && picture.exif.empty())
            picture.exif = exifIn(box.data(), box.size());
        else if (isBox("xml ") && picture.xmp.empty())
            picture.xmp = box;
        box.clear();
        inBox = false;
    }

    bool isBox(const char *type) const { return std::memcmp(boxType, type, sizeof boxType) == 0; }

    const RegularFile &file;
    const Wanted wanted;
    const std::uint64_t mostBytes;
    DecodedPicture &picture;
    Bytes bytes;
    const std::unique_ptr<void, Release> runner;
    const Decoder decoder; ///< Destroyed before what it uses.
    JxlPixelFormat format{};
    std::size_t pixelBytes = 0;
    bool known = false;
    bool whole = false;
    bool inBox = false;
    JxlBoxType boxType{};
    Bytes box;
};

} // namespace

PhotoProblem decodeJpegXl(const RegularFile &file, Wanted wanted, std::uint64_t mostBytes, DecodedPicture &picture)
{
    return Pass(file, wanted, mostBytes, picture).run();
}

std::string jpegXlLibrary()
{
    const unsigned version = JxlDecoderVersion();
    return "libjxl " + std::to_string(version / 1000000) + '.' + std::to_string(version / 1000 % 1000) + '.' +
           std::to_string(version % 1000);
}
