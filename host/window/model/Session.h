#pragma once

#include <memory>
#include <optional>

#include <QDateTime>
#include <QList>
#include <QLockFile>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>

#include "Series.h"

/// What one window works on, kept on the disk as one goes, so that a crash or a kill costs nothing: the series with its strengths
/// and states, the photograph in view, the options of a save. A session may have a settings file, which the command line reads
/// too; it is written when the user saves the session.
///
/// Sessions live in a folder of the user's, one file each, with a lock that ends with its process. Failures are VExceptions whose
/// message names the file and the remedy. Interface thread only.
class Session : public QObject
{
    Q_OBJECT

public:
    /// An earlier session.
    struct Recent
    {
        QString id;         ///< For reopen().
        QString file;       ///< Its settings file, or empty.
        QString firstPhoto; ///< Absolute path.
        int photographs = 0;
        QDateTime when; ///< Last worked on.
    };

    /// Starts an empty session in `folder`. `processName` is that of SettingsFile.
    Session(Series &series, const QString &processName, const QString &folder = usualFolder(), QObject *parent = nullptr);
    /// Like close().
    ~Session() override;

    /// In the user's data folder.
    static QString usualFolder();

    /// Takes over the session that ended last, if it ended by a crash or with photographs still to be saved, and returns true. A
    /// session that another window works on is never taken.
    bool restore();
    /// Earlier sessions that no window works on, the latest first.
    QList<Recent> recent() const;
    /// Goes on with an earlier session; the present one is kept among the recent ones.
    void reopen(const QString &id);
    /// Opens a settings file and shows its photographs. The present session is kept among the recent ones. Throws and changes
    /// nothing if the file can't be read or another window works on it.
    void open(const QString &settingsFile);
    /// Begins an empty session; the present one is kept among the recent ones.
    void startOver();

    /// The settings file, or empty.
    QString file() const { return settingsFile; }
    /// Something has changed since the settings file was written; false without one.
    bool isModified() const { return !settingsFile.isEmpty() && modified; }
    /// Writes the settings file. What it held besides the photographs of this session is kept.
    void save();
    /// From now on the settings file is this one, which is replaced if it exists.
    void saveAs(const QString &settingsFile);

    /// The photograph in view.
    QString currentPhoto() const { return current; }
    void setCurrentPhoto(const QString &path);

    /// Why closing the window now would lose something that the user did, or an empty text. Nothing is lost as long as the
    /// session can be kept.
    QString whatWouldBeLost();
    /// Keeps the session and lets go of it. Call it after SaveQueue::quit().
    void close();

Q_SIGNALS:
    /// The settings file or isModified() is another.
    void changed();
    /// The session can't be kept; `problem` is empty once it can again.
    void keepingFailed(const QString &problem);

private:
    Series &photographs;
    const QString tag;
    const QString place;
    QString settingsFile;
    QString current;
    bool modified = false;
};
