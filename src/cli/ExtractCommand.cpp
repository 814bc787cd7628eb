#include "ExtractCommand.h"

#include "Diagnostics.h"
#include "FixSamples.h"
#include "TrackFormats.h"

#include <ostream>

int runExtract(const Invocation& invocation, std::ostream& out, std::ostream& err) {
    const TrackFormat* format = findTrackFormat(invocation.format);
    const std::unique_ptr<TrackWriter> writer =
        format->make(out, {.unit = invocation.unit, .severalFiles = invocation.files.size() > 1});

    int status = kExitSuccess;
    writer->begin();
    // One movie at a time: only the track being written is held in memory.
    for (const std::string& file : invocation.files) {
        NamedTrack named{file, GPSDataLoader::LoadTrack(file)};
        if (!named.track.opened) {
            reportFileError(err, file, named.track.openError);
            status = kExitFileError;
            continue;
        }
        // Formats with several fixes a second export every one; the player shows one a second.
        if (!named.track.fixes.empty()) named.track.samples = everyFixAsSample(named.track.fixes);
        writer->file(named);
    }
    writer->end();
    return finishOutput(out, err, status);
}
