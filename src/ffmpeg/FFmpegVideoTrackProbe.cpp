#include "FFmpegVideoTrackProbe.h"

#include "MovieFile.h"

bool FFmpegVideoTrackProbe::hasVideoTrack(const std::filesystem::path& file) const {
    return MovieFile::open(file).has_value();
}

std::shared_ptr<const VideoTrackProbe> defaultVideoTrackProbe() {
    static const std::shared_ptr<const VideoTrackProbe> probe = std::make_shared<const FFmpegVideoTrackProbe>();
    return probe;
}
