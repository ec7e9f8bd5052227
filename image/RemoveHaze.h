#pragma once

struct HazeState;
class VImage;

/// The engine's only entry point: takes the haze out of `image`, in place, at `state.strength` per cent.
///
/// `image` must be Rgba with 32-bit samples, nominally 0..1. At strength 0 nothing is read or changed. If the state has a map,
/// only the last pass runs; the map must belong to an image of exactly this size. Otherwise the map is estimated on a copy of
/// about 100,000 pixels and stored in the state, together with the airlight.
///
/// Two exits are quiet; they leave the image unchanged and the state without a map: no pixel qualifies as airlight, or the sparse
/// system could not be solved. The latter also happens if a colour sample of the copy is not a finite number, so one such sample
/// leaves the whole image unchanged.
///
/// The width of the copy comes from a 32-bit product that wraps around at a width of 21475 pixels and above. From there to 42949
/// pixels it is negative, and the copy fails with "Not enough memory". Above that the copy has an accidental size with fewer
/// pixels: none at all for low images slightly wider than 42949, which take the first quiet exit, otherwise enough for a coarser
/// map. At 64425 the cycle starts again.
///
/// Throws VException "Invalid Bitmap" for another form and "Not enough memory", and std::bad_alloc. Runs on the caller's thread,
/// with up to `threadCount` threads in its loops.
void RemoveHaze(VImage &image, HazeState &state);
