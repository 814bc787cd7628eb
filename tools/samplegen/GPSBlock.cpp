#include "GPSBlock.h"

#include "ByteWriter.h"

#include <algorithm>

std::array<uint8_t, kGPSBlockSize> makeGPSBlock(const GPSDATA& record) {
    ByteWriter header;
    header.u32(uint32_t(kGPSBlockSize));
    header.fourcc("free");  // reads as a free-space box to anything that walks the bytes
    header.fourcc("GPS ");
    header.u32(0);

    std::array<uint8_t, kGPSBlockSize> block{};
    std::copy(header.data().begin(), header.data().end(), block.begin());
    const auto body = encodeGPSRecord(record);
    std::copy(body.begin(), body.end(), block.begin() + kGPSHeaderSize);
    return block;
}

std::vector<uint8_t> makeGPSIndexPayload(std::span<const uint32_t> blockOffsets, uint32_t blockSize) {
    ByteWriter index;
    index.u32(0);
    index.u32(uint32_t(blockOffsets.size()));
    for (uint32_t offset : blockOffsets) {
        index.u32(offset);
        index.u32(blockSize);
    }
    return index.take();
}

uint64_t chunkGPSOffset(uint32_t channels, uint32_t sampleRate, uint32_t bitsPerSample) {
    const uint64_t secondOfSound = uint64_t(channels) * sampleRate * bitsPerSample / 8;
    return (secondOfSound + 32768) & ~uint64_t(32767);
}
