#pragma once

#include <cstdint>

#include <QFile>
#include <QMutex>
#include <QObject>
#include <QTextStream>

/// The log of the libraries, which a host may lend. The plug-in takes part in its life and writes no entry: whoever adds the
/// writing holds `mutex` around `stream`.
class VLog : public QObject
{
    Q_OBJECT
public:
    VLog() = default;

Q_SIGNALS:
    void Logged(int id, const QString &log);
    void Logged(const QString &log);

public:
    QMutex mutex;
    QFile file;
    QTextStream stream;
    bool flag = false;        ///< Spare.
    std::int32_t counter = 0; ///< Spare.
};

/// The log in use, or null: the one made here, or the host's.
extern VLog *logInstance;

/// Takes the host's log, which stays the host's, or makes one if `shared` is null.
void initLog(VLog *shared);
/// Deletes the log that was made here; a lent one is only forgotten. Harmless without one.
void releaseLog();
