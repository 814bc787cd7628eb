#include "GPSBlockReader.h"

#include "BigEndian.h"
#include "FreeGpsVariants.h"
#include "GPSDataLoader.h"

#include <algorithm>

std::optional<GPSBlockContent> GPSBlockReader::blockAt(const BlockOffsets& offsets) {
    const uint64_t offset = offsets[0];
    // Offsets a few blocks apart land in different slots; a repeated offset finds its own.
    Slot& slot = slots_[(offset / kGPSBlockSize) % kRememberedBlocks];
    if (slot.offset == offset) return slot.content;

    if (!spanHolds(offset)) readSpan(offsets);
    std::optional<GPSBlockContent> content;
    if (spanHolds(offset)) {
        const uint8_t* block = span_.data() + (offset - spanStart_);
        if (GPSDataLoader::isGPSData(block)) {
            content.emplace();
            content->variant = detectFreeGpsVariant(std::span<const uint8_t, kGPSBlockSize>(block, kGPSBlockSize));
            if (content->variant)
                content->fix = decodeFreeGpsVariant(
                    *content->variant, variantBytes(offset, block, variantBytesWanted(*content->variant)));
            else
                content->record =
                    decodeGPSRecord(std::span<const uint8_t, kGPSRecordSize>(block + kGPSHeaderSize, kGPSRecordSize));
        }
    }
    slot = Slot{offset, content};
    return content;
}

std::span<const uint8_t> GPSBlockReader::variantBytes(uint64_t offset, const uint8_t* head, std::size_t wanted) {
    // The block's own size word bounds it, never below the head already read nor above wanted.
    const std::size_t length = std::clamp<std::size_t>(readU32BE(head), kGPSBlockSize, wanted);
    const std::size_t inSpan = std::size_t(span_.size() - (offset - spanStart_));
    if (inSpan >= length) return {head, length};
    longBlock_.resize(length);
    file_.seek(offset);
    ++fileReads_;
    longBlock_.resize(file_.read(longBlock_));
    return longBlock_;
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
