// Photographs in formats that only the program reads, what is left out of a photograph with several pictures, and how results are
// packed: the program run as a user would.

#include <cstring>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <exiv2/exiv2.hpp>
#include <gmock/gmock.h>

#include "PhotoLoader.h"
#include "PhotoTest.h"
#include "writePicture.h"

using testing::HasSubstr;

namespace {

constexpr char kXmp[] = "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
                        "<rdf:Description rdf:about='' xmlns:xmp='http://ns.adobe.com/xap/1.0/' xmp:Rating='4' "
                        "xmlns:tiff='http://ns.adobe.com/tiff/1.0/' tiff:Make='Acme'/></rdf:RDF></x:xmpmeta>";

class Formats : public PhotoTest
{
protected:
    /// The samples of a picture without the padding of rows, after its form in words.
    QByteArray pixels(const QString &name) const
    {
        const auto photo = PhotoLoader::decode(folder.path(name));
        VImage &image = photo->image();
        QByteArray all = QStringLiteral("%1 x %2, %3 of %4: ")
                             .arg(image.Width())
                             .arg(image.Height())
                             .arg(image.Bitmap()->componentsPerPixel)
                             .arg(image.BitsPerComponent())
                             .toLatin1();
        for (int y = 0; y < image.Height(); ++y)
            all.append(reinterpret_cast<const char *>(image.PixelAddress(0, y)), image.Width() * image.Bitmap()->bytesPerPixel);
        return all;
    }
    Exiv2::Image &metadata(const QString &name)
    {
        open = Exiv2::ImageFactory::open(QFile::encodeName(folder.path(name)).toStdString());
        open->readMetadata();
        return *open;
    }

private:
    decltype(Exiv2::ImageFactory::open(std::string())) open;
};

} // namespace

