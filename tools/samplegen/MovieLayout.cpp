#include "MovieLayout.h"

#include "SampleGenError.h"

#include <limits>

namespace {

uint32_t offset32(uint64_t offset) {
    if (offset > std::numeric_limits<uint32_t>::max())
        throw SampleGenError("movie too large: offsets past 4 GiB cannot be written");
    return uint32_t(offset);
}

void writeVideoChunk(OutputFile& out, const SecondOfMedia& second, SampleTable& table) {
    const uint32_t start = offset32(out.position());
    std::vector<uint32_t> sizes;
    for (const EncodedFrame& frame : second.video) {
        if (frame.keyFrame) table.syncSamples.push_back(table.sampleCount + uint32_t(sizes.size()) + 1);
        sizes.push_back(uint32_t(frame.data.size()));
        out.write(frame.data);
    }
    table.addChunk(start, uint32_t(sizes.size()), sizes);
}

void writeSoundChunk(OutputFile& out, const SecondOfMedia& second, SampleTable& table) {
    table.addChunk(offset32(out.write(second.sound)), second.soundFrames);
}

void writeGPSBlock(OutputFile& out, const SecondOfMedia& second, MediaLayoutState& state) {
    state.gpsBlockOffsets.push_back(offset32(out.write(second.gpsBlock)));
}

// Picture, sound, then the second's GPS block, which the "gps " index points at.
void writeIndexedSecond(OutputFile& out, const SecondOfMedia& second, MediaLayoutState& state) {
    writeVideoChunk(out, second, *state.video);
    writeSoundChunk(out, second, *state.sound);
    writeGPSBlock(out, second, state);
}

// The sound chunk first; its GPS block at the fixed distance from the chunk's start (the gap is
// referenced by no table, so players skip it); the picture after.
void writeSoundChunkSecond(OutputFile& out, const SecondOfMedia& second, MediaLayoutState& state) {
    const uint64_t chunkStart = out.position();
    writeSoundChunk(out, second, *state.sound);
    out.padTo(chunkStart + state.chunkGPSOffset);
    writeGPSBlock(out, second, state);
    writeVideoChunk(out, second, *state.video);
}

void writePlainSecond(OutputFile& out, const SecondOfMedia& second, MediaLayoutState& state) {
    writeVideoChunk(out, second, *state.video);
    writeSoundChunk(out, second, *state.sound);
}

constexpr SecondWriter kWriters[] = {
    writeIndexedSecond,     // GPSBlockLayout::Index
    writeSoundChunkSecond,  // GPSBlockLayout::Chunk
    writePlainSecond,       // GPSBlockLayout::None
};
static_assert(int(GPSBlockLayout::Index) == 0 && int(GPSBlockLayout::Chunk) == 1 && int(GPSBlockLayout::None) == 2);

}  // namespace

SecondWriter secondWriterFor(GPSBlockLayout layout) { return kWriters[std::size_t(layout)]; }
