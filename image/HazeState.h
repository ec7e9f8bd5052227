#pragma once

#include <cstdint>

/// What the engine keeps for one image between two calls, and the one thing that the user chooses. A plain record.
///
/// To a host it is what stands behind a VISettingsHandle, and closed but for one question: whether a run left its photograph as
/// it was. After `run` has returned and before destroySettings, on the thread of the run, a host that is built with this header
/// may read the record of a process whose guid() is "51D2A7E4-93C6-4F08-B1E5-6A0C7D3E9F21" and whose version() is "3.0.0.400". A
/// null `transmission` at a strength other than 0 says that the engine gave up without a word and the result shows the photograph
/// as it was; `airlight` says at which stage: still 0 in all three, no haze could be measured; otherwise, the sparse system could
/// not be solved. (A photograph whose airlight is black counts with the first.) Nothing in it may be written.
struct HazeState
{
    std::int32_t strength; ///< Per cent, 0 to 100 from the interface; 0 leaves the image alone. Stored as "hazeRemove".
    float airlight[3]; ///< Atmospheric light, R, G, B in sample units; 0 in a new record. It holds once `transmission` is set.
    /// The refined, normalised dark map at the image's full size, one float a pixel, row by row, or null while it has not been
    /// computed: the transmission at strength s is 1 - transmission * s. Made with new[]; the record's owner releases it with
    /// delete[].
    float *transmission;
};
