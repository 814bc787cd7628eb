#pragma once
// What every export format does: one document around the tracks of one or more movies.

#include "GPSDataLoader.h"

#include <span>
#include <string>
#include <string_view>

// A movie's track and the name the user gave for the movie.
struct NamedTrack {
    std::string file;
    GPSTrack track;
};

// Writes one document: begin, then file or segmentedTrack for each track in order, then end.
// Files can be passed one at a time as they are read, so a long list never sits in memory whole.
class TrackWriter {
public:
    virtual ~TrackWriter() = default;
    virtual void begin() = 0;
    virtual void file(const NamedTrack& track) = 0;
    // Several movies as one track called name, one segment per movie in order: a trip that the
    // camera cut into clips. Formats without segments write each movie as file() does.
    virtual void segmentedTrack(std::string_view name, std::span<const NamedTrack> segments) {
        (void)name;
        for (const NamedTrack& segment : segments) file(segment);
    }
    virtual void end() = 0;
};

inline void writeTracks(TrackWriter& writer, std::span<const NamedTrack> tracks) {
    writer.begin();
    for (const NamedTrack& track : tracks) writer.file(track);
    writer.end();
}
