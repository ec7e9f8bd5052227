#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QLockFile>
#include <QObject>
#include <QString>
#include <QThreadPool>
#include <QTimer>

#include "Series.h"

/// What one window works on, kept on the disk as one goes, so that a crash or a kill costs nothing: the series with its strengths
/// and states, the photograph in view, the options of a save. A session may also have a settings file, which the command line
/// reads too. It gets the strengths when the user saves the session; results and automatic strengths that become known later are
/// added to it as long as it is up to date otherwise.
///
/// Sessions are kept in a folder of the user's, one file each, with a lock that ends with its process. The undo stack is not
/// kept. Failures are VExceptions whose message names the file and the remedy. Interface thread only.
///
/// Whatever replaces the session (reopen, open, startOver) empties the series: stop its SaveQueue first.
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
        QDateTime when; ///< Last kept.
    };

    /// Starts an empty session in `folder`. `processName` is that of SettingsFile.
    Session(Series &series, const QString &processName, const QString &folder = usualFolder(), QObject *parent = nullptr);
    /// Like close().
    ~Session() override;

    /// Among the user's data: Ombre/veilaway/sessions.
    static QString usualFolder();

    /// Goes on with the session that was kept last among those that no window works on and that ended by a crash or with
    /// photographs still to be saved; Series::saveUnfinished saves those. False if there is none.
    bool restore();
    /// Earlier sessions that no window works on, the latest first, `most` of them at most.
    QList<Recent> recent(int most = 10) const;
    /// Goes on with an earlier session.
    void reopen(const QString &id);
    /// Opens a settings file; if an earlier session holds later changes to it, goes on with that one. Throws and changes nothing
    /// if the file can't be read or another window works on it.
    void open(const QString &file);
    void startOver();

    /// The settings file, or empty.
    QString file() const { return settingsFile; }
    /// Photographs or strengths are others than in the settings file; false without one.
    bool isModified() const;
    /// Writes the settings file. What it holds besides the photographs of this session is kept.
    void save();
    /// From now on the settings file is this one, which is replaced if it exists.
    void saveAs(const QString &file);

    /// The photograph in view.
    QString currentPhoto() const { return current; }
    void setCurrentPhoto(const QString &path);

    /// Why closing the window now would lose something that the user did, or an empty text: the session can't be kept.
    QString whatWouldBeLost();
    /// Keeps the session and lets go of it: nothing is kept any longer. Call it after SaveQueue::quit().
    void close();

Q_SIGNALS:
    /// file() or isModified() may be another.
    void changed();
    /// The session can't be kept; empty once it can again.
    void keepingFailed(const QString &problem);

private:
    struct Kept;

    QString fileOf(const QString &session) const;
    std::unique_ptr<QLockFile> lock(const QString &name) const; ///< Null if another process or session has it.
    std::unique_ptr<QLockFile> lockSettings(const QString &file) const;
    Kept read(const QString &session) const;
    bool goOnWith(const QString &session, bool onlyUnfinished);
    void begin(const QString &session, std::unique_ptr<QLockFile> held);
    void letGo();
    void prune() const;

    void onChanged();
    void tick();
    QByteArray content(bool open) const;
    void keepSoon();
    QString keepNow(bool open);
    void report(const QString &problem);

    void write(bool afresh);

    Series &photographs;
    const QString tag;
    const QString place;
    QString id;
    std::unique_ptr<QLockFile> held;
    QString settingsFile;
    std::unique_ptr<QLockFile> settingsHeld;
    std::vector<Series::Record> inFile; ///< What was read from the settings file or written to it.
    QString current;
    QString problem;
    bool closed = false;
    QTimer timer;
    QThreadPool writer;
};
