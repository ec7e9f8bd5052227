#pragma once

#include <optional>

#include <QByteArray>
#include <QDomElement>
#include <QString>

/// What became of one photograph of a batch.
struct BatchOutcome
{
    enum class Status {
        Done,
        Unchanged,
        Skipped, ///< The result of an earlier run is kept, as the user asked for; not a failure.
        Failed,
        Stopped
    };
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
    QString message;   ///< What went wrong and how to put it right; with a result, what it lacks, or empty. For Skipped: why.
    QString unchanged; ///< For Unchanged: why the result shows the photograph unchanged, and how to put that right.
    std::optional<int> strength; ///< In per cent; nothing if it was to be chosen automatically and has not been.
};

/// What is done with a photograph whose result exists already.
enum class Existing {
    Refuse,  ///< It fails.
    Skip,    ///< It is skipped.
    Replace, ///< The result is replaced.
    Update,  ///< Skipped if the result is not older than the photograph and was made at the same strength; replaced otherwise.
    Number   ///< Both are kept: the new result gets a number behind the tag.
};

/// How a result is packed, where that is not to be as in its photograph.
struct ResultPacking
{
    std::optional<int> jpegQuality;     ///< 1 to 100.
    std::optional<int> tiffCompression; ///< As GflSaveParams::compression.

    /// True if nothing is chosen.
    bool isUsual() const { return !jpegQuality && !tiffCompression; }
};

/// One photograph of a batch: what to do with it, or why it is refused.
struct BatchItem
{
    QString given;          ///< As the user named it, for messages.
    QByteArray givenBytes;  ///< The same as the file system has it if that is not UTF-8, otherwise empty.
    QString path;           ///< Absolute.
    QString result;         ///< Absolute; the file that will be written.
    ResultPacking packing;  ///< Only what applies to the result's format.
    bool automatic = false; ///< The strength is chosen once the photograph is decoded; `settings` and `strength` are unused.
    QDomElement settings;   ///< Of the process.
    int strength = 0;       ///< In per cent, the one in `settings`.
    QString refusal;        ///< If not empty, the photograph fails with this message and is not opened.
    BatchOutcome::Reason reason = BatchOutcome::Reason::Other; ///< Of the refusal.
    QString note;                                              ///< Something for the user to know, or empty.
    Existing existing = Existing::Refuse;                      ///< For a result that appears only during the run, too.
    QString skipped;                                           ///< If not empty, the photograph is skipped, with this message.
    bool keepTime = false;                                     ///< The result gets the photograph's time of modification.
    bool recordable = false;                                   ///< The photograph exists, so that a settings file may name it.

    /// True if a file with the result's name is replaced.
    bool replaces() const { return existing == Existing::Replace || existing == Existing::Update; }
};
