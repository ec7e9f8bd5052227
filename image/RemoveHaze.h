#pragma once

struct HazeState;
class VImage;

/// The one door into the engine: takes the haze out of `image`, in place, at `state.strength` per cent.
///
/// `image` must be Rgba with 32-bit samples, nominally 0..1. At strength 0 nothing is read or changed. With a map in the state
/// only the last pass runs; the map must be one of an image of this very size. Without one the map is estimated on a copy of
/// about 100,000 pixels and stored in the state, together with the airlight. Two ways out are quiet, with the image as it was and
/// no map: no pixel qualifies as airlight, or the sparse system could not be solved, which also happens if a colour sample of the
/// copy is not a finite number: one such sample in the image makes it stay as it is.
///
/// The width of the copy comes from a product in 32 bits, which wraps around from a width of 21475 pixels on. Where it is
/// negative, up to 42949 pixels, no copy can be had: "Not enough memory". Beyond, the copy has an accidental size of fewer
/// pixels: without any, as for low images a little wider than 42949, the first of the quiet ways out, otherwise with a coarser
/// map. From 64425 on the same begins again. Throws VException "Invalid Bitmap" for another form and "Not enough memory", and
/// std::bad_alloc. Runs on the caller's thread, with a team of `threadCount` in its loops.
void RemoveHaze(VImage &image, HazeState &state);
