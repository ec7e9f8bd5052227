#include <QFile>

#include <gtest/gtest.h>

#include "CameraProperties.h"
#include "LensIDProperties.h"

namespace {

QByteArray dataFile(const QString &name)
{
    QFile file(":/Data/" + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST(CameraProperties, FirstMatchWins)
{
    const QVector<CameraProperties::Row> rows = CameraProperties::read(dataFile("cameras.txt"));
    const struct
    {
        const char *brand;
        const char *model;
        double scale;
    } cases[] = {
        {"Apple", "iPhone 6S", 6.9},
        {"Apple", "iPhone 6s Plus", 6.9},
        {"Apple", "iPhone 5", 5.9},
        {"NIKON CORPORATION", "NIKON D3100", 1.558},
        {"NIKON CORPORATION", "NIKON D3S", 1.001},
        {"NIKON CORPORATION", "NIKON D3900", 0}, // not the D3
        {"Canon", "Canon EOS Kiss X50", 1.6188}, // with a comment after the number
        {"Canon", "Canon EOS DIGITAL REBEL XSi", 1.622},
        {"Canon", "Canon EOS-1Ds Mark III", 1.0},
        {"Canon", "Canon PowerShot A400", 7.619},
        {"Canon", "Canon PowerShot A40", 6.441},
        {"Sony", "iPhone", 0},
        {"", "", 0},
    };
    for (const auto &[brand, model, scale] : cases)
        EXPECT_DOUBLE_EQ(CameraProperties::sensorScale(rows, brand, model), scale) << model;
}

TEST(CameraProperties, NoRowHidesALaterOne)
{
    const QVector<CameraProperties::Row> rows = CameraProperties::read(dataFile("cameras.txt"));
    EXPECT_GE(rows.size(), 6);
    for (int late = 0; late < rows.size(); ++late)
        for (int early = 0; early < late; ++early)
            EXPECT_FALSE(rows[late].brand == rows[early].brand && rows[late].name.startsWith(rows[early].name))
                << qPrintable(rows[late].name) << " follows " << qPrintable(rows[early].name);
}

TEST(CameraProperties, SkipsMalformedRows)
{
    const auto rows = CameraProperties::read("#A;B;1\r\n\r\n A ; B ;2.5 # C;D\r\nA;B\r\nA;B;x\r\nA;B;-1\r\nA;;1\r\n;\nE;F;3");
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].brand + rows[0].name, "AB");
    EXPECT_EQ(rows[0].sensorScale, 2.5);
    EXPECT_EQ(rows[1].sensorScale, 3);
    EXPECT_TRUE(CameraProperties::read(QByteArray()).isEmpty());
}

TEST(LensIDProperties, FindsByNumbers)
{
    const QVector<LensIDProperties::Row> rows = LensIDProperties::read(dataFile("lensid.txt"));
    const struct
    {
        const char *brand;
        const char *identifier;
        const char *name;
        LensIDProperties::Kind kind;
    } cases[] = {
        {"Nikon", "8 8 38 4 4", "Sigma 8mm f/4.0 EX Circular Fisheye", LensIDProperties::Fisheye},
        {"Nikon", " 10 17 0  3.6 4.5", "Tokina AT-X 107 DX Fish-Eye -AF 10-17mm f/3.5-4.5", LensIDProperties::Standard},
        {"Canon", "24 24 95", "Canon TS-E 24mm f/3.5L II", LensIDProperties::TiltShift},
    };
    for (const auto &[brand, identifier, name, kind] : cases) {
        const LensIDProperties::Row *row = LensIDProperties::find(rows, brand, identifier);
        ASSERT_TRUE(row) << identifier;
        EXPECT_EQ(row->name, name);
        EXPECT_EQ(row->kind, kind);
    }
    for (const char *identifier : {"24 24", "", "24 24 x", "10 17"})
        EXPECT_FALSE(LensIDProperties::find(rows, "Canon", identifier)) << identifier;
    EXPECT_FALSE(LensIDProperties::find(rows, "Nikon", "24 24 95"));

    const auto read =
        LensIDProperties::read("1 2 3;A;first;0 \r\n1 2 3;A;second;1\r\n# 1 1 1;A;C;0\n1 2;A;B;3\nx;A;B;0\n1 2;A;0\n");
    ASSERT_EQ(read.size(), 2);
    EXPECT_EQ(LensIDProperties::find(read, "A", "1 2 3")->name, "first");
}

} // namespace
