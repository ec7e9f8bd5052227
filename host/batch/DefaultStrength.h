#pragma once

#include <optional>

#include <QCoreApplication>

#include "HostApplication.h"
#include "WantedStrength.h"

/// The strength of photographs that nothing else gives one, in the user's settings. A process keeps a number there under its own
/// group and key, which its page may change; the word "auto" stands beside it under a key of the program's, and goes before it.
class DefaultStrength
{
    Q_DECLARE_TR_FUNCTIONS(DefaultStrength)

public:
    /// `processGroup` is the process's guid.
    DefaultStrength(HostApplication &host, const QString &processGroup) : application(host), group(processGroup) {}

    /// Nothing if none is stored, or none that can be used.
    std::optional<WantedStrength> stored() const;
    /// Nothing takes back what is stored. Throws VException if the settings can't be written.
    void store(const std::optional<WantedStrength> &strength);

private:
    HostApplication &application;
    const QString group;
};
