#include <memory>

#include <QDomDocument>

#include "FuzzTarget.h"
#include "HazeState.h"
#include "NimbraOne2One.h"
#include "SettingsFile.h"
#include "VException.h"

// The settings file of a batch, and the plug-in's settings from any element. What the program accepts it can write and read
// again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t count)
{
    static const ScratchFolder folder;
    static NimbraOne2One process;
    const QString tag = process.name();
    const auto taken = [&](const QDomElement &element) {
        const VISettingsHandle settings = process.createSettings(element);
        const int strength = settings->strength;
        const QDomElement again = process.settingsToElement(settings);
        process.destroySettings(settings);
        const VISettingsHandle same = process.createSettings(again);
        require(same->strength == strength, "settings survive their element");
        process.destroySettings(same);
        return again;
    };

    const QString path = QString::fromStdString(folder.write("settings.xml", bytes, count));
    SettingsFile file(path, tag);
    try {
        file.load();
    } catch (const VException &) {
        QDomDocument document; // not a settings file, but perhaps an element from a host, which is not nested that deeply
        if (count < 10000 && document.setContent(QByteArray(reinterpret_cast<const char *>(bytes), int(count))))
            taken(document.documentElement());
        return 0;
    }
    const QStringList photographs = file.photographs();
    for (const QString &photograph : photographs)
        file.setElement(photograph, taken(file.element(photograph)));
    if (digest(bytes, count) % 4 != 0) // writing takes most of the time
        return 0;
    const QString added = QStringLiteral("/photographs/a & b.jpg");
    file.setElement(added, SettingsFile::withStrength(tag, int(count % 101)));
    file.save();

    SettingsFile again(path, tag);
    try {
        again.load();
    } catch (const VException &) {
        require(false, "the program reads what it wrote");
    }
    require(again.photographs().mid(0, photographs.size()) == photographs, "the photographs stay, in their order");
    for (const QString &photograph : again.photographs())
        require(SettingsFile::strengthOf(again.element(photograph)) == SettingsFile::strengthOf(file.element(photograph)),
                "every photograph keeps its strength");
    require(SettingsFile::strengthOf(again.element(added)) == int(count % 101), "what was added is there");
    return 0;
}
