#pragma once

#include <cstdint>

/// What the engine keeps for one image between two calls, and the user's one setting. A plain record.
///
/// For a host this is the record behind a VISettingsHandle. It is private to the process, except that a host may find out whether
/// a run left its photograph unchanged: after `run` has returned and before destroySettings, on the thread of the run, a host
/// built with this header may read the record of a process whose guid() is "51D2A7E4-93C6-4F08-B1E5-6A0C7D3E9F21" and whose
/// version() is "3.0.0.400". A null `transmission` at a strength other than 0 means that the engine gave up quietly and the
/// result shows the photograph unchanged. `airlight` then says at which stage: if all three are still 0, no haze could be
/// measured; otherwise the sparse system could not be solved. (A photograph whose airlight is black looks like the first case.)
/// A host must not write to the record.
struct HazeState
{
    std::int32_t strength; ///< Per cent, 0 to 100 from the interface; 0 leaves the image alone. Stored as "hazeRemove".
    float airlight[3];     ///< Atmospheric light, R, G, B in sample units; 0 in a new record. Valid once `transmission` is set.
    /// The refined, normalised dark map at the image's full size, one float per pixel, row by row, or null if it has not been
    /// computed. Fixed: hosts rely on the name, although the transmission at strength s is 1 - transmission * s. Allocated with
    /// new[]; the record's owner releases it with delete[].
    float *transmission;
};
