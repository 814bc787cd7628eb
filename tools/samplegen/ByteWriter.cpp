#include "ByteWriter.h"

#include "SampleGenError.h"

#include <limits>
#include <string>

void ByteWriter::u16(uint16_t value) {
    u8(uint8_t(value >> 8));
    u8(uint8_t(value));
}

void ByteWriter::u32(uint32_t value) {
    u16(uint16_t(value >> 16));
    u16(uint16_t(value));
}

void ByteWriter::fourcc(std::string_view code) {
    if (code.size() != 4) throw SampleGenError("four-character code expected: '" + std::string(code) + "'");
    for (char c : code) u8(uint8_t(c));
}

std::size_t ByteWriter::open(std::string_view type) {
    const std::size_t start = bytes_.size();
    u32(0);  // size, set by close()
    fourcc(type);
    return start;
}

void ByteWriter::close(std::size_t start) {
    const std::size_t size = bytes_.size() - start;
    if (size > std::numeric_limits<uint32_t>::max()) throw SampleGenError("box larger than 4 GiB");
    for (int i = 0; i < 4; ++i) bytes_[start + std::size_t(i)] = uint8_t(size >> (24 - 8 * i));
}
