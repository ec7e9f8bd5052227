#pragma once

#include <optional>

#include <QByteArray>
#include <QDomElement>
#include <QString>

/// One photograph of a batch: what is to be done with it, and why not, if it isn't to be.
struct BatchItem
{
    QString given;           ///< As the user named it, for messages.
    QByteArray givenBytes;   ///< The same as it is on the disk, if that is not UTF-8, otherwise empty.
    QString path;            ///< Absolute.
    QString result;          ///< Absolute; what the process will write.
    bool automatic = false;  ///< Its strength is chosen when it has been decoded: the next two say nothing.
    QDomElement settings;    ///< Of the process.
    int strength = 0;        ///< In `settings`.
    QString refusal;         ///< Not empty: it fails with this sentence, before any work.
    QString note;            ///< For the user to know, or empty.
    bool replaces = false;   ///< A file that stands where the result belongs gives way.
    bool recordable = false; ///< The photograph itself is there, so that a settings file may name it.
};

struct BatchOutcome
{
    enum class Status { Done, Unchanged, Failed, Stopped };
    Status status = Status::Failed;
    double seconds = 0;
    QString message;               ///< What went wrong and what helps; where there is a result, what it lacks, or empty.
    QString unchanged;             ///< For Unchanged, a result that shows the photograph as it was: why that is, and what helps.
    std::optional<int> strength{}; ///< In per cent; nothing for one that was to be chosen, but had no chance to be.
};
