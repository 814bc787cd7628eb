#include "SettingsLocation.h"

#include "ResourceDirectory.h"

#include <cstdlib>

namespace {

// A variable counts only when it holds an absolute path, as the XDG base directory rules ask.
std::optional<std::filesystem::path> absolutePathFromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr || *value == '\0') return std::nullopt;
    std::filesystem::path path(value);
    if (!path.is_absolute()) return std::nullopt;
    return path;
}

std::optional<std::filesystem::path> userConfigDirectory() {
    if (auto xdg = absolutePathFromEnvironment("XDG_CONFIG_HOME")) return xdg;
    if (auto home = absolutePathFromEnvironment("HOME")) return *home / ".config";
    return std::nullopt;
}

}  // namespace

SettingsLocation SettingsLocation::standard() {
    SettingsLocation location;
    if (auto config = userConfigDirectory()) location.userFile = *config / "dashtrack" / "Env.plist";
    location.shippedFile = resourceDirectory() / "Env.plist";
    return location;
}
