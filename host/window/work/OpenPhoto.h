#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include <QByteArray>
#include <QCoreApplication>
#include <QRect>
#include <QSize>
#include <QString>

#include "PhotoLoader.h"
#include "VImage.h"

/// One photograph that is held in memory for the workspace: its pixels, smaller copies of them, and, once it has been estimated,
/// its haze map. Everything is upright, that is with the EXIF orientation applied; the haze is taken out pixel by pixel, so that
/// this is the same as turning the result.
///
/// Never changes once it is made, so that any thread may read it. withMap() makes another one that shares the pixels.
class OpenPhoto
{
    Q_DECLARE_TR_FUNCTIONS(OpenPhoto)

public:
    /// Reads the file. Takes a tenth of a second for 24 megapixels; the map is not estimated. Throws VException and
    /// std::bad_alloc. Any thread.
    static std::shared_ptr<const OpenPhoto> read(const QString &path);

    /// The same photograph with its haze map, estimated as a run does: about half a second for 24 megapixels on 2 cores. If the
    /// engine can't work on the photograph, it has no map, but says why it is shown unchanged. Throws VException and
    /// std::bad_alloc. Any thread.
    std::shared_ptr<const OpenPhoto> withMap() const;

    /// The most bytes that each of these takes in addition to what is there before it, for a photograph with this head.
    struct Memory
    {
        qint64 reading = 0;
        qint64 estimating = 0; ///< The map.
    };
    static Memory memoryFor(const PhotoHead &facts);

    const QString &path() const { return file; }
    /// Upright, in pixels.
    QSize size() const { return {width(), height()}; }
    int width() const { return pixels(0).Width(); }
    int height() const { return pixels(0).Height(); }
    /// Type and bits per sample of the file, as in VImage.
    unsigned short type() const { return pixels(0).Type(); }
    int bitsPerComponent() const { return pixels(0).BitsPerComponent(); }
    /// The colour profile (ICC) that the file contains; empty if there is none, which means sRGB.
    const QByteArray &profile() const { return icc; }
    /// See AutomaticStrength. Nothing before the map is there.
    std::optional<int> automaticStrength() const { return automatic; }

    /// The haze map is there.
    bool hasMap() const { return !maps.empty(); }
    /// Why no strength changes this photograph, as a message to the user; empty otherwise, and while the map is still missing.
    const QString &whyUnchanged() const { return unchanged; }
    /// The map is there, or it is known that there will be none.
    bool isComplete() const { return hasMap() || !unchanged.isEmpty(); }

    // For what makes pictures of it.

    /// Level 0 is the photograph itself; each next one is half as wide and high, rounded up, by area averaging.
    int levelCount() const { return int(levels.size()); }
    const VImage &pixels(int level) const { return levels[std::size_t(level)]->image; }
    /// Of the level's size, one 32-bit float per pixel (Grey) and no gaps between rows; 0 is no haze. Only if hasMap().
    const VImage &map(int level) const { return maps[std::size_t(level)]->image; }

    /// What a run at this strength would save, in the form of the file, of a rectangle inside a level. `strength` in per cent;
    /// without a map, as at 0. At level 0 it is bit for bit what a run saves. Throws VException and std::bad_alloc.
    void recover(int level, const QRect &part, int strength, VImage &result) const;
    /// The same for pixels from elsewhere, in the engine's form, with the map's values for them, in the form of map(); in place.
    void recover(VImage &working, const VImage &values, int strength) const;

    /// About half a million pixels at even distances, with the map's values for them, to count from.
    const VImage &samples() const { return sampledPixels->image; }
    const VImage &sampledMap() const { return sampledValues->image; }

private:
    /// An image, and what it is a view of, if it is one.
    struct Held
    {
        VImage image;
        std::shared_ptr<void> memory;
    };
    using Image = std::shared_ptr<const Held>;

    OpenPhoto() = default;

    QString file;
    PhotoHead head;
    QByteArray icc;
    std::vector<Image> levels, maps;
    Image sampledPixels, sampledValues;
    std::array<float, 3> airlight{};
    QString unchanged;
    std::optional<int> automatic;
};
