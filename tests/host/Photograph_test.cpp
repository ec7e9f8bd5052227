#include <QCoreApplication>
#include <QFile>
#include <exiv2/exiv2.hpp>

#include "PhotoTest.h"
#include "Photograph.h"
#include "VException.h"

namespace {

/// The digits that a small grey picture holds, row by row or column by column.
std::string digits(const VImage &image, bool byColumns)
{
    std::string seen;
    const int lines = byColumns ? image.Width() : image.Height(), length = byColumns ? image.Height() : image.Width();
    for (int line = 0; line < lines; ++line)
        for (int i = 0; i < length; ++i)
            seen += char('0' + *image.PixelAddress(byColumns ? line : i, byColumns ? i : line));
    return seen;
}

using PhotographTest = PhotoTest;

} // namespace

TEST_F(PhotographTest, ScaledImagesAreTurnedAsAViewerShowsThem)
{
    VImage image(3, 2, VImage::Grey, 8); // 1 2 3 / 4 5 6
    for (int i = 0; i < 6; ++i)
        *image.PixelAddress(i % 3, i / 3) = static_cast<unsigned char>(i + 1);
    image.Save(folder.path("a.tif"), "tiff", -1, QString());
    const char *const shown[] = {"123456", "321654", "654321", "456123", "142536", "415263", "635241", "362514"};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        {
            auto file = Exiv2::ImageFactory::open(QFile::encodeName(folder.path("a.tif")).toStdString());
            file->readMetadata();
            file->exifData()["Exif.Image.Orientation"] = uint16_t(orientation);
            file->writeMetadata();
        }
        for (const bool transposed : {false, true}) {
            Photograph photograph(folder.path("a.tif"), nullptr, {transposed, /*tiffOutput=*/false, /*original=*/{}});
            const bool tall = (orientation >= 5) != transposed;
            EXPECT_EQ(photograph.width(), tall ? 2 : 3);
            EXPECT_EQ(photograph.height(), tall ? 3 : 2);
            const VImage *scaled = photograph.acquireScaled(photograph.width(), photograph.height(), 1);
            EXPECT_EQ(digits(*scaled, transposed), shown[orientation - 1]) << orientation << transposed;
            photograph.releaseScaled(photograph.width(), photograph.height(), 1);
            EXPECT_EQ(digits(*photograph.acquireFull(1), transposed), "123456"); // as stored
            EXPECT_EQ(photograph.facts().width, transposed ? 2 : 3);
            photograph.releaseFull(1);
        }
    }
}

TEST_F(PhotographTest, DecodesWhenAcquiredAndFreesWhenReleased)
{
    folder.photograph("a.png", 64, 48, VImage::Rgba, 16);
    Photograph photograph(folder.path("a.png"));
    EXPECT_EQ(photograph.width(), 64); // from the head of the file, which is removed below
    std::vector<Photograph::Use> uses;
    photograph.watch([&](Photograph::Use use) { uses.push_back(use); });
    VImage *full = photograph.acquireFull(1);
    EXPECT_EQ(full, photograph.acquireFull(1)); // decoded once for two uses at the same time
    QFile::remove(folder.path("a.png"));
    EXPECT_EQ(photograph.acquireScaled(32, 24, 1)->Width(), 32); // from the image that is there
    photograph.releaseScaled(32, 24, 1);
    photograph.releaseFull(1);
    photograph.releaseFull(1);
    using Use = Photograph::Use;
    EXPECT_EQ(uses, (std::vector{Use::Reading, Use::Read, Use::Reading, Use::Read, Use::Released, Use::Released}));
    EXPECT_THROW(photograph.acquireFull(1), VException); // not kept
    EXPECT_THROW(photograph.acquireScaled(32, 24, 1), VException);

    folder.photograph("a.png", 64, 48);
    photograph.refuseFrom(64);
    EXPECT_THROW(photograph.acquireFull(1), VException);
    photograph.refuseFrom(65);
    EXPECT_NO_THROW(photograph.acquireFull(1));
    photograph.dropFull();

    // Decoded ahead, it is not decoded again, and the first use frees it as usual.
    Photograph ahead(folder.path("a.png"));
    EXPECT_EQ(ahead.automaticStrength(), std::nullopt);
    ahead.decodeAhead();
    QFile::remove(folder.path("a.png"));
    EXPECT_EQ(ahead.automaticStrength(), 80);
    EXPECT_NO_THROW(ahead.acquireFull(1));
    ahead.releaseFull(1);
    EXPECT_THROW(ahead.acquireFull(1), VException);
}
