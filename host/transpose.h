#pragma once

class VImage;

/// Rows for columns: `target` gets the form of `source` with width and height exchanged, and its pixel (x, y) is (y, x) of
/// `source`, another image that must not be empty. Throws VException "Not enough memory", and "Invalid Bitmap" for pixels of
/// other than 1, 2, 3, 4, 6, 8, 12 or 16 bytes; of `target` only the form is settled then.
void transpose(const VImage &source, VImage &target);
