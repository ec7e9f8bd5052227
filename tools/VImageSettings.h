#pragma once

#include <cstdint>

#include <QStringList>

/// Default load settings of the image library, made when it starts or lent by the host. Fixed: hosts rely on these fields in this
/// order. VImage::Save uses the `raw` fields when it reads metadata; nothing here reads the others.
struct VImageSettings
{
    std::int32_t intA = 128;
    std::int32_t intB = 128;
    std::int32_t intC = 0;
    float floatA = 50.0f;
    std::int32_t intD = 0;
    float floatsB[4] = {50.0f, 0.0f, 0.0f, 0.0f};
    std::int32_t intE = 0;
    std::uint8_t rawUseAutomaticBalance = 0;
    std::uint8_t rawUseCameraBalance = 1;
    std::int32_t rawHighlight = 0; ///< Only its low 8 bits are passed on.
    std::uint8_t rawAutoBright = 0;
    float rawGamma = 2.2f;
    float rawBrightness = 2.5f;
    float rawRedScaling = 1.0f;
    float rawBlueScaling = 1.0f;
    QStringList sidecarExtensions = {QStringLiteral(".THM")};
};

/// The settings in use; null, which means the defaults, before the image library's start. Set by the start and the stop of the
/// image library; whoever made the record deletes it.
extern VImageSettings *imageSettings;
