#pragma once
// Walks a table of big-endian u32 entries in a file through one fixed-size buffer, so that a
// table whose count claims gigabytes never costs more memory than the buffer.

#include "SeekableFile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

class TableStream {
public:
    // entries: how many entries to walk at most; entryBytes: the stride, whose first 4 bytes are
    // the value (4 for a chunk offset table, 8 for the GPS index).
    TableStream(SeekableFile& file, uint64_t start, uint64_t entries, std::size_t entryBytes);

    // The next run of whole entries as they stand in the file (value first, big-endian); empty
    // past the last entry or when the file ends early. Runs are walked in place, which keeps
    // billions of entries fast.
    std::span<const uint8_t> nextRun();
    std::size_t entryBytes() const { return entryBytes_; }

    static constexpr std::size_t kBufferBytes = 64 * 1024;

private:
    bool refill();

    SeekableFile& file_;
    uint64_t nextOffset_;   // file offset of the first byte not yet buffered
    uint64_t remaining_;    // entries not yet handed out
    std::size_t entryBytes_;
    std::array<uint8_t, kBufferBytes> buffer_;
    const uint8_t* source_ = nullptr;  // buffer_, or zeros for a stretch of the file known to be a hole
    std::size_t filled_ = 0;
    std::size_t cursor_ = 0;
    uint64_t zerosAhead_ = 0;  // bytes from nextOffset_ on that the file said are a hole
};
