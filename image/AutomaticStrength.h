#pragma once

#include <optional>

class VImage;

/// The strength that suits a photograph: the highest that keeps it bright enough. What lies under haze is darker than the haze,
/// so one strength for all would be too much for a dark photograph and too little for a bright one.
class AutomaticStrength
{
public:
    static constexpr int kWeakest = 50; ///< Per cent; the ends of the range that is searched.
    static constexpr int kStrongest = 80;
    /// The lowest permitted mean of 0.299 R + 0.587 G + 0.114 B, of samples from 0 to 1 encoded as in the file.
    static constexpr double kLuminance = 0.42;

    /// The strength in whole per cent, kWeakest to kStrongest, for the picture that `photograph` holds in any of the nine forms,
    /// at full size. Floats are used unchanged. Nothing if the engine would not change the picture at any strength, because it
    /// finds no airlight or a sample that is not finite, or if all of it is transparent.
    ///
    /// Any thread; `photograph` is only read. Takes milliseconds and a few megabytes at any size: the estimate uses the
    /// engine's own copy of about 100,000 pixels and the haze map before its refinement. Throws what VImage::Resample throws.
    static std::optional<int> of(const VImage &photograph);
};
