#pragma once

class VImage;

/// Turns `source`, in any of the nine forms, into the engine's form, Rgba with 32-bit samples, in `working`, which gets its size.
/// A source without alpha gives an opaque image, 16-bit grey too, for which ConvertTo leaves the alpha as it finds it. Throws
/// what ConvertTo throws.
void toWorkingForm(const VImage &source, VImage &working);
