#include "BoxChildren.h"

#include "BigEndian.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr uint64_t kHeaderBytes = 8;
constexpr uint64_t kLargeHeaderBytes = 16;

}  // namespace

BoxChildren::BoxChildren(SeekableFile& file, FileRange parent)
    : file_(file),
      at_(parent.location),
      end_(parent.location +
           std::min(parent.length, file.size() > parent.location ? file.size() - parent.location : 0)) {}

std::optional<Box> BoxChildren::next() {
    if (end_ - at_ < kHeaderBytes || walked_ >= kMaxChildren) return std::nullopt;
    ++walked_;
    std::array<uint8_t, kLargeHeaderBytes> header{};
    file_.seek(at_);
    if (file_.read(std::span(header.data(), kHeaderBytes)) != kHeaderBytes) return std::nullopt;
    uint64_t size = readU32BE(header.data());
    uint64_t headerBytes = kHeaderBytes;
    if (size == 1) {
        // The real size follows the type, in 64 bits.
        headerBytes = kLargeHeaderBytes;
        if (end_ - at_ < headerBytes ||
            file_.read(std::span(header.data() + kHeaderBytes, kHeaderBytes)) != kHeaderBytes)
            return std::nullopt;
        size = readU64BE(&header[8]);
    } else if (size == 0) {
        size = end_ - at_;  // the box runs to the end of its parent
    }
    // A box smaller than its header cannot be stepped over: the walk ends there.
    if (size < headerBytes) {
        at_ = end_;
        return std::nullopt;
    }
    Box box;
    std::memcpy(box.type.data(), &header[4], 4);
    const uint64_t length = std::min(size, end_ - at_);
    box.payload = {at_ + headerBytes, length - headerBytes};
    at_ += length;
    return box;
}

std::optional<FileRange> BoxChildren::find(SeekableFile& file, FileRange parent, std::string_view name) {
    BoxChildren children(file, parent);
    while (const std::optional<Box> box = children.next())
        if (box->is(name)) return box->payload;
    return std::nullopt;
}
