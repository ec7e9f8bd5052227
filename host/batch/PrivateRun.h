#pragma once

#include <memory>

#include <QCoreApplication>
#include <QString>

#include "BatchItem.h"
#include "HostApplication.h"
#include "PrivateFolder.h"
#include "VIPluginOne2One.h"

/// One run of a process. The process sees the photograph through a link in a private folder on the result's file system, and
/// writes there. The finished file, XMP included, then gets the result's name in one step: under that name there is at any time
/// nothing, an older file, or the finished result.
///
/// A photograph that is too wide for the process is seen with rows for columns. The result of a JPEG is turned back in its
/// coefficients; all others in their pixels, and written with the photograph's own metadata, as a process writes them. Neither
/// changes a value. If the result's suffix names another format than the process would write, the process writes a TIFF, from
/// which the result is made in the same way; likewise if the packing of a JPEG is chosen.
///
/// A photograph that the codec layer doesn't read is seen through a stand-in for its metadata instead of a link; see makeStandIn.
class PrivateRun
{
    Q_DECLARE_TR_FUNCTIONS(PrivateRun)

public:
    /// Creates the result's folder if it does not exist, and the private folder with the link. Throws VException if they can't be
    /// created, or if the result is a file that may not be replaced.
    PrivateRun(HostApplication &host, const BatchItem &item, bool rowsForColumns);
    /// Removes the private folder and everything in it.
    ~PrivateRun();
    PrivateRun(const PrivateRun &) = delete;
    PrivateRun &operator=(const PrivateRun &) = delete;

    /// The photograph as the process sees it.
    Photograph &photograph() { return *shown; }
    /// Runs the process and finishes its result in the private folder. Throws VException, whose message names the paths that the
    /// user knows.
    void run(VIPluginOne2One &process, VISettingsHandle settings);
    /// The same for the finished result's XMP; see the function of this name.
    [[nodiscard]] QString carryXmp() const;
    /// Brings the finished file to the result's file system, where it gets the photograph's time of modification if the item
    /// wants that. Returns the reason if it can't have it, otherwise an empty string. Throws VException.
    [[nodiscard]] QString bringHome();
    /// After bringHome, gives the finished file the result's name. False if a file has that name already and is not to be
    /// replaced. Throws VException.
    [[nodiscard]] bool publish();

    /// Throws VException if the result's format can't hold the photograph's samples of so many bits per channel.
    static void checkDepth(const BatchItem &item, int bits);

    /// Removes what killed runs left behind, wherever runs for these results would work.
    static void removeAbandoned(const std::vector<BatchItem> &items);

private:
    void makeLink();
    bool place(const PrivateFolder &folder);
    void finish();
    /// The file that a process takes the metadata from.
    const QString &metadataSource() const { return standIn ? link : item.path; }
    QString withKnownPaths(QString message) const;

    HostApplication &application;
    const BatchItem &item;
    const bool transposed;
    const QString target;                     ///< The result, or the file that it links to.
    std::unique_ptr<PrivateFolder> home;      ///< Beside the target.
    std::unique_ptr<PrivateFolder> elsewhere; ///< For the link, where the target's file system has none.
    QString link;                             ///< To the photograph, or its stand-in.
    const bool standIn;
    QString finished;            ///< The complete file, once there is one.
    Photograph *shown = nullptr; ///< Owned by the application.
};
