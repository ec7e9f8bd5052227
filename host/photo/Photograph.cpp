#include "Photograph.h"

#include <algorithm>

#include <QFileInfo>

#include "AutomaticStrength.h"
#include "VException.h"
#include "patiently.h"

namespace {

bool isOnItsSide(int orientation)
{
    return orientation >= 5;
}

} // namespace

QString Photograph::tooLarge(int limit)
{
    return tr("It is too large: haze can be taken from photographs whose width or height is at most %1 pixels. Scale it down, or "
              "cut it into parts.")
        .arg(limit - 1);
}

PhotoHead Photograph::facts()
{
    const std::lock_guard lock(mutex);
    if (!head) {
        head = PhotoLoader::describe(file);
        if (transposed) {
            constexpr int kMirroredAtTheDiagonal[] = {1, 4, 3, 2, 5, 8, 7, 6};
            std::swap(head->width, head->height);
            head->orientation = kMirroredAtTheDiagonal[head->orientation - 1];
        }
    }
    return *head;
}

QString Photograph::displayName()
{
    return QFileInfo(file).fileName();
}

int Photograph::width()
{
    const PhotoHead known = facts();
    return isOnItsSide(known.orientation) ? known.height : known.width;
}

int Photograph::height()
{
    const PhotoHead known = facts();
    return isOnItsSide(known.orientation) ? known.width : known.height;
}

std::unique_ptr<DecodedPhoto> Photograph::load() const
{
    auto photo = PhotoLoader::decode(file);
    if (!transposed)
        return photo;
    auto turned = std::make_unique<DecodedPhoto>();
    photo->image().Turn(turned->image(), kRowsForColumns);
    return turned;
}

std::unique_ptr<DecodedPhoto> Photograph::decode()
{
    auto photo = load();
    form = Form{photo->image().Bitmap()->componentsPerPixel, photo->image().BitsPerComponent()};
    return photo;
}

Photograph::Form Photograph::knownForm()
{
    const std::lock_guard lock(mutex);
    if (!form)
        decode();
    return *form;
}

int Photograph::channelCount()
{
    return knownForm().channels;
}

int Photograph::bitsPerChannel()
{
    return knownForm().bits;
}

bool Photograph::needsTiffOutput()
{
    return tiffOutput || !PhotoLoader::canWrite(QFileInfo(file).suffix().toLower());
}

ScaledImages::Image Photograph::makeScaled(int width, int height)
{
    const int orientation = facts().orientation;
    int lyingWidth = std::max(width, 1), lyingHeight = std::max(height, 1);
    if (isOnItsSide(orientation))
        std::swap(lyingWidth, lyingHeight);
    auto upright = std::make_shared<VImage>();
    VImage lying;
    VImage &small = orientation == 1 ? *upright : lying;
    // Decoding holds no lock, so that the other operations do not wait for it.
    std::shared_ptr<DecodedPhoto> photo;
    {
        const std::lock_guard lock(mutex);
        photo = full;
    }
    if (!photo)
        photo = load();
    photo->image().Resample(small, lyingWidth, lyingHeight);
    if (orientation != 1)
        lying.Turn(*upright, orientation);
    const std::optional<int> strength = AutomaticStrength::of(photo->image());
    const std::lock_guard lock(mutex);
    automatic = strength;
    form = Form{photo->image().Bitmap()->componentsPerPixel, photo->image().BitsPerComponent()};
    return upright;
}

ScaledImages::Image Photograph::scaledCopy(int width, int height, ScaledImages::Keep keep)
{
    const auto make = [&] { return makeScaled(width, height); };
    return copies ? copies->obtain({file, width, height}, make, keep) : make();
}

VImage *Photograph::acquireScaled(int width, int height, int)
{
    const std::pair size(width, height);
    {
        const std::lock_guard lock(mutex);
        if (const auto found = scaled.find(size); found != scaled.end()) {
            ++found->second.uses;
            return found->second.image.get();
        }
    }
    ScaledImages::Image image;
    try {
        patiently([&] { image = scaledCopy(width, height, ScaledImages::Keep::Always); });
    } catch (const VException &failure) {
        throw VException(displayName() + ": " + failure.message, V_LOCATION);
    }
    const std::lock_guard lock(mutex);
    Scaled &entry = scaled[size];
    if (!entry.image)
        entry.image = std::move(image);
    ++entry.uses;
    return entry.image.get();
}

void Photograph::releaseScaled(int width, int height, int)
{
    const std::lock_guard lock(mutex);
    const auto found = scaled.find({width, height});
    if (found != scaled.end() && --found->second.uses <= 0)
        scaled.erase(found);
}

void Photograph::holdFull()
{
    if (full)
        return;
    std::unique_ptr<DecodedPhoto> fresh = decode();
    if (refusedWidth > 0 && fresh->image().Width() >= refusedWidth)
        throw VException(tooLarge(refusedWidth), V_LOCATION);
    full = std::move(fresh);
}

void Photograph::decodeAhead()
{
    if (watcher)
        watcher(Use::Reading);
    const std::lock_guard lock(mutex);
    holdFull();
    automatic = AutomaticStrength::of(full->image());
}

std::optional<int> Photograph::automaticStrength()
{
    const std::lock_guard lock(mutex);
    return automatic;
}

VImage *Photograph::acquireFull(int)
{
    if (watcher)
        watcher(Use::Reading);
    VImage *image = nullptr;
    {
        const std::lock_guard lock(mutex);
        holdFull();
        image = &full->image();
        ++fullUses;
    }
    if (watcher)
        watcher(Use::Read);
    return image;
}

void Photograph::releaseFull(int)
{
    {
        const std::lock_guard lock(mutex);
        if (--fullUses <= 0) {
            fullUses = 0;
            full.reset();
        }
    }
    if (watcher)
        watcher(Use::Released);
}

void Photograph::dropFull()
{
    const std::lock_guard lock(mutex);
    fullUses = 0;
    full.reset();
}
