#pragma once

#include <QString>

/// Copies the XMP of the photograph `source`, as it stands, into the file `result`, whose pixels and other metadata stay as they
/// are. Nothing happens if the source has none or the result's format can't hold any. `result` is replaced as a whole; on a
/// failure it stays as it was. Returns why it failed, or nothing. Sidecar files are left alone: they hold another program's
/// development of the source.
QString carryXmp(const QString &source, const QString &result);
