#pragma once
// The GPS block a camera scatters through the media data (a 16-byte header, then the 76-byte
// record), the "gps " index that lists the blocks, and where the sound-chunk layout puts them.

#include "GPSRecord.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

std::array<uint8_t, kGPSBlockSize> makeGPSBlock(const GPSDATA& record);

// Payload of the "gps " box: a version word, the entry count, then (offset, size) per block;
// every block of a movie has the same size.
std::vector<uint8_t> makeGPSIndexPayload(std::span<const uint32_t> blockOffsets, uint32_t blockSize = kGPSBlockSize);

// Distance from the start of a sound chunk to its GPS block: one second of sound, rounded up to
// the next multiple of 32 KiB (a whole multiple still moves up by 32 KiB).
uint64_t chunkGPSOffset(uint32_t channels, uint32_t sampleRate, uint32_t bitsPerSample);
