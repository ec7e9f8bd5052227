#include <cmath>
#include <memory>

#include <QColorSpace>
#include <QFile>
#include <QFileInfo>
#include <exiv2/exiv2.hpp>
#include <gtest/gtest.h>
#include <lcms2.h>

#include "Histogram.h"
#include "OpenPhoto.h"
#include "PictureRenderer.h"
#include "ScreenColours.h"
#include "TestFolder.h"
#include "WantedStrength.h"
#include "WindowWorkTest.h"

namespace {

/// Rows without the gaps between them.
QByteArray bytesOf(const VImage &image, QRect part = {})
{
    if (part.isNull())
        part = {0, 0, image.Width(), image.Height()};
    const int rowBytes = part.width() * image.Bitmap()->bytesPerPixel;
    QByteArray bytes;
    for (int y = 0; y < part.height(); ++y)
        bytes.append(reinterpret_cast<const char *>(image.PixelAddress(part.x(), part.y() + y)), rowBytes);
    return bytes;
}

/// The pixels of a file as a viewer shows them.
std::unique_ptr<VImage> upright(const QString &path)
{
    auto image = std::make_unique<VImage>();
    PhotoLoader::decode(path)->image().Turn(*image, PhotoLoader::describe(path).orientation);
    return image;
}

void setOrientation(const QString &path, int orientation)
{
    const auto file = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    file->readMetadata();
    file->exifData()["Exif.Image.Orientation"] = std::uint16_t(orientation);
    file->writeMetadata();
}

/// Gives the photograph parts that are transparent, half or fully.
void makeTransparent(const QString &path)
{
    const auto photo = PhotoLoader::decode(path);
    VImage &image = photo->image();
    for (int y = 0; y < image.Height(); ++y)
        for (int x = 0; x < image.Width() / 2; ++x)
            if (image.BitsPerComponent() == 8)
                image.PixelAddress(x, y)[3] = x < 10 ? 0 : 100;
            else
                reinterpret_cast<std::uint16_t *>(image.PixelAddress(x, y))[3] = x < 10 ? 0 : 30000;
    image.Save(path, QFileInfo(path).suffix(), -1, QString());
}

std::shared_ptr<const OpenPhoto> complete(const QString &path)
{
    return OpenPhoto::read(path)->withMap();
}

QImage asQImage(const VImage &image)
{
    QImage picture;
    image.ToQImage(picture);
    return picture;
}

} // namespace

