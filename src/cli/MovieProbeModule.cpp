// The movie test of "probe", built as a module that the tool loads only when probe runs, so that
// every other command starts without the media libraries.
#include "FFmpegVideoTrackProbe.h"

extern "C" __attribute__((visibility("default"))) int dashtrack_has_video_track(const char* path) {
    if (path == nullptr) return 0;
    return defaultVideoTrackProbe()->hasVideoTrack(path) ? 1 : 0;
}
