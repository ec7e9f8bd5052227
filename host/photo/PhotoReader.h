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

/// Reads photographs in the background: first the heads of all, then one picture after another, so that small pictures and the
/// copies for the plug-in's page are there before they are needed. Interface thread only; the signals are delivered there too.
class PhotoReader : public QObject
{
    Q_OBJECT

public:
    /// The pictures in `ready` have a longest side of `pictureSide`.
    PhotoReader(HostApplication &host, int pictureSide, QObject *parent = nullptr);
    /// Drops what has not begun and waits for the photograph in progress.
    ~PhotoReader() override;

    /// Reads the photograph at this absolute path: emits `checked` and later `ready`, or `failed` once instead of either.
    void read(const QString &path);
    /// Skips what has not begun yet of reading this photograph.
    void forget(const QString &path);
    /// From now on the pictures of these photographs are read before the others.
    void prefer(const QStringList &paths);
    /// A picture of a photograph as a viewer shows it, with its longest side at most this long. Blocks while it decodes; any
    /// thread. Throws VException.
    static QImage picture(Photograph &photograph, int longestSide);

    /// The size at which the plug-in's page asks for a photograph.
    static QSize previewSize(Photograph &photograph);

Q_SIGNALS:
    /// The file has the head of a photograph.
    void checked(const QString &path);
    void ready(const QString &path, const QImage &picture);
    void failed(const QString &path, const QString &reason);

private:
    QString nextPicture();
    void attempt(const QString &path, const std::function<void(Photograph &)> &work);

    HostApplication &application;
    const int side;
    std::mutex mutex;
    QSet<QString> wanted;       ///< Under the mutex, as the next two.
    QStringList preferred;      ///< In their order.
    QStringList withoutPicture; ///< In theirs; each has its place in `pictures`.
    QThreadPool heads;
    QThreadPool pictures;
};
