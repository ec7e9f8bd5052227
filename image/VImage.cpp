#include "VImage.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

#include "VException.h"
#include "gflCallbacks.h"

#ifndef NIMBRA_IMAGE_RECORD_ONLY
#    include <memory>
#    include <new>

#    include "VImageSettings.h"
#    include "VTempManager.h"
#    include "gfl.h"
#    include "ipp.h"
#    include "threadCount.h"
#    include "throwGflError.h"
#endif

namespace {

constexpr std::size_t kPaletteBytes = 1024;
constexpr unsigned short kPaletteType = 0x0004;

/// `site` names the allocation for a heap that cares. A size of 0 gets a block as well: a null says that there is no memory.
void *allocate(std::size_t bytes, const char *site)
{
    return gflAllocCallback(std::max<std::size_t>(bytes, 1), const_cast<char *>(site));
}
#define V_SITE (__FILE__ ":" V_TEXT_OF(__LINE__))

int componentsOf(unsigned short type)
{
    return (type & 0x0007) ? 1 : (type & 0x1050) ? 3 : (type & 0x27A0) ? 4 : 0;
}

/// Bytes of a row of an owned image, or -1 if they are no positive 31-bit number.
int alignedStride(int width, int bytesPerPixel)
{
    const std::int64_t stride = (std::int64_t{width} * bytesPerPixel + 3) / 4 * 4;
    return width < 0 || bytesPerPixel < 0 || stride > std::numeric_limits<int>::max() ? -1 : static_cast<int>(stride);
}

std::size_t pixelBytes(const GflBitmap &bitmap)
{
    return static_cast<std::size_t>(std::max(bitmap.height, 0)) * bitmap.bytesPerLine;
}

} // namespace

VImage::VImage(int width, int height, unsigned short type, int bitsPerComponent, bool clear, void *data, int bytesPerLine)
    : VImage()
{
    Create(width, height, type, bitsPerComponent, clear, data, bytesPerLine);
}

VImage::~VImage()
{
    Free();
}

void VImage::Create(int width, int height, unsigned short type, int bitsPerComponent, bool clear, void *data, int bytesPerLine)
{
    if (bitmap && !data && bitmap->width == width && bitmap->height == height && bitmap->type == type &&
        bitmap->bitsPerComponent == bitsPerComponent) {
        if (clear)
            std::memset(bitmap->data, 0, pixelBytes(*bitmap));
        return;
    }
    Free();
    const int components = componentsOf(type);
    if (components == 0)
        throw VException("Invalid Parameter", V_LOCATION);
    const int bytesPerPixel = (bitsPerComponent >> 3) * components;

    bitmap = static_cast<GflBitmap *>(allocate(sizeof(GflBitmap), V_SITE));
    if (!bitmap)
        throw VException("Not enough memory", V_LOCATION);
    *bitmap = {};
    if (!data) {
        const int stride = alignedStride(width, bytesPerPixel);
        if (stride >= 0 && height >= 0)
            bitmap->data = allocate(static_cast<std::size_t>(height) * static_cast<std::size_t>(stride), V_SITE);
        if (!bitmap->data)
            throw VException("Not enough memory", V_LOCATION);
        bitmap->bytesPerLine = static_cast<std::uint32_t>(stride);
        bitmap->lineAlignment = 4;
    } else {
        bitmap->data = data;
        bitmap->bytesPerLine = static_cast<std::uint32_t>(bytesPerLine);
        bitmap->lineAlignment = bytesPerLine % 4 == 0 ? 4 : 2;
        ownsData = false;
    }
    bitmap->type = type;
    bitmap->width = width;
    bitmap->height = height;
    bitmap->bitsPerComponent = static_cast<std::uint16_t>(bitsPerComponent);
    bitmap->componentsPerPixel = static_cast<std::uint16_t>(components);
    bitmap->bytesPerPixel = static_cast<std::uint16_t>(bytesPerPixel);
    bitmap->transparentIndex = -1;
    bitmap->colorUsed = type == Grey || type == kPaletteType ? 256 : 0;
    if (type == kPaletteType) {
        bitmap->colorMap = allocate(kPaletteBytes, V_SITE);
        if (bitmap->colorMap)
            std::memset(bitmap->colorMap, 0, kPaletteBytes);
    }
    if (clear)
        std::memset(bitmap->data, 0, pixelBytes(*bitmap));
}

void VImage::Free()
{
    if (!bitmap)
        return;
    if (!ownsData) {
        bitmap->data = nullptr;
        ownsData = true;
    }
    gflFreeBitmap(bitmap);
    bitmap = nullptr;
}

