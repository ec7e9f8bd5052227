#pragma once

#include <QLocale>
#include <QString>
#include <QVariant>
#include <QtPlugin>

class ImageDef;
struct VImageContext;
struct VUIContext;

/// The host as a plug-in sees it: the host's application object returns this interface from qt_metacast("VIApplication"). The
/// plug-in asks for it at each use and keeps no pointer.
class VIApplication
{
public:
    virtual ~VIApplication() = default;
    /// A stored setting, or `fallback`. The plug-in uses its process GUID as group. Must be safe on every thread that creates
    /// settings.
    virtual QVariant value(const QString &group, const QString &key, const QVariant &fallback) = 0;
    virtual void setValue(const QString &group, const QString &key, const QVariant &value) = 0;
    /// The language that the host runs in.
    virtual QLocale locale() = 0;
    /// Loads a catalogue by bare file name (Nimbra_fr_FR.qm) from ":/Translation" and installs it. A missing one is not an error.
    virtual void loadTranslator(const QString &fileName) = 0;
    /// The host's object for this path: always the same one, and never null for a path that the host itself passed in.
    virtual ImageDef *imageDef(const QString &path) = 0;
    /// The shared objects that the host lends, or null if the plug-in is to make its own.
    virtual VImageContext *imageLibraryContext() = 0;
    virtual VUIContext *interfaceLibraryContext() = 0;
};

Q_DECLARE_INTERFACE(VIApplication, "VIApplication")
