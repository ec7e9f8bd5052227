#include "OpenPhoto.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include <QTemporaryFile>

#include "AutomaticStrength.h"
#include "BatchRunner.h"
#include "HazeState.h"
#include "Photograph.h"
#include "RemoveHaze.h"
#include "VException.h"
#include "gfl.h"
#include "whyUnchanged.h"
#include "workingForm.h"

namespace {

constexpr int kSmallestLevel = 256; ///< The longest side below which no smaller copy is made.
constexpr double kSamples = 500000;

struct BitmapRelease
{
    void operator()(GflBitmap *bitmap) const { gflFreeBitmap(bitmap); }
};

/// What a save would copy into the result. A photograph whose metadata can't be read has none here; its save says so.
QByteArray profileOf(const QString &photograph, const PhotoHead &head)
{
    QString path = photograph;
    QTemporaryFile standIn;
    if (head.needsStandIn) {
        if (!standIn.open())
            return QByteArray();
        standIn.write(PhotoLoader::standIn(photograph));
        standIn.flush();
        path = standIn.fileName();
    }
    GflLoadParams params;
    gflGetDefaultLoadParams(&params);
    params.flags |= GFL_LOAD_METADATA | GFL_LOAD_METADATA_ONLY;
    GflFileInformation information{};
    GflBitmap *read = nullptr;
    const int code = gflLoadBitmapUTF8(path.toUtf8().constData(), &read, &params, &information);
    gflFreeFileInformation(&information);
    const std::unique_ptr<GflBitmap, BitmapRelease> bitmap(read);
    std::size_t bytes = 0;
    const std::uint8_t *profile = code == 0 ? gflBitmapGetICCProfile(bitmap.get(), &bytes) : nullptr;
    return profile ? QByteArray(reinterpret_cast<const char *>(profile), int(bytes)) : QByteArray();
}

/// The orientation that undoes another one.
int undone(int orientation)
{
    return orientation == 6 ? 8 : orientation == 8 ? 6 : orientation;
}

int samplingStep(const VImage &pixels)
{
    return std::max(1, int(std::sqrt(double(pixels.Width()) * pixels.Height() / kSamples)));
}

/// Every pixel of each `step` columns and rows.
void sample(const VImage &from, int step, VImage &to)
{
    to.Create((from.Width() + step - 1) / step, (from.Height() + step - 1) / step, from.Type(), from.BitsPerComponent());
    const std::size_t bytes = from.Bitmap()->bytesPerPixel;
    for (int y = 0; y < to.Height(); ++y) {
        const unsigned char *pixel = from.PixelAddress(0, y * step);
        unsigned char *target = to.PixelAddress(0, y);
        for (int x = 0; x < to.Width(); ++x, pixel += bytes * std::size_t(step), target += bytes)
            std::memcpy(target, pixel, bytes);
    }
}

} // namespace

std::shared_ptr<const OpenPhoto> OpenPhoto::read(const QString &path)
{
    const std::shared_ptr<OpenPhoto> photo(new OpenPhoto);
    photo->file = path;
    photo->head = PhotoLoader::describe(path);
    const auto whole = std::make_shared<Held>();
    std::shared_ptr<DecodedPhoto> decoded = PhotoLoader::decode(path);
    VImage &stored = decoded->image();
    if (photo->head.orientation == 1) {
        whole->image.Create(stored.Width(), stored.Height(), stored.Type(), stored.BitsPerComponent(), /*clear=*/false,
                            stored.PixelAddress(0, 0), stored.BytesPerLine());
        whole->memory = std::move(decoded);
    } else {
        stored.Turn(whole->image, photo->head.orientation);
        decoded.reset();
    }
    photo->icc = profileOf(path, photo->head);

    photo->levels.push_back(whole);
    while (std::max(photo->pixels(photo->levelCount() - 1).Width(), photo->pixels(photo->levelCount() - 1).Height()) >
           kSmallestLevel) {
        const VImage &last = photo->pixels(photo->levelCount() - 1);
        const auto half = std::make_shared<Held>();
        last.Resample(half->image, (last.Width() + 1) / 2, (last.Height() + 1) / 2);
        photo->levels.push_back(half);
    }
    const auto few = std::make_shared<Held>();
    sample(whole->image, samplingStep(whole->image), few->image);
    photo->sampledPixels = few;
    return photo;
}

