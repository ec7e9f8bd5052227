#pragma once

#include <functional>
#include <mutex>

#include <QImage>
#include <QObject>
#include <QSet>
#include <QSize>
#include <QString>
#include <QThreadPool>

#include "HostApplication.h"

/// Reads photographs in the background: first the heads of all, then one picture after the other, so that small pictures and the
/// copies that the plug-in's page will ask for are there before they are needed. Interface thread only; the signals come there
/// too.
class PhotoReader : public QObject
{
    Q_OBJECT

public:
    /// The pictures announced have a longest side of `pictureSide`.
    PhotoReader(HostApplication &host, int pictureSide, QObject *parent = nullptr);
    /// Drops what has not begun and waits for the photograph in hand.
    ~PhotoReader() override;

    /// Reads the photograph at this path (absolute): announces `checked` and later `ready`, or `failed` once in place of either.
    void read(const QString &path);
    /// Spares what has not begun of the reading of this photograph.
    void forget(const QString &path);
    /// A picture of a photograph as a viewer shows it, with its longest side at most this long. Blocks while it decodes; any
    /// thread. Throws VException.
    static QImage picture(Photograph &photograph, int longestSide);

    /// The size at which the plug-in's page asks for a photograph.
    static QSize previewSize(Photograph &photograph);

Q_SIGNALS:
    /// Its head is that of a photograph.
    void checked(const QString &path);
    void ready(const QString &path, const QImage &picture);
    void failed(const QString &path, const QString &reason);

private:
    void attempt(const QString &path, const std::function<void(Photograph &)> &work);

    HostApplication &application;
    const int side;
    std::mutex mutex;
    QSet<QString> wanted; ///< Under the mutex.
    QThreadPool heads;
    QThreadPool pictures;
};
