#pragma once

#include <optional>

#include <QByteArray>
#include <QDomElement>
#include <QString>

/// What became of one photograph of a batch.
struct BatchOutcome
{
    enum class Status { Done, Unchanged, Failed, Stopped };
    /// Why there is no new result, where that makes a difference to more than the message.
    enum class Reason {
        Other,
        ResultExists, ///< Failed: a file with the result's name exists and is not to be replaced.
        NotBegun      ///< Stopped before the photograph was read.
    };

    /// True if this run wrote a result, even one that shows the photograph unchanged.
    bool hasResult() const { return status == Status::Done || status == Status::Unchanged; }

    Status status = Status::Failed;
    Reason reason = Reason::Other;
    double seconds = 0;
    QString message;             ///< What went wrong and how to put it right; with a result, what it lacks, or empty.
    QString unchanged;           ///< For Unchanged: why the result shows the photograph unchanged, and how to put that right.
    std::optional<int> strength; ///< In per cent; nothing if it was to be chosen automatically and has not been.
};

/// One photograph of a batch: what to do with it, or why it is refused.
struct BatchItem
{
    QString given;          ///< As the user named it, for messages.
    QByteArray givenBytes;  ///< The same as the file system has it if that is not UTF-8, otherwise empty.
    QString path;           ///< Absolute.
    QString result;         ///< Absolute; the file that the process will write.
    bool automatic = false; ///< The strength is chosen once the photograph is decoded; `settings` and `strength` are unused.
    QDomElement settings;   ///< Of the process.
    int strength = 0;       ///< In per cent, the one in `settings`.
    QString refusal;        ///< If not empty, the photograph fails with this message and is not opened.
    BatchOutcome::Reason reason = BatchOutcome::Reason::Other; ///< Of the refusal.
    QString note;                                              ///< Something for the user to know, or empty.
    bool replaces = false;                                     ///< A file with the result's name is replaced.
    bool recordable = false;                                   ///< The photograph exists, so that a settings file may name it.
};
