#pragma once

class VImage;

/// Rows for columns: `target` gets the form of `source` with width and height exchanged, and its pixel (x, y) is (y, x) of
/// `source`, another image that must not be empty. Throws VException "Not enough memory".
void transpose(const VImage &source, VImage &target);