TEST_F(Formats, PixelsAndMetadataAreTheSameWhateverWayAPhotographGoesIn)
{
    for (const std::string &suffix : writableSuffixes())
        for (const int bits : {8, 10}) {
            if (bits > 8 && suffix == "webp")
                continue;
            SCOPED_TRACE(suffix + ", " + std::to_string(bits));
            QDir(folder.path("out")).removeRecursively();
            const QString name = "a." + QString::fromStdString(suffix);
            PictureForm form;
            form.width = 150;
            form.height = 110;
            form.bits = bits;
            form.orientation = suffix == "webp" ? 1 : 6;
            form.exif = exifBlock(/*orientation=*/suffix == "webp" ? 6 : 3, "valley");
            form.xmp = kXmp;
            writePicture(folder.path(name).toStdString(), form);
            PhotoLoader::decode(folder.path(name))->image().Save(folder.path("b.tif"), "tif", -1, QString());

            const Said said = folder.run({name, "b.tif", "-s", "80", "--overwrite"});
            ASSERT_EQ(said.code, 0) << said.err;
            EXPECT_THAT(said.err.toStdString(), HasSubstr("so the result is a TIFF"));
            EXPECT_EQ(pixels("a_dehazed.tiff"), pixels("b_dehazed.tif"));
            EXPECT_NE(pixels("a_dehazed.tiff"), pixels("b.tif"));
            if (bits == 8) {
                EXPECT_EQ(folder.run({name, "-s", "80", "-q", "-o", "out/c.png"}).err, "");
                EXPECT_EQ(pixels("out/c.png"), pixels("a_dehazed.tiff"));
            }
            const Said jpeg = folder.run({name, "-s", "80", "-o", "out/c.jpg", "--quality", "97"});
            EXPECT_EQ(jpeg.code, bits == 8 ? 0 : 1);
            if (bits > 8) {
                EXPECT_THAT(jpeg.err.toStdString(), HasSubstr("16 bits per channel don't fit"));
            }

            for (const char *result : {"a_dehazed.tiff", "out/c.png", "out/c.jpg"}) {
                if (!QFileInfo::exists(folder.path(result)))
                    continue;
                Exiv2::Image &found = metadata(result);
                EXPECT_EQ(found.exifData()["Exif.Image.ImageDescription"].toString(), "valley") << result;
                EXPECT_EQ(found.exifData()["Exif.Image.Orientation"].toString(), suffix == "webp" ? "6" : "1") << result;
                EXPECT_EQ(found.xmpData()["Xmp.xmp.Rating"].toString(), "4") << result;
                EXPECT_TRUE(found.iccProfileDefined() || suffix != "jxl") << result;
            }
            EXPECT_EQ(QDir(folder.path("out")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
                      bits == 8 ? 2 : 0);
            QFile::remove(folder.path(name));
        }
    EXPECT_EQ(folder.files(), (QStringList{"a_dehazed.tiff", "b.tif", "b_dehazed.tif"}));
}

TEST_F(Formats, FurtherPicturesOfAJpegAreLeftOutWithANoteAndOtherXmpStays)
{
    const auto segment = [](int marker, const QByteArray &content) {
        const int size = content.size() + 2;
        return QByteArray("\xFF", 1) + char(marker) + char(size >> 8) + char(size & 0xFF) + content;
    };
    const QByteArray index("MPF\0MM\0*\0\0\0\x08\0\1\xB0\2\0\7\0\0\0\x20\0\0\0\x1A\0\0\0\0\x20\3\0\0", 34);
    QByteArray packet = kXmp;
    packet.replace("tiff:Make='Acme'/>",
                   "xmlns:hdrgm='http://ns.adobe.com/hdr-gain-map/1.0/' hdrgm:Version='1.0' "
                   "xmlns:GCamera='http://ns.google.com/photos/1.0/camera/' GCamera:MotionPhoto='1' GCamera:Mode='7' "
                   "xmlns:Container='http://ns.google.com/photos/1.0/container/' "
                   "xmlns:Item='http://ns.google.com/photos/1.0/container/item/'><Container:Directory><rdf:Seq><rdf:li "
                   "rdf:parseType='Resource'><Container:Item Item:Semantic='GainMap' Item:Length='9'/></rdf:li></rdf:Seq>"
                   "</Container:Directory></rdf:Description>");
    packet.replace("/></rdf:RDF>", "</rdf:RDF>");
    folder.photograph("plain.jpg");
    const QByteArray plain = folder.content("plain.jpg");
    folder.write("a.jpg", plain.left(2) + segment(0xE1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + packet) +
                              segment(0xE2, index + QByteArray(28, '\0')) + plain.mid(2) + "the map");
    for (const QStringList &more : {QStringList{"-o", "a_dehazed.jpg"}, QStringList{"-o", "a.tif"}, QStringList{}}) {
        const QString result = more.value(1, "a_dehazed.jpg");
        const Said said = folder.run(QStringList{"a.jpg", "-s", "80", "--overwrite"} + more);
        EXPECT_EQ(said.code, 0);
        EXPECT_THAT(said.err.toStdString(), HasSubstr("gain map or further pictures"));
        EXPECT_EQ(folder.run({"plain.jpg", "-s", "80", "--overwrite"}).err, "");
        const QByteArray content = folder.content(result);
        for (const char *trace : {"MPF", "hdr-gain-map", "container", "MotionPhoto", "the map"})
            EXPECT_FALSE(content.contains(trace)) << result << ": " << trace;
        Exiv2::XmpData &xmp = metadata(result).xmpData();
        EXPECT_EQ(xmp["Xmp.xmp.Rating"].toString(), "4") << result;
        EXPECT_TRUE(content.contains("Mode")) << result;
    }
}

TEST_F(Formats, ResultsArePackedAsChosenOrLikeTheirPhotograph)
{
    folder.photograph("a.jpg", 200, 150);
    folder.photograph("b.tif", 200, 150, VImage::Rgb, 16);
    folder.photograph("c.png", 200, 150);
    const auto set = [&](const QString &name) {
        Exiv2::Image &file = metadata(name);
        file.exifData()["Exif.Image.Orientation"] = std::uint16_t(6);
        file.exifData()["Exif.Image.Artist"] = "Ann";
        file.xmpData()["Xmp.xmp.Rating"] = "4";
        file.writeMetadata();
    };
    set("a.jpg");
    set("b.tif");
    const auto sizes = [&](const char *option, const QStringList &values, const QString &result) {
        std::vector<qint64> found;
        for (const QString &value : values) {
            const Said said = folder.run({"a.jpg", "b.tif", "c.png", "-s", "80", "--overwrite", option, value});
            EXPECT_EQ(said.code, 0) << said.err;
            found.push_back(folder.content(result).size());
            Exiv2::Image &file = metadata(result);
            EXPECT_EQ(file.exifData()["Exif.Image.Artist"].toString(), "Ann") << value;
            EXPECT_EQ(file.exifData()["Exif.Image.Orientation"].toString(), "6") << value;
            EXPECT_EQ(file.xmpData()["Xmp.xmp.Rating"].toString(), "4") << value;
        }
        return found;
    };
    ASSERT_EQ(folder.run({"a.jpg", "b.tif", "c.png", "-s", "80"}).code, 0);
    const QByteArray usual = folder.content("a_dehazed.jpg"), untouched = folder.content("c_dehazed.png"),
                     tiff = pixels("b_dehazed.tif");
    const auto jpegs = sizes("--quality", {"40", "92", "100"}, "a_dehazed.jpg");
    EXPECT_LT(jpegs[0], jpegs[1]);
    EXPECT_LT(jpegs[1], jpegs[2]);
    // The photograph was written with 92, so that this is also what its result gets.
    sizes("--quality", {"92"}, "a_dehazed.jpg");
    EXPECT_EQ(pixels("a_dehazed.jpg").size(), 200 * 150 * 3 + int(std::strlen("200 x 150, 3 of 8: ")));
    EXPECT_EQ(folder.content("a_dehazed.jpg"), usual);
    EXPECT_EQ(folder.content("c_dehazed.png"), untouched);

    const auto tiffs = sizes("--compression", {"none", "lzw", "deflate"}, "b_dehazed.tif");
    EXPECT_GT(tiffs[0], tiffs[1]);
    EXPECT_GT(tiffs[0], tiffs[2]);
    EXPECT_EQ(pixels("b_dehazed.tif"), tiff);
    QFile::remove(folder.path("b.tif"));
    QFile::rename(folder.path("b_dehazed.tif"), folder.path("b.tif")); // deflated
    EXPECT_EQ(folder.run({"b.tif", "-s", "80"}).code, 0);
    EXPECT_LT(folder.content("b_dehazed.tif").size(), tiffs[0] * 3 / 4);

    const std::pair<QStringList, const char *> wrong[] = {{{"--quality", "0"}, "from 1 to 100"},
                                                          {{"--quality", "101"}, "from 1 to 100"},
                                                          {{"--quality", "high"}, "from 1 to 100"},
                                                          {{"--compression", "zip"}, "none, deflate or lzw"}};
    for (const auto &[options, message] : wrong) {
        const Said said = folder.run(QStringList{"a.jpg"} + options);
        EXPECT_EQ(said.code, 2);
        EXPECT_THAT(said.err.toStdString(), HasSubstr(message));
    }
}
