#pragma once
// How one second of media is laid out in the media data, for each GPS block layout.

#include "H264Encoder.h"
#include "MovieOptions.h"
#include "OutputFile.h"
#include "SampleTable.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

struct SecondOfMedia {
    std::span<const EncodedFrame> video;
    std::span<const uint8_t> sound;  // exactly one second of PCM
    uint32_t soundFrames = 0;
    std::span<const uint8_t> gpsBlock;  // empty in a movie without GPS
};

struct MediaLayoutState {
    uint64_t chunkGPSOffset = 0;  // sound-chunk layout: distance from chunk start to its block
    SampleTable* video = nullptr;
    SampleTable* sound = nullptr;
    std::vector<uint32_t> gpsBlockOffsets;
};

using SecondWriter = void (*)(OutputFile& out, const SecondOfMedia& second, MediaLayoutState& state);

SecondWriter secondWriterFor(GPSBlockLayout layout);
