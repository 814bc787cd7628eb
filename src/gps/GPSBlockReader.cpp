#include "GPSBlockReader.h"

#include "GPSDataLoader.h"

std::optional<GPSDATA> GPSBlockReader::recordAt(uint64_t offset) {
    // Offsets a few blocks apart land in different slots; a repeated offset finds its own.
    Slot& slot = slots_[(offset / kGPSBlockSize) % kRememberedBlocks];
    if (slot.offset == offset) return slot.record;

    std::optional<GPSDATA> record;
    file_.seek(offset);
    std::array<uint8_t, kGPSBlockSize> block;
    ++fileReads_;
    if (file_.read(block) == block.size() && GPSDataLoader::isGPSData(block.data()))
        record = decodeGPSRecord(std::span<const uint8_t, kGPSRecordSize>(block.data() + kGPSHeaderSize, kGPSRecordSize));
    slot = Slot{offset, record};
    return record;
}
