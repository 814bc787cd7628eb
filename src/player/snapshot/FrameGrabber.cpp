#include "FrameGrabber.h"

#include "RgbConverter.h"
#include "VideoFrameReader.h"

std::optional<RgbImage> FrameGrabber::frameAt(const std::filesystem::path& movie, MediaTime time) {
    std::optional<VideoFrameReader> reader = VideoFrameReader::open(movie);
    if (!reader) return std::nullopt;
    const FramePtr frame = reader->frameAt(time);
    if (!frame) return std::nullopt;
    return RgbConverter::convert(*frame);
}
