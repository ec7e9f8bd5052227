#pragma once

#include <map>
#include <memory>
#include <mutex>

#include <QByteArray>

class QImage;
class VImage;

/// Converts pixels from a photograph's colours to the screen's, by relative colorimetric intent with black point compensation.
/// A profile that can't be used counts as none, and none means sRGB. Any thread.
///
/// Samples of 32 bits are clamped to 0..1 first, and otherwise taken as the file has them, as when they are saved with 8 or 16
/// bits: the values of an HDR or EXR file count as sRGB.
class ScreenColours
{
public:
    /// `screenProfile` is the ICC profile of the screen; it has to be one of an RGB device.
    explicit ScreenColours(const QByteArray &screenProfile = {});
    ~ScreenColours();
    ScreenColours(const ScreenColours &) = delete;
    ScreenColours &operator=(const ScreenColours &) = delete;

    /// The profile of the primary screen, as the desktop has set it; empty if it has set none.
    static QByteArray profileOfScreen();

    /// Quick rounds to 8 bits before the conversion, which makes no difference for a photograph of 8 bits, and shifts others by a
    /// few of 255 at most; Exact takes ten times as long for those.
    enum class Quality { Quick, Exact };

    /// Converts `pixels`, in any of the nine forms and in the colours of `profile`, to a picture of the same size:
    /// Format_ARGB32, not premultiplied, opaque unless `pixels` has an alpha. Throws VException and std::bad_alloc.
    void convert(const VImage &pixels, const QByteArray &profile, Quality quality, QImage &picture);

private:
    struct Conversion;
    std::shared_ptr<const Conversion> conversionFrom(const QByteArray &profile);

    const QByteArray screen;
    std::mutex mutex;
    std::map<QByteArray, std::shared_ptr<const Conversion>> conversions; ///< Under the mutex.
};
