#include "RawPhoto.h"

#include <cstdio>

#include <fcntl.h>
#include <libraw/libraw.h>
#include <unistd.h>

#include "RegularFile.h"

/// The library's own stream over a file, for one that is open already. Without a stream it is not valid, which the library
/// reports.
class RawPhoto::Stream final : public LibRaw_bigfile_datastream
{
public:
    explicit Stream(const RegularFile &file) : LibRaw_bigfile_datastream("")
    {
        const int descriptor = ::fcntl(file.descriptor(), F_DUPFD_CLOEXEC, 0);
        f = ::fdopen(descriptor, "rb");
        if (!f) {
            ::close(descriptor);
            return;
        }
        std::rewind(f);
        filename = file.name();
        _fsize = INT64(file.size());
    }
};

RawPhoto::RawPhoto(const RegularFile &file) : stream(std::make_unique<Stream>(file)), raw(std::make_unique<LibRaw>())
{
    raw->set_dataerror_handler(nullptr, nullptr); // the default one writes to the program's standard error
    lastCode = raw->open_datastream(stream.get());
}

RawPhoto::~RawPhoto() = default;

bool RawPhoto::succeeds(int libraryCode)
{
    lastCode = libraryCode;
    return libraryCode == LIBRAW_SUCCESS;
}

RawPhoto::Code RawPhoto::code() const
{
    switch (lastCode) {
    case LIBRAW_SUCCESS:
        return Code::Ok;
    case LIBRAW_UNSUFFICIENT_MEMORY:
        return Code::NoMemory;
    default:
        return Code::Failed;
    }
}

std::string RawPhoto::text() const
{
    return libraw_strerror(lastCode);
}

std::string RawPhoto::unsupportedText()
{
    return libraw_strerror(LIBRAW_FILE_UNSUPPORTED);
}

int RawPhoto::width() const
{
    return raw->imgdata.sizes.iwidth;
}

int RawPhoto::height() const
{
    return raw->imgdata.sizes.iheight;
}

int RawPhoto::orientation() const
{
    switch (raw->imgdata.sizes.flip) {
    case 3:
        return 3;
    case 5:
        return 8;
    case 6:
        return 6;
    default:
        return 1;
    }
}

RawPhoto::Developed RawPhoto::develop()
{
    libraw_output_params_t &params = raw->imgdata.params;
    params.output_bps = 16;
    params.output_color = 1; // sRGB, which viewers assume for a file without a profile
    params.gamm[0] = 1 / 2.4;
    params.gamm[1] = 12.92;
    params.use_camera_wb = 1;
    params.user_flip = 0;            // the EXIF that goes into the result still has the orientation
    params.auto_bright_thr = 0.001f; // a bright sky loses at most one pixel in a thousand to white
    Developed picture;
    if (!succeeds(raw->unpack()) || !succeeds(raw->dcraw_process()))
        return picture;
    int bits = 0;
    raw->get_mem_image_format(&picture.width, &picture.height, &picture.components, &bits);
    picture.strideBytes = (std::size_t(picture.width) * std::size_t(picture.components) * 2 + 3) / 4 * 4;
    picture.samples.reset(new std::uint8_t[picture.strideBytes * std::size_t(picture.height)]);
    if (!succeeds(raw->copy_mem_image(picture.samples.get(), int(picture.strideBytes), /*bgr=*/0)))
        picture.samples.reset();
    return picture;
}
