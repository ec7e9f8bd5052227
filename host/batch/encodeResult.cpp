#include "encodeResult.h"

#include <memory>

#include <QFileInfo>

#include "FileThreadLimit.h"
#include "VException.h"
#include "VTempManager.h"
#include "gfl.h"
#include "throwGflError.h"

namespace {

struct Release
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
    void operator()(GflExif *exif) const { gflFreeEXIF2(exif); }
};

/// VImage::Save has a coarser scale.
void encodeJpeg(VImage &image, const QString &fileName, int quality, const QString &metadataSource)
{
    GflLoadParams loadParams;
    gflGetDefaultLoadParams(&loadParams);
    loadParams.flags = GFL_LOAD_METADATA | GFL_LOAD_METADATA_ONLY;
    GflBitmap *read = nullptr;
    throwGflError(gflLoadBitmapUTF8(metadataSource.toUtf8().constData(), &read, &loadParams, nullptr), metadataSource,
                  V_LOCATION);
    const std::unique_ptr<GflBitmap, Release> source(read);
    GflBitmap *const bitmap = image.Bitmap();
    gflBitmapCopyICCProfile(read, bitmap);
    gflBitmapSetIPTC(bitmap, gflBitmapGetIPTC(read));
    const std::unique_ptr<GflExif, Release> exif(gflBitmapGetEXIF2(read));
    gflBitmapSetEXIF2(bitmap, exif.get());
    gflBitmapCopyPacking(read, bitmap);

    GflSaveParams saveParams;
    gflGetDefaultSaveParams(&saveParams);
    saveParams.flags |= GFL_SAVE_ICC_PROFILE;
    saveParams.formatIndex = gflGetFormatIndexByName("jpeg");
    saveParams.quality = std::int16_t(quality);
    gflSetTeamSize(fileThreadCount());
    const int code = gflSaveBitmapUTF8(fileName.toUtf8().constData(), bitmap, &saveParams);
    if (code != GFL_NO_ERROR) // a full disk makes a clearer message than the code
        checkFileWritable(fileName, qint64(image.BytesPerLine()) * image.Height(), V_LOCATION);
    throwGflError(code, fileName, V_LOCATION);
}

/// The number for a compression on the scale of VImage::Save.
int qualityFor(int compression)
{
    return compression == 2 ? 2 : compression == 4 ? 3 : 0;
}

} // namespace

void encodeResult(VImage &image, const QString &fileName, const ResultPacking &packing, const QString &metadataSource)
{
    if (packing.jpegQuality)
        encodeJpeg(image, fileName, *packing.jpegQuality, metadataSource);
    else
        image.Save(fileName, QFileInfo(fileName).suffix(), packing.tiffCompression ? qualityFor(*packing.tiffCompression) : -1,
                   metadataSource);
}
