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

/// One photograph of the program, as a plug-in sees it. Pixels are decoded at an acquire and freed at its release, so that a list
/// of any length costs no memory by itself. All operations may be called from several threads at once; those that read the file
/// throw VException (see PhotoLoader).
///
/// Full size comes as stored; scaled images and width() and height() are as a viewer shows the photograph, with its EXIF
/// orientation applied.
class Photograph : public ImageDef
{
    Q_DECLARE_TR_FUNCTIONS(Photograph)

public:
    /// The steps of a full use. What a watcher throws leaves through the call of the plug-in, and so ends its run.
    enum class Use { Reading, Read, Released };
    using Watcher = std::function<void(Use)>;

    /// The EXIF orientation that has rows for columns and turns nothing else; it is its own inverse.
    static constexpr int kRowsForColumns = 5;

    /// `keptCopies`, which may be null, outlives the photograph and keeps its scaled images beyond their release. With
    /// `rowsForColumns` everything is as if the file were stored so: facts, sizes, images and orientation.
    explicit Photograph(const QString &path, ScaledImages *keptCopies = nullptr, bool rowsForColumns = false)
        : file(path), copies(keptCopies), transposed(rowsForColumns)
    {
    }

    const QString &path() const { return file; }
    /// The head of the file, read at the first call.
    PhotoHead facts();
    /// Calls `next` on the acquiring thread at each step of a full use; none by default. Not while a use goes on.
    void watch(Watcher next) { watcher = std::move(next); }
    /// acquireFull refuses wider photographs; 0, the default, refuses none.
    void refuseFrom(int width) { refusedWidth = width; }
    static QString tooLarge(int limit);
    /// Frees the full image whatever holds it: a run that failed never releases.
    void dropFull();

    /// The reduced copy that acquireScaled hands out, shared with all who use it. Blocks while it decodes.
    ScaledImages::Image scaledCopy(int width, int height, ScaledImages::Keep wish);

    /// Decodes the full image, for its automatic strength and for the next acquireFull, which then hands it out.
    void decodeAhead();
    /// See AutomaticStrength. Known since decodeAhead, or since a scaled image was made from the file; before that there is none.
    std::optional<int> automaticStrength();

    QString displayName() override;
    int height() override;
    int width() override;
    int channelCount() override;
    int bitsPerChannel() override;
    bool needsTiffOutput() override;
    /// On the interface thread the window goes on painting meanwhile. What it throws names the photograph.
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
    std::unique_ptr<DecodedPhoto> decode(); ///< Loads and notes the form. With `mutex` held.
    void holdFull();                        ///< Sees to it that `full` is there. With `mutex` held.
    ScaledImages::Image makeScaled(int width, int height);
    Form knownForm();

    const QString file;
    ScaledImages *const copies;
    const bool transposed;
    Watcher watcher;
    int refusedWidth = 0;

    std::mutex mutex; ///< Over all that follows.
    std::optional<PhotoHead> head;
    std::optional<Form> form;
    std::optional<int> automatic;
    std::shared_ptr<DecodedPhoto> full;
    int fullUses = 0;
    std::map<std::pair<int, int>, Scaled> scaled;
};
