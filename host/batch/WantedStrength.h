#pragma once

#include <optional>

#include <QString>

/// A strength as a user asks for it: in per cent, or the one that fits each photograph (see AutomaticStrength).
struct WantedStrength
{
    int percent = 0; ///< 0 to 100; says nothing if `automatic` is set.
    bool automatic = false;

    static constexpr int kUsual = 70; ///< In per cent, where nothing else gives one.
    /// The word for the automatic one, on the command line and in files.
    static constexpr char kAutomatic[] = "auto";
    /// Reads that word or a whole number from 0 to 100; anything else is nothing.
    static std::optional<WantedStrength> parse(const QString &text);
};
