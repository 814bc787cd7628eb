#pragma once
// The test of whether a file is a movie with a picture, kept behind an interface so the rest of
// the system can be tested with a fake.

#include <filesystem>
#include <memory>

class VideoTrackProbe {
public:
    virtual ~VideoTrackProbe() = default;
    // True for a readable movie file holding at least one video track. Safe to call from any
    // thread.
    virtual bool hasVideoTrack(const std::filesystem::path& file) const = 0;
};