TEST(WindowWork, WhatIsShownAtFullSizeIsWhatIsSaved)
{
    TestFolder folder;
    const struct
    {
        const char *name;
        unsigned short type;
        int bits;
        int orientation = 1;
        int width = 61;
        int height = 47;
    } photos[] = {
        {"rgb8.png", VImage::Rgb, 8},
        {"rgb16.png", VImage::Rgb, 16},
        {"rgba8.png", VImage::Rgba, 8},
        {"rgba16.png", VImage::Rgba, 16},
        {"grey8.tif", VImage::Grey, 8},
        {"grey16.tif", VImage::Grey, 16},
        {"rgb16.tif", VImage::Rgb, 16},
        {"float.tif", VImage::Rgb, 32},
        {"turned.png", VImage::Rgb, 16, 6},
        {"turned.tif", VImage::Rgb, 8, 8},
        {"mirrored.tif", VImage::Rgb, 8, 7},
        {"wide.png", VImage::Rgb, 8, 1, 21480, 9},
        {"high.tif", VImage::Rgb, 8, 6, 21480, 9},
    };
    QStringList names;
    for (const auto &photo : photos) {
        folder.photograph(photo.name, photo.width, photo.height, photo.type, photo.bits);
        if (photo.type == VImage::Rgba)
            makeTransparent(folder.path(photo.name));
        if (photo.orientation != 1)
            setOrientation(folder.path(photo.name), photo.orientation);
        names << photo.name;
    }
    for (const QString strength : {"0", "20", "70", "100", "auto"}) {
        const Said said = folder.run(QStringList{"--strength", strength, "--tag", "_" + strength} + names);
        ASSERT_EQ(said.code, 0) << said.err;
    }
    for (const QString &name : names) {
        const auto photo = complete(folder.path(name));
        ASSERT_TRUE(photo->hasMap()) << name;
        for (const QString strength : {"0", "20", "70", "100", "auto"}) {
            SCOPED_TRACE((name + " " + strength).toStdString());
            const int percent =
                strength == "auto" ? photo->automaticStrength().value_or(WantedStrength::kUsual) : strength.toInt();
            const auto saved =
                upright(folder.path(QFileInfo(name).completeBaseName() + "_" + strength + "." + QFileInfo(name).suffix()));
            ASSERT_EQ(QSize(saved->Width(), saved->Height()), photo->size());
            VImage shown;
            for (const QRect part :
                 {QRect(QPoint(), photo->size()), QRect(3, 2, photo->width() - 4, photo->height() - 5), QRect(5, 7, 1, 1)}) {
                photo->recover(0, part, percent, shown);
                EXPECT_EQ(bytesOf(shown), bytesOf(*saved, part));
            }
            // The way from there to the screen: pixel for pixel at 100 %, squares of four at 200 %.
            if (saved->Type() == VImage::Rgba)
                continue;
            const QImage expected = asQImage(*saved).convertToFormat(QImage::Format_RGB32);
            EXPECT_EQ(PictureRenderer::picture(requestOf(photo, percent)), expected);
            PictureRequest twice = requestOf(photo, percent, 2);
            twice.corner = {2, 1};
            twice.size = {11, 8};
            const QImage squares = PictureRenderer::picture(twice);
            for (const QPoint at : {QPoint(0, 0), QPoint(1, 1), QPoint(2, 1), QPoint(10, 7)})
                EXPECT_EQ(squares.pixel(at), expected.pixel(2 + at.x() / 2, 1 + at.y() / 2));
        }
    }
}

TEST(WindowWork, AReducedPictureIsTheMeanOfTheSavedPixels)
{
    TestFolder folder;
    folder.photograph("a.png", 640, 480);
    ASSERT_EQ(folder.run({"--strength", "80", "a.png"}).code, 0);
    const QImage saved = asQImage(*upright(folder.path("a_dehazed.png")));
    const auto photo = complete(folder.path("a.png"));
    const auto meanOf = [&](int x, int y, int side, int (*channel)(QRgb)) {
        double sum = 0;
        for (int v = 0; v < side; ++v)
            for (int u = 0; u < side; ++u)
                sum += channel(saved.pixel(x * side + u, y * side + v));
        return sum / (side * side);
    };
    constexpr int (*kChannels[])(QRgb) = {qRed, qGreen, qBlue};
    for (const int side : {2, 5}) {
        PictureRequest request = requestOf(photo, 80, 1.0 / side);
        request.corner = {side * 3.0, side * 2.0};
        request.size = {50, 40};
        const QImage exact = PictureRenderer::picture(request);
        for (int y = 0; y < 40; y += 3)
            for (int x = 0; x < 50; ++x)
                for (const auto channel : kChannels)
                    ASSERT_NEAR(channel(exact.pixel(x, y)), meanOf(x + 3, y + 2, side, channel), 0.51)
                        << side << ' ' << x << ' ' << y;
    }
}

