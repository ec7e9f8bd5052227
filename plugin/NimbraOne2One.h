#pragma once

#include <QMap>
#include <QObject>
#include <QPointer>

#include "VIPluginOne2One.h"

class ImageDef;
class UIHazePage;
class VImage;

/// The plug-in's process: takes the haze out of one image, at a strength in per cent that is its only setting ("hazeRemove", in
/// the settings element and in the host's store under this process's GUID).
class NimbraOne2One : public QObject, public VIPluginOne2One
{
    Q_OBJECT
    Q_INTERFACES(VIPluginOne2One VIPluginProcess VIAbout)

public:
    /// Reads the host's stored strength into the default settings; 0 without a host.
    Q_INVOKABLE explicit NimbraOne2One(QObject *parent = nullptr);
    /// Calls releaseRecords and frees the default settings. The page belongs to whoever took it and keeps its appearance, but
    /// does nothing any more.
    ~NimbraOne2One() override;

    QString name() override;
    QString author() override;
    QString company() override;
    QString description() override;
    QString version() override;
    QIcon icon() override;
    QString guid() override;

    /// Makes a new page if the host has deleted the previous one.
    QWizardPage *wizardPage() override;
    void saveDefaults() override;
    /// The strength is used unchanged, even outside 0 to 100. An element without the attribute, or with a text that is not a
    /// number, gives 0 instead of the host's stored value. Fixed: hosts rely on it.
    [[nodiscard]] VISettingsHandle createSettings(QDomElement element) override;
    QDomElement settingsToElement(VISettingsHandle settings) override;
    void copySettings(VISettingsHandle destination, VISettingsHandle source) override;
    void destroySettings(VISettingsHandle settings) override;
    QIcon beforeAfterIcon() override;
    /// The result is written beside the source as <base name><tag>.<suffix in lower case>, where the tag is the translated
    /// "_dehazed", with the source's channels, depth and metadata. An image that the engine leaves unchanged, for whatever
    /// reason, is written all the same. Throws VException; after a failed conversion or a failure of the engine the full image
    /// has not been released, and no result exists unless writing had begun.
    void run(QString inputPath, VISettingsHandle settings, QString *outputPath) override;
    /// Waits for a preview that is being computed. Works without a page, too: the records are made all the same.
    void setImages(QStringList paths) override;
    QDomElement settingsFor(QString path) override;

    /// Makes this strength the default that saveDefaults writes: "Apply to all images" calls it.
    virtual void setDefaultSettings(HazeState *settings);

    /// Waits for a preview that is being computed, withdraws the records of the list from the page and frees them. Touches no
    /// widget.
    void releaseRecords();

    /// Calls the engine (see RemoveHaze.h), for run and for the preview. Uses no member, so any thread may call it.
    void RemoveHaze(VImage &image, HazeState &state);

private:
    QMap<ImageDef *, HazeState *> settingsByImage; ///< The record of each image in the current list. Owned.
    QPointer<UIHazePage> page;                     ///< Not owned.
    HazeState *defaultSettings;                    ///< Owned; only its strength is used.
};
