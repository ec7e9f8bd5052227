#pragma once

#include <cstdint>

/// What the engine keeps for one image between two calls, and the one thing that the user chooses. A plain record.
struct HazeState
{
    std::int32_t strength; ///< Per cent, 0 to 100 from the interface; 0 leaves the image alone. Stored as "hazeRemove".
    float airlight[3];     ///< Atmospheric light, R, G, B in sample units; set once `transmission` is.
    /// The refined, normalised dark map at the image's full size, one float a pixel, row by row, or null while it has not been
    /// computed: the transmission at strength s is 1 - transmission * s. Made with new[]; the record's owner releases it with
    /// delete[].
    float *transmission;
};