TEST(WindowWork, MapMarksTransparencyAndWhatLiesOutside)
{
    TestFolder folder;
    folder.photograph("clear.png", 60, 40, VImage::Rgba);
    makeTransparent(folder.path("clear.png"));
    const auto photo = complete(folder.path("clear.png"));
    PictureRequest request = requestOf(photo, 0);
    const QImage saved = asQImage(photo->pixels(0));

    // Transparent parts show squares of two greys; half-transparent ones let them through.
    const QImage shown = PictureRenderer::picture(request);
    EXPECT_EQ(shown.format(), QImage::Format_RGB32);
    EXPECT_EQ(shown.pixel(0, 0), qRgb(153, 153, 153));
    EXPECT_EQ(shown.pixel(8, 0), qRgb(102, 102, 102));
    EXPECT_NEAR(qRed(shown.pixel(12, 3)), (qRed(saved.pixel(12, 3)) * 100 + 102 * 155) / 255.0, 1);
    EXPECT_EQ(shown.pixel(50, 30), saved.pixel(50, 30));
    // Colours of transparent pixels don't bleed into a reduced picture: its columns 4 and 5 lie on either side of the edge.
    const QImage reduced = PictureRenderer::picture(requestOf(photo, 0, 0.5));
    EXPECT_EQ(reduced.pixel(4, 3), qRgb(153, 153, 153));
    EXPECT_NE(reduced.pixel(5, 3), qRgb(153, 153, 153));

    for (const double scale : {0.5, 1.0, 3.0}) {
        PictureRequest beyond = requestOf(photo, 0, scale);
        beyond.corner = {-10 / scale, 0};
        const QImage picture = PictureRenderer::picture(beyond);
        EXPECT_EQ(qAlpha(picture.pixel(9, 0)), 0) << scale;
        EXPECT_EQ(qAlpha(picture.pixel(10, 0)), 255) << scale;
    }

    // Marks, in all forms of samples: pixel 0 is black in one channel, 1 white in one, 2 both, 3 neither.
    for (const int bits : {8, 16, 32}) {
        const QString name = QStringLiteral("marks%1.tif").arg(bits);
        folder.photograph(name, 30, 20, VImage::Rgb, bits);
        {
            const auto decoded = PhotoLoader::decode(folder.path(name));
            const float values[4][3] = {{0, 0.5f, 0.5f}, {0.5f, 1, 0.5f}, {1, 0, 0.5f}, {0.4f, 0.5f, 0.6f}};
            VImage exact(4, 1, VImage::Rgb, 32, false, const_cast<float *>(values[0]), sizeof values);
            exact.CopyRect(0, 0, 4, 1, decoded->image(), 0, 0);
            decoded->image().Save(folder.path(name), "tiff", -1, QString());
        }
        const auto marked = complete(folder.path(name));
        PictureRequest clipping = requestOf(marked, 0);
        clipping.clipping = true;
        const QImage marks = PictureRenderer::picture(clipping);
        EXPECT_EQ(marks.pixel(0, 0), PictureRequest::kBlackMark) << bits;
        EXPECT_EQ(marks.pixel(1, 0), PictureRequest::kWhiteMark) << bits;
        EXPECT_EQ(marks.pixel(2, 0), PictureRequest::kWhiteMark) << bits;
        EXPECT_EQ(marks.pixel(3, 0), asQImage(marked->pixels(0)).pixel(3, 0)) << bits;
    }

    // The map in grey: more haze at the top, in both kinds of pictures.
    for (const double scale : {0.5, 1.0}) {
        request = requestOf(photo, 70, scale);
        request.what = PictureRequest::HazeMap;
        const QImage map = PictureRenderer::picture(request);
        const int x = map.width() - 4;
        EXPECT_EQ(qRed(map.pixel(x, 4)), qBlue(map.pixel(x, 4)));
        EXPECT_GT(qGray(map.pixel(x, 1)), qGray(map.pixel(x, map.height() - 2)) + 20);
    }
    const auto value = *reinterpret_cast<const float *>(photo->map(0).PixelAddress(50, 3));
    request = requestOf(photo, 0);
    request.what = PictureRequest::HazeMap;
    EXPECT_NEAR(qGray(PictureRenderer::picture(request).pixel(50, 3)), std::min(value, 1.0f) * 255, 0.51);
}

