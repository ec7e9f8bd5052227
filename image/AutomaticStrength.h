#pragma once

#include <optional>

class VImage;

/// The strength that fits a photograph: the strongest that leaves it bright enough. What lies under haze is darker than the haze,
/// so that one strength for all is too much for a dark photograph and too little for a bright one.
class AutomaticStrength
{
public:
    static constexpr int kWeakest = 50; ///< Per cent; the range that is searched.
    static constexpr int kStrongest = 80;
    /// What the mean of 0.299 R + 0.587 G + 0.114 B shall not fall below, samples being encoded as the file has them, 0 to 1.
    static constexpr double kLuminance = 0.42;

    /// The strength in whole per cent, kWeakest to kStrongest, for the picture that `photograph` holds in any of the nine forms,
    /// at full size. Floats are taken as they are. Nothing if the engine would leave the picture as it is at any strength, since
    /// it finds no airlight or a sample that is no finite number, or if all of it is transparent.
    ///
    /// Any thread; `photograph` is only read. Takes milliseconds and some megabytes, whatever the size: the haze is taken from
    /// the engine's own copy of about 100,000 pixels, by the map before its refinement. Throws what VImage::Resample throws.
    static std::optional<int> of(const VImage &photograph);
};
