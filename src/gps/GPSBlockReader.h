#pragma once
// Reads the 92-byte GPS blocks of a track and remembers the last few it read, so that a table
// whose entries point at the same places again and again costs no further reads.

#include "GPSRecord.h"
#include "SeekableFile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

class GPSBlockReader {
public:
    explicit GPSBlockReader(SeekableFile& file) : file_(file) {}

    // The raw record of the block at offset; absent when the bytes there are no GPS block header
    // or the file does not hold the whole block.
    std::optional<GPSDATA> recordAt(uint64_t offset);

    // Reads that went to the file; blocks found in memory are not counted.
    uint64_t fileReads() const { return fileReads_; }

    static constexpr std::size_t kRememberedBlocks = 64;

private:
    struct Slot {
        uint64_t offset = UINT64_MAX;  // no block lies there: blocks start below 4 GiB
        std::optional<GPSDATA> record;
    };

    SeekableFile& file_;
    std::array<Slot, kRememberedBlocks> slots_{};
    uint64_t fileReads_ = 0;
};
