#pragma once

#include <optional>
#include <vector>

#include <QCoreApplication>
#include <QDomDocument>
#include <QHash>
#include <QString>
#include <QStringList>

/// The settings of a batch, with one element of the process per photograph, and one for each result that was made of it:
///
///     <veilaway>
///         <photo path="IMG_1.jpg"><Veilaway hazeRemove="40"/></photo>
///         <photo path="IMG_2.jpg">
///             <Veilaway hazeRemove="64" strength="auto"/>
///             <result path="IMG_2_dehazed.jpg" hazeRemove="64" strength="auto"/>
///         </photo>
///     </veilaway>
///
/// A relative path is relative to the file's folder. Anything else in the file is kept. Failures are VExceptions whose message
/// names the file and the remedy.
class SettingsFile
{
    Q_DECLARE_TR_FUNCTIONS(SettingsFile)

public:
    /// `processName` is the tag of the elements.
    SettingsFile(const QString &path, const QString &processName);

    /// Reads the file; a missing one is an empty list. Throws if the file can't be read, isn't XML of this form, names a
    /// photograph twice, or holds a strength that is not a whole number from 0 to 100.
    void load();
    /// Writes the whole file or nothing, and only if something has changed since load(). Throws if it can't be written, and
    /// after writing all others if it can't hold the name of a photograph.
    void save();

    bool exists() const;
    const QString &path() const { return file; }
    /// Absolute paths in the order of the file.
    QStringList photographs() const;
    /// The settings of this photograph (absolute path); null if there are none.
    QDomElement element(const QString &photograph) const;
    /// Copies the element's attributes; the element's document may be gone. If strength and mark are the same, nothing changes.
    void setElement(const QString &photograph, const QDomElement &element);

    /// The element of this result (absolute path) with the strength that it was made at; null if it is not known.
    QDomElement resultElement(const QString &photograph, const QString &result) const;
    /// The absolute paths of all known results of this photograph.
    QStringList results(const QString &photograph) const;
    /// Records a result and its strength, if the photograph is in the file.
    void setResult(const QString &photograph, const QString &result, int strength, bool automatic);

    /// Removes the entry of this photograph (absolute path).
    void remove(const QString &photograph);

    /// Nothing if the attribute is missing or not a whole number from 0 to 100.
    static std::optional<int> strengthOf(const QDomElement &element);
    /// With `automatic`, the element is also marked as chosen for the photograph instead of given by the user. The mark informs
    /// the reader and the window; the number is what is used.
    [[nodiscard]] static QDomElement withStrength(const QString &processName, int strength, bool automatic = false);
    static bool isAutomatic(const QDomElement &element);

private:
    QDomElement entryOf(const QString &photograph) const;
    QString absolute(const QDomElement &entry) const;
    QString relative(const QString &path) const;

    const QString file; ///< Absolute.
    const QString tag;
    QDomDocument document;
    QHash<QString, QDomElement> entries; ///< Of the photographs, by absolute path.
    bool changed = false;
};
