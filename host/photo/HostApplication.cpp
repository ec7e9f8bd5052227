#include "HostApplication.h"

#include <cstdio>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "gfl.h"
#include "gflCallbacks.h"
#include "metadataLibrary.h"
#include "startLibraries.h"

namespace {

/// Enough for about a hundred copies at the size of the plug-in's page.
constexpr std::size_t kScaledBytes = std::size_t(256) << 20;

} // namespace

HostApplication::HostApplication(const QLocale &locale, bool lendServices)
    : language(locale), lending(lendServices),
      settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Ombre"), QStringLiteral("veilaway")),
      scaledImages(kScaledBytes)
{
    startMetadataLibrary();
    if (lending) {
        startImageLibrary(nullptr); // the codec layer with it
        startInterfaceLibrary(nullptr);
    } else {
        gflLibraryInitEx(gflAllocCallback, gflReallocCallback, gflFreeCallback, nullptr);
        gflEnableLZW(1);
    }
}

HostApplication::~HostApplication()
{
    if (lending)
        stopImageLibrary();
    else
        gflLibraryExit();
}

QStringList HostApplication::languages()
{
    return {"de", "en", "es", "fr", "it", "ja", "pl", "ru", "zh_CN", "zh_TW"};
}

std::optional<QLocale> HostApplication::localeFor(const QString &wanted)
{
    const QString name = wanted.section('.', 0, 0).section('@', 0, 0).replace('-', '_');
    QString code = name.section('_', 0, 0).toLower();
    if (code == "re")
        code = "ru";
    if (code == "zh") {
        const QStringList rest = name.section('_', 1).toUpper().split('_');
        for (const char *traditional : {"TW", "HK", "MO", "HANT"})
            if (rest.contains(traditional))
                return QLocale("zh_TW");
        return QLocale("zh_CN");
    }
    if (!languages().contains(code))
        return std::nullopt;
    return QLocale(name.contains('_') ? code + '_' + name.section('_', 1) : code);
}

VImageContext *HostApplication::imageLibraryContext()
{
    return lending ? &imageContext : nullptr;
}

VUIContext *HostApplication::interfaceLibraryContext()
{
    return lending ? &interfaceContext : nullptr;
}

QVariant HostApplication::value(const QString &group, const QString &key, const QVariant &fallback)
{
    const QString name = group + '/' + key;
    const std::lock_guard lock(settingsMutex);
    if (name == presetKey && !presets.isEmpty())
        if (const QVariant answer = presets.takeFirst(); answer.isValid())
            return answer;
    const auto ours = usual.find(key);
    return settings.value(name, ours != usual.end() ? ours->second : fallback);
}

void HostApplication::setUsual(const QString &key, const QVariant &value)
{
    usual[key] = value;
}

void HostApplication::report(const QString &message) const
{
    if (reporter)
        reporter(message);
    else
        std::fprintf(stderr, "veilaway: %s\n", message.toUtf8().constData());
}

HostApplication::Presets::Presets(HostApplication &host, const QString &group, const QString &key, QList<QVariant> answers)
    : application(host)
{
    const std::lock_guard lock(application.settingsMutex);
    application.presetKey = group + '/' + key;
    application.presets = std::move(answers);
}

HostApplication::Presets::~Presets()
{
    const std::lock_guard lock(application.settingsMutex);
    application.presetKey.clear();
    application.presets.clear();
}

void HostApplication::setValue(const QString &group, const QString &key, const QVariant &value)
{
    const std::lock_guard lock(settingsMutex);
    if (value.isValid())
        settings.setValue(group + '/' + key, value);
    else
        settings.remove(group + '/' + key);
}

QString HostApplication::storedText(const QString &group, const QString &key)
{
    const std::lock_guard lock(settingsMutex);
    return settings.value(group + '/' + key).toString();
}

QString HostApplication::unwrittenSettings()
{
    const std::lock_guard lock(settingsMutex);
    settings.sync();
    return settings.status() == QSettings::NoError ? QString() : settings.fileName();
}

void HostApplication::loadTranslator(const QString &fileName)
{
    // "Nimbra_fr_FR.qm" finds Nimbra_fr.qm by the translator's own search. The Russian catalogue of some sets is named "re".
    const QString folder = QStringLiteral(":/Translation");
    const QString base = fileName.section('_', 0, 0);
    auto translator = std::make_unique<QTranslator>();
    const bool found = translator->load(fileName, folder) ||
                       (language.language() == QLocale::Russian && translator->load(base + QStringLiteral("_re.qm"), folder));
    if (found && QCoreApplication::installTranslator(translator.get()))
        translators.push_back(std::move(translator));
}

Photograph *HostApplication::photograph(const QString &path)
{
    const QString key = QFileInfo(path).absoluteFilePath();
    const std::lock_guard lock(photographMutex);
    auto &entry = photographs[key];
    if (!entry)
        entry = std::make_unique<Photograph>(key, &scaledImages);
    return entry.get();
}

void HostApplication::setOrder(const QStringList &paths)
{
    std::vector<ForwardingImage> images(std::size_t(paths.size()));
    std::map<QString, ForwardingImage *> found;
    for (std::size_t index = 0; index < images.size(); ++index) {
        images[index].target = photograph(paths[int(index)]);
        found[images[index].target->path()] = &images[index];
    }
    const std::lock_guard lock(photographMutex);
    inOrderBefore = std::move(inOrder); // a plug-in may look at its list once more before it takes the next one
    inOrder = std::move(images);
    places = std::move(found);
}

ImageDef *HostApplication::imageDef(const QString &path)
{
    {
        const std::lock_guard lock(photographMutex);
        if (const auto place = places.find(QFileInfo(path).absoluteFilePath()); place != places.end())
            return place->second;
    }
    return photograph(path);
}

Photograph *HostApplication::addInGuise(const QString &path, const Photograph::Guise &guise)
{
    const std::lock_guard lock(photographMutex);
    auto &entry = photographs[QFileInfo(path).absoluteFilePath()];
    entry = std::make_unique<Photograph>(guise.original.isEmpty() ? path : guise.original, nullptr, guise);
    return entry.get();
}

void HostApplication::forget(const QString &path)
{
    const std::lock_guard lock(photographMutex);
    photographs.erase(QFileInfo(path).absoluteFilePath());
}
