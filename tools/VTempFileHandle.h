#pragma once

#include <QString>

/// Holder of a temporary file: its destructor removes the file. An empty path stands for no file.
class VTempFileHandle
{
public:
    explicit VTempFileHandle(const QString &filePath = QString()) : path(filePath) {}
    /// Makes sure that there is a temporary manager. A file that can't be removed stays, without a word.
    ~VTempFileHandle();
    VTempFileHandle(const VTempFileHandle &) = delete;
    VTempFileHandle &operator=(const VTempFileHandle &) = delete;

    QString path;
};
