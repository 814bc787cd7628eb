#include "MovieOptions.h"

#include "SampleGenError.h"

#include <string>

namespace {

void require(bool condition, const std::string& message) {
    if (!condition) throw UsageError(message);
}

}  // namespace

void validate(const MovieOptions& o) {
    require(o.width >= 64 && o.width <= 3840 && o.width % 2 == 0, "--size: width must be even, 64..3840");
    require(o.height >= 64 && o.height <= 2160 && o.height % 2 == 0, "--size: height must be even, 64..2160");
    require(o.fps >= 1 && o.fps <= 120, "--fps must be 1..120");
    require(o.channels >= 1 && o.channels <= 8, "--channels must be 1..8");
    // The sample entry holds the rate as a 16.16 number.
    require(o.sampleRate >= 8000 && o.sampleRate <= 65535, "--rate must be 8000..65535");
    require(o.fromSecond >= 0, "--from must not be negative");
    require(!o.seconds || *o.seconds >= 1, "--seconds must be at least 1");
    // The loader reads the sound-chunk layout only from non-MP4 files.
    require(!(o.layout == GPSBlockLayout::Chunk && o.form == GPSRecordForm::MP4),
            "--layout chunk cannot be combined with --form mp4");
    // The loader reads camera blocks first: beside them another track would never be read.
    require(o.layout == GPSBlockLayout::None || (o.track == EmbeddedTrack::None && o.sidecar == SidecarTrack::None),
            "--track and --sidecar need --layout none");
}
