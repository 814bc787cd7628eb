#pragma once
// Which of a clip's streams go into a saved segment: video and audio that the output container can
// hold. Data and subtitle tracks are left out; the GPS goes beside the movie as GPX instead.

#include "StreamSignature.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// The indices of the kept streams of an opened clip, in the clip's order.
std::vector<int> keptStreamIndices(const AVFormatContext& clip, const AVOutputFormat& container);

// The signatures of the kept streams of an opened clip.
ClipStreams keptStreamSignatures(const AVFormatContext& clip, const AVOutputFormat& container);

// Opens the clip as the player would (a local movie file only) and reads the signatures of its kept streams for the container ("mp4", "mov");
// absent when it does not open as a movie with at least one kept stream.
std::optional<ClipStreams> readKeptStreams(const std::filesystem::path& clip, const std::string& container);
