#include "GPSBlockReader.h"

#include "GPSDataLoader.h"

#include <algorithm>

std::optional<GPSDATA> GPSBlockReader::recordAt(const BlockOffsets& offsets) {
    const uint64_t offset = offsets[0];
    // Offsets a few blocks apart land in different slots; a repeated offset finds its own.
    Slot& slot = slots_[(offset / kGPSBlockSize) % kRememberedBlocks];
    if (slot.offset == offset) return slot.record;

    if (!spanHolds(offset)) readSpan(offsets);
    std::optional<GPSDATA> record;
    if (spanHolds(offset)) {
        const uint8_t* block = span_.data() + (offset - spanStart_);
        if (GPSDataLoader::isGPSData(block))
            record = decodeGPSRecord(std::span<const uint8_t, kGPSRecordSize>(block + kGPSHeaderSize, kGPSRecordSize));
    }
    slot = Slot{offset, record};
    return record;
}

bool GPSBlockReader::spanHolds(uint64_t offset) const {
    return offset >= spanStart_ && offset - spanStart_ + kGPSBlockSize <= span_.size();
}

void GPSBlockReader::readSpan(const BlockOffsets& offsets) {
    const uint64_t start = offsets[0];
    uint64_t end = start + kGPSBlockSize;
    // Only offsets that follow in order, close by, join: a table's entries normally ascend, and
    // the span stays within one bounded read whatever the table holds.
    for (std::size_t i = 1; i < offsets.size(); ++i) {
        const uint64_t next = offsets[i];
        if (next < start || next > end + kNeighbourGap || next + kGPSBlockSize - start > kSpanBytes) break;
        end = std::max(end, next + kGPSBlockSize);
    }
    span_.resize(std::size_t(end - start));
    file_.seek(start);
    ++fileReads_;
    span_.resize(file_.read(span_));
    spanStart_ = start;
}
