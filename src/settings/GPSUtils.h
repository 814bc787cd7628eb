#pragma once
// The one shared settings and utilities object: speed unit, volume, unit vocabulary, the modal
// flag, and the test of which files are playable movies.

#include "FilePasteboard.h"
#include "RendererPreference.h"
#include "SettingsFile.h"
#include "VideoTrackProbe.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class GPSUtils {
public:
    // The instance for the whole run, made on first call from the standard settings locations.
    static GPSUtils& sharedUtils();

    // Tests and tools make their own with chosen files and probe; `write` (tests) replaces the
    // settings file's contents whole.
    explicit GPSUtils(SettingsLocation location, std::shared_ptr<const VideoTrackProbe> probe = nullptr,
                      SettingsWriter::WriteFile write = {});

    // 0 MPH, anything else KM/H. The setters are seen at once and written to the settings file
    // in the background; setting the value already stored writes nothing.
    uint64_t unitType() const;
    void setUnitType(uint64_t unitType);
    float volume() const;
    void setVolume(float volume);
    // Where the map's tiles come from: "osm", "mbtiles:PATH", "folder:PATH" or "offline"; absent
    // until the user chooses.
    std::optional<std::string> mapSource() const;
    void setMapSource(const std::string& source);
    // Whether the end of a clip starts the next clip of the same trip; off until the user turns it on.
    bool continuousPlay() const;
    void setContinuousPlay(bool on);
    // The HTTP tile cache's bound. A stored value outside kTileCacheMegabytes reads as the default
    // (the file keeps it); the setter refuses one and returns false.
    int64_t tileCacheMegabytes() const;
    bool setTileCacheMegabytes(int64_t megabytes);
    // Minutes added to the camera's times (stored as "+HH:MM"); 0 for a text that does not parse.
    int clockCorrectionMinutes() const;
    bool setClockCorrectionMinutes(int minutes);
    // Read once at start; an unknown word reads as Automatic.
    RendererPreference videoRenderer() const;
    void setVideoRenderer(RendererPreference preference);
    // The format Export Track last wrote, by its dashtrack-gps name ("gpx", "kml", "geojson",
    // "csv"); absent until the user exports, and whatever the file holds: the reader checks it.
    std::optional<std::string> exportFormat() const;
    void setExportFormat(const std::string& format);
    // Whether a saved snapshot gets the speed, place and time drawn across its bottom; off until
    // the user ticks it in the save dialog.
    bool stampSnapshots() const;
    void setStampSnapshots(bool on);
    // The user interface's language: "en", "zh_CN", "ja" or "vi"; absent until the user chooses.
    std::optional<std::string> language() const;
    void setLanguage(const std::string& language);
    // Waits until every change is on disk (or its write failed): at quit, and in tests. The
    // shared instance also flushes when the program exits.
    bool flush() { return settings_.flush(); }

    static constexpr float defaultMaxSpeed() { return 30.0f; }
    static std::string TimeUnitName() { return "min"; }
    static std::string SpeedUnitNameMPH() { return "MPH"; }
    static std::string SpeedUnitNameKMH() { return "KM/H"; }
    std::string SpeedUnitName() const;
    // A speed rounded up to a multiple of ten (whole and negative speeds keep their integer part).
    static int32_t MaxSpeedMPH(float speed);
    static int32_t MaxSpeedKMH(float speed);

    bool statusIsModal() const { return statusIsModal_; }
    void setStatusIsModal(bool modal) { statusIsModal_ = modal; }

    // The file the settings were read from, and the settings themselves (absent when unreadable).
    const std::optional<std::filesystem::path>& envURL() const;
    const SettingsFile& envInfo() const { return settings_; }

    // The media libraries stay out of the settings store: the program that opens movies hands it
    // the probe that decides. Without one, no file counts as a movie.
    void setVideoTrackProbe(std::shared_ptr<const VideoTrackProbe> probe) { probe_ = std::move(probe); }

    // Playable movie: a readable file with at least one video track, whatever its name.
    bool isValidURL(const std::optional<std::filesystem::path>& url) const;
    std::vector<std::filesystem::path> validURLs(const std::vector<std::filesystem::path>& urls) const;
    std::vector<std::filesystem::path> validURLsWithPasteboard(const FilePasteboard& pasteboard) const;

    // For work that outlives the call, such as a ValidationJob; null when no probe was given.
    std::shared_ptr<const VideoTrackProbe> sharedVideoTrackProbe() const { return probe_; }

private:
    SettingsFile settings_;
    std::shared_ptr<const VideoTrackProbe> probe_;
    bool statusIsModal_ = false;
};
