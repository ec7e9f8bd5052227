#pragma once

#include <optional>
#include <vector>

#include <QCoreApplication>
#include <QDomDocument>
#include <QString>
#include <QStringList>

/// The settings of a batch, one element of the process a photograph:
///
///     <veilaway>
///         <photo path="IMG_1.jpg"><Veilaway hazeRemove="40"/></photo>
///         <photo path="IMG_2.jpg"><Veilaway hazeRemove="64" strength="auto"/></photo>
///     </veilaway>
///
/// A relative path is relative to the file's folder. What the file holds besides stays in it. Failures are VExceptions whose
/// message names the file and says what helps.
class SettingsFile
{
    Q_DECLARE_TR_FUNCTIONS(SettingsFile)

public:
    /// `processName` is the tag of the elements.
    SettingsFile(const QString &path, const QString &processName);

    /// Reads the file; a missing one is an empty list. Throws for a file that can't be read, isn't XML of this shape, names a
    /// photograph twice or holds a strength that is no whole number from 0 to 100.
    void load();
    /// Writes the file as a whole or not at all, and only if something changed since `load`. Throws if it can't be written.
    void save();

    bool exists() const;
    const QString &path() const { return file; }
    /// Absolute paths in the order of the file.
    QStringList photographs() const;
    /// The settings of this photograph (absolute path); null if there are none.
    QDomElement element(const QString &photograph) const;
    /// Copies the element's attributes; its document need not exist any more. One that says the same leaves the file's as it is.
    void setElement(const QString &photograph, const QDomElement &element);

    /// Drops what the file holds of this photograph (absolute path).
    void remove(const QString &photograph);

    static std::optional<int> strengthOf(const QDomElement &element);
    /// With `automatic` the element also says that this strength was chosen for the photograph, not asked for. That is a note for
    /// the reader, and for the window: the number is what counts.
    [[nodiscard]] static QDomElement withStrength(const QString &processName, int strength, bool automatic = false);
    static bool isAutomatic(const QDomElement &element);

private:
    QDomElement entryOf(const QString &photograph) const;
    QString absolute(const QDomElement &entry) const;

    const QString file; ///< Absolute.
    const QString tag;
    QDomDocument document;
    bool changed = false;
};
