#pragma once
// The child boxes of one box, or of a whole file, walked in order and never past the parent's
// end; with the 64-bit and "up to the end" sizes that large movie files use.

#include "FileRange.h"
#include "SeekableFile.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

struct Box {
    std::array<char, 4> type{};
    FileRange payload;

    bool is(std::string_view name) const { return std::string_view(type.data(), type.size()) == name; }
};

class BoxChildren {
public:
    // A parent reaching past the file's end is walked as far as the file goes.
    BoxChildren(SeekableFile& file, FileRange parent);

    // The next child; absent after the last, or at a header that cannot be a box.
    std::optional<Box> next();

    // The payload of the first child typed name.
    static std::optional<FileRange> find(SeekableFile& file, FileRange parent, std::string_view name);
    static FileRange wholeFile(const SeekableFile& file) { return {0, file.size()}; }

    // Children walked at most: a real box has a handful, a hostile one could claim millions of
    // 8-byte boxes, each a read.
    static constexpr std::size_t kMaxChildren = 4096;

private:
    SeekableFile& file_;
    uint64_t at_;
    uint64_t end_;
    std::size_t walked_ = 0;
};
