#pragma once
// Reads the 92-byte GPS blocks of a track. Blocks that lie close together are read in one call,
// and the last few blocks are remembered, so that a table whose entries point at the same places
// again and again costs no further reads.

#include "BlockOffsets.h"
#include "GPSData.h"
#include "GPSFix.h"
#include "GPSRecord.h"
#include "SeekableFile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// What a block holds: the classic record, or a fix of one of the other layouts.
struct GPSBlockContent {
    GPSDATA record;                        // the raw classic record, when variant is absent
    std::optional<GPSRecordForm> variant;  // the other layout the block showed
    GPSFix fix;                            // that layout's fix
};

class GPSBlockReader {
public:
    explicit GPSBlockReader(SeekableFile& file) : file_(file) {}

    // The content of the block at offsets[0]; absent when the bytes there are no GPS block
    // header or the file does not hold its first 92 bytes. The offsets after it are those the
    // caller will ask for next, in order: close neighbours among them arrive in the same read.
    std::optional<GPSBlockContent> blockAt(const BlockOffsets& offsets);

    // Reads that went to the file; blocks found in memory are not counted.
    uint64_t fileReads() const { return fileReads_; }

    static constexpr std::size_t kRememberedBlocks = 64;
    // Neighbours further apart than this cost more to copy than a read of their own.
    static constexpr uint64_t kNeighbourGap = 4096;
    // The most one read takes in, whatever the table says.
    static constexpr std::size_t kSpanBytes = 64 * 1024;

private:
    struct Slot {
        uint64_t offset = UINT64_MAX;  // no block lies there: a 32-bit entry plus a distance stays far below
        std::optional<GPSBlockContent> content;
    };

    // Reads from offsets[0] through the last of its close, ascending neighbours.
    void readSpan(const BlockOffsets& offsets);
    bool spanHolds(uint64_t offset) const;
    // The rest of a block of another layout, where its reader wants more than the 92 bytes.
    std::span<const uint8_t> variantBytes(uint64_t offset, const uint8_t* head, std::size_t wanted);

    SeekableFile& file_;
    std::array<Slot, kRememberedBlocks> slots_{};
    std::vector<uint8_t> longBlock_;  // a block read beyond its first 92 bytes
    std::vector<uint8_t> span_;  // the bytes of the last read, from spanStart_
    uint64_t spanStart_ = 0;
    uint64_t fileReads_ = 0;
};
