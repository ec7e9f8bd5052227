#pragma once

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

#include "ImageDef.h"
#include "PhotoLoader.h"
#include "ScaledImages.h"

/// One photograph of the program, as a plug-in sees it. Pixels are decoded when they are acquired and freed when they are
/// released, so that a long list takes no memory by itself. All operations may be called from several threads at once; those that
/// read the file throw VException (see PhotoLoader).
///
/// The full image is as stored; scaled images, width() and height() are as a viewer shows the photograph, with its EXIF
/// orientation applied.
class Photograph : public ImageDef
{
    Q_DECLARE_TR_FUNCTIONS(Photograph)

public:
    /// The steps in the use of a full image. What a watcher throws propagates through the plug-in's call, and so ends its run.
    enum class Use { Reading, Read, Released };
    using Watcher = std::function<void(Use)>;

    /// The EXIF orientation that exchanges rows and columns and does nothing else; it is its own inverse.
    static constexpr int kRowsForColumns = 5;

    /// How a plug-in sees the file.
    struct Guise
    {
        bool rowsForColumns = false; ///< As if rows and columns were exchanged in it: facts, sizes, images and orientation.
        bool tiffOutput = false;     ///< needsTiffOutput whatever its suffix.
        QString original = {};       ///< The file that is read instead, if not empty.
    };

    /// `keptCopies`, which may be null, must outlive the photograph and keeps its scaled images beyond their release.
    explicit Photograph(const QString &path, ScaledImages *keptCopies = nullptr) : Photograph(path, keptCopies, Guise()) {}
    Photograph(const QString &path, ScaledImages *keptCopies, const Guise &guise)
        : file(path), copies(keptCopies), transposed(guise.rowsForColumns), tiffOutput(guise.tiffOutput)
    {
    }

    const QString &path() const { return file; }
    /// The head of the file, read at the first call and kept.
    PhotoHead facts();
    /// Calls `next` on the acquiring thread at each step of a full use; by default nothing. Not during a use.
    void watch(Watcher next) { watcher = std::move(next); }
    /// acquireFull refuses photographs of this width and more; 0, the default, refuses none.
    void refuseFrom(int width) { refusedWidth = width; }
    static QString tooLarge(int limit);
    /// Frees the full image even if it was not released: a run that failed never releases it.
    void dropFull();

    /// The reduced copy that acquireScaled returns, shared by all its users. Blocks while it decodes.
    ScaledImages::Image scaledCopy(int width, int height, ScaledImages::Keep keep);

    /// Decodes the full image, for its automatic strength and for the next acquireFull, which then returns it.
    void decodeAhead();
    /// See AutomaticStrength. Known since decodeAhead, or since a scaled image was made from the file; before that there is none.
    std::optional<int> automaticStrength();

    QString displayName() override;
    int height() override;
    int width() override;
    int channelCount() override;
    int bitsPerChannel() override;
    bool needsTiffOutput() override;
    /// Called on the interface thread, it lets the window keep painting. The messages that it throws name the photograph.
    VImage *acquireScaled(int width, int height, int flag) override;
    void releaseScaled(int width, int height, int flag) override;
    VImage *acquireFull(int flag) override;
    void releaseFull(int flag) override;

private:
    struct Scaled
    {
        ScaledImages::Image image;
        int uses = 0;
    };
    struct Form
    {
        int channels;
        int bits;
    };

    std::unique_ptr<DecodedPhoto> load() const;
    std::unique_ptr<DecodedPhoto> decode(); ///< Loads, and records the form. With `mutex` held.
    void holdFull();                        ///< Decodes `full` unless it is there. With `mutex` held.
    ScaledImages::Image makeScaled(int width, int height);
    Form knownForm();

    const QString file;
    ScaledImages *const copies;
    const bool transposed;
    const bool tiffOutput;
    Watcher watcher;
    int refusedWidth = 0;

    std::mutex mutex; ///< Guards all that follows.
    std::optional<PhotoHead> head;
    std::optional<Form> form;
    std::optional<int> automatic;
    std::shared_ptr<DecodedPhoto> full;
    int fullUses = 0;
    std::map<std::pair<int, int>, Scaled> scaled;
};
