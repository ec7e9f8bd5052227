#include "SettingsFile.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>
#include <QXmlStreamReader>

#include "VException.h"
#include "WantedStrength.h"
#include "pluginIdentity.h"

namespace {

constexpr int kDepth = 100; ///< Of nested elements; the format has three.
const QString kRoot = QStringLiteral("veilaway");
const QString kEntry = QStringLiteral("photo");
const QString kResult = QStringLiteral("result");
const QString kPath = QStringLiteral("path");
const QString kStrength = pluginIdentity::strengthKey();
const QString kWanted = QStringLiteral("strength"); // the program's, beside the process's

/// False for text with characters that XML can't hold, not even as references.
bool fitsXml(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar letter) {
        return letter >= ' ' ? letter < QChar(0xFFFE) : letter == '\t' || letter == '\n' || letter == '\r';
    });
}

QByteArray written(const QDomDocument &document)
{
    QByteArray text;
    QTextStream stream(&text);
    stream.setCodec("UTF-8"); // also in the declaration, whatever the file that was read declared
    document.save(stream, /*indent=*/4, QDomNode::EncodingFromTextStream);
    stream.flush();
    return text;
}

} // namespace

SettingsFile::SettingsFile(const QString &path, const QString &processName)
    : file(QFileInfo(path).absoluteFilePath()), tag(processName)
{
    document.appendChild(document.createElement(kRoot));
}

bool SettingsFile::exists() const
{
    return QFileInfo::exists(file);
}

std::optional<int> SettingsFile::strengthOf(const QDomElement &element)
{
    bool whole = false;
    const int strength = element.attribute(kStrength).toInt(&whole);
    return whole && strength >= 0 && strength <= 100 ? std::optional(strength) : std::nullopt;
}

QDomElement SettingsFile::withStrength(const QString &processName, int strength, bool automatic)
{
    QDomDocument factory(processName);
    QDomElement element = factory.createElement(processName);
    element.setAttribute(kStrength, strength);
    if (automatic)
        element.setAttribute(kWanted, QString::fromLatin1(WantedStrength::kAutomatic));
    return element;
}

bool SettingsFile::isAutomatic(const QDomElement &element)
{
    return element.attribute(kWanted) == QLatin1String(WantedStrength::kAutomatic);
}

void SettingsFile::load()
{
    if (!exists())
        return;
    const auto broken = [this](QString reason) {
        if (reason.endsWith('.')) // some of Qt's are sentences
            reason.chop(1);
        return VException(tr("The settings file \"%1\" can't be used: %2. Repair it, or name another one.").arg(file, reason),
                          V_LOCATION);
    };
    QFile input(file);
    if (QFileInfo(file).isDir() || !input.open(QIODevice::ReadOnly))
        throw broken(QFileInfo(file).isDir() ? tr("it is a folder") : input.errorString());
    // The tree is built and freed recursively: a file must not decide how deep that goes.
    const QByteArray text = input.readAll();
    QXmlStreamReader reader(text);
    for (int depth = 0; !reader.atEnd();) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : token == QXmlStreamReader::EndElement ? -1 : 0;
        if (depth > kDepth)
            reader.raiseError(QStringLiteral("nested too deeply"));
    }
    if (reader.hasError())
        throw broken(tr("line %1, column %2: %3").arg(reader.lineNumber()).arg(reader.columnNumber()).arg(reader.errorString()));
    // With this reader, since the document's own truncates character references above U+FFFF.
    QDomDocument read;
    QString error;
    int line = 0, column = 0;
    QXmlStreamReader again(text);
    if (!read.setContent(&again, /*namespaceProcessing=*/false, &error, &line, &column))
        throw broken(tr("line %1, column %2: %3").arg(line).arg(column).arg(error));
    if (read.documentElement().tagName() != kRoot)
        throw broken(tr("its outermost element is not <%1>").arg(kRoot));
    QHash<QString, QDomElement> seen;
    for (QDomElement entry = read.documentElement().firstChildElement(kEntry); !entry.isNull();
         entry = entry.nextSiblingElement(kEntry)) {
        const QString where = tr("line %1").arg(entry.lineNumber());
        if (entry.attribute(kPath).isEmpty())
            throw broken(tr("%1: a photo without a path").arg(where));
        if (seen.contains(absolute(entry)))
            throw broken(tr("%1: \"%2\" appears twice").arg(where, entry.attribute(kPath)));
        if (!strengthOf(entry.firstChildElement(tag)))
            throw broken(tr("%1: the photo needs <%2 %3=\"...\"/> with a whole number from 0 to 100").arg(where, tag, kStrength));
        seen.insert(absolute(entry), entry);
    }
    // Qt reads some characters that it rejects once it has written them, as in a processing instruction.
    QXmlStreamReader saved(written(read));
    while (!saved.atEnd())
        saved.readNext();
    if (saved.hasError())
        throw broken(saved.errorString());
    document = read;
    entries = seen;
    changed = false;
}

