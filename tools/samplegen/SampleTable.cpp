#include "SampleTable.h"

void SampleTable::addChunk(uint32_t offset, uint32_t samples, const std::vector<uint32_t>& sizes) {
    chunkOffsets.push_back(offset);
    samplesPerChunk.push_back(samples);
    sampleSizes.insert(sampleSizes.end(), sizes.begin(), sizes.end());
    sampleCount += samples;
}

namespace {

// stsc stores runs: a new entry only where the count of samples per chunk changes.
void writeSampleToChunk(ByteWriter& out, const std::vector<uint32_t>& samplesPerChunk) {
    std::vector<std::pair<uint32_t, uint32_t>> runs;  // first chunk (1-based), samples per chunk
    for (std::size_t i = 0; i < samplesPerChunk.size(); ++i)
        if (runs.empty() || runs.back().second != samplesPerChunk[i])
            runs.emplace_back(uint32_t(i + 1), samplesPerChunk[i]);
    out.fullBox("stsc", 0, 0, [&] {
        out.u32(uint32_t(runs.size()));
        for (const auto& [firstChunk, samples] : runs) {
            out.u32(firstChunk);
            out.u32(samples);
            out.u32(1);  // sample description index
        }
    });
}

}  // namespace

void writeSampleTableBoxes(ByteWriter& out, const SampleTable& table) {
    out.fullBox("stts", 0, 0, [&] {
        out.u32(1);
        out.u32(table.sampleCount);
        out.u32(table.sampleDelta);
    });
    if (!table.syncSamples.empty()) {
        out.fullBox("stss", 0, 0, [&] {
            out.u32(uint32_t(table.syncSamples.size()));
            for (uint32_t sample : table.syncSamples) out.u32(sample);
        });
    }
    writeSampleToChunk(out, table.samplesPerChunk);
    out.fullBox("stsz", 0, 0, [&] {
        out.u32(table.uniformSampleSize);
        out.u32(table.sampleCount);
        if (table.uniformSampleSize == 0)
            for (uint32_t size : table.sampleSizes) out.u32(size);
    });
    out.fullBox("stco", 0, 0, [&] {
        out.u32(uint32_t(table.chunkOffsets.size()));
        for (uint32_t offset : table.chunkOffsets) out.u32(offset);
    });
}
