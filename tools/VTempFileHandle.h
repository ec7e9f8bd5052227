#pragma once

#include <QString>

/// Holds the path of a temporary file and removes the file when destroyed. An empty path means no file. Fixed: hosts rely on it,
/// although nothing here uses it.
class VTempFileHandle
{
public:
    explicit VTempFileHandle(const QString &filePath = QString()) : path(filePath) {}
    /// First creates the temporary manager if there is none. A file that can't be removed stays, without an error.
    ~VTempFileHandle();
    VTempFileHandle(const VTempFileHandle &) = delete;
    VTempFileHandle &operator=(const VTempFileHandle &) = delete;

    QString path;
};
