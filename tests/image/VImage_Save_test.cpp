#include "VImage.h"

#include <cstring>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include "VException.h"
#include "VImageSettings.h"
#include "gfl.h"

// This program brings a codec layer of its own, which notes what it is asked for and answers as told: what is tested is what Save
// asks for, in which order, and what it makes of the answers.

struct GflIptc
{
    const char *text;
};
struct GflExif
{
    const char *text;
};

namespace {

using testing::ElementsAre;

struct Codec
{
    std::vector<std::string> calls;
    int loadResult = 0, saveResult = 0;
    bool hasProfile = false, hasIptc = false, hasExif = false;
    GflSaveParams saved{};
    GflLoadParams loaded{};
    const GflBitmap *loadedBitmap = nullptr;
    const GflBitmap *savedBitmap = nullptr;
    std::string savedName, loadedName;
} codec;

GflIptc iptcOfSource{"iptc"};
GflExif exifOfSource{"exif"};
constexpr GflSaveParams kDefaultSave{0x40, -7, 11, 12};

int formatIndex(const std::string &name)
{
    const char *const names[] = {"jpeg", "png", "tiff", "hdri", "exr", "psd"};
    for (int i = 0; i < 6; ++i)
        if (name == names[i])
            return i;
    return -1;
}

} // namespace

void gflFreeBitmap(GflBitmap *bitmap)
{
    if (bitmap == codec.loadedBitmap) {
        codec.calls.push_back("freeBitmap");
        delete bitmap;
    } else {
        std::free(bitmap->data);
        std::free(bitmap);
    }
}
int gflLibraryInitEx(GflAllocCallback, GflReallocCallback, GflFreeCallback, void *)
{
    return 0;
}
void gflLibraryExit() {}
void gflEnableLZW(int) {}
int gflGetFormatIndexByName(const char *name)
{
    codec.calls.push_back(std::string("format ") + name);
    return formatIndex(name);
}
void gflGetDefaultSaveParams(GflSaveParams *params)
{
    *params = kDefaultSave;
}
void gflGetDefaultLoadParams(GflLoadParams *params)
{
    std::memset(params, 0, sizeof(*params));
    params->flags = 0x2;
}
int gflLoadBitmapUTF8(const char *fileName, GflBitmap **bitmap, const GflLoadParams *params, GflFileInformation *)
{
    codec.calls.push_back("load");
    codec.loadedName = fileName;
    codec.loaded = *params;
    *bitmap = codec.loadResult == 0 ? new GflBitmap{} : nullptr;
    codec.loadedBitmap = *bitmap;
    return codec.loadResult;
}
int gflSaveBitmapUTF8(const char *fileName, const GflBitmap *bitmap, const GflSaveParams *params)
{
    codec.calls.push_back("save");
    codec.savedName = fileName;
    codec.savedBitmap = bitmap;
    codec.saved = *params;
    return codec.saveResult;
}
void gflFreeFileInformation(GflFileInformation *)
{
    codec.calls.push_back("freeInformation");
}
bool gflBitmapHasICCProfile(const GflBitmap *)
{
    return codec.hasProfile;
}
void gflBitmapCopyICCProfile(const GflBitmap *source, GflBitmap *)
{
    EXPECT_EQ(codec.loadedBitmap, source);
    codec.calls.push_back("copyProfile");
}
bool gflBitmapHasIPTC(const GflBitmap *)
{
    return codec.hasIptc;
}
GflIptc *gflBitmapGetIPTC(const GflBitmap *source)
{
    EXPECT_EQ(codec.loadedBitmap, source);
    return &iptcOfSource;
}
void gflBitmapSetIPTC(GflBitmap *bitmap, const GflIptc *iptc)
{
    EXPECT_NE(codec.loadedBitmap, bitmap);
    codec.calls.push_back(std::string("set ") + iptc->text);
}
bool gflBitmapHasEXIF(const GflBitmap *)
{
    return codec.hasExif;
}
GflExif *gflBitmapGetEXIF2(const GflBitmap *source)
{
    EXPECT_EQ(codec.loadedBitmap, source);
    return &exifOfSource;
}
void gflBitmapSetEXIF2(GflBitmap *bitmap, const GflExif *exif)
{
    EXPECT_NE(codec.loadedBitmap, bitmap);
    codec.calls.push_back(std::string("set ") + exif->text);
}
void gflFreeEXIF2(GflExif *exif)
{
    EXPECT_EQ(&exifOfSource, exif);
    codec.calls.push_back("freeExif");
}

