#include "PicturePainter.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <vector>

#include "OpenPhoto.h"
#include "clippedPixels.h"
#include "workingForm.h"

namespace {

/// Of the photograph, between two questions whether to go on.
constexpr int kPixelsPerBand = 1 << 18;
/// Of the checkerboard under transparent parts.
constexpr int kSquare = 8;
constexpr int kLightSquare = 153, kDarkSquare = 102;

/// Where the screen's pixels lie on one of the photograph's levels.
struct Place
{
    Place(const PictureRequest &request, int pyramidLevel)
        : level(pyramidLevel), columns(along(request.size.width(), request.corner.x(), request.scale, request.photo->width(),
                                             request.photo->pixels(pyramidLevel).Width())),
          rows(along(request.size.height(), request.corner.y(), request.scale, request.photo->height(),
                     request.photo->pixels(pyramidLevel).Height()))
    {
    }

    bool isEmpty() const { return columns.count() == 0 || rows.count() == 0; }
    /// The part of the level under some of the rows.
    QRect under(int firstRow, int endRow) const
    {
        const int left = columns.sourceFirst(columns.first()), top = rows.sourceFirst(firstRow);
        return {left, top, columns.sourceEnd(columns.end()) - left, rows.sourceEnd(endRow) - top};
    }

    const int level;
    const Footprints columns, rows;

private:
    static Footprints along(int count, double corner, double scale, int whole, int length)
    {
        const double ratio = double(length) / whole;
        return Footprints(count, corner * ratio, ratio / scale, length);
    }
};

/// The smallest level that has at least two pixels along each of the screen's: with fewer, the draft is visibly softer than the
/// exact picture.
int levelFor(const PictureRequest &request)
{
    int level = 0;
    while (level + 1 < request.photo->levelCount() &&
           request.photo->pixels(level + 1).Width() >= 2 * request.scale * request.photo->width())
        ++level;
    return level;
}

/// A picture, transparent where the photograph doesn't reach.
QImage emptyPicture(const PictureRequest &request, const Place &place)
{
    const bool full = place.columns.count() == request.size.width() && place.rows.count() == request.size.height();
    QImage picture(request.size, full ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (picture.isNull())
        throw std::bad_alloc();
    if (!full)
        picture.fill(Qt::transparent);
    return picture;
}

QRgb *rowOf(QImage &picture, int y)
{
    return reinterpret_cast<QRgb *>(picture.scanLine(y));
}

/// Pixels in the form of the file, as the screen shows them.
QImage onScreen(const VImage &result, const PictureRequest &request, ScreenColours::Quality quality)
{
    QImage picture;
    if (request.what == PictureRequest::HazeMap) { // has no colours to convert
        result.ToQImage(picture);
        if (picture.isNull())
            throw std::bad_alloc();
        return picture;
    }
    static ScreenColours standard;
    (request.colours ? *request.colours : standard).convert(result, request.photo->profile(), quality, picture);
    if (!request.clipping)
        return picture;
    std::vector<std::uint8_t> marks(std::size_t(result.Width()));
    for (int y = 0; y < result.Height(); ++y) {
        findClippedPixels(result, y, marks.data());
        QRgb *const pixel = rowOf(picture, y);
        for (std::size_t x = 0; x < marks.size(); ++x)
            if (marks[x])
                pixel[x] = marks[x] & kClippedWhite ? PictureRequest::kWhiteMark : PictureRequest::kBlackMark;
    }
    return picture;
}

/// Puts a row of the screen into the picture, over the checkerboard where it is transparent.
void putRow(const QRgb *from, const Footprints &columns, int y, QImage &picture)
{
    QRgb *const row = rowOf(picture, y);
    for (int x = columns.first(); x < columns.end(); ++x, ++from) {
        const int alpha = qAlpha(*from);
        if (alpha == 255) {
            row[x] = *from;
            continue;
        }
        const int ground = ((x / kSquare + y / kSquare) & 1 ? kDarkSquare : kLightSquare) * (255 - alpha) + 127;
        row[x] = qRgb((qRed(*from) * alpha + ground) / 255, (qGreen(*from) * alpha + ground) / 255,
                      (qBlue(*from) * alpha + ground) / 255);
    }
}

/// The photograph's result, or its map, in a rectangle of level 0.
void fullSize(const PictureRequest &request, const QRect &part, VImage &result)
{
    if (request.what == PictureRequest::Photo)
        return request.photo->recover(0, part, request.strength, result);
    result.Create(part.width(), part.height(), VImage::Grey, 32, /*clear=*/true);
    if (request.photo->hasMap())
        request.photo->map(0).CopyRect(part.x(), part.y(), part.width(), part.height(), result, 0, 0);
}

/// How many rows of the screen to make at a time.
int rowsPerBand(const Place &place)
{
    const QRect all = place.under(place.rows.first(), place.rows.end());
    const double pixelsPerRow = double(all.width()) * all.height() / place.rows.count();
    return std::clamp(int(kPixelsPerBand / pixelsPerRow), 1, place.rows.count());
}

/// At 100 % and above.
QImage enlarged(const PictureRequest &request, ScreenColours::Quality quality, const std::function<bool()> &isInterrupted)
{
    const Place place(request, 0);
    QImage picture = emptyPicture(request, place);
    if (place.isEmpty())
        return picture;
    std::vector<QRgb> row(std::size_t(place.columns.count()));
    const int band = rowsPerBand(place);
    for (int first = place.rows.first(); first < place.rows.end(); first += band) {
        if (isInterrupted())
            return QImage();
        const int end = std::min(first + band, place.rows.end());
        const QRect part = place.under(first, end);
        VImage result;
        fullSize(request, part, result);
        const QImage shown = onScreen(result, request, quality);
        for (int y = first; y < end; ++y) {
            const auto *source = reinterpret_cast<const QRgb *>(shown.constScanLine(place.rows.nearest(y) - part.y()));
            for (int x = 0; x < place.columns.count(); ++x)
                row[std::size_t(x)] = source[place.columns.nearest(place.columns.first() + x) - part.x()];
            putRow(row.data(), place.columns, y, picture);
        }
    }
    return picture;
}

/// Screen pixels of a reduced picture, in the engine's form, into the picture. `from` begins with screen row `first`.
void putReduced(const VImage &from, const PictureRequest &request, ScreenColours::Quality quality, const Place &place, int first,
                QImage &picture)
{
    const VImage &form = request.photo->pixels(0);
    VImage result;
    if (request.what == PictureRequest::Photo)
        from.ConvertTo(result, form.Type(), form.BitsPerComponent());
    const QImage shown = onScreen(result.Bitmap() ? result : from, request, quality);
    for (int y = 0; y < from.Height(); ++y)
        putRow(reinterpret_cast<const QRgb *>(shown.constScanLine(y)), place.columns, first + y, picture);
}

} // namespace

bool PicturePainter::canPaint(const PictureRequest &request)
{
    return request.photo && !request.size.isEmpty() && request.scale > 0 &&
           (request.photo->isComplete() || (request.strength == 0 && request.what == PictureRequest::Photo));
}

bool PicturePainter::isDraftExact(const PictureRequest &request)
{
    return request.what == PictureRequest::HazeMap || (request.scale >= 1 && request.photo->bitsPerComponent() == 8);
}

QImage PicturePainter::draft(const PictureRequest &request)
{
    if (request.scale >= 1)
        return enlarged(request, ScreenColours::Quality::Quick, [] { return false; });
    return reducedDraft(request);
}

QImage PicturePainter::reducedDraft(const PictureRequest &request)
{
    const Place place(request, levelFor(request));
    QImage picture = emptyPicture(request, place);
    if (place.isEmpty())
        return picture;
    const OpenPhoto &wanted = *request.photo;
    if (photo.lock() != request.photo || geometry.size != request.size || geometry.scale != request.scale ||
        geometry.corner != request.corner) {
        photo.reset();
        pixels.Create(place.columns.count(), place.rows.count(), VImage::Rgba, 32);
        values.Create(place.columns.count(), place.rows.count(), VImage::Grey, 32, /*clear=*/true);
        const VImage &level = wanted.pixels(place.level);
        VImage working;
        const int band = rowsPerBand(place);
        for (int first = place.rows.first(); first < place.rows.end(); first += band) {
            const int end = std::min(first + band, place.rows.end());
            const QRect part = place.under(first, end);
            const VImage view(part.width(), part.height(), level.Type(), level.BitsPerComponent(), /*clear=*/false,
                              level.PixelAddress(part.x(), part.y()), level.BytesPerLine());
            toWorkingForm(view, working);
            reduceArea(working, part.x(), part.y(), place.columns, place.rows, first, end, pixels, first - place.rows.first());
        }
        if (wanted.hasMap())
            reduceArea(wanted.map(place.level), 0, 0, place.columns, place.rows, place.rows.first(), place.rows.end(), values, 0);
        geometry.size = request.size;
        geometry.scale = request.scale;
        geometry.corner = request.corner;
        photo = request.photo;
    }
    VImage working;
    const VImage *result = &values;
    if (request.what == PictureRequest::Photo) {
        pixels.ConvertTo(working, VImage::Rgba, 32);
        if (wanted.hasMap())
            wanted.recover(working, values, request.strength);
        result = &working;
    }
    putReduced(*result, request, ScreenColours::Quality::Quick, place, place.rows.first(), picture);
    return picture;
}

QImage PicturePainter::exact(const PictureRequest &request, const std::function<bool()> &isInterrupted)
{
    if (request.scale >= 1)
        return enlarged(request, ScreenColours::Quality::Exact, isInterrupted);
    const Place place(request, 0);
    QImage picture = emptyPicture(request, place);
    if (place.isEmpty())
        return picture;
    const int band = rowsPerBand(place);
    for (int first = place.rows.first(); first < place.rows.end(); first += band) {
        if (isInterrupted())
            return QImage();
        const int end = std::min(first + band, place.rows.end());
        const QRect part = place.under(first, end);
        VImage result, working, reduced;
        fullSize(request, part, result);
        const bool map = request.what == PictureRequest::HazeMap;
        if (!map)
            toWorkingForm(result, working);
        reduced.Create(place.columns.count(), end - first, map ? VImage::Grey : VImage::Rgba, 32);
        reduceArea(map ? result : working, part.x(), part.y(), place.columns, place.rows, first, end, reduced, 0);
        putReduced(reduced, request, ScreenColours::Quality::Exact, place, first, picture);
    }
    return picture;
}
