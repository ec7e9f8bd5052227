#pragma once

#include <optional>

#include <QString>

/// A strength as the user requests it: in per cent, or chosen for each photograph (see AutomaticStrength).
struct WantedStrength
{
    int percent = 0; ///< 0 to 100; unused if `automatic` is set.
    bool automatic = false;

    static constexpr int kUsual = 70; ///< In per cent, if neither the user nor a stored default gives one.
    /// The word for the automatic one, on the command line and in files.
    static constexpr char kAutomatic[] = "auto";
    /// Reads that word or a whole number from 0 to 100; nothing for any other text.
    static std::optional<WantedStrength> parse(const QString &text);
};
