#include "VImage.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>

#include "PlainImage.h"
#include "addMetadata.h"
#include "gfl.h"
#include "messageOf.h"

namespace {

class VImage_Save : public testing::Test
{
protected:
    VImage_Save()
    {
        Numbers numbers;
        for (int y = 0; y < image.Height(); ++y)
            for (int x = 0; x < image.Width() * 3; ++x)
                setSample(image, x / 3, y, x % 3, int(numbers.next() % 64) + x);
    }
    QString path(const char *name) const { return folder.filePath(name); }
    QByteArray content(const QString &file) const
    {
        QFile opened(file);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }
    int files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(); }

    VImage image{64, 48, VImage::Rgb, 8};
    QTemporaryDir folder;
};

/// The file that the codec layer writes with these two fields; kDefault leaves a field unchanged.
TEST_F(VImage_Save, FormatsAndQualities)
{
    constexpr int kDefault = GFL_DEFAULT;
    const struct
    {
        const char *format; ///< As passed to Save; the layer's name is below.
        const char *name;
        int quality;
        int compressionField, qualityField;
    } rows[] = {
        {"JPG", "jpeg", 12, kDefault, 100}, {"Jpeg", "jpeg", 0, kDefault, 4}, {"jpeg", "jpeg", -1, kDefault, kDefault},
        {"PNG", "png", 9, 9, kDefault},     {"png", "png", 0, 0, kDefault},   {"png", "png", -1, kDefault, kDefault},
        {"TIF", "tiff", 1, 0, kDefault},    {"tif", "tiff", 2, 2, kDefault},  {"tiff", "tiff", 3, 4, kDefault},
        {"tiff", "tiff", 4, 0, kDefault},   {"HDR", "hdri", 0, 0, kDefault},  {"hdri", "hdri", -1, kDefault, kDefault},
        {"psd", "psd", 1, 1, kDefault},     {"PSD", "psd", 0, 0, kDefault},   {"exr", "exr", 1, 0, kDefault},
        {"EXR", "exr", 8, 7, kDefault},     {"exr", "exr", 9, 4, kDefault},   {"exr", "exr", 0, 4, kDefault},
    };
    for (const auto &row : rows) {
        GflSaveParams params;
        gflGetDefaultSaveParams(&params);
        params.formatIndex = gflGetFormatIndexByName(row.name);
        params.compression = row.compressionField == kDefault ? params.compression : std::int16_t(row.compressionField);
        params.quality = row.qualityField == kDefault ? params.quality : std::int16_t(row.qualityField);
        ASSERT_EQ(gflSaveBitmapUTF8(path("expected").toUtf8().constData(), image.Bitmap(), &params), GFL_NO_ERROR);
        image.Save(path("été.x"), row.format, row.quality, "");
        EXPECT_EQ(content(path("été.x")), content(path("expected"))) << row.format << " " << row.quality;
    }
}

TEST_F(VImage_Save, CopiesColourProfileIptcAndExifThatTheSourceHas)
{
    for (const char *format : {"jpg", "png", "tif", "psd"})
        for (const int kinds : {0, kExif, kIptc, kProfile, kExif | kIptc | kProfile}) {
            const QString source = path("source.tif"), target = path("out.x");
            image.Save(source, "tif", -1, "");
            addMetadata(source, kinds);
            VImage fresh;
            fresh.Assign(image);
            fresh.Save(target, format, -1, source);
            GflLoadParams params;
            gflGetDefaultLoadParams(&params);
            params.flags |= GFL_LOAD_METADATA;
            GflBitmap *read = nullptr;
            ASSERT_EQ(gflLoadBitmapUTF8(target.toUtf8().constData(), &read, &params, nullptr), GFL_NO_ERROR);
            EXPECT_EQ(gflBitmapHasICCProfile(read), (kinds & kProfile) != 0) << format << kinds;
            EXPECT_EQ(gflBitmapHasIPTC(read), (kinds & kIptc) != 0) << format << kinds;
            gflFreeBitmap(read);
            const auto file = Exiv2::ImageFactory::open(QFile::encodeName(target).toStdString());
            file->readMetadata();
            const auto lens = file->exifData().findKey(Exiv2::ExifKey("Exif.Photo.LensModel"));
            EXPECT_EQ(lens == file->exifData().end() ? "" : lens->toString(), (kinds & kExif) ? "Acme 50 mm" : "")
                << format << kinds;
        }
}

TEST_F(VImage_Save, RefusalsWriteNothing)
{
    VImage empty, bits4(2, 2, VImage::Grey, 4);
    EXPECT_EQ("Invalid Bitmap", messageOf([&] { empty.Save(path("a.png"), "png", -1, ""); }));
    EXPECT_EQ("Invalid Bitmap", messageOf([&] { bits4.Save(path("a.png"), "png", -1, ""); }));
    EXPECT_EQ("Invalid Parameter", messageOf([&] { image.Save("", "png", -1, ""); }));
    EXPECT_EQ("Invalid Parameter", messageOf([&] { image.Save(path("a.png"), "", -1, ""); }));
    // The metadata is read first, so that an unreadable source leaves an older result untouched.
    EXPECT_EQ("Error GFL : \"GFL_ERROR_FILE_OPEN\"\nFile : \"" + QDir::current().absoluteFilePath("gone.jpg") + "\"",
              messageOf([&] { image.Save(path("a.png"), "png", -1, "gone.jpg"); }));
    EXPECT_EQ(files(), 0);
}

TEST_F(VImage_Save, TheClearestReasonOfAFailureComesFirst)
{
    const QString beyond = path("no-such-folder/out.png");
    EXPECT_EQ("Cannot write into file \"" + beyond + "\"", messageOf([&] { image.Save(beyond, "png", -1, ""); }));
    // A view may claim any size without the memory for it: 2^40 bytes fit nowhere, but in 32 bits the count is 0. What the layer
    // refuses before it reads a pixel is then reported by its code.
    float pixel[4] = {};
    VImage huge(1 << 18, 1 << 18, VImage::Rgba, 32, /*clear=*/false, pixel, 1 << 22);
    for (VImage *refused : {&image, &huge})
        EXPECT_EQ("Error GFL : \"GFL_ERROR_BAD_FORMAT_INDEX\"\nFile : \"" + path("out.gif") + "\"",
                  messageOf([&] { refused->Save(path("out.gif"), "Gif", -1, ""); }));
}

} // namespace