std::shared_ptr<const OpenPhoto> OpenPhoto::withMap() const
{
    const std::shared_ptr<OpenPhoto> photo(new OpenPhoto(*this));
    // The engine gets the photograph as a run gives it to the engine.
    constexpr int kLimit = BatchRunner::kRefusedWidth;
    const bool onItsSide = head.orientation >= 5;
    const int storedWidth = onItsSide ? height() : width(), storedHeight = onItsSide ? width() : height();
    if (storedWidth >= kLimit && storedHeight >= kLimit) {
        photo->unchanged = Photograph::tooLarge(kLimit);
        return photo;
    }
    const bool transposed = storedWidth >= kLimit;

    HazeState state{};
    state.strength = 1; // any but 0: the map is the same
    auto map = std::make_shared<Held>();
    {
        VImage working;
        VImage stored, turned;
        const VImage *source = &pixels(0);
        if (head.orientation != 1) {
            source->Turn(stored, undone(head.orientation));
            source = &stored;
        }
        if (transposed) {
            source->Turn(turned, Photograph::kRowsForColumns);
            source = &turned;
        }
        photo->automatic = AutomaticStrength::of(*source);
        toWorkingForm(*source, working);
        stored.Free();
        turned.Free();
        RemoveHaze(working, state);
        photo->unchanged = ::whyUnchanged(state);
        if (!state.transmission)
            return photo;
        map->memory = std::shared_ptr<float[]>(state.transmission);
        map->image.Create(working.Width(), working.Height(), VImage::Grey, 32, /*clear=*/false, state.transmission,
                          working.Width() * int(sizeof(float)));
    }
    for (const int orientation : {transposed ? Photograph::kRowsForColumns : 1, head.orientation}) {
        if (orientation == 1)
            continue;
        const auto upright = std::make_shared<Held>();
        map->image.Turn(upright->image, orientation);
        map = upright;
    }
    std::copy(std::begin(state.airlight), std::end(state.airlight), photo->airlight.begin());

    photo->maps.push_back(map);
    const auto few = std::make_shared<Held>();
    sample(map->image, samplingStep(map->image), few->image);
    photo->sampledValues = few;
    for (int level = 1; level < levelCount(); ++level) {
        const auto half = std::make_shared<Held>();
        photo->map(level - 1).Resample(half->image, pixels(level).Width(), pixels(level).Height());
        photo->maps.push_back(half);
    }
    return photo;
}

OpenPhoto::Memory OpenPhoto::memoryFor(const PhotoHead &facts)
{
    // A third more for the smaller copies, and as much again as the pixels while they are turned.
    const qint64 pixels = qint64(facts.width) * facts.height;
    const qint64 inForm = pixels * facts.bytesPerPixel;
    Memory memory;
    memory.reading = inForm * (facts.orientation == 1 ? 4 : 7) / 3;
    memory.estimating = BatchRunner::memoryFor(facts, /*untouched=*/false) - (facts.orientation == 1 ? inForm : 0);
    return memory;
}

void OpenPhoto::recover(int level, const QRect &part, int strength, VImage &result) const
{
    const VImage &whole = pixels(level);
    const VImage view(part.width(), part.height(), whole.Type(), whole.BitsPerComponent(), /*clear=*/false,
                      whole.PixelAddress(part.x(), part.y()), whole.BytesPerLine());
    VImage working;
    toWorkingForm(view, working);
    if (hasMap() && strength != 0) {
        VImage values(part.width(), part.height(), VImage::Grey, 32); // the engine wants no gaps between the rows
        map(level).CopyRect(part.x(), part.y(), part.width(), part.height(), values, 0, 0);
        recover(working, values, strength);
    }
    working.ConvertTo(result, whole.Type(), whole.BitsPerComponent());
}

void OpenPhoto::recover(VImage &working, const VImage &values, int strength) const
{
    HazeState state{strength, {airlight[0], airlight[1], airlight[2]}, reinterpret_cast<float *>(values.PixelAddress(0, 0))};
    RemoveHaze(working, state); // it only reads a map that is there
}