void VImage::Assign(const VImage &source)
{
    Free();
    if (!source.bitmap)
        return;
    userFlag = source.userFlag;
    bitmap = static_cast<GflBitmap *>(allocate(sizeof(GflBitmap), V_SITE));
    if (!bitmap)
        throw VException("Not enough memory", V_LOCATION);
    // Until each block has its copy the record must not hold the source's: Free would release them.
    *bitmap = *source.bitmap;
    bitmap->data = bitmap->colorMap = bitmap->comment = bitmap->metaData = nullptr;
    bitmap->name = nullptr;

    const std::size_t bytes = pixelBytes(*bitmap);
    bitmap->data = allocate(bytes, V_SITE);
    if (!bitmap->data)
        throw VException("Not enough memory", V_LOCATION);
    if (source.bitmap->data)
        std::memcpy(bitmap->data, source.bitmap->data, bytes);
    if (source.bitmap->colorMap) {
        bitmap->colorMap = allocate(kPaletteBytes, V_SITE);
        if (!bitmap->colorMap)
            throw VException("Not enough memory", V_LOCATION);
        std::memcpy(bitmap->colorMap, source.bitmap->colorMap, kPaletteBytes);
    }
    if (source.bitmap->name) {
        const std::size_t nameBytes = std::strlen(source.bitmap->name) + 1;
        bitmap->name = static_cast<char *>(allocate(nameBytes, V_SITE));
        if (bitmap->name)
            std::memcpy(bitmap->name, source.bitmap->name, nameBytes);
    }
}

#ifndef NIMBRA_IMAGE_RECORD_ONLY // what a host that links the image record alone can do without

namespace {

struct IppsRelease
{
    void operator()(void *block) const { ippsFree(block); }
};
template<typename T>
using IppsBlock = std::unique_ptr<T, IppsRelease>;

/// Below this many samples on both sides together a team costs more than it gains.
constexpr std::int64_t kSamplesForTeam = 1 << 18;

struct BitmapRelease
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
struct ExifRelease
{
    void operator()(GflExif *exif) const { gflFreeEXIF2(exif); }
};

/// Scales all of `source` into all of `target`. False, with the target as it was, for a form that is not processed or an empty
/// side. Throws std::bad_alloc.
bool resize(const GflBitmap &source, GflBitmap &target)
{
    const unsigned short type = source.type;
    const int bits = source.bitsPerComponent;
    const int channels = source.componentsPerPixel;
    if ((type != VImage::Grey && type != VImage::Rgb && type != VImage::Rgba) || (bits != 8 && bits != 16 && bits != 32))
        return false;
    const IppiSize from{source.width, source.height};
    const IppiSize to{target.width, target.height};
    const auto method = to.width > from.width || to.height > from.height ? IppiInterpolation::Linear : IppiInterpolation::Super;
    const std::size_t specBytes = ippiResizeGetSize(from, to, method);
    if (specBytes == 0)
        return false;
    const IppsBlock<IppiResizeSpec> spec(static_cast<IppiResizeSpec *>(ippsMalloc(specBytes)));
    if (!spec)
        throw std::bad_alloc(); // a black image would be taken for the picture
    ippiResizeInit(from, to, method, {channels, bits}, spec.get());

    const std::int64_t pixels = std::int64_t{from.width} * from.height + std::int64_t{to.width} * to.height;
    const int team = pixels * channels < kSamplesForTeam ? 1 : std::clamp(threadCount, 1, to.height);
    const std::size_t bufferBytes = ippiResizeGetBufferSize(spec.get());
    const IppsBlock<unsigned char> buffers(
        static_cast<unsigned char *>(ippsMalloc(bufferBytes * static_cast<std::size_t>(team))));
    if (!buffers)
        throw std::bad_alloc();
#    pragma omp parallel for schedule(static) num_threads(team)
    for (int part = 0; part < team; ++part) {
        const auto rowOf = [&](int index) { return static_cast<int>(std::int64_t{to.height} * index / team); };
        ippiResize(source.data, static_cast<int>(source.bytesPerLine), target.data, static_cast<int>(target.bytesPerLine),
                   rowOf(part), rowOf(part + 1) - rowOf(part), spec.get(),
                   buffers.get() + bufferBytes * static_cast<std::size_t>(part));
    }
    return true;
}

/// The codec layer's name of a format that is given in any case or by one of three short forms.
QString formatName(const QString &format)
{
    const QString name = format.toLower();
    return name == "jpg" ? "jpeg" : name == "tif" ? "tiff" : name == "hdr" ? "hdri" : name;
}

/// -1 leaves the layer's defaults. "jpeg" has a scale of 0 to 12, which becomes 4 to 100; for the others it is a compression.
void ApplySaveQuality(QString format, int quality, GflSaveParams &params)
{
    if (quality == -1)
        return;
    if (format == "jpeg")
        params.quality = static_cast<std::int16_t>(quality * 8 + 4);
    else if (format == "png" || format == "hdri" || format == "psd")
        params.compression = static_cast<std::int16_t>(quality);
    else if (format == "tiff")
        params.compression = quality == 2 ? 2 : quality == 3 ? 4 : 0;
    else if (format == "exr")
        params.compression = quality >= 1 && quality <= 8 ? static_cast<std::int16_t>(quality - 1) : 4;
}

/// Asks for all metadata and, since the pixels are thrown away, for nothing else. The raw settings of the image library go along.
void InitLoadParameters(GflLoadParams &params)
{
    gflGetDefaultLoadParams(&params);
    const VImageSettings defaults;
    const VImageSettings &settings = imageSettings ? *imageSettings : defaults;
    params.rawUseAutomaticBalance = settings.rawUseAutomaticBalance;
    params.rawUseCameraBalance = settings.rawUseCameraBalance;
    params.rawHighlight = static_cast<std::uint8_t>(settings.rawHighlight);
    params.rawAutoBright = settings.rawAutoBright;
    params.rawGamma = settings.rawGamma;
    params.rawBrightness = settings.rawBrightness;
    params.rawRedScaling = settings.rawRedScaling;
    params.rawBlueScaling = settings.rawBlueScaling;
    params.flags |= GFL_LOAD_METADATA | GFL_LOAD_METADATA_ONLY;
}

/// Colour profile, IPTC and EXIF of a file, each if it has it. False if memory for one is missing, which the layer doesn't say.
bool copyMetadata(const GflBitmap *source, GflBitmap *target, GflSaveParams &params)
{
    if (gflBitmapHasICCProfile(source)) {
        gflBitmapCopyICCProfile(source, target);
        params.flags |= GFL_SAVE_ICC_PROFILE;
        if (!gflBitmapHasICCProfile(target))
            return false;
    }
    if (gflBitmapHasIPTC(source)) {
        gflBitmapSetIPTC(target, gflBitmapGetIPTC(source));
        if (!gflBitmapHasIPTC(target))
            return false;
    }
    if (gflBitmapHasEXIF(source)) {
        const std::unique_ptr<GflExif, ExifRelease> exif(gflBitmapGetEXIF2(source));
        gflBitmapSetEXIF2(target, exif.get());
        if (!gflBitmapHasEXIF(target))
            return false;
    }
    return true;
}

} // namespace

