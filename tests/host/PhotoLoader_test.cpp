#include <functional>

#include <QFile>
#include <sys/inotify.h>
#include <unistd.h>

#include "PhotoLoader.h"
#include "PhotoTest.h"
#include "VException.h"
#include "carryXmp.h"

namespace {

/// A head, followed by zeros.
QByteArray head(std::initializer_list<std::pair<int, QByteArray>> parts, int size = 2000)
{
    QByteArray bytes(size, '\0');
    for (const auto &[at, part] : parts)
        bytes.replace(at, part.size(), part);
    return bytes;
}

/// A box of the ISO media format with this brand, followed by one of a type that readers go into.
QByteArray isoMedia(const char *brand)
{
    return head({{0, QByteArray("\0\0\0\x18"
                                "ftyp",
                                8)},
                 {8, brand},
                 {24, QByteArray("\0\0\7\0moov", 8)}});
}

std::string messageOf(const std::function<void()> &act)
{
    try {
        act();
    } catch (const VException &failure) {
        return failure.message.toStdString();
    }
    return "nothing";
}

/// How often `act` opens the file.
int opensOf(const QString &path, const std::function<void()> &act)
{
    const int watch = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    // Reads come between two openings, so that the system does not report both as one.
    inotify_add_watch(watch, QFile::encodeName(path).constData(), IN_OPEN | IN_ACCESS);
    act();
    alignas(inotify_event) char events[4096];
    int opens = 0;
    for (ssize_t got; (got = read(watch, events, sizeof events)) > 0;)
        for (ssize_t at = 0; at < got;) {
            const auto *event = reinterpret_cast<const inotify_event *>(events + at);
            opens += (event->mask & IN_OPEN) != 0;
            at += ssize_t(sizeof *event + event->len);
        }
    close(watch);
    return opens;
}

using PhotoLoaderTest = PhotoTest;

} // namespace

TEST_F(PhotoLoaderTest, NoLibrarySeesWhatIsNotAPhotographWhateverItsSuffix)
{
    const char *const video = "It is a video.", *const unknown = "It is not a picture in a known format";
    const struct
    {
        const char *what;
        QByteArray bytes;
        const char *message;
    } files[] = {
        {"mp4", isoMedia("isom"), video},
        {"mov", isoMedia("qt  "), video},
        {"3gp", isoMedia("3gp4"), video},
        {"mov without type", head({{0, QByteArray("\0\0\0\x08wide\0\0\7\0mdat", 16)}}), video},
        {"avi", head({{0, "RIFF"}, {8, "AVI LIST"}}), video},
        {"mkv", head({{0, "\x1A\x45\xDF\xA3\x9F\x42\x86\x81\x01"}}), video},
        {"wmv", head({{0, "\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9"}}), video},
        {"ts", head({{0, "G"}, {188, "G"}, {376, "G"}}), video},
        {"m2ts", head({{4, "G"}, {196, "G"}, {388, "G"}}), video},
        {"mpg", head({{0, QByteArray("\0\0\1\xBA\x44", 5)}}), video},
        {"flv", head({{0, "FLV\1\5"}}), video},
        {"ogv", head({{0, "OggS"}, {28, "\x80theora"}}), video},
        {"cr3", isoMedia("crx "), unknown},
        {"wav", head({{0, "RIFF"}, {8, "WAVEfmt "}}), unknown},
        {"exv", head({{0, "\xFF\x01"}, {2, "Exiv2"}}), unknown},
        {"gif", head({{0, "GIF89a"}}), unknown},
        {"bmp", head({{0, "BM"}}), unknown},
        {"tga", head({{0, QByteArray("\0\0\2", 3)}}), unknown},
        {"jp2", head({{0, QByteArray("\0\0\0\x0CjP  \r\n\x87\n", 12)}}), unknown},
        {"pgf", head({{0, "PGF6"}}), unknown},
        {"eps", head({{0, "%!PS-Adobe-3.0 EPSF-3.0\n"}}), unknown},
        {"xmp", head({{0, "<?xpacket begin=\"\"?><x:xmpmeta>"}}), unknown},
        {"foveon", head({{0, "FOVb"}}), unknown},
        {"qtk", head({{0, "qktk"}}), unknown},
        {"text", "no picture", unknown},
    };
    folder.photograph("result.jpg");
    const QByteArray result = folder.content("result.jpg");
    for (const auto &file : files)
        for (const QString name :
             {"a.mp4", "a.MOV", "a.pgf", "a.tga", "a", "a.jpg", "a.PNG", "a.tif", "a.psd", "a.cr2", "a.nef", "a.RAF"}) {
            SCOPED_TRACE(std::string(file.what) + " as " + name.toStdString());
            const QString path = folder.path(name);
            folder.write(name, file.bytes);
            EXPECT_EQ(messageOf([&] { PhotoLoader::describe(path); }).rfind(file.message, 0), 0u);
            EXPECT_EQ(messageOf([&] { PhotoLoader::decode(path); }).rfind(file.message, 0), 0u);
            GflBitmap *bitmap = nullptr;
            EXPECT_EQ(gflLoadBitmapUTF8(path.toUtf8(), &bitmap, nullptr, nullptr), GFL_ERROR_UNKNOWN_FORMAT);
            EXPECT_EQ(carryXmp(path, folder.path("result.jpg")), QString());
            QFile::remove(path);
        }
    EXPECT_EQ(folder.content("result.jpg"), result);
}

