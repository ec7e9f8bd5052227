#pragma once

#include <QString>

/// Turns a result code of the codec layer into a VException with the caller's `location`. The message is the translated
/// Error GFL : "NAME" and, unless `fileName` is empty, a second line with its absolute path; the file need not exist. Code 0
/// returns.
void throwGflError(int gflCode, QString fileName, QString location);