void SettingsFile::save()
{
    if (!changed)
        return;
    QDomDocument fit = document.cloneNode().toDocument();
    QString unfit;
    for (QDomElement entry = fit.documentElement().firstChildElement(kEntry), next; !entry.isNull(); entry = next) {
        next = entry.nextSiblingElement(kEntry);
        if (const QString path = entry.attribute(kPath); !fitsXml(path)) {
            unfit = path;
            fit.documentElement().removeChild(entry);
        }
        for (QDomElement result = entry.firstChildElement(kResult), after; !result.isNull(); result = after) {
            after = result.nextSiblingElement(kResult);
            if (!fitsXml(result.attribute(kPath)))
                entry.removeChild(result);
        }
    }
    QSaveFile output(file);
    const QByteArray text = written(fit);
    // Flushed here: on a full disk, committing what is still in the buffer succeeds and leaves an empty file.
    if (!output.open(QIODevice::WriteOnly) || output.write(text) != text.size() || !output.flush() || !output.commit())
        throw VException(
            tr("The settings file \"%1\" can't be written: %2. Make room, or give yourself permission to write there.")
                .arg(file, output.errorString()),
            V_LOCATION);
    changed = false;
    if (!unfit.isEmpty())
        throw VException(tr("The settings file \"%1\" can't hold the photograph \"%2\": its name contains control characters. "
                            "Rename the photograph.")
                             .arg(file, unfit),
                         V_LOCATION);
}

QString SettingsFile::absolute(const QDomElement &entry) const
{
    return QDir::cleanPath(QFileInfo(file).absoluteDir().absoluteFilePath(entry.attribute(kPath)));
}

QString SettingsFile::relative(const QString &path) const
{
    return QFileInfo(file).absoluteDir().relativeFilePath(QDir::cleanPath(path));
}

QStringList SettingsFile::photographs() const
{
    QStringList paths;
    for (QDomElement entry = document.documentElement().firstChildElement(kEntry); !entry.isNull();
         entry = entry.nextSiblingElement(kEntry))
        paths << absolute(entry);
    return paths;
}

QDomElement SettingsFile::entryOf(const QString &photograph) const
{
    return entries.value(QDir::cleanPath(photograph));
}

QDomElement SettingsFile::element(const QString &photograph) const
{
    return entryOf(photograph).firstChildElement(tag);
}

void SettingsFile::setElement(const QString &photograph, const QDomElement &element)
{
    QDomElement entry = entryOf(photograph);
    if (entry.isNull()) {
        entry = document.createElement(kEntry);
        entry.setAttribute(kPath, relative(photograph));
        document.documentElement().appendChild(entry);
        entries.insert(QDir::cleanPath(photograph), entry);
    } else if (const QDomElement known = entry.firstChildElement(tag);
               known.attribute(kStrength) == element.attribute(kStrength) && isAutomatic(known) == isAutomatic(element)) {
        return;
    }
    // Not with importNode: copying an attribute writes to the document that made it, which may be gone.
    QDomElement own = document.createElement(element.tagName());
    const QDomNamedNodeMap attributes = element.attributes();
    for (int i = 0; i < attributes.count(); ++i)
        own.setAttribute(attributes.item(i).nodeName(), attributes.item(i).nodeValue());
    // In the same place: the first one is used, and there may be others.
    const QDomElement old = entry.firstChildElement(tag);
    if (old.isNull())
        entry.appendChild(own);
    else
        entry.replaceChild(own, old);
    changed = true;
}

QDomElement SettingsFile::resultElement(const QString &photograph, const QString &result) const
{
    const QString wanted = QDir::cleanPath(result);
    QDomElement element = entryOf(photograph).firstChildElement(kResult);
    while (!element.isNull() && absolute(element) != wanted)
        element = element.nextSiblingElement(kResult);
    return element;
}

QStringList SettingsFile::results(const QString &photograph) const
{
    QStringList paths;
    for (QDomElement element = entryOf(photograph).firstChildElement(kResult); !element.isNull();
         element = element.nextSiblingElement(kResult))
        paths << absolute(element);
    return paths;
}

void SettingsFile::setResult(const QString &photograph, const QString &result, int strength, bool automatic)
{
    QDomElement entry = entryOf(photograph), element = resultElement(photograph, result);
    if (entry.isNull() || (strengthOf(element) == strength && isAutomatic(element) == automatic))
        return;
    if (element.isNull()) {
        element = document.createElement(kResult);
        element.setAttribute(kPath, relative(result));
        entry.appendChild(element);
    }
    element.setAttribute(kStrength, strength);
    if (automatic)
        element.setAttribute(kWanted, QString::fromLatin1(WantedStrength::kAutomatic));
    else
        element.removeAttribute(kWanted);
    changed = true;
}

void SettingsFile::remove(const QString &photograph)
{
    const QDomElement entry = entryOf(photograph);
    if (!entry.isNull()) {
        document.documentElement().removeChild(entry);
        entries.remove(QDir::cleanPath(photograph));
        changed = true;
    }
}