namespace {

/// What `work` throws, or "no exception".
template<typename Work>
QString messageOf(const Work &work)
{
    try {
        work();
    } catch (const VException &exception) {
        EXPECT_TRUE(exception.location.startsWith("File: \"../image/VImage.cpp\" Line: ")) << qPrintable(exception.location);
        return exception.message;
    }
    return "no exception";
}

class VImage_Save : public testing::Test
{
protected:
    void SetUp() override { codec = Codec(); }
    VImage image{3, 2, VImage::Rgba, 32, /*clear=*/true};
    QTemporaryDir folder;
    QString path(const char *name) const { return folder.filePath(name); }
};

struct Quality
{
    const char *format; ///< As given; the layer's name below.
    const char *name;
    int quality;
    int compressionField, qualityField;
};

TEST_F(VImage_Save, FormatsAndQualities)
{
    constexpr int c = kDefaultSave.compression, q = kDefaultSave.quality;
    const Quality qualities[] = {
        {"JPG", "jpeg", 12, c, 100}, {"Jpeg", "jpeg", 0, c, 4},  {"jpeg", "jpeg", -1, c, q}, {"PNG", "png", 9, 9, q},
        {"png", "png", -1, c, q},    {"TIF", "tiff", 1, 0, q},   {"tif", "tiff", 2, 2, q},   {"tiff", "tiff", 3, 4, q},
        {"tiff", "tiff", 4, 0, q},   {"TIFF", "tiff", -1, c, q}, {"HDR", "hdri", 5, 5, q},   {"hdri", "hdri", -1, c, q},
        {"psd", "psd", 1, 1, q},     {"psd", "psd", -1, c, q},   {"exr", "exr", 1, 0, q},    {"EXR", "exr", 8, 7, q},
        {"exr", "exr", 9, 4, q},     {"exr", "exr", 0, 4, q},    {"exr", "exr", -1, c, q},   {"Gif", "gif", 3, c, q},
    };
    for (const Quality &row : qualities) {
        SCOPED_TRACE(testing::Message() << row.format << " " << row.quality);
        codec = Codec();
        image.Save("été.x", row.format, row.quality, "");
        EXPECT_THAT(codec.calls, ElementsAre(std::string("format ") + row.name, "save"));
        EXPECT_EQ(kDefaultSave.flags, codec.saved.flags);
        EXPECT_EQ(formatIndex(row.name), codec.saved.formatIndex);
        EXPECT_EQ(row.compressionField, codec.saved.compression);
        EXPECT_EQ(row.qualityField, codec.saved.quality);
        EXPECT_EQ(image.Bitmap(), codec.savedBitmap);
        EXPECT_EQ("\xC3\xA9t\xC3\xA9.x", codec.savedName) << "UTF-8";
    }
}

TEST_F(VImage_Save, MetadataIsCopiedBeforeTheSave)
{
    codec.hasProfile = codec.hasIptc = codec.hasExif = true;
    image.Save("out.tif", "tif", -1, "ça.jpg");
    EXPECT_THAT(codec.calls, ElementsAre("load", "copyProfile", "set iptc", "set exif", "freeExif", "freeInformation",
                                         "freeBitmap", "format tiff", "save"));
    EXPECT_EQ("\xC3\xA7"
              "a.jpg",
              codec.loadedName);
    EXPECT_EQ(kDefaultSave.flags | 0x8u, codec.saved.flags);

    codec = Codec();
    codec.hasExif = true;
    image.Save("out.tif", "tif", -1, "in.jpg");
    EXPECT_THAT(codec.calls, ElementsAre("load", "set exif", "freeExif", "freeInformation", "freeBitmap", "format tiff", "save"));
    EXPECT_EQ(kDefaultSave.flags, codec.saved.flags) << "no profile, no flag";
}

TEST_F(VImage_Save, LoadParametersComeFromTheSettings)
{
    image.Save("out.tif", "tif", -1, "in.jpg");
    EXPECT_EQ(0x2u | 0x400u | 0x800u, codec.loaded.flags) << "the layer's default, all metadata, no pixels";
    EXPECT_EQ(0, codec.loaded.rawUseAutomaticBalance);
    EXPECT_EQ(1, codec.loaded.rawUseCameraBalance);
    EXPECT_EQ(0, codec.loaded.rawHighlight);
    EXPECT_EQ(0, codec.loaded.rawAutoBright);
    EXPECT_EQ(2.2f, codec.loaded.rawGamma);
    EXPECT_EQ(2.5f, codec.loaded.rawBrightness);
    EXPECT_EQ(1.0f, codec.loaded.rawRedScaling);
    EXPECT_EQ(1.0f, codec.loaded.rawBlueScaling);

    VImageSettings settings;
    settings.rawHighlight = 0x1234;
    settings.rawGamma = 1.8f;
    imageSettings = &settings;
    image.Save("out.tif", "tif", -1, "in.jpg");
    imageSettings = nullptr;
    EXPECT_EQ(0x34, codec.loaded.rawHighlight) << "the low 8 bits";
    EXPECT_EQ(1.8f, codec.loaded.rawGamma);
}

TEST_F(VImage_Save, Refusals)
{
    VImage empty, bits4(2, 2, VImage::Grey, 4);
    EXPECT_EQ("Invalid Bitmap", messageOf([&] { empty.Save("", "", -1, ""); }));
    EXPECT_EQ("Invalid Bitmap", messageOf([&] { bits4.Save("", "", -1, ""); }));
    EXPECT_EQ("Invalid Parameter", messageOf([&] { image.Save("", "png", -1, ""); }));
    EXPECT_EQ("Invalid Parameter", messageOf([&] { image.Save("a.png", "", -1, ""); }));
    EXPECT_THAT(codec.calls, ElementsAre());
    VImage otherType(2, 2, 0x0080, 8);
    EXPECT_EQ("no exception", messageOf([&] { otherType.Save("a.png", "png", -1, ""); })) << "the type is the layer's affair";
}

TEST_F(VImage_Save, AnUnreadableSourceEndsTheSaveEarly)
{
    codec.loadResult = GFL_ERROR_FILE_OPEN;
    const QString source = QDir::current().absoluteFilePath("gone.jpg");
    EXPECT_EQ("Error GFL : \"GFL_ERROR_FILE_OPEN\"\nFile : \"" + source + "\"",
              messageOf([&] { image.Save(path("out.tif"), "tif", -1, "gone.jpg"); }));
    EXPECT_THAT(codec.calls, ElementsAre("load"));
    EXPECT_FALSE(QFile::exists(path("out.tif")));
}

TEST_F(VImage_Save, TheClearestReasonOfAFailureComesFirst)
{
    codec.saveResult = GFL_ERROR_FILE_WRITE;
    const QString beyond = path("no-such-folder/out.png");
    EXPECT_EQ("Cannot write into file \"" + beyond + "\"", messageOf([&] { image.Save(beyond, "png", -1, ""); }));
    EXPECT_EQ("Error GFL : \"GFL_ERROR_FILE_WRITE\"\nFile : \"" + path("out.png") + "\"",
              messageOf([&] { image.Save(path("out.png"), "png", -1, ""); }));

    // A view may claim any size without its memory: 2^40 bytes fit nowhere, but counted in 32 bits they are none.
    float pixel[4] = {};
    VImage huge(1 << 18, 1 << 18, VImage::Rgba, 32, /*clear=*/false, pixel, 4);
    EXPECT_EQ("Error GFL : \"GFL_ERROR_FILE_WRITE\"\nFile : \"" + path("out.png") + "\"",
              messageOf([&] { huge.Save(path("out.png"), "png", -1, ""); }));
    codec.saveResult = 0x10000; // the low 16 bits count
    EXPECT_EQ("no exception", messageOf([&] { image.Save(path("out.png"), "png", -1, ""); }));
}

} // namespace
