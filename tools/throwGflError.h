#pragma once

#include <QString>

/// Throws a result code of the codec layer as a VException with the caller's `location`; returns on code 0. The message is the
/// translated Error GFL : "NAME" (fixed: hosts rely on it) and, unless `fileName` is empty, a second line with its absolute path;
/// the file need not exist.
void throwGflError(int gflCode, QString fileName, QString location);
