#pragma once
// Where the settings file is looked for: the user's own copy first, then the one shipped with
// the application. Changes are always written to the user's copy.

#include <filesystem>
#include <optional>

struct SettingsLocation {
    std::optional<std::filesystem::path> userFile;
    std::optional<std::filesystem::path> shippedFile;

    // `$XDG_CONFIG_HOME/dashtrack/Env.plist` (XDG_CONFIG_HOME defaulting to `$HOME/.config`;
    // relative or empty values are ignored) and `Env.plist` in the resource directory.
    static SettingsLocation standard();
};
