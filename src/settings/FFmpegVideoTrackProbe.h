#pragma once
// Video track test with libavformat: opens the container and reads its stream list from the
// headers, without decoding anything.

#include "VideoTrackProbe.h"

class FFmpegVideoTrackProbe final : public VideoTrackProbe {
public:
    FFmpegVideoTrackProbe();
    bool hasVideoTrack(const std::filesystem::path& file) const override;
};
