#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include <QCoreApplication>
#include <QSettings>
#include <QTranslator>

#include "ForwardingImage.h"
#include "Photograph.h"
#include "ScaledImages.h"
#include "VException.h"
#include "VIApplication.h"

/// The program as its plug-ins see it: settings, language, catalogues, photographs and lent services.
///
/// Settings live in the user's Ombre/veilaway.ini (XDG_CONFIG_HOME, or ~/.config), one section per group. value, setValue,
/// locale, imageDef, photograph, addInGuise and forget may be called on any thread, the rest on the main one.
class HostApplication : public VIApplication
{
public:
    /// With `lendServices` the program starts services of its own and lends them to its plug-ins; otherwise each plug-in makes
    /// its own. They stop with this object, which must outlive the plug-ins' use of them.
    HostApplication(const QLocale &locale, bool lendServices);
    ~HostApplication() override;

    /// The locale for a language as a user writes it: "de", "fr_CA", "pt-BR.UTF-8"; Russian also as "re", the name of its
    /// catalogue. Nothing if there is no catalogue for it.
    static std::optional<QLocale> localeFor(const QString &language);
    /// The languages that have a catalogue, as --language takes them.
    static QStringList languages();

    /// Sets what `value` returns for this key, in any group, instead of the caller's fallback when nothing is stored. Call it
    /// before any other thread runs.
    void setUsual(const QString &key, const QVariant &value);

    /// During its lifetime, each `value` for this key returns the next of `answers`; an invalid one means the usual result. So a
    /// process that reads its stored default once per photograph starts each of them with a different strength.
    class Presets
    {
    public:
        Presets(HostApplication &host, const QString &group, const QString &key, QList<QVariant> answers);
        ~Presets();
        Presets(const Presets &) = delete;
        Presets &operator=(const Presets &) = delete;

    private:
        HostApplication &application;
    };

    /// What is stored under this key, as text; null if nothing is. setValue with an invalid value removes it. Any thread.
    QString storedText(const QString &group, const QString &key);
    /// Writes the settings to their file; returns its name if that fails, or else an empty string.
    QString unwrittenSettings();

    /// Where failures that nothing has caught on the interface thread are reported; the program then goes on.
    void reportTo(std::function<void(const QString &message)> next) { reporter = std::move(next); }

    /// The photograph behind imageDef.
    Photograph *photograph(const QString &path);
    /// From now on imageDef returns images whose addresses ascend in this order, since a plug-in's page lists its images by
    /// address. Those of one call are valid until the next call but one.
    void setOrder(const QStringList &paths);
    /// From now on the photograph at this path, which must not have been requested before, is seen in this guise.
    Photograph *addInGuise(const QString &path, const Photograph::Guise &guise);
    /// Destroys the photograph of this path, which no one uses any longer.
    void forget(const QString &path);

    QVariant value(const QString &group, const QString &key, const QVariant &fallback) override;
    void setValue(const QString &group, const QString &key, const QVariant &value) override;
    QLocale locale() override { return language; }
    void loadTranslator(const QString &fileName) override;
    ImageDef *imageDef(const QString &path) override;
    VImageContext *imageLibraryContext() override;
    VUIContext *interfaceLibraryContext() override;

protected:
    void report(const QString &message) const;

private:
    std::function<void(const QString &)> reporter;
    const QLocale language;
    const bool lending;
    std::vector<std::unique_ptr<QTranslator>> translators;
    std::mutex settingsMutex;
    QSettings settings;
    std::map<QString, QVariant> usual; ///< By key.
    QString presetKey;                 ///< Group/key, or empty.
    QList<QVariant> presets;
    ScaledImages scaledImages;
    std::mutex photographMutex;
    std::map<QString, std::unique_ptr<Photograph>> photographs; ///< By absolute path.
    std::vector<ForwardingImage> inOrder;
    std::vector<ForwardingImage> inOrderBefore;
    std::map<QString, ForwardingImage *> places; ///< Those of `inOrder`, by absolute path.
};

/// The application object itself: Base is QCoreApplication for the command line and QApplication for a window. Plug-ins ask it by
/// qt_metacast for the interface.
template<typename Base>
class HostedApplication : public Base, public HostApplication
{
public:
    HostedApplication(int &argc, char **argv, const QLocale &locale, bool lendServices)
        : Base(argc, argv), HostApplication(locale, lendServices)
    {
    }

    void *qt_metacast(const char *name) override
    {
        if (qstrcmp(name, qobject_interface_iid<VIApplication *>()) == 0)
            return static_cast<VIApplication *>(this);
        return Base::qt_metacast(name);
    }

    /// A slot of a plug-in may throw, on a damaged photograph for instance: that must not end the program.
    bool notify(QObject *receiver, QEvent *event) override
    {
        try {
            return Base::notify(receiver, event);
        } catch (const VException &failure) {
            report(failure.message);
        } catch (const std::exception &failure) {
            report(QString::fromLocal8Bit(failure.what()));
        }
        return false;
    }
};