TEST_F(PhotoLoaderTest, FurtherFormatsAreReadByTheirLibrariesUnlessTheSuffixNamesAnotherFormatAndNeverByTheCodecLayer)
{
    const char *const cut = "The file is cut short", *const without = "This installation can't decode",
                      *const unknown = "It is not a picture in a known format";
    const struct
    {
        const char *suffix;
        QByteArray bytes;
        const char *message;
    } files[] = {
        {"heic", isoMedia("heic"), without}, // nothing that it is compatible with
        {"avif", isoMedia("avif"), without},     {"webp", head({{0, "RIFF"}, {8, "WEBPVP8X"}}), cut},
        {"jxl", QByteArray("\xFF\x0A", 2), cut}, {"jxl", head({{0, QByteArray("\0\0\0\x0CJXL \r\n\x87\n", 12)}}), cut},
    };
    for (const auto &file : files)
        for (const QString name : {"a", "a.heic", "a.mp4", "a.jpg", "a.PNG", "a.tif", "a.psd", "a.cr2", "a.RAF"}) {
            SCOPED_TRACE(std::string(file.suffix) + " as " + name.toStdString());
            const QString path = folder.path(name);
            folder.write(name, file.bytes);
            const bool open = name == "a" || name == "a.heic" || name == "a.mp4",
                       built = PhotoLoader::readableSuffixes().contains(file.suffix);
            const char *const message = !open ? unknown : built ? file.message : without;
            EXPECT_EQ(messageOf([&] { PhotoLoader::describe(path); }).rfind(message, 0), 0u);
            EXPECT_EQ(messageOf([&] { PhotoLoader::decode(path); }).rfind(message, 0), 0u);
            GflBitmap *bitmap = nullptr;
            EXPECT_EQ(gflLoadBitmapUTF8(path.toUtf8(), &bitmap, nullptr, nullptr), GFL_ERROR_UNKNOWN_FORMAT);
            QFile::remove(path);
        }
}

TEST_F(PhotoLoaderTest, ASuffixOfCameraRawMustBeTrueAndItsShapeIsEnough)
{
    const char *const unknown = "It is not a picture in a known format", *const tried = "The camera raw file can't be developed";
    const struct
    {
        const char *name;
        QByteArray bytes;
        const char *message;
    } files[] = {
        {"a.nef", head({{0, "\xFF\xD8\xFF\xE1"}}), unknown},
        {"a.cr2", head({{0, "\x89PNG\r\n\x1A\n"}}), unknown},
        {"a.arw", head({{0, "8BPS"}}), unknown},
        {"a.jpg", head({{0, "FUJIFILMCCD-RAW "}}), unknown},
        {"a.tif", head({{0, "IIRO"}}), unknown},
        {"a.png", head({{0, QByteArray("II*\0", 4)}}), unknown},
        {"b.nef", head({{0, QByteArray("MM\0*", 4)}}), tried},
        {"b.raf", head({{0, "FUJIFILMCCD-RAW "}}), tried},
        {"b.raw", head({{0, QByteArray("IIU\0", 4)}}), tried},
        {"b.crw", head({{0, QByteArray("II\x1A\0\0\0HEAPCCDR", 14)}}), tried},
        {"b", head({{0, QByteArray("\0MRM", 4)}}), tried},
        {"b.xyz", head({{0, "MMOR"}}), tried},
    };
    for (const auto &file : files) {
        folder.write(file.name, file.bytes);
        EXPECT_EQ(messageOf([&] { PhotoLoader::describe(folder.path(file.name)); }).rfind(file.message, 0), 0u) << file.name;
    }
}

