#pragma once
// Makes a dash-camera movie from a route: H.264 picture, PCM sound, and one GPS record per second
// of movie laid out as the options say.
//
// Timing: the movie starts at the route's time `from` seconds in and lasts `seconds` whole
// seconds. Record k (counted from 1) describes movie second k: the route at start + k seconds,
// the instant at which the player starts showing it. The picture's clock stamp shows start + the
// whole seconds played, so picture and read-outs agree.

#include "MovieOptions.h"
#include "Route.h"

#include <cstdint>
#include <filesystem>
#include <vector>

struct MoviePlan {
    int64_t start = 0;    // camera clock at the first frame
    int64_t seconds = 0;  // duration, and the number of GPS records
};

// Throws SampleGenError when the route does not cover the movie.
MoviePlan planMovie(const Route& route, const MovieOptions& options);

// What records 1..seconds hold, before the record form encodes them.
std::vector<RouteSample> recordedSamples(const Route& route, const MoviePlan& plan);

// Writes the movie atomically (a temporary file renamed at the end), then the sidecar the options
// ask for beside it. Throws SampleGenError.
void writeSampleMovie(const Route& route, const MovieOptions& options, const std::filesystem::path& output);
