#pragma once

class VImage;

/// Converts `source`, in any of the nine forms, to the engine's form, Rgba with 32-bit samples, in `working`, which takes its
/// size. A source without alpha gives an opaque image; that includes 16-bit grey, for which ConvertTo does not set the alpha.
/// Throws what ConvertTo throws.
void toWorkingForm(const VImage &source, VImage &working);
