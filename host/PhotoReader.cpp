#include "PhotoReader.h"

#include <algorithm>
#include <exception>

#include "VException.h"

namespace {

constexpr int kPreviewSide = 1024; ///< Longest side on the plug-in's page.
constexpr int kSmallSide = 160;    ///< Longest side in the list.

} // namespace

PhotoReader::PhotoReader(HostApplication &host, QObject *parent) : QObject(parent), application(host)
{
    heads.setMaxThreadCount(1);
    pictures.setMaxThreadCount(1); // more would only hold more full-size photographs at once
}

PhotoReader::~PhotoReader()
{
    heads.clear();
    heads.waitForDone(); // it may hand on to the other one
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
    const struct Use
    {
        Photograph &photograph;
        QSize size;
        VImage *image = photograph.acquireScaled(size.width(), size.height(), 1);
        ~Use() { photograph.releaseScaled(size.width(), size.height(), 1); }
    } use{photograph, size};
    QImage picture;
    use.image->ToQImage(picture);
    if (std::max(picture.width(), picture.height()) > longestSide)
        picture = picture.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return picture;
}

void PhotoReader::attempt(const QString &path, const std::function<void(Photograph &)> &work)
{
    try {
        work(*application.photograph(path));
    } catch (const VException &failure) {
        Q_EMIT failed(path, failure.message);
    } catch (const std::exception &failure) {
        Q_EMIT failed(path, QString::fromLocal8Bit(failure.what()));
    }
}

void PhotoReader::read(const QString &path)
{
    heads.start([this, path] {
        attempt(path, [&](Photograph &photograph) {
            const QString complaint = PhotoLoader::complaint(path);
            if (!complaint.isEmpty())
                throw VException(complaint, V_LOCATION);
            // A head without a size is none; what is wrong with the file, its decoding says best.
            if (photograph.width() <= 0 || photograph.height() <= 0)
                picture(photograph, kSmallSide);
            Q_EMIT checked(path);
            pictures.start([this, path] {
                attempt(path, [&](Photograph &same) {
                    const QImage small = picture(same, kSmallSide);
                    Q_EMIT ready(path, small);
                });
            });
        });
    });
}
