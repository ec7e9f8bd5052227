#pragma once

#include <QString>

/// A hidden folder for files that are not to be seen before they are complete. It is locked while the object lives, and removed
/// with everything in it at the end. What a killed process leaves behind, removeAbandoned recognises by its name and by the lock,
/// which ends with the process. Any thread, each object on one at a time.
class PrivateFolder
{
public:
    /// Creates the folder inside `parent`, readable by the user alone. After a failure, path() is empty and error() says why.
    explicit PrivateFolder(const QString &parent);
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder &) = delete;
    PrivateFolder &operator=(const PrivateFolder &) = delete;

    const QString &path() const { return folder; }
    QString filePath(const QString &name) const { return folder + '/' + name; }
    /// The system's text for why the folder could not be created.
    const QString &error() const { return reason; }

    /// Removes the private folders inside `parent` that processes of this user left behind when they were killed. On file systems
    /// without locks, none can be recognised, and all stay.
    static void removeAbandoned(const QString &parent);

private:
    bool takeLock();

    QString folder;
    QString reason;
    const int parentFolder; ///< A descriptor, so that the folder is found even if one above it is renamed.
    int lock = -1;          ///< A descriptor.
};
