#pragma once

#include <array>
#include <functional>
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
    /// Pixels and map at one of the sizes that are kept.
    struct Level
    {
        VImage pixels;                        ///< In the form of the file: Grey, Rgb or Rgba with 8, 16 or 32 bits per sample.
        std::shared_ptr<DecodedPhoto> source; ///< What `pixels` is a view of, or null.
    };
    using Map = std::vector<float>; ///< Of a level's size, row by row; 0 is no haze.

    /// Reads the file. Takes a tenth of a second for 24 megapixels; the map is not estimated. Throws VException and
    /// std::bad_alloc. Any thread.
    static std::shared_ptr<const OpenPhoto> read(const QString &path);

    /// The same photograph with its haze map, estimated as a run does: about half a second for 24 megapixels on 2 cores. If the
    /// engine can't work on the photograph, it has no map, but says why it is shown unchanged. Throws VException and
    /// std::bad_alloc. Any thread.
    std::shared_ptr<const OpenPhoto> withMap() const;

    /// The most bytes that reading this photograph and estimating its map take, and those that are kept afterwards.
    struct Memory
    {
        qint64 preparing = 0;
        qint64 kept = 0;
    };
    static Memory memoryFor(const PhotoHead &facts);

    const QString &path() const { return file; }
    /// Upright, in pixels.
    QSize size() const { return {width(), height()}; }
    int width() const { return levels.front()->pixels.Width(); }
    int height() const { return levels.front()->pixels.Height(); }
    /// Type and bits per sample of the file, as in VImage.
    unsigned short type() const { return levels.front()->pixels.Type(); }
    int bitsPerComponent() const { return levels.front()->pixels.BitsPerComponent(); }
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
    const VImage &pixels(int level) const { return levels[std::size_t(level)]->pixels; }
    /// Of the level's size; only if hasMap().
    const Map &map(int level) const { return *maps[std::size_t(level)]; }

    /// What a run at this strength would save, in the form of the file, of a rectangle inside a level. `strength` in per cent;
    /// without a map, as at 0. At level 0 it is bit for bit what a run saves. Throws VException and std::bad_alloc.
    void recover(int level, const QRect &part, int strength, VImage &result) const;
    /// The same for pixels from elsewhere, in the engine's form, with the map's values for them; in place.
    void recover(VImage &working, const float *mapValues, int strength) const;

    /// About half a million pixels at even distances, with the map's values for them, to count from.
    const VImage &samples() const { return sampled->pixels; }
    const Map &sampledMap() const { return *sampledMapValues; }

private:
    OpenPhoto() = default;

    QString file;
    PhotoHead head;
    QByteArray icc;
    std::vector<std::shared_ptr<const Level>> levels;
    std::shared_ptr<const Level> sampled;
    std::vector<std::shared_ptr<const Map>> maps;
    std::shared_ptr<const Map> sampledMapValues;
    std::array<float, 3> airlight{};
    QString unchanged;
    std::optional<int> automatic;
};
