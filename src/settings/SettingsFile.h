#pragma once
// The settings: a property-list dictionary read once from the settings file and written back
// whole, as XML, to the user's copy whenever a value changes. The write happens on a writer
// thread; the new value is seen at once.

#include "PlistNode.h"
#include "SettingsLocation.h"
#include "SettingsWriter.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

class SettingsFile {
public:
    // Absent settings with nowhere to write them.
    SettingsFile() = default;

    // Reads the user's copy when one exists (whatever its state), else the shipped file. A file
    // that is missing, unreadable or not a dictionary leaves the settings absent.
    // `write` replaces the file's contents whole (an atomic rename unless a test counts writes).
    static SettingsFile load(const SettingsLocation& location, SettingsWriter::WriteFile write = {});

    bool isLoaded() const { return root_ != nullptr; }
    // The file the settings were read from; absent when neither file exists.
    const std::optional<std::filesystem::path>& path() const { return readFrom_; }

    // A value of another type than asked for counts as missing; a non-negative real read as an
    // unsigned integer is truncated, an integer read as a real is converted.
    std::optional<uint64_t> unsignedValue(const std::string& key) const;
    std::optional<double> realValue(const std::string& key) const;
    std::optional<std::string> stringValue(const std::string& key) const;

    // Only when loaded: replaces the key's value and asks for the whole dictionary to be written
    // to the user's copy. A value equal to the stored one (same type) writes nothing. True when a
    // write was asked; if it fails, the new value stays in memory.
    bool setUnsignedValue(const std::string& key, uint64_t value);
    bool setRealValue(const std::string& key, double value);
    bool setStringValue(const std::string& key, const std::string& value);

    // Waits until every write asked so far is on disk (or has failed); true when the last one
    // succeeded or none was asked.
    bool flush();

private:
    plist_t item(const std::string& key) const;
    bool replace(const std::string& key, PlistNode value);
    bool save();

    PlistNode root_;
    std::optional<std::filesystem::path> readFrom_;
    std::optional<std::filesystem::path> writeTo_;
    SettingsWriter::WriteFile writeFile_;
    // Made at the first change, so that reading the settings starts no thread.
    std::unique_ptr<SettingsWriter> writer_;
};
