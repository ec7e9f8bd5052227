#include "PhotoReader.h"

#include <algorithm>
#include <exception>

#include "VException.h"

namespace {

constexpr int kPreviewSide = 1024; ///< Longest side on the plug-in's page.

} // namespace

PhotoReader::PhotoReader(HostApplication &host, int pictureSide, QObject *parent)
    : QObject(parent), application(host), side(pictureSide)
{
    heads.setMaxThreadCount(1);
    pictures.setMaxThreadCount(1); // more would only hold more full-size photographs at once
}

PhotoReader::~PhotoReader()
{
    heads.clear();
    heads.waitForDone(); // it may add work to the other pool
    pictures.clear();
    pictures.waitForDone();
}

QSize PhotoReader::previewSize(Photograph &photograph)
{
    const qint64 width = photograph.width(), height = photograph.height();
    if (width > height) {
        const qint64 side = std::min<qint64>(width, kPreviewSide);
        return {int(side), int(double(height * side) / double(width))};
    }
    const qint64 side = std::min<qint64>(height, kPreviewSide);
    return {height > 0 ? int(double(width * side) / double(height)) : 0, int(side)};
}

QImage PhotoReader::picture(Photograph &photograph, int longestSide)
{
    const QSize size = previewSize(photograph);
    QImage picture;
    photograph.scaledCopy(size.width(), size.height(), ScaledImages::Keep::IfRoom)->ToQImage(picture);
    if (std::max(picture.width(), picture.height()) > longestSide)
        picture = picture.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return picture;
}

void PhotoReader::attempt(const QString &path, const std::function<void(Photograph &)> &work)
{
    {
        const std::lock_guard lock(mutex);
        if (!wanted.contains(path))
            return;
    }
    try {
        work(*application.photograph(path));
    } catch (const VException &failure) {
        Q_EMIT failed(path, failure.message);
    } catch (const std::exception &failure) {
        Q_EMIT failed(path, QString::fromLocal8Bit(failure.what()));
    }
}

void PhotoReader::forget(const QString &path)
{
    const std::lock_guard lock(mutex);
    wanted.remove(path);
}

void PhotoReader::prefer(const QStringList &paths)
{
    const std::lock_guard lock(mutex);
    preferred = paths;
}

QString PhotoReader::nextPicture()
{
    const std::lock_guard lock(mutex);
    for (const QString &path : qAsConst(preferred))
        if (withoutPicture.removeOne(path))
            return path;
    return withoutPicture.takeFirst();
}

void PhotoReader::read(const QString &path)
{
    {
        const std::lock_guard lock(mutex);
        wanted.insert(path);
    }
    heads.start([this, path] {
        attempt(path, [&](Photograph &photograph) {
            const QString complaint = PhotoLoader::complaint(path);
            if (!complaint.isEmpty())
                throw VException(complaint, V_LOCATION);
            // What is wrong with a file whose head gives no size, its decoding reports best.
            if (!photograph.facts().pixels)
                picture(photograph, side);
            Q_EMIT checked(path);
            {
                const std::lock_guard lock(mutex);
                withoutPicture << path;
            }
            pictures.start([this] {
                const QString next = nextPicture();
                attempt(next, [&](Photograph &chosen) {
                    const QImage small = picture(chosen, side);
                    Q_EMIT ready(next, small);
                });
            });
        });
    });
}
