#pragma once
#include <cstdint>

// Where a box's payload lies in a file. {0, 0} means "not found".
struct FileRange {
    uint64_t location = 0;  // offset of the payload (just past the 8-byte header)
    uint64_t length = 0;    // payload length: box size - 8

    bool found() const { return location + length != 0; }
    friend bool operator==(const FileRange&, const FileRange&) = default;
};
