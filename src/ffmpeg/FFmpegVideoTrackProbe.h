#pragma once
// Video track test with libavformat: a file passes when it opens as a MovieFile.

#include "VideoTrackProbe.h"

#include <memory>

class FFmpegVideoTrackProbe final : public VideoTrackProbe {
public:
    bool hasVideoTrack(const std::filesystem::path& file) const override;
};

// The probe backed by the media libraries, shared by the whole program.
std::shared_ptr<const VideoTrackProbe> defaultVideoTrackProbe();
