#pragma once
// The settings: a property-list dictionary read once from the settings file and written back
// whole, as XML, to the user's copy whenever a value changes.

#include "PlistNode.h"
#include "SettingsLocation.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

class SettingsFile {
public:
    // Absent settings with nowhere to write them.
    SettingsFile() = default;

    // Reads the user's copy when one exists (whatever its state), else the shipped file. A file
    // that is missing, unreadable or not a dictionary leaves the settings absent.
    static SettingsFile load(const SettingsLocation& location);

    bool isLoaded() const { return root_ != nullptr; }
    // The file the settings were read from; absent when neither file exists.
    const std::optional<std::filesystem::path>& path() const { return readFrom_; }

    // A value of another type than asked for counts as missing; a non-negative real read as an
    // unsigned integer is truncated, an integer read as a real is converted.
    std::optional<uint64_t> unsignedValue(const std::string& key) const;
    std::optional<double> realValue(const std::string& key) const;

    // Only when loaded: replaces the key's value, then writes the whole dictionary to the user's
    // copy. True when the file was written; on failure the new value stays in memory.
    bool setUnsignedValue(const std::string& key, uint64_t value);
    bool setRealValue(const std::string& key, double value);

private:
    plist_t item(const std::string& key) const;
    bool replace(const std::string& key, PlistNode value);
    bool save() const;

    PlistNode root_;
    std::optional<std::filesystem::path> readFrom_;
    std::optional<std::filesystem::path> writeTo_;
};
