#pragma once

#include <optional>

#include <QCoreApplication>

#include "HostApplication.h"
#include "WantedStrength.h"

/// The default strength in the user's settings, for photographs without another one. A process keeps a number there under its
/// own group and key, which its page may change. The word "auto", under a key of the program's in the same group, overrides it.
class DefaultStrength
{
    Q_DECLARE_TR_FUNCTIONS(DefaultStrength)

public:
    /// `processGroup` is the guid of the process.
    DefaultStrength(HostApplication &host, const QString &processGroup) : application(host), group(processGroup) {}

    /// Nothing if none is stored or what is stored is invalid.
    std::optional<WantedStrength> stored() const;
    /// Without a strength, removes the stored one. Throws VException if the settings can't be written.
    void store(const std::optional<WantedStrength> &strength);

private:
    HostApplication &application;
    const QString group;
};
