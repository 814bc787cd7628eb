#pragma once
// The block offsets a run of table entries names, read in place: a hostile table hands out
// billions of entries, so none is copied or converted before it is needed.

#include "BigEndian.h"

#include <cstddef>
#include <cstdint>
#include <span>

class BlockOffsets {
public:
    // entries: whole entries of `stride` bytes, each starting with a big-endian u32 to which
    // `distance` is added.
    BlockOffsets(std::span<const uint8_t> entries, std::size_t stride, uint64_t distance)
        : entries_(entries), stride_(stride), distance_(distance) {}

    std::size_t size() const { return entries_.size() / stride_; }
    uint64_t operator[](std::size_t i) const { return uint64_t(readU32BE(entries_.data() + i * stride_)) + distance_; }

private:
    std::span<const uint8_t> entries_;
    std::size_t stride_;
    uint64_t distance_;
};
