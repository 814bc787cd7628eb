#include "AvcConfig.h"

#include "ByteWriter.h"

namespace {

constexpr uint8_t kNalSequenceParameterSet = 7;
constexpr uint8_t kNalPictureParameterSet = 8;

uint8_t nalType(std::span<const uint8_t> nal) { return nal.empty() ? 0 : nal[0] & 0x1F; }

}  // namespace

std::vector<std::span<const uint8_t>> splitAnnexB(std::span<const uint8_t> stream) {
    // Positions just past each 00 00 01 (a four-byte start code ends with the same three bytes).
    std::vector<std::size_t> starts;
    for (std::size_t i = 0; i + 3 <= stream.size(); ++i)
        if (stream[i] == 0 && stream[i + 1] == 0 && stream[i + 2] == 1) starts.push_back(i + 3);

    std::vector<std::span<const uint8_t>> units;
    for (std::size_t k = 0; k < starts.size(); ++k) {
        std::size_t end = k + 1 < starts.size() ? starts[k + 1] - 3 : stream.size();
        while (end > starts[k] && stream[end - 1] == 0) --end;  // the zero byte of a 4-byte start code
        if (end > starts[k]) units.push_back(stream.subspan(starts[k], end - starts[k]));
    }
    return units;
}

std::vector<uint8_t> toLengthPrefixed(std::span<const uint8_t> annexB) {
    ByteWriter out;
    for (const auto nal : splitAnnexB(annexB)) {
        out.u32(uint32_t(nal.size()));
        out.bytes(nal);
    }
    return out.take();
}

std::vector<uint8_t> makeAvcConfig(std::span<const uint8_t> annexBHeaders) {
    std::span<const uint8_t> sps, pps;
    for (const auto nal : splitAnnexB(annexBHeaders)) {
        if (nalType(nal) == kNalSequenceParameterSet && sps.empty()) sps = nal;
        if (nalType(nal) == kNalPictureParameterSet && pps.empty()) pps = nal;
    }
    if (sps.size() < 4 || pps.empty()) return {};

    ByteWriter out;
    out.u8(1);       // configuration version
    out.u8(sps[1]);  // profile
    out.u8(sps[2]);  // profile compatibility
    out.u8(sps[3]);  // level
    out.u8(0xFF);    // 4-byte NAL lengths
    out.u8(0xE1);    // one SPS
    out.u16(uint16_t(sps.size()));
    out.bytes(sps);
    out.u8(1);  // one PPS
    out.u16(uint16_t(pps.size()));
    out.bytes(pps);
    return out.take();
}
