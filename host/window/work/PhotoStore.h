#pragma once

#include <functional>
#include <memory>

#include <QObject>
#include <QStringList>

#include "OpenPhoto.h"

/// Holds the photographs that the workspace shows: the one in view, and its neighbours, which are prepared ahead so that the
/// next one is there at once. Pixels are read on one thread and haze maps are estimated on another, always for the photograph in
/// view before its neighbours.
///
/// What is held is limited by the memory that is free: neighbours are prepared only while there is room for them, and dropped
/// when the photograph in view needs it. A photograph that needs more than is free fails.
///
/// Interface thread only; the signals are delivered there. Paths are those that were given to show().
class PhotoStore : public QObject
{
    Q_OBJECT

public:
    /// Bytes that may be used at present.
    using FreeMemory = std::function<quint64()>;

    explicit PhotoStore(QObject *parent = nullptr);
    PhotoStore(FreeMemory freeMemory, QObject *parent);
    /// Drops what has not begun and waits for what has.
    ~PhotoStore() override;

    /// This photograph comes into view; `neighbours` are prepared in their order. All others are dropped, and what has not begun
    /// of them is skipped. For what is not there yet, the signals follow; one that failed is tried again. An empty path drops
    /// all.
    void show(const QString &path, const QStringList &neighbours);
    /// Drops this photograph, whose file was changed or is no longer part of the series. If it is in view, it is read again.
    void forget(const QString &path);

    /// The photograph as far as it is there; null if it is not. Once isComplete(), it stays the same object.
    std::shared_ptr<const OpenPhoto> photo(const QString &path) const;

Q_SIGNALS:
    /// photo() returns it, without a map. Not for a photograph that is complete already.
    void pixelsReady(const QString &path);
    /// photo() returns another object, which is complete: with the map, or with the reason why it stays unchanged.
    void mapReady(const QString &path);
    /// It can't be read, or there is not enough memory for it. Instead of the signals above; after pixelsReady, photo() keeps
    /// returning the pixels.
    void failed(const QString &path, const QString &reason);

private:
    class Worker;
    std::unique_ptr<Worker> worker;
};
