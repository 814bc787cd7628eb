#pragma once
// Video track test with libavformat: opens the container and reads its stream list from the
// headers, without decoding anything.

#include "VideoTrackProbe.h"

#include <memory>

class FFmpegVideoTrackProbe final : public VideoTrackProbe {
public:
    FFmpegVideoTrackProbe();
    bool hasVideoTrack(const std::filesystem::path& file) const override;
};

// The probe backed by the media libraries, shared by the whole program.
std::shared_ptr<const VideoTrackProbe> defaultVideoTrackProbe();
