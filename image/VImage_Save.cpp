#include "VImage.h"

#include <cstdint>
#include <memory>

#include "FileThreadLimit.h"
#include "VImageSettings.h"
#include "VTempManager.h"
#include "gfl.h"
#include "imageRows.h"
#include "throwGflError.h"

namespace {

struct BitmapRelease
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};
struct ExifRelease
{
    void operator()(GflExif *exif) const { gflFreeEXIF2(exif); }
};

/// The codec layer's name for a format, which may be given in any case or by one of three short forms.
QString formatName(const QString &format)
{
    const QString name = format.toLower();
    return name == "jpg" ? "jpeg" : name == "tif" ? "tiff" : name == "hdr" ? "hdri" : name;
}

/// -1 keeps the layer's defaults. For "jpeg" the scale of 0 to 12 becomes 4 to 100; for the other formats `quality` chooses the
/// compression.
void ApplySaveQuality(QString format, int quality, GflSaveParams &params)
{
    if (quality == -1)
        return;
    if (format == "jpeg")
        params.quality = std::int16_t(quality * 8 + 4);
    else if (format == "png" || format == "hdri" || format == "psd")
        params.compression = std::int16_t(quality);
    else if (format == "tiff")
        params.compression = quality == 2 ? 2 : quality == 3 ? 4 : 0;
    else if (format == "exr")
        params.compression = quality >= 1 && quality <= 8 ? std::int16_t(quality - 1) : 4;
}

/// Parameters for loading all metadata but no pixels, which would be thrown away. The image library's raw settings are passed on.
/// Fixed: hosts rely on them, although without pixels they have no effect.
void InitLoadParameters(GflLoadParams &params)
{
    gflGetDefaultLoadParams(&params);
    const VImageSettings defaults;
    const VImageSettings &settings = imageSettings ? *imageSettings : defaults;
    params.rawUseAutomaticBalance = settings.rawUseAutomaticBalance;
    params.rawUseCameraBalance = settings.rawUseCameraBalance;
    params.rawHighlight = std::uint8_t(settings.rawHighlight);
    params.rawAutoBright = settings.rawAutoBright;
    params.rawGamma = settings.rawGamma;
    params.rawBrightness = settings.rawBrightness;
    params.rawRedScaling = settings.rawRedScaling;
    params.rawBlueScaling = settings.rawBlueScaling;
    params.flags |= GFL_LOAD_METADATA | GFL_LOAD_METADATA_ONLY;
}

/// Copies colour profile, IPTC and EXIF, as far as the source has them, and the source's packing as the default for the target's.
/// False if there was no memory for one of the three, which the layer itself does not report.
[[nodiscard]] bool copyMetadata(const GflBitmap *source, GflBitmap *target, GflSaveParams &params)
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
    gflBitmapCopyPacking(source, target);
    return true;
}

} // namespace

void VImage::Save(QString fileName, QString format, int quality, QString metadataSource)
{
    if (!bitmap)
        throw VException("Invalid Bitmap", V_RECORD_LOCATION);
    if (!isProcessedDepth(BitsPerComponent()))
        throw VException("Invalid Bitmap", V_RECORD_LOCATION);
    if (fileName.isEmpty())
        throw VException("Invalid Parameter", V_RECORD_LOCATION);
    if (format.isEmpty())
        throw VException("Invalid Parameter", V_RECORD_LOCATION);

    format = formatName(format);
    GflSaveParams saveParams;
    gflGetDefaultSaveParams(&saveParams);
    ApplySaveQuality(format, quality, saveParams);
    if (!metadataSource.isEmpty()) { // read before the file is written, so that an unreadable source ends the save early
        GflLoadParams loadParams;
        InitLoadParameters(loadParams);
        GflBitmap *read = nullptr;
        GflFileInformation information;
        throwGflError(gflLoadBitmapUTF8(metadataSource.toUtf8().constData(), &read, &loadParams, &information), metadataSource,
                      V_RECORD_LOCATION);
        const std::unique_ptr<GflBitmap, BitmapRelease> source(read);
        const bool copied = copyMetadata(source.get(), bitmap, saveParams);
        gflFreeFileInformation(&information);
        if (!copied)
            throwGflError(GFL_ERROR_NO_MEMORY, metadataSource, V_RECORD_LOCATION);
    }
    saveParams.formatIndex = gflGetFormatIndexByName(format.toLocal8Bit().constData());

    gflSetTeamSize(fileThreadCount());
    const auto result = std::int16_t(gflSaveBitmapUTF8(fileName.toUtf8().constData(), bitmap, &saveParams));
    if (result != 0) {
        // A full disk or a locked file makes a clearer message than the code. The byte count is a signed 32-bit product that
        // wraps around. Fixed: hosts rely on it.
        const auto bytes = std::int32_t(std::uint32_t(Width()) * std::uint32_t(Height()) * bitmap->bytesPerPixel);
        checkFileWritable(fileName, bytes, V_RECORD_LOCATION);
    }
    throwGflError(result, fileName, V_RECORD_LOCATION);
}
