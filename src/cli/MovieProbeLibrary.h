#pragma once
// The movie test, loaded at run time from the module installed beside the tool, so that only
// "probe" pays for the media libraries.

#include <filesystem>
#include <memory>
#include <string>

class MovieProbeLibrary {
public:
    // The module's file name; it is looked for beside the executable, then in the installed
    // private folder relative to it (../lib/dashtrack or ../lib/<multiarch>/dashtrack).
    static constexpr const char* kModuleName = "dashtrack-gps-probe.so";

    // Absent when the module cannot be found or loaded; `error` then says why in one line.
    static std::unique_ptr<MovieProbeLibrary> load(std::string& error);
    ~MovieProbeLibrary();
    MovieProbeLibrary(const MovieProbeLibrary&) = delete;
    MovieProbeLibrary& operator=(const MovieProbeLibrary&) = delete;

    bool hasVideoTrack(const std::filesystem::path& file) const;

    using HasVideoTrack = int (*)(const char*);
    class Key {
        friend class MovieProbeLibrary;
        Key() = default;
    };
    MovieProbeLibrary(Key, void* handle, HasVideoTrack function) : handle_(handle), hasVideoTrack_(function) {}

private:
    void* handle_;
    HasVideoTrack hasVideoTrack_;
};