TEST_F(PhotoLoaderTest, ASizeThatAFileOfItsLengthCannotHoldIsDamage)
{
    folder.photograph("a.png");
    QByteArray png = folder.content("a.png");
    png.replace(16, 8, "\x7F\xFF\xFF\xFF\x7F\xFF\xFF\xFF");
    folder.write("a.png", png);
    folder.write("a.hdr", "#?RADIANCE\nFORMAT=32-bit_rle_rgbe\n\n-Y 4000000 +X 20000\n");
    for (const char *name : {"a.png", "a.hdr"})
        EXPECT_EQ(messageOf([&] { PhotoLoader::describe(folder.path(name)); }).rfind("The file is cut short or damaged", 0), 0u)
            << name;
}

TEST_F(PhotoLoaderTest, AFileIsOpenedOnceForItsHeadAndOnceForItsPixels)
{
    const struct
    {
        const char *name;
        unsigned short type; // 0: camera raw
        int bits;
        PhotoKind kind;
        int bytesPerPixel;
        bool metadata;
    } files[] = {
        {"a.jpg", VImage::Rgb, 8, PhotoKind::Jpeg, 3, true},
        {"cut.jpg", VImage::Rgb, 8, PhotoKind::Jpeg, 6, false},
        {"a.png", VImage::Rgba, 16, PhotoKind::Png, 8, true},
        {"a.tif", VImage::Grey, 16, PhotoKind::Tiff, 2, true},
        {"a.hdr", VImage::Rgb, 32, PhotoKind::Radiance, 12, true},
        {"a.exr", VImage::Rgba, 32, PhotoKind::OpenExr, 16, true},
        {"a.psd", VImage::Rgb, 8, PhotoKind::Photoshop, 3, true},
        {"a.dng", 0, 16, PhotoKind::Tiff, 6, true},
        {"raw", 0, 16, PhotoKind::Tiff, 6, true},
    };
    for (const auto &file : files) {
        SCOPED_TRACE(file.name);
        const QString path = folder.path(file.name);
        if (file.type == 0)
            folder.raw(file.name, 62, 34);
        else
            folder.photograph(file.name, 62, 34, file.type, file.bits);
        if (!file.metadata) { // cut within its end mark
            const QByteArray whole = folder.content(file.name);
            folder.write(file.name, whole.left(whole.size() - 1));
        }
        PhotoHead head;
        EXPECT_EQ(opensOf(path, [&] { head = PhotoLoader::describe(path); }), 1);
        EXPECT_EQ(head.kind, file.kind);
        EXPECT_EQ(head.raw, file.type == 0);
        EXPECT_EQ(head.width, 62);
        EXPECT_EQ(head.height, 34);
        EXPECT_EQ(head.orientation, file.type == 0 ? 6 : 1);
        EXPECT_EQ(head.bytesPerPixel, file.bytesPerPixel);
        EXPECT_TRUE(head.pixels);
        EXPECT_EQ(head.metadata, file.metadata);
        std::unique_ptr<DecodedPhoto> photo;
        std::string message;
        EXPECT_EQ(opensOf(path, [&] { message = messageOf([&] { photo = PhotoLoader::decode(path); }); }), 1);
        if (photo) {
            EXPECT_EQ(photo->image().Width(), 62);
            EXPECT_EQ(photo->image().Bitmap()->bytesPerPixel, file.bytesPerPixel);
        }
        EXPECT_EQ(message.rfind(file.metadata ? "nothing" : "The file is cut short", 0), 0u) << message;
    }
}
