#pragma once
// Builds big-endian binary data, with nested boxes whose sizes are filled in when they close.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

class ByteWriter {
public:
    void u8(uint8_t value) { bytes_.push_back(value); }
    void u16(uint16_t value);
    void u32(uint32_t value);
    void fourcc(std::string_view code);  // exactly four characters
    void zeros(std::size_t count) { bytes_.insert(bytes_.end(), count, 0); }
    void bytes(std::span<const uint8_t> data) { bytes_.insert(bytes_.end(), data.begin(), data.end()); }

    // A box: size, type, then whatever body() writes.
    template <class Body>
    void box(std::string_view type, Body&& body) {
        const std::size_t start = open(type);
        body();
        close(start);
    }
    // A box whose payload starts with a version byte and 24 bits of flags.
    template <class Body>
    void fullBox(std::string_view type, uint8_t version, uint32_t flags, Body&& body) {
        box(type, [&] {
            u32(uint32_t(version) << 24 | (flags & 0xFFFFFF));
            body();
        });
    }

    std::size_t size() const { return bytes_.size(); }
    const std::vector<uint8_t>& data() const { return bytes_; }
    std::vector<uint8_t> take() { return std::move(bytes_); }

private:
    std::size_t open(std::string_view type);
    void close(std::size_t start);

    std::vector<uint8_t> bytes_;
};
