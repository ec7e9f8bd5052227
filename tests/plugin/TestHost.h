#pragma once

#include <cmath>
#include <map>
#include <memory>

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QMap>
#include <QStringList>
#include <QTranslator>

#include <gtest/gtest.h>

#include "ImageDef.h"
#include "VIApplication.h"
#include "VImage.h"

/// One photograph of the test's host. Every call that acquires or releases an image is recorded in
/// `calls`.
class TestImage : public ImageDef
{
public:
    TestImage(QString path, QStringList &callsOfHost) : name(QFileInfo(path).fileName()), calls(callsOfHost) {}

    QString displayName() override { return name; }
    int height() override { return fullHeight; }
    int width() override { return fullWidth; }
    int channelCount() override { return type == VImage::Grey ? 1 : 3; }
    int bitsPerChannel() override { return bits; }
    bool needsTiffOutput() override { return false; }
    VImage *acquireScaled(int scaledWidth, int scaledHeight, int flag) override
    {
        calls += QStringLiteral("acquireScaled %1 %2 %3").arg(scaledWidth).arg(scaledHeight).arg(flag);
        return draw(scaledWidth, scaledHeight);
    }
    void releaseScaled(int scaledWidth, int scaledHeight, int flag) override
    {
        calls += QStringLiteral("releaseScaled %1 %2 %3").arg(scaledWidth).arg(scaledHeight).arg(flag);
        image.reset();
    }
    VImage *acquireFull(int flag) override
    {
        calls += QStringLiteral("acquireFull %1").arg(flag);
        return draw(fullWidth, fullHeight);
    }
    void releaseFull(int flag) override
    {
        calls += QStringLiteral("releaseFull %1").arg(flag);
        image.reset();
    }

    int fullWidth = 64;
    int fullHeight = 48;
    unsigned short type = VImage::Rgb;
    int bits = 8;
    bool givesEmptyImage = false;

private:
    /// The sample, nominally 0..1, of a channel at x and y in 0..1: a landscape whose lower half is near and dark and whose upper
    /// half fades into bright haze.
    static float sample(float x, float y, int channel)
    {
        const float texture = 0.5f + 0.4f * std::sin(40.0f * x) * std::sin(30.0f * y + float(channel));
        return texture * y + 0.85f * (1.0f - y);
    }
    VImage *draw(int width, int height)
    {
        image = std::make_unique<VImage>();
        if (givesEmptyImage)
            return image.get();
        image->Create(width, height, type, bits);
        for (int y = 0; y < height; ++y) {
            unsigned char *const row = image->PixelAddress(0, y);
            for (int i = 0; i < width * channelCount(); ++i) {
                const float value =
                    sample(float(i / channelCount()) / float(width), float(y) / float(height), i % channelCount());
                if (bits == 8)
                    row[i] = static_cast<unsigned char>(value * 255.0f + 0.5f);
                else
                    reinterpret_cast<unsigned short *>(row)[i] = static_cast<unsigned short>(value * 65535.0f + 0.5f);
            }
        }
        return image.get();
    }

    QString name;
    QStringList &calls;
    std::unique_ptr<VImage> image;
};

/// A host that fulfils the contract: settings in memory, one TestImage per path, every call recorded in `calls`. With `isHost`
/// false it is an application that does not know the contract.
class TestHost : public QApplication, public VIApplication
{
public:
    using QApplication::QApplication;

    static TestHost &self() { return *static_cast<TestHost *>(QCoreApplication::instance()); }

    void *qt_metacast(const char *className) override
    {
        if (isHost && className && qstrcmp(className, "VIApplication") == 0)
            return static_cast<VIApplication *>(this);
        return QApplication::qt_metacast(className);
    }

    QVariant value(const QString &group, const QString &key, const QVariant &fallback) override
    {
        fallbackType = fallback.userType();
        return stored.value(group + '/' + key, fallback);
    }
    void setValue(const QString &group, const QString &key, const QVariant &value) override { stored[group + '/' + key] = value; }
    QLocale locale() override { return language; }
    void loadTranslator(const QString &fileName) override
    {
        calls += "loadTranslator " + fileName;
        auto next = std::make_unique<QTranslator>();
        if (next->load(fileName, QStringLiteral(":/Translation")))
            installTranslator(next.get());
        translator = std::move(next);
    }
    ImageDef *imageDef(const QString &path) override { return &image(path); }
    VImageContext *imageLibraryContext() override
    {
        calls += QStringLiteral("imageLibraryContext");
        return nullptr;
    }
    VUIContext *interfaceLibraryContext() override
    {
        calls += QStringLiteral("interfaceLibraryContext");
        return nullptr;
    }

    TestImage &image(const QString &path)
    {
        auto &entry = images[path];
        if (!entry)
            entry = std::make_unique<TestImage>(path, calls);
        return *entry;
    }
    /// A new project: no images, no settings, no calls, English.
    void reset()
    {
        images.clear();
        stored.clear();
        calls.clear();
        translator.reset();
        isHost = true;
    }

    bool isHost = true;
    QLocale language = QLocale(QLocale::English, QLocale::UnitedStates);
    QMap<QString, QVariant> stored;
    QStringList calls;
    int fallbackType = 0;

private:
    std::map<QString, std::unique_ptr<TestImage>> images;
    std::unique_ptr<QTranslator> translator;
};

/// Creates the application before the first test and destroys it after the last.
class TestHostEnvironment : public testing::Environment
{
public:
    void SetUp() override { host = std::make_unique<TestHost>(argumentCount, arguments); }
    void TearDown() override { host.reset(); }

private:
    int argumentCount = 1;
    char programName[5] = "test";
    char *arguments[2] = {programName, nullptr};
    std::unique_ptr<TestHost> host;
};