TEST(WindowWork, ColoursComeOutAsADoubleComputationSays)
{
    const auto profileBytes = [](cmsHPROFILE profile) {
        cmsUInt32Number bytes = 0;
        cmsSaveProfileToMem(profile, nullptr, &bytes);
        QByteArray saved(int(bytes), 0);
        cmsSaveProfileToMem(profile, saved.data(), &bytes);
        cmsCloseProfile(profile);
        return saved;
    };
    cmsToneCurve *const gamma = cmsBuildGamma(nullptr, 1.8);
    const QByteArray greyProfile = profileBytes(cmsCreateGrayProfile(cmsD50_xyY(), gamma));
    cmsFreeToneCurve(gamma);
    const QByteArray srgb = QColorSpace(QColorSpace::SRgb).iccProfile();
    const QByteArray adobe = QColorSpace(QColorSpace::AdobeRgb).iccProfile(),
                     p3 = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    const QByteArray proPhoto = QColorSpace(QColorSpace::ProPhotoRgb).iccProfile();
    const struct
    {
        const char *name;
        QByteArray profile, screen;
        unsigned short type;
        bool unchanged = false;
    } cases[] = {
        {"Adobe RGB", adobe, {}, VImage::Rgb},
        {"Display P3", p3, {}, VImage::Rgb},
        {"ProPhoto RGB", proPhoto, {}, VImage::Rgb},
        {"Adobe RGB with alpha", adobe, p3, VImage::Rgba},
        {"none on a wide screen", {}, p3, VImage::Rgb},
        {"grey", greyProfile, {}, VImage::Grey},
        {"grey with a profile for colours", adobe, {}, VImage::Grey},
        {"none", {}, {}, VImage::Rgb, true},
        {"damaged", adobe.left(200), "no profile", VImage::Rgb, true},
        {"a profile for grey with colours", greyProfile, {}, VImage::Rgb, true},
    };
    constexpr int kSide = 64;
    for (const auto &one : cases)
        for (const int bits : {8, 16, 32}) {
            SCOPED_TRACE(std::string(one.name) + " " + std::to_string(bits));
            // Colours all over the cube, its corners and neutral ones included; floats beyond the scale are clamped.
            VImage exact(kSide, kSide, VImage::Rgba, 32), pixels, working;
            for (int i = 0; i < kSide * kSide; ++i) {
                auto *const pixel = reinterpret_cast<float *>(exact.PixelAddress(i % kSide, i / kSide));
                const int neutral = i % 5 == 0;
                for (int c = 0; c < 3; ++c)
                    pixel[c] = float((neutral ? i / 16 : i >> (4 * c)) % 16) / 15;
                pixel[3] = i % 3 ? 1.0f : 0.5f;
            }
            exact.ConvertTo(pixels, one.type, bits);
            pixels.ConvertTo(working, VImage::Rgba, 32);
            if (bits == 32)
                *reinterpret_cast<float *>(pixels.PixelAddress(1, 0)) *= 3;
            ScreenColours colours(one.screen);
            QImage picture;
            colours.convert(pixels, one.profile, ScreenColours::Quality::Exact, picture);

            const bool grey = one.type == VImage::Grey && one.profile == greyProfile;
            const QByteArray from = one.profile.isEmpty() ? srgb : one.profile, to = one.screen.isEmpty() ? srgb : one.screen;
            const cmsHPROFILE source = cmsOpenProfileFromMem(from.data(), cmsUInt32Number(from.size()));
            const cmsHPROFILE target = cmsOpenProfileFromMem(to.data(), cmsUInt32Number(to.size()));
            const cmsHTRANSFORM transform =
                one.unchanged ? nullptr
                              : cmsCreateTransform(source, grey ? TYPE_GRAY_DBL : TYPE_RGB_DBL, target, TYPE_RGB_DBL,
                                                   INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
            double worst = 0;
            for (int y = 0; y < kSide; ++y)
                for (int x = bits == 32 && y == 0 ? 2 : 0; x < kSide; ++x) {
                    const auto *const pixel = reinterpret_cast<const float *>(working.PixelAddress(x, y));
                    const double in[3] = {pixel[0], pixel[1], pixel[2]};
                    double out[3] = {pixel[0], pixel[1], pixel[2]};
                    if (transform)
                        cmsDoTransform(transform, in, out, 1);
                    const QRgb shown = picture.pixel(x, y);
                    const int channels[] = {qRed(shown), qGreen(shown), qBlue(shown)};
                    for (int c = 0; c < 3; ++c)
                        worst = std::max(worst, std::fabs(std::min(1.0, std::max(0.0, out[c])) * 255 - channels[c]));
                    EXPECT_EQ(qAlpha(shown), one.type == VImage::Rgba && (y * kSide + x) % 3 == 0 ? 128 : 255);
                }
            EXPECT_LE(worst, 1.0);
            if (transform)
                cmsDeleteTransform(transform);
            if (source)
                cmsCloseProfile(source);
            if (target)
                cmsCloseProfile(target);
        }
}

TEST(WindowWork, TheProfileOfAFileIsUsed)
{
    TestFolder folder;
    folder.photograph("plain.png");
    QImage picture(folder.path("plain.png"));
    picture.setColorSpace(QColorSpace(QColorSpace::AdobeRgb));
    ASSERT_TRUE(picture.save(folder.path("adobe.png")));
    const auto plain = OpenPhoto::read(folder.path("plain.png")), adobe = OpenPhoto::read(folder.path("adobe.png"));
    EXPECT_TRUE(plain->profile().isEmpty());
    EXPECT_EQ(adobe->profile(), QColorSpace(QColorSpace::AdobeRgb).iccProfile());
    EXPECT_EQ(bytesOf(adobe->pixels(0)), bytesOf(plain->pixels(0)));
    EXPECT_NE(PictureRenderer::picture(requestOf(adobe, 0)), PictureRenderer::picture(requestOf(plain, 0)));
}

TEST(WindowWork, TheHistogramCountsWhatIsSaved)
{
    TestFolder folder;
    folder.photograph("a.png", 90, 70);
    folder.photograph("grey.tif", 90, 70, VImage::Grey, 16);
    ASSERT_EQ(folder.run({"--strength", "100", "a.png", "grey.tif"}).code, 0);
    for (const QString name : {"a.png", "grey.tif"}) {
        const auto photo = complete(folder.path(name));
        const auto saved = upright(folder.path(QString(name).replace(".", "_dehazed.")));
        Histogram expected;
        int black = 0, white = 0;
        const auto count = [](const VImage &image, std::array<Histogram::Bins, 3> &bins, int *blackCount, int *whiteCount) {
            const QImage picture = asQImage(image);
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x) {
                    const QRgb pixel = picture.pixel(x, y);
                    const int channels[] = {qRed(pixel), qGreen(pixel), qBlue(pixel)};
                    for (std::size_t c = 0; c < 3; ++c)
                        ++bins[c][std::size_t(channels[c])];
                    *blackCount += channels[0] == 0 || channels[1] == 0 || channels[2] == 0;
                    *whiteCount += channels[0] == 255 || channels[1] == 255 || channels[2] == 255;
                }
        };
        int unused[2];
        count(photo->pixels(0), expected.before, &unused[0], &unused[1]);
        count(*saved, expected.after, &black, &white);
        const Histogram counted = histogramOf(*photo, 100);
        EXPECT_EQ(counted.before, expected.before) << name;
        EXPECT_EQ(counted.after, expected.after) << name;
        if (saved->BitsPerComponent() == 8) {
            EXPECT_DOUBLE_EQ(counted.black, black / 6300.0);
            EXPECT_DOUBLE_EQ(counted.white, white / 6300.0);
            EXPECT_GT(counted.black, 0);
        }
        EXPECT_EQ(histogramOf(*OpenPhoto::read(folder.path(name)), 100).after, expected.before) << "before the map is there";
    }
}
