#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include <QAbstractListModel>
#include <QElapsedTimer>
#include <QHash>
#include <QImage>
#include <QPointer>
#include <QSize>
#include <QStringList>
#include <QThreadPool>
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
        StrengthRole,            ///< int, in per cent; invalid for a photograph that can't be read, and as long as the automatic
                                 ///< strength is not known.
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
        std::optional<int> resultQuality;  ///< the quality that was chosen for it, if any,
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

    /// What became of one add().
    struct Added
    {
        int photographs = 0;
        int results = 0;          ///< Files left out because they are results of other photographs.
        QStringList emptyFolders; ///< Folders without photographs, or that can't be read; absolute.
    };
    /// Appends photographs, those of a folder by name; each once. Left out are results of photographs that are given or listed,
    /// and listed results of these. They start at the default strength. Returns at once: the photographs follow in batches, and
    /// then `added`. This is one step to undo, but for the first photographs of a series, which are its beginning.
    void add(const QStringList &paths);
    bool isAdding() const { return !pending.isEmpty(); }
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
    /// False once reading the photograph has failed, until that is tried again.
    bool isReadable(int row) const;
    Facts facts(int row) const;
    Record record(int row) const;
    std::vector<Record> records() const;

    QUndoStack &undoStack() { return undo; }
    /// The small pictures of these rows, as those in view, are read before the others.
    void readFirst(const QList<int> &rows);

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
    /// From now on photographs are saved by this queue.
    void follow(SaveQueue &next);
    void save(const QList<int> &rows);
    /// Saves all but those that can't be read.
    void saveAll();
    /// Saves what an earlier session has left unfinished.
    void saveUnfinished();
    /// For a photograph that failed: reads it again, or saves it again if it can be read.
    void retry(int row);

    /// Photographs whose strength the user has changed since they were listed or saved.
    int unsavedCount() const;
    /// Photographs whose picture has not been read yet.
    int unreadCount() const;

Q_SIGNALS:
    /// Something that a session keeps has changed.
    void changed();
    /// A step that concerns these rows was undone, or done again; none if they are no longer listed.
    void stepped(const QList<int> &rows);
    void added(const Series::Added &what);

private:
    struct Photo;
    using Photos = std::vector<std::shared_ptr<Photo>>;
    class StrengthCommand;
    class ListCommand;
    enum class Merging { None, Drag, Nudge };

    /// What a background thread has found out about a photograph.
    struct News
    {
        QString path;
        Facts facts;
        std::optional<int> automatic;
        QImage thumbnail;
        QString failure;
    };

    std::shared_ptr<Photo> photo(const QString &path) const; ///< Also one that can come back by undo; null if there is none.
    static std::optional<int> percentOf(const Photo &photo);
    static State stateOf(const Photo &photo);
    SaveQueue::Order orderOf(const Photo &photo) const;
    void push(const QList<int> &rows, const std::vector<WantedStrength> &strengths, Merging merging, const QString &text);
    void insert(int row, const Photos &photos);
    void take(int first, int count);
    void renumber(int from);
    void show(const Photos &photos);
    void show(const std::shared_ptr<Photo> &photo);
    void tellStep(const Photos &photos);

    void beginAdding();
    void append(const QStringList &paths);
    void pushAdded();
    void post(News news);
    void takeNews();
    void onWaits(const QString &path);
    void onBegins(const QString &path);
    void onEnded(const QString &path, const BatchOutcome &outcome, const QString &result);

    HostApplication &application;
    const QString group;
    SaveQueue::Options options;
    QPointer<SaveQueue> queue;

    Photos photos;
    QHash<QString, int> rows;                   ///< By path.
    QHash<QString, std::weak_ptr<Photo>> known; ///< By path, with those that can come back by undo.
    QUndoStack undo;
    int dragDepth = 0;
    int dragSerial = 0;
    QElapsedTimer clock;

    QList<QStringList> pending; ///< What add() was given; the first one is in progress.
    Photos arrived;             ///< Of the one in progress, so far.
    int generation = 0;         ///< Of the series; clear() begins a new one, so that photographs on their way are dropped.
    std::mutex newsMutex;
    std::vector<News> news; ///< Under the mutex.
    QThreadPool adder;
    PhotoReader reader; ///< Ends first: its threads post news.
};
