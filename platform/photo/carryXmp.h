#pragma once

#include <QString>

/// Copies the XMP of the photograph `source` verbatim into the file `result`, whose pixels and other metadata do not change. Does
/// nothing if the source has no XMP or the result's format can't hold any. `result` is replaced as a whole; after a failure it is
/// unchanged. Returns the reason for the failure, or an empty string; throws nothing but std::bad_alloc. Sidecar files are left
/// alone: they hold another program's development of the source.
QString carryXmp(const QString &source, const QString &result);
