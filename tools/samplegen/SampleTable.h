#pragma once
// Where a track's samples lie and how long they last: the tables of a sample table box.

#include "ByteWriter.h"

#include <cstdint>
#include <vector>

struct SampleTable {
    uint32_t sampleDelta = 1;  // every sample lasts this long, in the track's time scale
    uint32_t sampleCount = 0;
    uint32_t uniformSampleSize = 0;  // bytes of every sample, or 0 when sampleSizes lists them
    std::vector<uint32_t> sampleSizes;
    std::vector<uint32_t> chunkOffsets;     // absolute file offsets
    std::vector<uint32_t> samplesPerChunk;  // one entry per chunk
    std::vector<uint32_t> syncSamples;      // 1-based; empty when every sample is a sync sample

    // Adds a chunk of samples; sizes may be empty when uniformSampleSize is set.
    void addChunk(uint32_t offset, uint32_t samples, const std::vector<uint32_t>& sizes = {});
};

// stts, stss (when needed), stsc, stsz and stco, in that order; stsd is the track's own business.
void writeSampleTableBoxes(ByteWriter& out, const SampleTable& table);
