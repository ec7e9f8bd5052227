#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QAbstractListModel>
#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QSet>
#include <QSize>
#include <QStringList>
#include <QTimer>
#include <QUndoStack>
#include <QVector>

#include "HostApplication.h"
#include "PhotoReader.h"
#include "SaveQueue.h"
#include "WantedStrength.h"

/// The photographs of the window in the order given, each with its strength and state. Strengths change, and photographs are
/// removed, in steps that can be undone. Heads and small pictures are read in the background. Interface thread only.
class Series : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        PathRole = Qt::UserRole, ///< QString, absolute.
        NameRole,                ///< QString: the file's name, also Qt::DisplayRole.
        StrengthRole,            ///< int, in per cent; invalid as long as the automatic strength is not known.
        AutomaticRole,           ///< bool
        StateRole,               ///< int, a State.
        ReasonRole,              ///< QString: for Failed why and what helps, for Saved what the result lacks; may be empty.
        ThumbnailRole,           ///< QImage as a viewer shows the photograph; null until it is read. Also Qt::DecorationRole.
        ResultNameRole           ///< QString: the file's name.
    };

    enum class State {
        Untouched,    ///< At the strength that it started with.
        Edited,       ///< At another one, and not saved.
        Waiting,      ///< Will be saved.
        InWork,       ///< Is being saved.
        Saved,        ///< The result is as it is shown.
        ChangedSince, ///< Its strength has changed since it was saved.
        Kept,         ///< An existing result, which this window has not made at this strength, was kept as requested.
        Failed        ///< It can't be read, or saving failed; see ReasonRole.
    };
    Q_ENUM(State)

    /// For the side panel. What is not known yet is 0 or empty.
    struct Facts
    {
        QSize size;   ///< As a viewer shows it, in pixels.
        int bits = 0; ///< Per sample.
        int channels = 0;
        QString kind; ///< Name of the format.
        qint64 bytes = 0;
        QString resultName;
    };

    /// What is known about one photograph, as a session keeps it.
    struct Record
    {
        QString path; ///< Absolute.
        WantedStrength strength;
        WantedStrength start;              ///< What Reset returns to.
        std::optional<int> automatic;      ///< The automatic strength, once it is known.
        std::optional<int> resultStrength; ///< Of the result that was written last,
        QString result;                    ///< and its absolute path.
        bool unfinished = false;           ///< It was waiting or in work.
        bool failed = false;
        QString reason;
    };

    /// `processGroup` is the guid of the process. The longest side of a thumbnail is `thumbnailSide`.
    Series(HostApplication &host, const QString &processGroup, int thumbnailSide, QObject *parent = nullptr);
    ~Series() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// What add() has left out.
    struct Added
    {
        int photographs = 0;
        int results = 0;          ///< Files that are results of other photographs.
        QStringList emptyFolders; ///< Folders without photographs, as given.
    };
    /// Appends photographs, those of a folder by name; each once. Left out are results of photographs that are given or listed.
    /// They start at the default strength.
    Added add(const QStringList &paths);
    /// Appends photographs as a session has kept them. Missing results are forgotten.
    void restore(const std::vector<Record> &records);
    /// Empties the series and its undo stack; this can't be undone.
    void clear();

    QStringList paths() const;
    QString path(int row) const;
    /// -1 if the photograph is not listed.
    int rowOf(const QString &path) const;
    WantedStrength strength(int row) const;
    /// In per cent; nothing as long as the automatic strength is not known.
    std::optional<int> percent(int row) const;
    State state(int row) const;
    Facts facts(int row) const;
    Record record(int row) const;
    std::vector<Record> records() const;

    QUndoStack &undoStack() { return undo; }
    /// Each of these is one step to undo; rows that have the strength already are left out, and no step is made for none.
    void setStrength(const QList<int> &rows, const WantedStrength &strength);
    void setAutomatic(const QList<int> &rows);
    void reset(const QList<int> &rows);
    void remove(const QList<int> &rows);
    /// All setStrength between the two on the same rows are one step, as in a drag of the slider. May be nested.
    void beginDrag();
    void endDrag();
    /// Changes of the same kind on the same rows in quick succession are one step, as with a key that is held down.
    void nudge(const QList<int> &rows, int byPercent);

    /// The default strength for photographs that are added: the stored one, or else the usual one.
    WantedStrength defaultStrength() const;
    /// Stores it. Throws VException if the settings can't be written.
    void useAsDefault(const WantedStrength &strength);

    /// Tells the series an automatic strength that something else has found.
    void knowAutomatic(const QString &path, int percent);

    /// How the names of results are made, for ResultNameRole and for adding to a queue.
    void setSaveOptions(const SaveQueue::Options &options);
    const SaveQueue::Options &saveOptions() const { return options; }
    /// Follows the states of this queue, which must outlive the series or be destroyed after its last signal.
    void follow(SaveQueue &queue);
    /// Adds these rows to the queue that is followed.
    void save(const QList<int> &rows);
    void saveAll();
    /// For a photograph that failed: reads it again, or saves it again if it was being saved.
    void retry(int row);

    /// Photographs whose present strength has no result, though the user has changed it.
    int unsavedCount() const;
    /// Photographs whose picture has not been read yet.
    int unreadCount() const;

Q_SIGNALS:
    /// Something that a session keeps has changed.
    void changed();

private:
    struct Photo;
    class StrengthCommand;
    class RemoveCommand;

    HostApplication &application;
    const QString group;
    SaveQueue::Options options;
    QUndoStack undo;
};