void VImage::Resample(VImage &target, int width, int height) const
{
    if (!bitmap)
        throw VException(QString(), V_LOCATION);
    if (width == Width() && height == Height())
        return target.Assign(*this);
    target.Create(width, height, Type(), BitsPerComponent());
    if (!resize(*bitmap, *target.bitmap))
        target.Create(width, height, Type(), BitsPerComponent(), /*clear=*/true);
}

void VImage::Save(QString fileName, QString format, int quality, QString metadataSource)
{
    if (!bitmap)
        throw VException("Invalid Bitmap", V_LOCATION);
    if (BitsPerComponent() != 8 && BitsPerComponent() != 16 && BitsPerComponent() != 32)
        throw VException("Invalid Bitmap", V_LOCATION);
    if (fileName.isEmpty())
        throw VException("Invalid Parameter", V_LOCATION);
    if (format.isEmpty())
        throw VException("Invalid Parameter", V_LOCATION);

    format = formatName(format);
    GflSaveParams saveParams;
    gflGetDefaultSaveParams(&saveParams);
    ApplySaveQuality(format, quality, saveParams);
    if (!metadataSource.isEmpty()) { // before the file is written, so that an unreadable source ends the save early
        GflLoadParams loadParams;
        InitLoadParameters(loadParams);
        GflBitmap *read = nullptr;
        GflFileInformation information;
        throwGflError(gflLoadBitmapUTF8(metadataSource.toUtf8().constData(), &read, &loadParams, &information), metadataSource,
                      V_LOCATION);
        const std::unique_ptr<GflBitmap, BitmapRelease> source(read);
        const bool copied = copyMetadata(source.get(), bitmap, saveParams);
        gflFreeFileInformation(&information);
        if (!copied)
            throwGflError(GFL_ERROR_NO_MEMORY, metadataSource, V_LOCATION);
    }
    saveParams.formatIndex = gflGetFormatIndexByName(format.toLocal8Bit().constData());

    const auto result = static_cast<std::int16_t>(gflSaveBitmapUTF8(fileName.toUtf8().constData(), bitmap, &saveParams));
    if (result != 0) {
        // A full disk or a locked file is a clearer sentence than the code. The count wraps around in 32 bits on purpose.
        const auto bytes = static_cast<std::int32_t>(static_cast<std::uint32_t>(Width()) * static_cast<std::uint32_t>(Height()) *
                                                     bitmap->bytesPerPixel);
        checkFileWritable(fileName, bytes, V_LOCATION);
    }
    throwGflError(result, fileName, V_LOCATION);
}

#endif
