#include "NimbraOne2One.h"

#include <memory>

#include <QDir>
#include <QDomDocument>
#include <QFileInfo>

#include "HazeState.h"
#include "ImageDef.h"
#include "RemoveHaze.h"
#include "UIHazePage.h"
#include "VImage.h"
#include "hostApplication.h"
#include "pluginIdentity.h"
#include "workingForm.h"

namespace {

const QString kStrengthKey = pluginIdentity::strengthKey();

unsigned short typeOfChannels(int channels)
{
    switch (channels) {
    case 1:
        return VImage::Grey;
    case 3:
        return VImage::Rgb;
    default:
        return VImage::Rgba;
    }
}

int depthOfBits(int bits)
{
    return bits < 9 ? 8 : bits < 17 ? 16 : 32;
}

} // namespace

NimbraOne2One::NimbraOne2One(QObject *parent) : QObject(parent), defaultSettings(NimbraOne2One::createSettings(QDomElement()))
{
    setObjectName(QString::fromLatin1("NimbraOne2One"));
}

NimbraOne2One::~NimbraOne2One()
{
    releaseRecords();
    NimbraOne2One::destroySettings(defaultSettings);
}

void NimbraOne2One::releaseRecords()
{
    if (page)
        page->releaseRecords();
    for (HazeState *settings : qAsConst(settingsByImage))
        NimbraOne2One::destroySettings(settings);
    settingsByImage.clear();
}

QString NimbraOne2One::name()
{
    return QString::fromLatin1("Veilaway");
}

QString NimbraOne2One::author()
{
    return pluginIdentity::author();
}

QString NimbraOne2One::company()
{
    return pluginIdentity::company();
}

QString NimbraOne2One::description()
{
    // No blank after "layer.". Fixed: hosts rely on it, since the catalogues have the text in this form.
    return tr(
        "Haze is an atmospheric phenomenon that can affect outdoor photos. Everything far from the shooter seems to be covered "
        "by a white layer.This plugin helps you to remove the haze and clean your photo. To do that, it analyses each pixel to "
        "calculate the depth of air.");
}

QString NimbraOne2One::version()
{
    return pluginIdentity::version();
}

QIcon NimbraOne2One::icon()
{
    return QIcon(pluginIdentity::iconPath());
}

QString NimbraOne2One::guid()
{
    return pluginIdentity::processGuid();
}

QWizardPage *NimbraOne2One::wizardPage()
{
    if (!page) // the first call makes the page, every later one returns it. Fixed: hosts rely on it.
        page = new UIHazePage(this, nullptr);
    return page;
}

void NimbraOne2One::saveDefaults()
{
    VIApplication *const app = hostApplication();
    if (app && defaultSettings)
        app->setValue(guid(), kStrengthKey, QVariant(int(defaultSettings->strength)));
}

VISettingsHandle NimbraOne2One::createSettings(QDomElement element)
{
    auto settings = std::make_unique<HazeState>();
    // The fallback is a text, and the strength is not clamped. Fixed: hosts rely on it.
    if (VIApplication *const app = hostApplication())
        settings->strength = app->value(pluginIdentity::processGuid(), kStrengthKey, QVariant(QString::fromLatin1("0"))).toInt();
    if (!element.isNull())
        settings->strength = element.attribute(kStrengthKey, QString::fromLatin1("0")).toInt();
    return settings.release();
}

QDomElement NimbraOne2One::settingsToElement(VISettingsHandle settings)
{
    QDomDocument document(name());
    QDomElement element = document.createElement(name());
    element.setAttribute(kStrengthKey, qlonglong(settings->strength));
    return element;
}

void NimbraOne2One::copySettings(VISettingsHandle destination, VISettingsHandle source)
{
    destination->strength = source->strength; // the map belongs to a single image
}

void NimbraOne2One::destroySettings(VISettingsHandle settings)
{
    if (!settings)
        return;
    delete[] settings->transmission;
    delete settings;
}

QIcon NimbraOne2One::beforeAfterIcon()
{
    return QIcon(QString::fromLatin1(":/%1/Resources/NimbraBeforeAfter.png").arg(pluginIdentity::processGuid()));
}

void NimbraOne2One::run(QString inputPath, VISettingsHandle settings, QString *outputPath)
{
    VIApplication *const app = hostApplication();
    ImageDef *const def = app->imageDef(inputPath);

    const QFileInfo input(inputPath);
    QString extension = input.suffix().toLower();
    if (def->needsTiffOutput())
        extension = QString::fromLatin1("tiff");
    // The dot is there even without a suffix. Fixed: hosts rely on it.
    *outputPath = input.absolutePath() + QDir::separator() + input.completeBaseName() + tr("_dehazed") + '.' + extension;

    VImage working;
    toWorkingForm(*def->acquireFull(1), working);
    RemoveHaze(working, *settings);
    def->releaseFull(1);

    VImage result;
    const unsigned short type = typeOfChannels(def->channelCount());
    working.ConvertTo(result, type, depthOfBits(def->bitsPerChannel()));
    result.Save(*outputPath, extension, -1, inputPath);
}

void NimbraOne2One::setImages(QStringList paths)
{
    releaseRecords();
    VIApplication *const app = hostApplication();
    for (const QString &path : qAsConst(paths)) {
        HazeState *const settings = createSettings(QDomElement());
        HazeState *&record = settingsByImage[app->imageDef(path)];
        destroySettings(record);
        record = settings;
    }
    if (page)
        page->setImages(settingsByImage);
}

QDomElement NimbraOne2One::settingsFor(QString path)
{
    ImageDef *const key = hostApplication()->imageDef(path);
    if (HazeState *const settings = settingsByImage.value(key))
        return settingsToElement(settings);
    HazeState *const settings = createSettings(QDomElement());
    const QDomElement element = settingsToElement(settings);
    destroySettings(settings);
    return element;
}

void NimbraOne2One::setDefaultSettings(HazeState *settings)
{
    copySettings(defaultSettings, settings);
}

void NimbraOne2One::RemoveHaze(VImage &image, HazeState &state)
{
    ::RemoveHaze(image, state);
}
