#pragma once

#include <cstdint>

#include <QStringList>

/// Default load settings of the image library: made when it starts, or lent by the host. The order of the fields is part of the
/// contract with the host. The metadata read of VImage::Save uses the fields that begin with `raw`; nothing here reads the rest.
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
    std::int32_t rawHighlight = 0; ///< Passed on as its low 8 bits.
    std::uint8_t rawAutoBright = 0;
    float rawGamma = 2.2f;
    float rawBrightness = 2.5f;
    float rawRedScaling = 1.0f;
    float rawBlueScaling = 1.0f;
    QStringList sidecarExtensions = {QStringLiteral(".THM")};
};

/// The settings in force, or null before the image library's start, which stands for the defaults. The start and the stop of the
/// image library set it; who made the record deletes it.
extern VImageSettings *imageSettings;
