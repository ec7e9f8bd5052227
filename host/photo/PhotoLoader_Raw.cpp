#include <QFile>
#include <QFileInfo>
#include <libraw/libraw.h>

#include "PhotoLoader.h"
#include "VException.h"
#include "gfl.h"

namespace {

void check(int code)
{
    if (code == LIBRAW_SUCCESS)
        return;
    if (code == LIBRAW_UNSUFFICIENT_MEMORY)
        throw VException(
            PhotoLoader::tr("There is not enough memory for this camera raw file. Close other programs, or work on one "
                            "photograph at a time (--jobs 1)."),
            V_LOCATION);
    throw VException(PhotoLoader::tr("The camera raw file can't be developed: %1. Copy it anew, or convert it to DNG or TIFF.")
                         .arg(QString::fromLatin1(libraw_strerror(code))),
                     V_LOCATION);
}

/// Opens without the handler that would write to the program's standard error. A code of the library.
int open(LibRaw &raw, const QString &path)
{
    raw.set_dataerror_handler(nullptr, nullptr);
    return raw.open_file(QFile::encodeName(path).constData());
}

/// Opened, not yet unpacked.
std::unique_ptr<LibRaw> opened(const QString &path)
{
    auto raw = std::make_unique<LibRaw>();
    check(open(*raw, path));
    return raw;
}

/// LibRaw's flip as EXIF's orientation.
int orientationOf(int flip)
{
    switch (flip) {
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

} // namespace

/// The suffix decides, since most camera raw files are TIFF inside. Without one of a known format the content does.
bool PhotoLoader::isRaw(const QString &path)
{
    const PhotoKind kind = kindOf(path);
    const std::string suffix = QFileInfo(path).suffix().toLower().toStdString();
    if (isRawSuffix(suffix) || isRawOnly(kind))
        return true;
    if (kind != PhotoKind::Tiff || pictureKindOfSuffix(suffix) != PhotoKind::Other)
        return false;
    const auto raw = std::make_unique<LibRaw>();
    return open(*raw, path) == LIBRAW_SUCCESS;
}

PhotoFacts PhotoLoader::describeRaw(const QString &path)
{
    const auto raw = opened(path);
    // The codec layer reads the metadata when the result is saved. What it will refuse then is refused here, before any work.
    const int code = load(path, GFL_LOAD_METADATA | GFL_LOAD_METADATA_ONLY).first;
    if (code != GFL_NO_ERROR)
        check(code == GFL_ERROR_NO_MEMORY ? LIBRAW_UNSUFFICIENT_MEMORY : LIBRAW_FILE_UNSUPPORTED);
    PhotoFacts facts;
    facts.width = raw->imgdata.sizes.iwidth;
    facts.height = raw->imgdata.sizes.iheight;
    facts.orientation = orientationOf(raw->imgdata.sizes.flip);
    return facts;
}

void PhotoLoader::developRaw(const QString &path, VImage &image)
{
    const auto raw = opened(path);
    libraw_output_params_t &wish = raw->imgdata.params;
    wish.output_bps = 16;
    wish.output_color = 1; // sRGB, which a file without a profile is taken for
    wish.gamm[0] = 1 / 2.4;
    wish.gamm[1] = 12.92;
    wish.use_camera_wb = 1;
    wish.user_flip = 0;            // the EXIF that goes into the result still carries the orientation
    wish.auto_bright_thr = 0.001f; // a bright sky loses at most one pixel in a thousand to white
    check(raw->unpack());
    check(raw->dcraw_process());
    int width = 0, height = 0, colors = 0, bits = 0;
    raw->get_mem_image_format(&width, &height, &colors, &bits);
    image.Create(width, height, colors == 1 ? VImage::Grey : VImage::Rgb, 16);
    check(raw->copy_mem_image(image.PixelAddress(0, 0), image.BytesPerLine(), /*bgr=*/0));
}
