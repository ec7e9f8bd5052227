#pragma once

#include <cstdint>

#include <QFile>
#include <QMutex>
#include <QObject>
#include <QTextStream>

/// The log of the libraries, which a host may lend. Fixed: hosts rely on this object, although the plug-in never writes to it.
/// Writers hold `mutex` while they use `stream`.
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

/// The log in use (made here, or the host's), or null.
extern VLog *logInstance;

/// Uses the host's log, which the host still owns, or makes one if `shared` is null.
void initLog(VLog *shared);
/// Deletes a log made here; a lent one is only forgotten. Harmless if there is none.
void releaseLog();
